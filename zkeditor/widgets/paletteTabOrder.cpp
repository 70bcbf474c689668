#include "zkeditor/widgets/paletteTabOrder.h"

#include "zkeditor/widgets/paletteBox.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStyleHints>
#include <QTextBrowser>
#include <QTextEdit>
#include <QWidget>
#include <algorithm>
#include <utility>
#include <vector>

namespace {

using Stops = std::vector<QWidget*>;

/// Compound controls hand the focus on to a child, and it is the child that Tab stops at.
bool canStopNow(const QWidget* widget)
{
    const int policy =
        QGuiApplication::styleHints()->tabFocusBehavior() == Qt::TabFocusAllControls ? Qt::TabFocus : Qt::StrongFocus;
    return (widget->focusPolicy() & policy) == policy && !widget->focusProxy() && widget->isEnabled() &&
           widget->isVisibleTo(widget->window());
}

/// The outermost box around a widget in its window, or inside of the ancestor; null when there is none.
const PaletteBox* boxAround(const QWidget* widget, const QWidget* ancestor = nullptr)
{
    const PaletteBox* found = nullptr;
    while (!widget->isWindow() && widget->parentWidget() != ancestor) {
        widget = widget->parentWidget();
        if (const auto* box = qobject_cast<const PaletteBox*>(widget))
            found = box;
    }
    return found;
}

void appendArranged(const Stops& stops, const QWidget* ancestor, Stops& arranged);

/// The header and the content of each item in turn; first what else stands in the box.
void appendBox(const Stops& stops, const PaletteBox& box, Stops& arranged)
{
    struct Item
    {
        Stops header;
        Stops content;
    };
    QHash<const QWidget*, Item> items;
    for (QWidget* stop : stops) {
        const QWidget* inItem = stop;
        const QWidget* item = stop->parentWidget();
        while (item != &box && item->parentWidget() != &box) {
            inItem = item;
            item = item->parentWidget();
        }
        if (item == &box)
            arranged.push_back(stop);
        else if (box.indexOf(inItem) >= 0)
            items[item].content.push_back(stop);
        else
            items[item].header.push_back(stop);
    }
    for (int i = 0; i < box.count(); ++i) {
        const QWidget* item = box.item(i) ? box.item(i)->parentWidget() : nullptr;
        const auto found = items.constFind(item);
        if (found == items.constEnd())
            continue;
        arranged.insert(arranged.end(), found->header.begin(), found->header.end());
        appendArranged(found->content, item, arranged);
    }
}

void appendArranged(const Stops& stops, const QWidget* ancestor, Stops& arranged)
{
    QHash<const PaletteBox*, Stops> inBoxes;
    std::vector<std::pair<QWidget*, const PaletteBox*>> order; // a stop, or a box with all that is in it
    for (QWidget* stop : stops) {
        const PaletteBox* box = boxAround(stop, ancestor);
        if (!box || !inBoxes.contains(box))
            order.emplace_back(stop, box);
        if (box)
            inBoxes[box].push_back(stop);
    }
    for (const auto& [stop, box] : order) {
        if (box)
            appendBox(inBoxes[box], *box, arranged);
        else
            arranged.push_back(stop);
    }
}

/// Where Tab would go in the toolkit's order.
QWidget* toolkitNext(QWidget& from, bool forward)
{
    const auto after = [forward](const QWidget* widget) {
        return forward ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    QWidget* widget = after(&from);
    while (widget && widget != &from && !canStopNow(widget))
        widget = after(widget);
    return widget != &from ? widget : nullptr;
}

/// Whether the key means to leave the widget, which may use Tab itself.
bool leaves(const QWidget& widget, const QKeyEvent& key)
{
    if ((key.key() != Qt::Key_Tab && key.key() != Qt::Key_Backtab) ||
        (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return false;
    if (qobject_cast<const QTextBrowser*>(&widget)) // from link to link
        return false;
    if (const auto* edit = qobject_cast<const QTextEdit*>(&widget))
        return edit->tabChangesFocus() || edit->isReadOnly();
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget))
        return edit->tabChangesFocus() || edit->isReadOnly();
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    return !view || !view->tabKeyNavigation();
}

/// Whoever has the focus outside of boxes would come into one anywhere, and again.
class TabFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || !object->isWidgetType())
            return false;
        auto& from = static_cast<QWidget&>(*object);
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool isAsked = from.hasFocus() || (from.isWindow() && !from.focusWidget());
        if (!isAsked || boxAround(&from) || !leaves(from, key))
            return false;
        const bool forward = key.key() == Qt::Key_Tab && !(key.modifiers() & Qt::ShiftModifier);
        QWidget* next = paletteTabOrder::next(from, forward);
        const QWidget* usual = toolkitNext(from, forward);
        if (!next || !(boxAround(next) || (usual && boxAround(usual))))
            return false;
        next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
};

} // namespace

QWidget* paletteTabOrder::next(QWidget& from, bool forward)
{
    QWidget* window = from.window();
    Stops stops;
    for (QWidget* widget = window->nextInFocusChain(); widget && widget != window;
         widget = widget->nextInFocusChain()) {
        if (canStopNow(widget) || widget == &from)
            stops.push_back(widget);
    }
    Stops arranged;
    appendArranged(stops, nullptr, arranged);
    if (!forward)
        std::reverse(arranged.begin(), arranged.end());
    const auto here = std::find(arranged.begin(), arranged.end(), &from);
    if (here != arranged.end())
        std::rotate(arranged.begin(), here + 1, arranged.end()); // the widget itself comes last
    return arranged.empty() || arranged.front() == &from ? nullptr : arranged.front();
}

bool paletteTabOrder::isOutermost(const PaletteBox& box)
{
    return !boxAround(&box);
}

void paletteTabOrder::watch(QCoreApplication* application)
{
    static QPointer<QObject> filter;
    if (!filter) {
        filter = new TabFilter(application);
        application->installEventFilter(filter);
    }
}
