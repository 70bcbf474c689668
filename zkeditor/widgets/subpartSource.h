#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/paneWidget.h"

#include <QPointer>
#include <set>
#include <vector>

class DocumentImpl;
class NodeImpl;
class QWidget;

/// A pane widget in which the user chooses subparts. In a group box of observers all others in the box are bound to the
/// chosen subparts, not to the nodes that the box is bound to.
class ZKEDITOR_EXPORT SubpartSource : public PaneWidget
{
public:
    /// The first one in a container; null when there is none. Looks through plain widgets and layouts only.
    static SubpartSource* in(QWidget* container);

    /// Binds this source to the nodes, and everything else in the container to what is chosen in it. Without a choice
    /// the others are disabled. May run any slot.
    void bindContainer(QWidget* container, DocumentImpl* document, const std::set<NodeImpl*>& nodes);
    /// To be called before the container's contents are unbound.
    void releaseContainer();

protected:
    SubpartSource() = default;
    ~SubpartSource() = default;

    /// This object as a widget.
    virtual QWidget* sourceWidget() = 0;
    /// The subparts that are chosen now.
    virtual std::set<NodeImpl*> chosenNodes() const = 0;
    virtual DocumentImpl* chosenDocument() const = 0;

    /// Binds the others to another choice. May run any slot, and delete anything.
    void handOn();

private:
    QPointer<QWidget> m_container;
    std::vector<QPointer<QWidget>> m_disabled; // by this source
};
