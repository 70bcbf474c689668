#include "zkcore/commands/deleteNodeCommand.h"

#include "zkcore/commands/commandXml.h"
#include "zkcore/model/modelMutator.h"

#include <QCoreApplication>
#include <algorithm>
#include <set>

namespace {

struct DeleteNodeTexts
{
    Q_DECLARE_TR_FUNCTIONS(DeleteNodeCommand)
};

bool standsInOne(const NodeImpl* node, const std::set<InstanceId>& nodes)
{
    for (const NodeImpl* at = node->parentNode(); at; at = at->parentNode()) {
        if (nodes.contains(at->instanceId()))
            return true;
    }
    return false;
}

/// The reflections of a node and of everything in it.
void collectReflections(const NodeImpl* node, std::vector<InstanceId>& out)
{
    if (node->kind() == NodeKind::Part || node->kind() == NodeKind::Subpart) {
        for (const ElementImpl* reflection : node->document()->reflectionsOf(static_cast<const ElementImpl*>(node)))
            out.push_back(reflection->instanceId());
    }
    for (const NodeImpl* child : node->children())
        collectReflections(child, out);
    if (node->kind() == NodeKind::Part) {
        if (const PopupImpl* popup = static_cast<const PartImpl*>(node)->popup())
            collectReflections(popup, out);
    }
}

} // namespace

DeleteNodeCommand::DeleteNodeCommand(int flags) : Command(flags) {}

DeleteNodeCommand::DeleteNodeCommand(const Node& node, int flags) : DeleteNodeCommand(std::vector<Node>{node}, flags) {}

DeleteNodeCommand::DeleteNodeCommand(const std::vector<Node>& nodes, int flags) : Command(flags)
{
    m_nodes.reserve(nodes.size());
    for (const Node& node : nodes)
        m_nodes.push_back(node.instanceId());
    if (nodes.size() == 1) {
        if (const NodeImpl* impl = nodes.front().impl())
            m_label = impl->liveDisplayName();
    }
}

LiveText DeleteNodeCommand::liveUndoDescription() const
{
    if (m_label)
        return [label = m_label] { return DeleteNodeTexts::tr("Deletion of %1").arg(label()); };
    return
        [n = static_cast<int>(m_nodes.size())] { return DeleteNodeTexts::tr("Deletion of %n object(s)", nullptr, n); };
}

QString DeleteNodeCommand::getXMLClass() const
{
    return QStringLiteral("delete-node");
}

Value DeleteNodeCommand::run(ModelMutator& mutator)
{
    size_t scenes = mutator.document().getModel()->childCount();
    std::set<InstanceId> doomed;
    std::vector<InstanceId> order;
    for (const InstanceId id : m_nodes) {
        const NodeImpl* node = mutator.node(id);
        if (!node)
            return fail(DeleteNodeTexts::tr("The object is not there any more."));
        if (node->kind() == NodeKind::Model || node->kind() == NodeKind::Popup)
            return fail(DeleteNodeTexts::tr("The document itself and pop-ups cannot be deleted."));
        if (node->kind() == NodeKind::Subpart && !static_cast<const ElementImpl*>(node)->isAdhoc())
            return fail(DeleteNodeTexts::tr("The subpart belongs to its part and cannot be deleted."));
        if (doomed.insert(id).second)
            order.push_back(id);
        if (node->kind() == NodeKind::Scene && --scenes == 0)
            return fail(DeleteNodeTexts::tr("The last scene cannot be deleted."));
    }
    std::vector<InstanceId> more;
    for (const InstanceId id : order)
        collectReflections(mutator.node(id), more);
    for (const ElementImpl* connection : mutator.document().connectionsAt(doomed))
        more.push_back(connection->instanceId());
    for (const InstanceId id : more) {
        if (doomed.insert(id).second)
            order.push_back(id);
    }
    // What stands in something that goes, goes with it.
    std::erase_if(order, [&](InstanceId id) { return standsInOne(mutator.node(id), doomed); });
    // Lists of children are taken apart from the back.
    for (auto it = order.rbegin(); it != order.rend(); ++it)
        mutator.removeNode(*it);
    return Value(true);
}

void DeleteNodeCommand::writeContent(QXmlStreamWriter& writer) const
{
    commandXml::writeIds(writer, QStringLiteral("nodes"), m_nodes);
}

bool DeleteNodeCommand::readContent(QXmlStreamReader& reader)
{
    const bool ok = commandXml::readIds(reader.attributes(), QStringLiteral("nodes"), m_nodes);
    reader.skipCurrentElement();
    return ok;
}
