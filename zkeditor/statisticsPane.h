#pragma once

#include "zkeditor/export.h"

#include <QTimer>
#include <QWidget>

class QTreeWidget;
class StatGraphView;

/// All statistics of the running program as a table, and the curve of the one selected there.
class ZKEDITOR_EXPORT StatisticsPane : public QWidget
{
    Q_OBJECT

public:
    explicit StatisticsPane(QWidget* parent = nullptr);
    ~StatisticsPane() override;

public Q_SLOTS:
    /// Something was measured: shows it a little later, if the pane is on view.
    void refreshSoon();
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void onCurrentChanged();
    void resetAll();

    QTreeWidget* m_table;
    StatGraphView* m_graph;
    QTimer m_refresh;
    QString m_shown; // the statistic whose curve is shown
};
