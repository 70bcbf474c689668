#pragma once

#include "zkcore/media/resource.h"

#include <QByteArray>
#include <QString>

/// What stands behind a Resource: a name, a type and the bytes. Owned through shared pointers by the resource tables.
class ZKCORE_EXPORT ResourceEntry
{
public:
    ResourceEntry(QString name, Resource::Type type) : m_name(std::move(name)), m_type(type) {}
    virtual ~ResourceEntry();

    QString name() const { return m_name; }
    Resource::Type type() const { return m_type; }
    virtual QByteArray data() const = 0;
    /// The file's extension in lower case without the dot ("svg", "png"); tells how to read the bytes.
    virtual QString extension() const = 0;

protected:
    void setEntryName(const QString& name) { m_name = name; }

private:
    QString m_name;
    Resource::Type m_type;
};

/// A resource that is a file: of a package, or of the built-in data (":/zk/packages/...").
class ZKCORE_EXPORT FileREntry : public ResourceEntry
{
public:
    FileREntry(const QString& name, Resource::Type type, const QString& fileName);

    QString fileName() const { return m_fileName; }
    QByteArray data() const override;
    QString extension() const override;

private:
    QString m_fileName;
};

/// A resource kept inside a document; its bytes are saved with it. Its name begins with "local/".
class ZKCORE_EXPORT LocalREntry : public ResourceEntry
{
public:
    LocalREntry(const QString& name, Resource::Type type, QByteArray bytes, QString extension);

    using ResourceEntry::name;
    /// Renames the entry. Only the document's resource table calls this, so that the table stays in step.
    void setName(const QString& name);
    QByteArray data() const override { return m_bytes; }
    QString extension() const override { return m_extension; }

private:
    QByteArray m_bytes;
    QString m_extension;
};
