#include "zkcore/commands/resourceCommand.h"

#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/modelMutator.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {
constexpr char localPrefix[] = "local/";
}

AddResourceCommand::AddResourceCommand(const Resource& resource, bool pushUndo)
    : Command(pushUndo ? PushUndo : JoinUndo), m_resource(resource)
{
}

LiveText AddResourceCommand::liveUndoDescription() const
{
    return [name = m_resource.toString()] {
        return QCoreApplication::translate("AddResourceCommand", "Import of %1").arg(name);
    };
}

QString AddResourceCommand::getXMLClass() const
{
    return QStringLiteral("add-resource");
}

Value AddResourceCommand::run(ModelMutator& mutator)
{
    if (!m_resource.isValid())
        return fail(QCoreApplication::translate("AddResourceCommand", "There is nothing to import."));
    const ResourceEntry* entry = m_resource.entry();
    QString stem = m_resource.toString();
    if (!stem.startsWith(QLatin1String(localPrefix)))
        stem.prepend(QLatin1String(localPrefix));
    QString name = stem;
    for (int number = 2; mutator.document().resource(name).isValid(); ++number)
        name = QStringLiteral("%1-%2").arg(stem).arg(number);
    auto local = std::make_shared<LocalREntry>(name, entry->type(), entry->data(), entry->extension());
    m_resource = Resource(local);
    mutator.addResource(std::move(local));
    return Value(m_resource);
}

void AddResourceCommand::writeContent(QXmlStreamWriter& writer) const
{
    const ResourceEntry* entry = m_resource.entry();
    writer.writeAttribute(QStringLiteral("name"), m_resource.toString());
    writer.writeAttribute(QStringLiteral("type"), Resource::typeAsString(m_resource.type()));
    writer.writeAttribute(QStringLiteral("extension"), entry ? entry->extension() : QString());
    writer.writeCharacters(QString::fromLatin1(m_resource.data().toBase64()));
}

bool AddResourceCommand::readContent(QXmlStreamReader& reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    const QString name = attributes.value(QLatin1String("name")).toString();
    const Resource::Type type = Resource::typeFromString(attributes.value(QLatin1String("type")).toString());
    const QString extension = attributes.value(QLatin1String("extension")).toString();
    const QByteArray bytes = QByteArray::fromBase64(reader.readElementText().toLatin1());
    if (name.isEmpty() || type == Resource::INVALID)
        return false;
    m_resource = Resource(std::make_shared<LocalREntry>(name, type, bytes, extension));
    return true;
}

RemoveResourceCommand::RemoveResourceCommand(const Resource& resource, bool pushUndo)
    : Command(pushUndo ? PushUndo : JoinUndo), m_name(resource.toString())
{
}

LiveText RemoveResourceCommand::liveUndoDescription() const
{
    return [name = m_name] { return QCoreApplication::translate("RemoveResourceCommand", "Removal of %1").arg(name); };
}

QString RemoveResourceCommand::getXMLClass() const
{
    return QStringLiteral("remove-resource");
}

Value RemoveResourceCommand::run(ModelMutator& mutator)
{
    mutator.removeResource(m_name);
    return Value(true);
}

void RemoveResourceCommand::writeContent(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("name"), m_name);
}

bool RemoveResourceCommand::readContent(QXmlStreamReader& reader)
{
    m_name = reader.attributes().value(QLatin1String("name")).toString();
    reader.skipCurrentElement();
    return !m_name.isEmpty();
}
