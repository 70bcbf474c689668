#include "zkcore/model/view.h"

#include <algorithm>

View::~View() = default;

ViewManager::ViewManager(QObject* parent) : QObject(parent) {}
ViewManager::~ViewManager() = default;

void ViewManager::addView(View* view)
{
    if (view && std::find(m_views.begin(), m_views.end(), view) == m_views.end())
        m_views.push_back(view);
}

void ViewManager::removeView(View* view)
{
    std::erase(m_views, view);
    if (m_focused == view)
        setFocusedView(m_views.empty() ? nullptr : m_views.back());
}

void ViewManager::setFocusedView(View* view)
{
    if (m_focused == view || (view && std::find(m_views.begin(), m_views.end(), view) == m_views.end()))
        return;
    View* before = m_focused;
    m_focused = view;
    Q_EMIT viewChanged(before, view);
}

Space ViewManager::getFocusedSpace() const
{
    return m_focused ? m_focused->space() : Space();
}

void ViewManager::notifySpaceChanged(View* view)
{
    if (view && view == m_focused)
        Q_EMIT viewChanged(view, view);
}
