#include "zkcore/storage/packagePropertyReader.h"

#include "zkcore/storage/packageWords.h"
#include "zkcore/storage/valueXml.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/validator.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

namespace {

bool takesUnit(Value::Type type)
{
    return NumericalFormatter::formats(type) || type == Value::INTVECTOR || type == Value::DOUBLEVECTOR ||
           type == Value::POINTVECTOR;
}

/// Types whose values are a single line of text.
bool isPlainTextType(Value::Type type)
{
    return type != Value::INVALID && !ValueXml::isWrittenAsItems(type);
}

/// The default of a property that gives none.
Value emptyValueOfType(Value::Type type)
{
    switch (type) {
    case Value::INT:
        return Value(0);
    case Value::DOUBLE:
        return Value(0.0);
    case Value::POINT:
        return Value(zk::Point());
    case Value::BOOL:
        return Value(false);
    case Value::STRING:
        return Value(QStringLiteral(""));
    case Value::COLOR:
        return Value(QColor(Qt::black));
    case Value::INTVECTOR:
        return Value(std::vector<int>());
    case Value::DOUBLEVECTOR:
        return Value(std::vector<double>());
    case Value::POINTVECTOR:
        return Value(std::vector<zk::Point>());
    case Value::RESOURCEVECTOR:
        return Value(std::vector<Resource>());
    case Value::STRINGVECTOR:
        return Value(std::vector<QString>());
    case Value::VALUEVECTOR:
        return Value(std::vector<Value>());
    case Value::VALUEMAP:
        return Value(ValueMap());
    case Value::NODE:
        return Value::fromInstanceId(0);
    case Value::RESOURCE:
        return Value(Resource());
    case Value::INVALID:
        break;
    }
    return {};
}

bool isFiniteValue(const Value& value)
{
    switch (value.type()) {
    case Value::DOUBLE:
    case Value::POINT:
    case Value::DOUBLEVECTOR:
        return DoubleValidator().isValid(value);
    case Value::POINTVECTOR: {
        const std::vector<zk::Point> points = value.toPointVector();
        return std::all_of(points.begin(), points.end(),
                           [](const zk::Point& p) { return std::isfinite(p.x) && std::isfinite(p.y); });
    }
    default:
        return true;
    }
}

/// The list of the values in the list kind of their type.
Value listOfValues(Value::Type type, const std::vector<Value>& values)
{
    const auto collect = [&values](auto read) {
        std::vector<decltype(read(values.front()))> list;
        list.reserve(values.size());
        for (const Value& value : values)
            list.push_back(read(value));
        return Value(list);
    };
    switch (type) {
    case Value::INT:
        return collect([](const Value& value) { return value.toInt(); });
    case Value::DOUBLE:
        return collect([](const Value& value) { return value.toDouble(); });
    case Value::POINT:
        return collect([](const Value& value) { return value.toPoint(); });
    case Value::STRING:
        return collect([](const Value& value) { return value.toQString(); });
    case Value::RESOURCE:
        return collect([](const Value& value) { return value.toResource(); });
    default:
        return Value(values);
    }
}

/// The first resource in the value that names nothing that is there; null when there is none.
QString missingResource(const Value& value)
{
    const auto missing = [](const Resource& resource) {
        return resource.isNull() || resource.isValid() ? QString() : resource.toString();
    };
    switch (value.type()) {
    case Value::RESOURCE:
        return missing(value.toResource());
    case Value::RESOURCEVECTOR:
    case Value::VALUEVECTOR:
        for (const Value& item : value.toValueVector())
            if (const QString name = missingResource(item); !name.isNull())
                return name;
        return {};
    case Value::VALUEMAP:
        for (const auto& [key, item] : value.toValueMap())
            if (const QString name = missingResource(item); !name.isNull())
                return name;
        return {};
    default:
        return {};
    }
}

} // namespace

bool PackagePropertyReader::isReservedKey(const QString& key)
{
    return key.startsWith(QLatin1String("meta-")) || key == QLatin1String("display-popup-pane-on-selection");
}

bool PackagePropertyReader::readKey(const PackageElement& element, PropertyKey& key)
{
    const QString text = element.attribute("key");
    static const QRegularExpression form(QStringLiteral("^[^\\s\\p{C}]+$"));
    if (!form.match(text).hasMatch())
        return m_fault.raise(element, tr("<%1> needs a key without blanks").arg(element.name));
    if (isReservedKey(text))
        return m_fault.raise(element, tr("the property \"%1\" is made by the program itself").arg(text));
    key = PropertyKey::fromString(text);
    return true;
}

bool PackagePropertyReader::readProperty(const PackageElement& element, const PropertyDefinition* inherited,
                                         PropertyDefinition& definition)
{
    if (!element.check({"key", "type", "unit", "default", "label", "help", "flags", "lock"},
                       {"validator", "format", "default"}, PackageElement::OnlyElements, m_fault) ||
        !readKey(element, definition.key))
        return false;
    const QString typeText = element.attribute("type");
    definition.type = Value::typeFromString(typeText);
    if (definition.type == Value::INVALID)
        return m_fault.raise(element, tr("\"%1\" is no type of a property").arg(typeText));
    if (inherited && inherited->type != definition.type)
        return m_fault.raise(element, tr("the property \"%1\" is inherited with the type %2")
                                          .arg(definition.key.toString(), Value::typeAsString(inherited->type)));
    definition.label = element.attribute("label");
    definition.help = element.attribute("help");
    int lock = LockPropertyValues;
    Unit unit;
    if (!readFlags(element, definition) || !readChoice(element, "lock", packageWords::locks, lock) ||
        !readUnit(element, definition.type, unit))
        return false;
    definition.lockGroup = static_cast<LockGroup>(lock);

    for (const char* once : {"validator", "format", "default"}) {
        const auto named = [once](const PackageElement& child) { return child.name == QLatin1String(once); };
        const auto first = std::find_if(element.children.begin(), element.children.end(), named);
        if (first == element.children.end())
            continue;
        const auto second = std::find_if(first + 1, element.children.end(), named);
        if (second != element.children.end())
            return m_fault.raise(*second, tr("a property has only one <%1>").arg(second->name));
    }
    if (NumericalFormatter::formats(definition.type)) {
        auto format = std::make_shared<NumericalFormat>();
        if (!unit.isNull()) {
            format->units.push_back(unit);
            format->unit = unit;
        }
        definition.format = format;
    }
    for (const PackageElement& child : element.children) {
        if (child.name == QLatin1String("format")
                ? !readFormat(child, unit, definition)
                : child.name == QLatin1String("validator") && !readValidator(child, unit, definition))
            return false;
    }
    if (!definition.validator) {
        if (definition.type == Value::INT)
            definition.validator = std::make_shared<IntValidator>();
        else if (definition.type == Value::DOUBLE || definition.type == Value::POINT ||
                 definition.type == Value::DOUBLEVECTOR)
            definition.validator = std::make_shared<DoubleValidator>();
    }
    return readDefault(element, unit, definition);
}

bool PackagePropertyReader::readValue(const PackageElement& element, const PropertyDefinition& definition, Value& value)
{
    Unit unit;
    return element.check({"key", "unit"}, {"item"}, PackageElement::MayHaveText, m_fault) &&
           readUnit(element, definition.type, unit) && readContent(element, definition.type, unit, value) &&
           checkAllowed(element, definition, value);
}

bool PackagePropertyReader::readFlag(const PackageElement& element, const char* attribute, bool& flag)
{
    int index = flag ? 1 : 0;
    const bool understood = readChoice(element, attribute, {"false", "true"}, index);
    flag = index == 1;
    return understood;
}

bool PackagePropertyReader::readNumber(const PackageElement& element, const char* attribute, int minimum, int& number)
{
    const QString text = element.attribute(attribute);
    if (text.isNull())
        return true;
    const Value value = valueFromText(Value::INT, text.trimmed());
    if (!value.isValid() || value.toInt() < minimum)
        return m_fault.raise(element, tr("the attribute \"%1\" is no whole number from %2 on: \"%3\"")
                                          .arg(QLatin1String(attribute), QString::number(minimum), text));
    number = value.toInt();
    return true;
}

bool PackagePropertyReader::readChoice(const PackageElement& element, const char* attribute,
                                       std::initializer_list<const char*> words, int& index)
{
    const QString text = element.attribute(attribute);
    if (text.isNull())
        return true;
    const auto found =
        std::find_if(words.begin(), words.end(), [&text](const char* word) { return text == QLatin1String(word); });
    if (found == words.end()) {
        QStringList known;
        for (const char* word : words)
            known.append(QLatin1String(word));
        return m_fault.raise(element, tr("the attribute \"%1\" is none of %2: \"%3\"")
                                          .arg(QLatin1String(attribute), known.join(QLatin1String(", ")), text));
    }
    index = static_cast<int>(found - words.begin());
    return true;
}

bool PackagePropertyReader::readResource(const PackageElement& at, const QString& name, Resource::Type type,
                                         Resource& resource)
{
    resource = Resource(name);
    if (resource.isNull())
        return true;
    if (!resource.isValid())
        return m_fault.raise(at, tr("there is no resource \"%1\"").arg(name));
    if (type != Resource::INVALID && resource.type() != type)
        return m_fault.raise(at, tr("the resource \"%1\" is of the type %2, not %3")
                                     .arg(name, Resource::typeAsString(resource.type()), Resource::typeAsString(type)));
    return true;
}

bool PackagePropertyReader::readUnit(const PackageElement& element, Value::Type type, Unit& unit)
{
    const QString text = element.attribute("unit");
    if (text.isNull())
        return true;
    if (!takesUnit(type))
        return m_fault.raise(element, tr("values of the type %1 have no unit").arg(Value::typeAsString(type)));
    unit = Unit::fromText(text);
    return !unit.isNull() || m_fault.raise(element, tr("the unit \"%1\" is not known").arg(text));
}

bool PackagePropertyReader::readFlags(const PackageElement& element, PropertyDefinition& definition)
{
    const QStringList names = element.attribute("flags").simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& name : names) {
        const auto found =
            std::find_if(packageWords::flags.begin(), packageWords::flags.end(),
                         [&name](const packageWords::FlagName& f) { return name == QLatin1String(f.name); });
        if (found == packageWords::flags.end())
            return m_fault.raise(element, tr("the flag \"%1\" is not known").arg(name));
        definition.flags |= found->flag;
    }
    return true;
}

bool PackagePropertyReader::readText(const PackageElement& at, Value::Type type, const QString& text, const Unit& unit,
                                     Value& value)
{
    if (type == Value::RESOURCE) {
        Resource resource;
        if (!readResource(at, text.trimmed(), Resource::INVALID, resource))
            return false;
        value = Value(resource);
        return true;
    }
    value = valueFromText(type, type == Value::STRING ? QStringView(text) : QStringView(text).trimmed());
    if (value.isValid())
        value = unit.convertToSI(value);
    if (value.isValid() && isFiniteValue(value))
        return true;
    return m_fault.raise(at, tr("\"%1\" is no value of the type %2").arg(text, Value::typeAsString(type)));
}

bool PackagePropertyReader::readContent(const PackageElement& element, Value::Type type, const Unit& unit, Value& value)
{
    if (isPlainTextType(type)) {
        if (!element.children.empty())
            return m_fault.raise(element.children.front(),
                                 tr("a value of the type %1 is a text").arg(Value::typeAsString(type)));
        return readText(element, type, element.text, unit, value);
    }
    QXmlStreamReader reader(element.toXml());
    reader.readNextStartElement();
    value = ValueXml::readContent(reader, type);
    if (reader.hasError())
        return m_fault.raise(element, reader.errorString());
    if (!value.isValid())
        return m_fault.raise(element, tr("the content is no value of the type %1").arg(Value::typeAsString(type)));
    const QString missing = missingResource(value);
    return missing.isNull() || m_fault.raise(element, tr("there is no resource \"%1\"").arg(missing));
}

bool PackagePropertyReader::readDefault(const PackageElement& element, const Unit& unit, PropertyDefinition& definition)
{
    const auto child = std::find_if(element.children.begin(), element.children.end(),
                                    [](const PackageElement& c) { return c.name == QLatin1String("default"); });
    const bool hasChild = child != element.children.end();
    const QString text = element.attribute("default");
    if (hasChild && !text.isNull())
        return m_fault.raise(*child, tr("the property has a default already"));
    if (hasChild) {
        if (!child->attributes.empty())
            return m_fault.raise(*child,
                                 tr("<%1> has no attribute \"%2\"").arg(child->name, child->attributes.front().first));
        if (!readContent(*child, definition.type, unit, definition.defaultValue))
            return false;
    } else if (text.isNull()) {
        definition.defaultValue = emptyValueOfType(definition.type);
    } else if (!isPlainTextType(definition.type)) {
        return m_fault.raise(
            element,
            tr("a default of the type %1 stands in an element <default>").arg(Value::typeAsString(definition.type)));
    } else if (!readText(element, definition.type, text, unit, definition.defaultValue)) {
        return false;
    }
    return checkAllowed(element, definition, definition.defaultValue);
}

bool PackagePropertyReader::readFormat(const PackageElement& element, const Unit& unit, PropertyDefinition& definition)
{
    if (!element.check({"decimals"}, {"unit"}, PackageElement::OnlyElements, m_fault))
        return false;
    if (!NumericalFormatter::formats(definition.type))
        return m_fault.raise(element,
                             tr("values of the type %1 have no format").arg(Value::typeAsString(definition.type)));
    auto format = std::make_shared<NumericalFormat>(*definition.format);
    if (!readNumber(element, "decimals", -1, format->decimals))
        return false;
    if (!element.children.empty())
        format->units.clear();
    for (const PackageElement& child : element.children) {
        if (!child.check({"abbreviation"}, {}, PackageElement::MayHaveText, m_fault))
            return false;
        const QString text = child.text.trimmed();
        const QString abbreviation = child.attribute("abbreviation");
        const Unit offered = abbreviation.isEmpty() ? Unit::fromText(text) : Unit::fromText(text, abbreviation);
        if (offered.isNull())
            return m_fault.raise(child, tr("the unit \"%1\" is not known").arg(text));
        const Unit& first = !unit.isNull() || format->units.empty() ? unit : format->units.front();
        if (!first.isNull() && !offered.isConvertibleTo(first))
            return m_fault.raise(child,
                                 tr("the unit \"%1\" does not measure the same as \"%2\"").arg(text, first.symbol()));
        format->units.push_back(offered);
    }
    if (!format->units.empty())
        format->unit = format->units.front();
    definition.format = format;
    return true;
}

bool PackagePropertyReader::readValidator(const PackageElement& element, const Unit& unit,
                                          PropertyDefinition& definition)
{
    if (!element.has("kind"))
        return m_fault.raise(element, tr("a validator needs a kind"));
    int kind = 0;
    if (!readChoice(element, "kind", {"range", "set", "pattern", "resources"}, kind))
        return false;
    switch (kind) {
    case 0:
        return readRange(element, unit, definition);
    case 1:
        return readSet(element, unit, definition);
    case 2:
        return readPattern(element, definition);
    default:
        return readResources(element, definition);
    }
}

bool PackagePropertyReader::readRange(const PackageElement& element, const Unit& unit, PropertyDefinition& definition)
{
    if (!element.check({"kind", "min", "max"}, {}, PackageElement::OnlyElements, m_fault))
        return false;
    if (!NumericalFormatter::formats(definition.type) && definition.type != Value::DOUBLEVECTOR)
        return m_fault.raise(element,
                             tr("values of the type %1 have no range").arg(Value::typeAsString(definition.type)));
    const Value::Type type = definition.type == Value::INT ? Value::INT : Value::DOUBLE;
    Value minimum;
    Value maximum;
    if ((element.has("min") && !readText(element, type, element.attribute("min"), unit, minimum)) ||
        (element.has("max") && !readText(element, type, element.attribute("max"), unit, maximum)))
        return false;
    if (minimum.isValid() && maximum.isValid() && minimum.toDouble() > maximum.toDouble())
        return m_fault.raise(element, tr("the minimum %1 is greater than the maximum %2")
                                          .arg(element.attribute("min"), element.attribute("max")));
    if (type == Value::INT) {
        const IntValidator whole;
        definition.validator = std::make_shared<IntValidator>(minimum.isValid() ? minimum.toInt() : whole.minimum(),
                                                              maximum.isValid() ? maximum.toInt() : whole.maximum());
    } else {
        const DoubleValidator whole;
        definition.validator =
            std::make_shared<DoubleValidator>(minimum.isValid() ? minimum.toDouble() : whole.minimum(),
                                              maximum.isValid() ? maximum.toDouble() : whole.maximum());
    }
    return true;
}

bool PackagePropertyReader::readSet(const PackageElement& element, const Unit& unit, PropertyDefinition& definition)
{
    if (!element.check({"kind"}, {"item"}, PackageElement::OnlyElements, m_fault))
        return false;
    if (!isPlainTextType(definition.type))
        return m_fault.raise(
            element, tr("values of the type %1 cannot be chosen from a set").arg(Value::typeAsString(definition.type)));
    if (element.children.empty())
        return m_fault.raise(element, tr("the set is empty"));
    std::vector<Value> values;
    for (const PackageElement& item : element.children) {
        Value value;
        if (!item.check({}, {}, PackageElement::MayHaveText, m_fault) ||
            !readText(item, definition.type, item.text, unit, value))
            return false;
        values.push_back(value);
    }
    definition.validator = std::make_shared<SetValidator>(listOfValues(definition.type, values));
    return true;
}

bool PackagePropertyReader::readPattern(const PackageElement& element, PropertyDefinition& definition)
{
    if (!element.check({"kind", "expression"}, {}, PackageElement::OnlyElements, m_fault))
        return false;
    if (definition.type != Value::STRING)
        return m_fault.raise(element, tr("only texts have a pattern"));
    const QString text = element.attribute("expression");
    const QRegularExpression expression(text);
    if (text.isEmpty() || !expression.isValid())
        return m_fault.raise(element, tr("the expression \"%1\" is faulty: %2")
                                          .arg(text, text.isEmpty() ? tr("it is empty") : expression.errorString()));
    auto validator = std::make_shared<StringValidator>();
    validator->setRegularExpression(text);
    definition.validator = validator;
    return true;
}

bool PackagePropertyReader::readResources(const PackageElement& element, PropertyDefinition& definition)
{
    if (!element.check({"kind"}, {"item"}, PackageElement::OnlyElements, m_fault))
        return false;
    if (definition.type != Value::RESOURCE)
        return m_fault.raise(element, tr("only resources are chosen from resources"));
    if (element.children.empty())
        return m_fault.raise(element, tr("the set is empty"));
    std::vector<Resource> resources;
    std::vector<QString> labels;
    for (const PackageElement& item : element.children) {
        Resource resource;
        if (!item.check({"label"}, {}, PackageElement::MayHaveText, m_fault) ||
            !readResource(item, item.text.trimmed(), Resource::INVALID, resource))
            return false;
        const QString name = resource.toString();
        labels.push_back(item.has("label") ? item.attribute("label") : name.mid(name.lastIndexOf(u'/') + 1));
        resources.push_back(resource);
    }
    definition.validator = std::make_shared<ResourceValidator>(resources, labels);
    return true;
}

bool PackagePropertyReader::checkAllowed(const PackageElement& at, const PropertyDefinition& definition,
                                         const Value& value)
{
    if (!definition.validator || definition.validator->isValid(value))
        return true;
    return m_fault.raise(
        at,
        tr("the property \"%1\" does not allow the value \"%2\"").arg(definition.key.toString(), value.toQString()));
}
