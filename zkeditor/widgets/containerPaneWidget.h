#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/paneWidget.h"

class QWidget;

/// Binds the contents of a widget. Group-like widgets that hold observers embed one.
class ZKEDITOR_EXPORT ContainerPaneWidget : public PaneWidget
{
public:
    /// The widget must not be null and must outlive this object, which does not own it.
    explicit ContainerPaneWidget(QWidget* w);

    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;

private:
    QWidget* const m_container;
};
