#pragma once

#include "zkcore/base/export.h"
#include "zkcore/base/propertyKey.h"
#include "zkcore/model/lockGroup.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/value.h"

#include <QFlags>
#include <QString>
#include <memory>

namespace interface {
class Validator;
}

/// What a class says about one of its properties; shared by all nodes of the class.
struct ZKCORE_EXPORT PropertyDefinition
{
    enum Flag {
        NoFlags = 0,
        ReadOnly = 0x01,     ///< the user cannot edit it ("read-only")
        UIHidden = 0x02,     ///< widgets bound to it hide ("ui-hidden")
        Invisible = 0x04,    ///< not listed among the user's properties ("invisible")
        Transient = 0x08,    ///< neither saved nor recorded for undo ("transient")
        Computed = 0x10,     ///< its value is worked out by the program, commands cannot set it ("computed")
        Native = 0x20,       ///< the program itself reads it (position, size, id, ...) ("native")
        Style = 0x40,        ///< changes only the looks ("style")
        AlwaysNotify = 0x80, ///< setting the value it has already is notified too ("always-notify")
        ProxyTarget = 0x100, ///< other properties may follow it ("proxy-target")
        MutableProxy = 0x200 ///< as a proxy, writing to it writes to its target ("mutable-proxy")
    };
    Q_DECLARE_FLAGS(Flags, Flag)

    PropertyKey key;
    Value::Type type = Value::INVALID;
    Value defaultValue;
    Flags flags = NoFlags;
    /// What people call it, untranslated; empty when the key serves.
    QString label;
    /// One sentence that explains it, untranslated; for tool tips.
    QString help;
    /// The lock that keeps users from editing it.
    LockGroup lockGroup = LockPropertyValues;
    /// Never null for INT and DOUBLE (the full finite range at least); null for others when every value is allowed.
    std::shared_ptr<interface::Validator> validator;
    /// For INT, DOUBLE and POINT; null for others.
    std::shared_ptr<const NumericalFormat> format;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(PropertyDefinition::Flags)
