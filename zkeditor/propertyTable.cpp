// A debugging view of one node.
#include "zkeditor/propertyTable.h"

#include "zkeditor/propertyTableModel.h"
#include "zkeditor/widgets/isolatedText.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

namespace {

/// Keys and numbers read from left to right in every language; what is copied has no marks for that.
class PropertyCellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        return isolatedText(QStyledItemDelegate::displayText(value, locale));
    }
};

} // namespace

PropertyTable::PropertyTable(QWidget* parent)
    : QWidget(parent), m_model(new PropertyTableModel(this)), m_sorted(new QSortFilterProxyModel(this)),
      m_filter(new QLineEdit), m_view(new QTableView)
{
    m_sorted->setSourceModel(m_model);
    m_sorted->setFilterKeyColumn(-1);
    m_sorted->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_sorted->setDynamicSortFilter(true);

    m_filter->setPlaceholderText(tr("Filter properties"));
    m_filter->setAccessibleName(m_filter->placeholderText());
    m_filter->setClearButtonEnabled(true);
    connect(m_filter, &QLineEdit::textChanged, m_sorted, &QSortFilterProxyModel::setFilterFixedString);

    m_view->setModel(m_sorted);
    m_view->setItemDelegate(new PropertyCellDelegate(m_view));
    m_view->setAccessibleName(tr("Properties"));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setAlternatingRowColors(true);
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->setTabKeyNavigation(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(m_view->fontMetrics().height() + 6);
    QHeaderView* header = m_view->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    header->setStretchLastSection(true);
    const int letter = m_view->fontMetrics().averageCharWidth();
    const int letters[] = {22, 18, 9, 22, 7, 20, 20};
    m_view->setSortingEnabled(true);
    for (int column = 0; column < PropertyTableModel::ColumnCount; ++column)
        m_view->setColumnWidth(column, std::max(letters[column] * letter, header->sectionSizeHint(column)));
    // What one looks for stands beside its name: a narrow palette shows no more than these.
    header->moveSection(header->visualIndex(PropertyTableModel::ValueColumn), 1);
    header->moveSection(header->visualIndex(PropertyTableModel::UnitColumn), 2);
    m_view->sortByColumn(-1, Qt::AscendingOrder); // as the class has them, until a heading is clicked

    auto* copyAction = new QAction(tr("&Copy"), this);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(copyAction);
    m_view->installEventFilter(this);
    connect(copyAction, &QAction::triggered, this, &PropertyTable::copy);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &PropertyTable::showMenu);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_filter);
    layout->addWidget(m_view, 1);
    setFocusProxy(m_filter);
}

PropertyTable::~PropertyTable() = default;

bool PropertyTable::eventFilter(QObject* watched, QEvent* event)
{
    // The view itself would copy one cell, and a window may have a shortcut of its own on the same keys.
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        if (static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
            if (event->type() == QEvent::KeyPress)
                copy();
            event->accept();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void PropertyTable::setNode(const Node& node)
{
    m_model->setNode(node);
}

Node PropertyTable::node() const
{
    return m_model->node();
}

void PropertyTable::setFilter(const QString& text)
{
    m_filter->setText(text);
}

QString PropertyTable::filter() const
{
    return m_filter->text();
}

QString PropertyTable::asText(bool selectedOnly) const
{
    std::vector<int> rows;
    if (selectedOnly) {
        for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
            rows.push_back(index.row());
        std::sort(rows.begin(), rows.end());
    } else {
        for (int row = 0; row < m_sorted->rowCount(); ++row)
            rows.push_back(row);
    }
    QStringList lines;
    const auto line = [](const auto& cell) {
        QStringList cells;
        for (int column = 0; column < PropertyTableModel::ColumnCount; ++column)
            cells.append(cell(column));
        return cells.join(QLatin1Char('\t'));
    };
    lines.append(line([this](int column) { return m_model->headerData(column, Qt::Horizontal).toString(); }));
    for (const int row : rows)
        lines.append(line([this, row](int column) { return m_sorted->index(row, column).data().toString(); }));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void PropertyTable::copy()
{
    QGuiApplication::clipboard()->setText(asText(m_view->selectionModel()->hasSelection()));
}

void PropertyTable::showMenu(const QPoint& place)
{
    QMenu menu(this);
    menu.addActions(m_view->actions());
    QAction* copyAll = menu.addAction(tr("Copy &All"));
    connect(copyAll, &QAction::triggered, this, [this] { QGuiApplication::clipboard()->setText(asText(false)); });
    menu.exec(m_view->viewport()->mapToGlobal(place));
}
