// Sizes are relative to the application's font.
#include "zkcore/widgetSupport/fonts.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <array>

namespace {

constexpr std::array<double, 5> fontFactors = {0.75, 0.875, 1.0, 1.25, 1.5};

} // namespace

QFont Fonts::getWidgetFont(const QWidget* widget, Size size)
{
    QFont font = widget ? QApplication::font(widget) : QApplication::font();
    const int index = std::clamp(static_cast<int>(size), 0, static_cast<int>(fontFactors.size()) - 1);
    const double factor = fontFactors[static_cast<size_t>(index)];
    // A font has its size either in points or in pixels; the other one is negative.
    if (font.pointSizeF() > 0.0)
        font.setPointSizeF(std::max(font.pointSizeF() * factor, 1.0));
    else
        font.setPixelSize(std::max(qRound(font.pixelSize() * factor), 1));
    return font;
}

void Fonts::setFontRecursively(QWidget* widget, Size size)
{
    if (!widget)
        return;
    QList<QWidget*> widgets = widget->findChildren<QWidget*>();
    widgets.prepend(widget);
    for (QWidget* each : widgets) {
        const QFont before = each->font();
        QFont font = getWidgetFont(each, size);
        font.setWeight(before.weight());
        font.setItalic(before.italic());
        font.setUnderline(before.underline());
        font.setStrikeOut(before.strikeOut());
        each->setFont(font);
    }
}
