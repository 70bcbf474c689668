#pragma once

#include "zkcore/base/export.h"

#include <memory>
#include <vector>

class ModelMutator;

/// One thing that was done to a document, named by instance ids, that can be taken back and done again.
class Change
{
public:
    virtual ~Change();
    virtual void undo(ModelMutator& mutator) = 0;
    virtual void redo(ModelMutator& mutator) = 0;
    /// Takes in the change that came right after this one, when both are better told as one. Whether it did.
    virtual bool absorb(Change& next);
};

/// Changes in the order in which they were made.
class ZKCORE_EXPORT ChangeSet
{
public:
    ChangeSet();
    ~ChangeSet();

    bool empty() const { return m_changes.empty(); }
    size_t size() const { return m_changes.size(); }
    void add(std::unique_ptr<Change> change);
    Change* last() const { return m_changes.empty() ? nullptr : m_changes.back().get(); }
    /// Appends the other's changes; changes of one gesture to the same properties become one.
    void append(ChangeSet&& other);
    /// Takes back the changes from the one at `start` on, last first, and forgets them.
    void rollBack(ModelMutator& mutator, size_t start);
    void undo(ModelMutator& mutator);
    void redo(ModelMutator& mutator);

private:
    std::vector<std::unique_ptr<Change>> m_changes;
};
