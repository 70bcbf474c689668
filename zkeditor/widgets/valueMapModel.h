#pragma once

#include "zkcore/values/value.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/rowsModel.h"

#include <QString>
#include <utility>

/// An entry of a value map.
struct ValueMapRow
{
    QString name;
    int number = 0; // among the entries of the same name
    Value value;

    std::pair<QString, int> key() const { return {name, number}; }
    friend bool operator==(const ValueMapRow& a, const ValueMapRow& b)
    {
        return a.number == b.number && a.name == b.name && a.value == b.value;
    }
};

/// The entries of a value map: key, value and the kind of the value.
class ZKEDITOR_EXPORT ValueMapModel : public RowsModel<ValueMapRow>
{
    Q_OBJECT

public:
    enum Column { KeyColumn, ValueColumn, KindColumn, ColumnCount };

    explicit ValueMapModel(QObject* parent = nullptr);
    ~ValueMapModel() override;

    void setMap(const ValueMap& map);
    /// Gives an entry another name before the map that has it so is set: it stays the same row.
    void renameRow(int row, const QString& name, int number);
    void setEditable(bool editable) { m_editable = editable; }

    /// The kinds of values that can be edited.
    static std::vector<Value::Type> kinds();
    static QString kindName(Value::Type type);
    /// INVALID for a text that names no kind.
    static Value::Type kindNamed(const QString& name);
    /// The value of the kind that a typed text stands for; invalid when it stands for none.
    static Value valueFromTyped(Value::Type type, const QString& text);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// The user wants another text in a cell.
    void editAsked(int row, int column, const QString& text);

private:
    bool m_editable = false;
};
