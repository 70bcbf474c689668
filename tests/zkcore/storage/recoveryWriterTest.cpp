// A document that is edited is on the disk soon enough, whatever happens to the program.
#include "zkcore/storage/recoveryWriter.h"
#include "tests/support/randomSession.h"
#include "tests/support/testDocument.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <chrono>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <random>
#include <unistd.h>

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int killRounds = 30;
#else
constexpr int killRounds = 200;
#endif
constexpr int killedAtOnce = 12;
constexpr int killInterval = 300; // milliseconds
constexpr int killSlack = 1200;   // for a disk and a processor that others keep busy

qint64 steadyTime()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

QByteArray hashOfContent(const DocumentImpl& document)
{
    return QCryptographicHash::hash(bytesOf(document), QCryptographicHash::Sha1).toHex();
}

class RecoveryWriterTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadTestKit()); } // before there is a document

    void SetUp() override
    {
        m_box = addPart(m_document, "testkit/box");
        ASSERT_TRUE(m_document.save(m_folder.filePath(QStringLiteral("a.zkdoc"))));
        QString error;
        std::unique_ptr<RecoveryPlace> place =
            RecoveryPlace::make(m_folder.filePath(QStringLiteral("recovery")), error);
        ASSERT_TRUE(place) << error.toStdString();
        m_file = place->fileName();
        m_writer = std::make_unique<RecoveryWriter>(std::move(place));
        m_writer->setDocument(&m_document);
    }

    void change(int number) { ASSERT_TRUE(set(property(m_box, "length"), Value(0.001 * number))); }

    double recoveredLength()
    {
        DocumentImpl other;
        if (!QFile::exists(m_file))
            return 0;
        EXPECT_TRUE(other.recover(m_file, QString())) << other.lastError().toStdString();
        return other.nodeById(m_box->instanceId())->valueOfProperty(PropertyKey::fromString("length")).toDouble();
    }

    QTemporaryDir m_folder;
    DocumentImpl m_document;
    PartImpl* m_box = nullptr;
    QString m_file;
    std::unique_ptr<RecoveryWriter> m_writer;
};

TEST_F(RecoveryWriterTest, keepsChangesAndNothingElse)
{
    m_writer->setInterval(100);
    const QSignalSpy written(m_writer.get(), &RecoveryWriter::written);
    QTest::qWait(150);
    EXPECT_EQ(written.count(), 0) << "nothing was changed";
    change(31);
    ASSERT_TRUE(QTest::qWaitFor([&] { return written.count() == 1; }));
    EXPECT_DOUBLE_EQ(recoveredLength(), 0.031);
    change(32);
    ASSERT_TRUE(QTest::qWaitFor([&] { return written.count() == 2; }));
    EXPECT_DOUBLE_EQ(recoveredLength(), 0.032);
    QTest::qWait(150);
    EXPECT_EQ(written.count(), 2);

    // Not modified any more: there is nothing to recover.
    m_document.undo();
    m_document.undo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(m_file); }));
    m_document.redo();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(m_file); }));
    ASSERT_TRUE(m_document.save(m_folder.filePath(QStringLiteral("a.zkdoc"))));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(m_file); }));

    // The file stays when the program goes without a word, and another document has its own.
    change(33);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(m_file); }));
    m_writer.reset();
    EXPECT_DOUBLE_EQ(recoveredLength(), 0.033);
}

TEST_F(RecoveryWriterTest, holdsTheIntervalWhileEverythingChangesAllTheTime)
{
    m_writer->setInterval(1000);
    for (int i = 0; i < 300; ++i)
        addPart(m_document, "testkit/box");
    QElapsedTimer time;
    time.start();
    qint64 lastPicture = 0;
    qint64 longest = 0;
    QObject::connect(m_writer.get(), &RecoveryWriter::written, m_writer.get(), [&] {
        longest = std::max(longest, time.elapsed() - lastPicture);
        lastPicture = time.elapsed();
    });
    for (int i = 1; time.elapsed() < 5000; ++i) {
        for (NodeImpl* part : firstScene(m_document)->children())
            set(property(part, "length"), Value(0.001 * (1 + i % 90)), false);
        QCoreApplication::processEvents();
    }
    EXPECT_GT(lastPicture, 2000);
    EXPECT_LT(longest, 3000); // on a machine that is busy with other things
    DocumentImpl other;
    EXPECT_TRUE(other.recover(m_file, QString())) << other.lastError().toStdString();
    EXPECT_EQ(other.nodeCount(), m_document.nodeCount());
}

TEST_F(RecoveryWriterTest, saysOnceThatItCannotWrite)
{
    m_writer->setInterval(60);
    QSignalSpy failed(m_writer.get(), &RecoveryWriter::failed);
    QSignalSpy written(m_writer.get(), &RecoveryWriter::written);
    ASSERT_TRUE(QDir().mkpath(m_file + QStringLiteral("/in the way")));
    change(31);
    ASSERT_TRUE(QTest::qWaitFor([&] { return failed.count() == 1; }));
    QTest::qWait(300);
    EXPECT_EQ(failed.count(), 1);
    ASSERT_TRUE(QDir(m_file).removeRecursively());
    EXPECT_TRUE(QTest::qWaitFor([&] { return written.count() > 0; })) << "it tries again without a change";
    EXPECT_DOUBLE_EQ(recoveredLength(), 0.031);
}

// Run as a program of its own by the test below, which kills it: edits without end, and notes each state that the
// document had, with the time, before anything else can happen.
TEST(RecoveryKillTest, DISABLED_session)
{
    const QDir folder(qEnvironmentVariable("ZK_KILL_FOLDER"));
    std::mt19937 generator(qEnvironmentVariable("ZK_KILL_SEED").toUInt());
    const auto random = [&generator](unsigned int below) { return static_cast<unsigned int>(generator() % below); };
    ASSERT_TRUE(loadTestKit());
    DocumentImpl document;
    const QString file = folder.filePath(QStringLiteral("a.zkdoc"));
    ASSERT_TRUE(document.load(file));
    QString error;
    std::unique_ptr<RecoveryPlace> place = RecoveryPlace::make(folder.filePath(QStringLiteral("recovery")), error);
    ASSERT_TRUE(place);
    RecoveryWriter writer(std::move(place));
    writer.setInterval(killInterval);
    writer.setDocument(&document);
    writer.setOriginal(file, FileStamp::of(file));
    const int log = ::open(QFile::encodeName(folder.filePath(QStringLiteral("log"))).constData(),
                           O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    ASSERT_GE(log, 0);
    RandomSession session(document);
    for (;;) {
        if (random(60) == 0)
            ASSERT_TRUE(document.save(file));
        else
            session.step(random(1000), random(1000), random(1000));
        const QByteArray line = QByteArray::number(steadyTime()) + ' ' + hashOfContent(document) + '\n';
        ASSERT_EQ(::write(log, line.constData(), static_cast<size_t>(line.size())), line.size());
        QTest::qWait(static_cast<int>(random(8)));
    }
}

/// One session that is killed, and what must be there then.
class KilledSession
{
public:
    explicit KilledSession(unsigned int seed)
        : m_folder(QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm/zkkill") : QString())
    {
        DocumentImpl document;
        addPart(document, "testkit/lamp");
        EXPECT_TRUE(document.save(path("a.zkdoc")));
        m_first = hashOfContent(document);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("ZK_KILL_FOLDER"), m_folder.path());
        environment.insert(QStringLiteral("ZK_KILL_SEED"), QString::number(seed));
        m_process.setProcessEnvironment(environment);
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("--gtest_filter=RecoveryKillTest.DISABLED_session"),
                         QStringLiteral("--gtest_also_run_disabled_tests")});
        m_end = steadyTime() + 200 + seed % 2500;
    }

    bool isDue() const { return steadyTime() >= m_end; }

    /// Kills the program and looks at what is left. Whether there was something to recover.
    bool killAndCheck()
    {
        EXPECT_EQ(m_process.state(), QProcess::Running);
        const qint64 killed = steadyTime();
        m_process.kill();
        EXPECT_TRUE(m_process.waitForFinished());

        int needed = 0;
        QHash<QByteArray, int> states{{m_first, 0}};
        QFile log(path("log"));
        if (log.open(QIODevice::ReadOnly)) {
            for (int step = 1; !log.atEnd(); ++step) {
                const QList<QByteArray> words = log.readLine().trimmed().split(' ');
                states.insert(words.last(), step);
                if (words.first().toLongLong() <= killed - killInterval - killSlack)
                    needed = step;
            }
        }
        DocumentImpl document;
        EXPECT_TRUE(document.load(path("a.zkdoc"))) << document.lastError().toStdString();
        int newest = states.value(hashOfContent(document), -1);
        EXPECT_GE(newest, 0) << "the file holds what the document never was";
        const auto places = RecoveryPlace::leftOvers(path("recovery"));
        EXPECT_LE(places.size(), 1u);
        for (const std::unique_ptr<RecoveryPlace>& place : places) {
            RecoveryFile file;
            EXPECT_TRUE(file.read(place->fileName()));
            EXPECT_EQ(file.original, path("a.zkdoc"));
            EXPECT_TRUE(document.recover(place->fileName(), QString())) << document.lastError().toStdString();
            const int recovered = states.value(hashOfContent(document), -1);
            EXPECT_GE(recovered, 0) << "what is recovered is what the document never was";
            newest = std::max(newest, recovered);
        }
        EXPECT_GE(newest, needed) << "of " << states.size() << " states";
        return !places.empty();
    }

private:
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
    QByteArray m_first;
    QProcess m_process;
    qint64 m_end = 0;
};

TEST(RecoveryKillTest, aKilledProgramLosesNoMoreThanTheInterval)
{
    ASSERT_TRUE(loadTestKit());
    const unsigned int seed = std::random_device()();
    std::printf("seed %u\n", seed);
    std::mt19937 random(seed);
    std::vector<std::unique_ptr<KilledSession>> running;
    int started = 0;
    int recovered = 0;
    while (started < killRounds || !running.empty()) {
        if (started < killRounds && running.size() < killedAtOnce) {
            running.push_back(std::make_unique<KilledSession>(static_cast<unsigned int>(random())));
            ++started;
        }
        for (auto it = running.begin(); it != running.end();) {
            if ((*it)->isDue()) {
                recovered += (*it)->killAndCheck() ? 1 : 0;
                it = running.erase(it);
            } else {
                ++it;
            }
        }
        QTest::qWait(1);
    }
    EXPECT_GT(recovered, killRounds / 4);
}

} // namespace
