// Values as XML: every type there and back, and content that is no value.
#include "zkcore/storage/valueXml.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

QString written(const Value& value)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.writeStartElement(QStringLiteral("value"));
    ValueXml::writeContent(writer, value);
    writer.writeEndElement();
    return text;
}

struct ReadValue
{
    Value value;
    QString error;
    bool stoodAtEnd = false;
};

ReadValue readFrom(const QString& xml, Value::Type type)
{
    QXmlStreamReader reader(xml);
    reader.readNextStartElement();
    const Value value = ValueXml::readContent(reader, type);
    return {value, reader.errorString(), reader.isEndElement() && reader.name() == QLatin1String("value")};
}

QString randomText()
{
    QString text;
    for (const char16_t unit : *rc::gen::container<std::vector<char16_t>>(
             rc::gen::oneOf(rc::gen::element<char16_t>(u' ', u'\n', u'\t', u'\r', u'<', u'&', u'"', u'\\', 0, u'a'),
                            rc::gen::arbitrary<char16_t>())))
        text += QChar(unit);
    return text;
}

Value randomValue(int depth)
{
    switch (*rc::gen::inRange(0, depth > 0 ? 12 : 8)) {
    case 0:
        return Value(*rc::gen::arbitrary<int>());
    case 1:
        return Value(*rc::gen::inRange(-1000, 1000) / 7.0);
    case 2:
        return Value(*rc::gen::arbitrary<bool>());
    case 3:
        return Value(QColor::fromRgba(*rc::gen::arbitrary<unsigned int>()));
    case 4:
        return Value(zk::Point{*rc::gen::inRange(-99, 99) / 3.0, 0.5});
    case 5:
        return Value::fromInstanceId(*rc::gen::arbitrary<unsigned int>());
    case 6:
        return Value(*rc::gen::arbitrary<std::vector<int>>());
    case 7:
        return Value(randomText());
    case 8:
        return Value(std::vector<QString>{randomText(), randomText()});
    case 9:
        return Value(std::vector<Resource>{Resource("no/such/one")});
    case 10:
        return Value(std::vector<Value>{randomValue(depth - 1), Value(), randomValue(depth - 1)});
    default: {
        const QString key = randomText();
        return Value(ValueMap{{key, randomValue(depth - 1)}, {key, Value(1)}, {randomText(), randomValue(depth - 1)}});
    }
    }
}

RC_GTEST_PROP(ValueXmlTest, EveryValueReadsBack, ())
{
    const Value value = randomValue(3);
    const ReadValue read = readFrom(written(value), value.type());
    RC_ASSERT(read.error.isEmpty());
    RC_ASSERT(read.value == value);
    RC_ASSERT(read.stoodAtEnd);
}

TEST(ValueXmlTest, WrittenForm)
{
    EXPECT_EQ(written(Value(0.5)), QStringLiteral("<value>0.5</value>"));
    EXPECT_EQ(written(Value(std::vector<QString>{QStringLiteral("a"), QString()})),
              QStringLiteral("<value><item>a</item><item></item></value>"));
    EXPECT_EQ(written(Value(ValueMap{{QStringLiteral("k"), Value(1)}})),
              QStringLiteral("<value><item type=\"int\" key=\"k\">1</item></value>"));
    EXPECT_EQ(readFrom(QStringLiteral("<value>\n <!-- none -->\n <item type=\"string\">a</item>\n</value>"),
                       Value::STRINGVECTOR)
                  .value,
              Value(std::vector<QString>{QStringLiteral("a")}));
}

TEST(ValueXmlTest, WhatIsNoValueRaisesAnError)
{
    struct Case
    {
        Value::Type type;
        const char* content;
        const char* error;
    };
    const Case cases[] = {
        {Value::INT, "twelve", "\"twelve\" is not a value of type \"int\"."},
        {Value::DOUBLE, "nan", "\"nan\" is not a value of type \"double\"."},
        {Value::STRINGVECTOR, "<item>a</item>b", "Text is not expected between \"item\"s."},
        {Value::STRINGVECTOR, "<thing/>", "Element \"thing\" is not expected; a list holds \"item\"s."},
        {Value::STRINGVECTOR, "<item type=\"int\">1</item>", "An item cannot have the type \"int\" here."},
        {Value::VALUEVECTOR, "<item>1</item>", "An item cannot have the type \"\" here."},
        {Value::VALUEMAP, "<item key=\"a\" type=\"what\">1</item>", "An item cannot have the type \"what\" here."},
        {Value::VALUEVECTOR, "<item type=\"point\">1</item>", "\"1\" is not a value of type \"point\"."},
    };
    for (const Case& bad : cases) {
        const ReadValue read =
            readFrom(QStringLiteral("<value>%1</value>").arg(QString::fromLatin1(bad.content)), bad.type);
        EXPECT_FALSE(read.value.isValid());
        EXPECT_EQ(read.error, QString::fromLatin1(bad.error));
    }
    EXPECT_FALSE(readFrom(QStringLiteral("<value>1<b/></value>"), Value::INT).error.isEmpty());
    EXPECT_FALSE(readFrom(QStringLiteral("<value><item>a</item>"), Value::STRINGVECTOR).value.isValid());
    const QString deep = QStringLiteral("<item type=\"value list\">").repeated(100000);
    EXPECT_EQ(readFrom(QStringLiteral("<value>") + deep, Value::VALUEVECTOR).error,
              QStringLiteral("The value is nested too deeply."));
}

} // namespace
