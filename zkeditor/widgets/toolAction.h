#pragma once

#include <QIcon>

class QAction;
class QEvent;
class QKeySequence;
class QToolButton;
class QWidget;

/// The small buttons of editors that consist of several widgets.
namespace toolAction {

/// One of the library's pictures ("editor/lists/up") as an icon of all usual sizes.
QIcon icon(const char* resource);
/// Gives an action its keys, which work while the focus is in the editor, and names them in its tool tip.
void setKeys(QWidget* editor, QAction* action, const QKeySequence& keys);
/// Whether an event is a key of one of the editor's actions. Its press triggers the action, and nothing else gets to
/// see it: the host's shortcuts do not take a key from the editor that has the focus, not even while the action is
/// disabled. The action may delete the editor.
bool takeKey(const QWidget* editor, QEvent* event);
/// A flat button for an action, which gets its keys; they work while the focus is in the editor.
QToolButton* addButton(QWidget* editor, QAction* action, const QKeySequence& keys);

} // namespace toolAction
