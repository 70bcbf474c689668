#include "zkcore/commands/reflectCommand.h"

#include "zkcore/commands/commandXml.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/modelMutator.h"
#include "zkcore/model/propertyImpl.h"

#include <QCoreApplication>
#include <array>

namespace {

struct ReflectTexts
{
    Q_DECLARE_TR_FUNCTIONS(ReflectCommand)
};

/// Facts about the class, the same for every node of it.
bool isClassProperty(const PropertyDefinition& definition)
{
    constexpr auto flags = PropertyDefinition::ReadOnly | PropertyDefinition::Transient | PropertyDefinition::Native;
    return (definition.flags & flags) == flags;
}

bool keepsItsOwn(PropertyKey key, bool top)
{
    const std::array own{coreKeys::id(), coreKeys::position(), coreKeys::size(), coreKeys::orientation()};
    return key == own[0] || (top && std::find(own.begin(), own.end(), key) != own.end());
}

NodeSnapshot reflectionOf(const ElementImpl& original, ReflectionKind kind, const RoleSet& role, bool top)
{
    NodeSnapshot node;
    node.cid = original.classId();
    node.kind = original.kind();
    node.adhoc = top || original.isAdhoc();
    node.reflects = original.instanceId();
    node.reflectionKind = kind;
    for (const PropertyDefinition& definition : original.prototype().properties()) {
        if (isClassProperty(definition))
            continue;
        const Value value = original.valueOfProperty(definition.key);
        if (keepsItsOwn(definition.key, top)) {
            if (original.hasOwnValue(definition.key))
                node.values.push_back({INVALID_CID, definition.key, value, {}});
        } else {
            node.values.push_back(
                {INVALID_CID, definition.key, value, {original.instanceId(), INVALID_CID, definition.key}});
        }
    }
    for (const ElementImpl* subpart : original.allSubparts()) {
        if (!top || subpart->getRoles().intersects(role))
            node.children.push_back(reflectionOf(*subpart, kind, role, false));
    }
    return node;
}

void setOwnValue(NodeSnapshot& node, PropertyKey key, const Value& value)
{
    std::erase_if(node.values, [key](const NodeSnapshot::ValueEntry& entry) { return entry.key == key; });
    node.values.push_back({INVALID_CID, key, value, {}});
}

} // namespace

ReflectCommand::ReflectCommand(ReflectionKind kind, const Part& original, const Node& container, bool reflect,
                               int flags)
    : Command(flags), m_kind(kind), m_original(original.instanceId()), m_container(container.instanceId()),
      m_reflect(reflect)
{
}

LiveText ReflectCommand::liveUndoDescription() const
{
    return [reflect = m_reflect] {
        return reflect ? ReflectTexts::tr("Reflection") : ReflectTexts::tr("Removal of a reflection");
    };
}

Value ReflectCommand::run(ModelMutator& mutator)
{
    const auto* original = qobject_cast<const PartImpl*>(mutator.node(m_original));
    NodeImpl* container = mutator.node(m_container);
    if (auto* part = qobject_cast<PartImpl*>(container))
        container = part->popup();
    if (!original || !container)
        return fail(ReflectTexts::tr("There is no such part, or no place for the reflection."));
    if (container->kind() != NodeKind::Scene && container->kind() != NodeKind::Popup)
        return fail(ReflectTexts::tr("A reflection stands in a scene or a pop-up."));

    const ElementImpl* present = nullptr;
    for (const ElementImpl* reflection : mutator.document().reflectionsOf(original)) {
        if (reflection->reflectionKind() == m_kind && reflection->parentNode() == container)
            present = reflection;
    }
    if (!m_reflect) {
        if (!present)
            return fail(ReflectTexts::tr("There is no such reflection."));
        mutator.removeNode(present->instanceId());
        return Value(true);
    }
    if (present)
        return Value(Node(const_cast<ElementImpl*>(present)));

    const RoleSet role(roleOfReflection(m_kind));
    const bool hasBody = m_kind == ReflectionKind::Body && original->prototype().body.isValid();
    if (!original->canReflect() || (!hasBody && original->getChildrenWithRole(role).empty()))
        return fail(ReflectTexts::tr("The part has nothing of the kind to reflect."));

    NodeSnapshot node = reflectionOf(*original, m_kind, role, true);
    const bool recorded = m_firstId != 0;
    if (!recorded)
        m_firstId = mutator.takeIds(node.count());
    if (m_firstId == 0)
        return fail(ReflectTexts::tr("The document has no more instance ids for new objects."));
    node = node.withFreshIds(m_firstId);
    zk::Point place = original->position();
    if (original->parentNode() == container) {
        place = {place.x + 0.01, place.y + 0.01};
    } else {
        const zk::Point size = container->valueOfProperty(coreKeys::size()).toPoint();
        place = {size.x / 2, size.y / 2};
    }
    setOwnValue(node, coreKeys::position(), Value(place));
    const QString stem =
        original->valueOfProperty(coreKeys::id()).toQString() + QLatin1Char('-') + roleOfReflection(m_kind);
    QString id = stem;
    for (int number = 2; mutator.document().nodeWithId(id); ++number)
        id = stem + QString::number(number);
    setOwnValue(node, coreKeys::id(), Value(id));
    NodeImpl* made = mutator.addNode(container->instanceId(), ~0u, node);
    return made ? Value(Node(made)) : fail(ReflectTexts::tr("An instance id is in use already."));
}

void ReflectCommand::writeContent(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("original"), QString::number(m_original));
    writer.writeAttribute(QStringLiteral("container"), QString::number(m_container));
    writer.writeAttribute(QStringLiteral("reflect"), m_reflect ? QStringLiteral("true") : QStringLiteral("false"));
    if (m_firstId != 0)
        writer.writeAttribute(QStringLiteral("first-id"), QString::number(m_firstId));
}

bool ReflectCommand::readContent(QXmlStreamReader& reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    bool ok = commandXml::readNumber(attributes, QStringLiteral("original"), m_original) &&
              commandXml::readNumber(attributes, QStringLiteral("container"), m_container);
    m_reflect = attributes.value(QLatin1String("reflect")) == QLatin1String("true");
    if (attributes.hasAttribute(QLatin1String("first-id")))
        ok = commandXml::readNumber(attributes, QStringLiteral("first-id"), m_firstId) && ok;
    reader.skipCurrentElement();
    return ok;
}

QString ReflectControlsCommand::getXMLClass() const
{
    return QStringLiteral("reflect-controls");
}

QString ReflectPadsCommand::getXMLClass() const
{
    return QStringLiteral("reflect-pads");
}

QString ReflectBodyCommand::getXMLClass() const
{
    return QStringLiteral("reflect-body");
}
