#pragma once

#include "zkeditor/export.h"

#include <QWidget>
#include <memory>
#include <vector>

class StatGraph;
class Statistic;

/// Curves of statistics, below each other. It does not learn of new samples by itself: its owner calls update().
class ZKEDITOR_EXPORT StatGraphView : public QWidget
{
    Q_OBJECT

public:
    explicit StatGraphView(QWidget* parent = nullptr);
    ~StatGraphView() override;

    /// Shows these, with the samples that are added from now on. Statistics live as long as the program.
    void setStatistics(const std::vector<Statistic*>& statistics);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int heightOfOne() const;

    std::vector<std::unique_ptr<StatGraph>> m_graphs;
};
