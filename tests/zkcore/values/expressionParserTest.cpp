// Typed expressions: values, units, both decimal points, and texts that are none.
#include "zkcore/values/expressionParser.h"

#include <QElapsedTimer>
#include <QLocale>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

double valueOf(const char* text, const char* unit = "")
{
    const auto result = ExpressionParser::eval(QString::fromUtf8(text), Unit::fromText(QString::fromUtf8(unit)));
    EXPECT_TRUE(result.isValid()) << text << ": " << result.reason().toStdString();
    return result;
}

QString reasonFor(const QString& text, const char* unit = "")
{
    const auto result = ExpressionParser::eval(text, Unit::fromText(QString::fromUtf8(unit)));
    EXPECT_EQ(result.isValid(), result.reason().isNull());
    EXPECT_EQ(result.isValid(), std::isfinite(result.toDouble()));
    return result.reason();
}

class ExpressionInGerman : public testing::Test
{
protected:
    ExpressionInGerman() { QLocale::setDefault(QLocale(QLocale::German)); }
    ~ExpressionInGerman() override { QLocale::setDefault(QLocale::c()); }
};

TEST(ExpressionParserTest, Arithmetic)
{
    EXPECT_EQ(valueOf("1+2*3"), 7.0);
    EXPECT_EQ(valueOf(" ( 1 + 2 ) * -3 "), -9.0);
    EXPECT_EQ(valueOf("2^3^2"), 512.0);
    EXPECT_EQ(valueOf("1 000 * 2"), 2000.0);
    EXPECT_EQ(valueOf("1\u00a0000"), 1000.0);
    EXPECT_EQ(valueOf(".5 + 5. + 1.5e3"), 1505.5);
    EXPECT_EQ(valueOf("6 ÷ 2 × 5 − 1"), 14.0);
    EXPECT_DOUBLE_EQ(valueOf("cos(pi) + π/π"), 0.0);
    EXPECT_EQ(valueOf("max(1, min(7, 5); 2)"), 5.0);
    EXPECT_EQ(valueOf("2 > 1 ? 10 : 20"), 10.0);
    EXPECT_DOUBLE_EQ(valueOf("ln(e^2)"), 2.0);
}

TEST(ExpressionParserTest, UnitsConvertToTheUnitShown)
{
    EXPECT_DOUBLE_EQ(valueOf("2 in + 3 mm", "mm"), 53.8);
    EXPECT_DOUBLE_EQ(valueOf("2in+3", "mm"), 53.8);
    EXPECT_EQ(valueOf("12.5 mm", "mm"), 12.5);
    EXPECT_EQ(valueOf("(1 + 2) cm * 2", "mm"), 60.0);
    EXPECT_EQ(valueOf("-sqrt(4) cm", "mm"), -20.0);
    EXPECT_EQ(valueOf("((1 cm) / 2) + 1cm/2", "mm"), 10.0);
    EXPECT_DOUBLE_EQ(valueOf("pi radian", "degree"), 180.0);
    EXPECT_DOUBLE_EQ(valueOf("90°", "degree"), 90.0);
    EXPECT_DOUBLE_EQ(valueOf("5' + 6\"", "in"), 66.0);
    EXPECT_DOUBLE_EQ(valueOf("4.7k", "ohm"), 4700.0);
    EXPECT_DOUBLE_EQ(valueOf("2 MΩ + 500 kΩ", "kohm"), 2500.0);
    EXPECT_DOUBLE_EQ(valueOf("5 m", "mV"), 5.0);
    EXPECT_DOUBLE_EQ(valueOf("5 m", "mm"), 5000.0);
    EXPECT_DOUBLE_EQ(valueOf("3 µs", "us"), 3.0);
    EXPECT_DOUBLE_EQ(valueOf("20 degC", "K"), 293.15);
    EXPECT_DOUBLE_EQ(valueOf("36 km/h", "m/s"), 10.0);
    EXPECT_DOUBLE_EQ(valueOf("2 IN", "in"), 2.0);
    EXPECT_EQ(valueOf("2 mm^2", "mm"), 4.0);
}

TEST(ExpressionParserTest, ReasonsSayWhatIsWrongAndWhere)
{
    EXPECT_EQ(reasonFor(QStringLiteral("")), QStringLiteral("There is no number."));
    EXPECT_EQ(reasonFor(QStringLiteral("1 +")), QStringLiteral("The expression is not complete."));
    EXPECT_EQ(reasonFor(QStringLiteral("2*(3+4")), QStringLiteral("A closing bracket is missing."));
    EXPECT_EQ(reasonFor(QStringLiteral("2 + foo")), QStringLiteral("\"foo\" at position 5 is not known."));
    EXPECT_EQ(reasonFor(QStringLiteral("2 # 3")), QStringLiteral("\"#\" at position 3 is not expected there."));
    EXPECT_EQ(reasonFor(QStringLiteral("3 mm")), QStringLiteral("\"mm\" at position 3 is not expected there."));
    EXPECT_EQ(reasonFor(QStringLiteral("3 kg"), "mm"),
              QStringLiteral("\"kg\" at position 3 is not a unit that can be converted to millimetres."));
    EXPECT_EQ(reasonFor(QStringLiteral("1/0")),
              QStringLiteral("The result is too large, or something is divided by zero."));
    EXPECT_EQ(reasonFor(QStringLiteral("1e308*10")),
              QStringLiteral("The result is too large, or something is divided by zero."));
    EXPECT_EQ(reasonFor(QStringLiteral("sqrt(-1)")), QStringLiteral("The result is not a number."));
    EXPECT_EQ(reasonFor(QString(1001, QLatin1Char('1'))), QStringLiteral("The expression is too long."));
    EXPECT_EQ(reasonFor(QString(400, QLatin1Char('(')) + QLatin1Char('1') + QString(400, QLatin1Char(')'))),
              QStringLiteral("Too many brackets are open."));
}

TEST(ExpressionParserTest, TextsThatAreNoExpressions)
{
    // "1,000" among them: a decimal comma must never be read as a thousand, nor its first half be dropped.
    for (const char* text :
         {"1,000", "1;2",      "(1,2)", "abc",   "nan",   "inf", "0x10",  "1..2", "1.2.3", "a=3", "2 pi", "2(3)",
          ")(",    "\"text\"", "sin",   "sin()", "max()", "+",   "1e999", "--",   "1 ? 2", "µ",   "\\",   "2 in"})
        EXPECT_FALSE(reasonFor(QString::fromUtf8(text)).isNull()) << text;
    for (const char* text : {"mm", "2 in mm", "2 in 3 mm", "2 mm mm", "5 mmx"})
        EXPECT_FALSE(reasonFor(QString::fromUtf8(text), "mm").isNull()) << text;
}

TEST_F(ExpressionInGerman, GroupsOfThreeDigitsAreUnderstoodWhereTheyAreClear)
{
    EXPECT_EQ(valueOf("1.234,5"), 1234.5);
    EXPECT_EQ(valueOf("-12.345.678"), -12345678.0);
    EXPECT_EQ(valueOf("1.234"), 1.234);
    EXPECT_FALSE(reasonFor(QStringLiteral("12.34,5")).isNull());
    QLocale::setDefault(QLocale(QStringLiteral("en_GB")));
    EXPECT_EQ(valueOf("1,234.5"), 1234.5);
    EXPECT_FALSE(reasonFor(QStringLiteral("1,234")).isNull());
    EXPECT_EQ(valueOf("max(1,234)"), 234.0);
}

TEST_F(ExpressionInGerman, BothDecimalPointsAreUnderstood)
{
    EXPECT_EQ(valueOf("1,5"), 1.5);
    EXPECT_EQ(valueOf("1.5"), 1.5);
    EXPECT_EQ(valueOf("1,5 + 2.25"), 3.75);
    EXPECT_EQ(valueOf("max(1,5; 0,5)"), 1.5);
    EXPECT_EQ(valueOf("max(1, 2)"), 2.0);
    EXPECT_DOUBLE_EQ(valueOf("2,5 cm", "mm"), 25.0);
    EXPECT_FALSE(reasonFor(QStringLiteral("1,2,3")).isNull());
    EXPECT_FALSE(reasonFor(QStringLiteral("1.00,5")).isNull());
}

/// A random expression as text together with its value.
std::pair<std::string, double> randomExpression(int depth)
{
    if (depth == 0 || *rc::gen::inRange(0, 4) == 0) {
        const int number = *rc::gen::inRange(1, 1000);
        return {std::to_string(number), number};
    }
    const auto [leftText, left] = randomExpression(depth - 1);
    const auto [rightText, right] = randomExpression(depth - 1);
    const char sign = *rc::gen::element('+', '-', '*');
    const double value = sign == '+' ? left + right : sign == '-' ? left - right : left * right;
    return {'(' + leftText + ' ' + sign + ' ' + rightText + ')', value};
}

RC_GTEST_PROP(ExpressionParserTest, ComputesWhatItShould, ())
{
    const auto [text, value] = randomExpression(4);
    RC_ASSERT(ExpressionParser::eval(QString::fromStdString(text)).toDouble() == value);
}

RC_GTEST_PROP(ExpressionParserTest, NoTextDoesHarm, ())
{
    const auto pieces = *rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
        "1", "2.5", "(", ")", "+", "-", "*", "/", "^", "mm", "in", "°", "\"", "sin", "max", ",", ";", " ", "?", ":",
        "=", "<", "&&", "||", "!", "e", "1e", "k", "π", "_", ".", "µ", "\xff", "pi", "'"));
    std::string text;
    for (const std::string& piece : pieces)
        text += piece;
    reasonFor(QString::fromUtf8(text.c_str()), *rc::gen::element("", "mm", "ohm", "degree"));
}

TEST(ExpressionParserTest, TheLongestTextsTakeNoTime)
{
    QElapsedTimer timer;
    timer.start();
    for (const char* piece : {"1+", "1 mm+", "-", "1?", "abs(", "1 qqqqqqqqqqqqqqqqqqqq/q.q^2", "2 in "})
        reasonFor(QString::fromUtf8(piece).repeated(1000).left(1000), "mm");
    EXPECT_LT(timer.elapsed(), 2000);
}

} // namespace
