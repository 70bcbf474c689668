// Paints parts from their pictures, connections as lines and texts as text.
#include "zkcore/printing/scenePainter.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/role.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/printing/elementGeometry.h"
#include "zkcore/printing/paintKeys.h"
#include "zkcore/printing/paintText.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
#include <QSvgRenderer>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace {

constexpr double millimetresPerMetre = 1000.0;
constexpr double gridStep = 5.0;
constexpr double activeFrame = 0.8;
// How much of a lamp is its lens.
constexpr double lensPart = 0.62;
constexpr int unlitDarkness = 150;

const QColor outlineColor(0x4a, 0x5a, 0x70);
const QColor labelColor(0x1d, 0x27, 0x33);
const QColor copperColor(0xc9, 0x8a, 0x3b);
const QColor controlColor(0xd7, 0xde, 0xe8);
const QColor gridColor(0, 0, 0, 24);
const QColor runningColor(0x2f, 0xb3, 0x55);

const Role& pinRole()
{
    static const Role role(QStringLiteral("pins"));
    return role;
}

const Role& controlRole()
{
    static const Role role(QStringLiteral("controls"));
    return role;
}

const Role& padRole()
{
    static const Role role(QStringLiteral("pads"));
    return role;
}

const Role& lightRole()
{
    static const Role role(QStringLiteral("light"));
    return role;
}

const Role& bodyRole()
{
    static const Role role(QStringLiteral("body"));
    return role;
}

QRectF inMillimetres(const QRectF& metres)
{
    return QRectF(metres.topLeft() * millimetresPerMetre, metres.size() * millimetresPerMetre);
}

/// The element's rectangle round its centre, in millimetres.
QRectF rectOfElement(const ElementImpl& element)
{
    const zk::Point size = element.size();
    return inMillimetres(QRectF(-size.x / 2.0, -size.y / 2.0, size.x, size.y));
}

/// Takes a transform in metres to one in millimetres.
QTransform transformInMillimetres(const QTransform& metres)
{
    return QTransform(metres.m11(), metres.m12(), metres.m21(), metres.m22(), metres.dx() * millimetresPerMetre,
                      metres.dy() * millimetresPerMetre);
}

bool isShown(const ElementImpl& element)
{
    return !element.hasProperty(coreKeys::visible()) || element.valueOfProperty(coreKeys::visible()).toBool();
}

/// The largest rectangle with the picture's proportions in the middle of another.
QRectF proportionalRect(const QSizeF& picture, const QRectF& rect)
{
    if (picture.isEmpty())
        return rect;
    QRectF result(QPointF(), picture.scaled(rect.size(), Qt::KeepAspectRatio));
    result.moveCenter(rect.center());
    return result;
}

/// The class that brought the picture of a body: a user's own class has that of the part it was made of.
const NodePrototype& pictureClassOf(const ElementImpl& element)
{
    const NodePrototype* owner = &element.prototype();
    for (const ClassId base : element.prototype().bases) {
        const NodePrototype* next = element.document()->getNodeDb()->lookupPrototype(base);
        if (!next || !(next->body == owner->body))
            break;
        owner = next;
    }
    return *owner;
}

/// Pictures are drawn in the colours that the class which brought them gives its parts at first. A part with other
/// colours has these in their place.
std::vector<ImageCache::ColorChange> colorChangesOf(const ElementImpl& element)
{
    std::vector<ImageCache::ColorChange> changes;
    for (const PropertyDefinition& definition : pictureClassOf(element).properties()) {
        if (definition.type != Value::COLOR)
            continue;
        const QColor own = element.valueOfProperty(definition.key).toQColor();
        const QColor usual = definition.defaultValue.toQColor();
        if (own.isValid() && usual.isValid() && own != usual)
            changes.emplace_back(usual, own);
    }
    return changes;
}

QPolygonF arrowHead(const QPointF& tip, const QPointF& direction)
{
    const double length = paintMeasures::arrowLength * millimetresPerMetre;
    const double half = paintMeasures::arrowWidth * millimetresPerMetre / 2.0;
    const QPointF base = tip - direction * length;
    const QPointF across(-direction.y() * half, direction.x() * half);
    return QPolygonF({tip, base + across, base - across});
}

} // namespace

ScenePainter::ScenePainter(QPainter& painter) : m_painter(painter) {}

void ScenePainter::setHiddenOpacity(double opacity)
{
    m_hiddenOpacity = std::clamp(opacity, 0.0, 1.0);
}

void ScenePainter::paintElement(const ElementImpl& element)
{
    m_painter.save();
    m_painter.scale(1.0 / millimetresPerMetre, 1.0 / millimetresPerMetre);
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    // The texts of the document, not the language of the program, decide from which side they are read.
    m_painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    if (beginElement(element)) {
        if (element.instanceOf(paintKeys().connectionClass)) {
            paintConnection(element);
        } else {
            m_painter.save();
            m_painter.setTransform(transformInMillimetres(elementTransform(element)), true);
            if (element.kind() == NodeKind::Subpart)
                paintSubpart(element, true);
            else
                paintPart(element);
            m_painter.restore();
            paintLabel(element);
        }
    }
    m_painter.restore();
}

void ScenePainter::paintSpace(const SpaceImpl& space, const QRectF& area)
{
    paintBackground(space);
    for (const PartImpl* part : space.parts())
        if (area.isEmpty() || elementBounds(*part).intersects(area))
            paintElement(*part);
}

void ScenePainter::paintBackground(const SpaceImpl& space)
{
    const zk::Point size = space.valueOfProperty(coreKeys::size()).toPoint();
    const QRectF rect = inMillimetres(QRectF(0.0, 0.0, size.x, size.y));
    m_painter.save();
    m_painter.scale(1.0 / millimetresPerMetre, 1.0 / millimetresPerMetre);
    const QColor background = space.valueOfProperty(paintKeys().background).toQColor();
    if (background.isValid())
        m_painter.fillRect(rect, background);
    if (space.valueOfProperty(paintKeys().showGrid).toBool()) {
        m_painter.setPen(QPen(gridColor, 0.1));
        for (int i = 1; i * gridStep < rect.width(); ++i)
            m_painter.drawLine(QLineF(i * gridStep, 0.0, i * gridStep, rect.height()));
        for (int i = 1; i * gridStep < rect.height(); ++i)
            m_painter.drawLine(QLineF(0.0, i * gridStep, rect.width(), i * gridStep));
    }
    m_painter.restore();
}

/// False when the element is not painted at all.
bool ScenePainter::beginElement(const ElementImpl& element)
{
    if (isShown(element))
        return true;
    if (m_hiddenOpacity <= 0.0)
        return false;
    m_painter.setOpacity(m_painter.opacity() * m_hiddenOpacity);
    return true;
}

void ScenePainter::paintConnection(const ElementImpl& connection)
{
    const QTransform toMillimetres = QTransform::fromScale(millimetresPerMetre, millimetresPerMetre);
    QPainterPath line = toMillimetres.map(connectionPath(connection));
    if (line.elementCount() < 2)
        return;
    QColor color = connection.valueOfProperty(paintKeys().color).toQColor();
    if (!color.isValid())
        color = outlineColor;

    if (connection.valueOfProperty(paintKeys().arrow).toBool()) {
        const QPointF tip = line.currentPosition();
        const QPainterPath::Element before = line.elementAt(line.elementCount() - 2);
        const QPointF last = tip - QPointF(before.x, before.y);
        const double length = std::hypot(last.x(), last.y());
        if (length > 0.0) {
            const QPointF direction = last / length;
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(color);
            m_painter.drawPolygon(arrowHead(tip, direction));
            // The line ends inside the head, or its blunt end would stick out at the tip.
            const QPointF end = tip - direction * std::min(paintMeasures::arrowLength * 800.0, length);
            line.setElementPositionAt(line.elementCount() - 1, end.x(), end.y());
        }
    }
    const double width = connection.valueOfProperty(paintKeys().width).toDouble() * millimetresPerMetre;
    const bool dashed = connection.valueOfProperty(paintKeys().dashed).toBool();
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(
        QPen(color, std::max(width, 0.1), dashed ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    m_painter.drawPath(line);
}

void ScenePainter::paintPart(const ElementImpl& part)
{
    const ReflectionKind reflection = part.reflectionKind();
    if (reflection == ReflectionKind::None || reflection == ReflectionKind::Body)
        paintBody(part);
    const Role& reflectedRole = reflection == ReflectionKind::Controls ? controlRole()
                                : reflection == ReflectionKind::Pads   ? padRole()
                                                                       : bodyRole();
    for (const ElementImpl* subpart : part.allSubparts()) {
        if (reflection != ReflectionKind::None && !subpart->getRoles().contains(reflectedRole))
            continue;
        m_painter.save();
        const zk::Point position = subpart->position();
        m_painter.translate(position.x * millimetresPerMetre, position.y * millimetresPerMetre);
        m_painter.rotate(subpart->orientation() * 180.0 / M_PI);
        if (beginElement(*subpart))
            paintSubpart(*subpart, part.isReflection());
        m_painter.restore();
    }
}

/// What a subpart has no picture for is seen in the picture of its part, unless it is painted apart from it.
void ScenePainter::paintSubpart(const ElementImpl& subpart, bool reflected)
{
    const QRectF rect = rectOfElement(subpart);
    const RoleSet roles = subpart.getRoles();
    if (subpart.prototype().body.isValid()) {
        paintPicture(subpart, subpart.prototype().body, rect);
    } else if (subpart.prototype().placeholder) {
        paintBody(subpart);
    } else if (roles.contains(pinRole())) {
        const double radius = std::clamp(std::min(rect.width(), rect.height()) / 2.0, 0.3, 1.0);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(outlineColor);
        m_painter.drawEllipse(QPointF(), radius, radius);
    } else if (roles.contains(padRole())) {
        const double ring = std::min(rect.width(), rect.height()) * 0.25;
        m_painter.setPen(QPen(copperColor, ring));
        m_painter.setBrush(Qt::white);
        m_painter.drawEllipse(rect.adjusted(ring / 2.0, ring / 2.0, -ring / 2.0, -ring / 2.0));
    } else if (roles.contains(controlRole()) && reflected) {
        m_painter.setPen(QPen(outlineColor, 0.25));
        m_painter.setBrush(controlColor);
        const double radius = std::min(rect.width(), rect.height()) * 0.25;
        m_painter.drawRoundedRect(rect, radius, radius);
        m_painter.drawEllipse(rect.center(), radius, radius);
    }
    for (const ElementImpl* inner : subpart.allSubparts()) {
        m_painter.save();
        const zk::Point position = inner->position();
        m_painter.translate(position.x * millimetresPerMetre, position.y * millimetresPerMetre);
        m_painter.rotate(inner->orientation() * 180.0 / M_PI);
        if (beginElement(*inner))
            paintSubpart(*inner, reflected);
        m_painter.restore();
    }
}

void ScenePainter::paintBody(const ElementImpl& element)
{
    const QRectF rect = rectOfElement(element);
    const NodePrototype& prototype = element.prototype();
    if (prototype.placeholder) {
        m_painter.setPen(QPen(outlineColor, 0.3, Qt::DashLine));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(rect);
        drawingText::draw(m_painter, rect, Qt::AlignCenter | Qt::TextWrapAnywhere, findStringForCid(prototype.cid),
                          paintedLabelFont());
        return;
    }
    if (element.instanceOf(paintKeys().textClass)) {
        paintText(element, rect);
        return;
    }
    Resource picture = element.valueOfProperty(paintKeys().picture).toResource();
    if (!picture.isValid())
        picture = prototype.body;
    if (picture.isValid()) {
        paintPicture(element, picture, rect);
    } else {
        m_painter.setPen(QPen(outlineColor, 0.3));
        m_painter.setBrush(controlColor);
        m_painter.drawRect(rect);
    }
    if (m_labelsShown && element.instanceOf(paintKeys().blockClass)) {
        m_painter.setPen(labelColor);
        const QRectF inner = rect.adjusted(rect.width() * 0.1, 0.5, -rect.width() * 0.1, -0.5);
        drawingText::draw(m_painter, inner, Qt::AlignCenter | Qt::TextWordWrap, elementLabel(element),
                          paintedLabelFont());
    }
    paintRunningState(element, rect);
}

/// What a running flowchart does with the element: blocks that it is at are framed, lamps shine or are dark, other
/// components that are on have a ring.
void ScenePainter::paintRunningState(const ElementImpl& element, const QRectF& rect)
{
    if (element.valueOfProperty(paintKeys().active).toBool() &&
        element.valueOfProperty(paintKeys().highlight).toBool()) {
        m_painter.setPen(QPen(runningColor, activeFrame));
        m_painter.setBrush(Qt::NoBrush);
        const double inset = activeFrame / 2.0;
        m_painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), 1.0, 1.0);
    }
    const Value level = element.valueOfProperty(paintKeys().runningLevel);
    if (!level.isValid() || level.toInt() < 0)
        return;
    const double strength = level.toInt() / 100.0;
    const double radius = std::min(rect.width(), rect.height()) / 2.0;
    if (!element.getRoles().contains(lightRole())) {
        if (strength > 0.0) {
            m_painter.setPen(QPen(runningColor, activeFrame));
            m_painter.setBrush(Qt::NoBrush);
            m_painter.drawEllipse(rect.center(), radius - activeFrame, radius - activeFrame);
        }
        return;
    }
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(QColor(0, 0, 0, static_cast<int>(unlitDarkness * (1.0 - strength))));
    m_painter.drawEllipse(rect.center(), radius * lensPart, radius * lensPart);
    if (strength <= 0.0)
        return;
    QColor color = element.valueOfProperty(paintKeys().color).toQColor();
    const Value brightness = element.valueOfProperty(paintKeys().brightness);
    const double glow = strength * (brightness.isValid() ? brightness.toInt() / 100.0 : 1.0);
    QRadialGradient light(rect.center(), radius);
    light.setColorAt(0.0, QColor(255, 255, 255, static_cast<int>(235 * glow)));
    color = color.isValid() ? color.lighter(125) : QColor(Qt::white);
    color.setAlpha(static_cast<int>(200 * glow));
    light.setColorAt(0.4, color);
    color.setAlpha(static_cast<int>(150 * glow));
    light.setColorAt(0.7, color);
    color.setAlpha(0);
    light.setColorAt(1.0, color);
    m_painter.setBrush(light);
    m_painter.drawEllipse(rect.center(), radius, radius);
}

void ScenePainter::paintPicture(const ElementImpl& element, const Resource& picture, QRectF rect)
{
    if (rect.isEmpty())
        return;
    const bool keepProportions = element.valueOfProperty(paintKeys().keepProportions).toBool();
    m_painter.save();
    if (element.valueOfProperty(paintKeys().mirrored).toBool())
        m_painter.scale(-1.0, 1.0);
    if (picture.entry()->extension() == QLatin1String("svg")) {
        if (const auto renderer = ImageCache::svgRenderer(picture, colorChangesOf(element))) {
            if (keepProportions)
                rect = proportionalRect(renderer->defaultSize(), rect);
            renderer->render(&m_painter, rect);
        }
    } else {
        const QPixmap pixmap = ImageCache::getPixmap(picture);
        if (keepProportions)
            rect = proportionalRect(pixmap.size(), rect);
        m_painter.drawPixmap(rect, pixmap, QRectF(pixmap.rect()));
    }
    m_painter.restore();
    if (element.valueOfProperty(paintKeys().framed).toBool()) {
        m_painter.setPen(QPen(outlineColor, 0.3));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(rect);
    }
}

void ScenePainter::paintText(const ElementImpl& element, const QRectF& rect)
{
    if (element.valueOfProperty(paintKeys().framed).toBool()) {
        m_painter.setPen(QPen(outlineColor, 0.3));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(rect);
    }
    const double height = element.valueOfProperty(paintKeys().fontSize).toDouble() * millimetresPerMetre;
    QFont font = drawingText::fontOfHeight(height * drawingText::unitsPerMillimetre);
    font.setBold(element.valueOfProperty(paintKeys().bold).toBool());
    font.setItalic(element.valueOfProperty(paintKeys().italic).toBool());
    const QString alignment = element.valueOfProperty(paintKeys().align).toQString();
    const Qt::AlignmentFlag side = alignment == QLatin1String("center")  ? Qt::AlignHCenter
                                   : alignment == QLatin1String("right") ? Qt::AlignRight
                                                                         : Qt::AlignLeft;
    const QColor color = element.valueOfProperty(paintKeys().color).toQColor();
    m_painter.setPen(color.isValid() ? color : labelColor);
    drawingText::draw(m_painter, rect, static_cast<int>(side) | Qt::AlignTop | Qt::TextWordWrap,
                      element.valueOfProperty(paintKeys().text).toQString(), font);
}

void ScenePainter::paintLabel(const ElementImpl& element)
{
    if (!m_labelsShown || element.instanceOf(paintKeys().blockClass))
        return;
    const QString label = elementLabel(element);
    if (label.isEmpty())
        return;
    m_painter.setPen(labelColor);
    const QRectF rect = paintedLabelRect(label, elementArea(element).boundingRect());
    drawingText::draw(m_painter, inMillimetres(rect), Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip,
                      paintedLabelText(label), paintedLabelFont());
}
