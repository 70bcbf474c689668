#pragma once

#include "zkcore/base/instanceId.h"

class DocumentImpl;
class NodeImpl;
class NodePrototype;

/// Makes the object that implements a node of a class.
class NodeFactory
{
public:
    /// Owned by the caller; null for a domain, which is no node.
    static NodeImpl* make(DocumentImpl* document, const NodePrototype* prototype, InstanceId id);
};
