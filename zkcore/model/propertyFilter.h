#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/property.h"

#include <vector>

/// Tells which properties another property may follow as a proxy.
class ZKCORE_EXPORT PropertyFilter
{
public:
    /// Accepts no property.
    PropertyFilter() = default;
    /// Accepts what `property` may follow: proxy targets of its type (INT and DOUBLE go together) that do not depend on
    /// it.
    explicit PropertyFilter(Property property);

    /// Whether a property of one type may follow one of another: INT and DOUBLE go together.
    static bool fits(Value::Type follower, Value::Type target);

    /// Whether nodes, not properties, are to be chosen (the property is of the NODE type).
    bool isNodeFilter() const;
    bool isOkay(const Property& candidate) const;
    /// Why a candidate is refused: one translated sentence; empty when it is accepted.
    QString reason(const Property& candidate) const;

private:
    Property m_property;
};
