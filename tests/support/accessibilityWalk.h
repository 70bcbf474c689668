#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class QMenu;
class QWidget;

/// Goes through what is on show in a window as people do who work without a mouse, without seeing the screen, or with
/// eyes that need contrast. Each function returns what is wrong, one line for each fault, with the place of the widget
/// in the window; nothing when all is well.
namespace accessibilityWalk {

/// True for what a test wants to pass over, with all that is in it.
using Exempt = std::function<bool(const QWidget*)>;

/// Classes and object names from the window down to the widget.
QString placeOf(const QWidget* widget);

/// Every control, as assistive technology sees it, has a name that is written for people, a role, and differs from the
/// others of its group; rows and pictures in lists have a text.
QStringList nameFaults(QWidget& top, const Exempt& exempt = {});

/// The widgets that Tab comes to, from the first on, by key events. The window must be the active one.
std::vector<QPointer<QWidget>> tabChain(QWidget& window, bool backwards = false);

/// Tab comes to every control once and leaves each one again, forwards and backwards, in the order of reading; no
/// shortcut letter stands for two things.
QStringList keyboardFaults(QWidget& window, const Exempt& exempt = {});

/// Every text that is painted has a contrast of 4.5 to 1 at least, but for what is disabled.
QStringList contrastFaults(QWidget& top, const Exempt& exempt = {});

/// A menu with its submenus: names, letters and contrast.
QStringList menuFaults(QMenu& menu);

} // namespace accessibilityWalk
