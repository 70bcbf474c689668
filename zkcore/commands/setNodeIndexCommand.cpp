#include "zkcore/commands/setNodeIndexCommand.h"

#include "zkcore/commands/commandXml.h"
#include "zkcore/model/modelMutator.h"

#include <QCoreApplication>

SetNodeIndexCommand::SetNodeIndexCommand(const Node& node, unsigned int index, int flags)
    : Command(flags), m_node(node.instanceId()), m_index(index)
{
}

LiveText SetNodeIndexCommand::liveUndoDescription() const
{
    return [] { return QCoreApplication::translate("SetNodeIndexCommand", "Change of order"); };
}

QString SetNodeIndexCommand::getXMLClass() const
{
    return QStringLiteral("set-node-index");
}

Value SetNodeIndexCommand::run(ModelMutator& mutator)
{
    const NodeImpl* node = mutator.node(m_node);
    if (!node || !node->parentNode() || node->kind() == NodeKind::Popup)
        return fail(QCoreApplication::translate("SetNodeIndexCommand", "There is no such object to move."));
    mutator.moveNode(m_node, m_index);
    return Value(true);
}

void SetNodeIndexCommand::writeContent(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("node"), QString::number(m_node));
    writer.writeAttribute(QStringLiteral("index"), QString::number(m_index));
}

bool SetNodeIndexCommand::readContent(QXmlStreamReader& reader)
{
    const bool ok = commandXml::readNumber(reader.attributes(), QStringLiteral("node"), m_node) &&
                    commandXml::readNumber(reader.attributes(), QStringLiteral("index"), m_index);
    reader.skipCurrentElement();
    return ok;
}
