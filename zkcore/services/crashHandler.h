#pragma once

#include "zkcore/base/export.h"

#include <QString>
#include <QStringList>

/// Writes a report file when the program dies of a fatal signal (segmentation fault, abort, arithmetic fault, illegal
/// instruction, bus error) or of an exception that nobody caught. A report holds the message, the log, the program's
/// name and version, the open document and the back-trace. The signal then takes its usual course, so that the process
/// still dies of it.
class ZKCORE_EXPORT CrashHandler
{
public:
    /// Greatest number of reports kept; older ones are deleted.
    static constexpr int reportLimit = 10;
    /// Bytes (UTF-8) of the log that a report holds: the newest ones.
    static constexpr int logLimit = 64 * 1024;

    /// Prepares everything that a report needs and takes over the fatal signals; call it once, from the main thread,
    /// after the application has its name, for that decides about the folder. False, with a warning, when the folder
    /// cannot be made; reports then go to standard error. Calling it again prepares anew.
    static bool install(const QString& applicationName, const QString& version);

    /// Stores the text that a report gives as the reason, at most 16 KB of it. Works before install() as well.
    static void setMessage(const QString& text);
    /// The text that a report would give as the reason now.
    static QString message();
    /// Appends a text, as a line of its own, to the log that accompanies a report. From any thread.
    static void log(const QString& text);
    /// The log that a report would hold now; every text ends with a line feed.
    static QString logText();
    /// Stores the name of the document that a report gives as the open one; empty for none.
    static void setOpenDocument(const QString& name);

    /// Crashes on purpose by a write to an address that is not there, so that a report is written. Never returns.
    [[noreturn]] static void causeSegfault();

    /// Where reports are written: "crashes" in the application's data folder.
    static QString reportFolder();
    /// The reports that there are, newest first, with their paths.
    static QStringList reports();
    /// The path of the report of a run that crashed and that nobody has been told about yet; empty when there is none.
    /// Tells of a crash once: the next call, in this run or a later one, gives an empty text.
    static QString previousCrashReport();
};
