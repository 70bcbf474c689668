#pragma once

#include "zkcore/model/handles.h"

#include <QPointer>
#include <QTabWidget>
#include <unordered_map>

class DocumentImpl;
class PartEditor;
class QMenu;
class QToolButton;
class SceneView;
class ViewManager;

/// A tab for each scene and each open pop-up of the document, in that order. Views are made when their tab is first
/// shown. The view of the current tab is the view manager's focused view.
class SpaceTabs : public QTabWidget
{
    Q_OBJECT

public:
    SpaceTabs(ViewManager* views, PartEditor* editor, QWidget* parent = nullptr);
    ~SpaceTabs() override;

    /// Null closes all tabs. The document must be taken away before it is destroyed.
    void setDocument(DocumentImpl* document);
    /// Null when no document is shown.
    SceneView* currentView() const;
    SpaceImpl* currentSpace() const;
    /// Gives the focus to the view shown; without one to the tabs.
    void focusView();
    /// See SceneView::setReaderMode(); for all views, those made later too.
    void setReaderMode(bool reader);
    /// Shows the space's tab, which a pop-up gets if it has none yet. Only a look at the document, no change of it.
    void showSpace(SpaceImpl* space);
    /// Shows the same tabs as others of the same document, each at the same place and as large.
    void showLike(const SpaceTabs& other);
    /// Nothing happens while a scene is on view.
    void closeCurrentPopup() { onTabCloseRequested(currentIndex()); }

Q_SIGNALS:
    /// Another space is shown, or none.
    void currentSpaceChanged();
    /// Of the view shown.
    void pointerMoved(const QPointF& place);
    void pointerLeft();
    void zoomChanged(double zoom);
    void menuRequested(const QPoint& globalPlace);
    void partPressed(PartImpl* part, bool down);
    void readerKey(QChar key, bool down);
    void partRestedOn(PartImpl* part);
    /// The user has closed a pop-up.
    void popupClosed(PopupImpl* popup);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void rebuild();
    void clearTabs();
    void addTabFor(SpaceImpl* space);
    void removeTabOf(InstanceId space);
    int placeOf(SpaceImpl* space) const;
    int indexOfSpace(InstanceId space) const;
    InstanceId spaceAt(int index) const;
    SceneView* viewAt(int index) const;
    void makeView(int index);
    void updateLabel(NodeImpl* space);
    void fillPopupMenu();
    void onCurrentChanged(int index);
    void onTabCloseRequested(int index);
    void onNodeValueChanged(NodeImpl* node, PropertyKey key);
    void onLoaded();
    void activate(ElementImpl* part);

    ViewManager* m_views;
    PartEditor* m_editor;
    QPointer<DocumentImpl> m_document;
    QToolButton* m_popupButton;
    QMenu* m_popupMenu;
    bool m_inUndoRedo = false;
    bool m_rebuilding = false;
    bool m_readerMode = false;
    bool m_hadFocus = true; // before the tabs were taken away
};
