#include "zkeditor/widgets/childrenGate.h"

#include <QChildEvent>
#include <QPointer>
#include <QWidget>
#include <vector>

ChildrenGate::ChildrenGate(QWidget* container) : QObject(container), m_container(container)
{
    container->installEventFilter(this);
    const auto children = container->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children)
        guard(child);
}

void ChildrenGate::guard(QWidget* child)
{
    if (child->isWindow())
        return;
    child->installEventFilter(this);
    if (!m_open)
        close(child);
}

// A disabled widget without this attribute is enabled together with its parent: nobody asked for it to be disabled.
void ChildrenGate::close(QWidget* child)
{
    if (!child->isEnabled())
        return;
    child->setEnabled(false);
    child->setAttribute(Qt::WA_ForceDisabled, false);
}

void ChildrenGate::setOpen(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    std::vector<QPointer<QWidget>> children;
    const auto found = m_container->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    children.assign(found.begin(), found.end());
    const QPointer<ChildrenGate> alive(this);
    for (const QPointer<QWidget>& child : children) {
        if (!alive || m_open != open)
            return;
        if (!child || child->isWindow())
            continue;
        if (!open)
            close(child);
        else if (!child->testAttribute(Qt::WA_ForceDisabled))
            child->setEnabled(true);
    }
}

bool ChildrenGate::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_container) {
        if (event->type() == QEvent::ChildAdded) {
            QObject* child = static_cast<QChildEvent*>(event)->child();
            if (child->isWidgetType())
                guard(static_cast<QWidget*>(child));
        } else if (event->type() == QEvent::ChildRemoved) {
            static_cast<QChildEvent*>(event)->child()->removeEventFilter(this);
        }
    } else if (event->type() == QEvent::EnabledChange && !m_open && object->parent() == m_container) {
        close(static_cast<QWidget*>(object));
    }
    return false;
}
