#include "zkcore/storage/propertyListGuard.h"

#include "zkcore/storage/xmlGuard.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <optional>
#include <vector>

namespace {

constexpr int deepestPropertyList = 100;
constexpr quint64 mostPropertyListItems = 10'000'000;
constexpr qsizetype largestPropertyList = 256 * 1024 * 1024;

bool isSafeXml(const QByteArray& data)
{
    if (!XmlAttributeCounter::isHarmless(data))
        return false;
    QXmlStreamReader reader(data);
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && ++depth > deepestPropertyList)
            return false;
        if (reader.isEndElement())
            --depth;
    }
    return !reader.hasError();
}

/// The binary form is a table of objects in which arrays and dictionaries refer to others by number.
class BinaryObjects
{
public:
    explicit BinaryObjects(const QByteArray& data) : m_data(data) {}

    bool isSafe()
    {
        constexpr quint64 trailerSize = 32;
        const auto size = static_cast<quint64>(m_data.size());
        if (size < trailerSize + 8)
            return false;
        const quint64 trailer = size - trailerSize;
        m_offsetSize = byte(trailer + 6);
        m_referenceSize = byte(trailer + 7);
        const quint64 count = number(trailer + 8, 8).value_or(0);
        const quint64 root = number(trailer + 16, 8).value_or(0);
        m_offsets = number(trailer + 24, 8).value_or(0);
        if (count == 0 || count > size || root >= count || m_offsets >= trailer)
            return false;
        m_objects.resize(count);
        return measure(root, 0);
    }

private:
    struct Object
    {
        enum State { Unknown, Open, Measured } state = Unknown;
        quint64 items = 1; // itself and all within, as often as they are referred to
        int height = 0;
    };

    unsigned int byte(quint64 position) const
    {
        return static_cast<unsigned char>(m_data[static_cast<qsizetype>(position)]);
    }

    std::optional<quint64> number(quint64 position, quint64 width) const
    {
        const auto size = static_cast<quint64>(m_data.size());
        if (width == 0 || width > 8 || position > size || width > size - position)
            return std::nullopt;
        quint64 result = 0;
        for (quint64 i = 0; i < width; ++i)
            result = result << 8 | byte(position + i);
        return result;
    }

    /// How many objects the container at the position refers to; moves the position to the first reference. 0 for
    /// objects that are no containers.
    std::optional<quint64> referenceCount(quint64& position) const
    {
        const std::optional<quint64> marker = number(position, 1);
        if (!marker)
            return std::nullopt;
        ++position;
        const quint64 kind = *marker >> 4;
        const bool isDictionary = kind == 0xd;
        const bool isWideText = kind == 0x6;
        if (!isDictionary && !isWideText && kind != 0xa && kind != 0xc)
            return 0;
        std::optional<quint64> count = *marker & 0xf;
        if (count == 0xf) {
            const std::optional<quint64> width = number(position, 1);
            if (!width || *width >> 4 != 1)
                return std::nullopt;
            const quint64 bytes = 1ull << (*width & 0xf);
            count = number(position + 1, bytes);
            position += 1 + bytes;
        }
        if (!count || *count > static_cast<quint64>(m_data.size()))
            return std::nullopt;
        if (isWideText)
            return hasZero(position, *count) ? std::nullopt : std::optional<quint64>(0);
        return isDictionary ? *count * 2 : *count;
    }

    /// Whether there is a zero among that many characters of two bytes. The library ends the program over one.
    bool hasZero(quint64 position, quint64 count) const
    {
        for (quint64 i = 0; i < count; ++i)
            if (number(position + i * 2, 2).value_or(1) == 0)
                return true;
        return false;
    }

    bool measure(quint64 index, int depth)
    {
        if (index >= m_objects.size() || depth > deepestPropertyList || m_objects[index].state == Object::Open)
            return false;
        if (m_objects[index].state == Object::Measured)
            return depth + m_objects[index].height <= deepestPropertyList;
        m_objects[index].state = Object::Open;
        const std::optional<quint64> offset = number(m_offsets + index * m_offsetSize, m_offsetSize);
        if (!offset)
            return false;
        quint64 position = *offset;
        const std::optional<quint64> references = referenceCount(position);
        if (!references)
            return false;
        for (quint64 i = 0; i < *references; ++i) {
            const std::optional<quint64> child = number(position + i * m_referenceSize, m_referenceSize);
            if (!child || !measure(*child, depth + 1))
                return false;
            m_objects[index].items += m_objects[*child].items;
            m_objects[index].height = std::max(m_objects[index].height, m_objects[*child].height + 1);
            if (m_objects[index].items > mostPropertyListItems)
                return false;
        }
        m_objects[index].state = Object::Measured;
        return true;
    }

    const QByteArray& m_data;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_offsets = 0;
    std::vector<Object> m_objects;
};

} // namespace

bool PropertyListGuard::isSafe(const QByteArray& data)
{
    if (data.isEmpty() || data.size() > largestPropertyList)
        return false;
    return data.startsWith("bplist") ? BinaryObjects(data).isSafe() : isSafeXml(data);
}
