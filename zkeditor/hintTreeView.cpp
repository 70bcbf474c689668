// What the trees of parts and of documents have in common.
#include "zkeditor/hintTreeView.h"

#include <QKeyEvent>
#include <QPainter>

HintTreeView::HintTreeView(QWidget* parent) : QTreeView(parent)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setExpandsOnDoubleClick(true);
    connect(this, &QAbstractItemView::doubleClicked, this, &HintTreeView::rowChosen);
}

void HintTreeView::setHint(const QString& hint)
{
    m_hint = hint;
    viewport()->update();
}

void HintTreeView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_hint.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, m_hint);
}

void HintTreeView::keyPressEvent(QKeyEvent* event)
{
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    const QModelIndex current = currentIndex();
    if (plain && current.isValid() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        if (model()->hasChildren(current))
            setExpanded(current, !isExpanded(current));
        Q_EMIT rowChosen(current);
        return;
    }
    if (plain && event->key() == Qt::Key_Up && !indexAbove(current).isValid()) {
        Q_EMIT leftUpwards();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void HintTreeView::startDrag(Qt::DropActions actions)
{
    Q_EMIT dragBegins(actions);
}
