#include "zkcore/storage/propertyList.h"

#include "zkcore/base/classicLocale.h"
#include "zkcore/storage/propertyListGuard.h"

#include <QDateTime>
#include <QSaveFile>
#include <QTimeZone>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <type_traits>

#include <plist/plist.h>

namespace {

struct PlistFree
{
    void operator()(void* node) const { plist_free(node); }
};
using PlistPointer = std::unique_ptr<std::remove_pointer_t<plist_t>, PlistFree>;

/// Text that both XML and the C interface can carry.
bool isPlistText(const QString& text)
{
    return std::none_of(text.begin(), text.end(),
                        [](QChar c) {
                            const char16_t code = c.unicode();
                            return (code < 0x20 && code != u'\t' && code != u'\n') || code >= 0xfffe;
                        }) &&
           text.isValidUtf16();
}

PlistPointer plistText(const QString& text)
{
    return PlistPointer(isPlistText(text) ? plist_new_string(text.toUtf8().constData()) : nullptr);
}

PlistPointer plistNode(const Value& value);

PlistPointer plistDictionary(const ValueMap& map)
{
    PlistPointer dictionary(plist_new_dict());
    const QString* previous = nullptr;
    for (const auto& [key, item] : map) {
        // A dictionary holds a key once.
        const bool isRepeated = previous && *previous == key;
        previous = &key;
        PlistPointer node = plistNode(item);
        if (isRepeated || !isPlistText(key) || !node)
            return nullptr;
        plist_dict_set_item(dictionary.get(), key.toUtf8().constData(), node.release());
    }
    return dictionary;
}

PlistPointer plistArray(const std::vector<Value>& list)
{
    PlistPointer array(plist_new_array());
    for (const Value& item : list) {
        PlistPointer node = plistNode(item);
        if (!node)
            return nullptr;
        plist_array_append_item(array.get(), node.release());
    }
    return array;
}

/// Null for what a property list cannot hold.
PlistPointer plistNode(const Value& value)
{
    switch (value.type()) {
    case Value::BOOL:
        return PlistPointer(plist_new_bool(value.toBool() ? 1 : 0));
    case Value::INT:
        return PlistPointer(plist_new_uint(static_cast<uint64_t>(static_cast<int64_t>(value.toInt()))));
    case Value::DOUBLE:
        return PlistPointer(std::isfinite(value.toDouble()) ? plist_new_real(value.toDouble()) : nullptr);
    case Value::STRING:
    case Value::COLOR:
        return plistText(value.toQString());
    case Value::VALUEMAP:
        return plistDictionary(value.toValueMap());
    case Value::INTVECTOR:
    case Value::DOUBLEVECTOR:
    case Value::STRINGVECTOR:
    case Value::VALUEVECTOR:
        return plistArray(value.toValueVector());
    default:
        return nullptr;
    }
}

/// Takes over a text that libplist allocated.
QString takenText(char* text)
{
    const QString result = QString::fromUtf8(text);
    plist_to_xml_free(text);
    return result;
}

Value valueOfPlistInteger(plist_t node)
{
    uint64_t bits = 0;
    plist_get_uint_val(node, &bits);
    const auto number = static_cast<int64_t>(bits);
    const bool fits = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    return fits ? Value(static_cast<int>(number)) : Value(static_cast<double>(number));
}

Value valueOfPlistDate(plist_t node)
{
    int32_t seconds = 0;
    int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    const QDateTime epoch(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
    return Value(epoch.addSecs(seconds).toString(Qt::ISODate));
}

Value valueOfPlist(plist_t node);

Value valueOfPlistDictionary(plist_t node)
{
    ValueMap map;
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(node, &rawIterator);
    const std::unique_ptr<void, decltype(&std::free)> iterator(rawIterator, std::free);
    for (;;) {
        char* key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, rawIterator, &key, &item);
        if (!item) {
            std::free(key);
            return Value(map);
        }
        const QString name = takenText(key);
        map.emplace(name, valueOfPlist(item));
    }
}

Value valueOfPlistArray(plist_t node)
{
    std::vector<Value> list;
    plist_array_iter rawIterator = nullptr;
    plist_array_new_iter(node, &rawIterator);
    const std::unique_ptr<void, decltype(&std::free)> iterator(rawIterator, std::free);
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(node, rawIterator, &item);
        if (!item)
            return Value(list);
        list.push_back(valueOfPlist(item));
    }
}

Value valueOfPlist(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return Value(flag != 0);
    }
    case PLIST_UINT:
        return valueOfPlistInteger(node);
    case PLIST_REAL: {
        double number = 0.0;
        plist_get_real_val(node, &number);
        return Value(number);
    }
    case PLIST_STRING: {
        uint64_t length = 0;
        const char* const text = plist_get_string_ptr(node, &length);
        return Value(QString::fromUtf8(text, static_cast<qsizetype>(length)));
    }
    case PLIST_DATA: {
        char* bytes = nullptr;
        uint64_t length = 0;
        plist_get_data_val(node, &bytes, &length);
        const QByteArray data(bytes, static_cast<qsizetype>(length));
        std::free(bytes);
        return Value(QString::fromLatin1(data.toBase64()));
    }
    case PLIST_DATE:
        return valueOfPlistDate(node);
    case PLIST_UID: {
        uint64_t number = 0;
        plist_get_uid_val(node, &number);
        return Value(static_cast<int>(number));
    }
    case PLIST_DICT:
        return valueOfPlistDictionary(node);
    case PLIST_ARRAY:
        return valueOfPlistArray(node);
    default:
        return {};
    }
}

} // namespace

bool writePlst(const QString& fileName, const Value& value)
{
    const PlistPointer root = plistNode(value);
    if (!root)
        return false;
    const ClassicLocale classic;
    char* text = nullptr;
    uint32_t length = 0;
    plist_to_xml(root.get(), &text, &length);
    const std::unique_ptr<char, decltype(&plist_to_xml_free)> owned(text, plist_to_xml_free);
    if (!text)
        return false;
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text, length) == length && file.commit();
}

Value parsePlstData(const QByteArray& data)
{
    if (!PropertyListGuard::isSafe(data))
        return {};
    const ClassicLocale classic;
    plist_t root = nullptr;
    plist_from_memory(data.constData(), static_cast<uint32_t>(data.size()), &root);
    const PlistPointer owned(root);
    return root ? valueOfPlist(root) : Value();
}
