#include "zkeditor/advancedPalette.h"

#include "zkcore/commands/viewCommands.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/widgetSupport/fonts.h"
#include "zkeditor/duplication.h"
#include "zkeditor/widgets/doubleSpinbox.h"
#include "zkeditor/widgets/leadingLabel.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/msgPane.h"
#include "zkeditor/widgets/observerCheckbox.h"
#include "zkeditor/widgets/observerLineEdit.h"
#include "zkeditor/widgets/observerStringCheckbox.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/paneScrollArea.h"
#include "zkeditor/widgets/spacePropertyPane.h"
#include "zkeditor/widgets/valueChooser.h"

#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const Property::Key clickActionKey = Property::getKeyForString("click-action");
const Property::Key opensOnKey = Property::getKeyForString("opens-on");
const Property::Key showOnceKey = Property::getKeyForString("show-once");
constexpr double metresPerMillimetre = 0.001;
constexpr int mostCopies = 100;
constexpr int popupItem = 2; // its place in the box

QGridLayout* newSectionLayout(QWidget* section)
{
    auto* layout = new QGridLayout(section);
    layout->setContentsMargins(15, 15, 15, 15);
    layout->setSpacing(8);
    layout->setColumnStretch(1, 1);
    return layout;
}

QLabel* newFieldLabel(const QString& text, QWidget* field, QWidget* parent)
{
    auto* label = new LeadingLabel(text, parent);
    label->setBuddy(field);
    QString name = text;
    field->setAccessibleName(name.remove(QLatin1Char('&')));
    return label;
}

DoubleSpinBox* addNumber(QGridLayout* layout, int row, const QString& text, DoubleSpinBox* box, double value)
{
    box->setValue(value);
    layout->addWidget(newFieldLabel(text, box, layout->parentWidget()), row, 0);
    box->editor()->setAccessibleName(box->accessibleName()); // it has the focus
    layout->addWidget(box, row, 1);
    return box;
}

} // namespace

AdvancedPalette::AdvancedPalette(QWidget* parent, const char* name) : EditPalette(parent, name)
{
    init();
}

AdvancedPalette::AdvancedPalette(Place place, QWidget* parent, const char* name) : EditPalette(place, parent, name)
{
    init();
}

AdvancedPalette::~AdvancedPalette()
{
    PaneWidget::unbindChildren(m_box);
}

void AdvancedPalette::init()
{
    resetCaption();
    setupTopLevelWidgets();
    refresh();
}

void AdvancedPalette::resetCaption()
{
    setWindowTitle(tr("Advanced"));
}

void AdvancedPalette::setupTopLevelWidgets()
{
    auto* area = new PaneScrollArea(this);
    m_box = new PaletteBox(PaletteBox::StandardStyle, area);
    m_clickSection = makeClickSection();
    m_duplicationSection = makeDuplicationSection();
    m_box->addItem(m_clickSection, tr("Click Action"));
    m_box->addItem(m_duplicationSection, tr("Duplication"));
    m_box->addItem(makePopupSection({}), tr("Pop-up"));
    area->setWidget(m_box);
    dockLayout()->addWidget(area);
    connect(m_box, &PaletteBox::layoutChanged, this, &AdvancedPalette::onChildLayoutChanged);
}

QWidget* AdvancedPalette::makeClickSection()
{
    auto* section = new QWidget;
    QGridLayout* layout = newSectionLayout(section);
    m_action = new ValueChooser(QStringLiteral("click-action"), section);
    m_action->setChoices({{tr("Nothing"), Value(QStringLiteral("nothing"))},
                          {tr("Show the pop-up"), Value(QStringLiteral("show pop-up"))},
                          {tr("Open a link"), Value(QStringLiteral("open link"))},
                          {tr("Show a scene"), Value(QStringLiteral("show scene"))}});
    m_link = new ObserverLineEdit(section);
    m_link->setModelProperty(QStringLiteral("click-link"));
    m_link->setLinkStyle(true);
    m_scene = new ValueChooser(QStringLiteral("click-scene"), section);
    m_linkLabel = newFieldLabel(tr("&Link"), m_link, section);
    m_sceneLabel = newFieldLabel(tr("&Scene"), m_scene, section);
    layout->addWidget(newFieldLabel(tr("Clic&k"), m_action, section), 0, 0);
    layout->addWidget(m_action, 0, 1);
    layout->addWidget(m_linkLabel, 1, 0);
    layout->addWidget(m_link, 1, 1);
    layout->addWidget(m_sceneLabel, 2, 0);
    layout->addWidget(m_scene, 2, 1);
    connect(m_action, &ValueChooser::chosenChanged, this, &AdvancedPalette::showClickFields);
    return section;
}

QWidget* AdvancedPalette::makeDuplicationSection()
{
    auto* section = new QWidget;
    QGridLayout* layout = newSectionLayout(section);
    const auto newOffset = [section] {
        auto* box = new DoubleSpinBox(-10000, 10000, 1, 1, section);
        box->setSuffix(tr(" mm"));
        return box;
    };
    m_count = addNumber(layout, 0, tr("&Copies"), new DoubleSpinBox(1, mostCopies, 1, 0, section), 1);
    m_offsetX = addNumber(layout, 1, tr("Offset ri&ght"), newOffset(), 5);
    m_offsetY = addNumber(layout, 2, tr("Offset &down"), newOffset(), 5);
    auto* button = new QPushButton(tr("D&uplicate"), section);
    button->setAutoDefault(false);
    button->setToolTip(tr("Adds the copies, each beside the one before it"));
    layout->addWidget(button, 3, 1);
    connect(button, &QAbstractButton::clicked, this, &AdvancedPalette::duplicate);
    Fonts::setFontRecursively(section, Fonts::Normal);
    return section;
}

void AdvancedPalette::setDocument(DocumentImpl* document)
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    if (document) {
        connect(document, &DocumentImpl::SelectionChanged, this, &AdvancedPalette::selectionChanged);
        connect(document, &DocumentImpl::SceneAdded, this, &AdvancedPalette::showScenes);
        connect(document, &DocumentImpl::SceneRemoved, this, &AdvancedPalette::showScenes);
        connect(document, &DocumentImpl::Loaded, this, &AdvancedPalette::selectionChanged);
        connect(document, &DocumentImpl::nodeValueChanged, this, [this](NodeImpl* node, PropertyKey key) {
            if (node->kind() == NodeKind::Scene && (key == coreKeys::title() || key == coreKeys::id()))
                showScenes();
        });
        connect(document, &QObject::destroyed, this, [this] { setDocument(nullptr); });
    }
    refresh();
}

void AdvancedPalette::showEvent(QShowEvent* event)
{
    EditPalette::showEvent(event);
    if (m_stale)
        refresh();
}

void AdvancedPalette::selectionChanged()
{
    if (isVisible()) {
        refresh();
        return;
    }
    m_stale = true;
    PaneWidget::unbindChildren(m_box);
}

void AdvancedPalette::refresh()
{
    m_stale = false;
    std::set<NodeImpl*> clickable;
    std::set<SpaceImpl*> popups;
    bool anyPart = false;
    const ElementImplSet selection = m_document ? m_document->getSelection() : ElementImplSet();
    for (ElementImpl* element : selection) {
        if (element->hasProperty(clickActionKey))
            clickable.insert(clickable.end(), element);
        const auto* part = qobject_cast<PartImpl*>(element);
        anyPart = anyPart || part;
        if (part && part->popup())
            popups.insert(part->popup());
    }
    bindClickSection(clickable);
    m_duplicationSection->setEnabled(anyPart);
    showPopups(popups);
}

void AdvancedPalette::bindClickSection(const std::set<NodeImpl*>& nodes)
{
    PaneWidget::unbindChildren(m_clickSection);
    m_clickSection->setEnabled(!nodes.empty());
    if (nodes.empty()) {
        m_action->setCurrentIndex(-1);
        m_linkLabel->hide();
        m_link->hide();
        m_sceneLabel->hide();
        m_scene->hide();
        return;
    }
    showScenes();
    PaneWidget::bindChildren(m_clickSection, m_document, nodes);
    showClickFields();
}

void AdvancedPalette::showScenes()
{
    const ModelImpl* model = m_document ? m_document->getModel() : nullptr;
    ValueChooser::Choices scenes{{tr("None"), Value(Node())}};
    if (model) {
        for (SceneImpl* scene : model->getScenes())
            scenes.emplace_back(scene->displayName(), Value(Node(scene)));
    }
    m_scene->setChoices(std::move(scenes));
}

void AdvancedPalette::showClickFields()
{
    const QString action = m_action->chosen().toQString();
    const bool link = action == QLatin1String("open link");
    const bool scene = action == QLatin1String("show scene");
    const bool changed = m_link->isHidden() == link || m_scene->isHidden() == scene;
    m_linkLabel->setVisible(link);
    m_link->setVisible(link);
    m_sceneLabel->setVisible(scene);
    m_scene->setVisible(scene);
    if (changed)
        onChildLayoutChanged();
}

QWidget* AdvancedPalette::makePopupSection(const std::set<SpaceImpl*>& popups)
{
    if (popups.empty())
        return new MsgPane(m_document && !m_document->getSelection().empty() ? tr("What is selected has no pop-up")
                                                                             : tr("Select a part to see its pop-up"));
    auto* section = new QWidget;
    auto* layout = new QVBoxLayout(section);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* pane = new SpacePropertyPane(m_document, popups, section);
    layout->addWidget(pane);
    connect(pane, &SpacePropertyPane::layoutChanged, this, &AdvancedPalette::onChildLayoutChanged);
    addExplanationBoxes(layout, popups);
    if (popups.size() == 1) {
        auto* button = new QPushButton(tr("Show &Pop-up"), section);
        button->setAutoDefault(false);
        layout->addWidget(button, 0, Qt::AlignHCenter);
        connect(button, &QAbstractButton::clicked, this, &AdvancedPalette::openPopup);
    }
    return section;
}

void AdvancedPalette::addExplanationBoxes(QVBoxLayout* layout, const std::set<SpaceImpl*>& popups)
{
    std::set<NodeImpl*> owners;
    for (SpaceImpl* popup : popups) {
        PartImpl* owner = static_cast<PopupImpl*>(popup)->owner();
        if (!owner->hasProperty(opensOnKey) || !owner->hasProperty(showOnceKey))
            return;
        owners.insert(owner);
    }
    auto* boxes = new QWidget(layout->parentWidget());
    auto* column = new QVBoxLayout(boxes);
    column->setContentsMargins(15, 0, 15, 8);
    auto* hover = new ObserverStringCheckBox(tr("Opens when the &mouse rests on it"), boxes);
    hover->setToolTip(tr("Opens the pop-up without a click."));
    hover->setModelProperty(opensOnKey.toString());
    hover->setOnValue(QStringLiteral("hover"));
    hover->setOffValue(QStringLiteral("click"));
    column->addWidget(hover);
    auto* once = new ObserverCheckBox(tr("Goes away &after reading"), boxes);
    once->setToolTip(tr("Hides the button once its pop-up has been closed."));
    once->setModelProperty(showOnceKey.toString());
    column->addWidget(once);
    layout->addWidget(boxes);
    PaneWidget::bindChildren(boxes, m_document, owners);
}

void AdvancedPalette::showPopups(const std::set<SpaceImpl*>& popups)
{
    const unsigned int number = ++m_popupNumber;
    QWidget* old = m_box->item(popupItem);
    PaneWidget::unbindChildren(old);
    if (number != m_popupNumber)
        return; // what was half typed there selected something else when it was entered
    m_box->replaceItem(old, makePopupSection(popups));
    // Not at once: the request may come from inside one of its controls.
    old->hide();
    old->deleteLater();
}

void AdvancedPalette::duplicate()
{
    if (!m_document)
        return;
    const int count = static_cast<int>(m_count->value());
    const zk::Point offset{m_offsetX->value() * metresPerMillimetre, m_offsetY->value() * metresPerMillimetre};
    const QPointer<AdvancedPalette> alive = this;
    if (!duplicateSelectedParts(*m_document, count, offset) && alive && m_document)
        Q_EMIT failed(m_document->lastError());
}

void AdvancedPalette::openPopup()
{
    const ElementImplSet selection = m_document ? m_document->getSelection() : ElementImplSet();
    for (ElementImpl* element : selection) {
        auto* part = qobject_cast<PartImpl*>(element);
        if (part && part->popup()) {
            m_document->executeCommand(new ShowPopupCommmand(part, true));
            return;
        }
    }
}
