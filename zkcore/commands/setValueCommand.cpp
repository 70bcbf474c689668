#include "zkcore/commands/setValueCommand.h"

#include "zkcore/commands/commandXml.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/idProvider.h"
#include "zkcore/model/modelMutator.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/storage/valueXml.h"
#include "zkcore/values/validator.h"

#include <QCoreApplication>

namespace {

struct SetValueTexts
{
    Q_DECLARE_TR_FUNCTIONS(SetValueCommand)
};

} // namespace

SetValueCommand::SetValueCommand(bool pushUndo) : Command(pushUndo ? PushUndo : JoinUndo) {}

SetValueCommand::SetValueCommand(const Property& property, const Value& value, bool pushUndo)
    : SetValueCommand(pushUndo)
{
    addProperty(property, value);
}

void SetValueCommand::addProperty(const Property& property, const Value& value)
{
    const PropertyImpl* impl = property.impl();
    m_entries.push_back({impl ? impl->address() : PropertyAddress(), value});
    if (impl && !m_label)
        m_label = impl->liveUserVisibleLabel();
}

void SetValueCommand::addAddress(const PropertyAddress& address, const Value& value)
{
    m_entries.push_back({address, value});
}

LiveText SetValueCommand::liveUndoDescription() const
{
    LiveText label = m_label;
    if (!label)
        label = [key = m_entries.empty() ? QString() : m_entries.front().address.key.toString()] { return key; };
    return [label, n = static_cast<int>(m_entries.size())] {
        return n == 1 ? SetValueTexts::tr("Change of %1").arg(label())
                      : SetValueTexts::tr("Change of %1 (%n objects)", nullptr, n).arg(label());
    };
}

QString SetValueCommand::getXMLClass() const
{
    return QStringLiteral("set-value");
}

Value SetValueCommand::run(ModelMutator& mutator)
{
    DocumentImpl& document = mutator.document();
    // Everything is looked at before anything is written, so that a refusal costs no notifications.
    const NodePrototype* lastPrototype = nullptr;
    PropertyKey lastKey;
    const PropertyDefinition* definition = nullptr;
    for (Entry& entry : m_entries) {
        const NodeImpl* owner = mutator.node(entry.address.node);
        if (!owner)
            return fail(SetValueTexts::tr("The object is not there any more."));
        if (entry.address.domain != INVALID_CID || &owner->prototype() != lastPrototype ||
            entry.address.key != lastKey) {
            const NodePrototype* prototype = entry.address.domain == INVALID_CID
                                                 ? &owner->prototype()
                                                 : document.getNodeDb()->lookupPrototype(entry.address.domain);
            definition = prototype ? prototype->find(entry.address.key) : nullptr;
            lastPrototype = entry.address.domain == INVALID_CID ? prototype : nullptr;
            lastKey = entry.address.key;
        }
        if (!definition)
            return fail(SetValueTexts::tr("There is no property \"%1\".").arg(entry.address.key.toString()));
        if (definition->flags & PropertyDefinition::Computed)
            return fail(SetValueTexts::tr("The property \"%1\" is worked out by the program and cannot be set.")
                            .arg(entry.address.key.toString()));
        const PropertyImpl* property = entry.address.domain == INVALID_CID ? owner->existingProperty(entry.address.key)
                                                                           : document.propertyAt(entry.address);
        Value::Type type = definition->type;
        const interface::Validator* validator = definition->validator.get();
        if (property && property->isProxy()) {
            // Each link of the chain must let the value through.
            while (property->isProxy()) {
                if (!property->isMutableProxy())
                    return fail(SetValueTexts::tr("The property \"%1\" follows another one and cannot be set.")
                                    .arg(entry.address.key.toString()));
                property = property->proxySubject();
            }
            if (property->isComputed())
                return fail(SetValueTexts::tr("The property \"%1\" is worked out by the program and cannot be set.")
                                .arg(property->key().toString()));
            entry.address = property->address();
            if (property->type() != entry.value.type() && entry.value.isNumeric())
                entry.value =
                    property->type() == Value::INT ? Value(entry.value.toInt()) : Value(entry.value.toDouble());
            type = property->type();
            validator = property->getValidator();
        }
        if (entry.value.type() != type)
            return fail(SetValueTexts::tr("The property \"%1\" cannot hold a value of the type %2.")
                            .arg(entry.address.key.toString(), Value::typeAsString(entry.value.type())));
        if (validator && !validator->isValid(entry.value))
            return fail(validator->reason(entry.value));
    }
    for (const Entry& entry : m_entries) {
        if (entry.address.key == coreKeys::id() && entry.address.domain == INVALID_CID) {
            NodeImpl* owner = mutator.node(entry.address.node);
            const QString id = entry.value.toQString();
            if (owner && owner->valueOfProperty(entry.address.key).toQString() != id) {
                if (const QString reason = IdProvider(owner).reason(id); !reason.isEmpty())
                    return fail(reason);
            }
        }
        mutator.setValue(entry.address, entry.value);
    }
    return Value(true);
}

void SetValueCommand::writeContent(QXmlStreamWriter& writer) const
{
    for (const Entry& entry : m_entries) {
        writer.writeStartElement(QStringLiteral("set"));
        commandXml::writeAddress(writer, entry.address);
        writer.writeAttribute(QStringLiteral("type"), Value::typeAsString(entry.value.type()));
        ValueXml::writeContent(writer, entry.value);
        writer.writeEndElement();
    }
}

bool SetValueCommand::readContent(QXmlStreamReader& reader)
{
    while (reader.readNextStartElement()) {
        const QXmlStreamAttributes attributes = reader.attributes();
        Entry entry;
        entry.address = commandXml::readAddress(attributes);
        const Value::Type type = Value::typeFromString(attributes.value(QLatin1String("type")).toString());
        if (reader.name() != QLatin1String("set") || !entry.address.isValid() || type == Value::INVALID)
            return false;
        entry.value = ValueXml::readContent(reader, type);
        if (!entry.value.isValid())
            return false;
        m_entries.push_back(std::move(entry));
    }
    return !reader.hasError();
}
