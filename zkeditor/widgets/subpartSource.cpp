#include "zkeditor/widgets/subpartSource.h"

#include "zkcore/model/nodeImpl.h"
#include "zkeditor/widgets/bindPass.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QWidget>
#include <algorithm>
#include <utility>

namespace {

/// The pane widgets of a container, outermost only.
void collectPanes(const QObject* parent, std::vector<QPointer<QWidget>>& panes)
{
    for (QObject* child : parent->children()) {
        if (!child->isWidgetType())
            continue;
        auto* widget = static_cast<QWidget*>(child);
        if (dynamic_cast<PaneWidget*>(widget))
            panes.emplace_back(widget);
        else
            collectPanes(widget, panes);
    }
}

/// Whether binding would find anything: subparts of one role can be of several classes.
bool suits(const PaneWidget* pane, const std::set<NodeImpl*>& nodes)
{
    const auto* observer = dynamic_cast<const PropertyObserver*>(pane);
    if (nodes.empty() || !observer || observer->modelProperty().isEmpty() || !observer->subpartId().isEmpty())
        return !nodes.empty();
    const Property::Key key = Property::getKeyForString(observer->modelProperty());
    return std::any_of(nodes.begin(), nodes.end(), [key](const NodeImpl* node) { return node->hasProperty(key); });
}

} // namespace

SubpartSource* SubpartSource::in(QWidget* container)
{
    std::vector<QPointer<QWidget>> panes;
    collectPanes(container, panes);
    for (const QPointer<QWidget>& pane : panes) {
        if (auto* source = dynamic_cast<SubpartSource*>(pane.data()))
            return source;
    }
    return nullptr;
}

void SubpartSource::bindContainer(QWidget* container, DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    m_container = container;
    const QPointer<QWidget> alive(sourceWidget());
    bind(document, nodes);
    if (alive)
        handOn();
}

void SubpartSource::releaseContainer()
{
    m_container = nullptr;
}

void SubpartSource::handOn()
{
    if (!m_container)
        return;
    const QPointer<QWidget> self(sourceWidget());
    std::vector<QPointer<QWidget>> panes;
    collectPanes(m_container, panes);
    for (const QPointer<QWidget>& widget : std::exchange(m_disabled, {})) {
        if (widget)
            widget->setEnabled(true);
    }
    const std::set<NodeImpl*> chosen = chosenNodes();
    DocumentImpl* const document = chosenDocument();
    const BindPass pass(chosen);
    for (const QPointer<QWidget>& widget : panes) {
        if (!self)
            return;
        auto* pane = dynamic_cast<PaneWidget*>(widget.data());
        if (!pane || widget == self)
            continue;
        // A slot that ran meanwhile may have deleted some.
        const bool allAlive =
            std::all_of(chosen.begin(), chosen.end(), [](NodeImpl* node) { return NodeImpl::valid(node); });
        if (allAlive && suits(pane, chosen)) {
            pane->bind(document, chosen);
            continue;
        }
        pane->unbind();
        if (self && widget && widget->isEnabledTo(widget->parentWidget())) {
            widget->setEnabled(false);
            m_disabled.push_back(widget);
        }
    }
}
