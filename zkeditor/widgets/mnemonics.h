#pragma once

#include "zkeditor/export.h"

#include <QString>

class QWidget;

/// Underlined letters, which with Alt go to a control or open a menu.
namespace mnemonics {

/// The text without the mark of its letter, if that is one of `letters` (upper case); it looks the same but for the
/// underline.
ZKEDITOR_EXPORT QString without(const QString& text, const QString& letters);

/// Takes these letters from the labels with a buddy, the buttons, group boxes and tabs in the widget.
ZKEDITOR_EXPORT void remove(QWidget* root, const QString& letters);

/// Letters that no form may use, since the window in which it is shown has them; remove() does it when a form is
/// loaded. For forms loaded from now on.
ZKEDITOR_EXPORT void reserve(const QString& letters);
ZKEDITOR_EXPORT QString reserved();

} // namespace mnemonics
