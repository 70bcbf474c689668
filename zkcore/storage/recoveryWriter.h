#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/changeMarks.h"
#include "zkcore/storage/documentPieces.h"
#include "zkcore/storage/recoveryFile.h"
#include "zkcore/storage/recoveryPlace.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>
#include <memory>
#include <optional>

class DocumentImpl;

/// Writes a document that is edited to a recovery file: no change is longer than the interval not in it. The document
/// is looked at between events, for some milliseconds each time; another thread writes to the disk.
///
/// What is written is the document as it was at one moment. When changes come so fast that this moment does not come in
/// half of the interval, every part is written as it was at some moment in the other half.
class ZKCORE_EXPORT RecoveryWriter : public QObject
{
    Q_OBJECT

public:
    /// Ten seconds.
    static constexpr int defaultInterval = 10'000;

    explicit RecoveryWriter(std::unique_ptr<RecoveryPlace> place, QObject* parent = nullptr);
    /// Waits for what is being written. The file stays when discard() was not called.
    ~RecoveryWriter() override;

    /// In milliseconds, from the change to the file on the disk.
    void setInterval(int milliseconds) { m_interval = milliseconds; }
    /// Follows another document, or none. Not owned; there must be another one, or none, before it goes. The file of
    /// the one before is discarded.
    void setDocument(DocumentImpl* document);
    /// The document's file, as it was last read or written; an invalid stamp and an empty name for none.
    void setOriginal(const QString& fileName, const FileStamp& stamp);
    /// Goes on with a file that holds the document already; the place had until now is given up.
    void adopt(std::unique_ptr<RecoveryPlace> place);
    /// Removes the file: the document is saved, or the user gave it up. Also happens when the document is not modified
    /// any more.
    void discard();

Q_SIGNALS:
    /// A file is on the disk.
    void written();
    /// The file could not be written; told once until it works again. It is tried again after the interval.
    void failed(const QString& reason);

private:
    void onFirstChange();
    void beginPicture();
    void continuePicture();
    void takePicture();
    void onWritten(bool good, const QString& reason);
    void stop();
    /// Since the oldest change that is not yet in a picture, as a share of the interval.
    double shareOver() const;

    std::unique_ptr<RecoveryPlace> m_place;
    QPointer<DocumentImpl> m_document;
    ChangeMarks m_marks;
    std::optional<DocumentPieces> m_pieces;
    QString m_original;
    FileStamp m_stamp;
    QThreadPool m_disk; // one thread: files are written and removed in the order asked for
    QTimer m_wait;
    QTimer m_step;
    QElapsedTimer m_sinceChange;
    int m_interval = defaultInterval;
    bool m_sweeping = false; // finishes what is marked, whatever values change meanwhile
    bool m_onDisk = false;
    bool m_writing = false;
    bool m_late = false; // there was a change while the file was written
    bool m_failing = false;
};
