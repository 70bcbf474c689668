#include "zkeditor/widgets/propertyChoiceModel.h"

#include "zkcore/model/nodeNames.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/services/translate.h"
#include "zkeditor/widgets/valueMapModel.h"

#include <QApplication>
#include <QPalette>

namespace {

/// Collects the rows of a document, class by class quick: what a class offers is looked up once.
class ChoiceCollector
{
public:
    ChoiceCollector(const PropertyImpl* follower, bool acceptableOnly)
        : m_follower(follower), m_acceptableOnly(acceptableOnly)
    {
    }

    void look(NodeImpl* node, const QString& parentName)
    {
        const bool isPart = node->kind() == NodeKind::Part;
        const bool isSubpart = node->kind() == NodeKind::Subpart;
        const std::vector<Offer>& offers = offeredBy(node->prototype());
        QString name;
        if (!offers.empty() || node->childCount() > 0) // most subparts have neither
            name = isSubpart ? parentName + QStringLiteral(" / ") + m_names.of(node) : m_names.of(node);
        for (const Offer& offer : offers)
            rows.push_back({{node->instanceId(), INVALID_CID, offer.key}, name, offer.label});
        if (auto* space = qobject_cast<SpaceImpl*>(node))
            lookAtDomains(space);
        for (NodeImpl* child : node->children())
            look(child, isPart || isSubpart ? name : QString());
        if (auto* part = qobject_cast<PartImpl*>(node); part && part->popup())
            look(part->popup(), QString());
    }

    std::vector<PropertyChoiceRow> rows;

private:
    struct Offer
    {
        PropertyKey key;
        QString label;
    };

    void lookAtDomains(SpaceImpl* space)
    {
        for (const ClassId domain : space->getKnownDomains()) {
            const NodePrototype* prototype = space->document()->getNodeDb()->lookupPrototype(domain);
            if (!prototype)
                continue;
            for (const Offer& offer : offeredBy(*prototype))
                rows.push_back({{space->instanceId(), domain, offer.key}, space->displayName(), offer.label});
        }
    }

    const std::vector<Offer>& offeredBy(const NodePrototype& prototype)
    {
        const auto known = m_offered.constFind(&prototype);
        if (known != m_offered.constEnd())
            return *known;
        std::vector<Offer> offered;
        for (const PropertyDefinition& definition : prototype.properties()) {
            if (definition.flags.testFlag(PropertyDefinition::Invisible))
                continue;
            if (!m_acceptableOnly || (PropertyFilter::fits(m_follower->type(), definition.type) &&
                                      definition.flags.testFlag(PropertyDefinition::ProxyTarget)))
                offered.push_back({definition.key, labelOf(prototype, definition)});
        }
        return *m_offered.insert(&prototype, offered);
    }

    static QString labelOf(const NodePrototype& prototype, const PropertyDefinition& definition)
    {
        return definition.label.isEmpty() ? definition.key.toString()
                                          : translateStringForClass(prototype, definition.label);
    }

    const PropertyImpl* m_follower;
    const bool m_acceptableOnly;
    QHash<const NodePrototype*, std::vector<Offer>> m_offered;
    NodeNames m_names;
};

} // namespace

PropertyChoiceModel::PropertyChoiceModel(QObject* parent) : RowsModel(parent) {}

PropertyChoiceModel::~PropertyChoiceModel() = default;

void PropertyChoiceModel::list(DocumentImpl* document, const Property& follower, InstanceId part)
{
    m_document = document;
    m_follower = follower;
    NodeImpl* start = part != 0 ? document->nodeById(part) : document->getModel();
    if (!start || !follower.isValid()) {
        setRows({});
        return;
    }
    ChoiceCollector collector(follower.impl(), part == 0);
    collector.look(start, QString());
    setRows(std::move(collector.rows));
}

void PropertyChoiceModel::clear()
{
    m_document = nullptr;
    m_follower = Property();
    m_linked = Property();
    setRows({});
}

void PropertyChoiceModel::refresh()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, ValueColumn), index(rowCount() - 1, LinkColumn));
}

Property PropertyChoiceModel::propertyAt(int row) const
{
    const PropertyChoiceRow* chosen = rowAt(row);
    return chosen && m_document ? Property(m_document->propertyAt(chosen->address)) : Property();
}

QString PropertyChoiceModel::reasonAt(int row) const
{
    const Property candidate = propertyAt(row);
    if (!candidate.isValid() || !m_follower.isValid())
        return tr("The property is not there any more.");
    return m_follower.impl()->acceptableProxyTypes().reason(candidate);
}

int PropertyChoiceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant PropertyChoiceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case OwnerColumn:
        return tr("Part");
    case LabelColumn:
        return tr("Property");
    case TypeColumn:
        return tr("Type");
    case ValueColumn:
        return tr("Value");
    case LinkColumn:
        return tr("Link");
    default:
        return {};
    }
}

QVariant PropertyChoiceModel::data(const QModelIndex& index, int role) const
{
    const PropertyChoiceRow* row = rowAt(index.row());
    if (!row)
        return {};
    if (role == searchRole)
        return QString(row->owner + QLatin1Char(' ') + row->label);
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole) {
        const QString reason = reasonAt(index.row());
        return reason.isEmpty() ? tr("Can be linked") : reason;
    }
    if (role == Qt::ForegroundRole && !reasonAt(index.row()).isEmpty())
        return QApplication::palette().color(QPalette::PlaceholderText);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case OwnerColumn:
        return row->owner;
    case LabelColumn:
        return row->label;
    case TypeColumn:
        return ValueMapModel::kindName(propertyAt(index.row()).type());
    case ValueColumn: {
        const Property property = propertyAt(index.row());
        const Formatter* formatter = property.getFormatter();
        return formatter ? formatter->toText(property.getValue()) : formatValueAsString(property.getValue());
    }
    case LinkColumn: {
        if (m_linked.isValid() && m_linked.impl() == propertyAt(index.row()).impl())
            return tr("Linked");
        const QString reason = reasonAt(index.row());
        return reason.isEmpty() ? tr("Possible") : reason;
    }
    default:
        return {};
    }
}
