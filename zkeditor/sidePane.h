#pragma once

#include "zkeditor/editPalette.h"

#include <QPointer>
#include <set>

class ElementImpl;
class ModelsBrowser;
class PaletteBox;
class PartsTree;
class PropPalette;
class ViewManager;

/// The dock window beside the document: properties, parts and models below each other, each in a collapsible item.
class ZKEDITOR_EXPORT SidePane : public EditPalette
{
    Q_OBJECT

public:
    enum PaneId : unsigned int {
        AllPanes = 1, ///< only for the constructor
        PartsTreePane = 2,
        PropertiesPane = 4,
        ModelsPane = 8
    };
    Q_ENUM(PaneId)

    /// `panes` says which panes there are to be. The parts tree is made when there is a document.
    explicit SidePane(unsigned int panes, QWidget* parent = nullptr, const char* name = "sidePane");
    ~SidePane() override;

    /// Null keeps what is shown: the panes themselves notice when their document goes.
    void setDocument(DocumentImpl* document) override;
    /// For the properties of the space on view. Not owned.
    void setViewManager(ViewManager* viewManager);

    /// Opens or closes the item of a pane; nothing happens when there is no such pane here. Fatal for other values.
    void showSection(SidePane::PaneId id, bool open);
    /// These show the side pane and open its properties; fatal when it has none.
    void showSelectedPartProperties();
    void showPartProperties(const std::set<ElementImpl*>& elements);
    void showSpaceProperties();
    /// Puts a new parts tree in the place of the old one.
    void rebuildPartsTree();

    /// The panes; null when not made.
    PartsTree* getPartsTree() const { return m_partsTree; }
    PropPalette* getPropertyPane() const { return m_propPane; }
    ModelsBrowser* getModelsBrowser() const { return m_modelsBrowser; }

Q_SIGNALS:
    /// The user chose a class in the parts tree, whichever tree is shown now. The host adds a part to the scene on
    /// view.
    void partChosen(unsigned int cid);

public Q_SLOTS:
    void selectionChanged();

protected:
    void setupTopLevelWidgets() override;

private:
    bool wants(PaneId id) const { return (m_panes & (AllPanes | id)) != 0; }

    const unsigned int m_panes;
    QPointer<DocumentImpl> m_document;
    PaletteBox* m_box = nullptr;
    PropPalette* m_propPane = nullptr;
    PartsTree* m_partsTree = nullptr;
    ModelsBrowser* m_modelsBrowser = nullptr;
};
