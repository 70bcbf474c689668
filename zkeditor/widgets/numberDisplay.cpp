#include "zkeditor/widgets/numberDisplay.h"

#include "zkcore/values/expressionParser.h"
#include "zkcore/values/formatter.h"

#include <cmath>

namespace numberDisplay {

QString text(double value, const Formatter* formatter)
{
    const auto* numerical = dynamic_cast<const NumericalFormatter*>(formatter);
    int decimals = numerical ? numerical->decimals() : -1;
    if (decimals < 0) {
        const double size = std::abs(value);
        decimals = 2;
        if (size > 0.0 && size < 1.0) {
            decimals = static_cast<int>(std::ceil(-std::log10(size))) + 1;
            if (decimals > 4)
                return QStringLiteral("0");
        }
    }
    QString result = QString::number(value, 'f', decimals);
    if (result.contains(QLatin1Char('.'))) {
        while (result.endsWith(QLatin1Char('0')))
            result.chop(1);
        if (result.endsWith(QLatin1Char('.')))
            result.chop(1);
    }
    return result.replace(QLatin1Char('.'), decimalPointCharacter());
}

double number(const QString& text, const Unit& unit)
{
    bool isNumber = false;
    const double result = text.toDouble(&isNumber);
    return isNumber ? result : ExpressionParser::eval(text, unit).toDouble();
}

} // namespace numberDisplay
