#pragma once

#include "zkcore/base/export.h"
#include "zkcore/base/propertyKey.h"

/// The property keys that the program itself reads.
namespace coreKeys {
ZKCORE_EXPORT PropertyKey id();
ZKCORE_EXPORT PropertyKey title();
ZKCORE_EXPORT PropertyKey position();
ZKCORE_EXPORT PropertyKey size();
ZKCORE_EXPORT PropertyKey orientation();
ZKCORE_EXPORT PropertyKey orientationConstraint();
ZKCORE_EXPORT PropertyKey visible();
ZKCORE_EXPORT PropertyKey roles();
ZKCORE_EXPORT PropertyKey open();
ZKCORE_EXPORT PropertyKey from();
ZKCORE_EXPORT PropertyKey to();
} // namespace coreKeys
