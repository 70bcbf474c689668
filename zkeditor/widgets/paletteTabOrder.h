#pragma once

class PaletteBox;
class QCoreApplication;
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

/// Whether no other box is around that one in its window.
bool isOutermost(const PaletteBox& box);

/// Has Tab come into boxes in this order from outside too; from within it is up to the outermost box. One filter serves
/// all boxes, and all calls but the first do nothing.
void watch(QCoreApplication* application);

} // namespace paletteTabOrder
