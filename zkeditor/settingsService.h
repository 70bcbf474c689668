#pragma once

#include "zkeditor/export.h"

#include <QSettings>
#include <QString>
#include <vector>

class QMainWindow;
class QRect;
class QUrl;
class QWidget;
class Value;

/// The one place where preferences are kept between runs: the main window's place and docks, recent documents, the
/// folders of the models browser, and typed values of any caller. Nothing is cached: each call goes to the store.
/// GUI thread only.
class ZKEDITOR_EXPORT SettingsService
{
public:
    /// The first part of the store's place, before the product key.
    static const QString domainKey;
    /// Recent URLs kept.
    static constexpr size_t recentUrlLimit = 4;

    /// Makes the service of this process; it is never destroyed. The window is not owned, must have an object name (the
    /// group of its settings), and must live as long as restore() and write() are called. A second service and a null
    /// window are fatal.
    static SettingsService* createService(QMainWindow* window, const QString& productKey, QSettings::Scope scope);
    /// Another main window takes the first one's place; it must be as that had to be.
    void setWindow(QMainWindow* window);
    const QMainWindow* window() const { return m_window; }
    /// Fatal before createService().
    static SettingsService* instance();
    /// For widgets that also live without a service (in a form designer, say).
    static bool exists() { return static_service != nullptr; }

    /// Gives the main window its place, size and docks of the last run, or 600 by 500 pixels at 100, 100. What does not
    /// fit the desktop any more is replaced by the default. A window that was maximised is shown; other windows are
    /// not. A layout of docks that cannot be understood leaves them as they are, with a warning.
    void restore();
    /// Keeps the main window's place, size and docks; false when any of it was refused. Call it before the window
    /// closes.
    bool write();

    /// The value kept under the key ("/Group/Name"), of the default's type; the default, with a warning, when there is
    /// none or it is of another type. The default must be an INT, DOUBLE, BOOL, STRING or STRINGVECTOR; other types are
    /// fatal.
    Value readSetting(const QString& key, const Value& def) const;
    /// Writes at once; types as above. False, with a warning, when the store cannot be written.
    bool writeSetting(const QString& key, const Value& data);
    /// Whether something is kept under the key; no warning when not.
    bool hasSetting(const QString& key) const;

    /// Puts the URL first; the oldest goes when there are more than four. Invalid URLs are ignored.
    void addRecentUrl(const QUrl& url);
    /// For one that cannot be opened any more.
    void removeRecentUrl(const QUrl& url);
    /// Most recent first.
    std::vector<QString> getRecentUrlList() const;

    /// Appends the folder unless it is in the list.
    void addModelsBrowserDirectory(const QString& dir);
    void removeModelsBrowserDirectory(const QString& dir);
    void removeAllModelsBrowserDirectories();
    /// In the order in which they were added.
    std::vector<QString> getModelsBrowserDirectories() const;

private:
    SettingsService(QMainWindow* window, const QString& productKey, QSettings::Scope scope);
    ~SettingsService() = default;

    void restoreWidgetState(QWidget* widget, const QRect& defaults, bool defaultVisible);
    bool writeWidgetState(QWidget* widget);
    void beginGroup(const QString& group);
    void endGroup();
    QString fullKey(const QString& key) const { return m_group + key; }
    std::vector<QString> readList(const QString& key) const;

    static SettingsService* static_service;

    QMainWindow* m_window;
    QString m_productKey;
    QSettings::Scope m_scope;
    QString m_group;
};
