#include "zkeditor/propPalette.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/view.h"
#include "zkeditor/formGate.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/widgets/formSections.h"
#include "zkeditor/widgets/msgPane.h"
#include "zkeditor/widgets/noSelectionPane.h"
#include "zkeditor/widgets/nodePaletteBox.h"
#include "zkeditor/widgets/paneScrollArea.h"
#include "zkeditor/widgets/panelTopArea.h"
#include "zkeditor/widgets/spacePropertyPane.h"
#include "zkeditor/widgets/updatesSuspended.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

namespace {

const Property::Key formsKey = Property::getKeyForString("meta-controlpane");
const Property::Key popupPaneKey = Property::getKeyForString("display-popup-pane-on-selection");

QWidget* newPaneHolder(QWidget* parent)
{
    auto* holder = new QWidget(parent);
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return holder;
}

/// Where the part of a pane that may scroll goes.
QWidget* scrollingPart(QWidget* holder)
{
    auto* area = new PaneScrollArea(holder);
    QWidget* pane = newPaneHolder(area);
    pane->layout()->setAlignment(Qt::AlignTop);
    area->setWidget(pane);
    holder->layout()->addWidget(area);
    return pane;
}

} // namespace

PropPalette::PropPalette(QWidget* parent, const char* name) : EditPalette(parent, name)
{
    init();
}

PropPalette::PropPalette(Place place, QWidget* parent, const char* name) : EditPalette(place, parent, name)
{
    init();
}

PropPalette::~PropPalette()
{
    if (m_content)
        PaneWidget::unbindChildren(m_content);
}

void PropPalette::init()
{
    resetCaption();
    setupTopLevelWidgets();
}

void PropPalette::setupTopLevelWidgets()
{
    m_layout = new QHBoxLayout;
    m_layout->setContentsMargins(0, 0, 0, 0);
    dockLayout()->addLayout(m_layout, 1);
    QWidget* holder = newPaneHolder(widget());
    createNoSelectionPane(holder);
    replaceContent(holder);
}

void PropPalette::resetCaption()
{
    setWindowTitle(tr("Properties"));
}

void PropPalette::setDocument(DocumentImpl* document)
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    m_undoRedoActive = false;
    if (!document) {
        const UpdatesSuspended suspended(this);
        ++m_paneNumber;
        m_showsScene = false;
        QWidget* holder = newPaneHolder(widget());
        createNoSelectionPane(holder);
        replaceContent(holder);
        return;
    }
    connect(document, &DocumentImpl::SelectionChanged, this, &PropPalette::selectionChanged);
    connect(document, &DocumentImpl::Loaded, this, &PropPalette::onDocumentLoaded);
    connect(document, &DocumentImpl::undoRedoStarted, this, &PropPalette::onUndoRedoStarted);
    connect(document, &QObject::destroyed, this, [this] { setDocument(nullptr); });
    if (!isReparenting() && !m_skipSelectionChange)
        showSelectedPartProperties();
    else
        m_skipSelectionChange = false;
}

void PropPalette::setViewManager(ViewManager* viewManager)
{
    if (m_viewManager)
        disconnect(m_viewManager, nullptr, this, nullptr);
    m_viewManager = viewManager;
    if (viewManager)
        connect(viewManager, &ViewManager::viewChanged, this, &PropPalette::onViewChanged);
}

void PropPalette::selectionChanged()
{
    if (m_document && !isReparenting() && !m_skipSelectionChange)
        showPartProperties(m_document->getSelection());
    else if (!isReparenting())
        m_skipSelectionChange = false;
}

void PropPalette::showSelectedPartProperties()
{
    ZK_ASSERT(m_document);
    showPartProperties(m_document->getSelection());
}

void PropPalette::showPartProperties(const std::set<ElementImpl*>& elements)
{
    ZK_ASSERT(m_document);
    const UpdatesSuspended suspended(this);
    const unsigned int number = ++m_paneNumber;
    m_showsScene = false;
    QWidget* holder = newPaneHolder(widget());
    if (elements.empty()) {
        createNoSelectionPane(holder);
    } else {
        const ElementImpl* element = *elements.begin();
        ZK_ASSERT(element);
        const ClassId cid = element->classId();
        if (std::any_of(elements.begin(), elements.end(), [cid](const ElementImpl* e) { return e->classId() != cid; }))
            createMultipleSelectionPane(holder);
        else if (element->hasProperty(popupPaneKey))
            createPartPopupControlPane(elements, holder);
        else
            createPartControlPane(elements, holder);
    }
    // Binding tells nobody, but what it asks for may; a pane asked for meanwhile is the newer one.
    if (number == m_paneNumber) {
        replaceContent(holder);
    } else {
        PaneWidget::unbindChildren(holder);
        holder->deleteLater();
    }
}

void PropPalette::createNoSelectionPane(QWidget* parent)
{
    resetCaption();
    createPanelTopArea(parent);
    auto* pane = new NoSelectionPane(parent);
    pane->setEnabled(m_document);
    parent->layout()->addWidget(pane);
    connect(pane, &NoSelectionPane::clicked, this, &PropPalette::showSpaceProperties);
}

void PropPalette::createMultipleSelectionPane(QWidget* parent)
{
    resetCaption();
    createPanelTopArea(parent);
    parent->layout()->addWidget(new MsgPane(tr("Multiple parts selected"), parent));
}

void PropPalette::createNoPropertyControlPane(QWidget* parent)
{
    createPanelTopArea(parent);
    parent->layout()->addWidget(new MsgPane(tr("This part has no properties"), parent));
}

QString PropPalette::metaLabelOf(const ElementImpl* element) const
{
    QString label = m_document->getMetaLabelForCID(element->classId());
    if (label.isEmpty()) {
        const QString cid = findStringForCid(element->classId());
        qWarning("PropPalette: Element %s has no meta-label information", qPrintable(cid));
        label = cid.mid(cid.lastIndexOf(QLatin1Char('/')) + 1);
    }
    return label;
}

void PropPalette::createPartControlPane(const std::set<ElementImpl*>& elements, QWidget* parent)
{
    const ElementImpl* element = elements.empty() ? nullptr : *elements.begin();
    ZK_ASSERT(element);
    setWindowTitle(QStringLiteral("%1 %2").arg(metaLabelOf(element), tr("Properties")));
    if (element->valueOfProperty(formsKey).toStringVector().empty()) {
        createNoPropertyControlPane(parent);
        return;
    }
    createPanelTopArea(parent);

    const ClassId cid = element->classId();
    const std::set<NodeImpl*> nodes = selectedNodes();
    FormSections sections;
    for (std::unique_ptr<QWidget>& form : getFormsForPart(element, nodes)) {
        if (!form)
            qFatal("PropPalette: Form contained no PaletteBoxSection");
        sections.add(std::move(form), m_document, nodes);
    }
    if (sections.empty())
        qFatal("PropPalette: Trying to load invalid ui file for part %s", qPrintable(findStringForCid(cid)));
    QWidget* pane = scrollingPart(parent);
    pane->layout()->addWidget(sections.lift(cid, pane));
    if (NodePaletteBox* box = sections.box()) {
        connect(box, &PaletteBox::layoutChanged, this, &PropPalette::onChildLayoutChanged);
        storeOpenItems(); // of the pane that is being left, perhaps for the same class
        if (!box->restoreOpenItemsFor(cid))
            box->showItem(0, true);
    }
}

std::vector<std::unique_ptr<QWidget>> PropPalette::getFormsForPart(const ElementImpl* element,
                                                                   const std::set<NodeImpl*>& nodes) const
{
    std::vector<std::unique_ptr<QWidget>> forms;
    for (const QString& name : element->valueOfProperty(formsKey).toStringVector()) {
        if (FormGate::instance().isClosed()) {
            forms.push_back(FormGate::instance().load(name, element->prototype(), *m_document->getNodeDb(), nodes));
            continue;
        }
        const Resource resource(name);
        if (resource.isValid())
            forms.emplace_back(loadUIFromResource(resource, nullptr));
    }
    return forms;
}

void PropPalette::createPartPopupControlPane(const std::set<ElementImpl*>& elements, QWidget* parent)
{
    setWindowTitle(tr("Scene Properties"));
    std::set<SpaceImpl*> spaces;
    for (ElementImpl* element : elements) {
        const auto* part = qobject_cast<PartImpl*>(element);
        ZK_ASSERT(part);
        SpaceImpl* spaceimpl = part->popup();
        ZK_ASSERT(spaceimpl);
        spaces.insert(spaceimpl);
    }
    createPanelTopArea(parent);
    addSpacePane(parent, spaces);
}

void PropPalette::addSpacePane(QWidget* parent, const std::set<SpaceImpl*>& spaces)
{
    storeOpenItems();
    QWidget* holder = scrollingPart(parent);
    auto* pane = new SpacePropertyPane(m_document, spaces, holder);
    holder->layout()->addWidget(pane);
    connect(pane, &SpacePropertyPane::layoutChanged, this, &PropPalette::onChildLayoutChanged);
}

void PropPalette::showSpaceProperties()
{
    if (!m_document)
        return;
    setWindowTitle(tr("Scene Properties"));
    const Space space = currentSpace();
    if (!m_document->getSelection().empty()) {
        m_skipSelectionChange = true;
        m_document->setSelection({});
    }
    SpaceImpl* spaceimpl = space.impl();
    ZK_ASSERT(spaceimpl);
    showSpace(spaceimpl);
}

void PropPalette::showSpace(SpaceImpl* space)
{
    const UpdatesSuspended suspended(this);
    const unsigned int number = ++m_paneNumber;
    setWindowTitle(tr("Scene Properties"));
    QWidget* holder = newPaneHolder(widget());
    addTopArea(holder, {space});
    addSpacePane(holder, {space});
    if (number == m_paneNumber) {
        m_showsScene = true;
        replaceContent(holder);
    } else {
        PaneWidget::unbindChildren(holder);
        holder->deleteLater();
    }
}

void PropPalette::refreshSpacePane()
{
    if (!m_document || !m_showsScene)
        return;
    // While a document is being exchanged or closed there may be no space on view for a moment.
    if (SpaceImpl* space = currentSpace())
        showSpace(space);
    else
        showSelectedPartProperties();
}

SpaceImpl* PropPalette::currentSpace() const
{
    if (m_viewManager) {
        SpaceImpl* space = m_viewManager->getFocusedSpace().impl();
        if (space && space->document() == m_document)
            return space;
    }
    const ModelImpl* model = m_document->getModel();
    const std::vector<SceneImpl*> scenes = model ? model->getScenes() : std::vector<SceneImpl*>();
    return scenes.empty() ? nullptr : scenes.front();
}

void PropPalette::onViewChanged(View*, View*)
{
    if (!m_undoRedoActive)
        refreshSpacePane();
}

void PropPalette::onUndoRedoStarted()
{
    m_undoRedoActive = true;
}

void PropPalette::onDocumentLoaded()
{
    m_undoRedoActive = false;
    refreshSpacePane();
}

void PropPalette::reparent(QWidget* parent, Qt::WindowFlags windowFlags, const QPoint& position, bool showIt)
{
    EditPalette::reparent(parent, windowFlags, position, showIt);
}

std::set<NodeImpl*> PropPalette::selectedNodes() const
{
    if (!m_document)
        return {};
    const ElementImplSet selection = m_document->getSelection();
    return {selection.begin(), selection.end()};
}

void PropPalette::createPanelTopArea(QWidget* parent)
{
    addTopArea(parent, selectedNodes());
}

void PropPalette::addTopArea(QWidget* parent, const std::set<NodeImpl*>& nodes)
{
    auto* top = new PanelTopArea(parent);
    parent->layout()->addWidget(top);
    top->bind(m_document, nodes);
    connect(top, &PanelTopArea::shortcutClicked, this, &PropPalette::shortcutClicked);
}

void PropPalette::storeOpenItems()
{
    if (!m_content)
        return;
    for (NodePaletteBox* box : m_content->findChildren<NodePaletteBox*>())
        box->storeOpenItems();
}

void PropPalette::replaceContent(QWidget* widget)
{
    ZK_ASSERT(widget);
    const unsigned int number = m_paneNumber;
    if (const QPointer<QWidget> old = m_content) {
        // Enters what is half typed there, upon which anything may happen.
        const QPointer<QWidget> wanted = widget;
        PaneWidget::unbindChildren(old);
        if (!wanted)
            return;
        if (number != m_paneNumber) {
            PaneWidget::unbindChildren(wanted);
            wanted->deleteLater();
            return;
        }
        if (old) {
            old->hide();
            m_layout->removeWidget(old);
            old->deleteLater();
        }
    }
    m_content = widget;
    m_layout->insertWidget(0, widget);
    widget->show();
    onChildLayoutChanged();
}
