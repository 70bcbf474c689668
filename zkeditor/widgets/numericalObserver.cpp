#include "zkeditor/widgets/numericalObserver.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/validator.h"
#include "zkeditor/widgets/noReceiver.h"
#include "zkeditor/widgets/validatorSet.h"

#include <algorithm>
#include <cmath>

namespace {

/// The decimals of a bound up to the last one that is not 0, of 20.
int decimalsOfBound(double bound)
{
    const QString text = QString::number(std::abs(bound), 'f', 20);
    int last = static_cast<int>(text.size()) - 1;
    const int point = static_cast<int>(text.indexOf(QLatin1Char('.')));
    while (last > point && text[last] == QLatin1Char('0'))
        --last;
    return last - point;
}

} // namespace

NumericalObserver::NumericalObserver(QWidget* widget) : PropertyObserver(widget), m_no(new NOReceiver(this)) {}

NumericalObserver::NumericalObserver(QWidget* widget, Value::Type type)
    : PropertyObserver(widget, type), m_no(new NOReceiver(this))
{
}

NumericalObserver::~NumericalObserver()
{
    delete m_no;
}

void NumericalObserver::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const QPointer<NOReceiver> alive(m_no);
    PropertyObserver::bind(document, nodes);
    if (!alive)
        return;
    for (PropertyImpl* property : m_props) {
        QObject::connect(property, &PropertyImpl::formatterChanged, m_no, [this, property] {
            // All values are compared in the first one's unit: another's does not matter to whether they agree.
            if (!m_props.empty() && property == m_props.front())
                forgetAgreement();
            m_no->onFormatChanged();
        });
    }
}

void NumericalObserver::unbind()
{
    PropertyObserver::unbind();
}

bool NumericalObserver::hasCompatibleValues() const
{
    return PropertyObserver::hasCompatibleValues();
}

Value NumericalObserver::comparableValue(const Value& value) const
{
    return convertFromSI(value);
}

void NumericalObserver::onFormatChanged()
{
    ZK_ASSERT(!m_props.empty());
    showFirstValue();
}

Unit NumericalObserver::shownUnit() const
{
    if (m_props.empty())
        return {};
    const auto* formatter = dynamic_cast<const NumericalFormatter*>(m_props.front()->getFormatter());
    return formatter ? formatter->currentUnit() : Unit();
}

Value NumericalObserver::convertFromSI(const Value& value) const
{
    const Unit unit = shownUnit();
    return unit.isNull() ? value : unit.convertFromSI(value);
}

Value NumericalObserver::convertToSI(const Value& value) const
{
    const Unit unit = shownUnit();
    return unit.isNull() ? value : unit.convertToSI(value);
}

bool NumericalObserver::fuzzyValidateValue(const Value& value) const
{
    if (!isTypeCompatible(value.type()))
        return false;
    if (m_valueType != Value::DOUBLE)
        return validateValue(value);
    const double number = value.toDouble();
    return validators().all([&](const interface::Validator& validator) {
        const auto* range = dynamic_cast<const DoubleValidator*>(&validator);
        if (!range)
            return validator.isValid(value);
        const int decimals = std::max(decimalsOfBound(range->minimum()), decimalsOfBound(range->maximum()));
        const double tolerance = std::pow(10.0, -(decimals + 1));
        return number >= range->minimum() - tolerance && number <= range->maximum() + tolerance;
    });
}
