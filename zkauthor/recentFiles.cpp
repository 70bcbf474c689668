#include "zkauthor/recentFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

namespace {

const QString recentKey = QStringLiteral("recentFiles");

QSettings recentSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("zkauthor"),
                     QStringLiteral("zkauthor"));
}

} // namespace

RecentFiles::RecentFiles(QObject* parent) : QObject(parent)
{
    read();
}

void RecentFiles::read()
{
    QSettings settings = recentSettings();
    m_files = settings.value(recentKey).toStringList();
    m_files.removeAll(QString());
    m_files = m_files.mid(0, maximum);
}

void RecentFiles::write() const
{
    QSettings settings = recentSettings();
    settings.setValue(recentKey, m_files);
}

void RecentFiles::add(const QString& fileName)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
    read();
    m_files.removeAll(path);
    m_files.prepend(path);
    m_files = m_files.mid(0, maximum);
    write();
}

void RecentFiles::remove(const QString& fileName)
{
    read();
    m_files.removeAll(QFileInfo(fileName).absoluteFilePath());
    write();
}

void RecentFiles::attachTo(QMenu* menu)
{
    fill(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        read();
        fill(menu);
    });
}

void RecentFiles::fill(QMenu* menu)
{
    menu->clear();
    for (qsizetype i = 0; i < m_files.size(); ++i) {
        const QString file = m_files.at(i);
        QString text = QDir::toNativeSeparators(file);
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction* action = menu->addAction(QStringLiteral("&%1 %2").arg(i + 1).arg(text));
        connect(action, &QAction::triggered, this, [this, file] { Q_EMIT chosen(file); });
    }
    if (m_files.isEmpty())
        menu->addAction(tr("No recent files"))->setEnabled(false);
}
