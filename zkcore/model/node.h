#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/export.h"
#include "zkcore/base/instanceId.h"
#include "zkcore/base/propertyKey.h"

#include <QMetaType>

class Model;
class NodeImpl;
class Property;
class Value;

/// A light handle to a node, copied by value. A handle to a deleted node is invalid for ever, also when undo makes the
/// node again (that is another object under the same instance id).
class ZKCORE_EXPORT Node
{
public:
    Node() = default;
    /// Wraps a live node; null gives the invalid handle.
    Node(NodeImpl* impl); // NOLINT: implicit, handles stand in for pointers

    /// Whether the node is alive.
    bool valid() const;
    /// The node, null when it is not alive any more.
    NodeImpl* impl() const;

    /// INVALID_CID for an invalid handle.
    ClassId classId() const;
    /// The instance id the handle was made with, also when the node is gone; 0 for the default handle.
    InstanceId instanceId() const { return m_instanceId; }
    Model getModel() const;
    bool hasProperty(PropertyKey key) const;
    /// Invalid handle when the node or the property is absent.
    Property getProperty(PropertyKey key) const;
    /// Invalid value when the node or the property is absent.
    Value valueOfProperty(PropertyKey key) const;

    /// Two handles are equal when they name the same object.
    friend bool operator==(const Node& a, const Node& b) { return a.m_impl == b.m_impl && a.m_serial == b.m_serial; }

private:
    NodeImpl* m_impl = nullptr;
    unsigned long long m_serial = 0;
    InstanceId m_instanceId = 0;
};

Q_DECLARE_METATYPE(Node)
