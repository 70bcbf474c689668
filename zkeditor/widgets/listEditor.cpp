#include "zkeditor/widgets/listEditor.h"

#include "zkeditor/widgets/editDelegate.h"
#include "zkeditor/widgets/errorLabel.h"
#include "zkeditor/widgets/plusMinusButton.h"
#include "zkeditor/widgets/toolAction.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace {

constexpr int visibleListRows = 5;
constexpr int usualSectionWidth = 84; // three go into the narrowest pane

/// Rows of which the cells can be reached with the keyboard: the toolkit's tree only goes from row to row while whole
/// rows are selected.
class ListRows : public QTreeView
{
public:
    using QTreeView::QTreeView;

    QSize sizeHint() const override
    {
        const int row = fontMetrics().height() + 6; // whatever the rows are: the pane must not jump with them
        const int heading = header()->isHidden() ? 0 : header()->sizeHint().height();
        return {QTreeView::sizeHint().width(), heading + visibleListRows * row + 2 * frameWidth()};
    }

    void setPlaceholderText(const QString& text)
    {
        m_placeholder = text;
        viewport()->update();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QTreeView::paintEvent(event);
        if (m_placeholder.isEmpty() || !model() || model()->rowCount() > 0)
            return;
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(4, 2, -4, -2), Qt::AlignLeading | Qt::TextWordWrap, m_placeholder);
    }

    /// What the keyboard comes to can be removed or linked at once: the toolkit makes a row current, but selects none.
    void focusInEvent(QFocusEvent* event) override
    {
        QTreeView::focusInEvent(event);
        const Qt::FocusReason reason = event->reason();
        const bool byKeys = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                            reason == Qt::ShortcutFocusReason || reason == Qt::OtherFocusReason;
        if (byKeys && currentIndex().isValid() && !selectionModel()->hasSelection())
            selectionModel()->select(currentIndex(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override
    {
        const QModelIndex current = currentIndex();
        const int step = stepOf(action);
        if (step == 0 || !current.isValid() || editTriggers() == NoEditTriggers)
            return QTreeView::moveCursor(action, modifiers);
        const bool wraps = action == MoveNext || action == MovePrevious;
        int place = header()->visualIndex(current.column());
        int row = current.row();
        do {
            place += step;
            if (wraps && (place < 0 || place >= header()->count())) {
                row += step;
                place = step > 0 ? 0 : header()->count() - 1;
            }
        } while (place >= 0 && place < header()->count() && header()->isSectionHidden(header()->logicalIndex(place)));
        const QModelIndex next = model()->index(row, header()->logicalIndex(place));
        return next.isValid() || wraps ? next : current;
    }

private:
    int stepOf(CursorAction action) const
    {
        switch (action) {
        case MoveLeft:
            return isRightToLeft() ? 1 : -1;
        case MoveRight:
            return isRightToLeft() ? -1 : 1;
        case MoveNext:
            return 1;
        case MovePrevious:
            return -1;
        default:
            return 0;
        }
    }

    QString m_placeholder;
};

} // namespace

ListEditor::ListEditor(QWidget* parent, const QString& name)
    : QWidget(parent), m_view(new ListRows(this)), m_delegate(new EditDelegate(this)), m_buttons(new QHBoxLayout),
      m_message(new ErrorLabel(this))
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
    m_view->header()->setDefaultSectionSize(usualSectionWidth);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->installEventFilter(this);
    m_message->setObjectName(QStringLiteral("message"));
    m_message->hide();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(m_view, 1);
    column->addWidget(m_message);
    column->addLayout(m_buttons);
    m_buttons->setSpacing(2);
    m_buttons->addStretch(1);
    setFocusProxy(m_view);
    connect(m_delegate, &EditDelegate::judged, this, &ListEditor::setMessage);
}

QSize ListEditor::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 30, QWidget::sizeHint().height()};
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

void ListEditor::setPlaceholderText(const QString& text)
{
    static_cast<ListRows*>(m_view)->setPlaceholderText(text);
    m_view->setToolTip(text);
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
    m_view->addAction(action); // in its menu
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] {
        setMessage({});
        // After a click on a button the keys are the list's: Del must not go where the focus was.
        if (!isAncestorOf(QApplication::focusWidget()))
            m_view->setFocus();
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

bool ListEditor::eventFilter(QObject* object, QEvent* event)
{
    if (object != m_view)
        return QWidget::eventFilter(object, event);
    if (event->type() == QEvent::ShortcutOverride && m_view->selectionMode() == QAbstractItemView::ExtendedSelection &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::SelectAll)) {
        event->accept();
        return true;
    }
    return toolAction::takeKey(this, event);
}

bool ListEditor::event(QEvent* event)
{
    if (toolAction::takeKey(this, event))
        return true;
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
