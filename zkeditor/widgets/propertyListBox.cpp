#include "zkeditor/widgets/propertyListBox.h"

#include "zkcore/commands/proxyCommands.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/lineEdit.h"
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
#include <utility>

PropertyListBox::PropertyListBox(QWidget* parent, const QString& name)
    : ListEditor(parent, name), PropertyObserver(this), m_search(new LineEdit(this, QStringLiteral("search"))),
      m_parts(new ComboBox(this, QStringLiteral("parts"))), m_link(new QLabel(this)),
      m_model(new PropertyChoiceModel(this)), m_found(new QSortFilterProxyModel(this))
{
    m_search->setPlaceholderText(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_search->setAccessibleName(tr("Search for a property"));
    m_search->installEventFilter(this);
    auto* items = new QListView(m_parts);
    items->setUniformItemSizes(true);
    m_parts->setView(items);
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
    view()->installEventFilter(this);
    setTabOrder(m_search, m_parts);
    setTabOrder(m_parts, view());
    setFocusProxy(m_search);
    m_linkAction = addButton("editor/lists/link", tr("Link"), {}, [this] { link(); });
    m_detachAction = addButton("editor/lists/detach", tr("Detach"), Qt::Key_Delete, [this] { detach(); });
    connect(m_search, &QLineEdit::textChanged, m_found, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_parts, &QComboBox::activated, this, &PropertyListBox::listProperties);
    connect(view(), &QAbstractItemView::doubleClicked, this, &PropertyListBox::link);
    connect(view()->selectionModel(), &QItemSelectionModel::currentChanged, this, &PropertyListBox::updateActions);
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
    connect(document, &DocumentImpl::ElementAdded, this, &PropertyListBox::scheduleParts);
    connect(document, &DocumentImpl::ElementRemoved, this, &PropertyListBox::scheduleParts);
    connect(document, &DocumentImpl::nodeValueChanged, this, &PropertyListBox::scheduleValues);
}

void PropertyListBox::setupWidget()
{
    setMessage({});
    listParts();
    PropertyObserver::setupWidget();
}

void PropertyListBox::unbind()
{
    // The document of an older binding may be gone, but not while properties of it are bound.
    if (!m_props.empty())
        disconnect(m_document, nullptr, this, nullptr);
    PropertyObserver::unbind();
    m_model->clear();
    m_link->clear();
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
    const QVariant chosen = m_parts->currentData();
    m_parts->clear();
    m_parts->addItem(tr("All parts"), 0);
    std::vector<SpaceImpl*> spaces;
    for (SceneImpl* scene : m_document->getModel()->getScenes())
        spaces.push_back(scene);
    for (PopupImpl* popup : m_document->getModel()->getPopups())
        spaces.push_back(popup);
    for (const SpaceImpl* space : spaces) {
        for (const PartImpl* part : space->parts())
            m_parts->addItem(part->displayName(), part->instanceId());
    }
    m_parts->setCurrentIndex(qMax(0, m_parts->findData(chosen)));
    listProperties();
}

void PropertyListBox::listProperties()
{
    if (m_props.empty())
        return;
    m_model->list(m_document, Property(m_props.front()), m_parts->currentData().toUInt());
    updateActions();
}

// Many changes of the document are followed once.
void PropertyListBox::scheduleParts()
{
    if (std::exchange(m_partsPending, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_partsPending = false;
        if (!m_props.empty())
            listParts();
    });
}

void PropertyListBox::scheduleValues()
{
    if (std::exchange(m_valuesPending, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_valuesPending = false;
        m_model->refresh();
    });
}

void PropertyListBox::onPropertyValueChanged(Property, Value)
{
    showLink();
}

void PropertyListBox::onStateChanged()
{
    const QPointer<POReceiver> alive(m_receiver);
    PropertyObserver::onStateChanged();
    if (alive && !m_props.empty())
        showLink();
}

void PropertyListBox::showLink()
{
    const PropertyImpl* target = m_props.front()->proxySubject();
    m_link->setText(target ? tr("Follows %1: %2").arg(target->owner()->displayName(), target->getUserVisibleLabel())
                           : QString());
    m_link->setVisible(target != nullptr);
    scheduleValues();
    updateActions();
}

int PropertyListBox::currentRow() const
{
    return m_found->mapToSource(view()->currentIndex()).row();
}

void PropertyListBox::updateActions()
{
    const bool writeable = !m_props.empty() && isPropertyWriteable();
    const bool linked = !m_props.empty() && m_props.front()->isProxy();
    const int row = currentRow();
    m_linkAction->setEnabled(writeable && m_model->rowAt(row) && m_model->reasonAt(row).isEmpty());
    m_detachAction->setEnabled(writeable && linked);
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
    const QPointer<POReceiver> alive(m_receiver);
    std::vector<Property> followers;
    for (PropertyImpl* property : m_props)
        followers.emplace_back(property);
    UndoGroup group(m_document);
    for (const Property& follower : followers) {
        if (!follower.isValid() || follower.impl()->proxySubject() == target.impl())
            continue;
        if (group.run(new SetProxyCommand(follower, target, group.pushUndo())))
            continue;
        if (alive)
            setMessage(group.error());
        return;
    }
}

void PropertyListBox::detach()
{
    if (m_props.empty() || !isPropertyWriteable())
        return;
    const QPointer<POReceiver> alive(m_receiver);
    std::vector<Property> followers;
    for (PropertyImpl* property : m_props)
        followers.emplace_back(property);
    UndoGroup group(m_document);
    for (const Property& follower : followers) {
        if (!follower.isValid() || !follower.impl()->isProxy())
            continue;
        if (group.run(new DetachProxyCommand(follower, group.pushUndo())))
            continue;
        if (alive)
            setMessage(group.error());
        return;
    }
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
