#include "zkcore/model/node.h"

#include "zkcore/model/handles.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/property.h"
#include "zkcore/values/value.h"

Node::Node(NodeImpl* impl)
    : m_impl(impl), m_serial(impl ? impl->serial() : 0), m_instanceId(impl ? impl->instanceId() : 0)
{
}

bool Node::valid() const
{
    return impl() != nullptr;
}

NodeImpl* Node::impl() const
{
    return NodeImpl::valid(m_impl) && m_impl->serial() == m_serial ? m_impl : nullptr;
}

ClassId Node::classId() const
{
    const NodeImpl* node = impl();
    return node ? node->classId() : INVALID_CID;
}

Model Node::getModel() const
{
    const NodeImpl* node = impl();
    return node ? Model(node->model()) : Model();
}

bool Node::hasProperty(PropertyKey key) const
{
    const NodeImpl* node = impl();
    return node && node->hasProperty(key);
}

Property Node::getProperty(PropertyKey key) const
{
    NodeImpl* node = impl();
    return node ? Property(node->getProperty(key)) : Property();
}

Value Node::valueOfProperty(PropertyKey key) const
{
    const NodeImpl* node = impl();
    return node ? node->valueOfProperty(key) : Value();
}
