#include "zkeditor/widgets/propertyListBox.h"

#include "zkcore/commands/proxyCommands.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/partChoiceModel.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/propertyChoiceModel.h"
#include "zkeditor/widgets/undoGroup.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

PropertyListBox::PropertyListBox(QWidget* parent, const QString& name)
    : ListEditor(parent, name), PropertyObserver(this), m_search(new LineEdit(this, QStringLiteral("search"))),
      m_parts(new ComboBox(this, QStringLiteral("parts"))), m_choices(new PartChoiceModel(this)),
      m_link(new QLabel(this)), m_model(new PropertyChoiceModel(this)), m_found(new QSortFilterProxyModel(this))
{
    m_search->setPlaceholderText(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_search->setAccessibleName(tr("Search for a property"));
    m_search->installEventFilter(this);
    auto* items = new QListView(m_parts);
    items->setUniformItemSizes(true);
    m_parts->setView(items);
    m_parts->setModel(m_choices);
    m_parts->setAccessibleName(tr("Part whose properties are listed"));
    m_parts->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_parts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_link->setObjectName(QStringLiteral("link"));
    m_link->setWordWrap(true);
    m_link->setTextFormat(Qt::PlainText);
    auto* above = new QHBoxLayout;
    above->setSpacing(4);
    above->addWidget(m_search, 1);
    above->addWidget(m_parts, 1);
    auto* column = static_cast<QVBoxLayout*>(layout());
    column->insertWidget(0, m_link);
    column->insertLayout(1, above);
    m_found->setSourceModel(m_model);
    m_found->setFilterRole(PropertyChoiceModel::searchRole);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    view()->setModel(m_found);
    view()->setSelectionMode(QAbstractItemView::SingleSelection);
    view()->setEditTriggers(QAbstractItemView::NoEditTriggers);
    const int letter = fontMetrics().averageCharWidth();
    for (const auto& [section, letters] : {std::pair(PropertyChoiceModel::OwnerColumn, 11),
                                           {PropertyChoiceModel::LabelColumn, 10},
                                           {PropertyChoiceModel::ValueColumn, 6},
                                           {PropertyChoiceModel::LinkColumn, 11}})
        view()->header()->resizeSection(section,
                                        std::max(letters * letter, view()->header()->sectionSizeHint(section)));
    setTabOrder(m_search, m_parts);
    setTabOrder(m_parts, view());
    setFocusProxy(m_search);
    m_linkAction = addButton("editor/lists/link", tr("Link"), {}, [this] { link(); });
    m_detachAction = addButton("editor/lists/detach", tr("Detach"), Qt::Key_Delete, [this] { detach(); });
    connect(m_search, &QLineEdit::textChanged, m_found, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_parts, &QComboBox::activated, this, &PropertyListBox::listProperties);
    connect(view(), &QAbstractItemView::doubleClicked, this, &PropertyListBox::link);
    connect(view()->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        setMessage(m_model->rowAt(currentRow()) ? m_model->reasonAt(currentRow()) : QString());
        updateActions();
    });
    setEnabled(false);
}

// Binding and showing

void PropertyListBox::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const QPointer<POReceiver> alive(m_receiver);
    m_valueType = Value::INVALID; // of whatever kind the property is
    PropertyObserver::bind(document, nodes);
    if (!alive || m_props.empty())
        return;
    setPlaceholderText(tr("Nothing is found that could be followed."));
    const auto followParts = [this] { followSoon(FollowParts); };
    connect(document, &DocumentImpl::ElementAdded, this, followParts);
    connect(document, &DocumentImpl::ElementRemoved, this, followParts);
    connect(document, &DocumentImpl::nodeValueChanged, this, [this](const NodeImpl*, PropertyKey key) {
        followSoon(key == coreKeys::id() || key == coreKeys::title() ? FollowParts : FollowValues);
    });
}

void PropertyListBox::setupWidget()
{
    setMessage({});
    listParts();
    PropertyObserver::setupWidget();
    showLink();
}

void PropertyListBox::unbind()
{
    // The document of an older binding may be gone, but not while properties of it are bound.
    if (!m_props.empty())
        disconnect(m_document, nullptr, this, nullptr);
    PropertyObserver::unbind();
    m_model->clear();
    m_link->clear();
    m_anyLinked = false;
    setPlaceholderText({});
    updateActions();
}

bool PropertyListBox::isPropertyWriteable() const
{
    return !m_props.findFrom(m_fixedAt, [](const PropertyImpl* property) {
        if (property->userCanEdit())
            return false;
        const auto* element = qobject_cast<const ElementImpl*>(property->owner());
        return !property->isProxy() || property->isReadOnly() || property->isComputed() ||
               (element && element->isEffectivelyLocked(property->definition().lockGroup));
    });
}

void PropertyListBox::listParts()
{
    const QSignalBlocker blocker(m_parts);
    const InstanceId chosen = chosenPart();
    m_choices->list(*m_document);
    m_parts->setCurrentIndex(qMax(0, m_choices->rowOf(chosen)));
    listProperties();
}

InstanceId PropertyListBox::chosenPart() const
{
    const PartChoiceRow* row = m_choices->rowAt(m_parts->currentIndex());
    return row ? row->part : 0;
}

void PropertyListBox::listProperties()
{
    if (m_props.empty())
        return;
    m_model->list(m_document, Property(m_props.front()), chosenPart());
    updateActions();
}

// Many changes of the document, or of the properties, are followed once.
void PropertyListBox::followSoon(unsigned int what)
{
    if (std::exchange(m_pending, m_pending | what) != 0)
        return;
    QTimer::singleShot(0, this, [this] {
        const unsigned int pending = std::exchange(m_pending, 0);
        if (m_props.empty())
            return;
        if (pending & FollowParts)
            listParts();
        if (pending & FollowLink)
            showLink();
        else
            m_model->refresh();
    });
}

void PropertyListBox::onPropertyValueChanged(Property, Value)
{
    followSoon(FollowLink);
}

void PropertyListBox::onStateChanged()
{
    const QPointer<POReceiver> alive(m_receiver);
    PropertyObserver::onStateChanged();
    if (alive)
        followSoon(FollowLink);
}

void PropertyListBox::showLink()
{
    PropertyImpl* target = m_props.front()->proxySubject();
    const bool differ = m_props.findFrom(
        m_linkDiffersAt, [target](const PropertyImpl* property) { return property->proxySubject() != target; });
    m_anyLinked =
        target || m_props.findFrom(m_linkedAt, [](const PropertyImpl* property) { return property->isProxy(); });
    m_link->setText(differ   ? tr("The selected parts do not follow the same.")
                    : target ? tr("Follows %1: %2").arg(target->owner()->displayName(), target->getUserVisibleLabel())
                             : QString());
    m_link->setVisible(m_anyLinked);
    m_model->setLinked(differ || !target ? Property() : Property(target));
    m_model->refresh();
    updateActions();
}

int PropertyListBox::currentRow() const
{
    return m_found->mapToSource(view()->currentIndex()).row();
}

void PropertyListBox::updateActions()
{
    const bool writeable = !m_props.empty() && isPropertyWriteable();
    const int row = currentRow();
    m_linkAction->setEnabled(writeable && m_model->rowAt(row) && m_model->reasonAt(row).isEmpty());
    m_detachAction->setEnabled(writeable && m_anyLinked);
}

// Editing

void PropertyListBox::link()
{
    const Property target = m_model->propertyAt(currentRow());
    if (m_props.empty() || !target.isValid() || !isPropertyWriteable())
        return;
    setMessage(m_model->reasonAt(currentRow()));
    if (!message().isEmpty())
        return;
    forEachFollower([target](const Property& follower, bool pushUndo) -> std::unique_ptr<Command> {
        if (follower.impl()->proxySubject() == target.impl())
            return nullptr;
        return std::make_unique<SetProxyCommand>(follower, target, pushUndo);
    });
}

void PropertyListBox::detach()
{
    if (m_props.empty() || !isPropertyWriteable())
        return;
    forEachFollower([](const Property& follower, bool pushUndo) -> std::unique_ptr<Command> {
        if (!follower.impl()->isProxy())
            return nullptr;
        return std::make_unique<DetachProxyCommand>(follower, pushUndo);
    });
}

void PropertyListBox::forEachFollower(const std::function<std::unique_ptr<Command>(const Property&, bool)>& makeCommand)
{
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    std::vector<Property> followers;
    for (PropertyImpl* property : m_props)
        followers.emplace_back(property);
    UndoGroup group(m_document);
    bool done = true;
    for (const Property& follower : followers) {
        std::unique_ptr<Command> command = follower.isValid() ? makeCommand(follower, group.pushUndo()) : nullptr;
        done = done && (!command || group.run(command.release()));
        if (!done)
            break;
    }
    if (!alive || binding != bindingNumber())
        return;
    setMessage(group.error());
    showLink();
}

bool PropertyListBox::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return ListEditor::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        link();
        return true;
    }
    if (object == m_search && key == Qt::Key_Down) {
        view()->setFocus();
        if (!view()->currentIndex().isValid())
            view()->setCurrentIndex(m_found->index(0, 0));
        return true;
    }
    return ListEditor::eventFilter(object, event);
}

void PropertyListBox::changeEvent(QEvent* event)
{
    ListEditor::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void PropertyListBox::setEnabled(bool enabled)
{
    ListEditor::setEnabled(enabled && isPropertyWriteable());
}

void PropertyListBox::setDisabled(bool disabled)
{
    ListEditor::setDisabled(disabled || !isPropertyWriteable());
}
