#include "zkeditor/widgets/containerPaneWidget.h"

#include "zkcore/base/assert.h"

#include <QWidget>

ContainerPaneWidget::ContainerPaneWidget(QWidget* w) : m_container(w)
{
    ZK_ASSERT(w);
}

void ContainerPaneWidget::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    bindChildren(m_container, document, nodes);
}

void ContainerPaneWidget::unbind()
{
    unbindChildren(m_container);
}
