#include "zkeditor/statGraphView.h"

#include "zkcore/services/statGraph.h"

#include <QPainter>

StatGraphView::StatGraphView(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

StatGraphView::~StatGraphView() = default;

void StatGraphView::setStatistics(const std::vector<Statistic*>& statistics)
{
    m_graphs.clear();
    for (Statistic* statistic : statistics)
        m_graphs.push_back(std::make_unique<StatGraph>(*statistic));
    updateGeometry();
    update();
}

int StatGraphView::heightOfOne() const
{
    return fontMetrics().height() * 4;
}

QSize StatGraphView::sizeHint() const
{
    return {200, heightOfOne() * static_cast<int>(m_graphs.size())};
}

QSize StatGraphView::minimumSizeHint() const
{
    return {80, sizeHint().height()};
}

void StatGraphView::paintEvent(QPaintEvent*)
{
    if (m_graphs.empty())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const double each = static_cast<double>(height()) / static_cast<double>(m_graphs.size());
    double top = 0;
    for (const std::unique_ptr<StatGraph>& graph : m_graphs) {
        const QRectF room(0, top, width(), each);
        painter.setPen(palette().color(QPalette::Text));
        graph->setColor(palette().color(QPalette::Link));
        graph->paint(painter, room.adjusted(6, 3, -6, -3));
        top += each;
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(QPointF(0, top - 0.5), QPointF(width(), top - 0.5));
    }
}
