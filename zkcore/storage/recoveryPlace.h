#pragma once

#include "zkcore/base/export.h"

#include <QLockFile>
#include <QString>
#include <memory>
#include <vector>

/// A recovery file's name in the folder of recovery files, with a lock that is held as long as this object lives: a
/// running program's own, or one left over by a program that is gone.
class ZKCORE_EXPORT RecoveryPlace
{
public:
    /// A new place, made with the folder if need be. Null with the reason when that cannot be written.
    static std::unique_ptr<RecoveryPlace> make(const QString& folder, QString& error);
    /// The places with a recovery file that no running program holds, oldest first. They are this program's from now
    /// on, until they are destroyed. Clears away what killed programs left besides.
    static std::vector<std::unique_ptr<RecoveryPlace>> leftOvers(const QString& folder);

    QString fileName() const { return m_fileName; }
    /// Moves the file to where it is not offered any more, and says where; empty when that failed.
    QString setAside() const;

private:
    explicit RecoveryPlace(const QString& stem);

    QString m_fileName;
    QLockFile m_lock;
};
