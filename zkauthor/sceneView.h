#pragma once

#include "zkauthor/moveGesture.h"
#include "zkcore/model/handles.h"
#include "zkcore/model/view.h"

#include <QGraphicsView>
#include <QPointer>

class DocumentImpl;
class ElementImpl;
class PartEditor;
class PartImpl;
class SpaceScene;

/// Shows one space and lets the user select and move its parts with mouse and keyboard. The selection is the
/// document's.
class SceneView : public QGraphicsView, public View
{
    Q_OBJECT

public:
    /// The editor does what drops ask for; it must outlive the view.
    SceneView(DocumentImpl* document, SpaceImpl* space, PartEditor* editor, QWidget* parent = nullptr);
    ~SceneView() override;

    Space space() const override;
    SpaceScene* spaceScene() const { return m_scene; }

    /// 1 shows things in their real size.
    double zoom() const;
    /// Held between 0.02 and 40.
    void setZoom(double zoom);
    void zoomIn();
    void zoomOut();
    /// Shows the page and all parts, and goes on doing so when the view is resized, until the user zooms.
    void zoomToFit();
    /// The middle of what is visible, in metres from the space's top left corner.
    zk::Point visibleCentre() const;
    /// Takes over the zoom and the place of another view of the same space.
    void showLike(const SceneView& other);
    /// Selects the part after (or before) the selected one, back to front, and scrolls to it.
    void selectNext(bool backwards);
    void selectAllParts();

    /// While the model runs, parts under the mouse are pressed, not selected or moved, Return presses the selected one,
    /// letters and digits are the reader's, and parts that are not visible to readers are not there.
    void setReaderMode(bool reader);

    /// For all views: whether the wheel zooms, and scrolls with Ctrl, instead of the other way round. Off at first.
    static void setWheelZooms(bool zooms);

Q_SIGNALS:
    /// The mouse is at this place, in millimetres.
    void pointerMoved(const QPointF& place);
    void pointerLeft();
    void zoomChanged(double zoom);
    /// A double click on a part, or Return.
    void partActivated(ElementImpl* part);
    void menuRequested(const QPoint& globalPlace);
    /// In reader mode: the left button went down or up; the part is the one on which it went down.
    void partPressed(PartImpl* part, bool down);
    /// In reader mode: the mouse has come to rest on the part.
    void partRestedOn(PartImpl* part);
    /// Escape, where there is nothing else to leave.
    void leaveRequested();
    /// In reader mode: a letter or digit.
    void readerKey(QChar key, bool down);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class Mouse { Idle, PressedOnPart, DraggingParts, RubberBand, Panning };

    void endGesture(bool keep);
    void press(ElementImpl* part, Qt::KeyboardModifiers modifiers);
    bool isReaderKey(const QKeyEvent* event) const;
    void finishRubberBand();
    bool moveByKey(QKeyEvent* event);
    QRectF rubberBandRect() const;

    QPointer<DocumentImpl> m_document;
    PartEditor* m_editor;
    SpaceScene* m_scene;
    MoveGesture m_move;
    Mouse m_mouse = Mouse::Idle;
    QPoint m_pressPlace; // viewport
    QPointF m_pressMm;   // scene
    QPointF m_bandEnd;   // scene
    InstanceId m_pressedPart = 0;
    bool m_addToSelection = false;
    bool m_selectOnRelease = false;
    bool m_readerMode = false;
    Part m_readerPart;       // the one pressed in reader mode
    int m_arrowKey = 0;      // the one held down; 0 for none
    bool m_followFit = true; // until the user zooms, a resized view shows the whole page again
};
