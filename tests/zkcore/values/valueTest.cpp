// Values: types, readers, comparison, and texts that read back exactly.
#include "zkcore/values/value.h"

#include <QLocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

namespace {

constexpr double infiniteNumber = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<Value> oneOfEachType()
{
    return {Value(),
            Value(-7),
            Value(0.1),
            Value(zk::Point{1.5, -2.0}),
            Value(true),
            Value(QStringLiteral("a, \"b\" <c>")),
            Value(QColor(1, 2, 3, 4)),
            Value(std::vector<int>{1, -2}),
            Value(std::vector<double>{0.5, 1e-300}),
            Value(std::vector<zk::Point>{{1, 2}, {3, 4}}),
            Value(std::vector<Resource>{Resource("no/such/one"), Resource("nor/this")}),
            Value(std::vector<QString>{QStringLiteral("x"), QString()}),
            Value(std::vector<Value>{Value(1), Value(QStringLiteral("1"))}),
            Value(ValueMap{{QStringLiteral("k"), Value(1)}, {QStringLiteral("k"), Value(2)}}),
            Value::fromInstanceId(4000000000u),
            Value(Resource("no/such/one"))};
}

double anyDouble()
{
    // All bit patterns, so that tiny, huge and special numbers occur.
    const auto bits = *rc::gen::arbitrary<quint64>();
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

TEST(ValueTest, TypesAndTheirNames)
{
    const std::vector<Value> values = oneOfEachType();
    for (const Value& value : values) {
        SCOPED_TRACE(Value::typeAsString(value.type()).toStdString());
        EXPECT_EQ(Value::typeFromString(Value::typeAsString(value.type())), value.type());
        EXPECT_EQ(value.isNumeric(), value.type() == Value::INT || value.type() == Value::DOUBLE);
        for (const Value& other : values)
            EXPECT_EQ(value == other, &value == &other);
    }
    EXPECT_EQ(Value::typeAsString(static_cast<Value::Type>(4)), QStringLiteral("invalid"));
    EXPECT_EQ(Value::typeFromString(QStringLiteral("float")), Value::INVALID);
}

TEST(ValueTest, EqualityLooksAtContentNotIdentity)
{
    EXPECT_EQ(oneOfEachType(), oneOfEachType());
    EXPECT_FALSE(Value(1) == Value(1.0));
    EXPECT_FALSE(Value(1.0) == Value(std::nextafter(1.0, 2.0)));
    EXPECT_EQ(Value(QColor::fromHsv(0, 255, 255)), Value(QColor(Qt::red)));
    EXPECT_EQ(Value(Node()), Value::fromInstanceId(0));
    EXPECT_FALSE(Value::fromInstanceId(1) == Value::fromInstanceId(2));
}

TEST(ValueTest, NumbersConvertWithoutFailure)
{
    EXPECT_EQ(Value(2.5).toInt(), 3);
    EXPECT_EQ(Value(-2.5).toInt(), -2);
    EXPECT_EQ(Value(1e300).toInt(), std::numeric_limits<int>::max());
    EXPECT_EQ(Value(-infiniteNumber).toInt(), std::numeric_limits<int>::min());
    EXPECT_EQ(Value(notANumber).toInt(), 0);
    EXPECT_EQ(Value(QStringLiteral(" 12.4 ")).toInt(), 12);
    EXPECT_EQ(Value(QStringLiteral("12 apples")).toDouble(), 0.0);
    EXPECT_EQ(Value(true).toDouble(), 1.0);
    EXPECT_TRUE(Value(0.5).toBool());
    EXPECT_TRUE(Value(QStringLiteral("true")).toBool());
    EXPECT_FALSE(Value(QStringLiteral("1")).toBool());
    EXPECT_EQ(Value(QStringLiteral("red")).toQColor(), QColor(Qt::red));
    EXPECT_FALSE(Value(3).toQColor().isValid());
    EXPECT_EQ(Value(3).toPoint(), zk::Point());
    EXPECT_TRUE(Value(3).toValueVector().empty());
}

TEST(ValueTest, ListsAsTextAndAsValues)
{
    EXPECT_EQ(Value(std::vector<double>{0.5, 2}).toQString(), QStringLiteral("0.5, 2"));
    EXPECT_EQ(Value(std::vector<QString>{QStringLiteral("a"), QStringLiteral("b")}).toQString(),
              QStringLiteral("a, b"));
    EXPECT_EQ(Value(std::vector<zk::Point>{{1, 2}, {3, 4}}).toQString(), QStringLiteral("1 2, 3 4"));
    EXPECT_EQ(Value(std::vector<int>{4, 5}).toValueVector(), (std::vector<Value>{Value(4), Value(5)}));
}

TEST(ValueTest, TextForPeopleFollowsTheLocale)
{
    EXPECT_EQ(formatValueAsString(Value(1234.5678901)), QStringLiteral("1234.56789"));
    EXPECT_EQ(formatValueAsString(Value(-0.0000001)), QStringLiteral("0"));
    EXPECT_EQ(formatValueAsString(Value(zk::Point{1.5, 2})), QStringLiteral("1.5, 2"));
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(decimalPointCharacter(), QChar(u','));
    EXPECT_EQ(formatValueAsString(Value(1234.5)), QStringLiteral("1234,5"));
    EXPECT_EQ(formatValueAsString(Value(zk::Point{1.5, 2})), QStringLiteral("1,5; 2"));
    EXPECT_EQ(valueToText(Value(1.5)), QStringLiteral("1.5"));
    QLocale::setDefault(QLocale::c());
}

TEST(ValueTextTest, EveryScalarReadsBack)
{
    for (const Value& value : oneOfEachType()) {
        const QString text = valueToText(value);
        if (!text.isNull()) {
            EXPECT_EQ(valueFromText(value.type(), text), value) << text.toStdString();
        }
    }
    EXPECT_TRUE(valueToText(Value(std::vector<Value>())).isNull());
    EXPECT_EQ(valueFromText(Value::COLOR, valueToText(Value(QColor()))), Value(QColor()));
    EXPECT_EQ(valueToText(Value(QColor(255, 0, 16))), QStringLiteral("#ff0010"));
    EXPECT_EQ(valueFromText(Value::COLOR, u"#FF0010"), Value(QColor(255, 0, 16)));
    EXPECT_EQ(valueFromText(Value::POINT, u" 1\n-2.5e-3 "), Value(zk::Point{1, -0.0025}));
    EXPECT_EQ(valueFromText(Value::INTVECTOR, u""), Value(std::vector<int>()));
}

RC_GTEST_PROP(ValueTextTest, NumbersReadBackExactly, ())
{
    const double value = anyDouble();
    const Value read = valueFromText(Value::DOUBLE, valueToText(Value(value)));
    if (!std::isfinite(value)) {
        RC_ASSERT_FALSE(read.isValid());
    } else {
        RC_ASSERT(read == Value(value));
        RC_ASSERT(std::signbit(read.toDouble()) == std::signbit(value));
    }
    const Value whole(*rc::gen::arbitrary<int>());
    RC_ASSERT(valueFromText(Value::INT, valueToText(whole)) == whole);
}

RC_GTEST_PROP(ValueTextTest, TextsReadBackExactly, ())
{
    QString text;
    for (const char16_t unit : *rc::gen::container<std::vector<char16_t>>(rc::gen::oneOf(
             rc::gen::element<char16_t>(u'\\', u'u', u'0', u'a', u'\r', u'\n', 0, 0xd83d, 0xde00, 0xffff),
             rc::gen::arbitrary<char16_t>())))
        text += QChar(unit);
    const QString written = valueToText(Value(text));
    RC_ASSERT(written.isValidUtf16());
    RC_ASSERT(!written.contains(QChar(u'\r')) && !written.contains(QChar(u'\0')));
    RC_ASSERT(valueFromText(Value::STRING, written) == Value(text));
}

TEST(ValueTextTest, OrdinaryTextsAreWrittenAsTheyAre)
{
    for (const QString& text : {QStringLiteral("C:\\users\\new"), QStringLiteral("zwei\nZeilen\t\u00fc \U0001f600")})
        EXPECT_EQ(valueToText(Value(text)), text);
}

struct BadText
{
    Value::Type type;
    const char16_t* text;
};

TEST(ValueTextTest, WhatIsNoValueIsRefused)
{
    const BadText cases[] = {
        {Value::INT, u""},          {Value::INT, u"12.0"},          {Value::INT, u"2147483648"},
        {Value::INT, u"1 2"},       {Value::INT, u"0x10"},          {Value::INT, u"+-3"},
        {Value::INT, u"\u0661"},    {Value::DOUBLE, u"nan"},        {Value::DOUBLE, u"-inf"},
        {Value::DOUBLE, u"1e999"},  {Value::DOUBLE, u"1,5"},        {Value::DOUBLE, u"1.5mm"},
        {Value::DOUBLE, u" "},      {Value::POINT, u"1"},           {Value::POINT, u"1 2 3"},
        {Value::POINT, u"1 nan"},   {Value::BOOL, u"True"},         {Value::BOOL, u"1"},
        {Value::COLOR, u"#12345"},  {Value::COLOR, u"#12345g"},     {Value::COLOR, u"notacolour"},
        {Value::NODE, u"-1"},       {Value::NODE, u"4294967296"},   {Value::NODE, u""},
        {Value::INTVECTOR, u"1,2"}, {Value::POINTVECTOR, u"1 2 3"}, {Value::DOUBLEVECTOR, u"1 x"},
        {Value::VALUEMAP, u"a"},    {Value::INVALID, u""},
    };
    for (const BadText& bad : cases)
        EXPECT_FALSE(valueFromText(bad.type, bad.text).isValid())
            << Value::typeAsString(bad.type).toStdString() << ": " << QString::fromUtf16(bad.text).toStdString();
}

} // namespace
