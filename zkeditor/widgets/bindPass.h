#pragma once

#include "zkeditor/export.h"

#include <QHash>
#include <QString>
#include <memory>
#include <set>
#include <vector>

class NodeImpl;

/// Stands while one form is bound to one set of nodes. What several observers of the form need of the same nodes is
/// worked out by the first that asks and kept here for the others. Passes nest: an inner one for the same set shares
/// what the outer one has, one for another set begins afresh.
class ZKEDITOR_EXPORT BindPass
{
public:
    using Nodes = std::vector<NodeImpl*>; // ordered by address, each once

    /// The set must stay as it is while the pass stands.
    explicit BindPass(const std::set<NodeImpl*>& nodes);
    ~BindPass();
    BindPass(const BindPass&) = delete;
    BindPass& operator=(const BindPass&) = delete;

    /// The innermost pass if it is for this very set; null when there is none.
    static const BindPass* current(const std::set<NodeImpl*>& nodes);

    /// The subparts that a selector chooses; null when nobody worked them out yet.
    std::shared_ptr<const Nodes> subparts(const QString& selector) const;
    void keepSubparts(const QString& selector, const std::shared_ptr<const Nodes>& nodes) const;

private:
    using Cache = QHash<QString, std::shared_ptr<const Nodes>>;

    const std::set<NodeImpl*>& m_nodes;
    size_t m_size;
    const BindPass* m_outer;
    std::shared_ptr<Cache> m_subparts;
};
