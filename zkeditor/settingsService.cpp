// Preferences in a text file of the user's configuration folder.
#include "zkeditor/settingsService.h"

#include "zkcore/base/assert.h"
#include "zkcore/values/value.h"

#include <QDockWidget>
#include <QGuiApplication>
#include <QMainWindow>
#include <QRect>
#include <QScreen>
#include <QStringList>
#include <QToolBar>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <optional>

namespace {

const QString keyX = QStringLiteral("/x");
const QString keyY = QStringLiteral("/y");
const QString keyWidth = QStringLiteral("/width");
const QString keyHeight = QStringLiteral("/height");
const QString keyVisible = QStringLiteral("/visible");
const QString keyMaximised = QStringLiteral("/maximised");
const QString keyDockWindows = QStringLiteral("/DockWindows");
const QString keyRecentUrls = QStringLiteral("/RecentUrls");
const QString keyModelsBrowser = QStringLiteral("/ModelsBrowser");

const QRect defaultWindowRect(QPoint(100, 100), QPoint(699, 599));
// A narrower or lower window could hardly be found and grasped.
constexpr int smallestWidgetSide = 100;

/// The store, opened anew for each access, as other runs of the program write it too.
class SettingsStore
{
public:
    SettingsStore(QSettings::Scope scope, const QString& productKey)
        : m_settings(QSettings::IniFormat, scope, SettingsService::domainKey, productKey)
    {
        m_settings.setFallbacksEnabled(false);
    }

    QSettings& settings() { return m_settings; }
    /// Whether what was written has reached the store. A file that was damaged before is written anew all the same.
    bool flush()
    {
        m_settings.sync();
        return m_settings.status() != QSettings::AccessError;
    }

private:
    QSettings m_settings;
};

bool isStorable(Value::Type type)
{
    return type == Value::INT || type == Value::DOUBLE || type == Value::BOOL || type == Value::STRING ||
           type == Value::STRINGVECTOR;
}

QStringList toStringList(const std::vector<QString>& texts)
{
    return QStringList(texts.begin(), texts.end());
}

/// No value when the entry cannot be read as one of the type: somebody may have edited the file by hand.
std::optional<Value> valueOfEntry(const QVariant& entry, Value::Type type)
{
    bool ok = true;
    switch (type) {
    case Value::INT: {
        // Of its text: the entry itself would cut numbers that are too large.
        const int number = entry.toString().toInt(&ok);
        return ok ? std::optional(Value(number)) : std::nullopt;
    }
    case Value::DOUBLE: {
        const double number = entry.toDouble(&ok);
        return ok ? std::optional(Value(number)) : std::nullopt;
    }
    case Value::BOOL: {
        const QString text = entry.toString();
        if (text == QLatin1String("true") || text == QLatin1String("false"))
            return Value(text == QLatin1String("true"));
        const int number = entry.toInt(&ok);
        return ok ? std::optional(Value(number != 0)) : std::nullopt;
    }
    case Value::STRING:
        return entry.typeId() != QMetaType::QStringList ? std::optional(Value(entry.toString())) : std::nullopt;
    default: {
        // The store gives an empty list back as nothing, and a list of one text as the text.
        const QStringList texts = entry.toStringList();
        return Value(std::vector<QString>(texts.begin(), texts.end()));
    }
    }
}

QVariant entryOfValue(const Value& value)
{
    switch (value.type()) {
    case Value::INT:
        return value.toInt();
    case Value::DOUBLE:
        return value.toDouble();
    case Value::BOOL:
        return value.toBool();
    case Value::STRING:
        return value.toQString();
    default:
        return toStringList(value.toStringVector());
    }
}

/// Whether each dock window and tool bar is in its window's layout. One that a damaged layout leaves out could not be
/// brought back by the user.
bool isEverythingPlaced(const QMainWindow& window)
{
    for (QDockWidget* dock : window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (!dock->isFloating() && window.dockWidgetArea(dock) == Qt::NoDockWidgetArea)
            return false;
    for (const QToolBar* bar : window.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        if (!bar->isFloating() && window.toolBarArea(bar) == Qt::NoToolBarArea)
            return false;
    return true;
}

} // namespace

const QString SettingsService::domainKey = QStringLiteral("zkeditor");
SettingsService* SettingsService::static_service = nullptr;

SettingsService::SettingsService(QMainWindow* window, const QString& productKey, QSettings::Scope scope)
    : m_window(window), m_productKey(productKey), m_scope(scope)
{
}

SettingsService* SettingsService::createService(QMainWindow* window, const QString& productKey, QSettings::Scope scope)
{
    ZK_ASSERT(!static_service);
    ZK_ASSERT_TEXT(window, "aw");
    static_service = new SettingsService(window, productKey, scope);
    return static_service;
}

void SettingsService::setWindow(QMainWindow* window)
{
    ZK_ASSERT(window);
    m_window = window;
}

SettingsService* SettingsService::instance()
{
    ZK_ASSERT(static_service);
    return static_service;
}

Value SettingsService::readSetting(const QString& key, const Value& def) const
{
    ZK_ASSERT(def.isValid());
    if (!isStorable(def.type()))
        qFatal("SettingsService: Attempting to read setting (%s) with unhandled data type %s", qPrintable(key),
               qPrintable(Value::typeAsString(def.type())));
    SettingsStore store(m_scope, m_productKey);
    std::optional<Value> value;
    if (store.settings().contains(fullKey(key)))
        value = valueOfEntry(store.settings().value(fullKey(key)), def.type());
    if (!value)
        qWarning("SettingsService: Failed to read setting %s", qPrintable(key));
    return value.value_or(def);
}

bool SettingsService::writeSetting(const QString& key, const Value& data)
{
    ZK_ASSERT(data.isValid());
    if (!isStorable(data.type()))
        qFatal("SettingsService: Attempting to write setting (%s) with unhandled data type %s", qPrintable(key),
               qPrintable(Value::typeAsString(data.type())));
    SettingsStore store(m_scope, m_productKey);
    store.settings().setValue(fullKey(key), entryOfValue(data));
    const bool written = store.flush();
    if (!written)
        qWarning("SettingsService: Failed to write setting %s", qPrintable(key));
    return written;
}

bool SettingsService::hasSetting(const QString& key) const
{
    return SettingsStore(m_scope, m_productKey).settings().contains(fullKey(key));
}

bool SettingsService::writeWidgetState(QWidget* widget)
{
    ZK_ASSERT(widget);
    ZK_ASSERT_TEXT(!widget->objectName().isEmpty(), "widget->name()");
    beginGroup(widget->objectName());
    bool written = true;
    if (!widget->isMaximized()) {
        // Each is tried, whether or not the others were refused.
        written &= writeSetting(keyX, Value(widget->x()));
        written &= writeSetting(keyY, Value(widget->y()));
        written &= writeSetting(keyWidth, Value(widget->width()));
        written &= writeSetting(keyHeight, Value(widget->height()));
    }
    written &= writeSetting(keyVisible, Value(widget->isVisible()));
    written &= writeSetting(keyMaximised, Value(widget->isMaximized()));
    endGroup();
    return written;
}

void SettingsService::restoreWidgetState(QWidget* widget, const QRect& defaults, bool defaultVisible)
{
    ZK_ASSERT_TEXT(!widget->objectName().isEmpty(), "widget->name()");
    beginGroup(widget->objectName());
    int x = readSetting(keyX, Value(defaults.left())).toInt();
    int y = readSetting(keyY, Value(defaults.top())).toInt();
    int width = readSetting(keyWidth, Value(defaults.width())).toInt();
    int height = readSetting(keyHeight, Value(defaults.height())).toInt();
    const bool visible = readSetting(keyVisible, Value(defaultVisible)).toBool();
    const bool maximised = readSetting(keyMaximised, Value(false)).toBool();
    endGroup();

    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize desktop = screen ? screen->virtualSize() : QSize();
    if (x < 0 || x > desktop.width())
        x = defaults.left();
    if (y < 0 || y > desktop.height())
        y = defaults.top();
    if (width < smallestWidgetSide || width > desktop.width())
        width = defaults.width();
    if (height < smallestWidgetSide || height > desktop.height())
        height = defaults.height();
    widget->resize(width, height);
    widget->move(x, y);
    if (visible && maximised)
        widget->showMaximized();
}

void SettingsService::beginGroup(const QString& group)
{
    m_group = group;
}

void SettingsService::endGroup()
{
    m_group.clear();
}

void SettingsService::restore()
{
    restoreWidgetState(m_window, defaultWindowRect, true);
    const QString layout = readSetting(keyDockWindows, Value(QString())).toQString();
    if (layout.isEmpty())
        return;
    const QByteArray before = m_window->saveState();
    if (m_window->restoreState(QByteArray::fromBase64(layout.toLatin1())) && isEverythingPlaced(*m_window))
        return;
    m_window->restoreState(before);
    qWarning("SettingsService: The layout of the dock windows in %s cannot be used", qPrintable(keyDockWindows));
}

bool SettingsService::write()
{
    const bool written = writeWidgetState(m_window);
    return writeSetting(keyDockWindows, Value(QString::fromLatin1(m_window->saveState().toBase64()))) && written;
}

std::vector<QString> SettingsService::readList(const QString& key) const
{
    return readSetting(key, Value(std::vector<QString>())).toStringVector();
}

void SettingsService::addRecentUrl(const QUrl& url)
{
    if (!url.isValid())
        return;
    const QString text = url.toString();
    std::vector<QString> urls = getRecentUrlList();
    const auto known = std::find(urls.begin(), urls.end(), text);
    if (known != urls.end())
        urls.erase(known);
    urls.insert(urls.begin(), text);
    // The file may have been given more by hand.
    if (urls.size() > recentUrlLimit)
        urls.resize(recentUrlLimit);
    writeSetting(keyRecentUrls, Value(urls));
}

void SettingsService::removeRecentUrl(const QUrl& url)
{
    std::vector<QString> urls = getRecentUrlList();
    if (std::erase(urls, url.toString()) > 0)
        writeSetting(keyRecentUrls, Value(urls));
}

std::vector<QString> SettingsService::getRecentUrlList() const
{
    return readList(keyRecentUrls);
}

void SettingsService::addModelsBrowserDirectory(const QString& dir)
{
    std::vector<QString> folders = getModelsBrowserDirectories();
    if (std::find(folders.begin(), folders.end(), dir) == folders.end())
        folders.push_back(dir);
    writeSetting(keyModelsBrowser, Value(folders));
}

void SettingsService::removeModelsBrowserDirectory(const QString& dir)
{
    std::vector<QString> folders = getModelsBrowserDirectories();
    std::erase(folders, dir);
    writeSetting(keyModelsBrowser, Value(folders));
}

void SettingsService::removeAllModelsBrowserDirectories()
{
    writeSetting(keyModelsBrowser, Value(std::vector<QString>()));
}

std::vector<QString> SettingsService::getModelsBrowserDirectories() const
{
    return readList(keyModelsBrowser);
}
