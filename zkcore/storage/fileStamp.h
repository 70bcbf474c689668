#pragma once

#include "zkcore/base/export.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// What a file held when it was last looked at, to notice that somebody else changed it.
struct ZKCORE_EXPORT FileStamp
{
    enum class State { Same, Changed, Gone };

    /// Reads the whole file. Of a file that cannot be read, one that no file fits.
    static FileStamp of(const QString& fileName);
    /// What became of the file since. Its content is read only when size and time leave it open; a new time alone is no
    /// change, and is taken over.
    State compare(const QString& fileName);

    bool valid = false;
    qint64 size = 0;
    QDateTime modified; // UTC
    QByteArray hash;
};
