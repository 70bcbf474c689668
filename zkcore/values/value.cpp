#include "zkcore/values/value.h"

#include "zkcore/values/numberText.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array typeOfAlternative = {
    Value::INVALID,      Value::INT,         Value::DOUBLE,         Value::POINT,
    Value::BOOL,         Value::STRING,      Value::COLOR,          Value::INTVECTOR,
    Value::DOUBLEVECTOR, Value::POINTVECTOR, Value::RESOURCEVECTOR, Value::STRINGVECTOR,
    Value::VALUEVECTOR,  Value::VALUEMAP,    Value::NODE,           Value::RESOURCE};

struct TypeName
{
    Value::Type type;
    const char* name;
};

constexpr std::array typeNames = {TypeName{Value::INVALID, "invalid"},
                                  TypeName{Value::INT, "int"},
                                  TypeName{Value::DOUBLE, "double"},
                                  TypeName{Value::POINT, "point"},
                                  TypeName{Value::BOOL, "bool"},
                                  TypeName{Value::STRING, "string"},
                                  TypeName{Value::COLOR, "color"},
                                  TypeName{Value::INTVECTOR, "int list"},
                                  TypeName{Value::DOUBLEVECTOR, "double list"},
                                  TypeName{Value::POINTVECTOR, "point list"},
                                  TypeName{Value::RESOURCEVECTOR, "resource list"},
                                  TypeName{Value::STRINGVECTOR, "string list"},
                                  TypeName{Value::VALUEVECTOR, "value list"},
                                  TypeName{Value::VALUEMAP, "value map"},
                                  TypeName{Value::NODE, "node"},
                                  TypeName{Value::RESOURCE, "resource"}};

template <typename T> bool sameContent(const T& a, const T& b)
{
    return a == b;
}

template <typename T> bool sameContent(const std::shared_ptr<const T>& a, const std::shared_ptr<const T>& b)
{
    return a == b || *a == *b;
}

template <typename T> std::vector<Value> valuesOf(const std::vector<T>& list)
{
    std::vector<Value> values;
    values.reserve(list.size());
    for (const T& item : list)
        values.emplace_back(item);
    return values;
}

/// The colour as documents can hold it: eight bits a channel.
QColor storableColor(const QColor& color)
{
    return color.isValid() ? QColor::fromRgba(color.rgba()) : QColor();
}

} // namespace

Value::Value(bool value) : m_data(value) {}

Value::Value(int value) : m_data(value) {}

Value::Value(double value) : m_data(value) {}

Value::Value(const QString& value) : m_data(value) {}

Value::Value(const QColor& value) : m_data(storableColor(value)) {}

Value::Value(const zk::Point& value) : m_data(value) {}

Value::Value(const Resource& value) : m_data(std::make_shared<const Resource>(value)) {}

Value::Value(const Node& value)
    : m_data(std::make_shared<const NodeReference>(NodeReference{value, value.instanceId()}))
{
}

Value::Value(const std::vector<int>& value) : m_data(std::make_shared<const std::vector<int>>(value)) {}

Value::Value(const std::vector<double>& value) : m_data(std::make_shared<const std::vector<double>>(value)) {}

Value::Value(const std::vector<zk::Point>& value) : m_data(std::make_shared<const std::vector<zk::Point>>(value)) {}

Value::Value(const std::vector<QString>& value) : m_data(std::make_shared<const std::vector<QString>>(value)) {}

Value::Value(const std::vector<Resource>& value) : m_data(std::make_shared<const std::vector<Resource>>(value)) {}

Value::Value(const std::vector<Value>& value) : m_data(std::make_shared<const std::vector<Value>>(value)) {}

Value::Value(const ValueMap& value) : m_data(std::make_shared<const ValueMap>(value)) {}

Value Value::fromInstanceId(InstanceId id)
{
    Value value;
    value.m_data = std::make_shared<const NodeReference>(NodeReference{Node(), id});
    return value;
}

Value::Type Value::type() const
{
    static_assert(typeOfAlternative.size() == std::variant_size_v<Data>);
    return typeOfAlternative[m_data.index()];
}

bool Value::isNumeric() const
{
    return std::holds_alternative<int>(m_data) || std::holds_alternative<double>(m_data);
}

bool operator==(const Value& a, const Value& b)
{
    if (a.m_data.index() != b.m_data.index())
        return false;
    if (a.type() == Value::NODE)
        return a.toInstanceId() == b.toInstanceId();
    return std::visit(
        [&b](const auto& content) {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::monostate> ||
                          std::is_same_v<Content, Value::Shared<Value::NodeReference>>)
                return true;
            else
                return sameContent(content, std::get<Content>(b.m_data));
        },
        a.m_data);
}

bool Value::toBool() const
{
    switch (type()) {
    case BOOL:
        return std::get<bool>(m_data);
    case INT:
        return std::get<int>(m_data) != 0;
    case DOUBLE:
        return std::get<double>(m_data) != 0.0;
    case STRING:
        return std::get<QString>(m_data) == QLatin1String("true");
    default:
        return false;
    }
}

int Value::toInt() const
{
    switch (type()) {
    case INT:
        return std::get<int>(m_data);
    case DOUBLE:
    case STRING:
        return numberText::roundToInt(toDouble());
    case BOOL:
        return std::get<bool>(m_data) ? 1 : 0;
    default:
        return 0;
    }
}

double Value::toDouble() const
{
    switch (type()) {
    case DOUBLE:
        return std::get<double>(m_data);
    case INT:
        return std::get<int>(m_data);
    case BOOL:
        return std::get<bool>(m_data) ? 1.0 : 0.0;
    case STRING:
        return numberText::parseDouble(std::get<QString>(m_data)).value_or(0.0);
    default:
        return 0.0;
    }
}

QString Value::toQString() const
{
    QString text;
    const auto append = [&text](const QString& item) {
        if (!text.isEmpty())
            text += QLatin1String(", ");
        text += item;
    };
    switch (type()) {
    case STRING:
        return std::get<QString>(m_data);
    case VALUEMAP:
        for (const auto& [key, value] : *std::get<Shared<ValueMap>>(m_data))
            append(key + QLatin1String(": ") + value.toQString());
        return text;
    case INTVECTOR:
    case DOUBLEVECTOR:
    case POINTVECTOR:
    case RESOURCEVECTOR:
    case STRINGVECTOR:
    case VALUEVECTOR:
        for (const Value& value : toValueVector())
            append(value.toQString());
        return text;
    default:
        return valueToText(*this);
    }
}

QColor Value::toQColor() const
{
    if (const QColor* color = std::get_if<QColor>(&m_data))
        return *color;
    if (const QString* text = std::get_if<QString>(&m_data))
        return valueFromText(COLOR, *text).toQColor();
    return {};
}

zk::Point Value::toPoint() const
{
    const zk::Point* point = std::get_if<zk::Point>(&m_data);
    return point ? *point : zk::Point();
}

Resource Value::toResource() const
{
    const auto* resource = std::get_if<Shared<Resource>>(&m_data);
    return resource ? **resource : Resource();
}

Node Value::toNode() const
{
    const auto* reference = std::get_if<Shared<NodeReference>>(&m_data);
    return reference ? (*reference)->node : Node();
}

InstanceId Value::toInstanceId() const
{
    const auto* reference = std::get_if<Shared<NodeReference>>(&m_data);
    return reference ? (*reference)->id : 0;
}

ValueMap Value::toValueMap() const
{
    const auto* map = std::get_if<Shared<ValueMap>>(&m_data);
    return map ? **map : ValueMap();
}

std::vector<QString> Value::toStringVector() const
{
    const auto* list = std::get_if<Shared<std::vector<QString>>>(&m_data);
    return list ? **list : std::vector<QString>();
}

std::vector<int> Value::toIntVector() const
{
    const auto* list = std::get_if<Shared<std::vector<int>>>(&m_data);
    return list ? **list : std::vector<int>();
}

std::vector<double> Value::toDoubleVector() const
{
    const auto* list = std::get_if<Shared<std::vector<double>>>(&m_data);
    return list ? **list : std::vector<double>();
}

std::vector<zk::Point> Value::toPointVector() const
{
    const auto* list = std::get_if<Shared<std::vector<zk::Point>>>(&m_data);
    return list ? **list : std::vector<zk::Point>();
}

std::vector<Resource> Value::toResourceVector() const
{
    const auto* list = std::get_if<Shared<std::vector<Resource>>>(&m_data);
    return list ? **list : std::vector<Resource>();
}

std::vector<Value> Value::toValueVector() const
{
    switch (type()) {
    case VALUEVECTOR:
        return *std::get<Shared<std::vector<Value>>>(m_data);
    case INTVECTOR:
        return valuesOf(*std::get<Shared<std::vector<int>>>(m_data));
    case DOUBLEVECTOR:
        return valuesOf(*std::get<Shared<std::vector<double>>>(m_data));
    case POINTVECTOR:
        return valuesOf(*std::get<Shared<std::vector<zk::Point>>>(m_data));
    case RESOURCEVECTOR:
        return valuesOf(*std::get<Shared<std::vector<Resource>>>(m_data));
    case STRINGVECTOR:
        return valuesOf(*std::get<Shared<std::vector<QString>>>(m_data));
    default:
        return {};
    }
}

QString Value::typeAsString(Type type)
{
    const auto found =
        std::find_if(typeNames.begin(), typeNames.end(), [type](const TypeName& entry) { return entry.type == type; });
    return QString::fromLatin1(found == typeNames.end() ? "invalid" : found->name);
}

Value::Type Value::typeFromString(const QString& text)
{
    const auto found = std::find_if(typeNames.begin(), typeNames.end(),
                                    [&text](const TypeName& entry) { return text == QLatin1String(entry.name); });
    return found == typeNames.end() ? INVALID : found->type;
}
