#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/instanceId.h"
#include "zkcore/base/propertyKey.h"

/// Names a property of a document across deletion and undo, which a pointer cannot.
struct PropertyAddress
{
    InstanceId node = 0;
    /// INVALID_CID for the node's own property, a domain's class id for a domain property held by a space.
    ClassId domain = INVALID_CID;
    PropertyKey key;

    bool isValid() const { return node != 0 && key.isValid(); }
    friend bool operator==(const PropertyAddress&, const PropertyAddress&) = default;
};
/// For hash tables by address.
inline size_t qHash(const PropertyAddress& a, size_t seed = 0)
{
    return qHashMulti(seed, a.node, a.domain, a.key.number());
}
