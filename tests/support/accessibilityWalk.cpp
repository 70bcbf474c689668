#include "tests/support/accessibilityWalk.h"

#include "tests/support/contrastProbe.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>
#include <algorithm>

namespace {

using accessibilityWalk::Exempt;
using accessibilityWalk::placeOf;

constexpr double leastContrast = 4.5;
constexpr int rowsLookedAt = 200;

bool isExempt(const QWidget* widget, const QWidget* top, const Exempt& exempt)
{
    for (; exempt && widget; widget = widget->parentWidget()) {
        if (exempt(widget))
            return true;
        if (widget == top)
            break;
    }
    return false;
}

bool isInteractive(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::Dial:
    case QAccessible::List:
    case QAccessible::Tree:
    case QAccessible::Table:
    case QAccessible::PageTabList:
    case QAccessible::Link:
    case QAccessible::ButtonDropDown:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropGrid:
    case QAccessible::ColorChooser:
    case QAccessible::HotkeyField:
    case QAccessible::Canvas:
        return true;
    default:
        return false;
    }
}

/// Parts of the toolkit's own controls, which the control around them answers for.
bool isInnerPart(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    if (qobject_cast<const QScrollBar*>(widget) || qobject_cast<const QHeaderView*>(widget))
        return true;
    if (widget->objectName().startsWith(QLatin1String("qt_")) && !qobject_cast<const QTabBar*>(widget))
        return true;
    return parent && (qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QComboBox*>(parent) ||
                      qobject_cast<const QTabBar*>(parent) || parent->inherits("QLineEdit"));
}

std::vector<QWidget*> controls(QWidget& top, const Exempt& exempt)
{
    std::vector<QWidget*> found;
    for (QWidget* widget : top.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->isWindow() || isInnerPart(widget) || isExempt(widget, &top, exempt))
            continue;
        const auto* tabs = qobject_cast<const QTabBar*>(widget);
        if (tabs && tabs->count() == 0)
            continue;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool readable = label && (label->textInteractionFlags() & Qt::TextSelectableByKeyboard);
        const bool focus = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() && !readable;
        if (accessible && (focus || isInteractive(accessible->role())))
            found.push_back(widget);
    }
    return found;
}

/// The group that a reader hears before the control.
const QWidget* groupOf(const QWidget* widget)
{
    for (const QWidget* outer = widget->parentWidget(); outer; outer = outer->parentWidget()) {
        const auto* box = qobject_cast<const QGroupBox*>(outer);
        if (outer->isWindow() || !outer->accessibleName().isEmpty() || (box && !box->title().isEmpty()) ||
            qobject_cast<const QDockWidget*>(outer) || outer->inherits("PaletteBoxItem"))
            return outer;
    }
    return nullptr;
}

void addRowFaults(const QAbstractItemView& view, QStringList& faults)
{
    const QAbstractItemModel* model = view.model();
    const int rows = model ? std::min(model->rowCount(view.rootIndex()), rowsLookedAt) : 0;
    for (int row = 0; row < rows; ++row) {
        QString all;
        for (int column = 0; column < model->columnCount(view.rootIndex()); ++column) {
            const QModelIndex index = model->index(row, column, view.rootIndex());
            QString text = index.data(Qt::AccessibleTextRole).toString();
            if (text.isEmpty())
                text = index.data(Qt::DisplayRole).toString();
            all += text;
            if (text.isEmpty() && index.data(Qt::DecorationRole).isValid())
                faults += QStringLiteral("%1: the picture in row %2, column %3 has no text")
                              .arg(placeOf(&view))
                              .arg(row)
                              .arg(column);
        }
        if (all.trimmed().isEmpty())
            faults += QStringLiteral("%1: row %2 has no text").arg(placeOf(&view)).arg(row);
    }
}

QWidget* childOn(const QWidget* ancestor, QWidget* widget)
{
    while (widget->parentWidget() != ancestor)
        widget = widget->parentWidget();
    return widget;
}

QWidget* commonAncestor(QWidget* a, const QWidget* b)
{
    QWidget* ancestor = a->parentWidget();
    while (ancestor && !ancestor->isAncestorOf(b))
        ancestor = ancestor->parentWidget();
    return ancestor;
}

QRect rectIn(const QWidget* window, const QWidget* widget)
{
    return QRect(widget->mapTo(window, QPoint()), widget->size());
}

/// Whether b is read before a.
bool isBefore(const QRect& b, const QRect& a, bool rightToLeft)
{
    const int overlap = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top()) + 1;
    if (overlap * 2 > std::min(a.height(), b.height())) // one line
        return rightToLeft ? b.left() > a.right() : b.right() < a.left();
    return b.center().y() < a.center().y();
}

void addOrderFaults(QWidget& window, const std::vector<QPointer<QWidget>>& chain, const Exempt& exempt,
                    QStringList& faults)
{
    const bool rightToLeft = window.isRightToLeft();
    for (size_t i = 1; i < chain.size(); ++i) {
        QWidget* a = chain[i - 1];
        QWidget* b = chain[i];
        const auto isExtension = [](const QWidget* w) { return w->inherits("QToolBarExtension"); };
        if (!a || !b || isExtension(a) || isExtension(b) || a->isAncestorOf(b) || b->isAncestorOf(a) ||
            isExempt(a, &window, exempt) || isExempt(b, &window, exempt))
            continue;
        QWidget* ancestor = commonAncestor(a, b);
        if (!ancestor || qobject_cast<QMainWindow*>(ancestor))
            continue;
        const QWidget* sideA = childOn(ancestor, a);
        const QWidget* sideB = childOn(ancestor, b);
        if (isBefore(rectIn(ancestor, sideB), rectIn(ancestor, sideA), rightToLeft))
            faults +=
                QStringLiteral("%1: Tab comes to it after %2, which stands behind it").arg(placeOf(b), placeOf(a));
    }
    // Whoever comes into a dock or a tool bar goes through all of it, also when it stands in another.
    QSet<const QWidget*> left;
    QList<const QWidget*> around;
    for (const QPointer<QWidget>& stop : chain) {
        QList<const QWidget*> now;
        for (const QWidget* outer = stop; outer; outer = outer->parentWidget()) {
            if (qobject_cast<const QDockWidget*>(outer) || qobject_cast<const QToolBar*>(outer))
                now += outer;
        }
        for (const QWidget* group : std::as_const(around)) {
            if (!now.contains(group))
                left.insert(group);
        }
        for (const QWidget* group : std::as_const(now)) {
            if (!around.contains(group) && left.contains(group))
                faults += QStringLiteral("%1: Tab comes to this group twice").arg(placeOf(stop));
        }
        around = now;
    }
}

const QWidget* outermostDock(const QWidget* widget)
{
    const QWidget* dock = nullptr;
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (qobject_cast<const QDockWidget*>(widget))
            dock = widget;
    }
    return dock;
}

QString letterOf(const QString& text)
{
    return QKeySequence::mnemonic(text).toString();
}

void addLetterFaults(QWidget& window, QStringList& faults)
{
    struct User
    {
        const QWidget* dock; // null for what is in the window itself
        QString name;
    };
    QMultiHash<QString, User> users;
    const auto add = [&](const QString& text, const QWidget* widget) {
        const QString letter = letterOf(text);
        if (letter.isEmpty())
            return;
        // Two palettes may have the same: the letter goes from one to the other then. A menu would not open any more.
        const QWidget* dock = outermostDock(widget);
        const QString name = placeOf(widget) + QStringLiteral(" \"%1\"").arg(text);
        const auto others = users.values(letter);
        for (const User& other : others) {
            if (!dock || !other.dock || dock == other.dock)
                faults += QStringLiteral("%1: %2 is the letter of %3 too").arg(name, letter, other.name);
        }
        users.insert(letter, {dock, name});
    };
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled() || widget->window() != &window)
            continue;
        if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->buddy())
            add(label->text(), label);
        else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            add(qobject_cast<const QToolBar*>(button->parentWidget()) ? QString() : button->text(), button);
        else if (const auto* box = qobject_cast<const QGroupBox*>(widget))
            add(box->title(), box);
        else if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                add(tabs->tabText(i), tabs);
        } else if (const auto* bar = qobject_cast<const QMenuBar*>(widget)) {
            for (const QAction* action : bar->actions())
                add(action->text(), bar);
        }
    }
}

bool sameRadioGroup(const QWidget* control, const QWidget* stop)
{
    const auto* one = qobject_cast<const QRadioButton*>(control);
    const auto* other = qobject_cast<const QRadioButton*>(stop);
    if (!one || !other)
        return false;
    if (one->group() || other->group())
        return one->group() == other->group();
    return one->parentWidget() == other->parentWidget();
}

bool isReached(const QWidget* control, const std::vector<QPointer<QWidget>>& chain)
{
    return std::any_of(chain.begin(), chain.end(), [control](const QPointer<QWidget>& stop) {
        return stop && (stop == control || control->isAncestorOf(stop) || control->focusProxy() == stop ||
                        sameRadioGroup(control, stop));
    });
}

/// Buttons of tool bars are for the mouse when a menu has the same.
bool isInMenuBar(const QWidget* control)
{
    const auto* button = qobject_cast<const QToolButton*>(control);
    const auto* window = qobject_cast<const QMainWindow*>(control->window());
    const QAction* action = button ? button->defaultAction() : nullptr;
    if (!action || !window || !qobject_cast<const QToolBar*>(button->parentWidget()))
        return false;
    const auto objects = action->associatedObjects();
    return std::any_of(objects.begin(), objects.end(), [](QObject* object) { return qobject_cast<QMenu*>(object); });
}

/// Whether the item, entry or tab at that place can be used.
bool isUsable(const QWidget* widget, const QPoint& place)
{
    if (!widget->isEnabled())
        return false;
    if (const auto* menu = qobject_cast<const QMenu*>(widget)) {
        const QAction* action = menu->actionAt(place);
        return !action || action->isEnabled();
    }
    if (const auto* bar = qobject_cast<const QMenuBar*>(widget)) {
        const QAction* action = bar->actionAt(place);
        return !action || action->isEnabled();
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
        return tabs->tabAt(place) < 0 || tabs->isTabEnabled(tabs->tabAt(place));
    const auto* view = qobject_cast<const QAbstractItemView*>(widget->parentWidget());
    if (view && view->viewport() == widget) {
        const QModelIndex index = view->indexAt(place);
        return !index.isValid() || (index.flags() & Qt::ItemIsEnabled);
    }
    return true;
}

} // namespace

QString accessibilityWalk::placeOf(const QWidget* widget)
{
    QStringList names;
    for (const QWidget* outer = widget; outer; outer = outer->isWindow() ? nullptr : outer->parentWidget()) {
        if (outer != widget && outer->objectName().isEmpty() && !outer->isWindow())
            continue;
        QString name = QString::fromLatin1(outer->metaObject()->className());
        if (!outer->objectName().isEmpty())
            name += QLatin1Char(' ') + outer->objectName();
        names.prepend(name);
    }
    return names.join(QLatin1String(" / "));
}

QStringList accessibilityWalk::nameFaults(QWidget& top, const Exempt& exempt)
{
    QStringList faults;
    QHash<QString, QString> known;
    for (QWidget* widget : controls(top, exempt)) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        const QString name = accessible->text(QAccessible::Name).trimmed();
        const QString place = placeOf(widget);
        // A page to read is text to the toolkit, though its links take the focus.
        if (!isInteractive(accessible->role()) && !widget->inherits("QTextBrowser"))
            faults += QStringLiteral("%1: has the focus, but the role 0x%2").arg(place).arg(accessible->role(), 0, 16);
        if (name.isEmpty())
            faults += place + QStringLiteral(": has no name");
        else if (name == widget->objectName() || name == QLatin1String(widget->metaObject()->className()) ||
                 std::none_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); }))
            faults += QStringLiteral("%1: its name is \"%2\"").arg(place, name);
        else if (const QWidget* group = groupOf(widget)) {
            const QString key = QStringLiteral("%1 %2 %3").arg(accessible->role()).arg(quintptr(group)).arg(name);
            if (known.contains(key))
                faults += QStringLiteral("%1: \"%2\" is the name of %3 too").arg(place, name, known.value(key));
            known.insert(key, place);
        }
        if (const auto* view = qobject_cast<const QAbstractItemView*>(widget))
            addRowFaults(*view, faults);
    }
    return faults;
}

std::vector<QPointer<QWidget>> accessibilityWalk::tabChain(QWidget& window, bool backwards)
{
    if (QWidget* focus = window.focusWidget())
        focus->clearFocus();
    std::vector<QPointer<QWidget>> chain;
    int links = 0;
    while (chain.size() < 1000) {
        QTest::keyClick(window.windowHandle(), backwards ? Qt::Key_Backtab : Qt::Key_Tab,
                        backwards ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget* focus = QApplication::focusWidget();
        // Within a page Tab goes from link to link.
        if (focus && !chain.empty() && focus == chain.back() && focus->inherits("QTextBrowser") && ++links < 300)
            continue;
        if (!focus || std::find(chain.begin(), chain.end(), focus) != chain.end())
            break;
        chain.emplace_back(focus);
    }
    return chain;
}

QStringList accessibilityWalk::keyboardFaults(QWidget& window, const Exempt& exempt)
{
    QStringList faults;
    if (QApplication::activeWindow() != &window)
        return {placeOf(&window) + QStringLiteral(": is not active")};
    const std::vector<QPointer<QWidget>> chain = tabChain(window);
    QWidget* end = QApplication::focusWidget();
    if (!chain.empty() && end != chain.front())
        faults += QStringLiteral("%1: Tab does not come round, it stays among those from here to %2")
                      .arg(placeOf(end ? end : &window), placeOf(chain.back()));
    for (const QWidget* control : controls(window, exempt)) {
        if (control->isEnabled() && !isReached(control, chain) && !isInMenuBar(control))
            faults += placeOf(control) + QStringLiteral(": Tab does not come to it");
    }
    if (faults.isEmpty()) { // else the way back would only tell the same
        const std::vector<QPointer<QWidget>> back = tabChain(window, true);
        for (const QPointer<QWidget>& stop : chain) {
            if (stop && std::find(back.begin(), back.end(), stop) == back.end() && !qobject_cast<QRadioButton*>(stop))
                faults += placeOf(stop) + QStringLiteral(": Shift+Tab does not come to it");
        }
    }
    addOrderFaults(window, chain, exempt, faults);
    addLetterFaults(window, faults);
    return faults;
}

QStringList accessibilityWalk::contrastFaults(QWidget& top, const Exempt& exempt)
{
    QStringList faults;
    for (const contrastProbe::PaintedText& text : contrastProbe::paintedTexts(top)) {
        if (text.contrast >= leastContrast)
            continue;
        QWidget* widget = top.childAt(text.place.center());
        if (!widget)
            widget = &top;
        if (!isUsable(widget, widget->mapFrom(&top, text.place.center())) || isExempt(widget, &top, exempt))
            continue;
        faults += QStringLiteral("%1: \"%2\" is %3 on %4, a contrast of %5")
                      .arg(placeOf(widget), text.text, text.color.name(), text.ground.name())
                      .arg(text.contrast, 0, 'f', 2);
    }
    faults.removeDuplicates();
    return faults;
}

QStringList accessibilityWalk::menuFaults(QMenu& menu)
{
    menu.popup(QPoint());
    QApplication::processEvents();
    QStringList faults = contrastFaults(menu);
    QHash<QString, QString> users;
    for (QAction* action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible())
            continue;
        const QString text = action->text();
        if (text.trimmed().isEmpty())
            faults += QStringLiteral("%1: an entry of \"%2\" has no text").arg(placeOf(&menu), menu.title());
        const QString letter = letterOf(text);
        if (!letter.isEmpty() && users.contains(letter))
            faults += QStringLiteral("menu %1: %2 is the letter of \"%3\" and \"%4\"")
                          .arg(menu.title(), letter, text, users.value(letter));
        users.insert(letter, text);
    }
    QList<QMenu*> inner;
    for (const QAction* action : menu.actions()) {
        if (action->menu())
            inner += action->menu();
    }
    menu.close();
    for (QMenu* each : inner)
        faults += menuFaults(*each);
    return faults;
}
