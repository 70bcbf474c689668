#pragma once

#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/changeSet.h"
#include "zkcore/model/nodeSnapshot.h"
#include "zkcore/model/propertyAddress.h"
#include "zkcore/values/value.h"

/// Values set one after the other.
class ValuesChange : public Change
{
public:
    struct Entry
    {
        PropertyAddress address;
        Value before;
        Value after;
    };

    void add(const PropertyAddress& address, Value before, Value after);
    void undo(ModelMutator& mutator) override;
    void redo(ModelMutator& mutator) override;
    bool absorb(Change& next) override;

private:
    std::vector<Entry> m_entries;
};

/// A node made or removed; between undo and redo only the snapshot is there.
class NodeChange : public Change
{
public:
    enum Kind { Added, Removed };

    NodeChange(Kind kind, InstanceId parent, unsigned int index, InstanceId node, NodeSnapshot snapshot);
    void undo(ModelMutator& mutator) override;
    void redo(ModelMutator& mutator) override;

private:
    void make(ModelMutator& mutator);
    void remove(ModelMutator& mutator);

    Kind m_kind;
    InstanceId m_parent;
    unsigned int m_index;
    InstanceId m_node;
    NodeSnapshot m_snapshot;
};

class MoveChange : public Change
{
public:
    MoveChange(InstanceId node, unsigned int before, unsigned int after)
        : m_node(node), m_before(before), m_after(after)
    {
    }
    void undo(ModelMutator& mutator) override;
    void redo(ModelMutator& mutator) override;

private:
    InstanceId m_node;
    unsigned int m_before;
    unsigned int m_after;
};

/// A property that began or ceased to follow another. An invalid address stands for none.
class ProxyChange : public Change
{
public:
    ProxyChange(const PropertyAddress& address, const PropertyAddress& before, const PropertyAddress& after)
        : m_address(address), m_before(before), m_after(after)
    {
    }
    void undo(ModelMutator& mutator) override;
    void redo(ModelMutator& mutator) override;

private:
    PropertyAddress m_address;
    PropertyAddress m_before;
    PropertyAddress m_after;
};

class LocksChange : public Change
{
public:
    LocksChange(InstanceId element, unsigned int before, unsigned int after)
        : m_element(element), m_before(before), m_after(after)
    {
    }
    void undo(ModelMutator& mutator) override;
    void redo(ModelMutator& mutator) override;

private:
    InstanceId m_element;
    unsigned int m_before;
    unsigned int m_after;
};

class ResourceChange : public Change
{
public:
    ResourceChange(std::shared_ptr<const ResourceEntry> entry, bool added) : m_entry(std::move(entry)), m_added(added)
    {
    }
    void undo(ModelMutator& mutator) override;
    void redo(ModelMutator& mutator) override;

private:
    std::shared_ptr<const ResourceEntry> m_entry;
    bool m_added;
};
