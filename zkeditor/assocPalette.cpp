#include "zkeditor/assocPalette.h"

#include "zkcore/commands/proxyCommands.h"
#include "zkcore/commands/reflectCommand.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/widgetSupport/fonts.h"
#include "zkeditor/associations.h"
#include "zkeditor/widgets/associationList.h"
#include "zkeditor/widgets/leadingLabel.h"
#include "zkeditor/widgets/linkPane.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/paneScrollArea.h"

#include <QUndoStack>
#include <QVBoxLayout>

namespace {

std::unique_ptr<Command> removalOf(ElementImpl& reflection)
{
    const Part original(qobject_cast<PartImpl*>(reflection.reflectionOriginal()));
    const Node container(reflection.parentNode());
    switch (reflection.reflectionKind()) {
    case ReflectionKind::Controls:
        return std::make_unique<ReflectControlsCommand>(original, container, false);
    case ReflectionKind::Pads:
        return std::make_unique<ReflectPadsCommand>(original, container, false);
    case ReflectionKind::Body:
        return std::make_unique<ReflectBodyCommand>(original, container, false);
    case ReflectionKind::None:
        break;
    }
    return nullptr;
}

} // namespace

AssocPalette::AssocPalette(QWidget* parent, const char* name) : EditPalette(parent, name)
{
    init();
}

AssocPalette::AssocPalette(Place place, QWidget* parent, const char* name) : EditPalette(place, parent, name)
{
    init();
}

void AssocPalette::init()
{
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, [this] {
        if (isVisible())
            refresh();
    });
    resetCaption();
    setupTopLevelWidgets();
    refresh();
}

void AssocPalette::resetCaption()
{
    setWindowTitle(tr("Associations"));
}

void AssocPalette::setupTopLevelWidgets()
{
    auto* area = new PaneScrollArea(this);
    m_box = new PaletteBox(PaletteBox::StandardStyle, area);
    auto* body = new QWidget(area);
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* heading = new LeadingLabel({}, body);
    heading->setMargin(8);
    heading->wrapInGivenWidth();
    m_heading = heading;
    layout->addWidget(m_heading);
    layout->addWidget(m_box, 1);
    m_links = addList(tr("Links"));
    m_subparts = addList(tr("Subparts"));
    m_reflections = addList(tr("Reflections"));
    m_popup = addList(tr("Pop-up"));
    m_newLink = new LinkPane;
    Fonts::setFontRecursively(m_newLink, Fonts::Normal);
    m_box->addItem(m_newLink, tr("New Link"));
    m_box->showItem(m_newLink, false);
    area->setWidget(body);
    dockLayout()->addWidget(area);
    connect(m_box, &PaletteBox::layoutChanged, this, &AssocPalette::onChildLayoutChanged);
}

AssociationList* AssocPalette::addList(const QString& label)
{
    auto* list = new AssociationList(label);
    list->setFont(Fonts::getWidgetFont(list, Fonts::Normal));
    m_box->addItem(list, label);
    connect(list, &AssociationList::selectRequested, this, &AssocPalette::select);
    connect(list, &AssociationList::detachRequested, this, &AssocPalette::detach);
    return list;
}

void AssocPalette::setDocument(DocumentImpl* document)
{
    if (m_document) {
        disconnect(m_document, nullptr, this, nullptr);
        disconnect(m_document->undoStack(), nullptr, this, nullptr);
    }
    m_document = document;
    if (document) {
        connect(document, &DocumentImpl::SelectionChanged, this, &AssocPalette::selectionChanged);
        connect(document, &DocumentImpl::Loaded, this, &AssocPalette::refreshSoon);
        connect(document, &DocumentImpl::ElementAdded, this, &AssocPalette::refreshSoon);
        connect(document, &DocumentImpl::ElementRemoved, this, &AssocPalette::refreshSoon);
        connect(document, &DocumentImpl::nodeValueChanged, this, [this](NodeImpl* node, PropertyKey key) {
            const PropertyDefinition* definition = node->prototype().find(key);
            if (key == coreKeys::title() || key == coreKeys::id() || (definition && definition->type == Value::NODE))
                refreshSoon();
        });
        // Links are made and ended by commands only, wherever both ends are.
        connect(document->undoStack(), &QUndoStack::indexChanged, this, &AssocPalette::refreshSoon);
        connect(document, &DocumentImpl::undoStateChanged, this, &AssocPalette::refreshSoon);
    }
    refresh();
}

void AssocPalette::showEvent(QShowEvent* event)
{
    EditPalette::showEvent(event);
    refresh();
}

void AssocPalette::selectionChanged()
{
    refreshSoon();
}

void AssocPalette::refreshSoon()
{
    if (isVisible())
        m_refresh.start();
}

void AssocPalette::refresh()
{
    const ElementImplSet selection = m_document ? m_document->getSelection() : ElementImplSet();
    m_box->setEnabled(selection.size() == 1);
    if (selection.size() == 1) {
        ElementImpl& element = **selection.begin();
        const Associations found(element);
        m_heading->setText(element.displayName());
        m_heading->setToolTip(m_heading->text());
        m_links->setAssociations(found.links);
        m_subparts->setAssociations(found.subparts);
        m_reflections->setAssociations(found.reflections);
        m_popup->setAssociations(found.popup);
        m_newLink->setElement(&element);
    } else {
        m_heading->setText(selection.empty() ? tr("Select a part to see what it has to do with.")
                                             : tr("Multiple parts selected"));
        m_heading->setToolTip({});
        for (AssociationList* list : {m_links, m_subparts, m_reflections, m_popup})
            list->setAssociations({});
        m_newLink->setElement(nullptr);
    }
    onChildLayoutChanged();
}

void AssocPalette::select(InstanceId id)
{
    NodeImpl* node = m_document ? m_document->nodeById(id) : nullptr;
    if (!node)
        return;
    if (auto* element = qobject_cast<ElementImpl*>(node)) {
        m_document->setSelection({element});
        return;
    }
    const Node handle(node);
    if (const auto* popup = qobject_cast<PopupImpl*>(node))
        m_document->executeCommand(new ShowPopupCommmand(popup->owner(), true));
    if (handle.valid())
        Q_EMIT nodeRequested(handle);
}

void AssocPalette::detach(const Association& association)
{
    if (!m_document)
        return;
    std::unique_ptr<Command> command;
    if (association.follower.isValid()) {
        if (PropertyImpl* follower = m_document->propertyAt(association.follower))
            command = std::make_unique<DetachProxyCommand>(Property(follower), true);
    } else if (auto* reflection = qobject_cast<ElementImpl*>(m_document->nodeById(association.reflection))) {
        command = removalOf(*reflection);
    }
    if (!command)
        return;
    const QPointer<AssocPalette> alive = this;
    const bool done = m_document->executeCommand(command.release()).isValid();
    if (!alive || !m_document)
        return;
    refreshSoon();
    if (!done)
        Q_EMIT failed(m_document->lastError());
}
