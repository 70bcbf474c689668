#pragma once

#include "zkcore/model/handles.h"
#include "zkcore/model/lockGroup.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/checkBox.h"

#include <QPointer>
#include <QTimer>
#include <set>
#include <vector>

class DocumentImpl;
class ElementImpl;
class NodeImpl;

/// Shows whether elements are locked against one kind of editing, and locks or releases all of them in one undo step. A
/// lock of the property values counts as every lock.
class ZKEDITOR_EXPORT LockUICheckBox : public CheckBox
{
    Q_OBJECT

public:
    LockUICheckBox(LockGroup group, const QString& text, QWidget* parent = nullptr, const QString& name = {});
    ~LockUICheckBox() override;

    LockGroup lockGroup() const { return m_group; }
    /// The document that the commands go to; to be set before nodes are bound.
    void setDocument(DocumentImpl* document);

    /// Shows and sets the locks of these elements of the document from now on.
    void bindNodes(const std::set<ElementImpl*>& nodes);
    void unbindNodes();
    bool isBound() const { return !m_nodes.empty(); }
    /// Whether the kind of lock makes sense for the bound elements: the size of an element that cannot be resized needs
    /// no lock.
    virtual bool isLockApplicable() const;

public Q_SLOTS:
    /// Sets the lock of all bound elements to what the box shows. Does nothing while the box only follows the model.
    void setUILocked(int state);
    /// Shows the state a little later, once for all that happens until then.
    void aggregateUpdate();
    /// Shows the state of the elements now, where the lock applies.
    void update();
    /// After a node was removed from the document: it does not count any more.
    void invalidate(Node node);

Q_SIGNALS:
    /// After the state was shown, and after what the lock applies to changed.
    void lockPropertiesChanged();

protected:
    bool contains(const NodeImpl* node) const;
    /// Some may be gone.
    const std::vector<Element>& nodes() const { return m_nodes; }

    /// After the elements were taken, before their state is shown.
    virtual void onBound();

private:
    void onLocksChanged(NodeImpl* node);
    void showState(bool locked, bool mixed);

    const LockGroup m_group;
    QPointer<DocumentImpl> m_document;
    std::vector<Element> m_nodes;
    std::vector<const NodeImpl*> m_addresses; // of the nodes, ascending; only compared
    QTimer m_updateTimer;
    bool m_allResizeable = true;
    bool m_showing = false; // the box is being made to follow the model
};
