// Geometry of elements and the routing of connections.
#include "zkcore/printing/elementGeometry.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/printing/paintKeys.h"
#include "zkcore/printing/paintText.h"
#include "zkcore/services/translate.h"

#include <QPainterPathStroker>
#include <QPointF>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

using RoutePoints = std::vector<QPointF>;

// Lengths in metres.
constexpr double stubLength = 0.004;
constexpr double cornerRadius = 0.0015;
constexpr double cornerCost = 0.005;
constexpr double reversalCost = 1.0;

const NodeImpl* spaceHolding(const ElementImpl& element)
{
    const NodeImpl* node = element.parentNode();
    while (const auto* outer = dynamic_cast<const ElementImpl*>(node))
        node = outer->parentNode();
    return node;
}

/// An end of a connection: where it is and in which direction the line leaves it.
struct RouteEnd
{
    QPointF place;
    QPointF direction; // along an axis; null when any direction will do
};

QPointF snappedToAxis(const QPointF& vector)
{
    if (std::abs(vector.x()) >= std::abs(vector.y()))
        return QPointF(vector.x() < 0.0 ? -1.0 : 1.0, 0.0);
    return QPointF(0.0, vector.y() < 0.0 ? -1.0 : 1.0);
}

bool findRouteEnd(const ElementImpl& connection, PropertyKey key, RouteEnd& end)
{
    const auto* element = dynamic_cast<const ElementImpl*>(connection.valueOfProperty(key).toNode().impl());
    if (!element || spaceHolding(*element) != spaceHolding(connection))
        return false;
    end.place = elementTransform(*element).map(QPointF());

    const auto* part = dynamic_cast<const ElementImpl*>(element->parentNode());
    if (!part)
        return true;
    const zk::Point offset = element->position();
    const zk::Point size = part->size();
    // Relative to the part's sides, so that a pin on the short side of a long part still points outwards.
    const QPointF relative(offset.x / std::max(size.x, 1e-6), offset.y / std::max(size.y, 1e-6));
    if (relative.isNull())
        return true;
    const QTransform turn = elementTransform(*part);
    end.direction = snappedToAxis(turn.map(snappedToAxis(relative)) - turn.map(QPointF()));
    return true;
}

double manhattan(const QPointF& vector)
{
    return std::abs(vector.x()) + std::abs(vector.y());
}

/// Without points that repeat, or lie on the way between, their neighbours.
RoutePoints simplified(const RoutePoints& points)
{
    RoutePoints result;
    for (const QPointF& point : points) {
        if (!result.empty() && manhattan(point - result.back()) < 1e-9)
            continue;
        while (result.size() >= 2) {
            const QPointF before = result.back() - result[result.size() - 2];
            const QPointF after = point - result.back();
            const bool straightOn = std::abs(before.x() * after.y() - before.y() * after.x()) < 1e-12 &&
                                    QPointF::dotProduct(before, after) > 0.0;
            if (!straightOn)
                break;
            result.pop_back();
        }
        result.push_back(point);
    }
    return result;
}

double routeCost(const RoutePoints& points)
{
    double cost = 0.0;
    for (size_t i = 1; i < points.size(); ++i) {
        const QPointF step = points[i] - points[i - 1];
        cost += manhattan(step);
        if (i < 2)
            continue;
        cost += cornerCost;
        if (QPointF::dotProduct(step, points[i - 1] - points[i - 2]) < 0.0)
            cost += reversalCost;
    }
    return cost;
}

/// The cheapest way along right angles from one end to the other: short, with few corners, never back over itself.
RoutePoints squareRoute(const RouteEnd& from, const RouteEnd& to)
{
    const double stub = std::min(stubLength, manhattan(to.place - from.place) / 3.0);
    const QPointF a = from.place + from.direction * stub;
    const QPointF b = to.place + to.direction * stub;
    const QPointF middle = (a + b) / 2.0;
    const std::array<RoutePoints, 4> ways = {RoutePoints{QPointF(b.x(), a.y())}, RoutePoints{QPointF(a.x(), b.y())},
                                             RoutePoints{QPointF(middle.x(), a.y()), QPointF(middle.x(), b.y())},
                                             RoutePoints{QPointF(a.x(), middle.y()), QPointF(b.x(), middle.y())}};
    RoutePoints best;
    double bestCost = 0.0;
    for (const RoutePoints& way : ways) {
        RoutePoints points = {from.place, a};
        points.insert(points.end(), way.begin(), way.end());
        points.push_back(b);
        points.push_back(to.place);
        points = simplified(points);
        const double cost = routeCost(points);
        if (best.empty() || cost < bestCost) {
            best = points;
            bestCost = cost;
        }
    }
    return best;
}

RoutePoints routeOf(const ElementImpl& connection, const RouteEnd& from, const RouteEnd& to)
{
    const bool straight = connection.valueOfProperty(paintKeys().route).toQString() == QLatin1String("straight");
    std::vector<RouteEnd> stops = {from};
    for (const zk::Point& bend : connection.valueOfProperty(paintKeys().bends).toPointVector())
        stops.push_back({QPointF(bend.x, bend.y), QPointF()});
    stops.push_back(to);

    RoutePoints points;
    for (size_t i = 1; i < stops.size(); ++i) {
        const RoutePoints leg =
            straight ? RoutePoints{stops[i - 1].place, stops[i].place} : squareRoute(stops[i - 1], stops[i]);
        points.insert(points.end(), leg.begin(), leg.end());
    }
    return simplified(points);
}

QPainterPath roundedLine(const RoutePoints& points)
{
    QPainterPath path;
    if (points.size() < 2)
        return path;
    path.moveTo(points.front());
    for (size_t i = 1; i + 1 < points.size(); ++i) {
        const QPointF in = points[i] - points[i - 1];
        const QPointF out = points[i + 1] - points[i];
        const double inLength = std::hypot(in.x(), in.y());
        const double outLength = std::hypot(out.x(), out.y());
        const double radius = std::min({cornerRadius, inLength / 2.0, outLength / 2.0});
        path.lineTo(points[i] - in / inLength * radius);
        path.quadTo(points[i], points[i] + out / outLength * radius);
    }
    path.lineTo(points.back());
    return path;
}

bool isConnectionElement(const ElementImpl& element)
{
    return element.instanceOf(paintKeys().connectionClass);
}

double lineWidth(const ElementImpl& connection)
{
    return std::max(connection.valueOfProperty(paintKeys().width).toDouble(), 0.0);
}

/// The element's rectangle in its own coordinates.
QRectF ownRect(const ElementImpl& element)
{
    const zk::Point size = element.size();
    return QRectF(-size.x / 2.0, -size.y / 2.0, size.x, size.y);
}

} // namespace

QTransform elementTransform(const ElementImpl& element)
{
    QTransform transform;
    const NodeImpl* node = &element;
    while (const auto* current = dynamic_cast<const ElementImpl*>(node)) {
        const zk::Point position = current->position();
        QTransform toParent;
        toParent.translate(position.x, position.y);
        toParent.rotateRadians(current->orientation());
        transform *= toParent;
        node = current->parentNode();
    }
    return transform;
}

QPainterPath elementArea(const ElementImpl& element)
{
    if (isConnectionElement(element)) {
        // Stroked in millimetres: the stroker flattens curves to a fraction of a unit, and a metre is too coarse a one.
        const QTransform toMillimetres = QTransform::fromScale(1000.0, 1000.0);
        QPainterPathStroker stroker;
        stroker.setWidth(lineWidth(element) * 1000.0);
        stroker.setJoinStyle(Qt::RoundJoin);
        return toMillimetres.inverted().map(stroker.createStroke(toMillimetres.map(connectionPath(element))));
    }
    QPainterPath path;
    path.addPolygon(elementTransform(element).map(QPolygonF(ownRect(element))));
    path.closeSubpath();
    return path;
}

QRectF elementBounds(const ElementImpl& element)
{
    if (isConnectionElement(element)) {
        const QPainterPath line = connectionPath(element);
        if (line.isEmpty())
            return QRectF();
        const double room = std::max(lineWidth(element) / 2.0, paintMeasures::arrowWidth / 2.0);
        return line.controlPointRect().adjusted(-room, -room, room, room);
    }
    const QRectF own = elementTransform(element).mapRect(ownRect(element));
    QRectF bounds = own;
    for (const NodeImpl* child : element.children())
        if (const auto* subpart = dynamic_cast<const ElementImpl*>(child))
            bounds |= elementBounds(*subpart);
    const QString label = elementLabel(element);
    if (!label.isEmpty() && !element.instanceOf(paintKeys().blockClass))
        bounds |= paintedLabelRect(label, own);
    const double room = paintMeasures::outlineRoom;
    return bounds.adjusted(-room, -room, room, room);
}

QPainterPath connectionPath(const ElementImpl& connection)
{
    RouteEnd from;
    RouteEnd to;
    if (!findRouteEnd(connection, coreKeys::from(), from) || !findRouteEnd(connection, coreKeys::to(), to))
        return QPainterPath();
    return roundedLine(routeOf(connection, from, to));
}

QString elementLabel(const ElementImpl& element)
{
    if (isConnectionElement(element) || element.instanceOf(paintKeys().textClass))
        return QString();
    const QString title = element.valueOfProperty(coreKeys::title()).toQString();
    if (!title.isEmpty())
        return title;
    if (element.kind() != NodeKind::Part || element.isReflection() || element.prototype().placeholder ||
        element.instanceOf(paintKeys().coreDomain))
        return QString();
    const QString reference = element.valueOfProperty(paintKeys().reference).toQString();
    if (!reference.isEmpty() && element.valueOfProperty(paintKeys().showReference).toBool())
        return reference;
    return translateStringFromContext(&element, element.prototype().label);
}
