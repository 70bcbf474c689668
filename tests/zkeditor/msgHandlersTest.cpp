#include "zkeditor/msgHandlers.h"

#include "zkcore/services/crashHandler.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr auto s_otherType = static_cast<QtMsgType>(7);
const QMessageLogContext s_context;

/// What a handler writes for every type that does not end the program.
struct HandlerCase
{
    const char* name;
    QtMessageHandler handler;
    std::string out;
    std::string err;
};

void PrintTo(const HandlerCase& testCase, std::ostream* stream)
{
    *stream << testCase.name;
}

class MsgHandlerTest : public testing::TestWithParam<HandlerCase>
{
};

using MsgHandlerDeathTest = MsgHandlerTest;

const HandlerCase s_cases[] = {
    {"Default", DefaultMsgHandler, "", ""},
    {"Stdout", StdoutMsgHandler, "Debug: d%s\nDebug: i\nWarning: w\nWarning: c\n", ""},
    {"Stderr", StderrMsgHandler, "", "Debug: d%s\nDebug: i\nWarning: w\nWarning: c\n"},
    {"NullOp", NullOpMsgHandler, "", ""},
    {"LogFile", LogFileMsgHandler, "", ""},
#ifndef Q_OS_WIN
    {"Winout", WinoutMsgHandler, "", "Debug: d%s\nDebug: i\nWarning: w\nWarning: c\n"},
#endif
    {"DebugConsole", DebugConsoleMsgHandler, "", ""},
};

/// Runs in a child process, in a folder of its own, so that every log file is the first of its run.
class LogFileTest : public testing::Test
{
protected:
    QString path() const { return folder.filePath("velmor.log"); }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    void enter() const { ASSERT_TRUE(QDir::setCurrent(folder.path())); }

    QTemporaryDir folder;
};

using LogFileDeathTest = LogFileTest;

// Matches a standard error that has the text exactly once.
auto hasOnce(const std::string& text)
{
    return testing::Truly([text](const std::string& output) {
        const size_t at = output.find(text);
        return at != std::string::npos && output.find(text, at + 1) == std::string::npos;
    });
}

} // namespace

TEST_P(MsgHandlerTest, WritesEachTypeToItsPlace)
{
    QTemporaryDir folder;
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path())); // for the log file
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const auto previous = qInstallMessageHandler(GetParam().handler);
    qDebug("%s", "d%s");
    qInfo("i");
    qWarning("w");
    qCritical("c");
    GetParam().handler(s_otherType, s_context, "other");
    qInstallMessageHandler(previous);
    const std::string err = testing::internal::GetCapturedStderr();
    const std::string out = testing::internal::GetCapturedStdout();
    EXPECT_EQ(out, GetParam().out);
    EXPECT_EQ(err, GetParam().err);
    QDir::setCurrent(before);
}

TEST_P(MsgHandlerDeathTest, FatalMessageNeverReturns)
{
    const std::string name = GetParam().name;
    QTemporaryDir folder;
    const auto die = [&] {
        QDir::setCurrent(folder.path());
        qInstallMessageHandler(GetParam().handler);
        qFatal("the end");
    };
    if (name == "Winout")
        EXPECT_EXIT(die(), testing::KilledBySignal(SIGABRT), hasOnce("Fatal: the end\n"));
    else if (name == "DebugConsole")
        EXPECT_EXIT(die(), testing::KilledBySignal(SIGABRT), testing::Not(testing::HasSubstr("Fatal:")));
    else
        EXPECT_DEATH(die(), hasOnce("Fatal: the end\n"));
}

INSTANTIATE_TEST_SUITE_P(All, MsgHandlerTest, testing::ValuesIn(s_cases), testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(All, MsgHandlerDeathTest, testing::ValuesIn(s_cases), testing::PrintToStringParamName());

TEST(CrashRouteDeathTest, ReportHoldsTheMessage)
{
    const auto die = [] {
        CrashHandler::install("zkhandlertest", "1");
        NullOpMsgHandler(QtFatalMsg, s_context, "found in the report");
    };
    EXPECT_DEATH(die(), "Fatal: found in the report");
    bool found = false;
    for (const QString& name : CrashHandler::reports()) {
        QFile report(name);
        ASSERT_TRUE(report.open(QIODevice::ReadOnly));
        if (!report.readAll().contains("found in the report"))
            continue;
        found = true;
        report.remove();
    }
    EXPECT_TRUE(found);
}

TEST(DefaultMsgHandlerTest, WarningsGoToTheCrashLogCut)
{
    DefaultMsgHandler(QtWarningMsg, s_context, "marker");
    const QString before = CrashHandler::logText();
    EXPECT_TRUE(before.endsWith("Warning: marker\n"));
    DefaultMsgHandler(QtDebugMsg, s_context, "dropped");
    EXPECT_EQ(CrashHandler::logText(), before);
    DefaultMsgHandler(QtCriticalMsg, s_context, QString(10000, 'x'));
    const QString last = CrashHandler::logText().chopped(1).section('\n', -1);
    EXPECT_EQ(last.size(), 8000);
    EXPECT_TRUE(last.startsWith("Warning: xxx"));
}

TEST_F(LogFileDeathTest, FirstMessageEmptiesAndEachIsWrittenAtOnce)
{
    QFile old(path());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("from the run before\n");
    old.close();
    const auto write = [this] {
        enter();
        LogFileMsgHandler(QtWarningMsg, s_context, QString::fromUtf8("w\u00e4rm"));
        LogFileMsgHandler(s_otherType, s_context, "other");
        LogFileMsgHandler(QtInfoMsg, s_context, "info");
        _exit(0); // nothing is flushed any more
    };
    EXPECT_EXIT(write(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(content(), QByteArray("Warning: w\u00e4rm\nDebug: info\n"));
}

TEST_F(LogFileDeathTest, OtherTypesOnlyMakeTheFile)
{
    const auto write = [this] {
        enter();
        LogFileMsgHandler(s_otherType, s_context, "other");
        _exit(0);
    };
    EXPECT_EXIT(write(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(content(), QByteArray());
}

TEST_F(LogFileDeathTest, FatalMessageIsLoggedBeforeTheEnd)
{
    const auto die = [this] {
        enter();
        LogFileMsgHandler(QtFatalMsg, s_context, "the end");
    };
    EXPECT_DEATH(die(), hasOnce("Fatal: the end\n"));
    EXPECT_EQ(content(), QByteArray("Fatal: the end\n"));
}

TEST_F(LogFileDeathTest, FileThatCannotBeOpenedEndsTheProgramOnce)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("velmor.log")); // a folder in its place: not even root can open it
    const auto die = [this] {
        enter();
        qInstallMessageHandler(LogFileMsgHandler);
        qWarning("anything");
    };
    EXPECT_DEATH(die(), hasOnce("Fatal: ZK_ASSERT: \"outfile.open( IO_WriteOnly )\" in "));
}

TEST(DebugConsoleMsgHandlerTest, OtherThreadsUseStandardError)
{
    testing::internal::CaptureStderr();
    std::thread([] { DebugConsoleMsgHandler(QtWarningMsg, s_context, "from a thread"); }).join();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Warning: from a thread\n");
}
