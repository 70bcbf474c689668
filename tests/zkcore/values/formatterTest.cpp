// Formatters: texts of values, values of typed texts, and the choice of a unit.
#include "zkcore/values/formatter.h"

#include <QLocale>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <rapidcheck/gtest.h>

namespace {

std::shared_ptr<const NumericalFormat> lengths(int decimals = -1)
{
    auto format = std::make_shared<NumericalFormat>();
    format->decimals = decimals;
    for (const char* symbol : {"mm", "cm", "in"})
        format->units.push_back(Unit::fromText(QString::fromLatin1(symbol)));
    format->unit = format->units.front();
    return format;
}

QString text(const char* characters)
{
    return QString::fromUtf8(characters);
}

TEST(FormatterTest, NumbersInTheUnitShown)
{
    const NumericalFormatter automatic(Value::DOUBLE, lengths());
    EXPECT_EQ(automatic.toText(Value(0.0125)), text("12.5"));
    EXPECT_EQ(automatic.toText(Value(1.0 / 3)), text("333.333333"));
    EXPECT_EQ(automatic.toText(Value(-1e-12)), text("0"));
    EXPECT_EQ(NumericalFormatter(Value::DOUBLE, lengths(2)).toText(Value(0.0125)), text("12.50"));
    EXPECT_EQ(NumericalFormatter(Value::DOUBLE, lengths(0)).toText(Value(0.0125)), text("13"));
    EXPECT_EQ(NumericalFormatter(Value::POINT, lengths(1)).toText(Value(zk::Point{0.01, -0.002})), text("10.0, -2.0"));
    EXPECT_EQ(NumericalFormatter(Value::INT, nullptr).toText(Value(-42)), text("-42"));
    EXPECT_TRUE(automatic.toText(Value()).isEmpty());
}

TEST(FormatterTest, TypedNumbersExpressionsAndUnits)
{
    const NumericalFormatter formatter(Value::DOUBLE, lengths());
    EXPECT_EQ(formatter.fromText(text("12.5")), Value(0.0125));
    EXPECT_EQ(formatter.fromText(text(" 12.5 mm ")), Value(0.0125));
    EXPECT_EQ(formatter.fromText(text("10*2")), Value(0.02));
    EXPECT_DOUBLE_EQ(formatter.fromText(text("2 in + 3 mm")).toDouble(), 0.0538);
    for (const char* bad : {"", "mm", "12.5 V", "1/0", "1e308 km", "x"})
        EXPECT_FALSE(formatter.fromText(text(bad)).isValid()) << bad;

    const NumericalFormatter whole(Value::INT, nullptr);
    EXPECT_EQ(whole.fromText(text("1+2*3")), Value(7));
    EXPECT_EQ(whole.fromText(text("12.5")), Value(13));
    EXPECT_EQ(whole.fromText(text("99999999999")), Value(std::numeric_limits<int>::max()));
}

TEST(FormatterTest, TypedPoints)
{
    const NumericalFormatter formatter(Value::POINT, lengths());
    EXPECT_EQ(formatter.fromText(text("10, 20")), Value(zk::Point{0.01, 0.02}));
    EXPECT_EQ(formatter.fromText(text("10;20")), Value(zk::Point{0.01, 0.02}));
    EXPECT_EQ(formatter.fromText(text("max(1,2), 1 cm")), Value(zk::Point{0.002, 0.01}));
    for (const char* bad : {"10", "10,", "1,2,3", "1;2;3", ",", "(1,2)"})
        EXPECT_FALSE(formatter.fromText(text(bad)).isValid()) << bad;

    QLocale::setDefault(QLocale(QLocale::German));
    const Value point(zk::Point{0.0015, 0.02});
    EXPECT_EQ(formatter.toText(point), text("1,5; 20"));
    EXPECT_EQ(formatter.fromText(text("1,5; 20")), point);
    EXPECT_EQ(formatter.fromText(text("1.5, 20")), point);
    QLocale::setDefault(QLocale::c());
}

RC_GTEST_PROP(FormatterTest, WhatIsShownReadsBack, ())
{
    auto format = std::make_shared<NumericalFormat>(*lengths());
    const Unit shown = *rc::gen::elementOf(format->units);
    NumericalFormatter formatter(Value::DOUBLE, format);
    RC_ASSERT(formatter.setCurrentUnit(shown));
    if (*rc::gen::arbitrary<bool>())
        QLocale::setDefault(QLocale(QLocale::German));
    // What the unit shows with six decimals at most; rounding any more of them is the point of the format.
    const double value = shown.convertToSI(*rc::gen::inRange(-2000000, 2000000) / 1000.0);
    const Value read = formatter.fromText(formatter.toText(Value(value)));
    QLocale::setDefault(QLocale::c());
    RC_ASSERT(std::abs(read.toDouble() - value) <= 1e-12 * std::max(1.0, std::abs(value)));
}

TEST(FormatterTest, ChoosingAUnitConcernsOneFormatter)
{
    const auto shared = lengths();
    NumericalFormatter formatter(Value::DOUBLE, shared);
    const NumericalFormatter other(Value::DOUBLE, shared);
    int changes = 0;
    formatter.setChangeHandler([&changes] { ++changes; });
    EXPECT_FALSE(formatter.setCurrentUnit(Unit::fromText(text("V"))));
    EXPECT_FALSE(formatter.setCurrentUnit(Unit()));
    EXPECT_TRUE(formatter.setCurrentUnit(Unit::fromText(text("mm"))));
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(formatter.setCurrentUnit(Unit::fromText(text("in"))));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(formatter.toText(Value(0.0254)), text("1"));
    EXPECT_EQ(other.toText(Value(0.0254)), text("25.4"));
}

TEST(FormatterTest, TheFormatterMayDieOfItsChange)
{
    auto formatter = std::make_unique<NumericalFormatter>(Value::DOUBLE, lengths());
    formatter->setChangeHandler([&formatter] { formatter.reset(); });
    EXPECT_TRUE(formatter->setCurrentUnit(Unit::fromText(text("cm"))));
    EXPECT_FALSE(formatter);
}

TEST(FormatterTest, OtherTypes)
{
    EXPECT_EQ(Formatter(Value::STRING).fromText(text(" 1 2 ")), Value(text(" 1 2 ")));
    EXPECT_EQ(Formatter(Value::STRING).toText(Value(text("a\rb"))), text("a\rb"));
    EXPECT_EQ(Formatter(Value::BOOL).fromText(text("TRUE")), Value(true));
    EXPECT_FALSE(Formatter(Value::BOOL).fromText(text("perhaps")).isValid());
    EXPECT_EQ(Formatter(Value::COLOR).fromText(text("red")), Value(QColor(Qt::red)));
    EXPECT_FALSE(Formatter(Value::COLOR).fromText(text(" ")).isValid());
    EXPECT_EQ(Formatter(Value::DOUBLE).fromText(text("2*3")), Value(6.0));
}

} // namespace
