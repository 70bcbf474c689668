#pragma once

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyAddress.h"
#include "zkcore/model/propertyFilter.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/rowsModel.h"

#include <QPointer>
#include <QString>

/// A property that another one may follow.
struct PropertyChoiceRow
{
    PropertyAddress address;
    QString owner; // what people call the node
    QString label;

    PropertyAddress key() const { return address; }
    friend bool operator==(const PropertyChoiceRow& a, const PropertyChoiceRow& b)
    {
        return a.address == b.address && a.owner == b.owner && a.label == b.label;
    }
};

/// The properties that can be chosen as target of a link: of every part, or of one. Values, and whether a property may
/// be followed, are looked up when a view asks for them.
class ZKEDITOR_EXPORT PropertyChoiceModel : public RowsModel<PropertyChoiceRow>
{
    Q_OBJECT

public:
    enum Column { OwnerColumn, LabelColumn, ValueColumn, LinkColumn, TypeColumn, ColumnCount };
    /// The text that a search looks at.
    static constexpr int searchRole = Qt::UserRole;

    explicit PropertyChoiceModel(QObject* parent = nullptr);
    ~PropertyChoiceModel() override;

    /// Lists what can be followed by the property: with part 0 of all spaces and parts what is of its kind; else all
    /// that the user sees of the part and its subparts. Linear in the number of nodes.
    void list(DocumentImpl* document, const Property& follower, InstanceId part);
    void clear();
    /// The property that is followed already; invalid when it is none, or not the same for all.
    void setLinked(const Property& target) { m_linked = target; }
    /// Tells views that values and links may have changed.
    void refresh();

    /// Invalid when it is gone.
    Property propertyAt(int row) const;
    /// Why the property of the row cannot be followed: one translated sentence; empty when it can.
    QString reasonAt(int row) const;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QPointer<DocumentImpl> m_document;
    Property m_follower;
    Property m_linked;
};
