#include "zkcore/values/validator.h"

#include "zkcore/values/numberText.h"
#include "zkcore/values/validatorNotifier.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

namespace {

QString translatedReason(const char* text)
{
    return QCoreApplication::translate("Validator", text);
}

QString wrongKindReason(Value::Type expected)
{
    return translatedReason(QT_TRANSLATE_NOOP("Validator", "A value of type %1 is needed."))
        .arg(Value::typeAsString(expected));
}

QString rangeReason(const QString& minimum, const QString& maximum)
{
    return translatedReason(QT_TRANSLATE_NOOP("Validator", "Only values from %1 to %2 are allowed."))
        .arg(minimum, maximum);
}

template <typename Validator, typename Same> bool isSameKind(const interface::Validator& other, Same same)
{
    const auto* validator = dynamic_cast<const Validator*>(&other);
    return validator && same(*validator);
}

/// Puts the ends in order and takes them over; whether that changed the range.
template <typename Number> bool takeRange(Number minimum, Number maximum, Number& ownMinimum, Number& ownMaximum)
{
    if (minimum > maximum)
        std::swap(minimum, maximum);
    if (minimum == ownMinimum && maximum == ownMaximum)
        return false;
    ownMinimum = minimum;
    ownMaximum = maximum;
    return true;
}

} // namespace

namespace interface {

Validator::Validator() : m_notifier(new ValidatorNotifier) {}

Validator::~Validator()
{
    delete m_notifier;
}

void Validator::connect(QObject* receiver, const char* slot)
{
    m_notifier->add(receiver, slot);
}

void Validator::disconnect(QObject* receiver)
{
    m_notifier->remove(receiver);
}

void Validator::notifyChanged()
{
    m_notifier->notify();
}

} // namespace interface

SetValidator::SetValidator(const Value& validValues) : m_validValues(validValues) {}

void SetValidator::setValidValues(const Value& validValues)
{
    if (m_validValues == validValues)
        return;
    m_validValues = validValues;
    notifyChanged();
}

bool SetValidator::isValid(const Value& value) const
{
    const std::vector<Value> allowed = m_validValues.toValueVector();
    return std::find(allowed.begin(), allowed.end(), value) != allowed.end();
}

Value SetValidator::fixup(const Value&) const
{
    return {};
}

bool SetValidator::isEqual(const interface::Validator& other) const
{
    return isSameKind<SetValidator>(other, [this](const auto& set) { return set.m_validValues == m_validValues; });
}

QString SetValidator::reason(const Value&) const
{
    return translatedReason(QT_TRANSLATE_NOOP("Validator", "Only these values are allowed: %1."))
        .arg(formatValueAsString(m_validValues));
}

DoubleValidator::DoubleValidator(double minimum, double maximum)
{
    setRange(minimum, maximum);
}

void DoubleValidator::setRange(double minimum, double maximum)
{
    // Bounds that are no numbers, or infinite, leave that end as wide as the type.
    constexpr double widest = std::numeric_limits<double>::max();
    minimum = std::isnan(minimum) ? -widest : std::clamp(minimum, -widest, widest);
    maximum = std::isnan(maximum) ? widest : std::clamp(maximum, -widest, widest);
    if (takeRange(minimum, maximum, m_minimum, m_maximum))
        notifyChanged();
}

bool DoubleValidator::isValid(const Value& value) const
{
    const auto inRange = [this](double number) { return number >= m_minimum && number <= m_maximum; };
    switch (value.type()) {
    case Value::DOUBLE:
        return inRange(value.toDouble());
    case Value::POINT:
        return inRange(value.toPoint().x) && inRange(value.toPoint().y);
    case Value::DOUBLEVECTOR: {
        const std::vector<double> numbers = value.toDoubleVector();
        return std::all_of(numbers.begin(), numbers.end(), inRange);
    }
    default:
        return false;
    }
}

Value DoubleValidator::fixup(const Value& value) const
{
    const auto clamp = [this](double number) { return std::clamp(number, m_minimum, m_maximum); };
    switch (value.type()) {
    case Value::DOUBLE:
        return std::isnan(value.toDouble()) ? Value() : Value(clamp(value.toDouble()));
    case Value::POINT: {
        const zk::Point point = value.toPoint();
        return std::isnan(point.x) || std::isnan(point.y) ? Value() : Value(zk::Point{clamp(point.x), clamp(point.y)});
    }
    case Value::DOUBLEVECTOR: {
        std::vector<double> numbers = value.toDoubleVector();
        if (std::any_of(numbers.begin(), numbers.end(), [](double number) { return std::isnan(number); }))
            return {};
        std::transform(numbers.begin(), numbers.end(), numbers.begin(), clamp);
        return Value(numbers);
    }
    default:
        return {};
    }
}

bool DoubleValidator::isEqual(const interface::Validator& other) const
{
    return isSameKind<DoubleValidator>(
        other, [this](const auto& range) { return range.m_minimum == m_minimum && range.m_maximum == m_maximum; });
}

QString DoubleValidator::reason(const Value& value) const
{
    if (value.type() != Value::DOUBLE && value.type() != Value::POINT && value.type() != Value::DOUBLEVECTOR)
        return wrongKindReason(Value::DOUBLE);
    if (m_minimum == std::numeric_limits<double>::lowest() && m_maximum == std::numeric_limits<double>::max())
        return translatedReason(QT_TRANSLATE_NOOP("Validator", "Only finite numbers are allowed."));
    if (m_maximum == std::numeric_limits<double>::max())
        return translatedReason(QT_TRANSLATE_NOOP("Validator", "Only values from %1 upwards are allowed."))
            .arg(numberText::fixed(m_minimum, -1));
    if (m_minimum == std::numeric_limits<double>::lowest())
        return translatedReason(QT_TRANSLATE_NOOP("Validator", "Only values up to %1 are allowed."))
            .arg(numberText::fixed(m_maximum, -1));
    return rangeReason(numberText::fixed(m_minimum, -1), numberText::fixed(m_maximum, -1));
}

IntValidator::IntValidator(int minimum, int maximum)
{
    setRange(minimum, maximum);
}

void IntValidator::setRange(int minimum, int maximum)
{
    if (takeRange(minimum, maximum, m_minimum, m_maximum))
        notifyChanged();
}

bool IntValidator::isValid(const Value& value) const
{
    return value.type() == Value::INT && value.toInt() >= m_minimum && value.toInt() <= m_maximum;
}

Value IntValidator::fixup(const Value& value) const
{
    return value.type() == Value::INT ? Value(std::clamp(value.toInt(), m_minimum, m_maximum)) : Value();
}

bool IntValidator::isEqual(const interface::Validator& other) const
{
    return isSameKind<IntValidator>(
        other, [this](const auto& range) { return range.m_minimum == m_minimum && range.m_maximum == m_maximum; });
}

QString IntValidator::reason(const Value& value) const
{
    return value.type() == Value::INT ? rangeReason(QString::number(m_minimum), QString::number(m_maximum))
                                      : wrongKindReason(Value::INT);
}

struct StringValidator::Data
{
    QString text;
    QRegularExpression whole; // matches the text from end to end
};

StringValidator::StringValidator() : m_data(std::make_unique<Data>()) {}

StringValidator::~StringValidator() = default;

QString StringValidator::regularExpression() const
{
    return m_data->text;
}

void StringValidator::setRegularExpression(const QString& expression)
{
    if (expression == m_data->text)
        return;
    const QRegularExpression bare(expression);
    if (!bare.isValid()) {
        qWarning("StringValidator: malformed regular expression \"%s\": %s (at character %lld)", qPrintable(expression),
                 qPrintable(bare.errorString()), static_cast<long long>(bare.patternErrorOffset() + 1));
        return;
    }
    m_data->text = expression;
    m_data->whole = QRegularExpression(QRegularExpression::anchoredPattern(expression));
    notifyChanged();
}

bool StringValidator::isValid(const Value& value) const
{
    return value.type() == Value::STRING &&
           (m_data->text.isEmpty() || m_data->whole.match(value.toQString()).hasMatch());
}

Value StringValidator::fixup(const Value& value) const
{
    if (isValid(value))
        return value;
    const Value trimmed(value.toQString().trimmed());
    return value.type() == Value::STRING && isValid(trimmed) ? trimmed : Value();
}

bool StringValidator::isEqual(const interface::Validator& other) const
{
    return isSameKind<StringValidator>(other, [this](const auto& text) { return text.m_data->text == m_data->text; });
}

QString StringValidator::reason(const Value& value) const
{
    if (value.type() != Value::STRING)
        return wrongKindReason(Value::STRING);
    return translatedReason(QT_TRANSLATE_NOOP("Validator", "The text does not have the form that is needed here."));
}

ResourceValidator::ResourceValidator(const std::vector<Resource>& resources, const std::vector<QString>& labels)
    : m_resources(resources), m_labels(labels)
{
    m_labels.resize(m_resources.size());
}

Resource ResourceValidator::resourceAtIndex(unsigned int index) const
{
    return index < m_resources.size() ? m_resources[index] : Resource();
}

int ResourceValidator::indexForResource(const Value& value) const
{
    if (value.type() != Value::RESOURCE)
        return -1;
    const auto found = std::find(m_resources.begin(), m_resources.end(), value.toResource());
    return found == m_resources.end() ? -1 : static_cast<int>(found - m_resources.begin());
}

QString ResourceValidator::labelForResource(const Value& value) const
{
    const int index = indexForResource(value);
    return index < 0 ? QString() : m_labels[static_cast<size_t>(index)];
}

void ResourceValidator::setResources(const std::vector<Resource>& resources, const std::vector<QString>& labels)
{
    std::vector<QString> fitting = labels;
    fitting.resize(resources.size());
    if (resources == m_resources && fitting == m_labels)
        return;
    m_resources = resources;
    m_labels = fitting;
    notifyChanged();
}

bool ResourceValidator::isValid(const Value& value) const
{
    return indexForResource(value) >= 0;
}

Value ResourceValidator::fixup(const Value&) const
{
    return {};
}

bool ResourceValidator::isEqual(const interface::Validator& other) const
{
    return isSameKind<ResourceValidator>(other, [this](const auto& list) { return list.m_resources == m_resources; });
}

QString ResourceValidator::reason(const Value& value) const
{
    if (value.type() != Value::RESOURCE)
        return wrongKindReason(Value::RESOURCE);
    return translatedReason(QT_TRANSLATE_NOOP("Validator", "\"%1\" is not one of the resources offered here."))
        .arg(value.toQString());
}
