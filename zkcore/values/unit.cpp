#include "zkcore/values/unit.h"

#include "zkcore/base/classicLocale.h"
#include "zkcore/values/numberText.h"
#include "zkcore/values/unitNames.h"
#include "zkcore/values/value.h"

#include <QCoreApplication>
#include <QHash>
#include <cmath>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

#include <udunits2.h>

// UDUNITS-2 knows the units; its converters are asked once per unit, since nearly all of them are a factor and an
// offset. Data of units are made once and live as long as the program.

struct Unit::Data
{
    struct Free
    {
        void operator()(ut_unit* unit) const { ut_free(unit); }
        void operator()(cv_converter* converter) const { cv_free(converter); }
    };
    using UnitPointer = std::unique_ptr<ut_unit, Free>;
    using ConverterPointer = std::unique_ptr<cv_converter, Free>;

    QString symbol;
    QString abbreviation;           // null when there is none
    const UnitName* name = nullptr; // null unless the unit is well known

    UnitPointer si; // the product of base units that values are stored in
    // SI value = value * numerator / denominator + offset. Factors that are decimal fractions are kept as a fraction of
    // whole numbers: 12.5 mm is then exactly the double 0.0125.
    double numerator = 1.0;
    double denominator = 1.0;
    double offset = 0.0;
    // Set for the few units (logarithmic ones) for which that does not hold.
    ConverterPointer toSI;
    ConverterPointer fromSI;
};

namespace {

constexpr qsizetype longestUnitText = 64;

ut_system* unitSystem()
{
    static ut_system* const system = [] {
        const ClassicLocale classic;
        ut_set_error_message_handler(ut_ignore);
        return ut_read_xml(nullptr);
    }();
    return system;
}

ut_status rememberUnit(const ut_unit* unit, void* result)
{
    *static_cast<const ut_unit**>(result) = unit;
    return UT_SUCCESS;
}

/// The product of base units behind a unit; null for points in time, which no value of a document is measured in.
const ut_unit* siUnit(const ut_unit* unit)
{
    const ut_unit* result = nullptr;
    ut_visitor visitor;
    visitor.visit_basic = rememberUnit;
    visitor.visit_product = [](const ut_unit* product, int, const ut_unit* const*, const int*, void* found) {
        return rememberUnit(product, found);
    };
    visitor.visit_galilean = [](const ut_unit*, double, const ut_unit* underlying, double, void* found) {
        return rememberUnit(siUnit(underlying), found);
    };
    visitor.visit_timestamp = [](const ut_unit*, const ut_unit*, double, void*) { return UT_SUCCESS; };
    visitor.visit_logarithmic = [](const ut_unit*, double, const ut_unit* reference, void* found) {
        return rememberUnit(siUnit(reference), found);
    };
    return ut_accept_visitor(unit, &visitor, &result) == UT_SUCCESS ? result : nullptr;
}

/// The factor as a fraction of whole numbers where it is a decimal fraction, as it is over 1 elsewhere.
std::pair<double, double> asFraction(double factor)
{
    double denominator = 1.0;
    for (int digits = 0; digits <= 15; ++digits, denominator *= 10.0) {
        const double scaled = factor * denominator;
        const double whole = std::round(scaled);
        if (std::abs(whole) >= 1.0 && std::abs(whole) < 1e9 && std::abs(scaled - whole) <= 1e-14 * std::abs(whole))
            return {whole, denominator};
    }
    return {factor, 1.0};
}

/// The converter as numerator, denominator and offset; false when it is no such thing.
bool isAffine(const cv_converter* converter, double& numerator, double& denominator, double& offset)
{
    offset = cv_convert_double(converter, 0.0);
    const double factor = cv_convert_double(converter, 1.0) - offset;
    if (!std::isfinite(offset) || !std::isfinite(factor) || factor == 0.0)
        return false;
    for (const double probe : {2.0, -40.0, 1000.0}) {
        const double expected = probe * factor + offset;
        if (std::abs(cv_convert_double(converter, probe) - expected) > 1e-9 * (std::abs(expected) + std::abs(offset)))
            return false;
    }
    std::tie(numerator, denominator) = asFraction(factor);
    return true;
}

/// The text in the spelling of the data base.
QString canonicalSymbol(const QString& text)
{
    if (const UnitName* known = findUnitName(text))
        return QString::fromUtf8(known->symbol);
    return text;
}

bool mayBeginUnit(QChar c)
{
    return c.isLetter() || QStringLiteral("°%\"'").contains(c);
}

/// Whether the text has the form of a unit; the data base would also take one with something else behind it.
bool isUnitText(const QString& text)
{
    if (text.isEmpty() || text.size() > longestUnitText || !mayBeginUnit(text.front()))
        return false;
    int open = 0;
    for (const QChar c : text) {
        if (c == u'(')
            ++open;
        else if (c == u')' && --open < 0)
            return false;
        else if (!mayBeginUnit(c) && !c.isDigit() && !QStringLiteral("/.^*+-_ :()²³").contains(c))
            return false;
    }
    return open == 0;
}

/// Applies a conversion to every number of a value.
template <typename Convert> Value convertedValue(const Value& value, Convert convert)
{
    switch (value.type()) {
    case Value::INT:
        return Value(numberText::roundToInt(convert(value.toDouble())));
    case Value::DOUBLE:
        return Value(convert(value.toDouble()));
    case Value::POINT:
        return Value(zk::Point{convert(value.toPoint().x), convert(value.toPoint().y)});
    case Value::INTVECTOR: {
        std::vector<int> list = value.toIntVector();
        for (int& number : list)
            number = numberText::roundToInt(convert(number));
        return Value(list);
    }
    case Value::DOUBLEVECTOR: {
        std::vector<double> list = value.toDoubleVector();
        for (double& number : list)
            number = convert(number);
        return Value(list);
    }
    case Value::POINTVECTOR: {
        std::vector<zk::Point> list = value.toPointVector();
        for (zk::Point& point : list)
            point = {convert(point.x), convert(point.y)};
        return Value(list);
    }
    default:
        return value;
    }
}

} // namespace

Unit Unit::fromText(const QString& text)
{
    return fromText(text, QString());
}

Unit Unit::fromText(const QString& text, const QString& abbreviation)
{
    static QHash<std::pair<QString, QString>, std::shared_ptr<const Data>> known;

    const QString symbol = canonicalSymbol(text.trimmed());
    if (!isUnitText(symbol) || !unitSystem())
        return {};
    const auto found = known.constFind({symbol, abbreviation});
    if (found != known.constEnd())
        return Unit(*found);

    const ClassicLocale classic;
    const Data::UnitPointer unit(ut_parse(unitSystem(), symbol.toUtf8().constData(), UT_UTF8));
    const ut_unit* const base = unit ? siUnit(unit.get()) : nullptr;
    Data::UnitPointer si(base ? ut_clone(base) : nullptr);
    Data::ConverterPointer toSI(si ? ut_get_converter(unit.get(), si.get()) : nullptr);
    Data::ConverterPointer fromSI(si ? ut_get_converter(si.get(), unit.get()) : nullptr);
    if (!toSI || !fromSI)
        return {};
    auto data = std::make_shared<Data>();
    data->symbol = symbol;
    data->name = findUnitName(symbol);
    if (!abbreviation.isNull())
        data->abbreviation = abbreviation;
    else if (data->name && data->name->abbreviation)
        data->abbreviation = QString::fromUtf8(data->name->abbreviation);
    data->si = std::move(si);
    if (!isAffine(toSI.get(), data->numerator, data->denominator, data->offset)) {
        data->toSI = std::move(toSI);
        data->fromSI = std::move(fromSI);
    }
    known.insert({symbol, abbreviation}, data);
    return Unit(data);
}

QString Unit::name() const
{
    if (!m_data)
        return {};
    return m_data->name ? QCoreApplication::translate("Unit", m_data->name->name) : m_data->symbol;
}

QString Unit::abbreviatedName() const
{
    return m_data ? m_data->abbreviation : QString();
}

QString Unit::symbol() const
{
    return m_data ? m_data->symbol : QString();
}

double Unit::convertToSI(double value) const
{
    if (!m_data)
        return value;
    if (m_data->toSI)
        return cv_convert_double(m_data->toSI.get(), value);
    const double product = value * m_data->numerator;
    // Only the product may overflow although the result does not.
    const double scaled =
        std::isfinite(product) ? product / m_data->denominator : value * (m_data->numerator / m_data->denominator);
    return scaled + m_data->offset;
}

double Unit::convertFromSI(double value) const
{
    if (!m_data)
        return value;
    if (m_data->fromSI)
        return cv_convert_double(m_data->fromSI.get(), value);
    const double shifted = value - m_data->offset;
    const double product = shifted * m_data->denominator;
    return std::isfinite(product) ? product / m_data->numerator : shifted / (m_data->numerator / m_data->denominator);
}

Value Unit::convertToSI(const Value& value) const
{
    return m_data ? convertedValue(value, [this](double number) { return convertToSI(number); }) : value;
}

Value Unit::convertFromSI(const Value& value) const
{
    return m_data ? convertedValue(value, [this](double number) { return convertFromSI(number); }) : value;
}

bool Unit::isConvertibleTo(const Unit& other) const
{
    if (!m_data || !other.m_data)
        return !m_data && !other.m_data;
    // The library would also convert seconds into hertz, as reciprocals; nobody who types a time means that.
    return ut_compare(m_data->si.get(), other.m_data->si.get()) == 0;
}

bool operator==(const Unit& a, const Unit& b)
{
    return a.m_data == b.m_data || (a.m_data && b.m_data && a.m_data->symbol == b.m_data->symbol);
}
