// The main() of every test program: an application without a display, in plain English, in a home folder of its own.
#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>
#include <sys/resource.h>

namespace {

/// Test programs run side by side, and programs that they start share their home: so each has its own.
/// A program started by one that has a home already (a death test, say) stays in that.
std::unique_ptr<QTemporaryDir> makeHomeOfTests()
{
    if (!qEnvironmentVariableIsEmpty("ZK_TEST_HOME"))
        return nullptr;
    auto home = std::make_unique<QTemporaryDir>();
    const QByteArray path = home->path().toLocal8Bit();
    qputenv("ZK_TEST_HOME", path);
    qputenv("HOME", path);
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        qunsetenv(variable);
    return home;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const std::unique_ptr<QTemporaryDir> home = makeHomeOfTests();
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zktest"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
