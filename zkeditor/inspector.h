#pragma once

#include "zkcore/model/handles.h"
#include "zkcore/values/value.h"
#include "zkeditor/export.h"

#include <QDialog>
#include <QHash>
#include <QPointer>
#include <QSet>

class DocumentImpl;
class InspectorItem;
class NodeImpl;
class PropertyTable;
class QSplitter;
class QTreeWidget;
class QTreeWidgetItem;

/// A debugging window: the tree of all nodes below a root, beside the properties of the one selected there. Follows the
/// document. While an undo or redo runs it has no root; afterwards it shows the whole document, with the same nodes
/// expanded and the same one selected.
class ZKEDITOR_EXPORT Inspector : public QDialog
{
    Q_OBJECT

public:
    explicit Inspector(QWidget* parent = nullptr);
    ~Inspector() override;

    /// The node at the top of the tree; an invalid handle empties it.
    void setRootElement(const Node& root);
    Node rootElement() const { return m_root; }

private:
    void onTreeSelect(QTreeWidgetItem* item);
    void onElementAdded(Element element);
    void onElementRemoved(Element element);
    void onSceneAdded(Scene scene);
    void onSceneRemoved(Scene scene);
    void onPopupAdded(Popup popup);
    void onPopupRemoved(Popup popup);
    void onRootDeleted(Node root);
    void onDocLoaded();
    void onIdChanged(Property property, Value value);
    void onUndoRedoStarted();
    void onNodeMoved(NodeImpl* node);

    InspectorItem* makeItem(NodeImpl* node);
    void buildChildrenForElement(NodeImpl* node, QTreeWidgetItem* item);
    void addChildNode(NodeImpl* parent, NodeImpl* child);
    void removeChildNode(NodeImpl* node);
    void adjustSplitter();

    void connectDocument(DocumentImpl* document);
    void disconnectNodes();
    void disconnectNodesOf(const QTreeWidgetItem* item);
    void forgetItemsBelow(const QTreeWidgetItem* item);
    void noteExpanded(const QTreeWidgetItem* item, bool expanded);
    void expandAgain(const QTreeWidgetItem* item);
    void restoreView(InstanceId selected, int scrolled);
    QModelIndex indexOf(const InspectorItem* item) const;

    Node m_root;
    QPointer<DocumentImpl> m_document; // connected to, also while there is no root
    QHash<const NodeImpl*, InspectorItem*> m_items;
    QSet<InstanceId> m_expanded;
    InstanceId m_selectedBefore = 0;
    int m_scrolledBefore = 0;
    bool m_restoring = false;
    QSplitter* m_splitter;
    QTreeWidget* m_tree;
    PropertyTable* m_table;
};
