#include "zkcore/model/changes.h"

#include "zkcore/model/modelMutator.h"

#include <algorithm>

Change::~Change() = default;

bool Change::absorb(Change&)
{
    return false;
}

ChangeSet::ChangeSet() = default;
ChangeSet::~ChangeSet() = default;

void ChangeSet::add(std::unique_ptr<Change> change)
{
    m_changes.push_back(std::move(change));
}

void ChangeSet::append(ChangeSet&& other)
{
    for (std::unique_ptr<Change>& change : other.m_changes) {
        if (m_changes.empty() || !m_changes.back()->absorb(*change))
            m_changes.push_back(std::move(change));
    }
    other.m_changes.clear();
}

void ChangeSet::rollBack(ModelMutator& mutator, size_t start)
{
    while (m_changes.size() > start) {
        const std::unique_ptr<Change> change = std::move(m_changes.back());
        m_changes.pop_back();
        change->undo(mutator);
    }
}

void ChangeSet::undo(ModelMutator& mutator)
{
    for (auto it = m_changes.rbegin(); it != m_changes.rend(); ++it)
        (*it)->undo(mutator);
}

void ChangeSet::redo(ModelMutator& mutator)
{
    for (const std::unique_ptr<Change>& change : m_changes)
        change->redo(mutator);
}

void ValuesChange::add(const PropertyAddress& address, Value before, Value after)
{
    m_entries.push_back({address, std::move(before), std::move(after)});
}

void ValuesChange::undo(ModelMutator& mutator)
{
    for (auto it = m_entries.rbegin(); it != m_entries.rend(); ++it)
        mutator.setValue(it->address, it->before);
}

void ValuesChange::redo(ModelMutator& mutator)
{
    for (const Entry& entry : m_entries)
        mutator.setValue(entry.address, entry.after);
}

bool ValuesChange::absorb(Change& next)
{
    auto* values = dynamic_cast<ValuesChange*>(&next);
    if (!values || !std::equal(m_entries.begin(), m_entries.end(), values->m_entries.begin(), values->m_entries.end(),
                               [](const Entry& a, const Entry& b) { return a.address == b.address; }))
        return false;
    // One property may stand in the list more than once; then only the whole sequence tells what happened.
    for (size_t i = 0; i < m_entries.size(); ++i) {
        if (!(m_entries[i].after == values->m_entries[i].before))
            return false;
    }
    for (size_t i = 0; i < m_entries.size(); ++i)
        m_entries[i].after = std::move(values->m_entries[i].after);
    return true;
}

NodeChange::NodeChange(Kind kind, InstanceId parent, unsigned int index, InstanceId node, NodeSnapshot snapshot)
    : m_kind(kind), m_parent(parent), m_index(index), m_node(node), m_snapshot(std::move(snapshot))
{
}

void NodeChange::undo(ModelMutator& mutator)
{
    if (m_kind == Added)
        remove(mutator);
    else
        make(mutator);
}

void NodeChange::redo(ModelMutator& mutator)
{
    if (m_kind == Added)
        make(mutator);
    else
        remove(mutator);
}

void NodeChange::make(ModelMutator& mutator)
{
    mutator.addNode(m_parent, m_index, m_snapshot);
    m_snapshot = NodeSnapshot();
}

void NodeChange::remove(ModelMutator& mutator)
{
    if (const NodeImpl* node = mutator.node(m_node))
        m_snapshot = NodeSnapshot::of(*node);
    mutator.removeNode(m_node);
}

void MoveChange::undo(ModelMutator& mutator)
{
    mutator.moveNode(m_node, m_before);
}

void MoveChange::redo(ModelMutator& mutator)
{
    mutator.moveNode(m_node, m_after);
}

void ProxyChange::undo(ModelMutator& mutator)
{
    if (m_before.isValid())
        mutator.setProxy(m_address, m_before);
    else
        mutator.detachProxy(m_address);
}

void ProxyChange::redo(ModelMutator& mutator)
{
    if (m_after.isValid())
        mutator.setProxy(m_address, m_after);
    else
        mutator.detachProxy(m_address);
}

void LocksChange::undo(ModelMutator& mutator)
{
    mutator.setLocks(m_element, m_before);
}

void LocksChange::redo(ModelMutator& mutator)
{
    mutator.setLocks(m_element, m_after);
}

void ResourceChange::undo(ModelMutator& mutator)
{
    if (m_added)
        mutator.removeResource(m_entry->name());
    else
        mutator.addResource(m_entry);
}

void ResourceChange::redo(ModelMutator& mutator)
{
    if (m_added)
        mutator.addResource(m_entry);
    else
        mutator.removeResource(m_entry->name());
}
