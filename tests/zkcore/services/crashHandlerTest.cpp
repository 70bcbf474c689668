// Crashes are real: each happens in a child process, and the report it leaves is read afterwards.
#include "zkcore/services/crashHandler.h"

#include "tests/support/messageCapture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <thread>

namespace {

/// While set, taking memory crashes: what the readable back-trace of a damaged program may run into.
volatile bool memoryIsDamaged = false;

} // namespace

void* operator new(size_t size)
{
    if (memoryIsDamaged)
        raise(SIGBUS);
    if (void* memory = malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    free(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    free(memory);
}

namespace {

class CrashHandlerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_homeBefore = qgetenv("HOME");
        qputenv("HOME", m_home.path().toLocal8Bit());
    }
    void TearDown() override { qputenv("HOME", m_homeBefore); }

    static void prepare()
    {
        CrashHandler::install(QStringLiteral("crashing program"), QStringLiteral("4.2"));
        CrashHandler::setOpenDocument(QStringLiteral("/tmp/lights.zkdoc"));
        CrashHandler::log(QStringLiteral("Warning: the lamp is hot"));
    }

    static QString onlyReport()
    {
        const QStringList reports = CrashHandler::reports();
        EXPECT_EQ(reports.size(), 1);
        QFile file(reports.value(0));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }

    QTemporaryDir m_home;
    QByteArray m_homeBefore;
};

[[gnu::noinline]] int overflowTheStack(int depth)
{
    volatile char room[4096];
    room[depth % 4096] = static_cast<char>(depth);
    int (*volatile again)(int) = &overflowTheStack;
    return again(depth + 1) + room[0];
}

struct Crash
{
    const char* name;
    int signal;
    void (*cause)();
    const char* message;
    const char* inBackTrace;

    friend void PrintTo(const Crash& crash, std::ostream* out) { *out << crash.name << " in " << crash.inBackTrace; }
};

class CrashKindTest : public CrashHandlerTest, public testing::WithParamInterface<Crash>
{
};

} // namespace

TEST_P(CrashKindTest, LeavesAReportAndStillDiesOfItsSignal)
{
    const Crash& crash = GetParam();
    EXPECT_EXIT(
        {
            prepare();
            CrashHandler::setMessage(QStringLiteral("it is broken"));
            crash.cause();
        },
        testing::KilledBySignal(crash.signal), "crashing program crashed. The report is in ");

    const QString report = onlyReport();
    EXPECT_TRUE(report.startsWith(QStringLiteral("crashing program 4.2 crashed\n"))) << report.toStdString();
    for (const QString& expected :
         {QStringLiteral("\nSignal: %1 (%2)").arg(crash.signal).arg(QString::fromLatin1(crash.name)),
          QStringLiteral("\nDocument: /tmp/lights.zkdoc\n"),
          QStringLiteral("\nMessage: %1\n").arg(QString::fromLatin1(crash.message)), QStringLiteral("\nLog:\n"),
          QStringLiteral("\nWarning: the lamp is hot\n"), QStringLiteral("\nAddresses:\n")})
        EXPECT_TRUE(report.contains(expected)) << expected.toStdString() << "\n" << report.toStdString();
    const QString backTrace = report.section(QStringLiteral("\nBack-trace:\n"), 1);
    EXPECT_TRUE(backTrace.contains(QString::fromLatin1(crash.inBackTrace))) << report.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Signals, CrashKindTest,
    testing::Values(Crash{"SIGSEGV", SIGSEGV, [] { CrashHandler::causeSegfault(); }, "it is broken", "causeSegfault"},
                    Crash{"SIGABRT", SIGABRT, [] { std::abort(); }, "it is broken", "crashHandlerTest.cpp"},
                    Crash{"SIGFPE", SIGFPE, [] { raise(SIGFPE); }, "it is broken", "crashHandlerTest.cpp"},
                    Crash{"SIGILL", SIGILL, [] { raise(SIGILL); }, "it is broken", "crashHandlerTest.cpp"},
                    Crash{"SIGBUS", SIGBUS, [] { raise(SIGBUS); }, "it is broken", "crashHandlerTest.cpp"},
                    Crash{"SIGSEGV", SIGSEGV, [] { overflowTheStack(0); }, "it is broken", "overflowTheStack"},
                    Crash{"SIGABRT", SIGABRT,
                          [] { std::thread([] { throw std::runtime_error("disk on fire"); }).join(); },
                          "Uncaught exception: disk on fire", "__cxa_throw"}));

TEST_F(CrashHandlerTest, ACrashWhileReportingLeavesTheFactsAndTheFirstSignal)
{
    EXPECT_EXIT(
        {
            prepare();
            memoryIsDamaged = true;
            CrashHandler::causeSegfault();
        },
        testing::KilledBySignal(SIGSEGV), "");
    const QString report = onlyReport();
    EXPECT_TRUE(report.contains(QStringLiteral("\nWarning: the lamp is hot\n"))) << report.toStdString();
    EXPECT_TRUE(report.section(QStringLiteral("\nAddresses:\n"), 1).contains(QStringLiteral("libzkcore")))
        << report.toStdString();
    EXPECT_TRUE(report.endsWith(QStringLiteral("\nThe report ends here: SIGBUS while it was written.\n")))
        << report.toStdString();
}

TEST_F(CrashHandlerTest, ThreadsThatCrashTogetherMakeOneReport)
{
    EXPECT_EXIT(
        {
            prepare();
            std::thread other([] { CrashHandler::causeSegfault(); });
            CrashHandler::causeSegfault();
        },
        testing::KilledBySignal(SIGSEGV), "");
    const QString report = onlyReport();
    EXPECT_EQ(report.count(QStringLiteral("Signal:")), 1);
    EXPECT_FALSE(report.contains(QStringLiteral("The report ends here"))) << report.toStdString();
}

TEST_F(CrashHandlerTest, TheNewestTenReportsAreKept)
{
    QStringList newest;
    for (int i = 0; i < 13; ++i) {
        EXPECT_EXIT(
            {
                prepare();
                memoryIsDamaged = true; // no need of the readable part
                CrashHandler::setMessage(QString::number(i));
                CrashHandler::causeSegfault();
            },
            testing::KilledBySignal(SIGSEGV), "");
        newest.prepend(CrashHandler::reports().value(0));
    }
    EXPECT_EQ(CrashHandler::reports(), newest.mid(0, 10));
    CrashHandler::install(QStringLiteral("next start"), QString());
    EXPECT_EQ(CrashHandler::reports(), newest.mid(0, 10));
}

TEST_F(CrashHandlerTest, TheNextStartIsToldOnce)
{
    EXPECT_EQ(CrashHandler::previousCrashReport(), QString());
    EXPECT_EXIT(
        {
            prepare();
            CrashHandler::causeSegfault();
        },
        testing::KilledBySignal(SIGSEGV), "");
    EXPECT_EQ(CrashHandler::previousCrashReport(), CrashHandler::reports().value(0));
    EXPECT_EQ(CrashHandler::previousCrashReport(), QString());
    EXPECT_EQ(CrashHandler::reports().size(), 1);
}

TEST_F(CrashHandlerTest, WithoutAFolderTheReportGoesToStandardError)
{
    QFile file(m_home.filePath(QStringLiteral(".qttest")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    {
        const MessageCapture capture;
        EXPECT_FALSE(CrashHandler::install(QStringLiteral("crashing program"), QStringLiteral("4.2")));
        EXPECT_EQ(capture.warnings(), QStringList(QStringLiteral("CrashHandler: reports cannot be written to ") +
                                                  CrashHandler::reportFolder()));
    }
    EXPECT_EXIT(CrashHandler::causeSegfault(), testing::KilledBySignal(SIGSEGV), "crashing program 4.2 crashed\n");
}

TEST_F(CrashHandlerTest, AFolderThatWentAwayIsMadeAgain)
{
    EXPECT_EXIT(
        {
            prepare();
            QDir(CrashHandler::reportFolder()).removeRecursively();
            memoryIsDamaged = true;
            CrashHandler::causeSegfault();
        },
        testing::KilledBySignal(SIGSEGV), "");
    EXPECT_TRUE(onlyReport().contains(QStringLiteral("Message: none\n")));
}

TEST_F(CrashHandlerTest, TheLogKeepsItsNewestPartInWholeCharacters)
{
    // Texts of 27 bytes, whose places shift against the end of the ring at every round.
    for (int i = 0; i < 10000; ++i)
        CrashHandler::log(
            QStringLiteral("%1 \u00e4\u20ac\U0001F4A1 warm \u00f6\u00fc").arg(i, 6, 10, QLatin1Char('0')));
    const QString log = CrashHandler::logText();
    const qsizetype bytes = log.toUtf8().size();
    EXPECT_LE(bytes, CrashHandler::logLimit);
    EXPECT_GT(bytes, CrashHandler::logLimit - 4);
    EXPECT_FALSE(log.contains(QChar::ReplacementCharacter));
    EXPECT_TRUE(log.endsWith(QStringLiteral("\n009999 \u00e4\u20ac\U0001F4A1 warm \u00f6\u00fc\n")));

    CrashHandler::setMessage(QStringLiteral("x") + QString(20000, QChar(0x20ac)));
    EXPECT_EQ(CrashHandler::message(), QStringLiteral("x") + QString((16 * 1024 - 1) / 3, QChar(0x20ac)));
    CrashHandler::setMessage(QString());
}
