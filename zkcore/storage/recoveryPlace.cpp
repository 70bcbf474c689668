#include "zkcore/storage/recoveryPlace.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUuid>
#include <algorithm>

namespace {

QString recoveryFileOf(const QString& stem)
{
    return stem + QStringLiteral(".zkdoc");
}

} // namespace

RecoveryPlace::RecoveryPlace(const QString& stem)
    : m_fileName(recoveryFileOf(stem)), m_lock(stem + QStringLiteral(".lock"))
{
    // Stale as soon as the program that made it is gone, and never before.
    m_lock.setStaleLockTime(0);
}

std::unique_ptr<RecoveryPlace> RecoveryPlace::make(const QString& folder, QString& error)
{
    const QDir place(folder);
    std::unique_ptr<RecoveryPlace> made(
        new RecoveryPlace(place.filePath(QUuid::createUuid().toString(QUuid::WithoutBraces))));
    if (place.mkpath(QStringLiteral(".")) && made->m_lock.tryLock(0))
        return made;
    error = QCoreApplication::translate("RecoveryPlace", "The folder %1 cannot be written.")
                .arg(QDir::toNativeSeparators(folder));
    return nullptr;
}

std::vector<std::unique_ptr<RecoveryPlace>> RecoveryPlace::leftOvers(const QString& folder)
{
    const QDir place(folder);
    QSet<QString> stems;
    const QFileInfoList entries = place.entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& entry : entries)
        stems.insert(entry.baseName());
    std::vector<std::unique_ptr<RecoveryPlace>> found;
    for (const QString& stem : stems) {
        std::unique_ptr<RecoveryPlace> each(new RecoveryPlace(place.filePath(stem)));
        if (!each->m_lock.tryLock(0))
            continue;
        // A program that was killed while it wrote leaves what it had not yet put in the file's place.
        const QStringList unfinished = place.entryList({stem + QStringLiteral(".zkdoc.*")}, QDir::Files | QDir::Hidden);
        for (const QString& name : unfinished)
            QFile::remove(place.filePath(name));
        if (QFile::exists(each->fileName()))
            found.push_back(std::move(each));
    }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
        return QFileInfo(a->fileName()).lastModified() < QFileInfo(b->fileName()).lastModified();
    });
    return found;
}

QString RecoveryPlace::setAside() const
{
    const QFileInfo file(m_fileName);
    const QDir folder = file.dir();
    const QString aside = folder.filePath(QStringLiteral("damaged/") + file.fileName());
    if (folder.mkpath(QStringLiteral("damaged")) && QFile::rename(m_fileName, aside))
        return aside;
    return {};
}
