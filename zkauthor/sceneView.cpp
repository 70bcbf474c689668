#include "zkauthor/sceneView.h"

#include "zkauthor/elementItem.h"
#include "zkauthor/partEditor.h"
#include "zkauthor/partRules.h"
#include "zkauthor/spaceScene.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/model/documentImpl.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace {

bool wheelZooms = false;

constexpr double mmPerInch = 25.4;
constexpr double smallestZoom = 0.02;
constexpr double greatestZoom = 40.0;
constexpr double zoomStep = 1.25;
// How close to a part a click must be, in pixels.
constexpr double clickTolerance = 3.0;
// What an arrow key moves the selection by, in metres.
constexpr double arrowStep = 0.001;
constexpr double bigArrowStep = 0.010;

zk::Point toMetres(const QPointF& mm)
{
    return {mm.x() / 1000, mm.y() / 1000};
}

// Drags go in hundredths of a millimetre; finer is nobody's aim.
zk::Point dragOffset(const QPointF& mm)
{
    return {std::round(mm.x() * 100) / 100000, std::round(mm.y() * 100) / 100000};
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

QAccessibleInterface* makeSceneAccessible(const QString& className, QObject* object)
{
    auto* view = className == QLatin1String("SceneView") ? qobject_cast<SceneView*>(object) : nullptr;
    return view ? new QAccessibleWidget(view, QAccessible::Canvas) : nullptr;
}

} // namespace

SceneView::SceneView(DocumentImpl* document, SpaceImpl* space, PartEditor* editor, QWidget* parent)
    : QGraphicsView(parent), m_document(document), m_editor(editor), m_scene(new SpaceScene(document, space, this))
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeSceneAccessible), true);
    setObjectName(QStringLiteral("sceneView"));
    setScene(m_scene);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    setFrameShape(QFrame::NoFrame);
    setRenderHint(QPainter::Antialiasing);
    setRenderHint(QPainter::SmoothPixmapTransform);
    // A page reads from left to right whatever the language; only the scroll bars change sides.
    setTransformationAnchor(QGraphicsView::AnchorViewCenter);
    setResizeAnchor(QGraphicsView::AnchorViewCenter);
    setAccessibleName(tr("Scene %1").arg(space->displayName()));
    setAccessibleDescription(tr("Arrow keys move the selected parts by one millimetre, with Shift by ten."));
    connect(document, &DocumentImpl::undoRedoStarted, this, [this] { endGesture(true); });
    setZoom(1);
    m_followFit = true;
}

SceneView::~SceneView()
{
    setScene(nullptr);
}

Space SceneView::space() const
{
    return Space(m_scene->space());
}

double SceneView::zoom() const
{
    return transform().m11() * mmPerInch / logicalDpiX();
}

void SceneView::setZoom(double zoom)
{
    m_followFit = false;
    const double scale = std::clamp(zoom, smallestZoom, greatestZoom) * logicalDpiX() / mmPerInch;
    setTransform(QTransform::fromScale(scale, scale));
    Q_EMIT zoomChanged(this->zoom());
}

void SceneView::zoomIn()
{
    setZoom(zoom() * zoomStep);
}

void SceneView::zoomOut()
{
    setZoom(zoom() / zoomStep);
}

void SceneView::zoomToFit()
{
    // As large as it goes without scroll bars, whether there are any now or not.
    m_scene->tightenExtent();
    const QRectF extent = sceneRect();
    const QSizeF room = maximumViewportSize() - QSize(2, 2);
    if (extent.isEmpty() || room.width() <= 0 || room.height() <= 0)
        return;
    const double scale = std::min(room.width() / extent.width(), room.height() / extent.height());
    setZoom(scale * mmPerInch / logicalDpiX());
    centerOn(extent.center());
    m_followFit = true;
}

zk::Point SceneView::visibleCentre() const
{
    return toMetres(mapToScene(viewport()->rect().center()));
}

void SceneView::showLike(const SceneView& other)
{
    setZoom(other.zoom());
    centerOn(other.mapToScene(other.viewport()->rect().center()));
    m_followFit = other.m_followFit;
}

void SceneView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (m_followFit && m_mouse == Mouse::Idle)
        zoomToFit();
}

void SceneView::selectAllParts()
{
    if (m_document && m_scene->space())
        m_document->executeCommand(new SelectAllCommand(space()));
}

void SceneView::selectNext(bool backwards)
{
    const SpaceImpl* here = m_scene->space();
    if (!m_document || !here || here->childCount() == 0)
        return;
    const std::vector<ElementImpl*> selected = selectedParts(*m_document, here);
    const int count = static_cast<int>(here->childCount());
    int index = backwards ? 0 : count - 1;
    if (!selected.empty())
        index = here->getIndexForChild(backwards ? selected.front() : selected.back());
    index = (index + (backwards ? count - 1 : 1)) % count;
    auto* element = qobject_cast<ElementImpl*>(here->getChildAt(static_cast<unsigned>(index)));
    if (!element)
        return;
    m_document->setSelection({element});
    if (const ElementItem* item = m_scene->itemFor(element))
        ensureVisible(item);
}

bool SceneView::event(QEvent* event)
{
    // While something is being moved no shortcut may start another command in the middle of it.
    if (event->type() == QEvent::ShortcutOverride && (m_mouse != Mouse::Idle || m_move.isActive())) {
        event->accept();
        return true;
    }
    return QGraphicsView::event(event);
}

bool SceneView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !m_readerMode || !m_scene->space())
        return QGraphicsView::viewportEvent(event);
    const QPoint place = static_cast<const QHelpEvent*>(event)->pos();
    auto* part = qobject_cast<PartImpl*>(m_scene->partAt(mapToScene(place), clickTolerance / transform().m11()));
    if (part && m_readerPart.instanceId() == 0)
        Q_EMIT partRestedOn(part);
    return true;
}

void SceneView::press(ElementImpl* part, Qt::KeyboardModifiers modifiers)
{
    ElementImplSet selection = m_document->getSelection();
    const bool selected = selection.contains(part);
    m_selectOnRelease = false;
    if (modifiers & (Qt::ShiftModifier | Qt::ControlModifier)) {
        if (selected)
            selection.erase(part);
        else
            selection.insert(part);
        m_document->setSelection(selection);
    } else if (!selected) {
        m_document->setSelection({part});
    } else {
        m_selectOnRelease = selection.size() > 1; // unless it becomes a drag of all of them
    }
}

void SceneView::mousePressEvent(QMouseEvent* event)
{
    if (!m_document || !m_scene->space())
        return;
    endGesture(true);
    m_pressPlace = event->position().toPoint();
    m_pressMm = mapToScene(m_pressPlace);
    if (event->button() == Qt::MiddleButton) {
        m_mouse = Mouse::Panning;
        viewport()->setCursor(Qt::ClosedHandCursor);
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    ElementImpl* part = m_scene->partAt(m_pressMm, clickTolerance / transform().m11());
    if (part && m_readerMode) {
        m_readerPart = Part(qobject_cast<PartImpl*>(part));
        Q_EMIT partPressed(m_readerPart.impl(), true);
        return;
    }
    if (part) {
        m_mouse = Mouse::PressedOnPart;
        m_pressedPart = part->instanceId();
        press(part, event->modifiers());
        return;
    }
    m_mouse = Mouse::RubberBand;
    m_bandEnd = m_pressMm;
    m_addToSelection = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
}

void SceneView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    const QPointF mm = mapToScene(place);
    Q_EMIT pointerMoved(mm);
    if (!m_document)
        return;
    switch (m_mouse) {
    case Mouse::Idle:
        break;
    case Mouse::PressedOnPart:
        if ((place - m_pressPlace).manhattanLength() < QApplication::startDragDistance())
            break;
        m_selectOnRelease = false;
        if (!m_move.begin(m_document, selectedParts(*m_document, m_scene->space()))) {
            m_mouse = Mouse::Idle;
            break;
        }
        m_mouse = Mouse::DraggingParts;
        m_scene->holdExtent(true);
        [[fallthrough]];
    case Mouse::DraggingParts:
        m_move.moveTo(dragOffset(mm - m_pressMm));
        break;
    case Mouse::RubberBand:
        m_bandEnd = mm;
        viewport()->update();
        break;
    case Mouse::Panning: {
        m_followFit = false;
        const QPoint delta = place - m_pressPlace;
        m_pressPlace = place;
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - (isRightToLeft() ? -delta.x() : delta.x()));
        verticalScrollBar()->setValue(verticalScrollBar()->value() - delta.y());
        break;
    }
    }
}

void SceneView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_readerPart.instanceId() != 0 && event->button() == Qt::LeftButton) {
        const Part pressed = m_readerPart;
        m_readerPart = {};
        if (PartImpl* part = pressed.impl())
            Q_EMIT partPressed(part, false);
        return;
    }
    const bool panned = m_mouse == Mouse::Panning && event->button() == Qt::MiddleButton;
    if (event->button() != Qt::LeftButton && !panned)
        return;
    if (m_mouse == Mouse::DraggingParts) {
        m_move.moveTo(dragOffset(mapToScene(event->position().toPoint()) - m_pressMm));
    } else if (m_mouse == Mouse::RubberBand) {
        m_bandEnd = mapToScene(event->position().toPoint());
        finishRubberBand();
    } else if (m_mouse == Mouse::PressedOnPart && m_selectOnRelease && m_document) {
        if (auto* part = qobject_cast<ElementImpl*>(m_document->nodeById(m_pressedPart)))
            m_document->setSelection({part});
    }
    endGesture(true);
}

void SceneView::setWheelZooms(bool zooms)
{
    wheelZooms = zooms;
}

void SceneView::setReaderMode(bool reader)
{
    endGesture(true);
    m_readerMode = reader;
    m_readerPart = {};
    m_scene->setReaderMode(reader);
}

bool SceneView::isReaderKey(const QKeyEvent* event) const
{
    return m_readerMode && !(event->modifiers() & ~Qt::ShiftModifier) && event->text().size() == 1 &&
           event->text().at(0).isLetterOrNumber();
}

void SceneView::finishRubberBand()
{
    m_mouse = Mouse::Idle;
    viewport()->update();
    if (!m_document || !m_scene->space())
        return;
    ElementImplSet selection;
    if (m_addToSelection)
        selection = m_document->getSelection();
    if (!rubberBandRect().isEmpty()) {
        for (ElementImpl* part : m_scene->partsIn(rubberBandRect()))
            selection.insert(part);
    }
    m_document->setSelection(selection);
}

QRectF SceneView::rubberBandRect() const
{
    return QRectF(m_pressMm, m_bandEnd).normalized();
}

void SceneView::endGesture(bool keep)
{
    const bool dragged = m_mouse == Mouse::DraggingParts;
    if (m_mouse == Mouse::Panning)
        viewport()->unsetCursor();
    if (m_mouse == Mouse::RubberBand)
        viewport()->update();
    m_mouse = Mouse::Idle;
    m_arrowKey = 0;
    m_selectOnRelease = false;
    if (keep)
        m_move.finish();
    else
        m_move.cancel();
    if (dragged)
        m_scene->holdExtent(false);
}

void SceneView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_readerMode) {
        mousePressEvent(event); // for a reader it is one more press
        return;
    }
    ElementImpl* part = nullptr;
    if (event->button() == Qt::LeftButton && m_scene->space())
        part = m_scene->partAt(mapToScene(event->position().toPoint()), clickTolerance / transform().m11());
    if (part && !(event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)))
        Q_EMIT partActivated(part);
    else
        mousePressEvent(event);
}

bool SceneView::moveByKey(QKeyEvent* event)
{
    if (!isArrow(event->key()) || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    // From the press to the release is one step; a repeat without its press (the focus came in between) starts one too.
    if (!m_move.isActive() || m_arrowKey != event->key() || !event->isAutoRepeat()) {
        endGesture(true);
        if (!m_document || !m_move.begin(m_document, selectedParts(*m_document, m_scene->space())))
            return !m_document || !m_document->getSelection().empty();
        m_arrowKey = event->key();
    }
    const double step = event->modifiers() & Qt::ShiftModifier ? bigArrowStep : arrowStep;
    zk::Point offset = m_move.offset();
    switch (event->key()) {
    case Qt::Key_Left:
        offset.x -= step;
        break;
    case Qt::Key_Right:
        offset.x += step;
        break;
    case Qt::Key_Up:
        offset.y -= step;
        break;
    default:
        offset.y += step;
        break;
    }
    m_move.moveTo(offset);
    return true;
}

void SceneView::keyPressEvent(QKeyEvent* event)
{
    if (m_mouse != Mouse::Idle) {
        if (event->key() == Qt::Key_Escape)
            endGesture(false);
        event->accept();
        return;
    }
    if (isReaderKey(event)) {
        if (!event->isAutoRepeat())
            Q_EMIT readerKey(event->text().at(0), true);
        return;
    }
    if (moveByKey(event))
        return;
    if (m_move.isActive())
        endGesture(event->key() != Qt::Key_Escape);
    if (!m_document)
        return;
    if (event->key() == Qt::Key_Escape) {
        if (m_document->getSelection().empty())
            Q_EMIT leaveRequested();
        else
            m_document->setSelection({});
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        const std::vector<ElementImpl*> selected = selectedParts(*m_document, m_scene->space());
        if (selected.size() != 1)
            return;
        const Part chosen(qobject_cast<PartImpl*>(selected.front()));
        if (!m_readerMode) {
            Q_EMIT partActivated(selected.front());
        } else if (chosen.valid() && !event->isAutoRepeat()) {
            Q_EMIT partPressed(chosen.impl(), true);
            if (PartImpl* part = chosen.impl())
                Q_EMIT partPressed(part, false);
        }
        return;
    }
    QGraphicsView::keyPressEvent(event);
}

void SceneView::keyReleaseEvent(QKeyEvent* event)
{
    if (isReaderKey(event)) {
        if (!event->isAutoRepeat())
            Q_EMIT readerKey(event->text().at(0), false);
        return;
    }
    if (isArrow(event->key()) && !event->isAutoRepeat() && event->key() == m_arrowKey)
        endGesture(true);
    else
        QGraphicsView::keyReleaseEvent(event);
}

void SceneView::focusOutEvent(QFocusEvent* event)
{
    if (m_arrowKey != 0)
        endGesture(true);
    QGraphicsView::focusOutEvent(event);
}

void SceneView::leaveEvent(QEvent* event)
{
    Q_EMIT pointerLeft();
    QGraphicsView::leaveEvent(event);
}

void SceneView::wheelEvent(QWheelEvent* event)
{
    const bool control = event->modifiers() & Qt::ControlModifier;
    if (control == wheelZooms) {
        if (m_mouse == Mouse::Idle)
            QGraphicsView::wheelEvent(event);
        return;
    }
    event->accept();
    if (event->angleDelta().y() == 0)
        return;
    // What is under the pointer stays there.
    const QPoint pointer = event->position().toPoint();
    const QPointF before = mapToScene(pointer);
    setZoom(zoom() * std::pow(zoomStep, event->angleDelta().y() / 120.0));
    const QPointF centre = mapToScene(viewport()->rect().center());
    centerOn(centre + before - mapToScene(pointer));
}

void SceneView::contextMenuEvent(QContextMenuEvent* event)
{
    if (!m_document || m_mouse != Mouse::Idle)
        return;
    if (event->reason() == QContextMenuEvent::Mouse) {
        ElementImpl* part = m_scene->partAt(mapToScene(event->pos()), clickTolerance / transform().m11());
        if (part && !m_document->getSelection().contains(part))
            m_document->setSelection({part});
    }
    Q_EMIT menuRequested(event->globalPos());
}

void SceneView::dragEnterEvent(QDragEnterEvent* event)
{
    if (PartEditor::canDrop(event->mimeData()))
        event->acceptProposedAction();
}

void SceneView::dragMoveEvent(QDragMoveEvent* event)
{
    if (PartEditor::canDrop(event->mimeData()))
        event->acceptProposedAction();
}

void SceneView::dropEvent(QDropEvent* event)
{
    const QPointF place = mapToScene(event->position().toPoint());
    if (m_editor->drop(m_scene->space(), event->mimeData(), toMetres(place)))
        event->acceptProposedAction();
    setFocus();
}

void SceneView::drawForeground(QPainter* painter, const QRectF&)
{
    if (m_mouse != Mouse::RubberBand || rubberBandRect().isEmpty())
        return;
    QColor fill = palette().color(QPalette::Highlight);
    painter->setPen(QPen(fill, 0));
    fill.setAlpha(40);
    painter->setBrush(fill);
    painter->drawRect(rubberBandRect());
}
