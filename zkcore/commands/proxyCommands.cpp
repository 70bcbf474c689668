#include "zkcore/commands/proxyCommands.h"

#include "zkcore/commands/commandXml.h"
#include "zkcore/model/modelMutator.h"
#include "zkcore/model/propertyImpl.h"

#include <QCoreApplication>

namespace {

struct ProxyTexts
{
    Q_DECLARE_TR_FUNCTIONS(ProxyCommands)
};

PropertyAddress addressOf(const Property& property)
{
    const PropertyImpl* impl = property.impl();
    return impl ? impl->address() : PropertyAddress();
}

LiveText labelOf(const Property& property)
{
    const PropertyImpl* impl = property.impl();
    return impl ? impl->liveUserVisibleLabel() : LiveText();
}

LiveText orKey(const LiveText& label, PropertyKey key)
{
    return label ? label : [key] { return key.toString(); };
}

} // namespace

SetProxyCommand::SetProxyCommand() : Command(PushUndo) {}

SetProxyCommand::SetProxyCommand(const Property& property, const Property& target, bool pushUndo)
    : Command(pushUndo ? PushUndo : JoinUndo), m_property(addressOf(property)), m_target(addressOf(target)),
      m_label(labelOf(property))
{
}

LiveText SetProxyCommand::liveUndoDescription() const
{
    return [label = orKey(m_label, m_property.key)] { return ProxyTexts::tr("Link of %1").arg(label()); };
}

QString SetProxyCommand::getXMLClass() const
{
    return QStringLiteral("set-proxy");
}

Value SetProxyCommand::run(ModelMutator& mutator)
{
    PropertyImpl* property = mutator.document().propertyAt(m_property);
    PropertyImpl* target = mutator.document().propertyAt(m_target);
    if (!property || !target)
        return fail(ProxyTexts::tr("One of the properties is not there any more."));
    if (const QString reason = property->acceptableProxyTypes().reason(Property(target)); !reason.isEmpty())
        return fail(reason);
    if (property->isComputed())
        return fail(ProxyTexts::tr("A property that the program works out cannot follow another."));
    mutator.setProxy(m_property, m_target);
    return Value(true);
}

void SetProxyCommand::writeContent(QXmlStreamWriter& writer) const
{
    commandXml::writeAddress(writer, m_property);
    commandXml::writeAddress(writer, m_target, QStringLiteral("target-"));
}

bool SetProxyCommand::readContent(QXmlStreamReader& reader)
{
    m_property = commandXml::readAddress(reader.attributes());
    m_target = commandXml::readAddress(reader.attributes(), QStringLiteral("target-"));
    reader.skipCurrentElement();
    return m_property.isValid() && m_target.isValid();
}

DetachProxyCommand::DetachProxyCommand(const Property& property, bool pushUndo)
    : Command(pushUndo ? PushUndo : JoinUndo), m_property(addressOf(property)), m_label(labelOf(property))
{
}

LiveText DetachProxyCommand::liveUndoDescription() const
{
    return [label = orKey(m_label, m_property.key)] { return ProxyTexts::tr("Detaching of %1").arg(label()); };
}

QString DetachProxyCommand::getXMLClass() const
{
    return QStringLiteral("detach-proxy");
}

Value DetachProxyCommand::run(ModelMutator& mutator)
{
    if (!mutator.document().propertyAt(m_property))
        return fail(ProxyTexts::tr("The property is not there any more."));
    mutator.detachProxy(m_property);
    return Value(true);
}

void DetachProxyCommand::writeContent(QXmlStreamWriter& writer) const
{
    commandXml::writeAddress(writer, m_property);
}

bool DetachProxyCommand::readContent(QXmlStreamReader& reader)
{
    m_property = commandXml::readAddress(reader.attributes());
    reader.skipCurrentElement();
    return m_property.isValid();
}
