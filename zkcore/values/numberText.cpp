#include "zkcore/values/numberText.h"

#include "zkcore/values/value.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr int automaticDecimals = 6;

/// std::from_chars over a text. Numbers longer than the buffer are no numbers that anybody writes.
template <typename T> std::optional<T> fromCharacters(QStringView text)
{
    text = text.trimmed();
    if (text.startsWith(u'+')) {
        text = text.sliced(1);
        if (text.startsWith(u'-'))
            return std::nullopt;
    }
    std::array<char, 400> buffer;
    if (text.isEmpty() || text.size() > static_cast<qsizetype>(buffer.size()))
        return std::nullopt;
    char* end = buffer.data();
    for (const QChar c : text) {
        if (c.unicode() > 0x7f)
            return std::nullopt;
        *end++ = static_cast<char>(c.unicode());
    }
    T number{};
    const auto [rest, error] = std::from_chars(buffer.data(), end, number);
    if (error != std::errc() || rest != end)
        return std::nullopt;
    return number;
}

/// Without the locale's group separators, if they stand between groups of three digits and can be nothing else: a '.'
/// or
/// ',' alone is a decimal point somewhere.
QString withoutGroups(QStringView typed, QChar point)
{
    const QString separator = QLocale().groupSeparator();
    QString text = typed.trimmed().toString();
    if (separator.size() != 1 || separator.front() == point || !text.contains(separator))
        return text;
    const qsizetype end = text.contains(point) ? text.indexOf(point) : text.size();
    const QStringList groups = text.first(end).split(separator);
    const auto isDigits = [](const QString& group) {
        return std::all_of(group.begin(), group.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    };
    const QString& first = groups.first();
    const QString leading = first.startsWith(u'-') || first.startsWith(u'+') ? first.sliced(1) : first;
    const bool isGrouped = !leading.isEmpty() && leading.size() <= 3 && isDigits(leading) &&
                           std::all_of(groups.begin() + 1, groups.end(),
                                       [&](const QString& group) { return group.size() == 3 && isDigits(group); });
    const bool isPoint = separator.front() == u'.' || separator.front() == u',';
    const bool isClear = !isPoint || groups.size() > 2 || end < text.size();
    return isGrouped && isClear ? groups.join(QString()) + text.sliced(end) : text;
}

} // namespace

namespace numberText {

void appendShortest(QString& text, double value)
{
    std::array<char, 32> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    text.append(QLatin1String(buffer.data(), result.ptr));
}

void appendInt(QString& text, int value)
{
    std::array<char, 16> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    text.append(QLatin1String(buffer.data(), result.ptr));
}

std::optional<double> parseDouble(QStringView text)
{
    const std::optional<double> number = fromCharacters<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<int> parseInt(QStringView text)
{
    return fromCharacters<int>(text);
}

int roundToInt(double value)
{
    if (std::isnan(value))
        return 0;
    const double rounded = std::floor(value + 0.5);
    if (rounded <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    if (rounded >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return static_cast<int>(rounded);
}

QString fixed(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals < 0 ? automaticDecimals : decimals);
    if (decimals < 0 && text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    const bool isZero =
        std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c == u'-' || c == u'.' || c == u'0'; });
    if (isZero && text.startsWith(u'-'))
        text.remove(0, 1);
    text.replace(u'.', decimalPointCharacter());
    return text;
}

std::optional<double> parseTyped(QStringView text)
{
    const QChar point = decimalPointCharacter();
    QString number = withoutGroups(text, point);
    if (point == u'.' || !number.contains(point))
        return parseDouble(number);
    if (number.contains(u'.'))
        return std::nullopt;
    return parseDouble(number.replace(point, u'.'));
}

} // namespace numberText
