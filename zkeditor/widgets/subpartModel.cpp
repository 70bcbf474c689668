#include "zkeditor/widgets/subpartModel.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/nodeNames.h"
#include "zkeditor/widgets/rowDrag.h"

#include <QPixmap>
#include <QTimer>
#include <utility>

namespace {

constexpr QSize subpartIconSize(16, 16);
constexpr qsizetype mostRenamed = 100; // are looked for one by one

} // namespace

SubpartModel::SubpartModel(QObject* parent) : RowsModel(parent) {}

SubpartModel::~SubpartModel() = default;

void SubpartModel::setSelector(const QString& selector)
{
    const bool ofClass = selector.contains(QLatin1Char('/'));
    m_selector = selector;
    m_class = ofClass ? getCidForString(selector) : INVALID_CID;
    m_roles = RoleSet(ofClass ? QString() : selector);
}

void SubpartModel::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    unbind();
    m_document = document;
    for (const NodeImpl* node : nodes) {
        if (NodeImpl::valid(node) && node->kind() == NodeKind::Part)
            m_parts.push_back(node->instanceId());
    }
    std::sort(m_parts.begin(), m_parts.end());
    m_partSet = QSet<InstanceId>(m_parts.begin(), m_parts.end());
    connect(document, &DocumentImpl::ElementAdded, this, [this](const Element& element) {
        if (const ElementImpl* added = element.impl(); added && concerns(added))
            changed();
    });
    connect(document, &DocumentImpl::ElementRemoved, this, &SubpartModel::changed);
    connect(document, &DocumentImpl::nodeMoved, this, [this](const NodeImpl* node) {
        if (concerns(node))
            changed();
    });
    connect(document, &DocumentImpl::nodeValueChanged, this, &SubpartModel::onValueChanged);
    connect(document, &DocumentImpl::Loaded, this, &SubpartModel::changed);
    setRows(findRows());
}

void SubpartModel::unbind()
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = nullptr;
    m_parts.clear();
    m_partSet.clear();
    m_pending = false;
    m_stale = false;
    m_renamed.clear();
    setRows({});
}

bool SubpartModel::concerns(const NodeImpl* node) const
{
    return node->parentNode() && m_partSet.contains(node->parentNode()->instanceId());
}

void SubpartModel::onValueChanged(NodeImpl* node, PropertyKey key)
{
    const bool isName = key == coreKeys::id() || key == coreKeys::title();
    if ((!isName && key != coreKeys::roles()) || !concerns(node))
        return;
    // Subparts of several parts belong together by their ids; those of one only look different.
    if (isName && m_parts.size() == 1 && m_renamed.size() < mostRenamed)
        m_renamed.insert(node->instanceId());
    else
        m_stale = true;
    syncSoon();
}

void SubpartModel::changed()
{
    m_stale = true;
    syncSoon();
}

void SubpartModel::syncSoon()
{
    if (std::exchange(m_pending, true))
        return;
    QTimer::singleShot(0, this, &SubpartModel::sync);
}

void SubpartModel::sync()
{
    if (!std::exchange(m_pending, false))
        return;
    const QSet<InstanceId> renamed = std::exchange(m_renamed, {});
    if (std::exchange(m_stale, false)) {
        setRows(findRows());
    } else {
        for (const InstanceId id : renamed)
            updateLabel(id);
    }
    Q_EMIT synced();
}

void SubpartModel::updateLabel(InstanceId id)
{
    const int place = rowOf(id);
    const NodeImpl* node = m_document ? m_document->nodeById(id) : nullptr;
    if (place < 0 || !node)
        return;
    SubpartRow row = *rowAt(place);
    row.label = node->displayName();
    changeRow(place, std::move(row));
}

// The model

std::vector<PartImpl*> SubpartModel::parts() const
{
    std::vector<PartImpl*> found;
    if (!m_document)
        return found;
    found.reserve(m_parts.size());
    for (const InstanceId id : m_parts) {
        if (auto* part = qobject_cast<PartImpl*>(m_document->nodeById(id)))
            found.push_back(part);
    }
    return found;
}

bool SubpartModel::selects(const ElementImpl* subpart) const
{
    if (m_class != INVALID_CID)
        return subpart->classId() == m_class;
    return m_selector.isEmpty() || subpart->getRoles().intersects(m_roles);
}

std::vector<SubpartRow> SubpartModel::findRows() const
{
    const std::vector<PartImpl*> all = parts();
    std::vector<SubpartRow> rows;
    if (all.empty())
        return rows;
    std::vector<std::shared_ptr<std::vector<InstanceId>>> nodes;
    QHash<QString, size_t> places;
    QHash<ClassId, Resource> icons;
    NodeNames names;
    rows.reserve(all.front()->childCount());
    for (ElementImpl* subpart : all.front()->allSubparts()) {
        if (!selects(subpart))
            continue;
        SubpartRow row;
        nodes.push_back(std::make_shared<std::vector<InstanceId>>(1, subpart->instanceId()));
        row.nodes = nodes.back();
        row.cid = subpart->classId();
        row.label = names.of(subpart);
        auto icon = icons.constFind(row.cid);
        if (icon == icons.constEnd())
            icon = icons.insert(row.cid, m_document->getMetaIconForCID(row.cid));
        row.icon = *icon;
        row.prescribed = !subpart->isAdhoc();
        if (all.size() > 1) {
            const QString id = subpart->valueOfProperty(coreKeys::id()).toQString();
            if (!id.isEmpty() && !places.contains(id))
                places.insert(id, rows.size());
        }
        rows.push_back(std::move(row));
    }
    if (all.size() == 1)
        return rows;
    for (size_t part = 1; part < all.size(); ++part) {
        for (ElementImpl* subpart : all[part]->allSubparts()) {
            const auto place = places.constFind(subpart->valueOfProperty(coreKeys::id()).toQString());
            if (place == places.constEnd() || subpart->classId() != rows[*place].cid || nodes[*place]->size() != part ||
                !selects(subpart))
                continue;
            nodes[*place]->push_back(subpart->instanceId());
            rows[*place].prescribed = rows[*place].prescribed || !subpart->isAdhoc();
        }
    }
    std::erase_if(rows, [&](const SubpartRow& row) { return row.nodes->size() != all.size(); });
    return rows;
}

std::set<NodeImpl*> SubpartModel::nodesOf(int row) const
{
    std::set<NodeImpl*> found;
    const SubpartRow* chosen = rowAt(row);
    if (!chosen || !m_document)
        return found;
    for (const InstanceId id : *chosen->nodes) {
        if (NodeImpl* node = m_document->nodeById(id))
            found.insert(node);
    }
    return found;
}

std::vector<ClassId> SubpartModel::addableClasses() const
{
    std::vector<ClassId> classes;
    const std::vector<PartImpl*> all = parts();
    if (all.empty())
        return classes;
    const auto wanted = [this](ClassId cid, Role role) {
        return m_class != INVALID_CID ? cid == m_class : m_selector.isEmpty() || m_roles.contains(role);
    };
    const auto offer = [&](ClassId cid) {
        if (std::find(classes.begin(), classes.end(), cid) == classes.end())
            classes.push_back(cid);
    };
    for (const SubpartRule& rule : all.front()->prototype().rules) {
        for (const ClassId cid : rule.classes) {
            if (!isDomain(cid)) {
                if (wanted(cid, rule.role))
                    offer(cid);
                continue;
            }
            for (const NodePrototype* prototype : m_document->getNodeDb()->prototypes()) {
                if (prototype->kind == NodeKind::Subpart && !prototype->abstract && !prototype->placeholder &&
                    prototype->instanceOf(cid) && wanted(prototype->cid, rule.role))
                    offer(prototype->cid);
            }
        }
    }
    const NodePrototype* asked = &all.front()->prototype();
    for (const PartImpl* part : all) {
        if (&part->prototype() == asked)
            continue;
        asked = &part->prototype();
        std::erase_if(classes, [&](ClassId cid) { return !part->prototype().ruleFor(cid); });
    }
    return classes;
}

// For views

QVariant SubpartModel::data(const QModelIndex& index, int role) const
{
    const SubpartRow* row = rowAt(index.row());
    if (!row)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return row->label;
    case Qt::DecorationRole:
        return ImageCache::getPixmap(row->icon, subpartIconSize, 1.0);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return m_document ? m_document->getMetaLabelForCID(row->cid) : QString();
    default:
        return {};
    }
}

Qt::ItemFlags SubpartModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (m_editable)
        result |= index.isValid() ? Qt::ItemIsEditable | Qt::ItemIsDragEnabled : Qt::ItemIsDropEnabled;
    return index.isValid() ? result : result & Qt::ItemIsDropEnabled;
}

bool SubpartModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !rowAt(index.row()))
        return false;
    if (value.toString() != rowAt(index.row())->label)
        Q_EMIT renameAsked(index.row(), value.toString());
    return true;
}

Qt::DropActions SubpartModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList SubpartModel::mimeTypes() const
{
    return {rowDrag::mimeType()};
}

QMimeData* SubpartModel::mimeData(const QModelIndexList& indexes) const
{
    return rowDrag::pack(this, indexes);
}

bool SubpartModel::canDropMimeData(const QMimeData* content, Qt::DropAction action, int, int, const QModelIndex&) const
{
    return m_editable && action == Qt::MoveAction && rowDrag::isFrom(this, content);
}

bool SubpartModel::dropMimeData(const QMimeData* content, Qt::DropAction action, int row, int column,
                                const QModelIndex& parent)
{
    if (canDropMimeData(content, action, row, column, parent))
        Q_EMIT moveAsked(rowDrag::unpack(content), parent.isValid() ? parent.row() : row < 0 ? rowCount() : row);
    return false; // the view is not to take the rows out: they follow the document
}
