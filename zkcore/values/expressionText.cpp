#include "zkcore/values/expressionText.h"

#include "zkcore/values/numberText.h"
#include "zkcore/values/value.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype longestExpression = 1000;
constexpr size_t deepestNesting = 100;
constexpr qsizetype longestTypedUnit = 24;

QString translatedFault(const char* text)
{
    return QCoreApplication::translate("ExpressionParser", text);
}

/// The operator that people mean by a sign; null when it is none.
char operatorFor(QChar c)
{
    switch (c.unicode()) {
    case u'×':
    case u'·':
    case u'⋅':
        return '*';
    case u'÷':
    case u'∕':
        return '/';
    case u'−':
    case u'–':
        return '-';
    default:
        return c.unicode() < 0x80 && QStringLiteral("+-*/^<>=!&|?:").contains(c) ? c.toLatin1() : '\0';
    }
}

bool isUnitSign(QChar c)
{
    return QStringLiteral("°%\"'″′Ω\u2126").contains(c);
}

bool isNameCharacter(QChar c)
{
    return c.isLetter() || c == u'_';
}

/// Units whose multiples are often typed as the prefix alone: "4.7k".
const std::vector<QString>& unitsOfBarePrefixes()
{
    static const std::vector<QString> symbols = {QStringLiteral("ohm"), QStringLiteral("V"), QStringLiteral("A"),
                                                 QStringLiteral("F"),   QStringLiteral("W"), QStringLiteral("Hz"),
                                                 QStringLiteral("s")};
    return symbols;
}

} // namespace

ExpressionText::ExpressionText(QStringView typed, const Unit& shown)
    : m_typed(typed), m_shown(shown), m_decimalPoint(decimalPointCharacter())
{
    if (typed.size() > longestExpression)
        fail(translatedFault(QT_TRANSLATE_NOOP("ExpressionParser", "The expression is too long.")));
    else
        translate();
}

bool ExpressionText::isPlausible(QChar c)
{
    return c.isLetterOrNumber() || c.isSpace() || isUnitSign(c) || operatorFor(c) != '\0' ||
           QStringLiteral("().,;_µ").contains(c) || c == decimalPointCharacter();
}

int ExpressionText::typedPosition(int position) const
{
    if (position < 0 || static_cast<size_t>(position) >= m_origins.size())
        return static_cast<int>(m_typed.size());
    return static_cast<int>(m_origins[static_cast<size_t>(position)]) + 1;
}

void ExpressionText::translate()
{
    while (m_fault.isNull()) {
        m_position = skipBlanks(m_position);
        if (m_position >= m_typed.size())
            break;
        const QChar c = m_typed[m_position];
        if (m_operand == noOperand)
            m_hasUnit = false;
        if (readNumber())
            continue;
        if (m_operand != noOperand && (isNameCharacter(c) || isUnitSign(c))) {
            readUnit();
        } else if (isNameCharacter(c)) {
            readName();
        } else if (!readSign(c)) {
            failUnexpected(m_position, 1);
        }
    }
    if (m_fault.isNull() && m_expression.empty())
        fail(translatedFault(QT_TRANSLATE_NOOP("ExpressionParser", "There is no number.")));
}

/// A number in decimal or scientific notation. Blanks between digits are group separators.
bool ExpressionText::readNumber()
{
    qsizetype i = m_position;
    if (!at(i).isDigit() && !(isDecimalPoint(i) && at(i + 1).isDigit()))
        return false;
    std::string number;
    const auto readDigits = [&] {
        while (at(i).isDigit()) {
            number += static_cast<char>('0' + at(i).digitValue());
            ++i;
            const qsizetype next = skipBlanks(i);
            if (at(next).isDigit())
                i = next;
        }
    };
    readDigits();
    if (isDecimalPoint(i)) {
        number += '.';
        ++i;
        readDigits();
        number += '0';
    }
    if (at(i) == u'e' || at(i) == u'E') {
        const bool isSigned = at(i + 1) == u'+' || at(i + 1) == u'-';
        if (at(i + (isSigned ? 2 : 1)).isDigit()) {
            number += 'e';
            if (isSigned)
                number += at(i + 1).toLatin1();
            i += isSigned ? 2 : 1;
            readDigits();
        }
    }
    const bool afterOperand = m_operand != noOperand;
    if (afterOperand) {
        failUnexpected(m_position, i - m_position);
        return true;
    }
    m_operand = m_expression.size();
    emitText(number, m_position);
    m_position = i;
    return true;
}

/// A function or a constant.
void ExpressionText::readName()
{
    qsizetype end = m_position;
    while (isNameCharacter(at(end)) || (at(end).isDigit() && end > m_position))
        ++end;
    const QStringView typedName = m_typed.sliced(m_position, end - m_position);
    const QString name = typedName == QStringLiteral("π") ? QStringLiteral("pi") : typedName.toString();
    const bool isPlain = std::all_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (!isPlain) {
        failUnexpected(m_position, end - m_position);
        return;
    }
    const bool isFunction = at(skipBlanks(end)) == u'(';
    (isFunction ? m_function : m_operand) = m_expression.size();
    emitText(name.toStdString(), m_position);
    m_position = end;
}

/// The unit of the operand before it: the longest text from here that is a unit of the same kind as the one shown.
void ExpressionText::readUnit()
{
    qsizetype end = m_position;
    while (end < m_typed.size() && end - m_position < longestTypedUnit) {
        const QChar c = at(end);
        const QChar next = at(end + 1);
        const bool joins = (c == u'/' || c == u'.') ? next.isLetter() : c == u'^' && next.isDigit();
        if (!isNameCharacter(c) && !isUnitSign(c) && !joins && !(c.isDigit() && end > m_position))
            break;
        ++end;
    }
    for (qsizetype cut = end; cut > m_position; --cut) {
        const bool splitsName = cut < m_typed.size() && isNameCharacter(at(cut)) && isNameCharacter(at(cut - 1));
        if (splitsName)
            continue;
        const Unit unit = unitTyped(m_typed.sliced(m_position, cut - m_position).toString());
        if (unit.isNull() || m_hasUnit)
            continue;
        m_position = cut;
        applyUnit(unit);
        m_hasUnit = true;
        return;
    }
    const qsizetype length = std::max<qsizetype>(end - m_position, 1);
    if (m_shown.isNull() || m_hasUnit) {
        failUnexpected(m_position, length);
    } else {
        fail(translatedFault(QT_TRANSLATE_NOOP("ExpressionParser",
                                               "\"%1\" at position %2 is not a unit that can be converted to %3."))
                 .arg(m_typed.sliced(m_position, length).toString(), QString::number(m_position + 1), m_shown.name()));
    }
}

/// Brackets, separators and operators.
bool ExpressionText::readSign(QChar c)
{
    if (c == u'(') {
        if (m_groups.size() >= deepestNesting) {
            fail(translatedFault(QT_TRANSLATE_NOOP("ExpressionParser", "Too many brackets are open.")));
            return true;
        }
        if (m_operand != noOperand)
            return false;
        m_groups.push_back(m_function == noOperand ? m_expression.size() : m_function);
        m_function = noOperand;
        emitText("(", m_position);
    } else if (c == u')') {
        if (m_groups.empty())
            return false;
        emitText(")", m_position);
        m_operand = m_groups.back();
        m_hasUnit = false;
        m_groups.pop_back();
        ++m_position;
        return true;
    } else if (c == u',' || c == u';') {
        // Separates the arguments of a function; elsewhere it would quietly drop what stands before it.
        if (m_groups.empty())
            return false;
        emitText(",", m_position);
    } else if (const char sign = operatorFor(c)) {
        emitText(std::string(1, sign), m_position);
    } else {
        return false;
    }
    m_operand = noOperand;
    ++m_position;
    return true;
}

void ExpressionText::emitText(const std::string& text, qsizetype from)
{
    m_expression += text;
    m_origins.resize(m_expression.size(), from);
}

/// Puts the conversion to the unit shown around the operand that was just completed, which stays an operand.
void ExpressionText::applyUnit(const Unit& unit)
{
    if (unit == m_shown)
        return;
    const auto toShown = [&](double value) { return m_shown.convertFromSI(unit.convertToSI(value)); };
    const double offset = toShown(0.0);
    const double factor = toShown(1.0) - offset;
    QString conversion = QStringLiteral("*");
    numberText::appendShortest(conversion, factor);
    if (offset != 0.0) {
        conversion += QLatin1String("+(");
        numberText::appendShortest(conversion, offset);
        conversion += QLatin1Char(')');
    }
    const auto start = static_cast<std::ptrdiff_t>(m_operand);
    m_expression.insert(m_operand, "(");
    m_origins.insert(m_origins.begin() + start, m_origins[m_operand]);
    emitText(conversion.toStdString() + ')', m_position - 1);
}

/// The unit that people mean by a text, given the unit shown; the null unit when it fits none of its kind.
Unit ExpressionText::unitTyped(const QString& text) const
{
    const auto fits = [this](const Unit& unit) {
        if (unit.isNull() || !unit.isConvertibleTo(m_shown))
            return false;
        // Expressions know factors and offsets only.
        const auto toShown = [&](double value) { return m_shown.convertFromSI(unit.convertToSI(value)); };
        const double twice = 2.0 * toShown(1.0) - toShown(0.0);
        return unit == m_shown || std::abs(toShown(2.0) - twice) <= 1e-9 * std::max(1.0, std::abs(twice));
    };
    if (m_shown.isNull())
        return {};
    static const Unit inch = Unit::fromText(QStringLiteral("in"));
    static const Unit foot = Unit::fromText(QStringLiteral("ft"));
    if ((text == u'"' || text == u'″') && fits(inch))
        return inch;
    if ((text == u'\'' || text == u'′') && fits(foot))
        return foot;
    if (text == m_shown.abbreviatedName())
        return m_shown;
    for (const QString& spelling : {text, text.toLower()})
        if (const Unit unit = Unit::fromText(spelling); fits(unit))
            return unit;
    if (text.size() == 1 && QStringLiteral("pnuµμmkKMG").contains(text)) {
        const QString prefix = text == u'µ' || text == u'μ' ? QStringLiteral("u")
                               : text == u'K'               ? QStringLiteral("k")
                                                            : text;
        for (const QString& symbol : unitsOfBarePrefixes())
            if (const Unit unit = Unit::fromText(prefix + symbol); fits(unit))
                return unit;
    }
    return {};
}

/// Where the locale writes ',' it is a decimal point only directly before a digit: "max(1, 2)" has two arguments.
bool ExpressionText::isDecimalPoint(qsizetype position) const
{
    const QChar c = at(position);
    return c == u'.' || (c == m_decimalPoint && (c != u',' || at(position + 1).isDigit()));
}

qsizetype ExpressionText::skipBlanks(qsizetype position) const
{
    while (at(position).isSpace())
        ++position;
    return position;
}

void ExpressionText::fail(const QString& reason)
{
    m_fault = reason;
}

void ExpressionText::failUnexpected(qsizetype position, qsizetype length)
{
    fail(translatedFault(QT_TRANSLATE_NOOP("ExpressionParser", "\"%1\" at position %2 is not expected there."))
             .arg(m_typed.sliced(position, length).toString())
             .arg(position + 1));
}
