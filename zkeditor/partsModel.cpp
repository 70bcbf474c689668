// What can be put into a document, by group and label.
#include "zkeditor/partsModel.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/storage/package.h"

#include <algorithm>

namespace {

constexpr int partIconSide = 24;

} // namespace

PartsModel::PartsModel(DocumentImpl* document, QObject* parent) : QAbstractItemModel(parent), m_document(document)
{
    reload();
    if (!document)
        return;
    connect(document->getNodeDb(), &NodeDb::prototypeAdded, this, &PartsModel::onClassAdded);
    connect(document, &QObject::destroyed, this, [this] {
        beginResetModel();
        m_groups.clear();
        endResetModel();
    });
}

PartsModel::~PartsModel() = default;

PartsModel::Entry PartsModel::entryFor(ClassId cid, const QString& group) const
{
    Entry entry;
    entry.cid = cid;
    const QString id = findStringForCid(cid);
    entry.label = m_document->getMetaLabelForCID(cid);
    entry.searched = (entry.label + QLatin1Char('\n') + group + QLatin1Char('\n') + id).toCaseFolded();
    if (entry.label.isEmpty())
        entry.label = id.mid(id.lastIndexOf(QLatin1Char('/')) + 1);
    return entry;
}

void PartsModel::reload()
{
    beginResetModel();
    m_groups.clear();
    if (m_document) {
        for (const PartsTreeStructure::Folder& folder : m_document->getPartsTreeStructure().folders) {
            auto group = std::make_unique<Group>();
            group->label = folder.label;
            group->entries.reserve(folder.classes.size());
            for (const ClassId cid : folder.classes)
                group->entries.push_back(entryFor(cid, folder.label));
            m_groups.push_back(std::move(group));
        }
    }
    endResetModel();
}

void PartsModel::onClassAdded(ClassId cid)
{
    if (!m_document)
        return;
    // The document says where the class belongs; everything else is in its place already.
    const PartsTreeStructure structure = m_document->getPartsTreeStructure();
    for (size_t row = 0; row < structure.folders.size(); ++row) {
        const PartsTreeStructure::Folder& folder = structure.folders[row];
        const auto found = std::find(folder.classes.begin(), folder.classes.end(), cid);
        if (found == folder.classes.end())
            continue;
        const int groupRow = static_cast<int>(row);
        if (row >= m_groups.size() || m_groups[row]->label != folder.label) {
            auto group = std::make_unique<Group>();
            group->label = folder.label;
            beginInsertRows({}, groupRow, groupRow);
            m_groups.insert(m_groups.begin() + groupRow, std::move(group));
            endInsertRows();
        }
        const int at = static_cast<int>(found - folder.classes.begin());
        beginInsertRows(index(groupRow, 0), at, at);
        std::vector<Entry>& entries = m_groups[row]->entries;
        entries.insert(entries.begin() + at, entryFor(cid, folder.label));
        endInsertRows();
        return;
    }
}

QModelIndex PartsModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? m_groups[static_cast<size_t>(parent.row())].get() : nullptr);
}

QModelIndex PartsModel::parent(const QModelIndex& child) const
{
    const auto* group = static_cast<const Group*>(child.internalPointer());
    if (!group)
        return {};
    const auto found =
        std::find_if(m_groups.begin(), m_groups.end(), [group](const auto& each) { return each.get() == group; });
    return found == m_groups.end() ? QModelIndex() : createIndex(static_cast<int>(found - m_groups.begin()), 0);
}

int PartsModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    if (parent.internalPointer() || parent.column() != 0)
        return 0;
    return static_cast<int>(m_groups[static_cast<size_t>(parent.row())]->entries.size());
}

int PartsModel::columnCount(const QModelIndex&) const
{
    return 1;
}

const PartsModel::Entry* PartsModel::entryAt(const QModelIndex& index) const
{
    const auto* group = static_cast<const Group*>(index.internalPointer());
    return group ? &group->entries[static_cast<size_t>(index.row())] : nullptr;
}

ClassId PartsModel::classAt(const QModelIndex& index) const
{
    const Entry* entry = entryAt(index);
    return entry ? entry->cid : INVALID_CID;
}

bool PartsModel::matches(const QModelIndex& index, const QStringList& words) const
{
    const Entry* entry = entryAt(index);
    return entry && std::all_of(words.begin(), words.end(),
                                [entry](const QString& word) { return entry->searched.contains(word); });
}

QIcon PartsModel::iconOf(ClassId cid) const
{
    const Resource icon = m_document ? m_document->getMetaIconForCID(cid) : Resource();
    if (!icon.isValid())
        return {};
    const auto known = m_icons.constFind(icon.toString());
    if (known != m_icons.cend())
        return *known;
    QIcon made;
    for (const double ratio : {1.0, 2.0})
        made.addPixmap(ImageCache::getPixmap(icon, QSize(partIconSide, partIconSide), ratio));
    m_icons.insert(icon.toString(), made);
    return made;
}

QString PartsModel::toolTip(const Entry& entry) const
{
    const Package* package = Package::findByClassID(entry.cid);
    QString tip = QStringLiteral("<b>%1</b><br>%2").arg(entry.label.toHtmlEscaped(), findStringForCid(entry.cid));
    if (package)
        tip += QStringLiteral("<br>") + tr("Package: %1").arg(package->label()).toHtmlEscaped();
    const NodePrototype* prototype = m_document ? m_document->getNodeDb()->lookupPrototype(entry.cid) : nullptr;
    if (prototype && prototype->keyStage > 0)
        tip += QStringLiteral("<br>") + tr("Key stage: %1").arg(prototype->keyStage);
    return tip;
}

QVariant PartsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Entry* entry = entryAt(index);
    if (!entry)
        return role == Qt::DisplayRole ? m_groups[static_cast<size_t>(index.row())]->label : QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return entry->label;
    case Qt::DecorationRole:
        return iconOf(entry->cid);
    case Qt::ToolTipRole:
        return toolTip(*entry);
    case ClassIdRole:
        return entry->cid;
    default:
        return {};
    }
}

Qt::ItemFlags PartsModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (!index.isValid())
        return Qt::NoItemFlags;
    return entryAt(index) ? common | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren : common;
}
