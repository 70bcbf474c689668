#pragma once

#include "zkcore/model/node.h"
#include "zkeditor/export.h"

#include <QWidget>

class PropertyTableModel;
class QLineEdit;
class QSortFilterProxyModel;
class QTableView;

/// A table of every property of one node, for people who look for faults: key, label, type, value, unit, flags and what
/// it follows. A field above it filters; rows are copied as text. Shows the document and never changes it.
class ZKEDITOR_EXPORT PropertyTable : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyTable(QWidget* parent = nullptr);
    ~PropertyTable() override;

    /// The node to show; an invalid handle shows nothing. The table empties itself when its node goes.
    void setNode(const Node& node);
    Node node() const;

    /// Shows only rows in which one of the columns contains the text, whatever the case.
    void setFilter(const QString& text);
    QString filter() const;

public Q_SLOTS:
    /// Puts the selected rows (all that are shown when none is) on the clipboard: a line each, columns separated by
    /// tabs, after a line with the headings.
    void copy();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showMenu(const QPoint& place);
    QString asText(bool selectedOnly) const;

    PropertyTableModel* m_model;
    QSortFilterProxyModel* m_sorted;
    QLineEdit* m_filter;
    QTableView* m_view;
};
