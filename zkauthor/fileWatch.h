#pragma once

#include "zkcore/storage/fileStamp.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

/// Notices that another program changed, replaced or removed the file of the document: when the system says so, and
/// when the user comes back to the program.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject* parent = nullptr);

    /// What the file holds now is what the document was read from or saved as; an empty name for none.
    void follow(const QString& fileName);
    /// The document goes back to what the file held then.
    void follow(const QString& fileName, const FileStamp& stamp);
    /// The user knows what became of the file and keeps the document: only further changes are told.
    void accept();
    /// Looks at the file now.
    FileStamp::State check();
    FileStamp::State state() const { return m_state; }
    const FileStamp& stamp() const { return m_stamp; }

Q_SIGNALS:
    void stateChanged();

private:
    void watch();
    void setState(FileStamp::State state);

    QString m_fileName;
    FileStamp m_stamp;
    FileStamp::State m_state = FileStamp::State::Same;
    bool m_goneAccepted = false;
    QFileSystemWatcher m_watcher;
    QTimer m_settle; // other programs write in several steps
};
