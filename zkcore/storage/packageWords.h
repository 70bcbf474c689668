#pragma once

#include "zkcore/model/propertyDefinition.h"

#include <array>
#include <initializer_list>

/// The words of the package format that reader and writer share.
namespace packageWords {

struct FlagName
{
    const char* name;
    PropertyDefinition::Flag flag;
};

inline constexpr std::array flags = {FlagName{"read-only", PropertyDefinition::ReadOnly},
                                     FlagName{"ui-hidden", PropertyDefinition::UIHidden},
                                     FlagName{"invisible", PropertyDefinition::Invisible},
                                     FlagName{"transient", PropertyDefinition::Transient},
                                     FlagName{"computed", PropertyDefinition::Computed},
                                     FlagName{"native", PropertyDefinition::Native},
                                     FlagName{"style", PropertyDefinition::Style},
                                     FlagName{"always-notify", PropertyDefinition::AlwaysNotify},
                                     FlagName{"proxy-target", PropertyDefinition::ProxyTarget},
                                     FlagName{"mutable-proxy", PropertyDefinition::MutableProxy}};

/// In the order of NodeKind.
inline constexpr std::initializer_list<const char*> kinds = {"model", "scene", "popup", "part", "subpart", "domain"};
/// In the order of LockGroup.
inline constexpr std::initializer_list<const char*> locks = {"position", "size", "orientation", "values"};

} // namespace packageWords
