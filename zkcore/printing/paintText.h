#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

/// Text in drawings. Fonts have whole pixel sizes, so text is laid out in units of a twentieth of a millimetre and
/// scaled.
namespace drawingText {

constexpr double unitsPerMillimetre = 20.0;

/// The font whose lines are `lineHeight` units high.
QFont fontOfHeight(double lineHeight);

/// Writes the text into a rectangle given in millimetres, the painter's coordinates; flags as for QPainter::drawText.
/// The painter's pen gives the colour.
void draw(QPainter& painter, const QRectF& rect, int flags, const QString& text, const QFont& font);

} // namespace drawingText

/// The font of labels and captions.
QFont paintedLabelFont();
/// The label as it is written: on one line, cut when it is very long.
QString paintedLabelText(const QString& label);
/// Where the label of an element goes whose area (in metres of the space) is given.
QRectF paintedLabelRect(const QString& label, const QRectF& area);
