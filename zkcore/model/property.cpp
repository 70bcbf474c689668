#include "zkcore/model/property.h"

#include "zkcore/model/node.h"
#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/propertyImpl.h"

Property::Property(PropertyImpl* impl) : m_impl(impl), m_serial(impl ? impl->serial() : 0) {}

bool Property::isValid() const
{
    return impl() != nullptr;
}

PropertyImpl* Property::impl() const
{
    return PropertyImpl::valid(m_impl) && m_impl->serial() == m_serial ? m_impl : nullptr;
}

Value Property::getValue() const
{
    const PropertyImpl* property = impl();
    return property ? property->getValue() : Value();
}

Value::Type Property::type() const
{
    const PropertyImpl* property = impl();
    return property ? property->type() : Value::INVALID;
}

Property::Key Property::key() const
{
    const PropertyImpl* property = impl();
    return property ? property->key() : Key();
}

Node Property::owner() const
{
    const PropertyImpl* property = impl();
    return property ? Node(property->owner()) : Node();
}

Formatter* Property::getFormatter() const
{
    const PropertyImpl* property = impl();
    return property ? property->getFormatter() : nullptr;
}

bool Property::connectValueChanged(QObject* receiver, const char* slot) const
{
    PropertyImpl* property = impl();
    return property && receiver && QObject::connect(property, SIGNAL(ValueChanged(Property, Value)), receiver, slot);
}

bool Property::disconnectValueChanged(QObject* receiver, const char* slot) const
{
    PropertyImpl* property = impl();
    return property && receiver && QObject::disconnect(property, SIGNAL(ValueChanged(Property, Value)), receiver, slot);
}
