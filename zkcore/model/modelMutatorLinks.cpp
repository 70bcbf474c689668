// What the mutator does about properties that follow others.
#include "zkcore/model/modelMutator.h"

#include "zkcore/model/changeMarks.h"
#include "zkcore/model/changes.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeRegistry.h"
#include "zkcore/model/propertyImpl.h"

#include <algorithm>
#include <utility>

void ModelMutator::linkProxies(const Built& built)
{
    for (const auto& [node, entry] : built.links) {
        const PropertyAddress address{node, entry.domain, entry.key};
        PropertyImpl* property = m_document.propertyAt(address);
        PropertyImpl* target = m_document.propertyAt(entry.proxy);
        // What is read, or made again by undo, is known to hold no circle; walking long chains each time would be slow.
        if (!m_changes && property && target && target != property) {
            link(*property, *target);
            continue;
        }
        if (!property)
            continue;
        if (m_changes)
            m_added.emplace_back(address, entry.proxy);
        else
            keepDangling(address, entry.proxy);
        NodeImpl::PropertyStore* store = property->m_owner->store(entry.domain);
        if (entry.value.type() == property->type())
            store->setValue(store->prototype->indexOf(entry.key), entry.value);
    }
}

void ModelMutator::linkAdded()
{
    // What a slot adds meanwhile has a mutator of its own.
    const std::vector<std::pair<PropertyAddress, PropertyAddress>> added = std::exchange(m_added, {});
    for (const auto& [address, target] : added) {
        const PropertyImpl* property = m_document.propertyAt(address);
        PropertyImpl* subject = m_document.propertyAt(target);
        if (property && subject && !property->isComputed() &&
            property->acceptableProxyTypes().isOkay(Property(subject)))
            setProxy(address, target);
    }
}

void ModelMutator::keepDangling(const PropertyAddress& address, const PropertyAddress& target)
{
    m_document.m_danglingProxies.insert(address, target);
    // No new node may come to be what is meant. So many are never made that higher ids are reached.
    constexpr InstanceId leastNeverReached = 0x80000000;
    if (target.node < leastNeverReached)
        m_document.m_nextId = std::max(m_document.m_nextId, target.node + 1);
}

void ModelMutator::setProxy(const PropertyAddress& address, const PropertyAddress& target)
{
    PropertyImpl* property = m_document.propertyAt(address);
    PropertyImpl* subject = m_document.propertyAt(target);
    if (!property || !subject || property == subject || property->proxySubject() == subject ||
        subject->isProxyDependantOn(property))
        return;
    const PropertyAddress before = property->isProxy() ? property->proxySubject()->address() : PropertyAddress();
    if (m_changes)
        m_changes->add(std::make_unique<ProxyChange>(address, before, target));
    markShape(address.node);
    const Property handle(property);
    if (property->isProxy())
        unlink(*property);
    link(*property, *subject);
    // While it follows, its own value does not count; cleared, it is not saved either.
    setValue(address, property->definition().defaultValue);
    property->notifyValueChanged();
    if (PropertyImpl* alive = handle.impl()) {
        Q_EMIT m_document.nodeValueChanged(alive->owner(), address.key);
        if (handle.isValid())
            Q_EMIT alive->ProxyTargetChanged(handle);
    }
    if (handle.isValid())
        Q_EMIT property->userCanEditChanged();
}

void ModelMutator::detachProxy(const PropertyAddress& address)
{
    PropertyImpl* property = m_document.propertyAt(address);
    if (!property || !property->isProxy())
        return;
    const PropertyAddress before = property->proxySubject()->address();
    if (m_changes) {
        setValue(address, property->getValue()); // silent while it still follows
        m_changes->add(std::make_unique<ProxyChange>(address, before, PropertyAddress()));
    }
    const Value seen = property->getValue();
    markShape(address.node);
    unlink(*property);
    const Property handle(property);
    if (!(property->getValue() == seen)) {
        property->notifyValueChanged();
        if (PropertyImpl* alive = handle.impl())
            Q_EMIT m_document.nodeValueChanged(alive->owner(), address.key);
    }
    if (handle.isValid())
        Q_EMIT property->ProxyTargetChanged(handle);
    if (handle.isValid())
        Q_EMIT property->userCanEditChanged();
}

void ModelMutator::link(PropertyImpl& property, PropertyImpl& target)
{
    property.m_proxy = &target;
    if (!target.m_dependants)
        target.m_dependants = std::make_unique<QSet<PropertyImpl*>>();
    target.m_dependants->insert(&property);
}

void ModelMutator::unlink(PropertyImpl& property)
{
    property.m_proxy->m_dependants->remove(&property);
    property.m_proxy = nullptr;
}
