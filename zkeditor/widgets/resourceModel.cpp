#include "zkeditor/widgets/resourceModel.h"

#include "zkcore/media/imageCache.h"
#include "zkeditor/widgets/resourceImport.h"
#include "zkeditor/widgets/rowDrag.h"

#include <QMimeData>
#include <QPixmap>

bool isLocalResource(const Resource& resource)
{
    return resource.toString().startsWith(QLatin1String("local/"));
}

ResourceModel::ResourceModel(QObject* parent) : RowsModel(parent) {}

ResourceModel::~ResourceModel() = default;

void ResourceModel::setResources(const std::vector<Resource>& resources, const std::vector<QString>& labels)
{
    std::vector<ResourceRow> rows;
    rows.reserve(resources.size());
    QHash<QString, int> numbers;
    for (size_t i = 0; i < resources.size(); ++i) {
        ResourceRow row;
        row.resource = resources[i];
        row.label = i < labels.size() && !labels[i].isEmpty() ? labels[i] : resourceImport::nameOf(row.resource);
        row.number = numbers[row.resource.toString()]++;
        rows.push_back(std::move(row));
    }
    followRenames(rows);
    setRows(std::move(rows));
}

std::vector<Resource> ResourceModel::resources() const
{
    std::vector<Resource> all;
    all.reserve(rows().size());
    for (const ResourceRow& row : rows())
        all.push_back(row.resource);
    return all;
}

QVariant ResourceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section == 0 && orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return tr("Name");
    return {};
}

QVariant ResourceModel::data(const QModelIndex& index, int role) const
{
    const ResourceRow* row = rowAt(index.row());
    if (!row)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return row->label;
    case Qt::DecorationRole:
        return row->resource.type() == Resource::IMAGE ? ImageCache::getPixmap(row->resource, m_pictureSize, 1.0)
                                                       : QPixmap();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return row->resource.isValid() ? row->resource.toString() : tr("%1 is missing").arg(row->resource.toString());
    case Qt::SizeHintRole:
        return QSize(0, m_pictureSize.height() + 4);
    default:
        return {};
    }
}

Qt::ItemFlags ResourceModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return m_editable ? Qt::ItemIsDropEnabled : Qt::NoItemFlags;
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (m_editable)
        result |= Qt::ItemIsDragEnabled;
    if (m_editable && rowAt(index.row()) && isLocalResource(rowAt(index.row())->resource))
        result |= Qt::ItemIsEditable;
    return result;
}

bool ResourceModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const ResourceRow* row = rowAt(index.row());
    if (role != Qt::EditRole || !row)
        return false;
    if (value.toString() != row->label)
        Q_EMIT renameAsked(index.row(), value.toString());
    return true;
}

Qt::DropActions ResourceModel::supportedDropActions() const
{
    return Qt::MoveAction | Qt::CopyAction;
}

QStringList ResourceModel::mimeTypes() const
{
    return {rowDrag::mimeType(), QStringLiteral("text/uri-list")};
}

QMimeData* ResourceModel::mimeData(const QModelIndexList& indexes) const
{
    return rowDrag::pack(this, indexes);
}

bool ResourceModel::canDropMimeData(const QMimeData* content, Qt::DropAction, int, int, const QModelIndex&) const
{
    return m_editable && (rowDrag::isFrom(this, content) || !resourceImport::draggedFiles(content).isEmpty());
}

bool ResourceModel::dropMimeData(const QMimeData* content, Qt::DropAction action, int row, int column,
                                 const QModelIndex& parent)
{
    if (!canDropMimeData(content, action, row, column, parent))
        return false;
    const int before = parent.isValid() ? parent.row() : row < 0 ? rowCount() : row;
    if (rowDrag::isFrom(this, content)) {
        Q_EMIT moveAsked(rowDrag::unpack(content), before);
        return false; // the view is not to take the rows out: they follow the document
    }
    Q_EMIT filesDropped(resourceImport::draggedFiles(content), before);
    return true;
}
