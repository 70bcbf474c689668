#include "zkcore/model/nodeImpl.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeNames.h"
#include "zkcore/model/objectSlab.h"
#include "zkcore/model/propertyImpl.h"

#include <algorithm>

namespace {

ObjectSlab& nodeSlab()
{
    static ObjectSlab slab;
    return slab;
}

unsigned long long nextNodeSerial = 0;

template <typename T> auto findByIndex(T& entries, int index)
{
    return std::lower_bound(entries.begin(), entries.end(), index,
                            [](const auto& entry, int wanted) { return entry.first < wanted; });
}

} // namespace

NodeImpl::NodeImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id)
    : m_document(document), m_serial(++nextNodeSerial), m_instanceId(id)
{
    m_store.prototype = prototype;
    nodeSlab().setAlive(this, true);
}

NodeImpl::~NodeImpl()
{
    nodeSlab().setAlive(this, false);
    for (const auto& [index, property] : m_store.objects)
        delete property;
}

bool NodeImpl::valid(const NodeImpl* node)
{
    return nodeSlab().isAlive(node);
}

void* NodeImpl::operator new(size_t size)
{
    return nodeSlab().allocate(size);
}

void NodeImpl::operator delete(void* memory)
{
    nodeSlab().release(memory);
}

SpaceImpl* NodeImpl::space()
{
    for (NodeImpl* node = this; node; node = node->m_parent) {
        if (node->kind() == NodeKind::Scene || node->kind() == NodeKind::Popup)
            return static_cast<SpaceImpl*>(node);
    }
    return nullptr;
}

ModelImpl* NodeImpl::model() const
{
    return m_document->getModel();
}

PropertyImpl* NodeImpl::getProperty(Property::Key key)
{
    const int index = m_store.prototype->indexOf(key);
    return index < 0 ? nullptr : propertyIn(m_store, INVALID_CID, index);
}

PropertyImpl* NodeImpl::existingProperty(Property::Key key) const
{
    const int index = m_store.prototype->indexOf(key);
    return index < 0 ? nullptr : m_store.object(index);
}

Value NodeImpl::valueOfProperty(Property::Key key) const
{
    const int index = m_store.prototype->indexOf(key);
    if (index < 0)
        return {};
    if (const PropertyImpl* property = m_store.object(index); property && property->isProxy())
        return property->getValue();
    return resolved(m_store.value(index));
}

std::vector<Property::Key> NodeImpl::propertyKeys() const
{
    std::vector<Property::Key> keys;
    keys.reserve(m_store.prototype->properties().size());
    for (const PropertyDefinition& definition : m_store.prototype->properties())
        keys.push_back(definition.key);
    return keys;
}

bool NodeImpl::hasOwnValue(Property::Key key) const
{
    const int index = m_store.prototype->indexOf(key);
    const auto it = findByIndex(m_store.values, index);
    return index >= 0 && it != m_store.values.end() && it->first == index;
}

int NodeImpl::getIndexForChild(const NodeImpl* child) const
{
    return child && child->m_parent == this ? m_children.indexOf(child) : -1;
}

QString NodeImpl::displayName() const
{
    if (const QString own = NodeNames::own(this); !own.isEmpty())
        return own;
    const QString label = m_document->getMetaLabelForCID(classId());
    return label.isEmpty() ? findStringForCid(classId()) : label;
}

LiveText NodeImpl::liveDisplayName() const
{
    if (const QString own = NodeNames::own(this); !own.isEmpty())
        return [own] { return own; };
    const QString& label = prototype().label;
    return liveStringFromContext(*this, label.isEmpty() ? findStringForCid(classId()) : label);
}

QString NodeImpl::unknownContent() const
{
    return m_unknown ? *m_unknown : QString();
}

NodeImpl::PropertyStore* NodeImpl::store(ClassId domain)
{
    return domain == INVALID_CID ? &m_store : nullptr;
}

void NodeImpl::collectStores(std::vector<std::pair<ClassId, PropertyStore*>>& out)
{
    out.emplace_back(INVALID_CID, &m_store);
}

PropertyImpl* NodeImpl::propertyIn(PropertyStore& store, ClassId domain, int index)
{
    const auto it = findByIndex(store.objects, index);
    if (it != store.objects.end() && it->first == index)
        return it->second;
    auto* property = new PropertyImpl(this, domain, &store.prototype->properties()[static_cast<size_t>(index)]);
    store.objects.emplace(it, index, property);
    return property;
}

Value NodeImpl::resolved(const Value& stored) const
{
    // Nodes and the document's own resources are stored by name; what the name stands for may come and go.
    switch (stored.type()) {
    case Value::NODE: {
        NodeImpl* node = stored.toNode().valid() ? nullptr : m_document->nodeById(stored.toInstanceId());
        return node ? Value(Node(node)) : stored;
    }
    case Value::RESOURCE: {
        const Resource resource = stored.toResource();
        return resource.isValid() || resource.isNull() ? stored : Value(m_document->resource(resource.toString()));
    }
    case Value::RESOURCEVECTOR: {
        std::vector<Resource> resources = stored.toResourceVector();
        for (Resource& resource : resources) {
            if (!resource.isValid() && !resource.isNull())
                resource = m_document->resource(resource.toString());
        }
        return Value(resources);
    }
    default:
        return stored;
    }
}

const Value& NodeImpl::PropertyStore::value(int index) const
{
    const auto it = findByIndex(values, index);
    if (it != values.end() && it->first == index)
        return it->second;
    return prototype->properties()[static_cast<size_t>(index)].defaultValue;
}

bool NodeImpl::PropertyStore::setValue(int index, const Value& value)
{
    const auto it = findByIndex(values, index);
    const bool own = it != values.end() && it->first == index;
    if (value == prototype->properties()[static_cast<size_t>(index)].defaultValue) {
        if (own)
            values.erase(it);
        return own;
    }
    if (!own) {
        values.emplace(it, index, value);
        return true;
    }
    if (it->second == value)
        return false;
    it->second = value;
    return true;
}

PropertyImpl* NodeImpl::PropertyStore::object(int index) const
{
    const auto it = findByIndex(objects, index);
    return it != objects.end() && it->first == index ? it->second : nullptr;
}
