#pragma once

#include "zkcore/base/export.h"

#include <QHash>
#include <QString>

class NodeImpl;
class NodePrototype;

/// What people call nodes, for lists of many: what a class is called takes longer to find than all the rest, and is
/// looked up once. To be made for one run through the nodes.
class ZKCORE_EXPORT NodeNames
{
public:
    /// The same as NodeImpl::displayName().
    QString of(const NodeImpl* node);
    /// The node's title, or else its id; empty when it has neither.
    static QString own(const NodeImpl* node);

private:
    QHash<const NodePrototype*, QString> m_classes;
};
