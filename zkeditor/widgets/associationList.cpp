#include "zkeditor/widgets/associationList.h"

#include "zkeditor/widgets/resourceIcon.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <algorithm>

namespace {

enum AssociationColumn { TextColumn, DetachColumn };
constexpr int indexRole = Qt::UserRole;
constexpr int mostRowsInView = 10;

} // namespace

AssociationList::AssociationList(const QString& name, QWidget* parent) : QTreeWidget(parent)
{
    setAccessibleName(name);
    setColumnCount(2);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setIndentation(10);
    setItemsExpandable(false);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(1);
    header()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(DetachColumn, QHeaderView::Fixed);
    header()->resizeSection(DetachColumn, iconSize().width() + fontMetrics().averageCharWidth() + 22);
    connect(this, &QTreeWidget::itemClicked, this, &AssociationList::onClicked);
}

void AssociationList::setAssociations(const Associations::List& list)
{
    const Association* before = associationAt(currentItem());
    const InstanceId currentNode = before ? before->node : 0;
    const QString currentText = before ? before->text : QString();
    const int scrolled = verticalScrollBar()->value();
    clear();
    m_associations = list.entries;
    m_rows = 0;
    const QIcon detachIcon = resourceIcon(QStringLiteral("editor/panes/detach"), 16, this);
    QTreeWidgetItem* heading = nullptr;
    QTreeWidgetItem* current = nullptr;
    for (size_t i = 0; i < m_associations.size(); ++i) {
        const Association& association = m_associations[i];
        if (!heading || heading->text(TextColumn) != association.group) {
            heading = new QTreeWidgetItem(this, {association.group});
            heading->setFlags(Qt::ItemIsEnabled);
            heading->setFirstColumnSpanned(true);
            QFont bold = font();
            bold.setBold(true);
            heading->setFont(TextColumn, bold);
            ++m_rows;
        }
        auto* row = new QTreeWidgetItem(heading, {association.text});
        row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        row->setData(TextColumn, indexRole, static_cast<qulonglong>(i));
        row->setToolTip(TextColumn, association.sentence);
        row->setData(TextColumn, Qt::AccessibleTextRole, association.sentence);
        if (association.canBeDetached()) {
            row->setIcon(DetachColumn, detachIcon);
            const QString detachText = association.reflection ? tr("Remove the reflection") : tr("Detach");
            row->setToolTip(DetachColumn, detachText);
            row->setData(DetachColumn, Qt::AccessibleTextRole, detachText);
        }
        if (association.node == currentNode && association.text == currentText)
            current = row;
        ++m_rows;
    }
    if (list.more > 0 || m_associations.empty()) {
        auto* note = new QTreeWidgetItem(this, {list.more > 0 ? tr("and %1 more").arg(list.more) : tr("None")});
        note->setFlags(Qt::NoItemFlags);
        note->setFirstColumnSpanned(true);
        ++m_rows;
    }
    expandAll();
    if (current)
        setCurrentItem(current);
    verticalScrollBar()->setValue(scrolled);
    updateGeometry();
}

int AssociationList::heightOf(int rows) const
{
    const int row = std::max(sizeHintForRow(0), fontMetrics().height());
    return rows * row + 2 * frameWidth();
}

QSize AssociationList::sizeHint() const
{
    return {QTreeWidget::sizeHint().width(), heightOf(std::clamp(m_rows, 1, mostRowsInView))};
}

QSize AssociationList::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 16, heightOf(1)};
}

const Association* AssociationList::associationAt(const QTreeWidgetItem* item) const
{
    const QVariant index = item ? item->data(TextColumn, indexRole) : QVariant();
    return index.isValid() ? &m_associations[index.toULongLong()] : nullptr;
}

void AssociationList::select(const QTreeWidgetItem* item)
{
    if (const Association* association = associationAt(item))
        Q_EMIT selectRequested(association->node);
}

void AssociationList::detach(const QTreeWidgetItem* item)
{
    const Association* association = associationAt(item);
    if (association && association->canBeDetached()) {
        const Association copy = *association; // the list may be filled anew meanwhile
        Q_EMIT detachRequested(copy);
    }
}

void AssociationList::onClicked(QTreeWidgetItem* item, int column)
{
    const Association* association = associationAt(item);
    if (column == DetachColumn && association && association->canBeDetached())
        detach(item);
    else
        select(item);
}

void AssociationList::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        select(currentItem());
        return;
    case Qt::Key_Delete:
        detach(currentItem());
        return;
    default:
        QTreeWidget::keyPressEvent(event);
    }
}

void AssociationList::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    QTreeWidgetItem* item = byKey ? currentItem() : itemAt(event->pos());
    const Association* association = associationAt(item);
    if (!association)
        return;
    setCurrentItem(item);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Select"), this, [this] { select(currentItem()); });
    QAction* detachAction = menu->addAction(association->reflection ? tr("Remove the reflection") : tr("Detach"), this,
                                            [this] { detach(currentItem()); });
    detachAction->setEnabled(association->canBeDetached());
    menu->popup(byKey ? viewport()->mapToGlobal(visualItemRect(item).bottomLeft()) : event->globalPos());
}
