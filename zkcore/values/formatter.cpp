#include "zkcore/values/formatter.h"

#include "zkcore/values/expressionParser.h"
#include "zkcore/values/numberText.h"
#include "zkcore/values/preferredUnits.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace {

std::vector<Unit>& ownPreferredUnits()
{
    static std::vector<Unit> units;
    return units;
}

/// The first of the liked units that is offered; null when none is.
const Unit* mostLiked(const std::vector<Unit>& liked, const std::vector<Unit>& offered)
{
    for (const Unit& unit : liked) {
        const auto found = std::find(offered.begin(), offered.end(), unit);
        if (found != offered.end())
            return &*found;
    }
    return nullptr;
}

/// The SI value of a typed number or expression in the unit shown; nothing when it is none or not finite.
std::optional<double> typedNumber(const QString& text, const Unit& shown)
{
    const ExpressionParser::ExpressionResult result = ExpressionParser::eval(text, shown);
    if (!result.isValid())
        return std::nullopt;
    const double value = shown.convertToSI(result.toDouble());
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// The place of the separator between the two numbers of a point, outside brackets: ';', or else the only ',' there is
/// (it cannot be a decimal point then, since a point needs a separator). -1 when there is none.
qsizetype pointSeparator(const QString& text)
{
    qsizetype comma = -1;
    int commas = 0;
    int depth = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'(')
            ++depth;
        else if (c == u')')
            --depth;
        else if (depth == 0 && c == u';')
            return i;
        else if (depth == 0 && c == u',' && ++commas == 1)
            comma = i;
    }
    return commas == 1 ? comma : -1;
}

Value typedPoint(const QString& text, const Unit& shown)
{
    const qsizetype separator = pointSeparator(text);
    if (separator < 0)
        return {};
    const std::optional<double> x = typedNumber(text.left(separator), shown);
    const std::optional<double> y = typedNumber(text.mid(separator + 1), shown);
    return x && y ? Value(zk::Point{*x, *y}) : Value();
}

/// The value of a type with numbers that a text stands for; invalid when it stands for none.
Value typedNumerical(Value::Type type, const QString& text, const Unit& shown)
{
    if (type == Value::POINT)
        return typedPoint(text, shown);
    const std::optional<double> number = typedNumber(text, shown);
    if (!number)
        return {};
    return type == Value::INT ? Value(numberText::roundToInt(*number)) : Value(*number);
}

Value typedBool(const QString& text)
{
    const QString word = text.trimmed();
    for (const bool value : {true, false})
        for (const QString& spelling : {valueToText(Value(value)), formatValueAsString(Value(value))})
            if (word.compare(spelling, Qt::CaseInsensitive) == 0)
                return Value(value);
    return {};
}

} // namespace

Formatter::~Formatter() = default;

QString Formatter::toText(const Value& value) const
{
    return formatValueAsString(value);
}

Value Formatter::fromText(const QString& text) const
{
    if (m_type == Value::BOOL)
        return typedBool(text);
    if (m_type == Value::STRING)
        return Value(text);
    if (NumericalFormatter::formats(m_type))
        return typedNumerical(m_type, text, Unit());
    // In files an empty text is no colour; a user who empties a field has not chosen that.
    if (m_type == Value::COLOR && text.trimmed().isEmpty())
        return {};
    return valueFromText(m_type, text);
}

void setPreferredUnits(const std::vector<Unit>& units)
{
    ownPreferredUnits() = units;
}

const std::vector<Unit>& preferredUnits()
{
    return ownPreferredUnits();
}

NumericalFormatter::NumericalFormatter(Value::Type type, std::shared_ptr<const NumericalFormat> format)
    : Formatter(type), m_format(format ? std::move(format) : std::make_shared<const NumericalFormat>()),
      m_unit(m_format->unit)
{
    if (const Unit* unit = mostLiked(ownPreferredUnits(), m_format->units))
        m_unit = *unit;
}

bool NumericalFormatter::formats(Value::Type type)
{
    return type == Value::INT || type == Value::DOUBLE || type == Value::POINT;
}

bool NumericalFormatter::setCurrentUnit(const Unit& unit)
{
    if (unit == m_unit)
        return true;
    const std::vector<Unit>& offered = m_format->units;
    const auto found = std::find(offered.begin(), offered.end(), unit);
    if (found == offered.end())
        return false;
    change(*found);
    return true;
}

void NumericalFormatter::followPreferredUnits(const std::vector<Unit>& before)
{
    const Unit* liked = mostLiked(ownPreferredUnits(), m_format->units);
    if (!liked && !mostLiked(before, m_format->units))
        return; // no preference was ever about it
    const Unit unit = liked ? *liked : m_format->unit;
    if (!(unit == m_unit))
        change(unit);
}

void NumericalFormatter::change(const Unit& unit)
{
    m_unit = unit;
    // Whoever hears of the change may do away with the property, and with it this formatter.
    if (const std::function<void()> changed = m_changed)
        changed();
}

QString NumericalFormatter::toText(const Value& value) const
{
    switch (value.type()) {
    case Value::INT:
        return QString::number(m_unit.convertFromSI(value).toInt());
    case Value::DOUBLE:
        return numberText::fixed(m_unit.convertFromSI(value.toDouble()), decimals());
    case Value::POINT: {
        const zk::Point point = m_unit.convertFromSI(value).toPoint();
        const QLatin1String separator(decimalPointCharacter() == u',' ? "; " : ", ");
        return numberText::fixed(point.x, decimals()) + separator + numberText::fixed(point.y, decimals());
    }
    default:
        return formatValueAsString(value);
    }
}

Value NumericalFormatter::fromText(const QString& text) const
{
    return NumericalFormatter::formats(type()) ? typedNumerical(type(), text, m_unit) : Formatter::fromText(text);
}
