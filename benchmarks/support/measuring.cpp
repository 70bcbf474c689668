#include "benchmarks/support/measuring.h"

#include <QLocale>
#include <algorithm>
#include <cstdio>

namespace {

constexpr int nameWidth = 42;

} // namespace

Table::Table(std::vector<size_t> sizes, size_t growthFrom) : m_sizes(std::move(sizes)), m_growthFrom(growthFrom)
{
    std::printf("%-*s", nameWidth, "nodes");
    for (const size_t size : m_sizes)
        std::printf("%10s", qPrintable(QLocale::c().toString(static_cast<qulonglong>(size))));
    std::printf("%10s  %s\n", "growth", "aim");
}

void Table::section(const char* title) const
{
    std::printf("\n%s\n", title);
    std::fflush(stdout);
}

void Table::row(const char* name, const std::vector<double>& figures) const
{
    print(name, figures, 0, nullptr, 0, true);
}

void Table::growthRow(const char* name, const std::vector<double>& figures, double aim) const
{
    print(name, figures, 0, "growth under", aim, growth(figures) < aim);
}

void Table::ratioRow(const char* name, const std::vector<double>& figures, double aim) const
{
    print(name, figures, 2, "at most", aim, *std::max_element(figures.begin(), figures.end()) <= aim);
}

void Table::limitRow(const char* name, const std::vector<double>& figures, double aim) const
{
    print(name, figures, 0, "under", aim, figures.back() < aim);
}

void Table::print(const char* name, const std::vector<double>& figures, int decimals, const char* aim, double aimValue,
                  bool met) const
{
    std::printf("%-*s", nameWidth, name);
    for (const double figure : figures)
        std::printf("%10.*f", decimals, figure);
    std::printf("%10.2f", growth(figures));
    if (aim)
        std::printf("  %s %g: %s", aim, aimValue, met ? "met" : "MISSED");
    std::printf("\n");
    std::fflush(stdout);
}
