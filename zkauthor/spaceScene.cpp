#include "zkauthor/spaceScene.h"

#include "zkauthor/elementItem.h"
#include "zkauthor/partRules.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/printing/scenePainter.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <utility>

namespace {

// Round the page and the parts, in millimetres, so that parts can be pushed over the edge and found again.
constexpr double extentMargin = 10.0;

bool isElement(const NodeImpl* node)
{
    return node->kind() == NodeKind::Part || node->kind() == NodeKind::Subpart;
}

} // namespace

SpaceScene::SpaceScene(DocumentImpl* document, SpaceImpl* space, QObject* parent)
    : QGraphicsScene(parent), m_document(document), m_space(space)
{
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(0);
    connect(&m_flushTimer, &QTimer::timeout, this, &SpaceScene::flush);
    connect(document, &DocumentImpl::ElementAdded, this, &SpaceScene::onElementAdded);
    connect(document, &DocumentImpl::ElementRemoved, this, &SpaceScene::onElementRemoved);
    connect(document, &DocumentImpl::nodeValueChanged, this, &SpaceScene::onNodeValueChanged);
    connect(document, &DocumentImpl::SelectionChanged, this, &SpaceScene::onSelectionChanged);
    connect(document, &DocumentImpl::undoRedoStarted, this, [this] { m_inUndoRedo = true; });
    connect(document, &DocumentImpl::Loaded, this, &SpaceScene::onLoaded);
    connect(document, &DocumentImpl::nodeMoved, this, [this](NodeImpl* node) {
        if (ElementItem* item = find(node))
            placeInStack(item, item->element());
    });
    connect(document, &DocumentImpl::nodeLocksChanged, this, [this](NodeImpl* node) {
        if (ElementItem* item = find(node))
            item->update();
    });
    rebuild();
}

SpaceScene::~SpaceScene() = default;

void SpaceScene::rebuild()
{
    clear();
    m_items.clear();
    m_marked.clear();
    m_changed.clear();
    m_connectionsAtPin.clear();
    m_pinsOfConnection.clear();
    const SpaceImpl* here = space();
    if (!here)
        return;
    updatePage();
    m_items.reserve(here->childCount());
    double z = 0;
    for (NodeImpl* child : here->children()) {
        if (child->kind() != NodeKind::Part)
            continue;
        auto* item = new ElementItem(static_cast<ElementImpl*>(child));
        item->setReaderMode(m_readerMode);
        item->updateGeometry();
        item->setZValue(++z);
        m_items.emplace(child->instanceId(), item);
        registerEnds(item);
        addItem(item);
    }
    tightenExtent();
    onSelectionChanged();
}

ElementItem* SpaceScene::find(const NodeImpl* node) const
{
    const auto found = node ? m_items.find(node->instanceId()) : m_items.end();
    return found == m_items.end() ? nullptr : found->second;
}

ElementItem* SpaceScene::itemFor(const NodeImpl* node)
{
    if (!m_changed.isEmpty())
        flush();
    return find(node);
}

void SpaceScene::addItemFor(ElementImpl* element)
{
    removeItem(element->instanceId());
    auto* item = new ElementItem(element);
    item->setReaderMode(m_readerMode);
    m_items.emplace(element->instanceId(), item);
    placeInStack(item, element);
    registerEnds(item);
    addItem(item);
    refresh(item);
}

void SpaceScene::removeItem(InstanceId id)
{
    const auto found = m_items.find(id);
    if (found == m_items.end())
        return;
    ElementItem* item = found->second;
    m_items.erase(found);
    m_marked.remove(id);
    m_changed.remove(id);
    unregisterEnds(id);
    delete item;
}

void SpaceScene::placeInStack(ElementItem* item, ElementImpl* element)
{
    // Between its neighbours, so that nobody else's place changes.
    const SpaceImpl* here = space();
    const int index = here ? here->getIndexForChild(element) : -1;
    if (index < 0)
        return;
    const ElementItem* below = index > 0 ? find(here->getChildAt(static_cast<unsigned>(index) - 1)) : nullptr;
    const ElementItem* above = find(here->getChildAt(static_cast<unsigned>(index) + 1));
    double z = 0;
    if (below && above) {
        z = (below->zValue() + above->zValue()) / 2;
        if (!(z > below->zValue() && z < above->zValue())) {
            // No number left between them, after very many such moves: number all anew.
            double next = 0;
            for (const NodeImpl* child : here->children()) {
                ++next;
                if (ElementItem* each = find(child))
                    each->setZValue(next);
            }
            return;
        }
    } else if (below) {
        z = below->zValue() + 1;
    } else if (above) {
        z = above->zValue() - 1;
    }
    item->setZValue(z);
}

void SpaceScene::registerEnds(ElementItem* item)
{
    const ElementImpl* element = item->element();
    if (!item->isConnection() || !element)
        return;
    unregisterEnds(item->instanceId());
    const InstanceId from = element->valueOfProperty(coreKeys::from()).toInstanceId();
    const InstanceId to = element->valueOfProperty(coreKeys::to()).toInstanceId();
    m_pinsOfConnection.insert(item->instanceId(), {from, to});
    m_connectionsAtPin[from].insert(item->instanceId());
    m_connectionsAtPin[to].insert(item->instanceId());
}

void SpaceScene::unregisterEnds(InstanceId connection)
{
    const auto found = m_pinsOfConnection.constFind(connection);
    if (found == m_pinsOfConnection.constEnd())
        return;
    for (const InstanceId pin : {found->first, found->second}) {
        const auto at = m_connectionsAtPin.find(pin);
        if (at != m_connectionsAtPin.end() && at->remove(connection) && at->isEmpty())
            m_connectionsAtPin.erase(at);
    }
    m_pinsOfConnection.erase(found);
}

void SpaceScene::refreshConnectionsAt(const NodeImpl* node)
{
    if (m_connectionsAtPin.isEmpty())
        return;
    for (const InstanceId connection : m_connectionsAtPin.value(node->instanceId())) {
        const auto found = m_items.find(connection);
        if (found != m_items.end())
            refresh(found->second);
    }
    for (const NodeImpl* child : node->children())
        refreshConnectionsAt(child);
}

void SpaceScene::refresh(const ElementItem* item, bool onlyMoved)
{
    const auto noted = m_changed.find(item->instanceId());
    if (noted == m_changed.end())
        m_changed.insert(item->instanceId(), onlyMoved);
    else
        *noted = *noted && onlyMoved;
    if (!m_flushTimer.isActive())
        m_flushTimer.start();
}

void SpaceScene::flush()
{
    const QHash<InstanceId, bool> changed = std::exchange(m_changed, {});
    for (auto it = changed.begin(); it != changed.end(); ++it) {
        const auto found = m_items.find(it.key());
        if (found == m_items.end())
            continue;
        if (it.value())
            found->second->followPosition();
        else
            found->second->updateGeometry();
        m_content |= found->second->boundingRect();
    }
    updateExtent();
}

void SpaceScene::updatePage()
{
    const SpaceImpl* here = space();
    if (!here)
        return;
    const zk::Point size = here->valueOfProperty(coreKeys::size()).toPoint();
    const QRectF page(0, 0, std::max(size.x, 0.0) * 1000, std::max(size.y, 0.0) * 1000);
    if (page != m_page) {
        m_page = page;
        m_content |= page;
        m_flushTimer.start();
    }
    update();
}

void SpaceScene::tightenExtent()
{
    flush();
    m_content = m_items.empty() ? m_page : m_page.united(itemsBoundingRect());
    updateExtent();
}

void SpaceScene::updateExtent()
{
    if (m_extentHeld)
        return;
    const QRectF extent = m_content.adjusted(-extentMargin, -extentMargin, extentMargin, extentMargin);
    if (extent != sceneRect())
        setSceneRect(extent);
}

void SpaceScene::setReaderMode(bool reader)
{
    if (reader == m_readerMode)
        return;
    m_readerMode = reader;
    for (const auto& [id, item] : m_items)
        item->setReaderMode(reader);
}

void SpaceScene::holdExtent(bool hold)
{
    m_extentHeld = hold;
    if (!hold)
        m_flushTimer.start();
}

ElementImpl* SpaceScene::partAt(const QPointF& place, double tolerance)
{
    flush();
    const QRectF near(place.x() - tolerance, place.y() - tolerance, 2 * tolerance, 2 * tolerance);
    ElementImpl* close = nullptr;
    for (QGraphicsItem* candidate : items(near, Qt::IntersectsItemBoundingRect, Qt::DescendingOrder)) {
        const auto* item = qgraphicsitem_cast<ElementItem*>(candidate);
        if (!item || !item->element())
            continue;
        if (item->area().contains(place))
            return item->element();
        if (!close && item->area().intersects(near))
            close = item->element();
    }
    return close;
}

std::vector<ElementImpl*> SpaceScene::partsIn(const QRectF& rect)
{
    flush();
    std::vector<ElementImpl*> found;
    for (QGraphicsItem* candidate : items(rect, Qt::IntersectsItemBoundingRect, Qt::AscendingOrder)) {
        const auto* item = qgraphicsitem_cast<ElementItem*>(candidate);
        if (!item || !item->element())
            continue;
        // Of connections, which run everywhere, only those that lie inside with both ends.
        if (rect.contains(item->area().controlPointRect()) || (!item->isConnection() && item->area().intersects(rect)))
            found.push_back(item->element());
    }
    return found;
}

void SpaceScene::drawBackground(QPainter* painter, const QRectF& rect)
{
    const QPalette palette = QApplication::palette();
    painter->fillRect(rect, palette.color(QPalette::Dark));
    const SpaceImpl* here = space();
    if (!here)
        return;
    painter->save();
    painter->scale(1000, 1000);
    ScenePainter(*painter).paintBackground(*here);
    painter->restore();
    painter->setPen(QPen(palette.color(QPalette::Shadow), 0));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(m_page);
}

void SpaceScene::onElementAdded(Element element)
{
    ElementImpl* added = element.impl();
    const SpaceImpl* here = space();
    if (!added || !here)
        return;
    if (added->parentNode() == here) {
        addItemFor(added);
        refreshConnectionsAt(added);
    } else if (added->kind() == NodeKind::Subpart) {
        if (ElementItem* item = find(partInSpace(added, here)))
            refresh(item);
    }
}

void SpaceScene::onElementRemoved(Element element)
{
    const auto found = m_items.find(element.instanceId());
    if (found != m_items.end()) {
        removeItem(element.instanceId());
        return;
    }
    const SpaceImpl* here = space();
    const ElementImpl* gone = element.impl();
    if (!here || !gone || gone->kind() != NodeKind::Subpart)
        return;
    // A subpart that goes by itself changes its part; one that goes with its part does not.
    const ElementImpl* part = partInSpace(gone->parentNode(), here);
    if (part && m_document->nodeById(part->instanceId()) == part) {
        if (ElementItem* item = find(part))
            refresh(item);
    }
}

void SpaceScene::onNodeValueChanged(NodeImpl* node, PropertyKey key)
{
    SpaceImpl* here = space();
    if (node == here) {
        updatePage();
        return;
    }
    if (!here || !isElement(node))
        return;
    ElementItem* item = find(partInSpace(node, here));
    if (!item)
        return;
    if (item->isConnection() && (key == coreKeys::from() || key == coreKeys::to()))
        registerEnds(item);
    refresh(item, key == coreKeys::position() && node->parentNode() == here);
    refreshConnectionsAt(node);
}

void SpaceScene::onSelectionChanged()
{
    QSet<InstanceId> marked;
    const SpaceImpl* here = space();
    for (ElementImpl* element : m_document->getSelection()) {
        ElementItem* item = here ? find(partInSpace(element, here)) : nullptr;
        if (!item)
            continue;
        marked.insert(item->instanceId());
        item->setMarked(true);
    }
    for (const InstanceId id : std::as_const(m_marked)) {
        const auto found = m_items.find(id);
        if (found != m_items.end() && !marked.contains(id))
            found->second->setMarked(false);
    }
    m_marked = marked;
}

void SpaceScene::onLoaded()
{
    // Undo and redo have told what they changed; after loading, everything is new.
    if (!m_inUndoRedo)
        rebuild();
    m_inUndoRedo = false;
}
