#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <vector>

class QWidget;

/// How well the texts of a widget stand out, measured at what it paints and not at what its palette promises.
namespace contrastProbe {

/// One run of glyphs, as it was painted.
struct PaintedText
{
    QRect place;  ///< in the widget's coordinates; what was clipped away is not part of it
    QString text; ///< may be a part of a longer text
    QColor color;
    QColor ground;
    double contrast = 1; ///< the least that all but a fifth of the text's pixels have
};

/// Paints the widget with its children, and notes each text with the ground that was there before it.
std::vector<PaintedText> paintedTexts(QWidget& widget);

} // namespace contrastProbe
