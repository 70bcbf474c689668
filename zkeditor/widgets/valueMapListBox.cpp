#include "zkeditor/widgets/valueMapListBox.h"

#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/editDelegate.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/valueMapModel.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <tuple>

namespace {

/// Numbers by their size, and before texts.
class EntryOrder : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        const auto isNumber = [this](const QModelIndex& index) {
            return index.data(sortRole()).typeId() == QMetaType::Double;
        };
        if (isNumber(left) != isNumber(right))
            return isNumber(left);
        return QSortFilterProxyModel::lessThan(left, right);
    }
};

} // namespace

ValueMapListBox::ValueMapListBox(QWidget* parent, const QString& name)
    : ListEditor(parent, name), PropertyObserver(this, Value::VALUEMAP), m_model(new ValueMapModel(this)),
      m_sorted(new EntryOrder(this))
{
    m_sorted->setSourceModel(m_model);
    m_sorted->setSortRole(Qt::UserRole);
    m_sorted->setSortLocaleAware(true);
    view()->setModel(m_sorted);
    view()->setSortingEnabled(true);
    view()->sortByColumn(ValueMapModel::KeyColumn, Qt::AscendingOrder);
    view()->header()->setSectionsMovable(false);
    view()->setAllColumnsShowFocus(false); // the cell that F2 edits
    std::tie(m_add, m_remove) = addPlusMinus(
        tr("Add"), [this] { addEntry(); }, tr("Remove"), [this] { removeSelected(); });
    m_sort = new QAction(tr("Sort by this column"), this);
    view()->addAction(m_sort);
    connect(m_sort, &QAction::triggered, this, &ValueMapListBox::sortByCurrentColumn);
    editDelegate()->setCheck([this](const QModelIndex& index, const QString& text) { return refusalOf(index, text); });
    editDelegate()->setChoices([this](const QModelIndex& index) {
        QStringList choices;
        const ValueMapRow* row = m_model->rowAt(m_sorted->mapToSource(index).row());
        if (index.column() == ValueMapModel::KindColumn) {
            for (const Value::Type type : ValueMapModel::kinds())
                choices.append(ValueMapModel::kindName(type));
        } else if (index.column() == ValueMapModel::ValueColumn && row && row->value.type() == Value::BOOL) {
            choices = {formatValueAsString(Value(true)), formatValueAsString(Value(false))};
        }
        return choices;
    });
    connect(m_model, &ValueMapModel::editAsked, this, &ValueMapListBox::edit);
    connect(view()->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ValueMapListBox::updateActions);
    updateActions();
}

bool ValueMapListBox::isKindShown() const
{
    return !view()->isColumnHidden(ValueMapModel::KindColumn);
}

void ValueMapListBox::setKindShown(bool shown)
{
    view()->setColumnHidden(ValueMapModel::KindColumn, !shown);
}

// Binding and showing

void ValueMapListBox::setupWidget()
{
    setMessage({});
    PropertyObserver::setupWidget();
    showMixed();
    updateActions();
}

void ValueMapListBox::unbind()
{
    PropertyObserver::unbind();
    updateActions();
}

void ValueMapListBox::onPropertyValueChanged(Property, Value value)
{
    if (!hasCompatibleValues()) {
        showMixedSoon();
        return;
    }
    m_noValue = false;
    const bool fits = value.isValid() && isTypeCompatible(value.type());
    m_model->setMap(fits ? value.toValueMap() : ValueMap());
    setPlaceholderText({});
    updateActions();
}

void ValueMapListBox::showMixed()
{
    if (m_props.empty() || hasCompatibleValues())
        return;
    m_noValue = true;
    m_model->setMap({});
    setPlaceholderText(tr("The selected parts have different entries. What is added becomes the entries of all."));
    updateActions();
}

void ValueMapListBox::updateActions()
{
    const bool writeable = !m_props.empty() && isPropertyWriteable();
    m_model->setEditable(writeable);
    m_add->setEnabled(writeable);
    m_remove->setEnabled(writeable && view()->selectionModel()->hasSelection());
}

void ValueMapListBox::sortByCurrentColumn()
{
    const int column = qMax(0, view()->currentIndex().column());
    const QHeaderView* header = view()->header();
    const bool falls = header->sortIndicatorSection() == column && header->sortIndicatorOrder() == Qt::AscendingOrder;
    view()->sortByColumn(column, falls ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ValueMapListBox::selectEntry(const QString& key, int number)
{
    const QModelIndex index = m_model->index(m_model->rowOf(std::pair<QString, int>(key, number)), 0);
    if (index.isValid())
        selectRows({m_sorted->mapFromSource(index).row()});
}

// Editing

bool ValueMapListBox::write(const ValueMap& map)
{
    if (m_props.empty() || !isPropertyWriteable())
        return false;
    const Value value(map);
    setMessage(refusalReason(value));
    if (!message().isEmpty() || !validateValue(value))
        return false;
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    setPropertyValue(value);
    return alive && binding == bindingNumber();
}

void ValueMapListBox::addEntry()
{
    ValueMap map;
    QSet<QString> taken;
    for (const ValueMapRow& row : m_model->rows()) {
        map.emplace(row.name, row.value);
        taken.insert(row.name);
    }
    QString key = tr("key");
    for (int number = 2; taken.contains(key); ++number)
        key = tr("key") + QString::number(number);
    const QList<int> selected = selectedRows();
    const int like = selected.isEmpty() ? 0 : m_sorted->mapToSource(m_sorted->index(selected.front(), 0)).row();
    const ValueMapRow* pattern = m_model->rowAt(like);
    const Value::Type type = pattern ? pattern->value.type() : Value::STRING;
    const Value usual = valueFromText(type, u"0");
    map.emplace(key, type == Value::BOOL    ? Value(false)
                     : type == Value::POINT ? Value(zk::Point())
                     : type == Value::COLOR ? Value(QColor(Qt::black))
                     : usual.isNumeric()    ? usual
                                            : Value(QString()));
    if (!write(map))
        return;
    selectEntry(key, 0);
    view()->edit(view()->currentIndex());
}

void ValueMapListBox::removeSelected()
{
    const QList<int> selected = selectedRows();
    QSet<int> doomed;
    for (const int row : selected)
        doomed.insert(m_sorted->mapToSource(m_sorted->index(row, 0)).row());
    if (doomed.isEmpty())
        return;
    ValueMap map;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (!doomed.contains(row))
            map.emplace(m_model->rowAt(row)->name, m_model->rowAt(row)->value);
    }
    if (!write(map))
        return;
    const int next = qMin(selected.front(), m_sorted->rowCount() - 1);
    selectRows(next < 0 ? QList<int>() : QList<int>{next});
}

QString ValueMapListBox::refusalOf(const QModelIndex& index, const QString& text) const
{
    const ValueMapRow* row = m_model->rowAt(m_sorted->mapToSource(index).row());
    if (!row)
        return {};
    if (index.column() == ValueMapModel::KeyColumn)
        return text.trimmed().isEmpty() ? tr("The key must not be empty.") : QString();
    if (index.column() == ValueMapModel::ValueColumn &&
        !ValueMapModel::valueFromTyped(row->value.type(), text).isValid())
        return tr("This text does not stand for a value of the kind \"%1\".")
            .arg(ValueMapModel::kindName(row->value.type()));
    return {};
}

void ValueMapListBox::edit(int row, int column, const QString& text)
{
    if (!m_model->rowAt(row))
        return;
    ValueMapRow edited = *m_model->rowAt(row);
    if (column == ValueMapModel::KeyColumn) {
        edited.name = text.trimmed();
    } else if (column == ValueMapModel::ValueColumn) {
        edited.value = ValueMapModel::valueFromTyped(edited.value.type(), text);
    } else {
        const Value::Type type = ValueMapModel::kindNamed(text);
        const Value converted = valueFromText(type, edited.value.toQString());
        edited.value = converted.isValid()     ? converted
                       : type == Value::STRING ? Value(edited.value.toQString())
                       : type == Value::BOOL   ? Value(edited.value.toBool())
                       : type == Value::INT    ? Value(edited.value.toInt())
                       : type == Value::DOUBLE ? Value(edited.value.toDouble())
                       : type == Value::POINT  ? Value(edited.value.toPoint())
                                               : Value(QColor(Qt::black));
    }
    if (edited.name.isEmpty() || !edited.value.isValid())
        return;
    ValueMap map;
    edited.number = 0;
    for (int i = 0; i < m_model->rowCount(); ++i) {
        const ValueMapRow& other = i == row ? edited : *m_model->rowAt(i);
        map.emplace(other.name, other.value);
        if (i < row && other.name == edited.name)
            ++edited.number;
    }
    if (column != ValueMapModel::KeyColumn) {
        write(map);
        return;
    }
    // An editor that was open there may go on to the next cell.
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    m_model->renameRow(row, edited.name, edited.number);
    const bool written = write(map);
    if (!alive || binding != bindingNumber())
        return;
    if (written)
        view()->scrollTo(view()->currentIndex());
    else
        showFirstValue();
}

void ValueMapListBox::changeEvent(QEvent* event)
{
    ListEditor::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ValueMapListBox::setEnabled(bool enabled)
{
    ListEditor::setEnabled(enabled && isPropertyWriteable());
}

void ValueMapListBox::setDisabled(bool disabled)
{
    ListEditor::setDisabled(disabled || !isPropertyWriteable());
}
