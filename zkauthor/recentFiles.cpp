#include "zkauthor/recentFiles.h"

#include "zkcore/values/value.h"
#include "zkeditor/settingsService.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QUrl>

RecentFiles::RecentFiles(QObject* parent) : QObject(parent) {}

QStringList RecentFiles::files() const
{
    QStringList files;
    // On the first run there is no list yet, which is nothing to warn of.
    if (!SettingsService::exists() || !SettingsService::instance()->hasSetting(QStringLiteral("/RecentUrls")))
        return files;
    for (const QString& url : SettingsService::instance()->getRecentUrlList()) {
        const QString file = QUrl(url).toLocalFile();
        if (!file.isEmpty())
            files.append(file);
    }
    return files;
}

void RecentFiles::add(const QString& fileName)
{
    if (SettingsService::exists())
        SettingsService::instance()->addRecentUrl(QUrl::fromLocalFile(QFileInfo(fileName).absoluteFilePath()));
}

void RecentFiles::remove(const QString& fileName)
{
    if (SettingsService::exists())
        SettingsService::instance()->removeRecentUrl(QUrl::fromLocalFile(QFileInfo(fileName).absoluteFilePath()));
}

void RecentFiles::attachTo(QMenu* menu)
{
    fill(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fill(menu); });
}

void RecentFiles::fill(QMenu* menu)
{
    menu->clear();
    const QStringList recent = files();
    for (qsizetype i = 0; i < recent.size(); ++i) {
        const QString& file = recent.at(i);
        QString text = QDir::toNativeSeparators(file);
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction* action = menu->addAction(QStringLiteral("&%1 %2").arg(i + 1).arg(text));
        connect(action, &QAction::triggered, this, [this, file] { Q_EMIT chosen(file); });
    }
    if (recent.isEmpty())
        menu->addAction(tr("No recent files"))->setEnabled(false);
}
