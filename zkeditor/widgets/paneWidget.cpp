#include "zkeditor/widgets/paneWidget.h"

#include "zkcore/widgetSupport/fonts.h"
#include "zkeditor/widgets/bindPass.h"

#include <QGroupBox>
#include <QLayout>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace {

// A copy that notices deletions: binding runs slots that may change the children.
std::vector<QPointer<QObject>> paneChildrenOf(const QObject* parent)
{
    if (!parent)
        return {};
    const QObjectList& children = parent->children();
    return {children.begin(), children.end()};
}

} // namespace

void PaneWidget::bindChildren(QObject* parent, DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const BindPass pass(nodes);
    for (const QPointer<QObject>& child : paneChildrenOf(parent)) {
        if (auto* widget = qobject_cast<QWidget*>(child)) {
            widget->setFont(Fonts::getWidgetFont(widget, Fonts::Normal));
            if (auto* group = qobject_cast<QGroupBox*>(widget))
                group->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            if (auto* pane = dynamic_cast<PaneWidget*>(widget))
                pane->bind(document, nodes);
            else
                bindChildren(widget, document, nodes);
        } else if (qobject_cast<QLayout*>(child)) {
            bindChildren(child, document, nodes);
        }
    }
}

void PaneWidget::unbindChildren(QObject* parent)
{
    for (const QPointer<QObject>& child : paneChildrenOf(parent)) {
        if (auto* pane = dynamic_cast<PaneWidget*>(child.data()); pane && child->isWidgetType())
            pane->unbind();
        else if (child && (child->isWidgetType() || qobject_cast<QLayout*>(child)))
            unbindChildren(child);
    }
}
