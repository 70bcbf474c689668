#pragma once

#include "zkcore/base/export.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <memory>

class ResourceEntry;

/// A reference to an item of media or data, named by a path such as "electronics/led". Copied by value.
class ZKCORE_EXPORT Resource
{
public:
    enum Type { INVALID = 0, IMAGE = 1, MOVIE = 2, SOUND = 3, TEXT = 4, DATA = 5, SCRIPT = 6, FONT = 7, FORM = 8 };

    /// The null resource.
    Resource();
    /// The resource of that name among the packages' resources. A name that no package has gives a resource that keeps
    /// the name but has the type INVALID and no data.
    explicit Resource(const char* name);
    explicit Resource(const QString& name);
    /// Wraps an entry (a document's own resources).
    explicit Resource(std::shared_ptr<const ResourceEntry> entry);
    ~Resource();
    Resource(const Resource&);
    Resource& operator=(const Resource&);
    Resource(Resource&&) noexcept;
    Resource& operator=(Resource&&) noexcept;

    /// Whether there is an entry behind the reference.
    bool isValid() const;
    /// Whether nothing is referenced at all.
    bool isNull() const { return m_name.isEmpty(); }
    Type type() const;
    /// The name of the reference; what documents store.
    QString toString() const { return m_name; }
    /// The bytes; empty when there is no entry or its file cannot be read.
    QByteArray data() const;
    /// Null when there is no entry.
    const ResourceEntry* entry() const { return m_entry.get(); }

    /// "image", "form" and so on; "invalid" for INVALID and unknown numbers.
    static QString typeAsString(Type type);
    /// INVALID for a text that names no type.
    static Type typeFromString(const QString& text);

    /// Equal when the names are equal and the entries, where both have one, are the same.
    friend ZKCORE_EXPORT bool operator==(const Resource& a, const Resource& b);

private:
    QString m_name;
    std::shared_ptr<const ResourceEntry> m_entry;
};

Q_DECLARE_METATYPE(Resource)
