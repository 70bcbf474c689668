#include "zkeditor/statisticsPane.h"

#include "zkcore/services/statistic.h"
#include "zkeditor/statGraphView.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int refreshDelay = 200;

enum StatisticColumn { NameColumn, LastColumn, MeanColumn, MinColumn, MaxColumn, SamplesColumn, StatisticColumnCount };

} // namespace

StatisticsPane::StatisticsPane(QWidget* parent) : QWidget(parent), m_table(new QTreeWidget), m_graph(new StatGraphView)
{
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setAccessibleName(tr("Statistics"));
    m_table->setHeaderLabels({tr("Name"), tr("Last"), tr("Mean"), tr("Least"), tr("Greatest"), tr("Samples")});
    m_table->header()->setStretchLastSection(true);
    const int letter = fontMetrics().averageCharWidth();
    m_table->setColumnWidth(NameColumn, 27 * letter);
    for (int column = LastColumn; column < SamplesColumn; ++column)
        m_table->setColumnWidth(column, std::max(9 * letter, m_table->header()->sectionSizeHint(column)));
    m_table->setMinimumHeight(fontMetrics().height() * 7);
    connect(m_table, &QTreeWidget::currentItemChanged, this, &StatisticsPane::onCurrentChanged);
    m_graph->setAccessibleName(tr("Curve of the selected statistic"));
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(refreshDelay);
    connect(&m_refresh, &QTimer::timeout, this, &StatisticsPane::refresh);

    auto* refreshButton = new QPushButton(tr("Re&fresh"));
    auto* resetButton = new QPushButton(tr("Rese&t"));
    resetButton->setToolTip(tr("Forget all samples"));
    connect(refreshButton, &QPushButton::clicked, this, &StatisticsPane::refresh);
    connect(resetButton, &QPushButton::clicked, this, &StatisticsPane::resetAll);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(refreshButton);
    buttons->addWidget(resetButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_graph);
    layout->addLayout(buttons);
}

StatisticsPane::~StatisticsPane() = default;

void StatisticsPane::refreshSoon()
{
    if (isVisible() && !m_refresh.isActive())
        m_refresh.start();
}

void StatisticsPane::refresh()
{
    const QLocale locale;
    int row = 0;
    // Statistics are never destroyed, and stand in the order of their names.
    for (const Statistic* statistic : Statistic::all()) {
        QTreeWidgetItem* item = m_table->topLevelItem(row);
        if (!item || item->data(NameColumn, Qt::UserRole).toString() != statistic->name()) {
            item = new QTreeWidgetItem;
            item->setData(NameColumn, Qt::UserRole, statistic->name());
            for (int column = LastColumn; column < StatisticColumnCount; ++column)
                item->setTextAlignment(column, Qt::AlignTrailing | Qt::AlignVCenter);
            m_table->insertTopLevelItem(row, item);
        }
        const QString unit = statistic->unit();
        item->setText(NameColumn, unit.isEmpty() ? statistic->name() : tr("%1 (%2)").arg(statistic->name(), unit));
        const double figures[] = {statistic->last(), statistic->mean(), statistic->min(), statistic->max()};
        for (int column = LastColumn; column < SamplesColumn; ++column)
            item->setText(column,
                          statistic->count() == 0 ? QString() : locale.toString(figures[column - LastColumn], 'g', 3));
        item->setText(SamplesColumn, locale.toString(static_cast<qulonglong>(statistic->count())));
        ++row;
    }
    if (!m_table->currentItem() && m_table->topLevelItemCount() > 0)
        m_table->setCurrentItem(m_table->topLevelItem(0));
    m_graph->update();
}

void StatisticsPane::onCurrentChanged()
{
    const QTreeWidgetItem* item = m_table->currentItem();
    const QString name = item ? item->data(NameColumn, Qt::UserRole).toString() : QString();
    if (name == m_shown || name.isEmpty())
        return;
    m_shown = name;
    m_graph->setStatistics({&Statistic::get(name)});
}

void StatisticsPane::resetAll()
{
    Statistic::resetAll();
    refresh();
}

void StatisticsPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}
