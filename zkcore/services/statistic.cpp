// Counts and sums what is measured while the program runs.
#include "zkcore/services/statistic.h"

#include "zkcore/services/statGraph.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

struct Statistic::Registry
{
    std::map<QString, std::unique_ptr<Statistic>> statistics;
};

Statistic::ScopedTimer::ScopedTimer(Statistic& statistic) : m_statistic(statistic)
{
    m_timer.start();
}

Statistic::ScopedTimer::~ScopedTimer()
{
    m_statistic.add(static_cast<double>(m_timer.nsecsElapsed()) / 1e6);
}

Statistic::Registry& Statistic::registry()
{
    static Registry registry;
    return registry;
}

Statistic& Statistic::get(const QString& name, const QString& unit)
{
    std::unique_ptr<Statistic>& entry = registry().statistics[name];
    if (!entry)
        entry.reset(new Statistic(name, unit));
    return *entry;
}

std::vector<Statistic*> Statistic::all()
{
    std::vector<Statistic*> result;
    for (const auto& [name, statistic] : registry().statistics)
        result.push_back(statistic.get());
    return result;
}

void Statistic::resetAll()
{
    for (Statistic* statistic : all())
        statistic->reset();
}

void Statistic::add(double sample)
{
    if (!std::isfinite(sample))
        return;
    m_min = m_count == 0 ? sample : std::min(m_min, sample);
    m_max = m_count == 0 ? sample : std::max(m_max, sample);
    m_last = sample;
    m_total += sample;
    ++m_count;
    for (StatGraph* graph : m_graphs)
        graph->push(sample);
}

void Statistic::reset()
{
    m_count = 0;
    m_last = m_min = m_max = m_total = 0.0;
}

QString Statistic::toString() const
{
    const QString unitText = m_unit.isEmpty() ? QString() : QLatin1Char(' ') + m_unit;
    return QStringLiteral("%1: last %2%3, mean %4 (%5 to %6), %7 samples")
        .arg(m_name, QString::number(m_last, 'g', 4), unitText, QString::number(mean(), 'g', 4),
             QString::number(m_min, 'g', 4), QString::number(m_max, 'g', 4), QString::number(m_count));
}
