#include "zkauthor/partRules.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/spaceImpl.h"

#include <algorithm>
#include <utility>

bool isSeenByReaders(const ElementImpl& element)
{
    static const PropertyKey beenRead = PropertyKey::fromString("been-read");
    const bool visible =
        !element.hasProperty(coreKeys::visible()) || element.valueOfProperty(coreKeys::visible()).toBool();
    return visible && !element.valueOfProperty(beenRead).toBool();
}

bool userMayChange(const ElementImpl& element, PropertyKey key)
{
    if (const PropertyImpl* property = element.existingProperty(key))
        return property->userCanEdit();
    const PropertyDefinition* definition = element.prototype().find(key);
    return definition && !(definition->flags & (PropertyDefinition::ReadOnly | PropertyDefinition::Computed));
}

ElementImpl* partInSpace(NodeImpl* node, const SpaceImpl* space)
{
    // What stands in a pop-up stands in that, not in the space of the part that owns it.
    while (node && node->parentNode() != space)
        node = node->kind() == NodeKind::Popup ? nullptr : node->parentNode();
    return node && node->kind() == NodeKind::Part ? static_cast<ElementImpl*>(node) : nullptr;
}

std::vector<ElementImpl*> selectedParts(const DocumentImpl& document, const SpaceImpl* space)
{
    std::vector<std::pair<int, ElementImpl*>> found;
    for (ElementImpl* element : document.getSelection()) {
        if (element->parentNode() == space && element->kind() == NodeKind::Part)
            found.emplace_back(space->getIndexForChild(element), element);
    }
    std::sort(found.begin(), found.end());
    std::vector<ElementImpl*> parts;
    parts.reserve(found.size());
    for (const auto& [index, element] : found)
        parts.push_back(element);
    return parts;
}
