#pragma once

#include "zkcore/base/export.h"

#include <QHashFunctions>
#include <QString>

/// The name of a property as an interned number; Property::Key is this class.
class ZKCORE_EXPORT PropertyKey
{
public:
    /// The invalid key, whose text is empty.
    PropertyKey() = default;

    /// The key for a text; the same text always gives the same key. A null or empty text gives the invalid key.
    static PropertyKey fromString(const char* text);
    static PropertyKey fromString(const QString& text);

    QString toString() const;
    bool isValid() const { return m_number != 0; }
    unsigned int number() const { return m_number; }

    friend bool operator==(PropertyKey, PropertyKey) = default;
    friend bool operator<(PropertyKey a, PropertyKey b) { return a.m_number < b.m_number; }

private:
    explicit PropertyKey(unsigned int number) : m_number(number) {}

    unsigned int m_number = 0;
};
/// For hash tables by key.
inline size_t qHash(PropertyKey key, size_t seed = 0)
{
    return ::qHash(key.number(), seed);
}
