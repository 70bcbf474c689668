#pragma once

#include "zkcore/base/export.h"
#include "zkcore/base/propertyKey.h"
#include "zkcore/values/value.h"

#include <QMetaType>

class Formatter;
class Node;
class PropertyImpl;
class QObject;

/// A light handle to a property, copied by value. A handle to a property of a deleted node is invalid.
class ZKCORE_EXPORT Property
{
public:
    using Key = PropertyKey;

    Property() = default;
    Property(PropertyImpl* impl); // NOLINT: implicit, handles stand in for pointers

    bool isValid() const;
    /// Null when the property is not alive any more.
    PropertyImpl* impl() const;

    /// Invalid value for an invalid handle.
    Value getValue() const;
    Value::Type type() const;
    Key key() const;
    /// The node that has the property; for a domain property the space that holds it.
    Node owner() const;
    /// Null when the property has none.
    Formatter* getFormatter() const;

    /// Connects a slot (SLOT(onSpeedChanged()), say) to ValueChanged(Property, Value).
    bool connectValueChanged(QObject* receiver, const char* slot) const;
    bool disconnectValueChanged(QObject* receiver, const char* slot) const;

    static Key getKeyForString(const char* text) { return Key::fromString(text); }
    static Key getKeyForString(const QString& text) { return Key::fromString(text); }
    static QString getStringForKey(Key key) { return key.toString(); }

    friend bool operator==(const Property& a, const Property& b)
    {
        return a.m_impl == b.m_impl && a.m_serial == b.m_serial;
    }

private:
    PropertyImpl* m_impl = nullptr;
    unsigned long long m_serial = 0;
};

Q_DECLARE_METATYPE(Property)
