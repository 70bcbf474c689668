// Units: conversion, names, comparison.
#include "zkcore/values/unit.h"

#include "zkcore/values/value.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <rapidcheck/gtest.h>

namespace {

Unit unit(const char* text)
{
    return Unit::fromText(QString::fromUtf8(text));
}

TEST(UnitTest, ConversionsAreThoseOfTheDecimalFraction)
{
    EXPECT_EQ(unit("mm").convertFromSI(0.0125), 12.5);
    EXPECT_EQ(unit("mm").convertToSI(12.5), 0.0125);
    EXPECT_EQ(unit("in").convertToSI(3.0), 0.0762);
    EXPECT_EQ(unit("kohm").convertToSI(4.7), 4700.0);
    EXPECT_EQ(unit("h").convertToSI(1.5), 5400.0);
    EXPECT_DOUBLE_EQ(unit("degree").convertToSI(180.0), std::numbers::pi);
    EXPECT_DOUBLE_EQ(unit("degree").convertFromSI(std::numbers::pi / 4), 45.0);
    EXPECT_DOUBLE_EQ(unit("degC").convertToSI(20.0), 293.15);
    EXPECT_NEAR(unit("degF").convertFromSI(273.15), 32.0, 1e-9);
    EXPECT_DOUBLE_EQ(unit("g").convertToSI(250.0), 0.25);
    // Not a factor and an offset: goes through the library's converter.
    EXPECT_NEAR(unit("lg(re 1 mW)").convertToSI(3.0), 1.0, 1e-12);
}

TEST(UnitTest, EveryKindOfNumberIsConvertedAndNothingElse)
{
    const Unit mm = unit("mm");
    EXPECT_EQ(mm.convertFromSI(Value(2)), Value(2000));
    EXPECT_EQ(mm.convertToSI(Value(1500)), Value(2)); // rounded half up
    EXPECT_EQ(mm.convertToSI(Value(-1500)), Value(-1));
    EXPECT_EQ(mm.convertFromSI(Value(zk::Point{0.001, 2})), Value(zk::Point{1, 2000}));
    EXPECT_EQ(mm.convertFromSI(Value(std::vector<double>{0.5})), Value(std::vector<double>{500}));
    EXPECT_EQ(mm.convertFromSI(Value(std::vector<int>{1})), Value(std::vector<int>{1000}));
    EXPECT_EQ(mm.convertFromSI(Value(std::vector<zk::Point>{{1, 2}})), Value(std::vector<zk::Point>{{1000, 2000}}));
    for (const Value& value : {Value(true), Value(QStringLiteral("1")), Value(), Value(QColor(Qt::red))})
        EXPECT_EQ(mm.convertToSI(value), value);
    EXPECT_EQ(Unit().convertToSI(Value(1.5)), Value(1.5));
    EXPECT_EQ(Unit().convertFromSI(1.5), 1.5);
}

TEST(UnitTest, NamesForPeople)
{
    struct Case
    {
        const char* text;
        const char* name;
        const char* abbreviation;
    };
    for (const Case& expected :
         {Case{"mm", "millimetres", "mm"}, Case{"inch", "inches", "in"}, Case{"degree", "degrees", "°"},
          Case{"Mohm", "megohms", "MΩ"}, Case{"kΩ", "kilohms", "kΩ"}, Case{"Hz", "hertz", "Hz"},
          Case{"µs", "microseconds", "µs"}}) {
        EXPECT_EQ(unit(expected.text).name(), QString::fromUtf8(expected.name));
        EXPECT_EQ(unit(expected.text).abbreviatedName(), QString::fromUtf8(expected.abbreviation));
    }
    EXPECT_TRUE(unit("radian").abbreviatedName().isNull());
    EXPECT_EQ(unit("radian").name(), QStringLiteral("radians"));
    EXPECT_EQ(unit("furlong").name(), QStringLiteral("furlong"));
    EXPECT_EQ(Unit::fromText(QStringLiteral("V"), QStringLiteral("volts")).abbreviatedName(), QStringLiteral("volts"));
    EXPECT_TRUE(Unit().name().isNull());
}

TEST(UnitTest, UnknownTextsGiveTheNullUnit)
{
    for (const char* text : {"", " ", "xyzzy", "5", "5 mm", "-m", "m m m (", "seconds since 2000-01-01", "mm)", "m\n\"",
                             "(((((((((((((((((((((((((((((m)"})
        EXPECT_TRUE(unit(text).isNull()) << text;
    EXPECT_TRUE(Unit::fromText(QString(5000, QLatin1Char('m'))).isNull());
}

TEST(UnitTest, EqualityAndConvertibility)
{
    EXPECT_EQ(unit(" mm "), unit("mm"));
    EXPECT_EQ(unit("mm"), unit("millimetre"));
    EXPECT_EQ(unit("ohm"), Unit::fromText(QStringLiteral("ohm"), QStringLiteral("Ohm")));
    EXPECT_FALSE(unit("mm") == unit("cm"));
    EXPECT_FALSE(unit("mm") == Unit());
    EXPECT_EQ(Unit(), unit("xyzzy"));
    EXPECT_EQ(Unit::fromText(unit("Ω").symbol()), unit("Ω"));
    EXPECT_TRUE(unit("mm").isConvertibleTo(unit("ft")));
    EXPECT_TRUE(unit("degree").isConvertibleTo(unit("radian")));
    EXPECT_TRUE(unit("degC").isConvertibleTo(unit("K")));
    EXPECT_TRUE(unit("ohm").isConvertibleTo(unit("V/A")));
    EXPECT_FALSE(unit("mm").isConvertibleTo(unit("s")));
    EXPECT_FALSE(unit("s").isConvertibleTo(unit("Hz")));
    EXPECT_FALSE(unit("mm").isConvertibleTo(Unit()));
    EXPECT_TRUE(Unit().isConvertibleTo(Unit()));
}

RC_GTEST_PROP(UnitTest, ThereAndBackIsTheSameNumber, ())
{
    const Unit shown =
        unit(*rc::gen::element<const char*>("mm", "cm", "in", "ft", "degree", "kohm", "mV", "ms", "degF", "g"));
    const double value = *rc::gen::inRange(-1000000, 1000000) / 1000.0;
    const double back = shown.convertToSI(shown.convertFromSI(value));
    RC_ASSERT(std::abs(back - value) <= 1e-12 * std::max(1.0, std::abs(value)));
}

TEST(UnitTest, HugeNumbersDoNotOverflowOnTheWay)
{
    EXPECT_DOUBLE_EQ(unit("in").convertToSI(1e307), 2.54e305);
    EXPECT_DOUBLE_EQ(unit("in").convertFromSI(unit("in").convertToSI(1.7e308)), 1.7e308);
}

} // namespace
