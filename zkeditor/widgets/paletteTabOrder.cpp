#include "zkeditor/widgets/paletteTabOrder.h"

#include "zkeditor/widgets/paletteBox.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QStyleHints>
#include <QTextBrowser>
#include <QTextEdit>
#include <QWidget>
#include <algorithm>
#include <set>
#include <vector>

namespace {

using Stops = std::vector<QWidget*>;

/// Compound controls hand the focus on to a child, and it is the child that Tab stops at.
bool isTabStop(const QWidget* widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
}

bool canStopNow(const QWidget* stop)
{
    const int policy =
        QGuiApplication::styleHints()->tabFocusBehavior() == Qt::TabFocusAllControls ? Qt::TabFocus : Qt::StrongFocus;
    return (stop->focusPolicy() & policy) == policy && stop->isEnabled() && stop->isVisibleTo(stop->window());
}

/// The box around a widget that is nearest to the ancestor, which is none itself; null when there is none.
PaletteBox* boxBelow(const QWidget* ancestor, QWidget* widget)
{
    PaletteBox* found = nullptr;
    for (QWidget* outer = widget->parentWidget(); outer && outer != ancestor; outer = outer->parentWidget()) {
        if (auto* box = qobject_cast<PaletteBox*>(outer))
            found = box;
    }
    return found;
}

void appendArranged(const Stops& stops, const QWidget* ancestor, Stops& arranged);

void appendBox(const Stops& stops, const PaletteBox& box, Stops& arranged)
{
    const auto isInItem = [&box](const QWidget* stop) {
        for (int i = 0; i < box.count(); ++i) {
            if (box.item(i) && box.item(i)->parentWidget()->isAncestorOf(stop))
                return true;
        }
        return false;
    };
    std::remove_copy_if(stops.begin(), stops.end(), std::back_inserter(arranged), isInItem);
    for (int i = 0; i < box.count(); ++i) {
        const QWidget* content = box.item(i);
        const QWidget* item = content ? content->parentWidget() : nullptr;
        if (!item)
            continue;
        Stops inContent;
        for (QWidget* stop : stops) {
            if (stop == content || content->isAncestorOf(stop))
                inContent.push_back(stop);
            else if (item->isAncestorOf(stop))
                arranged.push_back(stop);
        }
        appendArranged(inContent, item, arranged);
    }
}

void appendArranged(const Stops& stops, const QWidget* ancestor, Stops& arranged)
{
    std::set<const PaletteBox*> passed;
    for (QWidget* stop : stops) {
        const PaletteBox* box = boxBelow(ancestor, stop);
        if (!box) {
            arranged.push_back(stop);
        } else if (passed.insert(box).second) {
            Stops inBox;
            std::copy_if(stops.begin(), stops.end(), std::back_inserter(inBox),
                         [box](const QWidget* each) { return box->isAncestorOf(each); });
            appendBox(inBox, *box, arranged);
        }
    }
}

} // namespace

QWidget* paletteTabOrder::toolkitNext(QWidget& from, bool forward)
{
    const auto after = [forward](const QWidget* widget) {
        return forward ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    QWidget* widget = after(&from);
    while (widget && widget != &from && !(isTabStop(widget) && canStopNow(widget)))
        widget = after(widget);
    return widget != &from ? widget : nullptr;
}

QWidget* paletteTabOrder::next(QWidget& from, bool forward)
{
    QWidget* window = from.window();
    Stops stops;
    for (QWidget* widget = window->nextInFocusChain(); widget && widget != window;
         widget = widget->nextInFocusChain()) {
        if (isTabStop(widget) || widget == &from)
            stops.push_back(widget);
    }
    Stops arranged;
    appendArranged(stops, window, arranged);
    if (!forward)
        std::reverse(arranged.begin(), arranged.end());
    const auto here = std::find(arranged.begin(), arranged.end(), &from);
    if (here != arranged.end())
        std::rotate(arranged.begin(), here + 1, arranged.end()); // the widget itself comes last
    const auto found = std::find_if(arranged.begin(), arranged.end(), canStopNow);
    return found != arranged.end() && *found != &from ? *found : nullptr;
}

bool paletteTabOrder::leaves(const QWidget& widget, const QKeyEvent& key)
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

bool paletteTabOrder::isOutermost(const QWidget& box)
{
    const QWidget* outer = box.isWindow() ? nullptr : box.parentWidget();
    while (outer && !outer->isWindow() && !qobject_cast<const PaletteBox*>(outer))
        outer = outer->parentWidget();
    return !qobject_cast<const PaletteBox*>(outer);
}
