#include "zkeditor/widgets/paneScrollFilter.h"

#include <QApplication>
#include <QChildEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>
#include <cstdlib>

namespace {

void refuseWheelFocus(QWidget* widget)
{
    if (widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
}

/// What a part of a control, its buttons say, belongs to: the next one outwards that the focus can go to.
const QWidget* controlOf(const QWidget* part, const QWidget* pane)
{
    while (part != pane && part->focusPolicy() == Qt::NoFocus && !part->focusProxy())
        part = part->parentWidget();
    return part;
}

bool hasFocus(const QWidget* control)
{
    const QWidget* focus = QApplication::focusWidget();
    const QWidget* target = control;
    while (target->focusProxy())
        target = target->focusProxy();
    return focus && (target == focus || control->isAncestorOf(focus));
}

bool canScroll(const QScrollBar* bar)
{
    return bar->maximum() > bar->minimum();
}

} // namespace

PaneScrollFilter::PaneScrollFilter(QScrollArea* area) : QObject(area), m_area(area)
{
    adopt(area->viewport());
}

void PaneScrollFilter::adopt(QWidget* widget)
{
    widget->installEventFilter(this);
    refuseWheelFocus(widget);
    const auto children = widget->findChildren<QWidget*>();
    for (QWidget* child : children) {
        child->installEventFilter(this);
        refuseWheelFocus(child);
    }
}

bool PaneScrollFilter::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildPolished: { // only then a new widget has the focus policy that its constructor gives it
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (child->isWidgetType())
            adopt(static_cast<QWidget*>(child));
        return false;
    }
    case QEvent::Wheel:
        return filterWheel(static_cast<const QWidget*>(object), static_cast<QWheelEvent*>(event));
    default:
        return false;
    }
}

bool PaneScrollFilter::filterWheel(const QWidget* widget, QWheelEvent* event) const
{
    const QWidget* pane = m_area->viewport();
    // Lists and menus that a control opens are windows, and what was taken out of the pane is no longer in it.
    if (widget == pane || widget->window() != pane->window() || !pane->isAncestorOf(widget))
        return false;
    const bool sideways = std::abs(event->angleDelta().x()) > std::abs(event->angleDelta().y());
    QScrollBar* bar = sideways ? m_area->horizontalScrollBar() : m_area->verticalScrollBar();
    if (!canScroll(bar))
        return false;
    const QWidget* control = controlOf(widget, pane);
    if (control != pane && hasFocus(control))
        return false;
    QApplication::sendEvent(bar, event);
    event->accept(); // at the end of the pane as well
    return true;
}
