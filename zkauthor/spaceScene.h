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
/// the space's top left corner. A change of one part costs the same however many there are. What changes
/// is noted at once, and read and drawn once for all its changes: when control is back in the event loop, or when
/// somebody asks for an item.
class SpaceScene : public QGraphicsScene
{
    Q_OBJECT

public:
    SpaceScene(DocumentImpl* document, SpaceImpl* space, QObject* parent = nullptr);
    ~SpaceScene() override;

    DocumentImpl* document() const { return m_document; }
    /// Null when the space is gone.
    SpaceImpl* space() const { return m_space.impl(); }

    /// Makes the scene's rectangle just hold the page and every part; otherwise it only grows. Linear in their number.
    void tightenExtent();

    /// Null when the node has none.
    ElementItem* itemFor(const NodeImpl* node);
    /// The topmost part there (millimetres), one within `tolerance` when none is hit; null when there is none.
    ElementImpl* partAt(const QPointF& place, double tolerance);
    /// The parts that the rectangle touches, and the connections that it holds.
    std::vector<ElementImpl*> partsIn(const QRectF& rect);

    /// Whether it is shown as a reader sees it: without the parts that are not visible.
    void setReaderMode(bool reader);
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
    ElementItem* find(const NodeImpl* node) const;
    void refresh(const ElementItem* item, bool onlyMoved = false);
    void flush();
    void updateExtent();
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
    QHash<InstanceId, bool> m_changed; // items whose geometry is to be read again; whether they only moved
    QRectF m_content;                  // holds the page and the parts
    QTimer m_flushTimer;
    bool m_extentHeld = false;
    bool m_readerMode = false;
    bool m_inUndoRedo = false;
};
