#pragma once

#include <QPointer>
#include <QWidget>

/// Keeps a visible widget from painting for the time of a scope. Scopes may be nested, and the widget may end in one.
class UpdatesSuspended
{
public:
    explicit UpdatesSuspended(QWidget* widget)
        : m_widget(widget->isVisible() && widget->updatesEnabled() ? widget : nullptr)
    {
        if (m_widget)
            m_widget->setUpdatesEnabled(false);
    }
    ~UpdatesSuspended()
    {
        if (m_widget)
            m_widget->setUpdatesEnabled(true);
    }
    UpdatesSuspended(const UpdatesSuspended&) = delete;
    UpdatesSuspended& operator=(const UpdatesSuspended&) = delete;

private:
    QPointer<QWidget> m_widget;
};
