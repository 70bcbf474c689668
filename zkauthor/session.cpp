#include "zkauthor/session.h"

#include "zkauthor/mainWindow.h"
#include "zkauthor/palettes.h"
#include "zkauthor/windowSuccession.h"
#include "zkcore/services/languages.h"
#include "zkeditor/settingsService.h"

Session::Session() : m_window(std::make_unique<MainWindow>())
{
    followWindow();
}

Session::~Session() = default;

void Session::followWindow()
{
    // Queued: the choice is made in a dialog of the window, which must not go before the dialog has returned.
    connect(m_window.get(), &MainWindow::languageChosen, this, &Session::changeLanguage, Qt::QueuedConnection);
}

void Session::changeLanguage(const QString& localeName)
{
    m_window->palettes()->commitPendingEdit();
    m_window->setUpdatesEnabled(false);
    Languages::use(localeName);
    auto next = std::make_unique<MainWindow>(nullptr, m_window->files());
    if (SettingsService::exists())
        SettingsService::instance()->setWindow(next.get());
    next->followSettings();
    succeedWindow(*m_window, *next);
    m_window.swap(next);
    followWindow();
    Q_EMIT windowReplaced(m_window.get());
}
