#pragma once

#include "zkeditor/export.h"

#include <QColor>
#include <QPalette>

/// Colours of texts that can be read on the ground they stand on.
namespace readableColors {

/// From 1 (equal colours) to 21 (black on white): (L1 + 0.05) / (L2 + 0.05), where L is the relative luminance, as the
/// Web Content Accessibility Guidelines 2.1 define both. The colours are taken as opaque.
ZKEDITOR_EXPORT double contrast(const QColor& a, const QColor& b);

/// The colour, made lighter or darker by as little as gives it a contrast of 4.5 to 1 on the ground. Never transparent.
ZKEDITOR_EXPORT QColor on(const QColor& ground, const QColor& color);

/// The red of texts that tell what is wrong, on the ground of that role.
ZKEDITOR_EXPORT QColor error(const QPalette& palette, QPalette::ColorRole ground = QPalette::Window);

/// The palette with those roles changed whose texts would be hard to read: placeholders, links, what is selected.
ZKEDITOR_EXPORT QPalette adapted(QPalette palette);

} // namespace readableColors
