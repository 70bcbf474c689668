#include "zkcore/commands/viewCommands.h"

#include "zkcore/commands/commandXml.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/modelMutator.h"
#include "zkcore/model/spaceImpl.h"

#include <QCoreApplication>

ShowPopupCommmand::ShowPopupCommmand(const Part& part, bool show)
    : Command(JoinUndo), m_part(part.instanceId()), m_show(show)
{
}

LiveText ShowPopupCommmand::liveUndoDescription() const
{
    return [show = m_show] {
        return show ? QCoreApplication::translate("ShowPopupCommand", "Showing of a pop-up")
                    : QCoreApplication::translate("ShowPopupCommand", "Hiding of a pop-up");
    };
}

QString ShowPopupCommmand::getXMLClass() const
{
    return QStringLiteral("show-popup");
}

Value ShowPopupCommmand::run(ModelMutator& mutator)
{
    const auto* part = qobject_cast<const PartImpl*>(mutator.node(m_part));
    if (!part || !part->popup())
        return fail(QCoreApplication::translate("ShowPopupCommand", "The part has no pop-up."));
    mutator.setValue({part->popup()->instanceId(), INVALID_CID, coreKeys::open()}, Value(m_show));
    return Value(true);
}

void ShowPopupCommmand::writeContent(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("part"), QString::number(m_part));
    writer.writeAttribute(QStringLiteral("show"), m_show ? QStringLiteral("true") : QStringLiteral("false"));
}

bool ShowPopupCommmand::readContent(QXmlStreamReader& reader)
{
    const bool ok = commandXml::readNumber(reader.attributes(), QStringLiteral("part"), m_part);
    m_show = reader.attributes().value(QLatin1String("show")) == QLatin1String("true");
    reader.skipCurrentElement();
    return ok;
}

SelectAllCommand::SelectAllCommand(const Space& space) : Command(JoinUndo), m_space(space.instanceId()) {}

LiveText SelectAllCommand::liveUndoDescription() const
{
    return [] { return QCoreApplication::translate("SelectAllCommand", "Selection of everything"); };
}

QString SelectAllCommand::getXMLClass() const
{
    return QStringLiteral("select-all");
}

Value SelectAllCommand::run(ModelMutator& mutator)
{
    DocumentImpl& document = mutator.document();
    const SpaceImpl* space = qobject_cast<SpaceImpl*>(mutator.node(m_space));
    if (!space && m_space == 0 && document.getModel()->childCount() > 0)
        space = static_cast<SpaceImpl*>(document.getModel()->getChildAt(0));
    if (!space)
        return fail(QCoreApplication::translate("SelectAllCommand", "The scene is not there any more."));
    const std::vector<PartImpl*> parts = space->parts();
    document.setSelection(ElementImplSet(parts.begin(), parts.end()));
    return Value(true);
}

void SelectAllCommand::writeContent(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("space"), QString::number(m_space));
}

bool SelectAllCommand::readContent(QXmlStreamReader& reader)
{
    const bool ok = commandXml::readNumber(reader.attributes(), QStringLiteral("space"), m_space);
    reader.skipCurrentElement();
    return ok;
}

PushUndoCommand::PushUndoCommand(LiveText description) : Command(JoinUndo), m_description(std::move(description)) {}

PushUndoCommand::PushUndoCommand(const QString& description)
    : PushUndoCommand(LiveText([description] { return description; }))
{
}

LiveText PushUndoCommand::liveUndoDescription() const
{
    return m_description ? m_description : [] { return QString(); };
}

QString PushUndoCommand::getXMLClass() const
{
    return QStringLiteral("push-undo");
}

Value PushUndoCommand::run(ModelMutator& mutator)
{
    mutator.openStep(m_description);
    return Value(true);
}

void PushUndoCommand::writeContent(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("description"), getUndoDescription());
}

bool PushUndoCommand::readContent(QXmlStreamReader& reader)
{
    m_description = [text = reader.attributes().value(QLatin1String("description")).toString()] { return text; };
    reader.skipCurrentElement();
    return true;
}
