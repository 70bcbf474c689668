// Everything that a node's properties say about themselves, as a table.
#include "zkeditor/propertyTableModel.h"

#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/storage/packageWords.h"
#include "zkcore/values/formatter.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

// Longer texts (of lists and maps) would only slow the table down; the tool tip shows more.
constexpr qsizetype longestCellText = 300;
constexpr qsizetype longestToolTip = 4000;

QString shortened(const QString& text, qsizetype limit)
{
    return text.size() <= limit ? text : text.left(limit - 1) + QChar(0x2026);
}

QString keyText(const PropertyImpl& property)
{
    const QString key = property.key().toString();
    return property.domain() == INVALID_CID ? key : findStringForCid(property.domain()) + QLatin1Char(' ') + key;
}

QString flagsText(const PropertyImpl& property)
{
    QStringList words;
    for (const packageWords::FlagName& flag : packageWords::flags) {
        bool set = property.definition().flags & flag.flag;
        // These two can be changed while the program runs.
        if (flag.flag == PropertyDefinition::ReadOnly)
            set = property.isReadOnly();
        else if (flag.flag == PropertyDefinition::UIHidden)
            set = property.isUIHidden();
        if (set)
            words.append(QLatin1String(flag.name));
    }
    return words.join(QLatin1Char(' '));
}

QString targetText(const PropertyImpl& property)
{
    const PropertyImpl* target = property.proxySubject();
    if (!target)
        return {};
    return QStringLiteral("%1 [%2] %3")
        .arg(target->owner()->displayName(), QString::number(target->owner()->instanceId()), keyText(*target));
}

QString unitText(const PropertyImpl& property)
{
    const auto* formatter = dynamic_cast<const NumericalFormatter*>(property.getFormatter());
    if (!formatter || formatter->currentUnit().isNull())
        return {};
    const Unit unit = formatter->currentUnit();
    return unit.abbreviatedName().isEmpty() ? unit.name() : unit.abbreviatedName();
}

QString valueText(const PropertyImpl& property)
{
    const Value value = property.getValue();
    const Formatter* formatter = property.getFormatter();
    return formatter ? formatter->toText(value) : formatValueAsString(value);
}

} // namespace

PropertyTableModel::PropertyTableModel(QObject* parent) : QAbstractTableModel(parent) {}
PropertyTableModel::~PropertyTableModel() = default;

void PropertyTableModel::setNode(const Node& node)
{
    if (node == m_node)
        return;
    beginResetModel();
    dropConnections();
    m_rows.clear();
    m_node = node;
    if (NodeImpl* impl = node.impl()) {
        connect(impl, &NodeImpl::beingDeleted, this, &PropertyTableModel::onNodeDeleted);
        for (const PropertyKey key : impl->propertyKeys())
            addRow(impl->getProperty(key));
        if (auto* space = qobject_cast<SpaceImpl*>(impl)) {
            for (const ClassId domain : space->getKnownDomains()) {
                for (const PropertyKey key : space->getPropertyKeys(domain))
                    addRow(space->getProperty(key, domain));
            }
        }
    } else {
        m_node = Node();
    }
    endResetModel();
}

void PropertyTableModel::addRow(PropertyImpl* property)
{
    const int row = static_cast<int>(m_rows.size());
    m_rows.emplace_back(property);
    const auto refresh = [this, row] { refreshRow(row); };
    connect(property, &PropertyImpl::ValueChanged, this, refresh);
    connect(property, &PropertyImpl::ProxyTargetChanged, this, refresh);
    connect(property, &PropertyImpl::userCanEditChanged, this, refresh);
    connect(property, &PropertyImpl::userVisibilityChanged, this, refresh);
    connect(property, &PropertyImpl::userVisibleLabelChanged, this, refresh);
    connect(property, &PropertyImpl::formatterChanged, this, refresh);
}

void PropertyTableModel::dropConnections()
{
    if (NodeImpl* impl = m_node.impl())
        impl->disconnect(this);
    for (const Property& row : m_rows) {
        if (PropertyImpl* property = row.impl())
            property->disconnect(this);
    }
}

void PropertyTableModel::onNodeDeleted(Node)
{
    setNode(Node());
}

void PropertyTableModel::refreshRow(int row)
{
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

Property PropertyTableModel::propertyAt(int row) const
{
    return row >= 0 && row < rowCount() ? m_rows[static_cast<size_t>(row)] : Property();
}

int PropertyTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int PropertyTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString PropertyTableModel::text(const PropertyImpl& property, int column) const
{
    switch (column) {
    case KeyColumn:
        return keyText(property);
    case LabelColumn:
        return property.getUserVisibleLabel();
    case TypeColumn:
        return Value::typeAsString(property.type());
    case ValueColumn:
        return valueText(property);
    case UnitColumn:
        return unitText(property);
    case FlagsColumn:
        return flagsText(property);
    case TargetColumn:
        return targetText(property);
    default:
        return {};
    }
}

QVariant PropertyTableModel::data(const QModelIndex& index, int role) const
{
    const PropertyImpl* property = index.isValid() ? propertyAt(index.row()).impl() : nullptr;
    if (!property)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shortened(text(*property, index.column()).simplified(), longestCellText);
    case Qt::ToolTipRole: {
        QString tip = text(*property, index.column());
        if (index.column() == KeyColumn || index.column() == LabelColumn)
            tip = property->definition().help.isEmpty() ? tip : property->translated(property->definition().help);
        return shortened(tip, longestToolTip).toHtmlEscaped();
    }
    case Qt::DecorationRole:
        if (index.column() == ValueColumn && property->type() == Value::COLOR)
            return property->getValue().toQColor();
        return {};
    case Qt::ForegroundRole:
        if (index.column() == ValueColumn && !property->userCanEdit())
            return QGuiApplication::palette().brush(QPalette::PlaceholderText);
        return {};
    default:
        return {};
    }
}

QVariant PropertyTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case KeyColumn:
        return tr("Key");
    case LabelColumn:
        return tr("Label");
    case TypeColumn:
        return tr("Type");
    case ValueColumn:
        return tr("Value");
    case UnitColumn:
        return tr("Unit");
    case FlagsColumn:
        return tr("Flags");
    case TargetColumn:
        return tr("Follows");
    default:
        return {};
    }
}
