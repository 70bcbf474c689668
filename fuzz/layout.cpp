// The settings in which the main window's layout is kept. An input that begins with "[" or a letter is the settings
// file; any other is the state of docks and tool bars that the file holds.
#include "fuzz/support/harness.h"
#include "zkeditor/editPalette.h"
#include "zkeditor/settingsService.h"

#include "zkcore/values/value.h"
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QScreen>
#include <QToolBar>

namespace {

const QString productKey = QStringLiteral("zkfuzz");

/// A window as the program has one, and the place where its settings are read.
class Desk
{
public:
    static Desk& instance()
    {
        static Desk* const desk = new Desk;
        return *desk;
    }

    /// The service reads this file from now on. A new folder each time, since the store remembers what stood in one.
    void useSettings(const QByteArray& content)
    {
        const QString folder = QStringLiteral("%1/%2").arg(fuzz::folder()).arg(++m_count);
        QDir().mkpath(folder + u'/' + SettingsService::domainKey);
        fuzz::writeFile(QStringLiteral("%1/%2/%3.ini").arg(folder, SettingsService::domainKey, productKey), content);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
        if (!m_folder.isEmpty())
            QDir(m_folder).removeRecursively();
        m_folder = folder;
    }

    void reset()
    {
        m_window.showNormal();
        m_window.setGeometry(100, 100, 600, 500);
        fuzz::require(m_window.restoreState(m_state), "the window takes its first layout back");
        QApplication::sendPostedEvents();
    }

    QMainWindow& window() { return m_window; }
    SettingsService& service() { return *m_service; }

private:
    Desk()
    {
        m_window.setObjectName(QStringLiteral("mainWindow"));
        m_window.setCentralWidget(new QWidget);
        for (const char* name : {"inspector", "properties", "parts", "locks"}) {
            auto* palette = new EditPalette(&m_window, name);
            m_window.addDockWidget(m_palettes++ % 2 == 0 ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea, palette);
        }
        for (const char* name : {"file", "edit"}) {
            QToolBar* bar = m_window.addToolBar(QLatin1String(name));
            bar->setObjectName(QLatin1String(name));
            bar->addAction(QLatin1String(name));
        }
        m_window.show();
        m_state = m_window.saveState();
        m_service = SettingsService::createService(&m_window, productKey, QSettings::UserScope);
    }

    QMainWindow m_window;
    int m_palettes = 0;
    QByteArray m_state;
    SettingsService* m_service = nullptr;
    QString m_folder;
    int m_count = 0;
};

void requireUsable(QMainWindow& window)
{
    const QRect desktop = window.screen()->virtualGeometry();
    fuzz::require(window.isVisible(), "the window is there");
    fuzz::require(desktop.contains(window.pos()), "the window can be grasped");
    fuzz::require(window.width() >= 100 && window.height() >= 100, "the window has a size");
    fuzz::require(window.width() <= desktop.width() && window.height() <= desktop.height(),
                  "the window is no larger than the desktop");
    for (EditPalette* palette : window.findChildren<EditPalette*>()) {
        fuzz::require(palette->parentWidget() == &window, "the palettes stay with the window");
        fuzz::require(palette->isFloating() || window.dockWidgetArea(palette) != Qt::NoDockWidgetArea,
                      "a palette is somewhere", palette->objectName());
        if (palette->isVisible() && palette->isFloating())
            fuzz::require(desktop.intersects(palette->geometry()), "a palette that floats can be seen");
    }
}

/// Which palettes and tool bars are shown where; sizes follow from that and the window's.
QString placesOf(const QMainWindow& window)
{
    QString places;
    for (EditPalette* palette : window.findChildren<EditPalette*>())
        places += QStringLiteral("%1: %2%3%4\n")
                      .arg(palette->objectName())
                      .arg(window.dockWidgetArea(palette))
                      .arg(palette->isHidden() ? QStringLiteral(" hidden") : QString(),
                           palette->isFloating() ? QStringLiteral(" floating") : QString());
    for (QToolBar* bar : window.findChildren<QToolBar*>())
        places += QStringLiteral("%1: %2%3\n")
                      .arg(bar->objectName())
                      .arg(window.toolBarArea(bar))
                      .arg(bar->isHidden() ? QStringLiteral(" hidden") : QString());
    return places;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Desk& desk = Desk::instance();
    const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
    const bool isFile = size > 0 && (data[0] == '[' || (data[0] >= 'A' && data[0] <= 'z'));
    desk.useSettings(isFile ? input : "[General]\nDockWindows=" + input.toBase64() + '\n');
    desk.reset();
    desk.service().restore();
    QApplication::sendPostedEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    requireUsable(desk.window());
    // What else is kept there
    desk.service().getRecentUrlList();
    desk.service().getModelsBrowserDirectories();

    desk.service().write();
    const QString places = placesOf(desk.window());
    desk.reset();
    desk.service().restore();
    fuzz::require(placesOf(desk.window()) == places, "the layout that was written comes back",
                  places + u'\n' + placesOf(desk.window()));
    return 0;
}
