#include "zkeditor/widgets/listEditor.h"

#include "zkeditor/widgets/editDelegate.h"
#include "zkeditor/widgets/plusMinusButton.h"
#include "zkeditor/widgets/toolAction.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace {

constexpr int visibleListRows = 5;

} // namespace

ListEditor::ListEditor(QWidget* parent, const QString& name)
    : QWidget(parent), m_view(new QTreeView(this)), m_delegate(new EditDelegate(this)), m_buttons(new QHBoxLayout),
      m_message(new QLabel(this))
{
    setObjectName(name);
    m_view->setObjectName(QStringLiteral("rows"));
    m_view->setItemDelegate(m_delegate);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_view->setTextElideMode(Qt::ElideRight);
    m_view->header()->setStretchLastSection(true);
    m_message->setObjectName(QStringLiteral("message"));
    toolAction::makeMessageLabel(m_message);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(m_view, 1);
    column->addWidget(m_message);
    column->addLayout(m_buttons);
    m_buttons->setSpacing(2);
    m_buttons->addStretch(1);
    setFocusProxy(m_view);
    connect(m_delegate, &EditDelegate::refused, this, &ListEditor::setMessage);
}

QSize ListEditor::sizeHint() const
{
    QSize hint = QWidget::sizeHint();
    const int rows = visibleListRows * (m_view->fontMetrics().height() + 4) + 2 * m_view->frameWidth();
    const int others = hint.height() - m_view->sizeHint().height();
    hint.setHeight(others + rows);
    hint.setWidth(fontMetrics().averageCharWidth() * 30);
    return hint;
}

QString ListEditor::message() const
{
    return m_message->text();
}

void ListEditor::setMessage(const QString& message)
{
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
    m_view->setAccessibleDescription(message);
}

QAction* ListEditor::addButton(const char* icon, const QString& text, const QKeySequence& keys,
                               std::function<void()> run)
{
    QAction* action = makeAction(text, std::move(run));
    action->setIcon(toolAction::icon(icon));
    m_buttons->insertWidget(m_buttons->count() - 1, toolAction::addButton(this, action, keys));
    return action;
}

std::pair<QAction*, QAction*> ListEditor::addPlusMinus(const QString& plusText, std::function<void()> plus,
                                                       const QString& minusText, std::function<void()> minus)
{
    QAction* add = makeAction(plusText, std::move(plus));
    QAction* remove = makeAction(minusText, std::move(minus));
    toolAction::setKeys(this, add, Qt::Key_Insert);
    toolAction::setKeys(this, remove, Qt::Key_Delete);
    auto* buttons = new PlusMinusButton(this);
    buttons->setActions(add, remove);
    m_buttons->insertWidget(m_buttons->count() - 1, buttons);
    return {add, remove};
}

QAction* ListEditor::makeAction(const QString& text, std::function<void()> run)
{
    auto* action = new QAction(text, this);
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] {
        setMessage({});
        run();
    });
    return action;
}

void ListEditor::addMoveButtons(const std::function<void(int)>& move)
{
    m_up = addButton("editor/lists/up", tr("Move up"), Qt::ALT | Qt::Key_Up, [move] { move(-1); });
    m_down = addButton("editor/lists/down", tr("Move down"), Qt::ALT | Qt::Key_Down, [move] { move(1); });
}

QList<int> ListEditor::selectedRows() const
{
    QList<int> rows;
    if (const QItemSelectionModel* selection = m_view->selectionModel()) {
        for (const QModelIndex& index : selection->selectedRows())
            rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ListEditor::selectRows(const QList<int>& rows)
{
    const QAbstractItemModel* model = m_view->model();
    QItemSelection selection;
    for (const int row : rows) {
        const QModelIndex index = model->index(row, 0);
        selection.select(index, index);
    }
    if (rows.isEmpty()) {
        m_view->selectionModel()->clear();
        return;
    }
    const QModelIndex first = model->index(rows.front(), 0);
    m_view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_view->scrollTo(first);
}

void ListEditor::showMixedSoon()
{
    if (std::exchange(m_mixedPending, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_mixedPending = false;
        showMixed();
    });
}

bool ListEditor::event(QEvent* event)
{
    // The name that a form or the property gives this widget is the list's.
    if (event->type() == QEvent::Polish || event->type() == QEvent::FocusIn)
        m_view->setAccessibleName(accessibleName());
    return QWidget::event(event);
}

void ListEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        updateActions();
}
