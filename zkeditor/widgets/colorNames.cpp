#include "zkeditor/widgets/colorNames.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

struct NamedColor
{
    const char* name;
    QRgb rgb;
};

// The English names are also names of the web for the same colours.
constexpr NamedColor standardColorTable[] = {
    {QT_TRANSLATE_NOOP("ColorNames", "Black"), 0xff000000},
    {QT_TRANSLATE_NOOP("ColorNames", "Dim grey"), 0xff696969},
    {QT_TRANSLATE_NOOP("ColorNames", "Grey"), 0xff808080},
    {QT_TRANSLATE_NOOP("ColorNames", "Silver"), 0xffc0c0c0},
    {QT_TRANSLATE_NOOP("ColorNames", "White"), 0xffffffff},
    {QT_TRANSLATE_NOOP("ColorNames", "Brown"), 0xffa52a2a},
    {QT_TRANSLATE_NOOP("ColorNames", "Maroon"), 0xff800000},
    {QT_TRANSLATE_NOOP("ColorNames", "Pink"), 0xffffc0cb},
    {QT_TRANSLATE_NOOP("ColorNames", "Red"), 0xffff0000},
    {QT_TRANSLATE_NOOP("ColorNames", "Orange"), 0xffffa500},
    {QT_TRANSLATE_NOOP("ColorNames", "Yellow"), 0xffffff00},
    {QT_TRANSLATE_NOOP("ColorNames", "Lime"), 0xff00ff00},
    {QT_TRANSLATE_NOOP("ColorNames", "Cyan"), 0xff00ffff},
    {QT_TRANSLATE_NOOP("ColorNames", "Blue"), 0xff0000ff},
    {QT_TRANSLATE_NOOP("ColorNames", "Violet"), 0xffee82ee},
    {QT_TRANSLATE_NOOP("ColorNames", "Magenta"), 0xffff00ff},
    {QT_TRANSLATE_NOOP("ColorNames", "Gold"), 0xffffd700},
    {QT_TRANSLATE_NOOP("ColorNames", "Olive"), 0xff808000},
    {QT_TRANSLATE_NOOP("ColorNames", "Green"), 0xff008000},
    {QT_TRANSLATE_NOOP("ColorNames", "Teal"), 0xff008080},
    {QT_TRANSLATE_NOOP("ColorNames", "Sky blue"), 0xff87ceeb},
    {QT_TRANSLATE_NOOP("ColorNames", "Navy"), 0xff000080},
    {QT_TRANSLATE_NOOP("ColorNames", "Purple"), 0xff800080},
    {QT_TRANSLATE_NOOP("ColorNames", "Indigo"), 0xff4b0082},
};

struct Hue
{
    double end; // the first angle, in degrees, that is the next one's
    const char* dark;
    const char* plain;
    const char* light;
};

constexpr Hue hueTable[] = {
    {15, QT_TRANSLATE_NOOP("ColorNames", "Dark red"), QT_TRANSLATE_NOOP("ColorNames", "Red"),
     QT_TRANSLATE_NOOP("ColorNames", "Light red")},
    {45, QT_TRANSLATE_NOOP("ColorNames", "Brown"), QT_TRANSLATE_NOOP("ColorNames", "Orange"),
     QT_TRANSLATE_NOOP("ColorNames", "Light orange")},
    {70, QT_TRANSLATE_NOOP("ColorNames", "Dark yellow"), QT_TRANSLATE_NOOP("ColorNames", "Yellow"),
     QT_TRANSLATE_NOOP("ColorNames", "Light yellow")},
    {165, QT_TRANSLATE_NOOP("ColorNames", "Dark green"), QT_TRANSLATE_NOOP("ColorNames", "Green"),
     QT_TRANSLATE_NOOP("ColorNames", "Light green")},
    {200, QT_TRANSLATE_NOOP("ColorNames", "Dark cyan"), QT_TRANSLATE_NOOP("ColorNames", "Cyan"),
     QT_TRANSLATE_NOOP("ColorNames", "Light cyan")},
    {255, QT_TRANSLATE_NOOP("ColorNames", "Dark blue"), QT_TRANSLATE_NOOP("ColorNames", "Blue"),
     QT_TRANSLATE_NOOP("ColorNames", "Light blue")},
    {290, QT_TRANSLATE_NOOP("ColorNames", "Dark violet"), QT_TRANSLATE_NOOP("ColorNames", "Violet"),
     QT_TRANSLATE_NOOP("ColorNames", "Light violet")},
    {345, QT_TRANSLATE_NOOP("ColorNames", "Dark magenta"), QT_TRANSLATE_NOOP("ColorNames", "Magenta"),
     QT_TRANSLATE_NOOP("ColorNames", "Pink")},
    {361, QT_TRANSLATE_NOOP("ColorNames", "Dark red"), QT_TRANSLATE_NOOP("ColorNames", "Red"),
     QT_TRANSLATE_NOOP("ColorNames", "Light red")},
};

const char* lookOf(const QColor& color)
{
    const double light = color.lightnessF();
    // In between the darkest and the lightest, how far the channels are apart is what one sees of a hue.
    const double chroma = color.hslSaturationF() * (1 - std::abs(2 * light - 1));
    if (chroma < 0.08) {
        if (light < 0.08)
            return QT_TRANSLATE_NOOP("ColorNames", "Black");
        if (light > 0.95)
            return QT_TRANSLATE_NOOP("ColorNames", "White");
        return light < 0.4   ? QT_TRANSLATE_NOOP("ColorNames", "Dark grey")
               : light < 0.7 ? QT_TRANSLATE_NOOP("ColorNames", "Grey")
                             : QT_TRANSLATE_NOOP("ColorNames", "Light grey");
    }
    const double angle = color.hslHueF() * 360;
    const Hue& hue = *std::find_if(std::begin(hueTable), std::end(hueTable) - 1,
                                   [angle](const Hue& each) { return angle < each.end; });
    return light < 0.35 ? hue.dark : light > 0.7 ? hue.light : hue.plain;
}

QString translatedName(const NamedColor& color)
{
    return QCoreApplication::translate("ColorNames", color.name);
}

} // namespace

namespace colorNames {

const std::vector<QColor>& standardColors()
{
    static const std::vector<QColor> colors = [] {
        std::vector<QColor> all;
        for (const NamedColor& color : standardColorTable)
            all.emplace_back(color.rgb);
        return all;
    }();
    return colors;
}

QString nameOf(const QColor& color)
{
    const auto* known = std::find_if(std::begin(standardColorTable), std::end(standardColorTable),
                                     [&color](const NamedColor& entry) { return entry.rgb == color.rgba(); });
    if (known != std::end(standardColorTable))
        return translatedName(*known);
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString describe(const QColor& color)
{
    const QString name = nameOf(color);
    if (!name.startsWith(QLatin1Char('#')))
        return name;
    return QCoreApplication::translate("ColorNames", "%1, %2")
        .arg(color.alpha() == 0 ? QCoreApplication::translate("ColorNames", "Transparent")
                                : QCoreApplication::translate("ColorNames", lookOf(color)),
             name);
}

QColor colorNamed(const QString& text)
{
    static const QRegularExpression bareDigits(QStringLiteral("^([0-9a-fA-F]{3}|[0-9a-fA-F]{6}|[0-9a-fA-F]{8})$"));
    const QString name = text.simplified();
    if (name.isEmpty())
        return {};
    for (const NamedColor& color : standardColorTable) {
        if (translatedName(color).compare(name, Qt::CaseInsensitive) == 0)
            return QColor(color.rgb);
    }
    if (QColor::isValidColor(name))
        return QColor(name);
    return bareDigits.match(name).hasMatch() ? QColor(QLatin1Char('#') + name) : QColor();
}

QPixmap swatch(const QColor& color, const QSize& size, const QWidget& widget)
{
    const qreal ratio = widget.devicePixelRatioF();
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QRectF inside = QRectF(QPointF(0, 0), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5);
    const QPalette& palette = widget.palette();
    if (!color.isValid() || color.alpha() < 255)
        painter.fillRect(inside, palette.base());
    if (!color.isValid())
        painter.fillRect(inside, QBrush(palette.color(QPalette::WindowText), Qt::BDiagPattern));
    else if (color.alpha() < 255)
        painter.fillRect(inside, QBrush(palette.color(QPalette::Mid), Qt::Dense4Pattern));
    if (color.isValid())
        painter.fillRect(inside, color);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawRect(inside);
    return pixmap;
}

} // namespace colorNames
