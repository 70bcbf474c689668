#include "zkcore/media/resourceEntry.h"

#include <QFile>
#include <QFileInfo>

ResourceEntry::~ResourceEntry() = default;

FileREntry::FileREntry(const QString& name, Resource::Type type, const QString& fileName)
    : ResourceEntry(name, type), m_fileName(fileName)
{
}

QByteArray FileREntry::data() const
{
    QFile file(m_fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString FileREntry::extension() const
{
    return QFileInfo(m_fileName).suffix().toLower();
}

LocalREntry::LocalREntry(const QString& name, Resource::Type type, QByteArray bytes, QString extension)
    : ResourceEntry(name, type), m_bytes(std::move(bytes)), m_extension(std::move(extension))
{
}

void LocalREntry::setName(const QString& name)
{
    setEntryName(name);
}
