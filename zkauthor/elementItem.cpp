#include "zkauthor/elementItem.h"

#include "zkauthor/partRules.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/printing/elementGeometry.h"
#include "zkcore/printing/scenePainter.h"
#include "zkeditor/duplication.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTransform>
#include <QWidget>
#include <algorithm>

namespace {

constexpr double mmPerMetre = 1000.0;
// Width in millimetres of the strip in which a click hits a connection.
constexpr double connectionGrip = 1.5;
// Room for the selection frame, in millimetres.
constexpr double frameRoom = 1.5;
// Parts that are smaller than this on the screen, in pixels, are drawn as plain rectangles.
constexpr double smallestDrawn = 4.0;
// How strongly parts are drawn that are not seen while the model runs.
constexpr double hiddenOpacity = 0.3;

QPointF placeOf(const ElementImpl& element)
{
    const zk::Point position = element.position();
    return QPointF(position.x, position.y) * mmPerMetre;
}

} // namespace

ElementItem::ElementItem(ElementImpl* element) : m_element(element), m_connection(::isConnection(*element)) {}

void ElementItem::updateGeometry()
{
    const ElementImpl* element = this->element();
    if (!element)
        return;
    const QTransform toMm = QTransform::fromScale(mmPerMetre, mmPerMetre);
    QPainterPath area;
    if (m_connection) {
        QPainterPathStroker stroker;
        stroker.setWidth(connectionGrip);
        area = stroker.createStroke(toMm.map(connectionPath(*element)));
    } else {
        area = toMm.map(elementArea(*element));
    }
    const QRectF bounds = toMm.mapRect(elementBounds(*element))
                              .united(area.controlPointRect())
                              .adjusted(-frameRoom, -frameRoom, frameRoom, frameRoom);
    if (bounds != m_bounds)
        prepareGeometryChange();
    m_bounds = bounds;
    m_area = area;
    m_place = placeOf(*element);
    followVisibility();
    update();
}

void ElementItem::followPosition()
{
    const ElementImpl* element = this->element();
    if (!element || m_connection || m_bounds.isNull()) {
        updateGeometry();
        return;
    }
    const QPointF way = placeOf(*element) - m_place;
    prepareGeometryChange();
    m_bounds.translate(way);
    m_area.translate(way);
    m_place += way;
    update();
}

QPainterPath ElementItem::shape() const
{
    return m_area;
}

void ElementItem::setReaderMode(bool reader)
{
    m_readerMode = reader;
    followVisibility();
    update();
}

void ElementItem::followVisibility()
{
    if (const ElementImpl* element = this->element())
        setVisible(!m_readerMode || isSeenByReaders(*element));
}

void ElementItem::setMarked(bool marked)
{
    if (marked == m_marked)
        return;
    m_marked = marked;
    update();
}

void ElementItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget)
{
    const ElementImpl* element = this->element();
    if (!element)
        return;
    const QPalette palette = widget ? widget->palette() : QPalette();
    const QRectF area = m_area.controlPointRect();
    const double scale = std::abs(painter->worldTransform().m11());
    if (!m_connection && std::max(area.width(), area.height()) * scale < smallestDrawn) {
        painter->fillRect(area, m_marked ? palette.color(QPalette::Highlight) : QColor(Qt::gray));
        return;
    }
    painter->save();
    painter->scale(mmPerMetre, mmPerMetre);
    painter->setLayoutDirection(Qt::LayoutDirectionAuto); // the document's texts, not the program's language, decide
    ScenePainter scenePainter(*painter);
    scenePainter.setHiddenOpacity(m_readerMode ? 0.0 : hiddenOpacity);
    scenePainter.paintElement(*element);
    painter->restore();
    if (!m_marked)
        return;
    // Two lines, so that the frame is seen on every background.
    QPen pen(palette.color(QPalette::HighlightedText), 3.0);
    pen.setCosmetic(true);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(pen);
    painter->drawPath(m_area);
    pen.setColor(palette.color(QPalette::Highlight));
    pen.setWidthF(1.5);
    if (element->isEffectivelyLocked(LockPosition))
        pen.setStyle(Qt::DashLine);
    painter->setPen(pen);
    painter->drawPath(m_area);
}
