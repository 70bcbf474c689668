#include "zkeditor/msgHandlers.h"

#include "zkcore/services/crashHandler.h"
#include "zkeditor/debugConsole.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>
#include <QThread>
#include <cstdio>
#include <cstdlib>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

// Nothing here may raise a message: inside a handler it would end the program on the spot.

namespace {

enum class MessageLevel { Debug, Warning, Fatal, Other };

MessageLevel messageLevel(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
    case QtInfoMsg:
        return MessageLevel::Debug;
    case QtWarningMsg:
    case QtCriticalMsg:
        return MessageLevel::Warning;
    case QtFatalMsg:
        return MessageLevel::Fatal;
    }
    return MessageLevel::Other;
}

const char* messagePrefix(MessageLevel level)
{
    switch (level) {
    case MessageLevel::Debug:
        return "Debug: ";
    case MessageLevel::Warning:
        return "Warning: ";
    case MessageLevel::Fatal:
        return "Fatal: ";
    case MessageLevel::Other:
        break;
    }
    return "";
}

void printMessage(std::FILE* stream, MessageLevel level, const QString& message)
{
    std::fprintf(stream, "%s%s\n", messagePrefix(level), message.toLocal8Bit().constData());
    std::fflush(stream);
}

[[noreturn]] void takeFatalRoute(const QString& message)
{
    printMessage(stderr, MessageLevel::Fatal, message);
    CrashHandler::setMessage(message);
    CrashHandler::causeSegfault();
    std::abort();
}

void printOrDie(std::FILE* stream, MessageLevel level, const QString& message)
{
    if (level == MessageLevel::Fatal)
        takeFatalRoute(message);
    if (level != MessageLevel::Other)
        printMessage(stream, level, message);
}

// The log of this run: made by the first message, closed when the process ends. Messages that come later still go to
// standard error, since opening the file again would empty it.
class LogFile
{
public:
    ~LogFile() { s_ended = true; }

    static bool ended() { return s_ended; }

    void write(MessageLevel level, const QString& message)
    {
        if ((m_file.openMode() & QIODevice::ReadWrite) != QIODevice::WriteOnly && !m_file.open(QIODevice::WriteOnly)) {
            // Not through ZK_ASSERT: its message would come back here, and fail again.
            takeFatalRoute(
                QString::asprintf("ZK_ASSERT: \"%s\" in %s (%d)", "outfile.open( IO_WriteOnly )", __FILE__, __LINE__));
        }
        if (level != MessageLevel::Other) {
            QTextStream stream(&m_file);
            stream << messagePrefix(level) << message << "\n";
        }
        m_file.flush();
    }

private:
    static inline bool s_ended = false;
    QFile m_file{QStringLiteral("velmor.log")};
};

void sendToDebugger(const QByteArray& text)
{
#ifdef Q_OS_WIN
    OutputDebugStringA(text.constData());
#else
    std::fputs(text.constData(), stderr);
    std::fflush(stderr);
#endif
}

bool isConsoleUsable()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) &&
           QThread::currentThread() == QCoreApplication::instance()->thread();
}

} // namespace

void DefaultMsgHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const MessageLevel level = messageLevel(type);
    if (level == MessageLevel::Fatal)
        takeFatalRoute(message);
    if (level == MessageLevel::Warning)
        CrashHandler::log((QLatin1String(messagePrefix(level)) + message).left(8000));
}

void StdoutMsgHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    printOrDie(stdout, messageLevel(type), message);
}

void StderrMsgHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    printOrDie(stderr, messageLevel(type), message);
}

void NullOpMsgHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (messageLevel(type) == MessageLevel::Fatal)
        takeFatalRoute(message);
}

void LogFileMsgHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const MessageLevel level = messageLevel(type);
    if (LogFile::ended()) {
        printOrDie(stderr, level, message);
        return;
    }
    static LogFile logFile;
    logFile.write(level, message);
    if (level == MessageLevel::Fatal)
        takeFatalRoute(message);
}

void WinoutMsgHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const MessageLevel level = messageLevel(type);
    if (level == MessageLevel::Other)
        sendToDebugger({});
    else
        sendToDebugger(messagePrefix(level) + message.toLocal8Bit() + '\n');
    if (level == MessageLevel::Fatal)
        std::abort();
}

void DebugConsoleMsgHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const MessageLevel level = messageLevel(type);
    if (level == MessageLevel::Other)
        return;
    if (!isConsoleUsable()) {
        printMessage(stderr, level, message);
    } else {
        const DebugConsole& console = DebugConsole::getDebugConsole();
        if (level == MessageLevel::Debug)
            console.pushDebugMsg(message);
        else if (level == MessageLevel::Warning)
            console.pushWarningMsg(message);
        else
            console.pushFatalMsg(message);
    }
    if (level == MessageLevel::Fatal)
        std::abort();
}
