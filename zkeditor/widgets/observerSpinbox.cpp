#include "zkeditor/widgets/observerSpinbox.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/expressionParser.h"
#include "zkcore/values/validator.h"
#include "zkcore/values/validatorFactory.h"
#include "zkeditor/widgets/doubleSpinboxValidator.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/numberDisplay.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/spinControls.h"

#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double lowestDouble = std::numeric_limits<double>::lowest();
constexpr double highestDouble = std::numeric_limits<double>::max();

double nearestMultiple(double value, double of)
{
    return std::floor(value / of + 0.5) * of;
}

} // namespace

ObserverSpinBox::ObserverSpinBox(QWidget* parent, const QString& name)
    : DoubleSpinBox(parent, name), NumericalObserver(this),
      m_buttons(findChild<SpinControls*>(QStringLiteral("controls")))
{
    ZK_ASSERT_TEXT(m_buttons, "m_controls");
    m_buttons->installEventFilter(this);
}

ObserverSpinBox::~ObserverSpinBox()
{
    m_buttons->removeEventFilter(this);
}

void ObserverSpinBox::setAutoSetLineStep(bool automatic)
{
    m_autoSetLineStep = automatic;
    if (!m_props.empty())
        updateLineStep();
}

void ObserverSpinBox::setupWidget()
{
    ZK_ASSERT(m_valueType == Value::INT || m_valueType == Value::DOUBLE);
    QValidator* typed = QValidatorFactory::createByType(m_valueType, nullptr);
    setValidator(new DoubleSpinBoxValidator(this, typed));
    // As wide as the type: what is allowed is for the model's validators to say.
    if (m_valueType == Value::INT)
        setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    else
        setRange(lowestDouble, highestDouble);
    editor()->setAccessibleName(accessibleName());
    const QPointer<ObserverSpinBox> alive(this);
    NumericalObserver::setupWidget();
    if (!alive || m_props.empty())
        return;
    updateLineStep();
    connect(this, qOverload<double>(&DoubleSpinBox::valueChanged), this, &ObserverSpinBox::onWidgetValueChanged,
            Qt::UniqueConnection);
}

void ObserverSpinBox::unbind()
{
    const QPointer<ObserverSpinBox> alive(this);
    // What was typed belongs to the nodes that were bound while it was typed.
    if (!m_props.empty() && isEdited())
        interpretText();
    if (!alive)
        return;
    disconnect(this, qOverload<double>(&DoubleSpinBox::valueChanged), this, &ObserverSpinBox::onWidgetValueChanged);
    endStepping();
    NumericalObserver::unbind();
}

// From the model

void ObserverSpinBox::onPropertyValueChanged(Property, Value value)
{
    if (!value.isValid() || !isTypeCompatible(value.type())) {
        setNoValue(true);
        return;
    }
    const double number = numberOf(convertFromSI(value));
    const bool agree = hasCompatibleValues();
    if (agree && !m_noValue && DoubleRangeControl::value() == number)
        return;
    if (isTyping()) {
        // Neither the text nor the cursor is taken from somebody who types.
        directSetValue(number);
        m_refreshPending = true;
        return;
    }
    directSetValue(number);
    if (agree) {
        m_noValue = false;
        setDisplayValid(true);
        updateDisplay();
    } else {
        setNoValue(true);
    }
}

void ObserverSpinBox::onValidatorChanged()
{
    const QPointer<ObserverSpinBox> alive(this);
    NumericalObserver::onValidatorChanged();
    if (alive)
        updateLineStep();
}

void ObserverSpinBox::onFormatChanged()
{
    const QPointer<ObserverSpinBox> alive(this);
    NumericalObserver::onFormatChanged();
    if (alive)
        updateLineStep();
}

void ObserverSpinBox::setNoValue(bool noValue)
{
    // Each of many nodes that differ says so.
    const bool isBlank = m_noValue && !isEdited() && editor()->text().isEmpty();
    m_noValue = noValue;
    if (!noValue || isBlank)
        return;
    editor()->setText(QString()); // not clear(), which Escape would undo
    setEdited(false);
    setDisplayValid(true);
    setDisplayReason({});
}

double ObserverSpinBox::numberOf(const Value& value) const
{
    return m_valueType == Value::INT ? value.toInt() : value.toDouble();
}

// From the user

Value ObserverSpinBox::getValueWithType(double value) const
{
    if (m_valueType != Value::INT)
        return Value(value);
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return Value(static_cast<int>(std::clamp(std::floor(value + 0.5), lowest, highest)));
}

void ObserverSpinBox::setOwnValue(double value)
{
    const bool hadNoValue = std::exchange(m_noValue, false);
    const double before = DoubleRangeControl::value();
    const QPointer<ObserverSpinBox> alive(this);
    DoubleSpinBox::setValue(value);
    if (!alive)
        return;
    setDisplayValid(true);
    setDisplayReason({});
    m_refreshPending = false;
    // No change of the box's own value is told, but the nodes have different ones.
    if (hadNoValue && !differ(before, DoubleRangeControl::value()))
        onWidgetValueChanged(DoubleRangeControl::value());
}

void ObserverSpinBox::setValue(double value)
{
    if (m_valueType == Value::INVALID || m_props.empty()) {
        DoubleSpinBox::setValue(value);
        return;
    }
    Value fixed;
    if (std::isfinite(value)) {
        const Value wanted = convertToSI(getValueWithType(value));
        if (validateValue(wanted)) {
            setOwnValue(value);
            return;
        }
        fixed = fixupValue(wanted);
        if (fixed.isValid() && !(fixed == wanted)) {
            setOwnValue(numberOf(convertFromSI(fixed)));
            return;
        }
    }
    qWarning("ObserverSpinBox: Can't fixup setting old value %f", fixed.toDouble());
    setEdited(false);
    if (m_noValue) {
        setNoValue(true);
        return;
    }
    editor()->setText(mapValueToText(DoubleRangeControl::value()));
    setEdited(false);
    setDisplayValid(true);
    setDisplayReason({});
    m_refreshPending = false;
}

void ObserverSpinBox::onWidgetValueChanged(double value)
{
    if (m_props.empty() || isShowingValue())
        return;
    const Value wanted = convertToSI(getValueWithType(value));
    if (validateValue(wanted))
        setPropertyValue(wanted);
}

void ObserverSpinBox::textChanged()
{
    DoubleSpinBox::textChanged();
    if (m_props.empty() || m_refreshing || (m_noValue && editor()->text().isEmpty()))
        return;
    bool ok = true;
    const double number = mapTextToValue(&ok);
    const bool isNumber = std::isfinite(number);
    const Value typed = isNumber ? convertToSI(getValueWithType(number)) : Value();
    const bool valid = isNumber && fuzzyValidateValue(typed);
    setDisplayValid(valid);
    if (valid)
        setDisplayReason({});
    else
        setDisplayReason(isNumber ? refusalReason(typed) : ExpressionParser::eval(cleanText(), shownUnit()).reason());
}

void ObserverSpinBox::interpretText()
{
    // A box that is left as it is changes nothing: what it shows may be rounded, or blank over different values.
    if (!isEdited() || (m_noValue && editor()->text().trimmed().isEmpty())) {
        setEdited(false);
        return;
    }
    DoubleSpinBox::interpretText();
}

bool ObserverSpinBox::isTyping() const
{
    return isEdited() && editor()->hasFocus();
}

// Text

QString ObserverSpinBox::mapValueToText(double value)
{
    return numberDisplay::text(value, m_props.empty() ? nullptr : m_props.front()->getFormatter());
}

double ObserverSpinBox::mapTextToValue(bool* ok)
{
    *ok = true;
    return numberDisplay::number(cleanText(), shownUnit());
}

void ObserverSpinBox::updateDisplay()
{
    if (m_refreshing)
        return;
    if (m_noValue) {
        editor()->setEnabled(isEnabled());
        m_buttons->setUpEnabled(isEnabled());
        m_buttons->setDownEnabled(isEnabled());
        return;
    }
    // The editor gives its focus away meanwhile; what it then shows must not be taken for something typed.
    const QPointer<ObserverSpinBox> alive(this);
    const QScopedValueRollback<bool> refreshing(m_refreshing, true);
    const bool hadFocus = editor()->hasFocus();
    const int cursor = editor()->cursorPosition();
    if (hadFocus)
        editor()->clearFocus();
    DoubleSpinBox::updateDisplay();
    if (hadFocus) {
        editor()->setFocus(Qt::OtherFocusReason);
        if (!editor()->hasSelectedText())
            editor()->setCursorPosition(std::min(cursor, static_cast<int>(editor()->text().size())));
    }
}

// Stepping

double ObserverSpinBox::acceleratedValue()
{
    double from = value();
    ++m_stepCounter;
    const auto faster = [&](int factor) {
        m_currentStep = m_baseStep * factor;
        from = nearestMultiple(from, factor);
    };
    if (m_stepCounter < 20)
        m_currentStep = m_baseStep;
    else if (m_stepCounter == 20)
        faster(10);
    else if (m_stepCounter == 40)
        faster(100);
    else if (m_stepCounter == 60)
        faster(1000);
    return from;
}

void ObserverSpinBox::stepUp()
{
    const double from = acceleratedValue();
    setValue(from + m_currentStep);
}

void ObserverSpinBox::stepDown()
{
    const double from = acceleratedValue();
    setValue(from - m_currentStep);
}

void ObserverSpinBox::stepChange()
{
    m_baseStep = lineStep();
    m_stepCounter = 0;
    m_currentStep = m_baseStep;
}

void ObserverSpinBox::endStepping()
{
    m_stepCounter = 0;
    m_currentStep = m_baseStep;
    endGesture();
}

void ObserverSpinBox::updateLineStep()
{
    if (!m_autoSetLineStep)
        return;
    ZK_ASSERT(!m_props.empty());
    ZK_ASSERT(m_valueType == Value::INT || m_valueType == Value::DOUBLE);
    double lowest = 0.0;
    double highest = 1.0;
    const interface::Validator* validator = m_props.front()->getValidator();
    if (const auto* integers = dynamic_cast<const IntValidator*>(validator)) {
        lowest = integers->minimum();
        highest = integers->maximum();
    } else if (const auto* doubles = dynamic_cast<const DoubleValidator*>(validator)) {
        lowest = doubles->minimum();
        highest = doubles->maximum();
    }
    if (const Unit unit = shownUnit(); !unit.isNull()) {
        lowest = unit.convertFromSI(lowest);
        highest = unit.convertFromSI(highest);
    }
    const double magnitude = std::ceil(std::log10(highest - lowest));
    if (std::isfinite(magnitude))
        setLineStep(std::pow(10.0, magnitude - 1.0));
}

// Events

bool ObserverSpinBox::eventFilter(QObject* object, QEvent* event)
{
    const QPointer<ObserverSpinBox> alive(this);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (object == m_buttons)
            beginGesture();
        break;
    case QEvent::MouseButtonRelease:
        if (object == m_buttons)
            endStepping();
        break;
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!key->isAutoRepeat() && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down))
            beginGesture();
        if (key->key() == Qt::Key_Escape && object == editor() && m_refreshPending) {
            m_refreshPending = false;
            setEdited(false);
            showFirstValue();
            if (alive) {
                updateDisplay();
                setDisplayValid(true);
                setDisplayReason({});
            }
            return true;
        }
        break;
    }
    case QEvent::KeyRelease:
        // A key that is held sends releases as well, which end nothing.
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat())
            endStepping();
        break;
    case QEvent::FocusOut:
        if (m_refreshing)
            return false;
        endStepping();
        break;
    default:
        break;
    }
    return DoubleSpinBox::eventFilter(object, event);
}

void ObserverSpinBox::changeEvent(QEvent* event)
{
    DoubleSpinBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ObserverSpinBox::setEnabled(bool enabled)
{
    DoubleSpinBox::setEnabled(enabled && isPropertyWriteable());
}

void ObserverSpinBox::setDisabled(bool disabled)
{
    DoubleSpinBox::setEnabled(!disabled && isPropertyWriteable());
}
