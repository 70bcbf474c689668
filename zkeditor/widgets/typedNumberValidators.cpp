#include "zkeditor/widgets/typedNumberValidators.h"

#include <algorithm>
#include <cmath>

namespace {

qsizetype decimalsTyped(const QString& text)
{
    const qsizetype point = text.indexOf(QLatin1Char('.'));
    if (point < 0 || text.contains(QLatin1Char('e'), Qt::CaseInsensitive))
        return 0;
    qsizetype end = point + 1;
    while (end < text.size() && text[end].isDigit())
        ++end;
    return end - point - 1;
}

/// The text without an exponent that is only begun ("1e", "1e-").
QString withoutBegunExponent(const QString& text)
{
    const qsizetype e = text.lastIndexOf(QLatin1Char('e'), -1, Qt::CaseInsensitive);
    if (e <= 0)
        return text;
    const QString tail = text.mid(e + 1);
    return tail.isEmpty() || tail == QLatin1String("+") || tail == QLatin1String("-") ? text.left(e) : text;
}

} // namespace

QValidator::State TypedDoubleValidator::validate(QString& text, int&) const
{
    const QString typed = text.trimmed();
    if (bottom() >= 0 && typed.startsWith(QLatin1Char('-')))
        return Invalid;
    if (typed.isEmpty() || typed == QLatin1String("-") || typed == QLatin1String("+") || typed == QLatin1String(".") ||
        typed == QLatin1String("-."))
        return Intermediate;
    bool isNumber = false;
    const double entered = typed.toDouble(&isNumber);
    if (!isNumber) {
        const QString mantissa = withoutBegunExponent(typed);
        if (mantissa.size() == typed.size())
            return Invalid;
        mantissa.toDouble(&isNumber);
        return isNumber ? Intermediate : Invalid;
    }
    if (!std::isfinite(entered))
        return Invalid;
    if (decimalsTyped(typed) > decimals() || entered < bottom() || entered > top())
        return Intermediate;
    return Acceptable;
}

QValidator::State TypedIntValidator::validate(QString& text, int&) const
{
    const QString typed = text.trimmed();
    if (bottom() >= 0 && typed.startsWith(QLatin1Char('-')))
        return Invalid;
    if (typed.isEmpty() || typed == QLatin1String("-") || typed == QLatin1String("+"))
        return Intermediate;
    bool isNumber = false;
    const double entered = typed.toDouble(&isNumber);
    const auto isIntegerCharacter = [](QChar c) {
        return c.isDigit() || c == QLatin1Char('-') || c == QLatin1Char('+');
    };
    if (!isNumber || !std::all_of(typed.begin(), typed.end(), isIntegerCharacter))
        return Invalid;
    return entered < bottom() || entered > top() ? Intermediate : Acceptable;
}
