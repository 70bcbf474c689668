#include "zkeditor/widgets/doubleRangeControl.h"

#include <QtGlobal>
#include <algorithm>
#include <cmath>
#include <limits>

DoubleRangeControl::DoubleRangeControl(double minValue, double maxValue, double lineStep, double pageStep, double value)
    : m_minValue(minValue), m_maxValue(maxValue), m_lineStep(std::abs(lineStep)), m_pageStep(std::abs(pageStep)),
      m_value(bound(value)), m_prevValue(minValue - 1.0)
{
}

bool DoubleRangeControl::differ(double a, double b)
{
    // Absolute on purpose: also near zero and at a million the last digit that was typed counts.
    return std::abs(a - b) >= std::numeric_limits<double>::epsilon();
}

double DoubleRangeControl::bound(double value) const
{
    if (value < m_minValue)
        return m_minValue;
    return value > m_maxValue ? m_maxValue : value;
}

void DoubleRangeControl::directSetValue(double value)
{
    m_prevValue = m_value;
    m_value = bound(value);
}

void DoubleRangeControl::setValue(double value)
{
    directSetValue(value);
    if (differ(m_value, m_prevValue))
        valueChange();
}

void DoubleRangeControl::setMinValue(double minValue)
{
    setRange(minValue, std::max(minValue, m_maxValue));
}

void DoubleRangeControl::setMaxValue(double maxValue)
{
    setRange(std::min(maxValue, m_minValue), maxValue);
}

void DoubleRangeControl::setRange(double minValue, double maxValue)
{
    if (maxValue < minValue) {
        qWarning("DoubleRangeControl::setRange: minValue %f > maxValue %f", minValue, maxValue);
        maxValue = minValue;
    }
    if (!differ(minValue, m_minValue) && !differ(maxValue, m_maxValue))
        return;
    m_minValue = minValue;
    m_maxValue = maxValue;
    const double before = m_value;
    const double after = bound(before);
    rangeChange();
    if (differ(after, before)) {
        m_prevValue = before;
        m_value = after;
        valueChange();
    }
}

void DoubleRangeControl::setSteps(double lineStep, double pageStep)
{
    if (!differ(lineStep, m_lineStep) && !differ(pageStep, m_pageStep))
        return;
    m_lineStep = std::abs(lineStep);
    m_pageStep = std::abs(pageStep);
    stepChange();
}
