#include "zkcore/base/propertyKey.h"

#include <QHash>
#include <vector>

// Keys are numbered in the order in which their texts are first met. Many are made by static initialisers, hence the
// function-local static.

namespace {

struct PropertyKeyTable
{
    QHash<QString, unsigned int> numbers;
    std::vector<QString> texts{1}; // text 0 is that of the invalid key

    static PropertyKeyTable& instance()
    {
        static PropertyKeyTable table;
        return table;
    }
};

} // namespace

PropertyKey PropertyKey::fromString(const char* text)
{
    return fromString(QString::fromUtf8(text));
}

PropertyKey PropertyKey::fromString(const QString& text)
{
    if (text.isEmpty())
        return {};
    PropertyKeyTable& table = PropertyKeyTable::instance();
    const auto found = table.numbers.constFind(text);
    if (found != table.numbers.constEnd())
        return PropertyKey(*found);
    const auto number = static_cast<unsigned int>(table.texts.size());
    table.texts.push_back(text);
    table.numbers.insert(text, number);
    return PropertyKey(number);
}

QString PropertyKey::toString() const
{
    const std::vector<QString>& texts = PropertyKeyTable::instance().texts;
    return m_number < texts.size() ? texts[m_number] : QString();
}
