#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/changeSet.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeSnapshot.h"
#include "zkcore/model/propertyAddress.h"

#include <memory>
#include <vector>

class Command;
class NodePrototype;
class ValuesChange;

/// The one place through which a document's contents change. Every operation does one thing, notes how to take it back,
/// and sends the notifications. Left without commit() it takes back what was done through it: a failed command leaves
/// no trace.
///
/// A mutator made while another is at work (a command executed by a slot) writes into the other's set of changes.
class ZKCORE_EXPORT ModelMutator
{
public:
    /// Notes changes for undo.
    explicit ModelMutator(DocumentImpl& document);
    ~ModelMutator();
    ModelMutator(const ModelMutator&) = delete;
    ModelMutator& operator=(const ModelMutator&) = delete;

    DocumentImpl& document() const { return m_document; }
    NodeImpl* node(InstanceId id) const { return m_document.nodeById(id); }

    /// Stores a value of the property's type in the property itself (proxies are not followed) and notifies when it
    /// changed, or when the property always notifies. Transient properties are not noted. Whether it changed.
    bool setValue(const PropertyAddress& address, const Value& value);
    /// Makes a node, with all that is in it, below a parent and gives it; ids of 0 are replaced by new ones, in the
    /// snapshot too. Null when the parent is gone or an id is taken. A snapshot of a pop-up becomes the part's pop-up.
    /// What the new properties follow is linked by commit(), when all nodes are there; what they may not follow they do
    /// not.
    NodeImpl* addNode(InstanceId parent, unsigned int index, NodeSnapshot& snapshot);
    /// Takes a node out with all that is in it and destroys it. Properties elsewhere that follow one of its are
    /// detached.
    void removeNode(InstanceId id);
    void moveNode(InstanceId id, unsigned int index);
    void setProxy(const PropertyAddress& address, const PropertyAddress& target);
    /// The property keeps the value last seen.
    void detachProxy(const PropertyAddress& address);
    void setLocks(InstanceId element, unsigned int locks);
    void addResource(std::shared_ptr<const ResourceEntry> entry);
    void removeResource(const QString& name);
    /// Changes that follow with the undo flag off make a step of their own under this description.
    void openStep(const LiveText& description);

    /// The first of `count` instance ids that are not used; 0 when there are not so many.
    InstanceId takeIds(size_t count);

    /// Keeps what was done; the outermost mutator hands the changes to the undo history.
    void commit(const Command& command);
    void rollBack();

private:
    friend class UndoStep;
    friend class DocumentImpl;
    struct Raw
    {
    };

    /// For undo, redo and loading: notes nothing.
    ModelMutator(DocumentImpl& document, Raw);

    /// What is left to do when all nodes of a snapshot are there.
    struct Built
    {
        struct Link
        {
            InstanceId node;
            NodeSnapshot::ValueEntry entry;
        };
        std::vector<InstanceId> ids;
        std::vector<Link> links; // what follows another property
    };

    /// A snapshot that is not const is emptied on the way: then a large document stands in memory once only.
    template <typename Snapshot> NodeImpl* build(NodeImpl* parent, Snapshot& snapshot, Built& built);
    NodeImpl* buildAlone(NodeImpl* parent, const NodeSnapshot& snapshot, Built& built);
    void fillValues(NodeImpl& node, const NodeSnapshot& snapshot, Built& built);
    void linkProxies(const Built& built);
    void linkAdded();
    void keepDangling(const PropertyAddress& address, const PropertyAddress& target);
    void attach(NodeImpl& parent, unsigned int index, NodeImpl* node);
    void giveMissingIds(NodeSnapshot& snapshot);
    bool idsAreFree(const NodeSnapshot& snapshot) const;
    void announceAdded(const std::vector<InstanceId>& ids);
    void detachOutsiders(const std::vector<InstanceId>& subtree);
    void link(PropertyImpl& property, PropertyImpl& target);
    void unlink(PropertyImpl& property);
    void noteValue(const PropertyAddress& address, Value before, Value after);
    /// An orientation that may be, or may no more be, edited.
    void tellOrientationEditability(const NodeImpl& owner);
    void dropFromSelection(NodeImpl* node);

    DocumentImpl& m_document;
    std::unique_ptr<ChangeSet> m_own; // of the outermost mutator
    ChangeSet* m_changes = nullptr;   // null: notes nothing
    size_t m_start = 0;
    std::vector<std::pair<PropertyAddress, PropertyAddress>> m_added; // what is to follow what
    std::shared_ptr<const std::vector<InstanceId>> m_selectionBefore;
    ValuesChange* m_valueBatch = nullptr;
    bool m_outermost = false;
    bool m_done = false;

    // Properties of one class are usually set one after the other.
    const NodePrototype* m_lastPrototype = nullptr;
    PropertyKey m_lastKey;
    int m_lastIndex = -1;
};
