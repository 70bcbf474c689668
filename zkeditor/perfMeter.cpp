// How long the user waits.
#include "zkeditor/perfMeter.h"

#include "zkcore/services/statistic.h"

#include <algorithm>

namespace {

// Between two samples, in milliseconds.
constexpr int sampleInterval = 100;

} // namespace

PerfMeter::PerfMeter(QWidget* parent)
    : StatGraphView(parent), m_turns(Statistic::get(QStringLiteral("event loop turns"), QStringLiteral("ms")))
{
    setAccessibleName(tr("Performance"));
    setStatistics({&m_turns, &Statistic::get(QStringLiteral("selection changes"), QStringLiteral("ms")),
                   &Statistic::get(QStringLiteral("commands"), QStringLiteral("ms"))});
    m_timer.setSingleShot(true);
    m_timer.setInterval(sampleInterval);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &PerfMeter::takeSample);
}

PerfMeter::~PerfMeter() = default;

void PerfMeter::showEvent(QShowEvent* event)
{
    StatGraphView::showEvent(event);
    m_sinceStart.start();
    m_timer.start();
}

void PerfMeter::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    StatGraphView::hideEvent(event);
}

void PerfMeter::takeSample()
{
    // Nobody else asks the toolkit how long it was busy: what came before a timer that is due made it late.
    m_turns.add(std::max(static_cast<double>(m_sinceStart.nsecsElapsed()) / 1e6 - sampleInterval, 0.0));
    repaint(); // now, so that drawing does not count
    m_sinceStart.start();
    m_timer.start();
}
