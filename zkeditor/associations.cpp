#include "zkeditor/associations.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/services/translate.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

struct AssociationTexts
{
    Q_DECLARE_TR_FUNCTIONS(Associations)
};

/// Whether a property of an element follows only because the element reflects another.
bool followsAsReflection(const PropertyImpl& follower)
{
    const auto* element = qobject_cast<const ElementImpl*>(follower.owner());
    return element && element->isWithinReflection() && follower.proxySubject() &&
           follower.proxySubject()->owner()->instanceId() == element->reflectedId();
}

/// "Brightness", or "cathode: Brightness" for a property of a subpart.
QString ownName(const PropertyImpl& property, const ElementImpl& element)
{
    const QString label = property.getUserVisibleLabel();
    return property.owner() == &element ? label
                                        : AssociationTexts::tr("%1: %2").arg(property.owner()->displayName(), label);
}

QString foreignName(const PropertyImpl& property, const QString& ownLabel)
{
    const QString label = property.getUserVisibleLabel();
    const QString node = property.owner()->displayName();
    return label == ownLabel ? node : AssociationTexts::tr("%1: %2").arg(node, label);
}

Association linkOf(const PropertyImpl& follower, const PropertyImpl& subject, const ElementImpl& element, bool follows)
{
    const PropertyImpl& own = follows ? follower : subject;
    const PropertyImpl& other = follows ? subject : follower;
    Association link;
    link.group = follows ? AssociationTexts::tr("Follows") : AssociationTexts::tr("Followed by");
    link.text = QString(follows ? QStringLiteral("%1 ← %2") : QStringLiteral("%1 → %2"))
                    .arg(ownName(own, element), foreignName(other, own.getUserVisibleLabel()));
    link.sentence = AssociationTexts::tr("%1 of %2 follows %3 of %4")
                        .arg(follower.getUserVisibleLabel(), follower.owner()->displayName(),
                             subject.getUserVisibleLabel(), subject.owner()->displayName());
    link.node = other.owner()->instanceId();
    link.follower = follower.address();
    return link;
}

QString reflectionKindName(ReflectionKind kind)
{
    switch (kind) {
    case ReflectionKind::Controls:
        return AssociationTexts::tr("Controls");
    case ReflectionKind::Pads:
        return AssociationTexts::tr("Pads");
    case ReflectionKind::Body:
    case ReflectionKind::None:
        break;
    }
    return AssociationTexts::tr("Body");
}

Association nodeEntry(const QString& group, const NodeImpl& node)
{
    Association entry;
    entry.group = group;
    entry.text = node.displayName();
    entry.sentence = AssociationTexts::tr("%1: %2").arg(group, entry.text);
    entry.node = node.instanceId();
    return entry;
}

} // namespace

void Associations::List::add(Association association)
{
    if (entries.size() < most)
        entries.push_back(std::move(association));
    else
        ++more;
}

Associations::Associations(const ElementImpl& element)
{
    addLinks(element, element);
    for (const ElementImpl* subpart : element.allSubparts()) {
        addLinks(*subpart, element);
        const RoleSet roles = subpart->getRoles();
        subparts.add(nodeEntry(roles.empty() ? AssociationTexts::tr("Others") : roles.toString(), *subpart));
    }
    std::stable_sort(subparts.entries.begin(), subparts.entries.end(),
                     [](const Association& a, const Association& b) { return a.group < b.group; });
    addReflections(element);
    const auto* part = qobject_cast<const PartImpl*>(&element);
    if (const PopupImpl* space = part ? part->popup() : nullptr) {
        popup.add(nodeEntry(AssociationTexts::tr("Pop-up"), *space));
        for (const PartImpl* inside : space->parts())
            popup.add(nodeEntry(AssociationTexts::tr("Parts in it"), *inside));
    }
}

void Associations::addLinks(const ElementImpl& owner, const ElementImpl& element)
{
    const auto& definitions = owner.prototype().properties();
    for (const PropertyDefinition& definition : definitions) {
        if (definition.type == Value::NODE) {
            const Node other = owner.valueOfProperty(definition.key).toNode();
            if (other.valid()) {
                Association entry = nodeEntry(AssociationTexts::tr("Refers to"), *other.impl());
                entry.text = AssociationTexts::tr("%1: %2").arg(translateStringFromContext(&owner, definition.label),
                                                                entry.text);
                links.add(std::move(entry));
            }
        }
        // Whatever follows or is followed has its object.
        const PropertyImpl* property = owner.existingProperty(definition.key);
        if (!property)
            continue;
        if (property->isProxy() && !followsAsReflection(*property))
            links.add(linkOf(*property, *property->proxySubject(), element, true));
        for (const PropertyImpl* follower : property->proxyDependants()) {
            if (!followsAsReflection(*follower))
                links.add(linkOf(*follower, *property, element, false));
        }
    }
}

void Associations::addReflections(const ElementImpl& element)
{
    if (const ElementImpl* original = element.reflectionOriginal())
        reflections.add(nodeEntry(AssociationTexts::tr("Reflection of"), *original));
    for (const ElementImpl* reflection : element.document()->reflectionsOf(&element)) {
        Association entry = nodeEntry(reflectionKindName(reflection->reflectionKind()), *reflection);
        if (const NodeImpl* place = reflection->parentNode())
            entry.text = AssociationTexts::tr("%1 in %2").arg(entry.text, place->displayName());
        if (reflection->kind() == NodeKind::Part)
            entry.reflection = reflection->instanceId();
        reflections.add(std::move(entry));
    }
}
