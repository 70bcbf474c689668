#include "zkcore/commands/setUILockedCommand.h"

#include "zkcore/commands/commandXml.h"
#include "zkcore/model/modelMutator.h"

#include <QCoreApplication>

SetUILockedCommand::SetUILockedCommand() : Command(PushUndo) {}

SetUILockedCommand::SetUILockedCommand(const std::vector<Node>& nodes, LockGroup group, bool locked)
    : Command(PushUndo), m_group(group), m_locked(locked)
{
    m_nodes.reserve(nodes.size());
    for (const Node& node : nodes)
        m_nodes.push_back(node.instanceId());
}

LiveText SetUILockedCommand::liveUndoDescription() const
{
    return [n = static_cast<int>(m_nodes.size()), locked = m_locked] {
        return locked ? QCoreApplication::translate("SetUILockedCommand", "Locking of %n object(s)", nullptr, n)
                      : QCoreApplication::translate("SetUILockedCommand", "Unlocking of %n object(s)", nullptr, n);
    };
}

QString SetUILockedCommand::getXMLClass() const
{
    return QStringLiteral("set-ui-locked");
}

Value SetUILockedCommand::run(ModelMutator& mutator)
{
    for (const InstanceId id : m_nodes) {
        const auto* element = qobject_cast<const ElementImpl*>(mutator.node(id));
        if (!element)
            continue;
        const unsigned int bit = 1u << m_group;
        mutator.setLocks(id, m_locked ? element->lockMask() | bit : element->lockMask() & ~bit);
    }
    return Value(true);
}

void SetUILockedCommand::writeContent(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("group"), QString::number(m_group));
    writer.writeAttribute(QStringLiteral("locked"), m_locked ? QStringLiteral("true") : QStringLiteral("false"));
    commandXml::writeIds(writer, QStringLiteral("nodes"), m_nodes);
}

bool SetUILockedCommand::readContent(QXmlStreamReader& reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    unsigned int group = 0;
    const bool ok = commandXml::readNumber(attributes, QStringLiteral("group"), group) && group < lockGroupCount &&
                    commandXml::readIds(attributes, QStringLiteral("nodes"), m_nodes);
    m_group = static_cast<LockGroup>(group);
    m_locked = attributes.value(QLatin1String("locked")) == QLatin1String("true");
    reader.skipCurrentElement();
    return ok;
}
