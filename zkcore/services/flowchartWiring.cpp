// Finds the charts of a document.
#include "zkcore/services/flowchartWiring.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/services/flowchartKeys.h"

namespace {

const Role& inputRole()
{
    static const Role role(QStringLiteral("input"));
    return role;
}

bool isWayIn(const NodeImpl& pin)
{
    return pin.valueOfProperty(flowchartKeys().direction).toQString() != QLatin1String("out");
}

} // namespace

FlowchartWiring::FlowchartWiring(const DocumentImpl& document)
{
    std::vector<std::pair<SpaceImpl*, bool>> spaces;
    for (SceneImpl* scene : document.getModel()->getScenes())
        spaces.emplace_back(scene, false);
    // Pop-ups are appended while the spaces before them are looked through.
    for (size_t i = 0; i < spaces.size(); ++i) {
        const auto [space, called] = spaces[i];
        addSpace(document, *space, called, spaces);
    }
}

void FlowchartWiring::addSpace(const DocumentImpl& document, SpaceImpl& space, bool called,
                               std::vector<std::pair<SpaceImpl*, bool>>& more)
{
    const FlowchartKeys& keys = flowchartKeys();
    for (PartImpl* part : space.parts()) {
        if (part->instanceOf(keys.start)) {
            if (!called)
                m_starts.push_back(part->instanceId());
            else if (!m_startOfPopup.contains(space.instanceId()))
                m_startOfPopup.insert(space.instanceId(), part->instanceId());
        } else if (part->instanceOf(keys.link)) {
            addLink(document, *part);
        } else if (part->hasProperty(keys.runningLevel)) {
            const QString name = part->valueOfProperty(keys.outputName).toQString();
            if (!name.isEmpty()) {
                m_components[name].push_back(part->instanceId());
                const QString key = part->valueOfProperty(keys.key).toQString();
                if (!key.isEmpty())
                    m_switches[key.front().toUpper()].push_back(part->instanceId());
                if (!part->getRoles().contains(inputRole()))
                    m_outputs.push_back(part->instanceId());
            }
        }
        if (PopupImpl* popup = part->popup())
            more.emplace_back(popup, part->instanceOf(keys.procedure));
    }
}

void FlowchartWiring::addLink(const DocumentImpl& document, const NodeImpl& link)
{
    const NodeImpl* from = document.nodeById(link.valueOfProperty(coreKeys::from()).toInstanceId());
    const NodeImpl* to = document.nodeById(link.valueOfProperty(coreKeys::to()).toInstanceId());
    if (!from || !to || !from->parentNode() || !to->parentNode())
        return;
    // Links may have been drawn against the arrow.
    if (isWayIn(*from) && !isWayIn(*to))
        std::swap(from, to);
    if (!m_blockAfterPin.contains(from->instanceId()))
        m_blockAfterPin.insert(from->instanceId(), to->parentNode()->instanceId());
}

InstanceId FlowchartWiring::blockAfter(const NodeImpl& block, const QString& wayOut) const
{
    for (unsigned int i = 0; i < block.childCount(); ++i) {
        const NodeImpl* pin = block.getChildAt(i);
        if (pin->valueOfProperty(coreKeys::id()).toQString() == wayOut)
            return m_blockAfterPin.value(pin->instanceId());
    }
    return 0;
}

InstanceId FlowchartWiring::startIn(const PopupImpl& popup) const
{
    return m_startOfPopup.value(popup.instanceId());
}

bool FlowchartWiring::dependsOn(PropertyKey key)
{
    return key == coreKeys::from() || key == coreKeys::to() || key == coreKeys::id() ||
           key == flowchartKeys().outputName || key == flowchartKeys().key || key == flowchartKeys().direction;
}
