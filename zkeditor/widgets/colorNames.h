#pragma once

#include "zkeditor/export.h"

#include <QColor>
#include <QString>
#include <vector>

class QPixmap;
class QSize;
class QWidget;

/// How colours are named, read and drawn wherever one is chosen.
namespace colorNames {

/// The standard colours, by row of eight.
ZKEDITOR_EXPORT const std::vector<QColor>& standardColors();

/// The translated name of a standard colour, else "#rrggbb", with "#aarrggbb" for one that is not opaque.
ZKEDITOR_EXPORT QString nameOf(const QColor& color);

/// The same for those who do not see the colour, or not well: of one without a name, what it looks like ("Dark red,
/// #8b1a1a").
ZKEDITOR_EXPORT QString describe(const QColor& color);

/// The colour that a text names: a standard colour in the user's language, any colour name of the web, or hexadecimal
/// digits with or without '#'. The invalid colour for other texts.
ZKEDITOR_EXPORT QColor colorNamed(const QString& text);

/// A swatch to stand on the widget; the invalid colour gives a hatched one, for different values.
ZKEDITOR_EXPORT QPixmap swatch(const QColor& color, const QSize& size, const QWidget& widget);

} // namespace colorNames
