#include "zkeditor/widgets/partChoiceModel.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeNames.h"

PartChoiceModel::PartChoiceModel(QObject* parent) : RowsModel(parent) {}

PartChoiceModel::~PartChoiceModel() = default;

void PartChoiceModel::list(const DocumentImpl& document)
{
    std::vector<PartChoiceRow> rows{{0, tr("All parts")}};
    NodeNames names;
    const auto look = [&](const SpaceImpl* space) {
        for (const PartImpl* part : space->parts())
            rows.push_back({part->instanceId(), names.of(part)});
    };
    for (const SceneImpl* scene : document.getModel()->getScenes())
        look(scene);
    for (const PopupImpl* popup : document.getModel()->getPopups())
        look(popup);
    setRows(std::move(rows));
}

QVariant PartChoiceModel::data(const QModelIndex& index, int role) const
{
    const PartChoiceRow* row = rowAt(index.row());
    if (!row)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return row->label;
    case Qt::UserRole:
        return row->part;
    default:
        return {};
    }
}
