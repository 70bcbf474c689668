#include "zkeditor/duplication.h"

#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeSnapshot.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

/// Whether an end of a connection stands in one of the parts.
bool endsIn(const Value& end, const std::set<InstanceId>& parts)
{
    const NodeImpl* node = end.toNode().impl();
    while (node && !parts.contains(node->instanceId()))
        node = node->parentNode();
    return node;
}

void moveCopy(NodeSnapshot& node, const ElementImpl& original, zk::Point offset)
{
    if (isConnection(original))
        return;
    const zk::Point old = original.position();
    std::erase_if(node.values, [](const NodeSnapshot::ValueEntry& entry) {
        return entry.key == coreKeys::position() && entry.domain == INVALID_CID;
    });
    node.values.push_back(
        {INVALID_CID, coreKeys::position(), Value(zk::Point{old.x + offset.x, old.y + offset.y}), {}});
}

} // namespace

bool isConnection(const ElementImpl& element)
{
    return isConnection(element.prototype());
}

bool isConnection(const NodePrototype& prototype)
{
    static const ClassId connection = getCidForString("core/connection");
    return prototype.instanceOf(connection);
}

std::map<InstanceId, std::vector<const ElementImpl*>> partsToCopy(const DocumentImpl& document)
{
    std::set<InstanceId> ids;
    std::map<InstanceId, std::vector<std::pair<int, const ElementImpl*>>> found;
    const auto add = [&found](const ElementImpl* element) {
        const NodeImpl* space = element->parentNode();
        found[space->instanceId()].emplace_back(space->getIndexForChild(element), element);
    };
    for (const ElementImpl* element : document.getSelection()) {
        if (element->kind() == NodeKind::Part && !isConnection(*element)) {
            ids.insert(element->instanceId());
            add(element);
        }
    }
    for (const ElementImpl* connection : document.connectionsAt(ids)) {
        if (endsIn(connection->valueOfProperty(coreKeys::from()), ids) &&
            endsIn(connection->valueOfProperty(coreKeys::to()), ids) &&
            found.contains(connection->parentNode()->instanceId()))
            add(connection);
    }
    std::map<InstanceId, std::vector<const ElementImpl*>> parts;
    for (auto& [space, elements] : found) {
        std::sort(elements.begin(), elements.end());
        for (const auto& [index, element] : elements)
            parts[space].push_back(element);
    }
    return parts;
}

bool duplicateSelectedParts(DocumentImpl& document, int count, zk::Point offset)
{
    bool first = true;
    ElementImplSet copies;
    for (const auto& [space, originals] : partsToCopy(document)) {
        std::vector<NodeSnapshot> pattern;
        size_t nodes = 0;
        for (const ElementImpl* original : originals) {
            pattern.push_back(NodeSnapshot::of(*original));
            nodes += pattern.back().count();
        }
        // Every copy gets numbers of its own, so that its connections end at its own parts and not at another copy's.
        std::vector<NodeSnapshot> all;
        all.reserve(pattern.size() * static_cast<size_t>(count));
        InstanceId free = document.nextFreeId();
        for (int i = 1; i <= count; ++i) {
            std::vector<NodeSnapshot> copy = NodeSnapshot::withFreshIds(pattern, free);
            free += static_cast<InstanceId>(nodes);
            for (size_t j = 0; j < copy.size(); ++j) {
                moveCopy(copy[j], *originals[j], {offset.x * i, offset.y * i});
                all.push_back(std::move(copy[j]));
            }
        }
        const Value added =
            document.executeCommand(new AddNodesCommand(document.nodeById(space), std::move(all), ~0u, first));
        if (!added.isValid())
            return false;
        first = false;
        for (const Value& value : added.toValueVector()) {
            auto* element = qobject_cast<ElementImpl*>(value.toNode().impl());
            if (element && !isConnection(*element))
                copies.insert(element);
        }
    }
    if (first)
        return false;
    document.setSelection(copies);
    return true;
}
