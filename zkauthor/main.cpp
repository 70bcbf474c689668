// Start-up of the host: command line, message handler, crash handler, main window.
#include "zkauthor/checkForms.h"
#include "zkauthor/darkPalette.h"
#include "zkauthor/documentFiles.h"
#include "zkauthor/mainWindow.h"
#include "zkauthor/preferences.h"
#include "zkauthor/screenshot.h"
#include "zkauthor/session.h"
#include "zkauthor/startOptions.h"
#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkcore/services/crashHandler.h"
#include "zkcore/services/languages.h"
#include "zkeditor/debugConsole.h"
#include "zkeditor/msgHandlers.h"
#include "zkeditor/settingsService.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPalette>
#include <QSettings>
#include <QStandardPaths>
#include <cstdio>

namespace {

/// The language of the preferences. Widgets take it over when they are made, so the store is asked before the window is
/// there that the settings service wants to know.
QString preferredLanguage()
{
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, SettingsService::domainKey,
                             QStringLiteral("zkauthor"));
    return settings.value(QStringLiteral("Preferences/Language")).toString();
}

// The console outlives the windows, and speaks the language of each.
void nameConsole()
{
    DebugConsole::getDebugConsole().setWindowTitle(QApplication::translate("main", "Messages - zkauthor"));
}

void printError(const QString& text)
{
    std::fprintf(stderr, "zkauthor: %s\n", qPrintable(text));
}

void installHandler(StartOptions::Log log)
{
    switch (log) {
    case StartOptions::Log::Default:
        qInstallMessageHandler(DefaultMsgHandler);
        break;
    case StartOptions::Log::Stdout:
        qInstallMessageHandler(StdoutMsgHandler);
        break;
    case StartOptions::Log::Stderr:
        qInstallMessageHandler(StderrMsgHandler);
        break;
    case StartOptions::Log::File:
        qInstallMessageHandler(LogFileMsgHandler);
        break;
    case StartOptions::Log::Console:
        nameConsole();
        DebugConsole::getDebugConsole().resize(640, 240);
        DebugConsole::getDebugConsole().show();
        // The console alone must not keep the program running.
        DebugConsole::getDebugConsole().setAttribute(Qt::WA_QuitOnClose, false);
        qInstallMessageHandler(DebugConsoleMsgHandler);
        break;
    case StartOptions::Log::None:
        qInstallMessageHandler(NullOpMsgHandler);
        break;
    }
}

/// Shown beside the window, which can be used meanwhile; deletes itself.
void showMessage(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& details)
{
    auto* box = new QMessageBox(icon, QStringLiteral("zkauthor"), text, QMessageBox::Ok, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(details);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setModal(false);
    box->show();
}

} // namespace

int main(int argc, char** argv)
{
    if (StartOptions::needsNoDisplay(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("zkauthor"));
    QApplication::setApplicationName(QStringLiteral("zkauthor"));
    QApplication::setApplicationVersion(QStringLiteral(ZK_VERSION));

    QApplication::setWindowIcon(QIcon(ImageCache::getPixmap(Resource("editor/app"), QSize(128, 128), 1.0)));

    Languages::use(preferredLanguage());
    StartOptions options;
    QString error;
    if (!StartOptions::parse(application, options, error)) {
        printError(error);
        return 1;
    }
    if (!options.language.isEmpty())
        Languages::use(options.language);
    CrashHandler::install(QApplication::applicationName(), QApplication::applicationVersion());
    installHandler(options.log);
    if (!options.checkForm.isEmpty() || !options.checkPackage.isEmpty())
        return checkForms(options);
    const QString crashReport = CrashHandler::previousCrashReport();
    const QString crashText =
        QApplication::translate("main", "zkauthor crashed last time. A report is in the file %1.").arg(crashReport);

    if (!options.screenshot.isEmpty()) {
        if (!crashReport.isEmpty())
            printError(crashText);
        if (takeScreenshot(options, error))
            return 0;
        printError(error);
        return 1;
    }

    if (options.dark)
        QApplication::setPalette(darkPalette());
    Session session;
    MainWindow& window = *session.window();
    SettingsService* settings =
        SettingsService::createService(&window, QStringLiteral("zkauthor"), QSettings::UserScope);
    QObject::connect(&session, &Session::windowReplaced, nameConsole);
    const Preferences preferences = Preferences::read();
    if (!options.logGiven)
        installHandler(preferences.logTarget());
    window.followSettings();
    settings->restore();
    window.show();
    if (!options.document.isEmpty() && !window.openStartDocument(options.document, error))
        showMessage(&window, QMessageBox::Warning,
                    QApplication::translate("main", "%1 cannot be opened.").arg(options.document), error);
    window.files()->enableRecovery(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
                                   QStringLiteral("/recovery"));
    if (!crashReport.isEmpty())
        showMessage(&window, QMessageBox::Information, crashText, QString());
    return QApplication::exec();
}
