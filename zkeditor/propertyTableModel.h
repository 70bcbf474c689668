#pragma once

#include "zkcore/model/node.h"
#include "zkcore/model/property.h"
#include "zkeditor/export.h"

#include <QAbstractTableModel>
#include <vector>

/// The properties of one node, a row each, in the order of the class; of a scene or pop-up also those of every domain
/// that it knows. Follows all changes; reads the document only.
class ZKEDITOR_EXPORT PropertyTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { KeyColumn, LabelColumn, TypeColumn, ValueColumn, UnitColumn, FlagsColumn, TargetColumn, ColumnCount };

    explicit PropertyTableModel(QObject* parent = nullptr);
    ~PropertyTableModel() override;

    /// An invalid handle empties the model, as the end of the node does.
    void setNode(const Node& node);
    /// Invalid handle when none is shown.
    Node node() const { return m_node; }
    /// The handle of a row's property; invalid when there is no such row.
    Property propertyAt(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void addRow(PropertyImpl* property);
    void dropConnections();
    void onNodeDeleted(Node node);
    void refreshRow(int row);
    QString text(const PropertyImpl& property, int column) const;

    Node m_node;
    std::vector<Property> m_rows;
};
