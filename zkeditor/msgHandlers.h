#pragma once

#include "zkeditor/export.h"

#include <QString>
#include <QtGlobal>

class QMessageLogContext;

// Message handlers for qInstallMessageHandler(). The library installs none; the program chooses one when it starts.
//
// Information messages count as debug messages, critical ones as warnings; any other number is ignored unless said
// otherwise. A fatal message never returns. With all but WinoutMsgHandler and DebugConsoleMsgHandler it is written to
// standard error, stored as the crash report's message, and the program is crashed on purpose so that the report is
// made.

/// Warnings go, cut to 8000 characters, to the crash log; debug messages are dropped.
ZKEDITOR_EXPORT void DefaultMsgHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// Everything goes to standard output.
ZKEDITOR_EXPORT void StdoutMsgHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// Everything goes to standard error.
ZKEDITOR_EXPORT void StderrMsgHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// Everything but fatal messages is dropped.
ZKEDITOR_EXPORT void NullOpMsgHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// Everything goes to the file "velmor.log" in the current folder, which the first message of a run, of whatever type,
/// makes or empties. UTF-8, complete after every message. A file that cannot be opened is fatal.
ZKEDITOR_EXPORT void LogFileMsgHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// Everything goes to the debugger: on Windows its output window, elsewhere standard error. A fatal message aborts.
ZKEDITOR_EXPORT void WinoutMsgHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// Everything goes to the DebugConsole. A fatal message aborts. Messages of other threads than the one of the user
/// interface, and those raised when there is no application object, go to standard error.
ZKEDITOR_EXPORT void DebugConsoleMsgHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);
