#pragma once

#include "zkcore/base/export.h"

#include <QColor>
#include <vector>

class QPainter;
class QRectF;
class Statistic;

/// The newest samples of one statistic, and the curve they make.
class ZKCORE_EXPORT StatGraph
{
public:
    /// Takes every sample that is added from now on and keeps the newest `capacity` (at least 2) of them.
    explicit StatGraph(Statistic& statistic, int capacity = 120);
    ~StatGraph();
    StatGraph(const StatGraph&) = delete;
    StatGraph& operator=(const StatGraph&) = delete;

    const Statistic& statistic() const { return m_statistic; }
    int capacity() const { return static_cast<int>(m_samples.size()); }
    /// The samples kept, oldest first.
    std::vector<double> samples() const;
    void clear();
    void setColor(const QColor& color) { m_color = color; }

    /// Draws the curve into the rectangle, newest sample at the right edge, from 0 (or the smallest sample, if that is
    /// negative) at the bottom to the largest at the top, with the statistic's name and last value above it.
    void paint(QPainter& painter, const QRectF& rect) const;

private:
    friend class Statistic;
    void push(double sample);

    Statistic& m_statistic;
    std::vector<double> m_samples;
    size_t m_next = 0;
    size_t m_count = 0;
    QColor m_color;
};
