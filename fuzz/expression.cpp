// Typed numbers and expressions. The first byte chooses the unit shown and the locale, the rest is what is typed.
#include "fuzz/support/harness.h"
#include "zkcore/values/expressionParser.h"
#include "zkcore/values/formatter.h"

#include <QLocale>
#include <array>
#include <cmath>
#include <memory>

namespace {

// Beyond it the digits shown are more than those that count.
constexpr double exactlyShown = 1e6;

const std::array<Unit, 8>& shownUnits()
{
    static const std::array<Unit, 8> units{Unit(),
                                           Unit::fromText(QStringLiteral("mm")),
                                           Unit::fromText(QStringLiteral("in")),
                                           Unit::fromText(QStringLiteral("degree")),
                                           Unit::fromText(QStringLiteral("kohm")),
                                           Unit::fromText(QStringLiteral("s")),
                                           Unit::fromText(QStringLiteral("degC")),
                                           Unit::fromText(QStringLiteral("V"))};
    return units;
}

bool isSmall(const Value& value)
{
    const zk::Point point = value.type() == Value::POINT ? value.toPoint() : zk::Point{value.toDouble(), 0};
    return std::abs(point.x) < exactlyShown && std::abs(point.y) < exactlyShown;
}

void checkFormatter(Value::Type type, const Unit& unit, const QString& text)
{
    auto format = std::make_shared<NumericalFormat>();
    format->unit = unit;
    if (!unit.isNull())
        format->units = {unit};
    const NumericalFormatter formatter(type, format);
    const Value value = formatter.fromText(text);
    if (value.type() != type)
        return;
    const QString shown = formatter.toText(value);
    if (!isSmall(unit.convertFromSI(value)))
        return;
    const Value read = formatter.fromText(shown);
    fuzz::require(read.type() == type, "what is shown can be typed", text + u'\n' + shown);
    fuzz::require(formatter.toText(read) == shown, "what is shown does not change when it is entered",
                  text + u'\n' + shown + u'\n' + formatter.toText(read));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const Unit& unit = shownUnits().at(data[0] & 7);
    QLocale::setDefault((data[0] & 8) != 0 ? QLocale(QLocale::German) : QLocale::c());
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data) + 1, qsizetype(size) - 1);

    const ExpressionParser::ExpressionResult result = ExpressionParser::eval(text, unit);
    if (result.isValid())
        fuzz::require(std::isfinite(result.toDouble()), "what is valid is finite", text);
    else
        fuzz::require(std::isnan(result.toDouble()) && !result.reason().isEmpty(), "what is malformed says why", text);
    const ExpressionParser::ExpressionResult again = ExpressionParser::eval(text, unit);
    fuzz::require(again.isValid() == result.isValid() && again.reason() == result.reason() &&
                      (!again.isValid() || again.toDouble() == result.toDouble()),
                  "one expression leaves nothing behind for the next", text);
    for (const Value::Type type : {Value::DOUBLE, Value::INT, Value::POINT})
        checkFormatter(type, unit, text);
    return 0;
}
