#pragma once

#include "zkcore/base/export.h"
#include "zkcore/media/resource.h"
#include "zkcore/model/node.h"
#include "zkcore/values/point.h"

#include <QColor>
#include <QMetaType>
#include <QString>
#include <map>
#include <memory>
#include <variant>
#include <vector>

class Value;

/// Keys and values; a key may stand more than once.
using ValueMap = std::multimap<QString, Value>;

/// A tagged variant, copied by value; long contents are shared between copies.
class ZKCORE_EXPORT Value
{
public:
    enum Type {
        INVALID = 0,
        INT = 1,
        DOUBLE = 2,
        POINT = 3,
        BOOL = 5,
        STRING = 6,
        COLOR = 7,
        INTVECTOR = 8,
        DOUBLEVECTOR = 9,
        POINTVECTOR = 10,
        RESOURCEVECTOR = 11,
        STRINGVECTOR = 12,
        VALUEVECTOR = 15,
        VALUEMAP = 16,
        NODE = 17,
        RESOURCE = 18
    };

    Value() = default;
    explicit Value(bool value);
    explicit Value(int value);
    explicit Value(double value);
    explicit Value(const QString& value);
    explicit Value(const QColor& value);
    explicit Value(const zk::Point& value);
    explicit Value(const Resource& value);
    explicit Value(const Node& value);
    explicit Value(const std::vector<int>& value);
    explicit Value(const std::vector<double>& value);
    explicit Value(const std::vector<zk::Point>& value);
    explicit Value(const std::vector<QString>& value);
    explicit Value(const std::vector<Resource>& value);
    explicit Value(const std::vector<Value>& value);
    explicit Value(const ValueMap& value);
    /// A text literal would otherwise become a bool.
    explicit Value(const char*) = delete;

    Type type() const;
    bool isValid() const { return type() != INVALID; }
    /// INT or DOUBLE.
    bool isNumeric() const;

    /// Equal type and content. Doubles compare exactly; nodes compare by instance id; lists element by element.
    friend ZKCORE_EXPORT bool operator==(const Value& a, const Value& b);

    // Readers. A value of another type gives what is said here, never a failure.
    /// BOOL itself; a number other than 0; the text "true".
    bool toBool() const;
    /// INT itself; a DOUBLE rounded half up and held within the range of int; BOOL as 0 or 1; a text that is a number.
    int toInt() const;
    /// DOUBLE itself; an INT or BOOL as a number; a text that is a number (decimal point '.').
    double toDouble() const;
    /// STRING itself; otherwise the language-independent text that documents use; lists separated by ", ".
    QString toQString() const;
    QString toString() const { return toQString(); }
    /// COLOR itself; a text that names a colour; else the invalid colour.
    QColor toQColor() const;
    zk::Point toPoint() const;
    Resource toResource() const;
    Node toNode() const;
    /// The instance id of a NODE value, kept also when the node is gone; 0 otherwise.
    InstanceId toInstanceId() const;
    /// The readers below give an empty container for a value of another kind; toValueVector turns every list kind into
    /// a list of values.
    ValueMap toValueMap() const;
    std::vector<QString> toStringVector() const;
    std::vector<int> toIntVector() const;
    std::vector<double> toDoubleVector() const;
    std::vector<zk::Point> toPointVector() const;
    std::vector<Resource> toResourceVector() const;
    std::vector<Value> toValueVector() const;

    /// "invalid", "int", "double", "point", "bool", "string", "color", "int list", ... : for messages and files.
    static QString typeAsString(Type type);
    /// INVALID for a text that names no type.
    static Type typeFromString(const QString& text);

    /// A NODE value that knows only the instance id (of a node not yet, or no longer, there).
    static Value fromInstanceId(InstanceId id);

private:
    template <typename T> using Shared = std::shared_ptr<const T>;
    struct NodeReference
    {
        Node node;
        InstanceId id = 0;
    };
    using Data = std::variant<std::monostate, int, double, zk::Point, bool, QString, QColor, Shared<std::vector<int>>,
                              Shared<std::vector<double>>, Shared<std::vector<zk::Point>>,
                              Shared<std::vector<Resource>>, Shared<std::vector<QString>>, Shared<std::vector<Value>>,
                              Shared<ValueMap>, Shared<NodeReference>, Shared<Resource>>;

    Data m_data;
};

Q_DECLARE_METATYPE(Value)

/// The text of a value for people: numbers with the locale's decimal point and at most 6 decimals, true and false
/// translated, points as "x, y", resources and nodes by name.
ZKCORE_EXPORT QString formatValueAsString(const Value& value);

/// The decimal point of the user's locale.
ZKCORE_EXPORT QChar decimalPointCharacter();

/// The single-line text of a scalar value in documents and packages; valueFromText reads it back exactly.
/// Types: bool, int, double, point ("x y"), string, color ("#rrggbb" or "#aarrggbb"), resource (its name), node (its
/// instance id), int list, double list ("1 2 3"), point list ("x y x y"). Other types give a null text.
ZKCORE_EXPORT QString valueToText(const Value& value);
/// Invalid value when the text is not one of that type, is out of the type's range, or is a NaN or an infinity.
ZKCORE_EXPORT Value valueFromText(Value::Type type, QStringView text);
