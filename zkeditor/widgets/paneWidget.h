#pragma once

#include "zkeditor/export.h"

#include <set>

class DocumentImpl;
class NodeImpl;
class QObject;

/// What can be bound to nodes when it stands in a form: the observers, and the containers that bind their own contents.
class ZKEDITOR_EXPORT PaneWidget
{
public:
    /// Shows and edits the nodes of the document from now on, until unbind() or the next bind(). The nodes must be
    /// alive.
    virtual void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) = 0;
    /// Lets go of what bind() took hold of; harmless when nothing is bound.
    virtual void unbind() = 0;

    /// Gives every widget below `parent` the product's form font and binds every pane widget there. Does not look into
    /// a pane widget, which binds its own contents. Binding may run any slot; children that such a slot deletes are
    /// passed over.
    static void bindChildren(QObject* parent, DocumentImpl* document, const std::set<NodeImpl*>& nodes);
    /// Unbinds every pane widget that bindChildren() would bind.
    static void unbindChildren(QObject* parent);

protected:
    PaneWidget() = default;
    PaneWidget(const PaneWidget&) = default;
    PaneWidget& operator=(const PaneWidget&) = default;
    ~PaneWidget() = default; // never deleted through this interface
};
