// The column of the editor's main panes.
#include "zkeditor/sidePane.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/view.h"
#include "zkeditor/modelsBrowser.h"
#include "zkeditor/partsTree.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/updatesSuspended.h"

SidePane::SidePane(unsigned int panes, QWidget* parent, const char* name) : EditPalette(parent, name), m_panes(panes)
{
    setWindowTitle(tr("Side Pane"));
    setupTopLevelWidgets();
}

SidePane::~SidePane() = default;

void SidePane::setupTopLevelWidgets()
{
    m_box = new PaletteBox(PaletteBox::StandardStyle | PaletteBox::CloseToFit, this);
    connect(m_box, &PaletteBox::layoutChanged, this, &SidePane::onChildLayoutChanged);
    m_box->setChildResize(true);
    setWidget(m_box);
    if (wants(PropertiesPane)) {
        m_propPane = new PropPalette(m_box);
        m_box->addItem(m_propPane, tr("Properties"));
        m_box->showItem(m_propPane, true);
    }
    if (wants(ModelsPane)) {
        m_modelsBrowser = new ModelsBrowser(m_box);
        m_box->addItem(m_modelsBrowser, tr("Models"));
        m_box->showItem(m_modelsBrowser, false);
    }
}

void SidePane::setDocument(DocumentImpl* document)
{
    if (m_document)
        disconnect(m_document, &DocumentImpl::SelectionChanged, this, &SidePane::selectionChanged);
    m_document = document;
    if (!document)
        return;
    const UpdatesSuspended suspended(this);
    if (!m_partsTree && wants(PartsTreePane)) {
        m_partsTree = new PartsTree(document, m_box);
        connect(m_partsTree, &PartsTree::partChosen, this, &SidePane::partChosen);
        m_box->insertItem(1, m_partsTree, tr("Parts")); // open, as every new item
    } else if (m_partsTree) {
        rebuildPartsTree();
    }
    if (m_propPane)
        m_propPane->setDocument(document);
    if (m_modelsBrowser)
        m_modelsBrowser->setDocument(document);
    connect(document, &DocumentImpl::SelectionChanged, this, &SidePane::selectionChanged);
}

void SidePane::rebuildPartsTree()
{
    if (!m_partsTree)
        return;
    PartsTree* old = m_partsTree;
    m_partsTree = new PartsTree(m_document, m_box);
    m_partsTree->setFilter(old->filter());
    connect(m_partsTree, &PartsTree::partChosen, this, &SidePane::partChosen);
    m_box->replaceItem(old, m_partsTree);
    // The request may come from a choice in the old one.
    old->hide();
    old->deleteLater();
}

void SidePane::setViewManager(ViewManager* viewManager)
{
    if (m_propPane)
        m_propPane->setViewManager(viewManager);
}

void SidePane::showSection(SidePane::PaneId id, bool open)
{
    QWidget* pane = nullptr;
    switch (id) {
    case PartsTreePane:
        pane = m_partsTree;
        break;
    case PropertiesPane:
        pane = m_propPane;
        break;
    case ModelsPane:
        pane = m_modelsBrowser;
        break;
    default:
        qFatal("SidePane: Attempting to show unknown section");
    }
    if (pane)
        m_box->showItem(pane, open);
}

void SidePane::showSelectedPartProperties()
{
    ZK_ASSERT(m_propPane);
    show();
    m_propPane->showSelectedPartProperties();
    showSection(PropertiesPane, true);
}

void SidePane::showPartProperties(const std::set<ElementImpl*>& elements)
{
    ZK_ASSERT(m_propPane);
    show();
    m_propPane->showPartProperties(elements);
    showSection(PropertiesPane, true);
}

void SidePane::showSpaceProperties()
{
    ZK_ASSERT(m_propPane);
    show();
    m_propPane->showSpaceProperties();
    showSection(PropertiesPane, true);
}

void SidePane::selectionChanged()
{
    // The property palette follows the selection itself; what is open stays open.
}
