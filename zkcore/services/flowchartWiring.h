#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/base/propertyKey.h"

#include <QHash>
#include <QString>
#include <vector>

class DocumentImpl;
class NodeImpl;
class PopupImpl;
class SpaceImpl;

/// What the flowcharts of a document consist of, found in one pass: where they start, which block follows which, and
/// the components that they switch and ask. Nodes are remembered by their ids, so it outlives them; it does not follow
/// changes of the document.
class FlowchartWiring
{
public:
    FlowchartWiring() = default;
    explicit FlowchartWiring(const DocumentImpl& document);

    /// The start blocks of all charts that are not called by a procedure.
    const std::vector<InstanceId>& starts() const { return m_starts; }
    /// Components with that "output-name", inputs and outputs alike.
    std::vector<InstanceId> components(const QString& name) const { return m_components.value(name); }
    /// Named components that charts switch rather than ask.
    const std::vector<InstanceId>& outputs() const { return m_outputs; }
    /// Named components that the key works.
    std::vector<InstanceId> switchesWithKey(QChar key) const { return m_switches.value(key.toUpper()); }
    /// The block linked to the way out of that "id"; 0 when there is none.
    InstanceId blockAfter(const NodeImpl& block, const QString& wayOut) const;
    /// The first start block in the pop-up; 0 when there is none.
    InstanceId startIn(const PopupImpl& popup) const;

    /// Whether a change of the property makes another wiring.
    static bool dependsOn(PropertyKey key);

private:
    void addSpace(const DocumentImpl& document, SpaceImpl& space, bool called,
                  std::vector<std::pair<SpaceImpl*, bool>>& more);
    void addLink(const DocumentImpl& document, const NodeImpl& link);

    std::vector<InstanceId> m_starts;
    std::vector<InstanceId> m_outputs;
    QHash<QString, std::vector<InstanceId>> m_components;
    QHash<QChar, std::vector<InstanceId>> m_switches;
    QHash<InstanceId, InstanceId> m_blockAfterPin;
    QHash<InstanceId, InstanceId> m_startOfPopup;
};
