#include "zkauthor/fileWatch.h"

#include <QFileInfo>
#include <QGuiApplication>

namespace {

constexpr int settleTime = 300;

} // namespace

FileWatch::FileWatch(QObject* parent) : QObject(parent)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(settleTime);
    connect(&m_settle, &QTimer::timeout, this, &FileWatch::check);
    const auto settle = [this] { m_settle.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, settle);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, settle);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            check();
    });
}

void FileWatch::follow(const QString& fileName)
{
    follow(fileName, fileName.isEmpty() ? FileStamp() : FileStamp::of(fileName));
}

void FileWatch::follow(const QString& fileName, const FileStamp& stamp)
{
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    m_fileName = fileName;
    m_stamp = stamp;
    m_goneAccepted = false;
    m_settle.stop();
    watch();
    check();
}

void FileWatch::watch()
{
    if (m_fileName.isEmpty())
        return;
    // The watcher loses a file that is replaced or removed, so the folder is watched too.
    if (m_watcher.directories().isEmpty())
        m_watcher.addPath(QFileInfo(m_fileName).absolutePath());
    if (m_watcher.files().isEmpty() && QFileInfo::exists(m_fileName))
        m_watcher.addPath(m_fileName);
}

void FileWatch::accept()
{
    m_goneAccepted = !QFileInfo(m_fileName).isFile();
    if (!m_goneAccepted)
        m_stamp = FileStamp::of(m_fileName);
    check();
}

FileStamp::State FileWatch::check()
{
    watch();
    FileStamp::State state = m_fileName.isEmpty() ? FileStamp::State::Same : m_stamp.compare(m_fileName);
    if (state != FileStamp::State::Gone)
        m_goneAccepted = false;
    else if (m_goneAccepted)
        state = FileStamp::State::Same;
    setState(state);
    return m_state;
}

void FileWatch::setState(FileStamp::State state)
{
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}
