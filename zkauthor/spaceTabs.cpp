#include "zkauthor/spaceTabs.h"

#include "zkauthor/sceneView.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/view.h"

#include <QMenu>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// A menu longer than this helps nobody.
constexpr size_t popupsListed = 200;

QString withoutMnemonic(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

SpaceTabs::SpaceTabs(ViewManager* views, PartEditor* editor, QWidget* parent)
    : QTabWidget(parent), m_views(views), m_editor(editor), m_popupButton(new QToolButton(this)),
      m_popupMenu(new QMenu(m_popupButton))
{
    setObjectName(QStringLiteral("spaceTabs"));
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(false);
    tabBar()->setSelectionBehaviorOnRemove(QTabBar::SelectPreviousTab); // closing a pop-up leads back
    tabBar()->setAccessibleName(tr("Scenes and pop-ups"));
    m_popupButton->setText(tr("Po&p-ups"));
    m_popupButton->setToolTip(tr("Open the pop-up of a part"));
    m_popupButton->setAutoRaise(true);
    m_popupButton->setPopupMode(QToolButton::InstantPopup);
    m_popupButton->setMenu(m_popupMenu);
    setCornerWidget(m_popupButton);
    connect(m_popupMenu, &QMenu::aboutToShow, this, &SpaceTabs::fillPopupMenu);
    connect(this, &QTabWidget::currentChanged, this, &SpaceTabs::onCurrentChanged);
    connect(this, &QTabWidget::tabCloseRequested, this, &SpaceTabs::onTabCloseRequested);
}

SpaceTabs::~SpaceTabs()
{
    clearTabs();
}

void SpaceTabs::setDocument(DocumentImpl* document)
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    clearTabs();
    m_document = document;
    m_inUndoRedo = false;
    if (!document)
        return;
    connect(document, &DocumentImpl::SceneAdded, this, [this](const Scene& scene) {
        if (SceneImpl* added = scene.impl())
            addTabFor(added);
    });
    connect(document, &DocumentImpl::SceneRemoved, this,
            [this](const Scene& scene) { removeTabOf(scene.instanceId()); });
    connect(document, &DocumentImpl::PopupRemoved, this,
            [this](const Popup& popup) { removeTabOf(popup.instanceId()); });
    connect(document, &DocumentImpl::nodeValueChanged, this, &SpaceTabs::onNodeValueChanged);
    connect(document, &DocumentImpl::undoRedoStarted, this, [this] { m_inUndoRedo = true; });
    connect(document, &DocumentImpl::Loaded, this, &SpaceTabs::onLoaded);
    rebuild();
}

void SpaceTabs::clearTabs()
{
    const QWidget* focus = window()->focusWidget();
    if (count() > 0)
        m_hadFocus = !focus || isAncestorOf(focus);
    m_rebuilding = true;
    while (count() > 0)
        removeTabOf(spaceAt(0));
    m_rebuilding = false;
}

void SpaceTabs::rebuild()
{
    clearTabs();
    m_rebuilding = true;
    for (SceneImpl* scene : m_document->getModel()->getScenes())
        addTabFor(scene);
    for (PopupImpl* popup : m_document->getModel()->getPopups()) {
        if (popup->valueOfProperty(coreKeys::open()).toBool())
            addTabFor(popup);
    }
    m_rebuilding = false;
    setCurrentIndex(0);
    onCurrentChanged(currentIndex());
    if (m_hadFocus) // whoever works in a palette stays there
        focusView();
}

void SpaceTabs::focusView()
{
    if (SceneView* view = currentView())
        view->setFocus();
    else
        setFocus();
}

void SpaceTabs::showEvent(QShowEvent* event)
{
    QTabWidget::showEvent(event);
    // What is not on view yet cannot take the focus.
    if (!window()->focusWidget())
        focusView();
}

InstanceId SpaceTabs::spaceAt(int index) const
{
    return tabBar()->tabData(index).toUInt();
}

int SpaceTabs::indexOfSpace(InstanceId space) const
{
    for (int i = 0; i < count(); ++i) {
        if (spaceAt(i) == space)
            return i;
    }
    return -1;
}

int SpaceTabs::placeOf(SpaceImpl* space) const
{
    // Scenes stand in the order of the model, pop-ups behind them in the order of their opening.
    const ModelImpl* model = m_document->getModel();
    if (space->kind() != NodeKind::Scene)
        return count();
    const int own = model->getIndexForChild(space);
    int place = 0;
    while (place < count()) {
        const NodeImpl* other = m_document->nodeById(spaceAt(place));
        if (!other || other->kind() != NodeKind::Scene || model->getIndexForChild(other) > own)
            break;
        ++place;
    }
    return place;
}

void SpaceTabs::addTabFor(SpaceImpl* space)
{
    if (indexOfSpace(space->instanceId()) >= 0)
        return;
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    const bool outer = m_rebuilding;
    m_rebuilding = true; // the first tab becomes the current one before it has its data
    const int index = insertTab(placeOf(space), page, withoutMnemonic(space->displayName()));
    tabBar()->setTabData(index, space->instanceId());
    m_rebuilding = outer;
    if (space->kind() == NodeKind::Scene) {
        // Scenes are deleted through the menu, on purpose; only pop-ups have a close button.
        tabBar()->setTabButton(index, QTabBar::RightSide, nullptr);
        tabBar()->setTabButton(index, QTabBar::LeftSide, nullptr);
    }
    setTabToolTip(index, space->kind() == NodeKind::Scene ? tr("Scene") : tr("Pop-up"));
    if (!m_rebuilding && index == currentIndex())
        onCurrentChanged(index);
}

void SpaceTabs::removeTabOf(InstanceId space)
{
    const int index = indexOfSpace(space);
    if (index < 0)
        return;
    SceneView* view = viewAt(index);
    QWidget* page = widget(index);
    const bool outer = m_rebuilding;
    m_rebuilding = true;
    removeTab(index);
    m_rebuilding = outer;
    if (view)
        m_views->removeView(view);
    delete page;
    if (!m_rebuilding)
        onCurrentChanged(currentIndex());
}

SceneView* SpaceTabs::viewAt(int index) const
{
    const QWidget* page = widget(index);
    return page ? page->findChild<SceneView*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

SceneView* SpaceTabs::currentView() const
{
    return viewAt(currentIndex());
}

SpaceImpl* SpaceTabs::currentSpace() const
{
    const SceneView* view = currentView();
    return view ? view->space().impl() : nullptr;
}

void SpaceTabs::makeView(int index)
{
    auto* space = qobject_cast<SpaceImpl*>(m_document->nodeById(spaceAt(index)));
    if (!space)
        return;
    auto* view = new SceneView(m_document, space, m_editor);
    widget(index)->layout()->addWidget(view);
    view->show(); // the layout would show it later, and until then it could not take the focus
    connect(view, &SceneView::pointerMoved, this, &SpaceTabs::pointerMoved);
    connect(view, &SceneView::pointerLeft, this, &SpaceTabs::pointerLeft);
    connect(view, &SceneView::zoomChanged, this, &SpaceTabs::zoomChanged);
    connect(view, &SceneView::menuRequested, this, &SpaceTabs::menuRequested);
    connect(view, &SceneView::partActivated, this, &SpaceTabs::activate);
    connect(view, &SceneView::partPressed, this, &SpaceTabs::partPressed);
    connect(view, &SceneView::readerKey, this, &SpaceTabs::readerKey);
    connect(view, &SceneView::partRestedOn, this, &SpaceTabs::partRestedOn);
    // When the key has been dealt with: closing deletes the view.
    const InstanceId shown = space->instanceId();
    connect(
        view, &SceneView::leaveRequested, this, [this, shown] { onTabCloseRequested(indexOfSpace(shown)); },
        Qt::QueuedConnection);
    view->setReaderMode(m_readerMode);
    m_views->addView(view);
}

void SpaceTabs::onCurrentChanged(int index)
{
    if (m_rebuilding)
        return;
    if (index >= 0 && m_document && !viewAt(index))
        makeView(index);
    SceneView* view = viewAt(index);
    m_views->setFocusedView(view);
    if (view)
        Q_EMIT zoomChanged(view->zoom());
    Q_EMIT currentSpaceChanged();
}

void SpaceTabs::showSpace(SpaceImpl* space)
{
    if (!m_document || !NodeImpl::valid(space))
        return;
    addTabFor(space); // does nothing where it has one
    const int index = indexOfSpace(space->instanceId());
    if (index < 0)
        return;
    setCurrentIndex(index);
    if (SceneView* view = currentView())
        view->setFocus();
}

void SpaceTabs::showLike(const SpaceTabs& other)
{
    const auto show = [this](InstanceId id) {
        if (auto* space = qobject_cast<SpaceImpl*>(m_document->nodeById(id)))
            showSpace(space);
    };
    for (int i = 0; i < other.count(); ++i) {
        const SceneView* like = other.viewAt(i);
        if (!like)
            continue; // never looked at
        show(other.spaceAt(i));
        if (SceneView* view = currentView())
            view->showLike(*like);
    }
    show(other.spaceAt(other.currentIndex()));
}

void SpaceTabs::setReaderMode(bool reader)
{
    m_readerMode = reader;
    for (int i = 0; i < count(); ++i) {
        if (SceneView* view = viewAt(i))
            view->setReaderMode(reader);
    }
}

void SpaceTabs::activate(ElementImpl* part)
{
    auto* owner = qobject_cast<PartImpl*>(part);
    if (owner && owner->popup())
        showSpace(owner->popup());
}

void SpaceTabs::onTabCloseRequested(int index)
{
    auto* popup = m_document ? qobject_cast<PopupImpl*>(m_document->nodeById(spaceAt(index))) : nullptr;
    if (!popup)
        return;
    const bool hadFocus = currentView() && currentView()->hasFocus();
    const Popup closed(popup);
    if (popup->valueOfProperty(coreKeys::open()).toBool())
        m_document->executeCommand(new ShowPopupCommmand(popup->owner(), false));
    else
        removeTabOf(popup->instanceId());
    if (hadFocus && currentView())
        currentView()->setFocus();
    if (closed.valid())
        Q_EMIT popupClosed(closed.impl());
}

void SpaceTabs::onNodeValueChanged(NodeImpl* node, PropertyKey key)
{
    if (node->kind() != NodeKind::Scene && node->kind() != NodeKind::Popup)
        return;
    if (key == coreKeys::title() || key == coreKeys::id())
        updateLabel(node);
    if (key == coreKeys::open() && node->kind() == NodeKind::Popup) {
        if (node->valueOfProperty(key).toBool())
            addTabFor(static_cast<SpaceImpl*>(node));
        else
            removeTabOf(node->instanceId());
    }
}

void SpaceTabs::updateLabel(NodeImpl* space)
{
    const int index = indexOfSpace(space->instanceId());
    if (index >= 0)
        setTabText(index, withoutMnemonic(space->displayName()));
}

void SpaceTabs::onLoaded()
{
    if (!m_inUndoRedo)
        rebuild();
    m_inUndoRedo = false;
}

void SpaceTabs::fillPopupMenu()
{
    m_popupMenu->clear();
    size_t listed = 0;
    if (m_document) {
        for (PopupImpl* popup : m_document->getModel()->getPopups()) {
            if (++listed > popupsListed)
                break;
            const QString own = popup->displayName();
            const QString owner = popup->owner()->displayName();
            const QString text = own == owner ? own : tr("%1 (%2)").arg(own, owner);
            const InstanceId id = popup->instanceId();
            connect(m_popupMenu->addAction(withoutMnemonic(text)), &QAction::triggered, this, [this, id] {
                if (m_document)
                    showSpace(qobject_cast<SpaceImpl*>(m_document->nodeById(id)));
            });
        }
    }
    if (listed == 0)
        m_popupMenu->addAction(tr("No part here has a pop-up"))->setEnabled(false);
    if (listed > popupsListed)
        m_popupMenu->addAction(tr("Double-click a part to open others"))->setEnabled(false);
}
