#pragma once

#include "zkcore/base/propertyKey.h"
#include "zkcore/model/handles.h"

#include <QGraphicsScene>
#include <QHash>
#include <QSet>
#include <QTimer>
#include <memory>
#include <unordered_map>
#include <vector>

class DocumentImpl;
class ElementItem;

/// The graphics of one space: an item for each part, kept in step with the document. Coordinates are millimetres from
/// the space's top left corner. A change of one part costs the same however many there are.
class SpaceScene : public QGraphicsScene
{
    Q_OBJECT

public:
    SpaceScene(DocumentImpl* document, SpaceImpl* space, QObject* parent = nullptr);
    ~SpaceScene() override;

    DocumentImpl* document() const { return m_document; }
    /// Null when the space is gone.
    SpaceImpl* space() const { return m_space.impl(); }
    InstanceId spaceId() const { return m_space.instanceId(); }

    /// The page in millimetres.
    QRectF pageRect() const { return m_page; }
    /// What the user may want to see: the page and every part.
    QRectF contentRect() const;

    ElementItem* itemFor(const NodeImpl* node) const;
    /// The topmost part there (millimetres), one within `tolerance` when none is hit; null when there is none.
    ElementImpl* partAt(const QPointF& place, double tolerance) const;
    /// The parts that the rectangle touches, and the connections that it holds.
    std::vector<ElementImpl*> partsIn(const QRectF& rect) const;

    /// While held, the scrollable area keeps its size; a drag must not scroll the view under the pointer.
    void holdExtent(bool hold);

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;

private:
    void rebuild();
    void addItemFor(ElementImpl* element);
    void removeItem(InstanceId id);
    void placeInStack(ElementItem* item, ElementImpl* element);
    void updatePage();
    void updateExtent();
    void refresh(ElementItem* item);
    void registerEnds(ElementItem* item);
    void unregisterEnds(InstanceId connection);
    void refreshConnectionsAt(const NodeImpl* node);

    void onElementAdded(Element element);
    void onElementRemoved(Element element);
    void onNodeValueChanged(NodeImpl* node, PropertyKey key);
    void onSelectionChanged();
    void onLoaded();

    DocumentImpl* m_document;
    Space m_space;
    QRectF m_page;
    std::unordered_map<InstanceId, ElementItem*> m_items; // owned by the scene
    QSet<InstanceId> m_marked;
    QHash<InstanceId, QSet<InstanceId>> m_connectionsAtPin;
    QHash<InstanceId, std::pair<InstanceId, InstanceId>> m_pinsOfConnection;
    QTimer m_extentTimer;
    bool m_extentHeld = false;
    bool m_inUndoRedo = false;
};
