#pragma once

#include "zkcore/widgetSupport/export.h"

#include <QFont>

class QWidget;

/// The product's fonts by size class. They follow the application's font, so a user who sets a large system font gets
/// large text everywhere.
class ZKWIDGETSUPPORT_EXPORT Fonts
{
public:
    /// Sizes relative to the application's font.
    enum Size {
        Tiny = 0,   ///< three quarters: unit names, small captions
        Small = 1,  ///< seven eighths: secondary text
        Normal = 2, ///< the size itself: text in panes and palettes
        Large = 3,  ///< one and a quarter: headings
        Title = 4   ///< one and a half: titles of pages
    };

    /// The application's font for that kind of widget, or its general font for null, in the size. Numbers beyond the
    /// classes count as the nearest one.
    static QFont getWidgetFont(const QWidget* widget, Size size);
    /// The application's general font in the size.
    static QFont getWidgetFont(Size size) { return getWidgetFont(nullptr, size); }
    /// Gives the widget and everything in it the product's font in that size; bold, italic and underlined text stays
    /// so. Null is ignored.
    static void setFontRecursively(QWidget* widget, Size size);
};
