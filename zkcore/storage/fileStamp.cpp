#include "zkcore/storage/fileStamp.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

QByteArray hashOf(const QString& fileName)
{
    QFile file(fileName);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return hash.result();
}

} // namespace

FileStamp FileStamp::of(const QString& fileName)
{
    const QFileInfo info(fileName);
    FileStamp stamp;
    stamp.size = info.size();
    stamp.modified = info.lastModified().toUTC();
    if (info.isFile())
        stamp.hash = hashOf(fileName);
    stamp.valid = !stamp.hash.isEmpty();
    return stamp;
}

FileStamp::State FileStamp::compare(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (!info.isFile())
        return State::Gone;
    const QDateTime now = info.lastModified().toUTC();
    if (!valid || info.size() != size)
        return State::Changed;
    if (now == modified)
        return State::Same;
    if (hashOf(fileName) != hash)
        return State::Changed;
    modified = now;
    return State::Same;
}
