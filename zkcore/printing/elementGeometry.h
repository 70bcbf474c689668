#pragma once

#include "zkcore/base/export.h"

#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <QTransform>

class ElementImpl;

/// Where elements stand and what room they take, in metres of their space (origin top left, y down). What is painted
/// and what is hit by a click both go by these functions.

/// From the element's own coordinates (metres, origin in its centre, not turned) to those of its space.
ZKCORE_EXPORT QTransform elementTransform(const ElementImpl& element);

/// The outline of the element itself, without label: its rectangle, turned; of a connection the line as thick as it is
/// drawn.
ZKCORE_EXPORT QPainterPath elementArea(const ElementImpl& element);

/// The rectangle that holds everything that is painted for the element: label, subparts and the width of lines
/// included.
ZKCORE_EXPORT QRectF elementBounds(const ElementImpl& element);

/// The way of a connection's line from its "from" to its "to" node: over its "bends" if it has any, along right angles
/// unless its "route" is "straight". Empty when an end is missing or stands in another space.
ZKCORE_EXPORT QPainterPath connectionPath(const ElementImpl& connection);

/// The text written under an element: its title, else its reference where that is shown, else what its class is called.
/// Empty for connections and texts; reflections, subparts, explanations and parts of unknown classes show only a title.
ZKCORE_EXPORT QString elementLabel(const ElementImpl& element);
