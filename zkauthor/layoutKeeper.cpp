#include "zkauthor/layoutKeeper.h"

#include "zkeditor/settingsService.h"

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QToolBar>

LayoutKeeper::LayoutKeeper(QMainWindow* window) : QObject(window), m_window(window)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(defaultDelay);
    connect(&m_timer, &QTimer::timeout, this, &LayoutKeeper::keep);
    window->installEventFilter(this);
    for (QDockWidget* dock : window->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        dock->installEventFilter(this);
    for (QToolBar* bar : window->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        bar->installEventFilter(this);
}

bool LayoutKeeper::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        if (!m_refused)
            m_timer.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

void LayoutKeeper::keep()
{
    // A window that is closing hides its docks; it has written them before.
    if (!SettingsService::exists() || SettingsService::instance()->window() != m_window || !m_window->isVisible() ||
        m_window->isMinimized())
        return;
    const QByteArray state = m_window->saveState();
    if (m_window->geometry() == m_geometry && m_window->isMaximized() == m_maximized && state == m_state)
        return;
    m_refused = !SettingsService::instance()->write();
    m_geometry = m_window->geometry();
    m_maximized = m_window->isMaximized();
    m_state = state;
}
