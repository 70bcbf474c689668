// A row of the inspector and its place among the others.
#include "zkeditor/inspectorItem.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/nodeImpl.h"
#include "zkcore/values/value.h"

InspectorItem::InspectorItem(const NodeImpl* node)
    : m_node(node), m_id(node->valueOfProperty(coreKeys::id()).toQString()),
      m_cid(node->kind() == NodeKind::Popup ? getCidForString("core/popup") : node->classId()),
      m_instanceId(node->instanceId())
{
}

void InspectorItem::setId(const QString& id)
{
    m_id = id;
    emitDataChanged();
}

QVariant InspectorItem::data(int column, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QTreeWidgetItem::data(column, role);
    switch (column) {
    case ClassColumn:
        return findStringForCid(m_cid);
    case IdColumn:
        return m_id;
    case InstanceIdColumn:
        return QString::number(m_instanceId);
    default:
        return {};
    }
}

void InspectorItem::noteRow(int row)
{
    m_noted = row;
    const auto* above = static_cast<const InspectorItem*>(parent());
    m_goneThen = above ? above->m_childrenGone : 0;
}

int InspectorItem::row() const
{
    const auto* above = static_cast<const InspectorItem*>(parent());
    if (!above)
        return -1;
    // Either all siblings that went stood before this row, or none of them did.
    for (const int guess : {m_noted - (above->m_childrenGone - m_goneThen), m_noted}) {
        if (guess >= 0 && guess < above->childCount() && above->child(guess) == this)
            return guess;
    }
    return above->indexOfChild(const_cast<InspectorItem*>(this));
}

void InspectorItem::takeFromParent()
{
    auto* above = static_cast<InspectorItem*>(parent());
    const int at = row();
    if (!above || at < 0)
        return;
    above->takeChild(at);
    ++above->m_childrenGone;
}
