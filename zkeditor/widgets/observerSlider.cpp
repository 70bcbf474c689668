#include "zkeditor/widgets/observerSlider.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/validator.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/validatorSet.h"

#include <QEvent>
#include <algorithm>
#include <cmath>
#include <limits>

ObserverSlider::ObserverSlider(QWidget* parent, const QString& name)
    : DoubleSlider(parent, name), NumericalObserver(this)
{
}

void ObserverSlider::setLineStep(double step)
{
    m_ownLineStep = true;
    DoubleSlider::setLineStep(step);
}

void ObserverSlider::setPageStep(double step)
{
    m_ownPageStep = true;
    DoubleSlider::setPageStep(step);
}

void ObserverSlider::setupWidget()
{
    ZK_ASSERT(m_valueType == Value::INT || m_valueType == Value::DOUBLE);
    followRange();
    NumericalObserver::setupWidget();
}

void ObserverSlider::unbind()
{
    endInteraction();
    NumericalObserver::unbind();
}

// From the model

void ObserverSlider::followRange()
{
    double lowest = std::numeric_limits<double>::lowest();
    double highest = std::numeric_limits<double>::max();
    validators().all([&](const interface::Validator& validator) {
        if (const auto* integers = dynamic_cast<const IntValidator*>(&validator)) {
            lowest = std::max<double>(lowest, integers->minimum());
            highest = std::min<double>(highest, integers->maximum());
        } else if (const auto* doubles = dynamic_cast<const DoubleValidator*>(&validator)) {
            lowest = std::max(lowest, doubles->minimum());
            highest = std::min(highest, doubles->maximum());
        }
        return true;
    });
    const ShowingValue showing(this);
    const bool whole = m_valueType == Value::INT;
    const double everything = whole ? std::numeric_limits<unsigned int>::max() : std::numeric_limits<double>::max();
    if (highest - lowest < everything) {
        if (const Unit unit = shownUnit(); !unit.isNull()) {
            lowest = unit.convertFromSI(lowest);
            highest = unit.convertFromSI(highest);
        }
        if (lowest > highest)
            std::swap(lowest, highest);
        setRange(lowest, highest);
    }
    const double range = maxValue() - minValue();
    if (!(range > 0.0))
        return;
    const double magnitude = std::pow(10.0, std::round(std::log10(range)) - 2.0);
    const double line = m_ownLineStep ? lineStep() : whole ? std::max(std::round(magnitude), 1.0) : magnitude;
    const double page = whole ? std::max(std::round(magnitude * 10.0), line) : magnitude * 10.0;
    setSteps(line, m_ownPageStep ? pageStep() : page);
}

void ObserverSlider::onPropertyValueChanged(Property, Value value)
{
    if (!value.isValid() || !isTypeCompatible(value.type())) {
        setShowsValue(false);
        return;
    }
    const double before = DoubleSlider::value();
    directSetValue(convertFromSI(value).toDouble());
    setShowsValue(hasCompatibleValues());
    if (differ(before, DoubleSlider::value()))
        valueChange();
}

void ObserverSlider::onValidatorChanged()
{
    ZK_ASSERT(!m_props.empty());
    const QPointer<POReceiver> alive(m_receiver);
    followRange();
    if (alive)
        NumericalObserver::onValidatorChanged();
}

void ObserverSlider::onFormatChanged()
{
    ZK_ASSERT(!m_props.empty());
    const QPointer<POReceiver> alive(m_receiver);
    followRange();
    if (alive)
        NumericalObserver::onFormatChanged();
}

// From the user

double ObserverSlider::tidyValue(double value, double resolution) const
{
    return m_valueType == Value::INT ? std::floor(value + 0.5) : DoubleSlider::tidyValue(value, resolution);
}

void ObserverSlider::setValue(double value)
{
    if (m_props.empty() || isShowingValue()) {
        DoubleSlider::setValue(value);
        return;
    }
    if (!isPropertyWriteable() || !std::isfinite(value))
        return;
    const double number = bound(value);
    Value wanted = m_valueType == Value::INT ? Value(Value(number).toInt()) : Value(number);
    wanted = convertToSI(wanted);
    // The ends of the range in the unit shown may miss those in SI by a rounding.
    if (!validateValue(wanted))
        wanted = fixupValue(wanted);
    if (wanted.isValid() && validateValue(wanted))
        setPropertyValue(wanted);
}

void ObserverSlider::gestureBegan()
{
    m_valueAtPress = !m_props.empty() && hasCompatibleValues() ? m_props.front()->getValue() : Value();
    beginGesture();
}

void ObserverSlider::gestureEnded()
{
    endGesture();
}

void ObserverSlider::gestureCancelled()
{
    if (m_props.empty()) {
        DoubleSlider::gestureCancelled();
        return;
    }
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    if (!cancelGesture() && alive && binding == bindingNumber() && m_valueAtPress.isValid())
        setPropertyValue(m_valueAtPress);
}

void ObserverSlider::changeEvent(QEvent* event)
{
    DoubleSlider::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ObserverSlider::setEnabled(bool enabled)
{
    DoubleSlider::setEnabled(enabled && isPropertyWriteable());
}

void ObserverSlider::setDisabled(bool disabled)
{
    DoubleSlider::setDisabled(disabled || !isPropertyWriteable());
}
