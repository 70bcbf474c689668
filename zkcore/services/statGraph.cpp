// A curve of the newest samples, drawn without widgets so that any view can show it.
#include "zkcore/services/statGraph.h"

#include "zkcore/services/statistic.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <algorithm>

StatGraph::StatGraph(Statistic& statistic, int capacity)
    : m_statistic(statistic), m_samples(static_cast<size_t>(std::max(capacity, 2))), m_color(0x2f, 0x6f, 0xb5)
{
    statistic.m_graphs.push_back(this);
}

StatGraph::~StatGraph()
{
    std::erase(m_statistic.m_graphs, this);
}

void StatGraph::push(double sample)
{
    m_samples[m_next] = sample;
    m_next = (m_next + 1) % m_samples.size();
    m_count = std::min(m_count + 1, m_samples.size());
}

std::vector<double> StatGraph::samples() const
{
    std::vector<double> result;
    result.reserve(m_count);
    const size_t size = m_samples.size();
    for (size_t i = 0; i < m_count; ++i)
        result.push_back(m_samples[(m_next + size - m_count + i) % size]);
    return result;
}

void StatGraph::clear()
{
    m_next = 0;
    m_count = 0;
}

void StatGraph::paint(QPainter& painter, const QRectF& rect) const
{
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetricsF metrics(painter.font());
    const QString caption =
        QStringLiteral("%1: %2 %3")
            .arg(m_statistic.name(), QString::number(m_statistic.last(), 'g', 4), m_statistic.unit());
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignTop, caption.trimmed());

    const QRectF plot = rect.adjusted(1.0, metrics.height() + 1.0, -1.0, -1.0);
    const std::vector<double> values = samples();
    if (values.size() >= 2 && !plot.isEmpty()) {
        const double low = std::min(0.0, *std::min_element(values.begin(), values.end()));
        const double high = *std::max_element(values.begin(), values.end());
        const double span = high > low ? high - low : 1.0;
        const double step = plot.width() / static_cast<double>(m_samples.size() - 1);
        QPolygonF curve;
        for (size_t i = 0; i < values.size(); ++i)
            curve.append(QPointF(plot.right() - step * static_cast<double>(values.size() - 1 - i),
                                 plot.bottom() - (values[i] - low) / span * plot.height()));
        painter.setPen(QPen(m_color, 1.5));
        painter.drawPolyline(curve);
    }
    painter.restore();
}
