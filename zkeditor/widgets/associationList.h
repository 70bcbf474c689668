#pragma once

#include "zkeditor/associations.h"

#include <QTreeWidget>

/// Shows associations under their headings. A click on one, or Return, asks for it to be selected; a click on its
/// detach mark, Delete or the menu ask for it to be detached.
class AssociationList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit AssociationList(const QString& name, QWidget* parent = nullptr);

    /// Keeps the current row and what is scrolled into view, as far as they are still there.
    void setAssociations(const Associations::List& list);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void selectRequested(InstanceId node);
    void detachRequested(const Association& association);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    const Association* associationAt(const QTreeWidgetItem* item) const;
    void select(const QTreeWidgetItem* item);
    void detach(const QTreeWidgetItem* item);
    void onClicked(QTreeWidgetItem* item, int column);
    int heightOf(int rows) const;

    std::vector<Association> m_associations;
    int m_rows = 0;
};
