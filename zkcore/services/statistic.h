#pragma once

#include "zkcore/base/export.h"

#include <QElapsedTimer>
#include <QString>
#include <vector>

class StatGraph;

/// A named run-time statistic: what has been measured of one thing since the program started. GUI thread only.
class ZKCORE_EXPORT Statistic
{
public:
    /// Measures from its making to its end and adds the milliseconds.
    class ZKCORE_EXPORT ScopedTimer
    {
    public:
        explicit ScopedTimer(Statistic& statistic);
        ~ScopedTimer();
        ScopedTimer(const ScopedTimer&) = delete;
        ScopedTimer& operator=(const ScopedTimer&) = delete;

    private:
        Statistic& m_statistic;
        QElapsedTimer m_timer;
    };

    /// The statistic of that name, made at the first call and kept until the program ends. The unit ("ms") is for
    /// display and counts at the first call only.
    static Statistic& get(const QString& name, const QString& unit = QString());
    /// All statistics, in the order of their names.
    static std::vector<Statistic*> all();
    /// Resets every statistic.
    static void resetAll();

    Statistic(const Statistic&) = delete;
    Statistic& operator=(const Statistic&) = delete;

    QString name() const { return m_name; }
    QString unit() const { return m_unit; }

    /// Counts one more sample and hands it to the graphs that show this statistic. A NaN or an infinity is left out.
    void add(double sample);
    /// Forgets all samples; the graphs keep theirs.
    void reset();

    unsigned long long count() const { return m_count; }
    /// The readers below are 0 while there is no sample.
    double last() const { return m_last; }
    double min() const { return m_min; }
    double max() const { return m_max; }
    double mean() const { return m_count == 0 ? 0.0 : m_total / static_cast<double>(m_count); }
    double total() const { return m_total; }
    /// One line for people: "name: last 1.2 ms, mean 1.5 (0.3 to 4.1), 12 samples".
    QString toString() const;

private:
    friend class StatGraph;
    struct Registry;

    Statistic(const QString& name, const QString& unit) : m_name(name), m_unit(unit) {}
    static Registry& registry();

    QString m_name;
    QString m_unit;
    std::vector<StatGraph*> m_graphs;
    unsigned long long m_count = 0;
    double m_last = 0.0;
    double m_min = 0.0;
    double m_max = 0.0;
    double m_total = 0.0;
};
