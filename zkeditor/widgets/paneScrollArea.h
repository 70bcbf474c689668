#pragma once

#include "zkeditor/export.h"

#include <QScrollArea>

/// Lets a pane scroll when it is higher than the space it gets. Asks for as much space as the pane would, but makes do
/// with little.
class ZKEDITOR_EXPORT PaneScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit PaneScrollArea(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
};
