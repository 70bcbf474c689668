#include "zkcore/storage/valueXml.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

/// Lists within lists deeper than this are not written by anybody; reading them would need as much stack.
constexpr int deepestValue = 64;

const QString& itemElement()
{
    static const QString name = QStringLiteral("item");
    return name;
}

QString translatedValueFault(const char* text)
{
    return QCoreApplication::translate("ValueXml", text);
}

/// The type of every item of a list; INVALID where each item names its own.
Value::Type itemType(Value::Type list)
{
    if (list == Value::STRINGVECTOR)
        return Value::STRING;
    return list == Value::RESOURCEVECTOR ? Value::RESOURCE : Value::INVALID;
}

void writeTypeOf(QXmlStreamWriter& writer, const Value& value)
{
    writer.writeAttribute(QStringLiteral("type"), Value::typeAsString(value.type()));
}

class ValueXmlReading
{
public:
    explicit ValueXmlReading(QXmlStreamReader& reader) : m_reader(reader) {}

    Value content(Value::Type type, int depth)
    {
        if (!ValueXml::isWrittenAsItems(type))
            return scalar(type);
        if (depth > deepestValue)
            return fail(translatedValueFault(QT_TRANSLATE_NOOP("ValueXml", "The value is nested too deeply.")));
        switch (type) {
        case Value::STRINGVECTOR:
            return list<QString>(type, depth, [](const Value& item) { return item.toQString(); });
        case Value::RESOURCEVECTOR:
            return list<Resource>(type, depth, [](const Value& item) { return item.toResource(); });
        case Value::VALUEVECTOR:
            return list<Value>(type, depth, [](const Value& item) { return item; });
        default:
            return map(depth);
        }
    }

private:
    Value fail(const QString& reason)
    {
        if (!m_reader.hasError())
            m_reader.raiseError(reason);
        return {};
    }

    Value scalar(Value::Type type)
    {
        const QString text = m_reader.readElementText();
        if (m_reader.hasError())
            return {};
        const Value value = valueFromText(type, text);
        if (value.isValid() || (type == Value::INVALID && text.isEmpty()))
            return value;
        return fail(translatedValueFault(QT_TRANSLATE_NOOP("ValueXml", "\"%1\" is not a value of type \"%2\"."))
                        .arg(text.left(80), Value::typeAsString(type)));
    }

    /// Moves to the start of the next item; false at the end of the list or on an error.
    bool nextItem()
    {
        while (!m_reader.atEnd()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::StartElement:
                if (m_reader.name() == itemElement())
                    return true;
                fail(translatedValueFault(
                         QT_TRANSLATE_NOOP("ValueXml", "Element \"%1\" is not expected; a list holds \"item\"s."))
                         .arg(m_reader.name().toString()));
                return false;
            case QXmlStreamReader::EndElement:
                return false;
            case QXmlStreamReader::Characters:
                if (m_reader.isWhitespace())
                    break;
                fail(translatedValueFault(QT_TRANSLATE_NOOP("ValueXml", "Text is not expected between \"item\"s.")));
                return false;
            default:
                break;
            }
        }
        return false;
    }

    /// The type that the item on whose start the reader stands must have; raises an error when it says another.
    Value::Type typeOfItem(Value::Type expected)
    {
        const QString name = m_reader.attributes().value(QLatin1String("type")).toString();
        if (name.isEmpty() && expected != Value::INVALID)
            return expected;
        const Value::Type type = Value::typeFromString(name);
        const bool isKnown = type != Value::INVALID || name == Value::typeAsString(Value::INVALID);
        if (!isKnown || (expected != Value::INVALID && type != expected))
            fail(translatedValueFault(QT_TRANSLATE_NOOP("ValueXml", "An item cannot have the type \"%1\" here."))
                     .arg(name));
        return type;
    }

    template <typename T, typename Convert> Value list(Value::Type type, int depth, Convert convert)
    {
        std::vector<T> items;
        while (nextItem()) {
            const Value::Type wanted = typeOfItem(itemType(type));
            if (m_reader.hasError())
                return {};
            const Value item = content(wanted, depth + 1);
            if (m_reader.hasError())
                return {};
            items.push_back(convert(item));
        }
        return m_reader.hasError() ? Value() : Value(items);
    }

    Value map(int depth)
    {
        ValueMap items;
        while (nextItem()) {
            const QString key =
                valueFromText(Value::STRING, m_reader.attributes().value(QLatin1String("key"))).toQString();
            const Value::Type type = typeOfItem(Value::INVALID);
            if (m_reader.hasError())
                return {};
            const Value item = content(type, depth + 1);
            if (m_reader.hasError())
                return {};
            items.emplace(key, item);
        }
        return m_reader.hasError() ? Value() : Value(items);
    }

    QXmlStreamReader& m_reader;
};

} // namespace

bool ValueXml::isWrittenAsItems(Value::Type type)
{
    return type == Value::STRINGVECTOR || type == Value::RESOURCEVECTOR || type == Value::VALUEVECTOR ||
           type == Value::VALUEMAP;
}

void ValueXml::writeContent(QXmlStreamWriter& writer, const Value& value)
{
    const Value::Type type = value.type();
    if (!ValueXml::isWrittenAsItems(type)) {
        writer.writeCharacters(valueToText(value));
        return;
    }
    if (type == Value::VALUEMAP) {
        for (const auto& [key, item] : value.toValueMap()) {
            writer.writeStartElement(itemElement());
            writeTypeOf(writer, item);
            writer.writeAttribute(QStringLiteral("key"), valueToText(Value(key)));
            writeContent(writer, item);
            writer.writeEndElement();
        }
        return;
    }
    for (const Value& item : value.toValueVector()) {
        writer.writeStartElement(itemElement());
        if (itemType(type) == Value::INVALID)
            writeTypeOf(writer, item);
        writeContent(writer, item);
        writer.writeEndElement();
    }
}

Value ValueXml::readContent(QXmlStreamReader& reader, Value::Type type)
{
    return ValueXmlReading(reader).content(type, 0);
}
