#include "zkcore/model/nodeSnapshot.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/spaceImpl.h"

#include <QHash>

namespace {

NodeSnapshot copyOf(const NodeSnapshot& node)
{
    NodeSnapshot copy;
    copy.cid = node.cid;
    copy.kind = node.kind;
    copy.id = node.id;
    copy.locks = node.locks;
    copy.adhoc = node.adhoc;
    copy.reflects = node.reflects;
    copy.reflectionKind = node.reflectionKind;
    copy.unknownContent = node.unknownContent;
    copy.values = node.values;
    copy.children.reserve(node.children.size());
    for (const NodeSnapshot& child : node.children)
        copy.children.push_back(copyOf(child));
    if (node.popup)
        copy.popup = std::make_unique<NodeSnapshot>(copyOf(*node.popup));
    return copy;
}

void giveIds(NodeSnapshot& node, InstanceId& next, QHash<InstanceId, InstanceId>& given)
{
    const InstanceId id = next++;
    if (node.id != 0)
        given.insert(node.id, id);
    node.id = id;
    for (NodeSnapshot& child : node.children)
        giveIds(child, next, given);
    if (node.popup)
        giveIds(*node.popup, next, given);
}

void followIds(NodeSnapshot& node, const QHash<InstanceId, InstanceId>& given, InstanceId firstFree)
{
    const auto followed = [&](InstanceId id) {
        // What comes from elsewhere must not come to mean a new node by chance.
        return given.value(id, id < firstFree ? id : 0);
    };
    node.reflects = followed(node.reflects);
    if (node.reflects == 0)
        node.reflectionKind = ReflectionKind::None;
    for (NodeSnapshot::ValueEntry& entry : node.values) {
        entry.proxy.node = followed(entry.proxy.node);
        if (entry.value.type() == Value::NODE)
            entry.value = Value::fromInstanceId(followed(entry.value.toInstanceId()));
    }
    for (NodeSnapshot& child : node.children)
        followIds(child, given, firstFree);
    if (node.popup)
        followIds(*node.popup, given, firstFree);
}

} // namespace

size_t NodeSnapshot::count() const
{
    size_t result = 1;
    for (const NodeSnapshot& child : children)
        result += child.count();
    return popup ? result + popup->count() : result;
}

NodeSnapshot NodeSnapshot::withFreshIds(InstanceId firstFree) const
{
    NodeSnapshot result = copyOf(*this);
    QHash<InstanceId, InstanceId> given;
    InstanceId next = firstFree;
    giveIds(result, next, given);
    followIds(result, given, firstFree);
    return result;
}

std::vector<NodeSnapshot> NodeSnapshot::withFreshIds(const std::vector<NodeSnapshot>& nodes, InstanceId firstFree)
{
    std::vector<NodeSnapshot> result;
    result.reserve(nodes.size());
    QHash<InstanceId, InstanceId> given;
    InstanceId next = firstFree;
    for (const NodeSnapshot& node : nodes) {
        result.push_back(copyOf(node));
        giveIds(result.back(), next, given);
    }
    for (NodeSnapshot& node : result)
        followIds(node, given, firstFree);
    return result;
}

NodeSnapshot NodeSnapshot::copy() const
{
    return copyOf(*this);
}

NodeSnapshot NodeSnapshot::of(const NodeImpl& node)
{
    NodeSnapshot result;
    result.cid = node.classId();
    result.kind = node.kind();
    result.id = node.instanceId();
    result.unknownContent = node.unknownContent();
    std::vector<std::pair<ClassId, NodeImpl::PropertyStore*>> stores;
    const_cast<NodeImpl&>(node).collectStores(stores);
    for (const auto& [domain, store] : stores) {
        const std::vector<PropertyDefinition>& definitions = store->prototype->properties();
        for (const auto& [index, value] : store->values) {
            const PropertyDefinition& definition = definitions[static_cast<size_t>(index)];
            const PropertyImpl* property = store->object(index);
            if (!property || !property->isProxy())
                result.values.push_back({domain, definition.key, value, {}});
        }
        if (node.document()->hasDanglingProxies()) {
            for (const PropertyDefinition& definition : definitions) {
                const PropertyAddress target =
                    node.document()->danglingProxy({node.instanceId(), domain, definition.key});
                if (!target.isValid())
                    continue;
                std::erase_if(result.values, [&, own = domain](const ValueEntry& entry) {
                    return entry.domain == own && entry.key == definition.key;
                });
                result.values.push_back(
                    {domain, definition.key, store->value(store->prototype->indexOf(definition.key)), target});
            }
        }
        for (const auto& [index, property] : store->objects) {
            if (property->isProxy())
                result.values.push_back(
                    {domain, property->key(), property->getValue(), property->proxySubject()->address()});
        }
    }
    if (node.kind() == NodeKind::Part || node.kind() == NodeKind::Subpart) {
        const auto& element = static_cast<const ElementImpl&>(node);
        result.locks = element.lockMask();
        result.adhoc = element.isAdhoc();
        result.reflectionKind = element.reflectionKind();
        result.reflects = element.reflectedId();
    }
    result.children.reserve(node.childCount());
    for (const NodeImpl* child : node.children())
        result.children.push_back(of(*child));
    if (node.kind() == NodeKind::Part) {
        if (const PopupImpl* popup = static_cast<const PartImpl&>(node).popup())
            result.popup = std::make_unique<NodeSnapshot>(of(*popup));
    }
    return result;
}

NodeSnapshot NodeSnapshot::ofPrototype(NodeDb& db, ClassId cid)
{
    NodeSnapshot result;
    const NodePrototype* prototype = db.prototypeOrPlaceholder(cid, NodeKind::Part);
    result.cid = prototype->cid;
    result.kind = prototype->kind;
    for (const SubpartDefinition& definition : prototype->subparts) {
        NodeSnapshot subpart = ofPrototype(db, definition.cid);
        subpart.adhoc = false;
        for (const auto& [key, value] : definition.values)
            subpart.values.push_back({INVALID_CID, key, value, {}});
        result.children.push_back(std::move(subpart));
    }
    if (prototype->popupClass != INVALID_CID)
        result.popup = std::make_unique<NodeSnapshot>(ofPrototype(db, prototype->popupClass));
    return result;
}
