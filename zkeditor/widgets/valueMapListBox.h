#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/listEditor.h"
#include "zkeditor/widgets/propertyObserver.h"

class QSortFilterProxyModel;
class ValueMapModel;

/// Edits the entries of a value map in a table: they are added, removed, and edited in place; a click on a heading
/// sorts by it. A key may stand more than once, but must not be empty. Empty while the selected nodes have different
/// maps; what is added then becomes the map of all.
class ZKEDITOR_EXPORT ValueMapListBox : public ListEditor, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(bool kindShown READ isKindShown WRITE setKindShown)

public:
    explicit ValueMapListBox(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    /// Whether the kinds of the values are shown, and can be chosen; on unless switched off. A new entry is of the kind
    /// of the selected one.
    bool isKindShown() const;
    void setKindShown(bool shown);

    /// Whether the table is empty because the nodes have different maps.
    bool showsNoValue() const { return m_noValue; }
    ValueMapModel* model() const { return m_model; }

public Q_SLOTS:
    /// Adds an entry under a new key, and begins to edit the key.
    void addEntry();
    void removeSelected();
    /// By the column of the current cell; the other way round when it is sorted so already.
    void sortByCurrentColumn();
    /// Does not enable the box over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void updateActions() override;
    void showMixed() override;
    void changeEvent(QEvent* event) override;

private:
    bool write(const ValueMap& map);
    QString refusalOf(const QModelIndex& index, const QString& text) const;
    void edit(int row, int column, const QString& text);
    void selectEntry(const QString& key, int number);

    ValueMapModel* m_model;
    QSortFilterProxyModel* m_sorted;
    QAction* m_add;
    QAction* m_remove;
    QAction* m_sort;
    bool m_noValue = false;
};
