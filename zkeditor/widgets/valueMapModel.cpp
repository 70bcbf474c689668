#include "zkeditor/widgets/valueMapModel.h"

#include "zkcore/values/formatter.h"
#include "zkeditor/widgets/colorNames.h"

#include <QCoreApplication>
#include <memory>

namespace {

struct ValueKind
{
    Value::Type type;
    const char* name;
};

constexpr ValueKind valueKinds[] = {
    {Value::STRING, QT_TRANSLATE_NOOP("ValueMapModel", "Text")},
    {Value::INT, QT_TRANSLATE_NOOP("ValueMapModel", "Whole number")},
    {Value::DOUBLE, QT_TRANSLATE_NOOP("ValueMapModel", "Number")},
    {Value::BOOL, QT_TRANSLATE_NOOP("ValueMapModel", "Yes or no")},
    {Value::COLOR, QT_TRANSLATE_NOOP("ValueMapModel", "Colour")},
    {Value::POINT, QT_TRANSLATE_NOOP("ValueMapModel", "Point")},
};

QString typedText(const Value& value)
{
    if (NumericalFormatter::formats(value.type()))
        return NumericalFormatter(value.type(), std::make_shared<NumericalFormat>()).toText(value);
    if (value.type() == Value::COLOR)
        return colorNames::nameOf(value.toQColor());
    return formatValueAsString(value);
}

} // namespace

ValueMapModel::ValueMapModel(QObject* parent) : RowsModel(parent) {}

ValueMapModel::~ValueMapModel() = default;

void ValueMapModel::setMap(const ValueMap& map)
{
    std::vector<ValueMapRow> rows;
    rows.reserve(map.size());
    for (const auto& [name, value] : map) {
        const bool again = !rows.empty() && rows.back().name == name;
        rows.push_back({name, again ? rows.back().number + 1 : 0, value});
    }
    followRenames(rows);
    setRows(std::move(rows));
}

void ValueMapModel::renameRow(int row, const QString& name, int number)
{
    changeRow(row, {name, number, rowAt(row)->value});
}

std::vector<Value::Type> ValueMapModel::kinds()
{
    std::vector<Value::Type> types;
    for (const ValueKind& kind : valueKinds)
        types.push_back(kind.type);
    return types;
}

QString ValueMapModel::kindName(Value::Type type)
{
    for (const ValueKind& kind : valueKinds) {
        if (kind.type == type)
            return tr(kind.name);
    }
    return Value::typeAsString(type);
}

Value::Type ValueMapModel::kindNamed(const QString& name)
{
    for (const ValueKind& kind : valueKinds) {
        if (tr(kind.name) == name)
            return kind.type;
    }
    return Value::INVALID;
}

Value ValueMapModel::valueFromTyped(Value::Type type, const QString& text)
{
    if (type == Value::COLOR) {
        const QColor color = colorNames::colorNamed(text);
        return color.isValid() ? Value(color) : Value();
    }
    const Value value = Formatter(type).fromText(text);
    return value.type() == type ? value : Value();
}

int ValueMapModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant ValueMapModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case KeyColumn:
        return tr("Key");
    case ValueColumn:
        return tr("Value");
    case KindColumn:
        return tr("Kind");
    default:
        return {};
    }
}

QVariant ValueMapModel::data(const QModelIndex& index, int role) const
{
    const ValueMapRow* row = rowAt(index.row());
    if (!row)
        return {};
    if (role == Qt::UserRole && index.column() == ValueColumn && row->value.isNumeric())
        return row->value.toDouble(); // what is sorted by
    if (role == Qt::DecorationRole && index.column() == ValueColumn && row->value.type() == Value::COLOR)
        return row->value.toQColor();
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::UserRole)
        return {};
    switch (index.column()) {
    case KeyColumn:
        return row->name;
    case ValueColumn:
        return typedText(row->value);
    case KindColumn:
        return kindName(row->value.type());
    default:
        return {};
    }
}

Qt::ItemFlags ValueMapModel::flags(const QModelIndex& index) const
{
    const ValueMapRow* row = rowAt(index.row());
    if (!index.isValid() || !row)
        return Qt::NoItemFlags;
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const bool known = kindNamed(kindName(row->value.type())) != Value::INVALID;
    if (m_editable && (known || index.column() == KeyColumn))
        result |= Qt::ItemIsEditable;
    return result;
}

bool ValueMapModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !rowAt(index.row()))
        return false;
    if (value.toString() != data(index, Qt::EditRole).toString())
        Q_EMIT editAsked(index.row(), index.column(), value.toString());
    return true;
}
