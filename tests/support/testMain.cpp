// The main() of every test program: an application without a display, English, with settings and data of its own.
#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <gtest/gtest.h>
#include <sys/resource.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zktest"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
