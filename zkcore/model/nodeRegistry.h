#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/model/elementImpl.h"

#include <QHash>
#include <QString>
#include <set>
#include <unordered_map>
#include <vector>

/// What a document looks nodes up by: instance id, "id" text, what reflects what, and which elements are connections.
class NodeRegistry
{
public:
    NodeImpl* byId(InstanceId id) const
    {
        if (id < m_dense.size())
            return m_dense[id];
        return m_sparse.empty() ? nullptr : bySparseId(id);
    }
    size_t count() const { return m_count; }
    InstanceId highestId() const;
    std::vector<NodeImpl*> all() const; ///< in no particular order

    /// The node has its values; nodes below it are entered by themselves.
    void enter(NodeImpl* node);
    void leave(NodeImpl* node);

    /// Ids of parts, scenes and pop-ups; those of subparts need to be unique among their siblings only.
    static bool hasRegisteredId(const NodeImpl* node) { return node->kind() != NodeKind::Subpart; }
    void enterTextId(const QString& text, InstanceId id);
    void leaveTextId(const QString& text, InstanceId id);
    /// The node that entered that text first, of those still there; 0 when there is none.
    InstanceId byTextId(const QString& text) const;
    QString freeTextId(const QString& prefix);

    void enterReflection(InstanceId original, InstanceId reflection);
    void leaveReflection(InstanceId original, InstanceId reflection);
    const std::vector<InstanceId>& reflectionsOf(InstanceId original) const;

    const std::set<InstanceId>& connections() const { return m_connections; }

private:
    NodeImpl* bySparseId(InstanceId id) const;

    // Ids are given out in order, so most files are dense; ids far beyond the number of nodes go into the hash.
    std::vector<NodeImpl*> m_dense{nullptr};
    std::unordered_map<InstanceId, NodeImpl*> m_sparse;
    QHash<QString, InstanceId> m_textIds; // who entered the text first
    QHash<QString, std::vector<InstanceId>>
        m_laterTextIds; // and who entered it later, for the few texts that are shared
    QHash<QString, unsigned int> m_nextNumber;
    QHash<InstanceId, std::vector<InstanceId>> m_reflections;
    std::set<InstanceId> m_connections;
    size_t m_count = 0;
};
