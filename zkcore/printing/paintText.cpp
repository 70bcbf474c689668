// Lays out the texts of drawings, the same on the screen and on paper.
#include "zkcore/printing/paintText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

// In millimetres.
constexpr double labelLineHeight = 3.6;
constexpr double labelHeight = 4.2;
constexpr double labelGap = 0.5;
constexpr double longestLabel = 60.0;

} // namespace

namespace drawingText {

QFont fontOfHeight(double lineHeight)
{
    constexpr int probeSize = 200;
    QFont font;
    // Hinted widths would depend on the scale at which the text happens to be drawn.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(probeSize);
    const double ratio = QFontMetricsF(font).lineSpacing() / probeSize;
    const double size = ratio > 0.0 ? lineHeight / ratio : lineHeight;
    font.setPixelSize(std::clamp(static_cast<int>(std::lround(size)), 1, 10000));
    return font;
}

void draw(QPainter& painter, const QRectF& rect, int flags, const QString& text, const QFont& font)
{
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(1.0 / unitsPerMillimetre, 1.0 / unitsPerMillimetre);
    painter.setFont(font);
    painter.drawText(QRectF(QPointF(), rect.size() * unitsPerMillimetre), flags, text);
    painter.restore();
}

} // namespace drawingText

QFont paintedLabelFont()
{
    return drawingText::fontOfHeight(labelLineHeight * drawingText::unitsPerMillimetre);
}

QString paintedLabelText(const QString& label)
{
    const QFontMetricsF metrics(paintedLabelFont());
    return metrics.elidedText(label.simplified(), Qt::ElideRight, longestLabel * drawingText::unitsPerMillimetre);
}

QRectF paintedLabelRect(const QString& label, const QRectF& area)
{
    const QFontMetricsF metrics(paintedLabelFont());
    const double width = metrics.horizontalAdvance(paintedLabelText(label)) / drawingText::unitsPerMillimetre + 1.0;
    return QRectF(area.center().x() - width / 2000.0, area.bottom() + labelGap / 1000.0, width / 1000.0,
                  labelHeight / 1000.0);
}
