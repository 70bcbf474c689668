#pragma once

#include "zkeditor/export.h"

/// A double value in a range, with a line step and a page step. No widget; controls inherit it and redefine the hooks.
/// Two doubles count as different when they differ by at least 2^-52, whatever their size.
class ZKEDITOR_EXPORT DoubleRangeControl
{
public:
    /// The range is taken as given, the steps as absolute values, the value held within the range. Calls no hook.
    DoubleRangeControl(double minValue, double maxValue, double lineStep, double pageStep, double value);
    DoubleRangeControl(const DoubleRangeControl&) = delete;
    DoubleRangeControl& operator=(const DoubleRangeControl&) = delete;

    double value() const { return m_value; }
    /// The value before the last change; one below the minimum at first.
    double prevValue() const { return m_prevValue; }
    double minValue() const { return m_minValue; }
    double maxValue() const { return m_maxValue; }
    double lineStep() const { return m_lineStep; }
    double pageStep() const { return m_pageStep; }

    /// Sets the value, held within the range; valueChange() follows when it differs.
    virtual void setValue(double value);
    void addLine() { setValue(m_value + m_lineStep); }
    void subtractLine() { setValue(m_value - m_lineStep); }
    void addPage() { setValue(m_value + m_pageStep); }
    void subtractPage() { setValue(m_value - m_pageStep); }

    /// Move the other end along where need be.
    void setMinValue(double minValue);
    void setMaxValue(double maxValue);
    /// A maximum below the minimum is a warning and becomes the minimum. rangeChange() follows when an end differs, and
    /// valueChange() when the value had to move.
    void setRange(double minValue, double maxValue);
    /// Absolute values are taken. stepChange() follows when one differs.
    void setSteps(double lineStep, double pageStep);
    /// The nearest value within the range.
    double bound(double value) const;

protected:
    ~DoubleRangeControl() = default;

    virtual void valueChange() {}
    virtual void rangeChange() {}
    virtual void stepChange() {}
    /// Sets the value, held within the range, and calls no hook.
    void directSetValue(double value);

    static bool differ(double a, double b);

private:
    double m_minValue;
    double m_maxValue;
    double m_lineStep;
    double m_pageStep;
    double m_value;
    double m_prevValue;
};
