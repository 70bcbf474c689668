#pragma once

#include "zkcore/base/export.h"
#include "zkcore/values/unit.h"

#include <vector>

/// Units that the user likes best, most liked first. A formatter made from now on begins with the first of them that
/// its property offers; without one it begins as its class says. Formatters made before stay as they are until
/// DocumentImpl::followPreferredUnits().
ZKCORE_EXPORT void setPreferredUnits(const std::vector<Unit>& units);
ZKCORE_EXPORT const std::vector<Unit>& preferredUnits(); ///< as they were set
