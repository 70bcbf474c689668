#pragma once

class QKeyEvent;
class QWidget;

/// The order in which Tab goes through a window with palette boxes: a box as a whole where the first of what is in it
/// stands in the toolkit's order, in it item by item, the header before the content, boxes in contents likewise.
///
/// Contents are made before their headers, and come and go, and the toolkit appends what is new to the order of its
/// window; so that order says little about boxes. To move widgets in it, one by one, is no way out: the toolkit takes
/// along what stands between a control and its parts.
namespace paletteTabOrder {

/// Where Tab (or Shift+Tab) goes from a widget; null when there is nowhere to go.
QWidget* next(QWidget& from, bool forward);

/// The same in the toolkit's order.
QWidget* toolkitNext(QWidget& from, bool forward);

/// Whether the key means to leave a widget, and does so. Some use Tab themselves.
bool leaves(const QWidget& widget, const QKeyEvent& key);

/// Whether no other box is around that one.
bool isOutermost(const QWidget& box);

} // namespace paletteTabOrder
