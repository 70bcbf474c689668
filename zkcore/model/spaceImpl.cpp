#include "zkcore/model/spaceImpl.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/propertyImpl.h"

SpaceImpl::SpaceImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id)
    : NodeImpl(document, prototype, id)
{
}

SpaceImpl::~SpaceImpl()
{
    for (const auto& [domain, domainStore] : m_domains) {
        for (const auto& [index, property] : domainStore.objects)
            delete property;
    }
}

const NodePrototype* SpaceImpl::domainPrototype(ClassId domain) const
{
    const NodePrototype* prototype = document()->getNodeDb()->lookupPrototype(domain);
    return prototype && prototype->kind == NodeKind::Domain ? prototype : nullptr;
}

NodeImpl::PropertyStore* SpaceImpl::store(ClassId domain)
{
    if (domain == INVALID_CID)
        return NodeImpl::store(domain);
    const auto it = m_domains.find(domain);
    if (it != m_domains.end())
        return &it->second;
    const NodePrototype* prototype = domainPrototype(domain);
    if (!prototype)
        return nullptr;
    PropertyStore& made = m_domains[domain];
    made.prototype = prototype;
    return &made;
}

void SpaceImpl::collectStores(std::vector<std::pair<ClassId, PropertyStore*>>& out)
{
    NodeImpl::collectStores(out);
    for (auto& [domain, domainStore] : m_domains)
        out.emplace_back(domain, &domainStore);
}

PropertyImpl* SpaceImpl::getProperty(Property::Key key, ClassId domain)
{
    if (domain == INVALID_CID)
        return getProperty(key);
    PropertyStore* domainStore = store(domain);
    const int index = domainStore ? domainStore->prototype->indexOf(key) : -1;
    return index < 0 ? nullptr : propertyIn(*domainStore, domain, index);
}

bool SpaceImpl::hasProperty(Property::Key key, ClassId domain) const
{
    if (domain == INVALID_CID)
        return hasProperty(key);
    const NodePrototype* prototype = domainPrototype(domain);
    return prototype && prototype->find(key);
}

Value SpaceImpl::valueOfProperty(Property::Key key, ClassId domain) const
{
    if (domain == INVALID_CID)
        return valueOfProperty(key);
    const NodePrototype* prototype = domainPrototype(domain);
    const int index = prototype ? prototype->indexOf(key) : -1;
    if (index < 0)
        return {};
    const auto it = m_domains.find(domain);
    if (it == m_domains.end())
        return prototype->properties()[static_cast<size_t>(index)].defaultValue;
    if (const PropertyImpl* property = it->second.object(index))
        return property->getValue();
    return resolved(it->second.value(index));
}

std::vector<ClassId> SpaceImpl::getKnownDomains() const
{
    return document()->getNodeDb()->domains();
}

std::vector<Property::Key> SpaceImpl::getPropertyKeys(ClassId domain) const
{
    if (domain == INVALID_CID)
        return propertyKeys();
    std::vector<Property::Key> keys;
    if (const NodePrototype* prototype = domainPrototype(domain)) {
        for (const PropertyDefinition& definition : prototype->properties())
            keys.push_back(definition.key);
    }
    return keys;
}

bool SpaceImpl::hasDomainValues(ClassId domain) const
{
    const auto it = m_domains.find(domain);
    return it != m_domains.end() && !it->second.values.empty();
}

std::vector<PartImpl*> SpaceImpl::parts() const
{
    std::vector<PartImpl*> result;
    result.reserve(childCount());
    for (NodeImpl* child : children()) {
        if (child->kind() == NodeKind::Part)
            result.push_back(static_cast<PartImpl*>(child));
    }
    return result;
}

SceneImpl::SceneImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id)
    : SpaceImpl(document, prototype, id)
{
}

SceneImpl::~SceneImpl() = default;

PopupImpl::PopupImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id)
    : SpaceImpl(document, prototype, id)
{
}

PopupImpl::~PopupImpl() = default;

PartImpl* PopupImpl::owner() const
{
    return static_cast<PartImpl*>(parentNode());
}
