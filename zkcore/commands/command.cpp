#include "zkcore/commands/command.h"

#include "zkcore/base/assert.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/proxyCommands.h"
#include "zkcore/commands/reflectCommand.h"
#include "zkcore/commands/resourceCommand.h"
#include "zkcore/commands/setNodeIndexCommand.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/model/modelMutator.h"

#include <QHash>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

Command::Command(int flags) : m_flags(flags) {}
Command::~Command() = default;

Value Command::execute(const DocumentImpl* document)
{
    ZK_ASSERT(document);
    ZK_ASSERT(!m_ran);
    m_ran = true;
    // Documents are handed around as const; commands are the one way to change them.
    ModelMutator mutator(*const_cast<DocumentImpl*>(document));
    Value result = run(mutator);
    if (result.isValid())
        mutator.commit(*this);
    else
        mutator.rollBack();
    return result;
}

QString Command::logStatus() const
{
    if (!m_ran)
        return QStringLiteral("%1: not executed").arg(getXMLClass());
    if (!m_error.isEmpty())
        return QStringLiteral("%1: failed: %2").arg(getXMLClass(), m_error);
    return QStringLiteral("%1: %2").arg(getXMLClass(), getUndoDescription());
}

void Command::toXML(QXmlStreamWriter& writer) const
{
    writer.writeStartElement(getXMLClass());
    if (m_flags != PushUndo)
        writer.writeAttribute(QStringLiteral("flags"), QString::number(m_flags));
    writeContent(writer);
    writer.writeEndElement();
}

bool Command::fromXML(QXmlStreamReader& reader)
{
    if (!reader.isStartElement() || reader.name() != getXMLClass()) {
        reader.raiseError(QStringLiteral("<%1> expected").arg(getXMLClass()));
        return false;
    }
    if (const auto flags = reader.attributes().value(QLatin1String("flags")); !flags.isEmpty()) {
        bool ok = false;
        m_flags = flags.toInt(&ok);
        if (!ok || m_flags < 0 || m_flags > PushUndo) {
            reader.raiseError(QStringLiteral("faulty flags"));
            return false;
        }
    }
    if (!readContent(reader) && !reader.hasError())
        reader.raiseError(QStringLiteral("faulty content of <%1>").arg(getXMLClass()));
    return !reader.hasError();
}

std::unique_ptr<Command> Command::create(const QString& xmlClass)
{
    using Maker = std::unique_ptr<Command> (*)();
    static const QHash<QString, Maker> makers = [] {
        QHash<QString, Maker> table;
        const auto enter = [&table]<typename T>(const T& sample) {
            table.insert(sample.getXMLClass(), []() -> std::unique_ptr<Command> { return std::make_unique<T>(); });
        };
        enter(SetValueCommand());
        enter(SetProxyCommand());
        enter(DetachProxyCommand());
        enter(SetUILockedCommand());
        enter(AddNodesCommand());
        enter(AddPartCommand());
        enter(AddSubpartCommand());
        enter(AddSceneCommand());
        enter(DeleteNodeCommand());
        enter(SetNodeIndexCommand());
        enter(ShowPopupCommmand());
        enter(SelectAllCommand());
        enter(PushUndoCommand());
        enter(ReflectControlsCommand());
        enter(ReflectPadsCommand());
        enter(ReflectBodyCommand());
        enter(AddResourceCommand());
        enter(RemoveResourceCommand());
        return table;
    }();
    const Maker maker = makers.value(xmlClass);
    return maker ? maker() : nullptr;
}

Value Command::fail(const QString& error)
{
    m_error = error;
    return {};
}
