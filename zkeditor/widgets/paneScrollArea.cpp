#include "zkeditor/widgets/paneScrollArea.h"

#include "zkeditor/widgets/paneScrollFilter.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>

PaneScrollArea::PaneScrollArea(QWidget* parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    viewport()->setAutoFillBackground(false);
    new PaneScrollFilter(this);
}

QSize PaneScrollArea::sizeHint() const
{
    return widget() ? widget()->sizeHint().expandedTo(widget()->minimumSizeHint()) : QSize(0, 0);
}

QSize PaneScrollArea::minimumSizeHint() const
{
    // Room for the bar from the start: showing it must not push the pane's right side out of sight.
    constexpr int leastHeight = 80;
    if (!widget())
        return {0, 0};
    const QSize pane = widget()->minimumSizeHint().expandedTo(widget()->minimumSize());
    return {pane.width() + verticalScrollBar()->sizeHint().width(), std::min(pane.height(), leastHeight)};
}

bool PaneScrollArea::event(QEvent* event)
{
    const bool handled = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return handled;
}
