#include "zkeditor/settingsService.h"

#include "tests/support/messageCapture.h"
#include "zkcore/values/value.h"

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QMainWindow>
#include <QScreen>
#include <QTemporaryDir>
#include <QUrl>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Texts = std::vector<QString>;

/// A store of its own for each test, and one window for all, as there is one service in a process.
class SettingsServiceTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        window().setWindowState(Qt::WindowNoState);
        window().move(50, 60);
        window().resize(300, 200);
    }
    static QRect place() { return QRect(window().pos(), window().size()); }

    static QMainWindow& window()
    {
        static QMainWindow* window = nullptr;
        if (!window) {
            window = new QMainWindow;
            window->setObjectName("mainWindow");
            for (const char* name : {"one", "two"}) {
                auto* dock = new QDockWidget(name);
                dock->setObjectName(name);
                window->addDockWidget(Qt::LeftDockWidgetArea, dock);
            }
        }
        return *window;
    }
    static SettingsService& service()
    {
        if (!SettingsService::exists())
            SettingsService::createService(&window(), "test", QSettings::UserScope);
        return *SettingsService::instance();
    }
    /// Values kept by this process stay typed; what another run finds is their text.
    static void inAnotherRun(const std::function<void()>& action)
    {
        service();
        const bool failedBefore = testing::Test::HasFailure();
        EXPECT_EXIT(
            {
                action();
                std::_Exit(testing::Test::HasFailure() && !failedBefore ? 1 : 0);
            },
            testing::ExitedWithCode(0), "");
    }
    QString fileName() const { return folder.filePath(SettingsService::domainKey + "/test.ini"); }
    void writeFile(const QByteArray& content)
    {
        // A file of another length is another file, whatever the clock says.
        ++m_filesWritten;
        QDir().mkpath(folder.filePath(SettingsService::domainKey));
        QFile file(fileName());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content + QByteArray(m_filesWritten, '\n'));
    }
    QString stored(const QString& key) const
    {
        return QSettings(fileName(), QSettings::IniFormat).value(key).toString();
    }

    QTemporaryDir folder;

private:
    int m_filesWritten = 0;
};

using SettingsServiceDeathTest = SettingsServiceTest;

QStringList readFailures(const QStringList& keys)
{
    QStringList texts;
    for (const QString& key : keys)
        texts += "SettingsService: Failed to read setting " + key;
    return texts;
}

} // namespace

TEST_F(SettingsServiceTest, ValuesOfAllTypesComeBackInAnotherRun)
{
    const std::vector<std::pair<QString, Value>> values = {
        {"/A/int", Value(-7)},
        {"/A/double", Value(0.1 + 0.2)},
        {"/A/bool", Value(false)},
        {"/A/true", Value(true)},
        {"/A/text", Value(QString::fromUtf8("Größe, \"quoted\"; @x\n\\n %20 "))},
        {"/A/noText", Value(QString())},
        {"/A/list", Value(Texts{"a, b", "", "@Invalid()"})},
        {"/A/listOfOne", Value(Texts{"only, one"})},
        {"/A/emptyList", Value(Texts())},
    };
    inAnotherRun([&] {
        for (const auto& [key, value] : values)
            EXPECT_TRUE(service().writeSetting(key, value));
    });
    MessageCapture capture;
    for (const auto& [key, value] : values) {
        EXPECT_TRUE(service().hasSetting(key));
        const Value other = value.type() == Value::INT            ? Value(1)
                            : value.type() == Value::DOUBLE       ? Value(1.0)
                            : value.type() == Value::BOOL         ? Value(!value.toBool())
                            : value.type() == Value::STRINGVECTOR ? Value(Texts{"x"})
                                                                  : Value(QString("x"));
        EXPECT_EQ(service().readSetting(key, other), value) << key.toStdString();
    }
    EXPECT_TRUE(capture.isEmpty());
}

TEST_F(SettingsServiceTest, EntriesOfAnotherTypeGiveTheDefault)
{
    writeFile("[A]\nint=many\nhuge=99999999999\ndouble=1,5\nbool=maybe\nnumber=1\ntext=a, b\n");
    MessageCapture capture;
    EXPECT_EQ(service().readSetting("/A/int", Value(3)), Value(3));
    EXPECT_EQ(service().readSetting("/A/huge", Value(4)), Value(4));
    EXPECT_EQ(service().readSetting("/A/double", Value(2.5)), Value(2.5));
    EXPECT_EQ(service().readSetting("/A/bool", Value(true)), Value(true));
    EXPECT_EQ(service().readSetting("/A/number", Value(false)), Value(true));
    EXPECT_EQ(service().readSetting("/A/text", Value(QString("t"))), Value(QString("t")));
    EXPECT_EQ(capture.texts(), readFailures({"/A/int", "/A/huge", "/A/double", "/A/bool", "/A/text"}));
}

TEST_F(SettingsServiceTest, FirstRunPlacesTheWindowAndSaysWhatIsMissing)
{
    MessageCapture capture;
    service().restore();
    EXPECT_EQ(place(), QRect(100, 100, 600, 500));
    EXPECT_FALSE(window().isMaximized());
    EXPECT_EQ(capture.texts(),
              readFailures({"/x", "/y", "/width", "/height", "/visible", "/maximised", "/DockWindows"}));
}

TEST_F(SettingsServiceTest, PlacesOutsideTheDesktopAreMendedOneByOne)
{
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    const auto restored = [&](int x, int y, int width, int height) {
        writeFile(QString("[General]\nDockWindows=\n[mainWindow]\nx=%1\ny=%2\nwidth=%3\nheight=%4\nvisible=true\n"
                          "maximised=false\n")
                      .arg(x)
                      .arg(y)
                      .arg(width)
                      .arg(height)
                      .toLatin1());
        MessageCapture capture;
        service().restore();
        EXPECT_TRUE(capture.isEmpty());
        return place();
    };
    EXPECT_EQ(restored(0, 0, 100, 100), QRect(0, 0, 100, 100));
    EXPECT_EQ(restored(0, -1, 99, 300), QRect(0, 100, 600, 300));
    EXPECT_EQ(restored(desktop.width() + 1, desktop.height(), 400, 99), QRect(100, desktop.height(), 400, 500));
    EXPECT_EQ(restored(7, 8, desktop.width() + 1, desktop.height()), QRect(7, 8, 600, desktop.height()));
}

TEST_F(SettingsServiceTest, WindowAndDocksComeBackAndAMaximisedWindowKeepsItsNormalPlace)
{
    inAnotherRun([] {
        window().show();
        window().move(31, 42);
        window().resize(353, 264);
        window().findChild<QDockWidget*>("two")->hide();
        service().write();
        window().showMaximized();
        service().write();
    });
    EXPECT_EQ(stored("mainWindow/x"), QString("31"));
    EXPECT_EQ(stored("mainWindow/maximised"), QString("true"));
    MessageCapture capture;
    service().restore();
    EXPECT_TRUE(window().isMaximized());
    EXPECT_TRUE(window().findChild<QDockWidget*>("one")->isVisible());
    EXPECT_FALSE(window().findChild<QDockWidget*>("two")->isVisible());
    window().showNormal();
    EXPECT_EQ(place(), QRect(31, 42, 353, 264));
    window().hide();
    service().write();
    EXPECT_EQ(stored("mainWindow/visible"), QString("false"));
    EXPECT_EQ(capture.texts(QtWarningMsg).filter("SettingsService"), QStringList());
    window().findChild<QDockWidget*>("two")->show();
}

TEST_F(SettingsServiceTest, DamagedFilesGiveDefaultsAndAreWrittenAnew)
{
    const QByteArray layout = window().saveState().toBase64();
    // The last one has no place for anything.
    for (const QByteArray& bad :
         {QByteArray("garbage"), layout.left(layout.size() / 2), QByteArray("AAAA"), QByteArray("AAAA/wAAAAA=")}) {
        writeFile(
            "[mainWindow]\nx=1\ny=2\nwidth=300\nheight=300\nvisible=true\nmaximised=false\n[General]\nDockWindows=" +
            bad + "\n");
        MessageCapture capture;
        service().restore();
        EXPECT_EQ(capture.texts(),
                  QStringList("SettingsService: The layout of the dock windows in /DockWindows cannot be used"));
        EXPECT_EQ(window().saveState().toBase64(), layout);
    }
    QByteArray noise;
    for (int i = 0; i < 4000; ++i)
        noise += static_cast<char>((i * 7919) >> 3);
    writeFile(noise);
    MessageCapture capture;
    service().restore();
    EXPECT_EQ(place(), QRect(100, 100, 600, 500));
    EXPECT_EQ(capture.warnings().size(), 7);
    capture.clear();
    inAnotherRun([] { EXPECT_TRUE(service().writeSetting("/A/int", Value(5))); });
    EXPECT_EQ(service().readSetting("/A/int", Value(0)), Value(5));
    EXPECT_TRUE(capture.isEmpty());
}

TEST_F(SettingsServiceTest, RefusedWritesAreReportedAndAllAreTried)
{
    QDir().mkpath(fileName()); // a folder in the file's place
    MessageCapture capture;
    EXPECT_FALSE(service().writeSetting("/A/int", Value(1)));
    service().write();
    QStringList expected;
    for (const char* key : {"/A/int", "/x", "/y", "/width", "/height", "/visible", "/maximised", "/DockWindows"})
        expected += QString("SettingsService: Failed to write setting %1").arg(key);
    EXPECT_EQ(capture.texts(), expected);
}

TEST_F(SettingsServiceTest, RunsAtTheSameTimeKeepEachOthersValues)
{
    service();
    constexpr int runs = 4;
    constexpr int values = 15;
    const auto key = [](int run, int i) { return QString("/Run%1/%2").arg(run).arg(i); };
    std::vector<pid_t> children;
    for (int run = 0; run < runs; ++run) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            bool written = true;
            for (int i = 0; i < values; ++i)
                written &= service().writeSetting(key(run, i), Value(QString(200, 'x')));
            std::_Exit(written ? 0 : 1);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    MessageCapture capture;
    for (int run = 0; run < runs; ++run)
        for (int i = 0; i < values; ++i)
            EXPECT_EQ(service().readSetting(key(run, i), Value(QString())).toQString().size(), 200);
    EXPECT_TRUE(capture.isEmpty());
}

TEST_F(SettingsServiceTest, RecentUrlsAreFewAndNewestFirst)
{
    MessageCapture capture;
    for (const char* url : {"file:///a", "file:///b%20c,%25", "file:///c", "file:///d", "file:///e"})
        service().addRecentUrl(QUrl(url));
    service().addRecentUrl(QUrl());
    service().addRecentUrl(QUrl("file:///d"));
    EXPECT_EQ(service().getRecentUrlList(), (Texts{"file:///d", "file:///e", "file:///c", "file:///b c,%25"}));
    service().addRecentUrl(QUrl(service().getRecentUrlList().back()));
    EXPECT_EQ(service().getRecentUrlList(), (Texts{"file:///b c,%25", "file:///d", "file:///e", "file:///c"}));
    EXPECT_EQ(capture.texts(), readFailures({"/RecentUrls"}));
}

TEST_F(SettingsServiceTest, ModelsFoldersAreKeptInOrder)
{
    inAnotherRun([] {
        MessageCapture capture;
        for (const char* dir : {"/b", "/a, b", "/c", "/b"})
            service().addModelsBrowserDirectory(dir);
        service().removeModelsBrowserDirectory("/none");
    });
    EXPECT_EQ(service().getModelsBrowserDirectories(), (Texts{"/b", "/a, b", "/c"}));
    service().removeModelsBrowserDirectory("/b");
    EXPECT_EQ(service().getModelsBrowserDirectories(), (Texts{"/a, b", "/c"}));
    inAnotherRun([] { service().removeAllModelsBrowserDirectories(); });
    MessageCapture capture;
    EXPECT_EQ(service().getModelsBrowserDirectories(), Texts());
    EXPECT_TRUE(capture.isEmpty()); // an empty list is there
}

TEST_F(SettingsServiceDeathTest, MisuseIsFatal)
{
    EXPECT_DEATH(SettingsService::createService(&service() ? &window() : nullptr, "x", QSettings::UserScope),
                 "ZK_ASSERT: \"!static_service\"");
    EXPECT_DEATH(service().readSetting("/k", Value()), "ZK_ASSERT: \"def.isValid\\(\\)\"");
    EXPECT_DEATH(service().writeSetting("/k", Value()), "ZK_ASSERT: \"data.isValid\\(\\)\"");
    EXPECT_DEATH(service().readSetting("/k", Value(QColor(Qt::red))),
                 "SettingsService: Attempting to read setting \\(/k\\) with unhandled data type color");
    EXPECT_DEATH(service().writeSetting("/k", Value(zk::Point{1, 2})),
                 "SettingsService: Attempting to write setting \\(/k\\) with unhandled data type point");
    EXPECT_DEATH(
        {
            service();
            window().setObjectName(QString());
            service().write();
        },
        "ZK_ASSERT: \"widget->name\\(\\)\"");
}

TEST(SettingsServiceStartDeathTest, NothingWorksWithoutAService)
{
    // In a process of their own, where no other test has made the service.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(SettingsService::instance(), "ZK_ASSERT: \"static_service\"");
    EXPECT_DEATH(SettingsService::createService(nullptr, "x", QSettings::UserScope), "ZK_ASSERT: \"aw\"");
    GTEST_FLAG_SET(death_test_style, "fast");
}
