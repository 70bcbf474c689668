#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/export.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/propertyAddress.h"
#include "zkcore/values/value.h"

#include <QString>
#include <memory>
#include <vector>

/// Everything that makes a node and what is in it, without pointers into a document: what undo makes a deleted node
/// from, what the clipboard and drags carry, what a document file is read into.
struct ZKCORE_EXPORT NodeSnapshot
{
    struct ValueEntry
    {
        ClassId domain = INVALID_CID;
        PropertyKey key;
        Value value;
        PropertyAddress proxy; ///< valid when the property follows another; value is then what was last seen
    };

    ClassId cid = INVALID_CID;
    NodeKind kind = NodeKind::Part;
    InstanceId id = 0; ///< 0: a new one is given when the node is made
    unsigned int locks = 0;
    bool adhoc = true;
    InstanceId reflects = 0;
    ReflectionKind reflectionKind = ReflectionKind::None;
    QString unknownContent;
    std::vector<ValueEntry> values;
    std::vector<NodeSnapshot> children;
    std::unique_ptr<NodeSnapshot> popup;

    /// The number of nodes, itself and pop-ups included.
    size_t count() const;
    /// A deep copy with the ids replaced by the numbers from `firstFree` on. References that stay inside (proxies, node
    /// values, reflections) follow; references that lead outside stay as they are, or are dropped when they name one of
    /// those numbers, which no node of the document has.
    NodeSnapshot withFreshIds(InstanceId firstFree) const;
    /// The same for several nodes with references among them.
    static std::vector<NodeSnapshot> withFreshIds(const std::vector<NodeSnapshot>& nodes, InstanceId firstFree);
    /// A deep copy; snapshots can otherwise only be moved.
    NodeSnapshot copy() const;

    /// What a live node holds now.
    static NodeSnapshot of(const NodeImpl& node);
    /// A new node of a class with the subparts (and pop-up) that the class prescribes.
    static NodeSnapshot ofPrototype(class NodeDb& db, ClassId cid);
};
