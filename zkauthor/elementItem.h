#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/model/handles.h"

#include <QGraphicsItem>
#include <QPainterPath>

/// One part (or connection) as it stands in a space. The item's coordinates are the space's, in millimetres.
class ElementItem : public QGraphicsItem
{
public:
    enum { Type = UserType + 1 };

    /// Without geometry until updateGeometry() is called.
    explicit ElementItem(ElementImpl* element);

    int type() const override { return Type; }
    QRectF boundingRect() const override { return m_bounds; }
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    /// Null when the element is gone and its item not yet removed.
    ElementImpl* element() const { return m_element.impl(); }
    InstanceId instanceId() const { return m_element.instanceId(); }
    bool isConnection() const { return m_connection; }

    /// The element's own area, without label and selection frame; a polygon when it is turned.
    const QPainterPath& area() const { return m_area; }
    /// Reads the element's geometry again.
    void updateGeometry();
    /// The same when nothing but the element's position changed, which is much quicker: the labels keep their room.
    void followPosition();
    /// For readers, what is not visible while the model runs is not there at all; otherwise it is drawn faintly.
    void setReaderMode(bool reader);
    /// Draws it as selected, or not.
    void setMarked(bool marked);

private:
    void followVisibility();

    Element m_element;
    QPointF m_place; // of the centre, where the geometry was last read
    QRectF m_bounds;
    QPainterPath m_area;
    bool m_connection;
    bool m_marked = false;
    bool m_readerMode = false;
};
