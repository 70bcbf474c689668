#pragma once

#include "zkcore/base/instanceId.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/rowsModel.h"

#include <QString>

class DocumentImpl;

/// A part by its name, or all parts.
struct PartChoiceRow
{
    InstanceId part = 0; // 0: all
    QString label;

    InstanceId key() const { return part; }
    friend bool operator==(const PartChoiceRow&, const PartChoiceRow&) = default;
};

/// The parts of a document, for a combo box: "All parts", then those of the scenes, then those of the pop-ups.
/// Qt::UserRole gives the part's instance id.
class ZKEDITOR_EXPORT PartChoiceModel : public RowsModel<PartChoiceRow>
{
    Q_OBJECT

public:
    explicit PartChoiceModel(QObject* parent = nullptr);
    ~PartChoiceModel() override;

    /// Looks at the parts of the document; linear in their number.
    void list(const DocumentImpl& document);

    QVariant data(const QModelIndex& index, int role) const override;
};
