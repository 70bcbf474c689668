#pragma once

#include "zkcore/base/export.h"
#include "zkcore/base/instanceId.h"
#include "zkcore/media/resource.h"
#include "zkcore/storage/fileStamp.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <vector>

/// A document as it was at some moment, with all that writing it takes: nothing of it is shared with the live document.
struct DocumentPicture
{
    std::vector<QByteArray> pieces; // as DocumentPieces::list() gives them
    std::vector<Resource> resources;
    InstanceId nextId = 1;
};

/// A file to which a document is written while it is edited. It is a document file that says in its second line, a
/// processing instruction, what it belongs to; so it can be opened like any other when all else fails.
struct ZKCORE_EXPORT RecoveryFile
{
    QString original;   ///< the file of the document; empty when it was never saved
    FileStamp stamp;    ///< what that held when it was last read or written
    QDateTime written;  ///< UTC; invalid in what could not be read
    qint64 process = 0; ///< the number of the program that wrote it

    /// Replaces the file as a whole, and has it on the disk when it returns. False with the reason; the old file stays
    /// then. Can be called in any thread.
    bool write(const QString& fileName, const DocumentPicture& picture, QString& error) const;
    /// Reads the second line. False when the file is none of these, damaged, or cannot be read.
    bool read(const QString& fileName);
};
