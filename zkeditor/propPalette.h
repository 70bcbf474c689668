#pragma once

#include "zkcore/model/elementImpl.h"
#include "zkcore/model/handles.h"
#include "zkeditor/editPalette.h"
#include "zkeditor/widgets/shortcutButton.h"

#include <QPointer>
#include <memory>
#include <set>
#include <vector>

class DocumentImpl;
class FormSections;
class PaneScrollArea;
class QBoxLayout;
class SpaceImpl;
class View;
class ViewManager;

/// Shows the property form of what is selected: of one part, of several of one class together, or of the scene on
/// view. Each selection gets a new pane; the old one is unbound at once and destroyed when control is back in the event
/// loop, since the request may come from inside one of its controls.
class ZKEDITOR_EXPORT PropPalette : public EditPalette
{
    Q_OBJECT

public:
    explicit PropPalette(QWidget* parent = nullptr, const char* name = "propPalette");
    explicit PropPalette(Place place, QWidget* parent = nullptr, const char* name = "propPalette");
    ~PropPalette() override;

    /// Null lets go of the document.
    void setDocument(DocumentImpl* document) override;
    /// Tells which space is on view. Without one, the first scene counts as that. Not owned.
    void setViewManager(ViewManager* viewManager);
    void resetCaption() override;

    /// Shows what the document has selected.
    void showSelectedPartProperties();
    /// Shows the pane for these elements of the document, which are or are about to be selected.
    void showPartProperties(const std::set<ElementImpl*>& elements);

    /// Whether the scene on view is shown, as showSpaceProperties() does.
    bool showsSpaceProperties() const { return m_showsScene; }

    /// What is selected meanwhile is not followed.
    void reparent(QWidget* parent, Qt::WindowFlags windowFlags, const QPoint& position, bool showIt) override;

public Q_SLOTS:
    void selectionChanged();
    /// Shows the properties of the space on view and selects nothing.
    void showSpaceProperties();

Q_SIGNALS:
    /// A button at the top of the pane was clicked.
    void shortcutClicked(ShortcutButton::Type type);

protected Q_SLOTS:
    void onViewChanged(View* before, View* now);
    void onDocumentLoaded();
    void onUndoRedoStarted();

protected:
    void setupTopLevelWidgets() override;

    void createPartControlPane(const std::set<ElementImpl*>& elements, QWidget* parent);
    void createPartPopupControlPane(const std::set<ElementImpl*>& elements, QWidget* parent);
    void createNoPropertyControlPane(QWidget* parent);
    void createNoSelectionPane(QWidget* parent);
    void createMultipleSelectionPane(QWidget* parent);

private:
    void init();
    std::vector<std::unique_ptr<QWidget>> getFormsForPart(const ElementImpl* element,
                                                          const std::set<NodeImpl*>& nodes) const;
    void createPanelTopArea(QWidget* parent);
    void addTopArea(QWidget* parent, const std::set<NodeImpl*>& nodes);
    void addSpacePane(QWidget* parent, const std::set<SpaceImpl*>& spaces);
    void showSpace(SpaceImpl* space);
    void refreshSpacePane();
    void replaceContent(QWidget* widget);
    void storeOpenItems();
    SpaceImpl* currentSpace() const;
    std::set<NodeImpl*> selectedNodes() const;
    QString metaLabelOf(const ElementImpl* element) const;

    QPointer<DocumentImpl> m_document;
    QPointer<ViewManager> m_viewManager;
    QBoxLayout* m_layout = nullptr;
    QPointer<QWidget> m_content;
    unsigned int m_paneNumber = 0; // of the pane asked for last
    bool m_skipSelectionChange = false;
    bool m_undoRedoActive = false;
    bool m_showsScene = false;
};
