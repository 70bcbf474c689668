#pragma once

#include <QElapsedTimer>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

/// The shortest of several times: what the work takes when nothing disturbs it.
class Best
{
public:
    template <typename Work> void add(Work work)
    {
        QElapsedTimer timer;
        timer.start();
        work();
        const auto time = static_cast<double>(timer.nsecsElapsed());
        if (time < m_best)
            m_best = time;
    }

    double nanoseconds() const { return m_best; }

private:
    double m_best = std::numeric_limits<double>::max();
};

template <typename Work> double bestOf(int rounds, Work work)
{
    Best best;
    for (int round = 0; round < rounds; ++round)
        best.add(work);
    return best.nanoseconds();
}

/// How often to repeat work on that many nodes: small work is disturbed more easily.
inline int roundsFor(size_t nodes)
{
    return nodes <= 1'000 ? 100 : nodes <= 10'000 ? 20 : 5;
}

/// Prints figures for several sizes side by side, with the growth from the smallest (or a given one) to the largest,
/// and marks each figure with an aim by whether it is met.
class Table
{
public:
    explicit Table(std::vector<size_t> sizes, size_t growthFrom = 0);

    void section(const char* title) const;
    /// Figures without an aim.
    void row(const char* name, const std::vector<double>& figures) const;
    /// The growth is to stay under the aim.
    void growthRow(const char* name, const std::vector<double>& figures, double aim) const;
    /// Ratios, the largest of which is to stay at most at the aim.
    void ratioRow(const char* name, const std::vector<double>& figures, double aim) const;
    /// Figures, the one for the largest size of which is to stay under the aim.
    void limitRow(const char* name, const std::vector<double>& figures, double aim) const;

private:
    void print(const char* name, const std::vector<double>& figures, int decimals, const char* aim, double aimValue,
               bool met) const;

    double growth(const std::vector<double>& figures) const { return figures.back() / figures[m_growthFrom]; }

    std::vector<size_t> m_sizes;
    size_t m_growthFrom; // the index of the size from which growth counts
};
