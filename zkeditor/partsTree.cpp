// Where parts come from.
#include "zkeditor/partsTree.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/storage/addPartDrag.h"
#include "zkeditor/hintTreeView.h"
#include "zkeditor/partsFilter.h"
#include "zkeditor/partsModel.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

constexpr int partIconSize = 24;

/// The view gives all rows the height of the first, which is a group without an icon.
class PartsRowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, partIconSize + 4));
    }
};

} // namespace

PartsTree::PartsTree(DocumentImpl* document, QWidget* parent)
    : QWidget(parent), m_document(document), m_model(new PartsModel(document, this)),
      m_filtered(new PartsFilter(m_model, this)), m_field(new QLineEdit), m_view(new HintTreeView)
{
    m_field->setClearButtonEnabled(true);
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &PartsTree::onFilterChanged);

    m_view->setModel(m_filtered);
    m_view->setIconSize(QSize(partIconSize, partIconSize));
    m_view->setItemDelegate(new PartsRowDelegate(m_view));
    m_view->setDragEnabled(true);
    m_view->setDragDropMode(QAbstractItemView::DragOnly);
    sayTexts();
    m_view->expandAll();
    connect(m_view, &HintTreeView::rowChosen, this, &PartsTree::onRowChosen);
    connect(m_view, &HintTreeView::leftUpwards, m_field, [this] { m_field->setFocus(Qt::BacktabFocusReason); });
    connect(m_view, &HintTreeView::dragBegins, this, &PartsTree::startDrag);
    connect(m_view, &QTreeView::expanded, this, [this](const QModelIndex& index) { noteExpanded(index, true); });
    connect(m_view, &QTreeView::collapsed, this, [this](const QModelIndex& index) { noteExpanded(index, false); });
    // A group that comes later is open like the others.
    connect(m_filtered, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& group) {
        if (group.isValid() && !m_collapsed.contains(group.data().toString()))
            m_view->expand(group);
    });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_field);
    layout->addWidget(m_view, 1);
}

PartsTree::~PartsTree() = default;

void PartsTree::sayTexts()
{
    m_field->setPlaceholderText(tr("Search parts"));
    m_field->setAccessibleName(m_field->placeholderText());
    m_view->setAccessibleName(tr("Parts"));
    m_view->setHint(tr("There are no parts."));
}

void PartsTree::setFilter(const QString& text)
{
    m_field->setText(text);
}

QString PartsTree::filter() const
{
    return m_field->text();
}

ClassId PartsTree::classAt(const QModelIndex& index) const
{
    return m_model->classAt(m_filtered->mapToSource(index));
}

void PartsTree::onFilterChanged(const QString& text)
{
    // While something is searched for, all that is found is shown; afterwards the groups are as the user left them.
    m_searching = true;
    m_filtered->setText(text);
    const bool all = m_filtered->isShowingAll();
    m_view->setHint(all ? tr("There are no parts.") : tr("No part matches the search."));
    if (all) {
        for (int row = 0; row < m_filtered->rowCount(); ++row) {
            const QModelIndex group = m_filtered->index(row, 0);
            m_view->setExpanded(group, !m_collapsed.contains(group.data().toString()));
        }
    } else {
        m_view->expandAll();
        m_view->setCurrentIndex(firstClass());
    }
    m_searching = false;
}

QModelIndex PartsTree::firstClass() const
{
    const QModelIndex group = m_filtered->index(0, 0);
    return group.isValid() ? m_filtered->index(0, 0, group) : QModelIndex();
}

void PartsTree::onRowChosen(const QModelIndex& index)
{
    if (const ClassId cid = classAt(index); cid != INVALID_CID)
        Q_EMIT partChosen(cid);
}

void PartsTree::startDrag()
{
    const ClassId cid = classAt(m_view->currentIndex());
    if (m_document && cid != INVALID_CID)
        (new AddPartDrag(cid, *m_document->getNodeDb(), this))->exec(Qt::CopyAction);
}

void PartsTree::noteExpanded(const QModelIndex& index, bool expanded)
{
    if (m_searching)
        return;
    if (expanded)
        m_collapsed.remove(index.data().toString());
    else
        m_collapsed.insert(index.data().toString());
}

bool PartsTree::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_field || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        if (!m_view->currentIndex().isValid())
            m_view->setCurrentIndex(m_filtered->isShowingAll() ? m_filtered->index(0, 0) : firstClass());
        m_view->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // The first of what was found, or the one that was chosen among them; nothing before anything was searched for.
        if (!m_filtered->isShowingAll())
            onRowChosen(m_view->currentIndex());
        return true;
    case Qt::Key_Escape:
        if (m_field->text().isEmpty())
            break;
        m_field->clear();
        return true;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void PartsTree::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        sayTexts();
        m_model->reload();
        onFilterChanged(m_field->text());
    }
    QWidget::changeEvent(event);
}
