#include "zkcore/values/value.h"

#include "zkcore/model/nodeImpl.h"
#include "zkcore/values/numberText.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

// Values as text: the exact form that documents hold, and the form for people.

namespace {

QString translatedValueText(const char* text)
{
    return QCoreApplication::translate("Value", text);
}

/// Whether XML cannot carry the character, unless it is half of a surrogate pair, through element content unchanged.
bool isRefusedByXml(QChar c)
{
    const char16_t code = c.unicode();
    return (code < 0x20 && code != u'\t' && code != u'\n') || code >= 0xfffe || c.isSurrogate();
}

bool isHexDigit(QChar c)
{
    const char16_t code = c.unicode();
    return (code >= u'0' && code <= u'9') || (code >= u'a' && code <= u'f') || (code >= u'A' && code <= u'F');
}

/// Whether "\uXXXX" begins at the position.
bool isEscapeAt(QStringView text, qsizetype position)
{
    if (text.size() - position < 6 || text[position] != u'\\' || text[position + 1] != u'u')
        return false;
    for (qsizetype i = position + 2; i < position + 6; ++i)
        if (!isHexDigit(text[i]))
            return false;
    return true;
}

/// Characters that a document cannot hold are written "\uXXXX"; a backslash is left alone except where it would read
/// as the beginning of such an escape. Nearly every text comes out as it is, without a copy.
QString escapedText(const QString& text)
{
    const bool isOrdinary = std::all_of(
        text.cbegin(), text.cend(), [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0xd800 && c != u'\\'; });
    if (isOrdinary)
        return text.isNull() ? QLatin1String("") : text;
    QString result;
    qsizetype copied = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool paired = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (paired) {
            ++i;
        } else if (isRefusedByXml(c) || isEscapeAt(text, i)) {
            result += QStringView(text).sliced(copied, i - copied);
            result += QLatin1String("\\u") + QString::number(c.unicode(), 16).rightJustified(4, QLatin1Char('0'));
            copied = i + 1;
        }
    }
    result += QStringView(text).sliced(copied);
    return result;
}

QString unescapedText(QStringView text)
{
    if (!text.contains(u'\\'))
        return text.toString();
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isEscapeAt(text, i)) {
            result += QChar(text.sliced(i + 2, 4).toUShort(nullptr, 16));
            i += 5;
        } else {
            result += text[i];
        }
    }
    return result;
}

QString colorText(const QColor& color)
{
    if (!color.isValid())
        return QLatin1String("");
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

std::optional<QColor> colorFromText(QStringView text)
{
    if (text.isEmpty())
        return QColor();
    if (text.startsWith(u'#') && (text.size() == 7 || text.size() == 9)) {
        unsigned int rgba = 0;
        for (const QChar c : text.sliced(1)) {
            if (!isHexDigit(c))
                return std::nullopt;
            const char16_t code = c.unicode();
            rgba = rgba * 16 + (code <= u'9' ? code - u'0' : (code | 0x20) - u'a' + 10u);
        }
        return QColor::fromRgba(text.size() == 7 ? rgba | 0xff000000u : rgba);
    }
    QColor color;
    color.setNamedColor(text);
    return color.isValid() ? std::optional(color) : std::nullopt;
}

/// Calls `add` for each component between white space; false as soon as one is refused.
template <typename Add> bool eachComponent(QStringView text, Add add)
{
    qsizetype i = 0;
    while (i < text.size()) {
        if (text[i].isSpace()) {
            ++i;
            continue;
        }
        const qsizetype start = i;
        while (i < text.size() && !text[i].isSpace())
            ++i;
        if (!add(text.sliced(start, i - start)))
            return false;
    }
    return true;
}

bool appendDoubles(QStringView text, std::vector<double>& numbers)
{
    return eachComponent(text, [&numbers](QStringView component) {
        const std::optional<double> number = numberText::parseDouble(component);
        if (number)
            numbers.push_back(*number);
        return number.has_value();
    });
}

void appendPoint(QString& text, const zk::Point& point)
{
    numberText::appendShortest(text, point.x);
    text += QLatin1Char(' ');
    numberText::appendShortest(text, point.y);
}

template <typename List, typename Append> QString joinedText(const List& list, Append append)
{
    QString text = QLatin1String("");
    for (const auto& item : list) {
        if (!text.isEmpty())
            text += QLatin1Char(' ');
        append(text, item);
    }
    return text;
}

std::optional<zk::Point> pointFromText(QStringView text)
{
    std::array<double, 2> numbers{};
    size_t count = 0;
    const bool read = eachComponent(text, [&](QStringView component) {
        const std::optional<double> number = numberText::parseDouble(component);
        if (!number || count == numbers.size())
            return false;
        numbers[count++] = *number;
        return true;
    });
    if (!read || count != numbers.size())
        return std::nullopt;
    return zk::Point{numbers[0], numbers[1]};
}

Value nodeFromText(QStringView text)
{
    // Instance ids use the whole range of unsigned int, so parseInt does not serve.
    const QByteArray digits = text.trimmed().toLatin1();
    InstanceId id = 0;
    const auto [rest, error] = std::from_chars(digits.begin(), digits.end(), id);
    return digits.isEmpty() || error != std::errc() || rest != digits.end() ? Value() : Value::fromInstanceId(id);
}

template <typename T> Value valueOrInvalid(const std::optional<T>& content)
{
    return content ? Value(*content) : Value();
}

Value listFromText(Value::Type type, QStringView text)
{
    if (type == Value::INTVECTOR) {
        std::vector<int> list;
        const bool read = eachComponent(text, [&list](QStringView component) {
            const std::optional<int> number = numberText::parseInt(component);
            if (number)
                list.push_back(*number);
            return number.has_value();
        });
        return read ? Value(list) : Value();
    }
    std::vector<double> numbers;
    if (!appendDoubles(text, numbers))
        return {};
    if (type == Value::DOUBLEVECTOR)
        return Value(numbers);
    if (numbers.size() % 2 != 0)
        return {};
    std::vector<zk::Point> points;
    points.reserve(numbers.size() / 2);
    for (size_t i = 0; i < numbers.size(); i += 2)
        points.push_back({numbers[i], numbers[i + 1]});
    return Value(points);
}

QString nodeForPeople(const Value& value)
{
    if (const NodeImpl* node = value.toNode().impl())
        return node->displayName();
    const InstanceId id = value.toInstanceId();
    return id == 0 ? translatedValueText(QT_TRANSLATE_NOOP("Value", "none")) : QLatin1Char('#') + QString::number(id);
}

} // namespace

QChar decimalPointCharacter()
{
    const QString point = QLocale().decimalPoint();
    return point.isEmpty() ? QLatin1Char('.') : point.front();
}

QString formatValueAsString(const Value& value)
{
    QString text;
    const auto append = [&text](const QString& item) {
        if (!text.isEmpty())
            text += QLatin1String(decimalPointCharacter() == u',' ? "; " : ", ");
        text += item;
    };
    switch (value.type()) {
    case Value::DOUBLE:
        return numberText::fixed(value.toDouble(), -1);
    case Value::POINT:
        append(numberText::fixed(value.toPoint().x, -1));
        append(numberText::fixed(value.toPoint().y, -1));
        return text;
    case Value::BOOL:
        return value.toBool() ? translatedValueText(QT_TRANSLATE_NOOP("Value", "true"))
                              : translatedValueText(QT_TRANSLATE_NOOP("Value", "false"));
    case Value::NODE:
        return nodeForPeople(value);
    case Value::VALUEMAP:
        for (const auto& [key, item] : value.toValueMap())
            append(key + QLatin1String(": ") + formatValueAsString(item));
        return text;
    case Value::INTVECTOR:
    case Value::DOUBLEVECTOR:
    case Value::RESOURCEVECTOR:
    case Value::STRINGVECTOR:
    case Value::VALUEVECTOR:
        for (const Value& item : value.toValueVector())
            append(formatValueAsString(item));
        return text;
    case Value::POINTVECTOR:
        for (const Value& item : value.toValueVector())
            append(QLatin1Char('(') + formatValueAsString(item) + QLatin1Char(')'));
        return text;
    default:
        return value.toQString();
    }
}

QString valueToText(const Value& value)
{
    QString text;
    switch (value.type()) {
    case Value::BOOL:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case Value::INT:
        numberText::appendInt(text, value.toInt());
        return text;
    case Value::DOUBLE:
        numberText::appendShortest(text, value.toDouble());
        return text;
    case Value::POINT:
        appendPoint(text, value.toPoint());
        return text;
    case Value::STRING:
        return escapedText(value.toQString());
    case Value::COLOR:
        return colorText(value.toQColor());
    case Value::RESOURCE:
        return escapedText(value.toResource().toString());
    case Value::NODE:
        return QString::number(value.toInstanceId());
    case Value::INTVECTOR:
        return joinedText(value.toIntVector(), numberText::appendInt);
    case Value::DOUBLEVECTOR:
        return joinedText(value.toDoubleVector(), numberText::appendShortest);
    case Value::POINTVECTOR:
        return joinedText(value.toPointVector(), appendPoint);
    default:
        return {};
    }
}

Value valueFromText(Value::Type type, QStringView text)
{
    switch (type) {
    case Value::BOOL: {
        const QStringView word = text.trimmed();
        if (word == QLatin1String("true"))
            return Value(true);
        return word == QLatin1String("false") ? Value(false) : Value();
    }
    case Value::INT:
        return valueOrInvalid(numberText::parseInt(text));
    case Value::DOUBLE:
        return valueOrInvalid(numberText::parseDouble(text));
    case Value::POINT:
        return valueOrInvalid(pointFromText(text));
    case Value::STRING:
        return Value(unescapedText(text));
    case Value::COLOR:
        return valueOrInvalid(colorFromText(text.trimmed()));
    case Value::RESOURCE:
        return Value(Resource(unescapedText(text.trimmed())));
    case Value::NODE:
        return nodeFromText(text);
    case Value::INTVECTOR:
    case Value::DOUBLEVECTOR:
    case Value::POINTVECTOR:
        return listFromText(type, text);
    default:
        return {};
    }
}
