#pragma once

#include "zkeditor/export.h"

#include <QObject>

class QScrollArea;
class QWheelEvent;
class QWidget;

/// Lets a pane be scrolled past its controls: while the pane has something to scroll, the wheel over a control that has
/// not the focus turns the pane, also where the pane is at its end, so that no value changes on the way. A control with
/// the focus takes the wheel as it does elsewhere. Follows the widgets that come into the pane later; none of them
/// takes the focus because the wheel turned over it.
class ZKEDITOR_EXPORT PaneScrollFilter : public QObject
{
    Q_OBJECT

public:
    /// Owned by the area.
    explicit PaneScrollFilter(QScrollArea* area);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void adopt(QWidget* widget);
    bool filterWheel(const QWidget* widget, QWheelEvent* event) const;

    QScrollArea* m_area;
};
