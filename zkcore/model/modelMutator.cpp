#include "zkcore/model/modelMutator.h"

#include "zkcore/commands/command.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/changeMarks.h"
#include "zkcore/model/changes.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/nodeFactory.h"
#include "zkcore/model/nodeRegistry.h"
#include "zkcore/model/propertyImpl.h"

#include <algorithm>

namespace {

bool isElement(const NodeImpl* node)
{
    return node->kind() == NodeKind::Part || node->kind() == NodeKind::Subpart;
}

void collectSubtree(const NodeImpl* node, std::vector<InstanceId>& out)
{
    out.push_back(node->instanceId());
    for (const NodeImpl* child : node->children())
        collectSubtree(child, out);
    if (node->kind() == NodeKind::Part) {
        if (const PopupImpl* popup = static_cast<const PartImpl*>(node)->popup())
            collectSubtree(popup, out);
    }
}

} // namespace

ModelMutator::ModelMutator(DocumentImpl& document) : m_document(document)
{
    m_outermost = !document.m_mutator;
    if (m_outermost) {
        m_own = std::make_unique<ChangeSet>();
        m_changes = m_own.get();
        m_selectionBefore = document.selectionIds();
        document.m_mutator = this;
    } else {
        m_changes = document.m_mutator->m_changes;
    }
    m_start = m_changes->size();
}

ModelMutator::ModelMutator(DocumentImpl& document, Raw) : m_document(document), m_done(true) {}

ModelMutator::~ModelMutator()
{
    if (!m_done)
        rollBack();
}

void ModelMutator::commit(const Command& command)
{
    linkAdded();
    m_done = true;
    if (!m_outermost)
        return;
    m_document.m_mutator = nullptr;
    m_changes = nullptr;
    m_document.recordChanges(std::move(m_own), command, m_selectionBefore);
}

void ModelMutator::rollBack()
{
    m_done = true;
    ModelMutator raw(m_document, Raw());
    m_changes->rollBack(raw, m_start);
    if (!m_outermost)
        return;
    m_document.m_mutator = nullptr;
    m_document.restoreSelection(*m_selectionBefore);
}

void ModelMutator::noteValue(const PropertyAddress& address, Value before, Value after)
{
    if (!m_valueBatch || m_changes->last() != m_valueBatch) {
        auto batch = std::make_unique<ValuesChange>();
        m_valueBatch = batch.get();
        m_changes->add(std::move(batch));
    }
    m_valueBatch->add(address, std::move(before), std::move(after));
}

void ModelMutator::markValue(InstanceId node)
{
    if (m_document.m_changeMarks)
        m_document.m_changeMarks->addValue(node);
}

void ModelMutator::markShape(InstanceId node)
{
    if (m_document.m_changeMarks)
        m_document.m_changeMarks->addShape(node);
}

bool ModelMutator::setValue(const PropertyAddress& address, const Value& value)
{
    NodeImpl* owner = node(address.node);
    NodeImpl::PropertyStore* store = owner ? owner->store(address.domain) : nullptr;
    if (!store)
        return false;
    if (store->prototype != m_lastPrototype || address.key != m_lastKey) {
        m_lastPrototype = store->prototype;
        m_lastKey = address.key;
        m_lastIndex = store->prototype->indexOf(address.key);
    }
    const int index = m_lastIndex;
    if (index < 0)
        return false;
    const PropertyDefinition& definition = store->prototype->properties()[static_cast<size_t>(index)];
    if (value.type() != definition.type)
        return false;
    const bool always = definition.flags & PropertyDefinition::AlwaysNotify;
    const Value before = store->value(index);
    const bool changed = store->setValue(index, value);
    if (!changed && !always)
        return false;
    if (changed) {
        if (!(definition.flags & PropertyDefinition::Transient)) {
            markValue(address.node);
            if (m_changes)
                noteValue(address, before, value);
        }
        if (address.key == coreKeys::id() && address.domain == INVALID_CID && NodeRegistry::hasRegisteredId(owner)) {
            m_document.m_registry->leaveTextId(before.toQString(), address.node);
            m_document.m_registry->enterTextId(value.toQString(), address.node);
        }
    }
    PropertyImpl* property = store->object(index);
    if (property && property->isProxy())
        return changed; // what it shows is its target's value
    if (property)
        property->notifyValueChanged();
    if (!property || node(address.node) == owner)
        Q_EMIT m_document.nodeValueChanged(owner, address.key);
    if (address.key == coreKeys::orientationConstraint() && node(address.node) == owner) {
        static const Value fixed(QStringLiteral("fixed"));
        if ((before == fixed) != (value == fixed))
            tellOrientationEditability(*owner);
    }
    return changed;
}

void ModelMutator::tellOrientationEditability(const NodeImpl& owner)
{
    PropertyImpl* orientation = owner.existingProperty(coreKeys::orientation());
    if (!orientation)
        return;
    std::vector<Property> affected{Property(orientation)};
    for (size_t i = 0; i < affected.size(); ++i) {
        for (PropertyImpl* follower : affected[i].impl()->proxyDependants())
            affected.emplace_back(follower);
    }
    for (const Property& handle : affected) {
        if (PropertyImpl* property = handle.impl())
            Q_EMIT property->userCanEditChanged();
    }
}

NodeImpl* ModelMutator::addNode(InstanceId parentId, unsigned int index, NodeSnapshot& snapshot)
{
    NodeImpl* parent = node(parentId);
    if (!parent || !idsAreFree(snapshot))
        return nullptr;
    giveMissingIds(snapshot);
    Built built;
    NodeImpl* made = build(nullptr, std::as_const(snapshot), built);
    attach(*parent, index, made);
    linkProxies(built);
    markShape(parentId);
    if (m_document.m_changeMarks)
        m_document.m_changeMarks->addNode(snapshot.id);
    if (m_changes) {
        const int at = parent->getIndexForChild(made);
        m_changes->add(std::make_unique<NodeChange>(NodeChange::Added, parentId,
                                                    at < 0 ? 0u : static_cast<unsigned int>(at), made->instanceId(),
                                                    NodeSnapshot()));
    }
    Q_EMIT parent->ChildAdded(Node(parent), Node(made));
    announceAdded(built.ids);
    return node(snapshot.id);
}

void ModelMutator::giveMissingIds(NodeSnapshot& snapshot)
{
    if (snapshot.id == 0)
        snapshot.id = takeIds(1);
    m_document.m_nextId = std::max(m_document.m_nextId, snapshot.id + 1);
    for (NodeSnapshot& child : snapshot.children)
        giveMissingIds(child);
    if (snapshot.popup)
        giveMissingIds(*snapshot.popup);
}

bool ModelMutator::idsAreFree(const NodeSnapshot& snapshot) const
{
    if (snapshot.id != 0 && node(snapshot.id))
        return false;
    return std::all_of(snapshot.children.begin(), snapshot.children.end(),
                       [this](const NodeSnapshot& child) { return idsAreFree(child); }) &&
           (!snapshot.popup || idsAreFree(*snapshot.popup));
}

InstanceId ModelMutator::takeIds(size_t count)
{
    const InstanceId first = m_document.m_nextId;
    if (first > highestInstanceId || count > size_t(highestInstanceId - first) + 1)
        return 0;
    m_document.m_nextId += static_cast<InstanceId>(count);
    return first;
}

NodeImpl* ModelMutator::buildAlone(NodeImpl* parent, const NodeSnapshot& snapshot, Built& built)
{
    const NodePrototype* prototype = m_document.m_nodeDb->prototypeOrPlaceholder(snapshot.cid, snapshot.kind);
    NodeImpl* made = NodeFactory::make(&m_document, prototype, snapshot.id);
    if (!snapshot.unknownContent.isEmpty())
        made->m_unknown = std::make_unique<QString>(snapshot.unknownContent);
    fillValues(*made, snapshot, built);
    if (isElement(made)) {
        auto* element = static_cast<ElementImpl*>(made);
        element->m_locks = static_cast<unsigned char>(snapshot.locks);
        element->m_adhoc = snapshot.adhoc;
        element->m_reflectionKind = snapshot.reflectionKind;
        element->m_reflects = snapshot.reflects;
        if (element->isReflection())
            m_document.m_registry->enterReflection(snapshot.reflects, snapshot.id);
    }
    m_document.m_registry->enter(made);
    built.ids.push_back(snapshot.id);
    if (parent)
        attach(*parent, ~0u, made);
    return made;
}

template <typename Snapshot> NodeImpl* ModelMutator::build(NodeImpl* parent, Snapshot& snapshot, Built& built)
{
    NodeImpl* made = buildAlone(parent, snapshot, built);
    for (Snapshot& child : snapshot.children)
        build(made, child, built);
    if (snapshot.popup && made->kind() == NodeKind::Part)
        build(made, static_cast<Snapshot&>(*snapshot.popup), built);
    if constexpr (!std::is_const_v<Snapshot>)
        snapshot = NodeSnapshot();
    return made;
}

template NodeImpl* ModelMutator::build(NodeImpl* parent, NodeSnapshot& snapshot, Built& built);

void ModelMutator::attach(NodeImpl& parent, unsigned int index, NodeImpl* node)
{
    node->m_parent = &parent;
    if (node->kind() == NodeKind::Popup) {
        static_cast<PartImpl&>(parent).m_popup = static_cast<PopupImpl*>(node);
        m_document.m_model->m_popups.insert(node->instanceId());
    } else {
        parent.m_children.insert(index, node);
    }
}

void ModelMutator::fillValues(NodeImpl& node, const NodeSnapshot& snapshot, Built& built)
{
    node.m_store.values.reserve(snapshot.values.size());
    for (const NodeSnapshot::ValueEntry& entry : snapshot.values) {
        if (entry.proxy.isValid()) {
            built.links.push_back({snapshot.id, entry}); // linked, or kept as dangling, when all nodes are there
            continue;
        }
        NodeImpl::PropertyStore* store = node.store(entry.domain);
        const int index = store ? store->prototype->indexOf(entry.key) : -1;
        if (index >= 0 && store->prototype->properties()[static_cast<size_t>(index)].type == entry.value.type())
            store->setValue(index, entry.value);
    }
}

void ModelMutator::announceAdded(const std::vector<InstanceId>& ids)
{
    for (const InstanceId id : ids) {
        NodeImpl* added = node(id);
        if (!added)
            continue;
        switch (added->kind()) {
        case NodeKind::Part:
        case NodeKind::Subpart: {
            auto* element = static_cast<ElementImpl*>(added);
            if (ElementImpl* original = element->reflectionOriginal())
                Q_EMIT original->ReflectionAdded(Node(original), Node(added));
            if (node(id))
                Q_EMIT m_document.ElementAdded(Element(element));
            break;
        }
        case NodeKind::Scene:
            Q_EMIT m_document.SceneAdded(Scene(static_cast<SceneImpl*>(added)));
            break;
        case NodeKind::Popup:
            Q_EMIT m_document.PopupAdded(Popup(static_cast<PopupImpl*>(added)));
            break;
        case NodeKind::Model:
        case NodeKind::Domain:
            break;
        }
    }
}

void ModelMutator::removeNode(InstanceId id)
{
    NodeImpl* root = node(id);
    if (!root || !root->parentNode())
        return;
    std::vector<InstanceId> subtree;
    collectSubtree(root, subtree);
    for (const InstanceId each : subtree) {
        if (NodeImpl* doomed = node(each))
            Q_EMIT doomed->beingDeleted(Node(doomed));
    }
    root = node(id);
    if (!root)
        return;
    subtree.clear();
    collectSubtree(root, subtree);
    detachOutsiders(subtree);

    NodeImpl* parent = root->parentNode();
    if (m_changes) {
        const int at = parent->getIndexForChild(root);
        m_changes->add(std::make_unique<NodeChange>(NodeChange::Removed, parent->instanceId(),
                                                    at < 0 ? 0u : static_cast<unsigned int>(at), id,
                                                    NodeSnapshot::of(*root)));
    }
    markShape(parent->instanceId());
    if (root->kind() == NodeKind::Popup)
        static_cast<PartImpl*>(parent)->m_popup = nullptr;
    else
        parent->m_children.remove(root);

    std::vector<NodeImpl*> nodes;
    std::vector<std::pair<Node, Node>> reflections;
    nodes.reserve(subtree.size());
    for (const InstanceId each : subtree) {
        NodeImpl* doomed = node(each);
        nodes.push_back(doomed);
        dropFromSelection(doomed);
        if (isElement(doomed)) {
            auto* element = static_cast<ElementImpl*>(doomed);
            if (ElementImpl* original = element->reflectionOriginal())
                reflections.emplace_back(original, element);
            if (element->isReflection())
                m_document.m_registry->leaveReflection(element->m_reflects, each);
        }
        if (doomed->kind() == NodeKind::Popup)
            m_document.m_model->m_popups.erase(each);
        if (!m_document.m_danglingProxies.isEmpty()) {
            std::vector<std::pair<ClassId, NodeImpl::PropertyStore*>> stores;
            doomed->collectStores(stores);
            for (const auto& [domain, store] : stores) {
                for (const PropertyDefinition& definition : store->prototype->properties())
                    m_document.m_danglingProxies.remove({each, domain, definition.key});
            }
        }
    }
    for (NodeImpl* doomed : nodes)
        m_document.m_registry->leave(doomed);

    // From here on no command can reach the nodes any more.
    Q_EMIT parent->ChildRemoved(Node(parent), Node(root));
    for (const auto& [original, reflection] : reflections) {
        if (NodeImpl* shown = original.impl())
            Q_EMIT shown->ReflectionRemoved(original, reflection);
    }
    for (auto it = nodes.rbegin(); it != nodes.rend(); ++it) {
        NodeImpl* doomed = *it;
        switch (doomed->kind()) {
        case NodeKind::Part:
        case NodeKind::Subpart:
            Q_EMIT m_document.ElementRemoved(Element(static_cast<ElementImpl*>(doomed)));
            break;
        case NodeKind::Scene:
            Q_EMIT m_document.SceneRemoved(Scene(static_cast<SceneImpl*>(doomed)));
            break;
        case NodeKind::Popup:
            Q_EMIT m_document.PopupRemoved(Popup(static_cast<PopupImpl*>(doomed)));
            break;
        case NodeKind::Model:
        case NodeKind::Domain:
            break;
        }
    }
    for (auto it = nodes.rbegin(); it != nodes.rend(); ++it)
        delete *it;
}

void ModelMutator::detachOutsiders(const std::vector<InstanceId>& subtree)
{
    std::vector<PropertyAddress> followers;
    for (const InstanceId id : subtree) {
        std::vector<std::pair<ClassId, NodeImpl::PropertyStore*>> stores;
        node(id)->collectStores(stores);
        for (const auto& [domain, store] : stores) {
            for (const auto& [index, property] : store->objects) {
                if (!property->m_dependants || property->m_dependants->isEmpty())
                    continue;
                for (const PropertyImpl* follower : property->proxyDependants())
                    followers.push_back(follower->address());
            }
        }
    }
    if (followers.empty())
        return;
    const std::set<InstanceId> inside(subtree.begin(), subtree.end());
    for (const PropertyAddress& follower : followers) {
        if (!inside.contains(follower.node))
            detachProxy(follower);
    }
}

void ModelMutator::dropFromSelection(NodeImpl* node)
{
    if (!isElement(node) || m_document.m_selection.erase(static_cast<ElementImpl*>(node)) == 0)
        return;
    m_document.m_selectionIds.reset();
    m_document.m_selectionDirty = true;
}

void ModelMutator::moveNode(InstanceId id, unsigned int index)
{
    NodeImpl* moved = node(id);
    NodeImpl* parent = moved ? moved->parentNode() : nullptr;
    const int before = parent ? parent->getIndexForChild(moved) : -1;
    if (before < 0)
        return;
    index = std::min(index, parent->childCount() - 1);
    if (index == static_cast<unsigned int>(before))
        return;
    parent->m_children.remove(moved);
    parent->m_children.insert(index, moved);
    markShape(parent->instanceId());
    if (m_changes)
        m_changes->add(std::make_unique<MoveChange>(id, static_cast<unsigned int>(before), index));
    Q_EMIT m_document.nodeMoved(moved);
}

void ModelMutator::setLocks(InstanceId id, unsigned int locks)
{
    NodeImpl* found = node(id);
    if (!found || !isElement(found))
        return;
    auto* element = static_cast<ElementImpl*>(found);
    const unsigned int before = element->m_locks;
    if (before == locks)
        return;

    // Property objects in the element, and what can be edited through them.
    std::vector<std::pair<Property, bool>> affected;
    std::vector<InstanceId> subtree;
    collectSubtree(element, subtree);
    for (const InstanceId each : subtree) {
        for (const auto& [index, property] : node(each)->m_store.objects)
            affected.emplace_back(Property(property), property->userCanEdit());
    }
    for (size_t i = 0; i < affected.size(); ++i) {
        for (PropertyImpl* follower : affected[i].first.impl()->proxyDependants())
            affected.emplace_back(Property(follower), follower->userCanEdit());
    }

    element->m_locks = static_cast<unsigned char>(locks);
    markValue(id);
    if (m_changes)
        m_changes->add(std::make_unique<LocksChange>(id, before, locks));
    for (const auto& [handle, could] : affected) {
        if (PropertyImpl* property = handle.impl())
            property->emitUserCanEditIf(could);
    }
    if (NodeImpl* alive = node(id)) {
        Q_EMIT alive->LockedChanged();
        if (node(id))
            Q_EMIT m_document.nodeLocksChanged(alive);
    }
}

void ModelMutator::addResource(std::shared_ptr<const ResourceEntry> entry)
{
    const QString name = entry->name();
    if (m_document.m_resources.contains(name))
        return;
    m_document.m_resources.insert(name, entry);
    if (m_document.m_changeMarks)
        m_document.m_changeMarks->addResources();
    if (m_changes)
        m_changes->add(std::make_unique<ResourceChange>(std::move(entry), true));
    Q_EMIT m_document.resourcesChanged();
}

void ModelMutator::removeResource(const QString& name)
{
    const std::shared_ptr<const ResourceEntry> entry = m_document.m_resources.take(name);
    if (!entry)
        return;
    if (m_document.m_changeMarks)
        m_document.m_changeMarks->addResources();
    if (m_changes)
        m_changes->add(std::make_unique<ResourceChange>(entry, false));
    Q_EMIT m_document.resourcesChanged();
}

void ModelMutator::openStep(const LiveText& description)
{
    m_document.m_openStepPending = true;
    m_document.m_openStepDescription = description;
}
