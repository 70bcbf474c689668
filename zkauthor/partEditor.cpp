#include "zkauthor/partEditor.h"

#include "zkauthor/partRules.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/printing/elementGeometry.h"
#include "zkcore/storage/addPartDrag.h"
#include "zkcore/storage/fragmentXmlWriter.h"
#include "zkeditor/duplication.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSet>
#include <cmath>
#include <numbers>
#include <set>

namespace {

// How far copies stand from their originals, in metres.
constexpr double copyOffset = 0.005;

bool stands(const SpaceImpl& space, zk::Point place)
{
    for (const NodeImpl* child : space.children()) {
        const zk::Point other = child->valueOfProperty(coreKeys::position()).toPoint();
        if (std::abs(other.x - place.x) < copyOffset / 2 && std::abs(other.y - place.y) < copyOffset / 2)
            return true;
    }
    return false;
}

void moveSnapshot(NodeSnapshot& node, zk::Point offset)
{
    bool placed = false;
    for (NodeSnapshot::ValueEntry& entry : node.values) {
        if (entry.key == coreKeys::position() && entry.domain == INVALID_CID && !entry.proxy.isValid()) {
            const zk::Point old = entry.value.toPoint();
            entry.value = Value(zk::Point{old.x + offset.x, old.y + offset.y});
        }
        placed = placed || entry.key == coreKeys::position();
    }
    if (!placed) {
        NodeSnapshot::ValueEntry entry;
        entry.key = coreKeys::position();
        entry.value = Value(offset);
        node.values.push_back(entry);
    }
}

} // namespace

PartEditor::PartEditor(QObject* parent) : QObject(parent) {}

bool PartEditor::execute(Command* command, Value& result)
{
    result = m_document->executeCommand(command);
    if (result.isValid())
        return true;
    Q_EMIT failed(m_document->lastError());
    return false;
}

bool PartEditor::addPart(SpaceImpl* space, ClassId cid, zk::Point place)
{
    if (!m_document || !NodeImpl::valid(space))
        return false;
    const NodePrototype* prototype = m_document->getNodeDb()->lookupPrototype(cid);
    if (prototype && isConnection(*prototype)) {
        if (canConnect(space))
            return connectSelection(space, cid);
        Q_EMIT failed(tr("Select the two parts that it shall connect first."));
        return false;
    }
    for (int tries = 0; tries < 20 && stands(*space, place); ++tries)
        place = {place.x + copyOffset, place.y + copyOffset};
    Value result;
    if (!execute(new AddPartCommand(space, cid, place), result))
        return false;
    if (auto* element = qobject_cast<ElementImpl*>(result.toNode().impl()))
        m_document->setSelection({element});
    return true;
}

bool PartEditor::deleteSelection()
{
    if (!m_document || m_document->getSelection().empty())
        return false;
    std::vector<Node> nodes;
    for (ElementImpl* element : m_document->getSelection())
        nodes.emplace_back(element);
    Value result;
    return execute(new DeleteNodeCommand(nodes, Command::PushUndo), result);
}

bool PartEditor::rotateSelection(const SpaceImpl* space, int quarters)
{
    if (!m_document)
        return false;
    constexpr double turn = 2 * std::numbers::pi;
    auto command = std::make_unique<SetValueCommand>(true);
    bool any = false;
    for (const ElementImpl* part : selectedParts(*m_document, space)) {
        if (isConnection(*part) || part->isEffectivelyLocked(LockOrientation) ||
            part->getOrientationConstraint() == QLatin1String("fixed") ||
            !userMayChange(*part, coreKeys::orientation()))
            continue;
        // Counted in whole quarters where it stands on one, so that four turns lead back to exactly the same number.
        const double inQuarters = part->orientation() / (turn / 4) + quarters;
        const double nearest = std::round(inQuarters);
        double quarter = std::abs(inQuarters - nearest) < 1e-9 ? nearest : inQuarters;
        quarter -= 4 * std::floor(quarter / 4);
        command->addAddress({part->instanceId(), INVALID_CID, coreKeys::orientation()}, Value(quarter * (turn / 4)));
        any = true;
    }
    Value result;
    return any && execute(command.release(), result);
}

std::vector<const ElementImpl*> PartEditor::selectionWithConnections(const SpaceImpl* space) const
{
    return partsToCopy(*m_document)[space->instanceId()];
}

bool PartEditor::addNodes(SpaceImpl* space, std::vector<NodeSnapshot> nodes, zk::Point offset)
{
    if (nodes.empty())
        return false;
    for (NodeSnapshot& node : nodes) {
        const NodePrototype* prototype = m_document->getNodeDb()->lookupPrototype(node.cid);
        if (prototype && !isConnection(*prototype))
            moveSnapshot(node, offset);
    }
    Value result;
    if (!execute(new AddNodesCommand(space, std::move(nodes)), result))
        return false;
    ElementImplSet added;
    for (const Value& value : result.toValueVector()) {
        auto* element = qobject_cast<ElementImpl*>(value.toNode().impl());
        if (element && !isConnection(*element))
            added.insert(element);
    }
    m_document->setSelection(added);
    return true;
}

bool PartEditor::duplicateSelection(SpaceImpl* space)
{
    if (!m_document || !NodeImpl::valid(space))
        return false;
    if (selectionWithConnections(space).empty())
        return false;
    if (duplicateSelectedParts(*m_document, 1, {copyOffset, copyOffset}))
        return true;
    Q_EMIT failed(m_document->lastError());
    return false;
}

std::pair<ElementImpl*, ElementImpl*> PartEditor::pinsToConnect(const SpaceImpl* space) const
{
    if (!m_document || !NodeImpl::valid(space) || m_document->getSelection().size() != 2)
        return {};
    const std::vector<ElementImpl*> parts = selectedParts(*m_document, space);
    if (parts.size() != 2)
        return {};
    const RoleSet pins(QStringLiteral("pins"));
    std::set<InstanceId> taken;
    for (const ElementImpl* connection : m_document->connectionsAt({parts[0]->instanceId(), parts[1]->instanceId()})) {
        taken.insert(connection->valueOfProperty(coreKeys::from()).toInstanceId());
        taken.insert(connection->valueOfProperty(coreKeys::to()).toInstanceId());
    }
    std::pair<ElementImpl*, ElementImpl*> best;
    double least = 0;
    for (ElementImpl* from : static_cast<PartImpl*>(parts[0])->getChildrenWithRole(pins)) {
        for (ElementImpl* to : static_cast<PartImpl*>(parts[1])->getChildrenWithRole(pins)) {
            const QPointF way = elementTransform(*to).map(QPointF()) - elementTransform(*from).map(QPointF());
            double distance = std::hypot(way.x(), way.y());
            for (const ElementImpl* pin : {from, to}) {
                if (taken.contains(pin->instanceId()))
                    distance += 1000; // further than any free pin
            }
            if (!best.first || distance < least) {
                best = {from, to};
                least = distance;
            }
        }
    }
    return best;
}

bool PartEditor::canConnect(const SpaceImpl* space) const
{
    return pinsToConnect(space).first != nullptr;
}

bool PartEditor::connectSelection(SpaceImpl* space, ClassId cid)
{
    const auto [from, to] = pinsToConnect(space);
    if (!from)
        return false;
    NodeSnapshot connection = NodeSnapshot::ofPrototype(*m_document->getNodeDb(), cid);
    connection.values.push_back({INVALID_CID, coreKeys::from(), Value(Node(from)), {}});
    connection.values.push_back({INVALID_CID, coreKeys::to(), Value(Node(to)), {}});
    std::vector<NodeSnapshot> nodes;
    nodes.push_back(std::move(connection));
    Value result;
    if (!execute(new AddNodesCommand(space, std::move(nodes)), result))
        return false;
    for (const Value& value : result.toValueVector()) {
        if (auto* element = qobject_cast<ElementImpl*>(value.toNode().impl()))
            m_document->setSelection({element});
    }
    return true;
}

bool PartEditor::copySelection(const SpaceImpl* space)
{
    if (!m_document || !NodeImpl::valid(space))
        return false;
    const std::vector<const ElementImpl*> elements = selectionWithConnections(space);
    if (elements.empty())
        return false;
    auto* data = new QMimeData;
    data->setData(FragmentXMLWriter::fragmentMimeType(), FragmentXMLWriter::writeElements(elements));
    QGuiApplication::clipboard()->setMimeData(data);
    m_lastPasted.clear();
    return true;
}

bool PartEditor::canPaste() const
{
    return canDrop(QGuiApplication::clipboard()->mimeData());
}

bool PartEditor::paste(SpaceImpl* space)
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!m_document || !NodeImpl::valid(space) || !canDrop(data))
        return false;
    const QByteArray fragment = data->data(FragmentXMLWriter::fragmentMimeType());
    std::vector<NodeSnapshot> nodes;
    QString error;
    if (!FragmentXMLWriter::read(fragment, *m_document->getNodeDb(), nodes, error)) {
        Q_EMIT failed(error);
        return false;
    }
    // Each further paste of the same stands a step further, so that none hides another.
    m_pasteCount = fragment == m_lastPasted ? m_pasteCount + 1 : 1;
    m_lastPasted = fragment;
    return addNodes(space, std::move(nodes), {copyOffset * m_pasteCount, copyOffset * m_pasteCount});
}

bool PartEditor::canDrop(const QMimeData* data)
{
    return data && AddPartDrag::canDecode(data);
}

bool PartEditor::drop(SpaceImpl* space, const QMimeData* data, zk::Point place)
{
    if (!m_document || !NodeImpl::valid(space))
        return false;
    std::vector<NodeSnapshot> nodes;
    if (!AddPartDrag::decode(data, *m_document->getNodeDb(), nodes) || nodes.empty()) {
        Q_EMIT failed(tr("What was dropped is not a part."));
        return false;
    }
    if (nodes.size() == 1) {
        const NodePrototype* prototype = m_document->getNodeDb()->lookupPrototype(nodes.front().cid);
        if (prototype && isConnection(*prototype))
            return addPart(space, nodes.front().cid, place);
    }
    zk::Point first;
    for (const NodeSnapshot::ValueEntry& entry : nodes.front().values) {
        if (entry.key == coreKeys::position())
            first = entry.value.toPoint();
    }
    return addNodes(space, std::move(nodes), {place.x - first.x, place.y - first.y});
}
