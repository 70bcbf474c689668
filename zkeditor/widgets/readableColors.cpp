#include "zkeditor/widgets/readableColors.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastReadableContrast = 4.5;
constexpr int blendSteps = 50;

double linearChannel(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double relativeLuminance(const QColor& color)
{
    return 0.2126 * linearChannel(color.redF()) + 0.7152 * linearChannel(color.greenF()) +
           0.0722 * linearChannel(color.blueF());
}

/// The colour laid over the ground; 1 covers it.
QColor blended(const QColor& color, double opacity, const QColor& ground)
{
    const auto mix = [opacity](int top, int bottom) { return qRound(top * opacity + bottom * (1 - opacity)); };
    return QColor(mix(color.red(), ground.red()), mix(color.green(), ground.green()), mix(color.blue(), ground.blue()));
}

} // namespace

double readableColors::contrast(const QColor& a, const QColor& b)
{
    const double first = relativeLuminance(a);
    const double second = relativeLuminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor readableColors::on(const QColor& ground, const QColor& color)
{
    const QColor opaque = blended(color, color.alphaF(), ground);
    const QColor end = contrast(Qt::white, ground) > contrast(Qt::black, ground) ? Qt::white : Qt::black;
    for (int step = 0; step < blendSteps; ++step) {
        const QColor tried = blended(end, static_cast<double>(step) / blendSteps, opaque);
        if (contrast(tried, ground) >= leastReadableContrast)
            return tried;
    }
    return end;
}

QColor readableColors::error(const QPalette& palette, QPalette::ColorRole ground)
{
    return on(palette.color(ground), QColor(0xd8, 0x1c, 0x1c));
}

QPalette readableColors::adapted(QPalette palette)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const auto change = [&palette, group](QPalette::ColorRole role, const QColor& color) {
            if (color != palette.color(group, role))
                palette.setColor(group, role, color);
        };
        const auto readable = [&palette, group](QPalette::ColorRole role,
                                                std::initializer_list<QPalette::ColorRole> grounds) {
            QColor color = palette.color(group, role);
            for (const QPalette::ColorRole ground : grounds)
                color = on(palette.color(group, ground), color);
            return color;
        };
        change(QPalette::PlaceholderText, readable(QPalette::PlaceholderText, {QPalette::Base, QPalette::AlternateBase,
                                                                               QPalette::Window, QPalette::Button}));
        for (const QPalette::ColorRole link : {QPalette::Link, QPalette::LinkVisited})
            change(link, readable(link, {QPalette::Base, QPalette::AlternateBase, QPalette::Window}));
        change(QPalette::Highlight, readable(QPalette::Highlight, {QPalette::HighlightedText}));
    }
    return palette;
}
