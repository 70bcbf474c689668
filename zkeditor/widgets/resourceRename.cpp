#include "zkeditor/widgets/resourceRename.h"

#include "zkcore/commands/resourceCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/undoGroup.h"

#include <QCoreApplication>
#include <algorithm>
#include <memory>

namespace {

struct RenameTexts
{
    Q_DECLARE_TR_FUNCTIONS(ResourceRename)
};

QString wholeName(const QString& name)
{
    return QStringLiteral("local/") + name.trimmed();
}

/// The value with one resource in the place of another, wherever it stands in it.
Value replaced(const Value& value, const Resource& from, const Resource& to)
{
    switch (value.type()) {
    case Value::RESOURCE:
        return value.toResource().toString() == from.toString() ? Value(to) : value;
    case Value::RESOURCEVECTOR: {
        std::vector<Resource> all = value.toResourceVector();
        for (Resource& resource : all) {
            if (resource.toString() == from.toString())
                resource = to;
        }
        return Value(all);
    }
    case Value::VALUEVECTOR: {
        std::vector<Value> all = value.toValueVector();
        for (Value& element : all)
            element = replaced(element, from, to);
        return Value(all);
    }
    case Value::VALUEMAP: {
        ValueMap all = value.toValueMap();
        for (auto& [key, element] : all)
            element = replaced(element, from, to);
        return Value(all);
    }
    default:
        return value;
    }
}

bool mayHoldResources(Value::Type type)
{
    return type == Value::RESOURCE || type == Value::RESOURCEVECTOR || type == Value::VALUEVECTOR ||
           type == Value::VALUEMAP;
}

/// Collects what has to be set so that nothing names the old resource any more.
class References
{
public:
    References(const Resource& from, const Resource& to) : m_from(from), m_to(to) {}

    void look(NodeImpl* node)
    {
        for (const PropertyDefinition& definition : node->prototype().properties()) {
            if (!mayHoldResources(definition.type) || !node->hasOwnValue(definition.key))
                continue;
            const PropertyImpl* property = node->existingProperty(definition.key);
            if (!property || !property->isProxy())
                note({node->instanceId(), INVALID_CID, definition.key}, node->valueOfProperty(definition.key));
        }
        if (auto* space = qobject_cast<SpaceImpl*>(node)) {
            for (const ClassId domain : space->getKnownDomains()) {
                for (const Property::Key key : space->getPropertyKeys(domain))
                    note({node->instanceId(), domain, key}, space->valueOfProperty(key, domain));
            }
        }
        for (NodeImpl* child : node->children())
            look(child);
        if (const auto* part = qobject_cast<PartImpl*>(node); part && part->popup())
            look(part->popup());
    }

    std::vector<std::pair<PropertyAddress, Value>> found;

private:
    void note(const PropertyAddress& address, const Value& value)
    {
        if (!mayHoldResources(value.type()))
            return;
        const Value after = replaced(value, m_from, m_to);
        if (!(after == value))
            found.emplace_back(address, after);
    }

    const Resource m_from;
    const Resource m_to;
};

} // namespace

QString resourceRename::reason(const DocumentImpl& document, const Resource& resource, const QString& name)
{
    const QString word = name.trimmed();
    if (word.isEmpty())
        return RenameTexts::tr("The name must not be empty.");
    if (word.contains(QLatin1Char('/')))
        return RenameTexts::tr("The name must not contain a slash.");
    if (wholeName(word) != resource.toString() && document.resource(wholeName(word)).isValid())
        return RenameTexts::tr("Another resource has this name.");
    return {};
}

QString resourceRename::rename(DocumentImpl& document, Resource resource, const QString& name)
{
    if (const QString refusal = reason(document, resource, name); !refusal.isEmpty())
        return refusal;
    const QString after = wholeName(name);
    const ResourceEntry* entry = resource.entry();
    if (!entry || after == resource.toString())
        return {};
    const Resource renamed(std::make_shared<LocalREntry>(after, entry->type(), entry->data(), entry->extension()));
    UndoGroup group(&document);
    if (!group.run(new AddResourceCommand(renamed, group.pushUndo())))
        return group.error();
    References references(resource, document.resource(after));
    references.look(document.getModel());
    if (!references.found.empty()) {
        auto command = std::make_unique<SetValueCommand>(group.pushUndo());
        for (const auto& [address, value] : references.found)
            command->addAddress(address, value);
        if (!group.run(command.release()))
            return group.error();
    }
    group.run(new RemoveResourceCommand(resource, group.pushUndo()));
    return group.error();
}
