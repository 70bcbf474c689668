// The tree of all nodes of a document, for people who look for faults.
#include "zkeditor/inspector.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/inspectorItem.h"
#include "zkeditor/propertyTable.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QSplitter>
#include <QTreeWidget>
#include <algorithm>
#include <memory>

Inspector::Inspector(QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::WindowCloseButtonHint | Qt::WindowMinMaxButtonsHint), m_splitter(new QSplitter),
      m_tree(new QTreeWidget), m_table(new PropertyTable)
{
    setWindowTitle(tr("Inspector"));
    setSizeGripEnabled(true);

    m_tree->setColumnCount(InspectorItem::ColumnCount);
    m_tree->setHeaderLabels({tr("Class"), tr("Id"), tr("InstanceId")});
    m_tree->setAccessibleName(tr("Nodes"));
    m_tree->setUniformRowHeights(true);
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &Inspector::onTreeSelect);
    connect(m_tree, &QTreeWidget::itemExpanded, this,
            [this](const QTreeWidgetItem* item) { noteExpanded(item, true); });
    connect(m_tree, &QTreeWidget::itemCollapsed, this,
            [this](const QTreeWidgetItem* item) { noteExpanded(item, false); });

    m_splitter->addWidget(m_tree);
    m_splitter->addWidget(m_table);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_splitter);
    resize(600, 400);
}

Inspector::~Inspector()
{
    // The tree tells of its end, row by row, when the members it is told to are gone.
    m_tree->disconnect(this);
}

void Inspector::setRootElement(const Node& root)
{
    if (root == m_root)
        return;
    disconnectNodes();
    m_tree->clear();
    m_items.clear();
    if (!m_restoring)
        m_expanded.clear();
    m_table->setNode(Node());
    m_root = root;
    NodeImpl* impl = root.impl();
    connectDocument(impl ? impl->document() : m_document.data());
    if (!impl)
        return;
    connect(impl, &NodeImpl::beingDeleted, this, &Inspector::onRootDeleted);

    // Rows are put together before the view sees them: it would look at each one otherwise.
    if (!impl->parentNode())
        m_items.reserve(static_cast<qsizetype>(m_document->nodeCount()));
    InspectorItem* top = makeItem(impl);
    buildChildrenForElement(impl, top);
    m_tree->addTopLevelItem(top);
    if (m_restoring)
        return;
    top->setExpanded(true);
    adjustSplitter();
    m_tree->setCurrentItem(top);
}

void Inspector::connectDocument(DocumentImpl* document)
{
    if (m_document && m_document != document)
        m_document->disconnect(this);
    m_document = document;
    if (!document)
        return;
    document->disconnect(this);
    connect(document, &DocumentImpl::Loaded, this, &Inspector::onDocLoaded);
    // Without a root there is nothing to follow but the document's return.
    if (!m_root.valid())
        return;
    connect(document, &DocumentImpl::ElementAdded, this, &Inspector::onElementAdded);
    connect(document, &DocumentImpl::ElementRemoved, this, &Inspector::onElementRemoved);
    connect(document, &DocumentImpl::PopupAdded, this, &Inspector::onPopupAdded);
    connect(document, &DocumentImpl::PopupRemoved, this, &Inspector::onPopupRemoved);
    connect(document, &DocumentImpl::SceneAdded, this, &Inspector::onSceneAdded);
    connect(document, &DocumentImpl::SceneRemoved, this, &Inspector::onSceneRemoved);
    connect(document, &DocumentImpl::nodeMoved, this, &Inspector::onNodeMoved);
    connect(document, &DocumentImpl::undoRedoStarted, this, &Inspector::onUndoRedoStarted);
}

void Inspector::disconnectNodes()
{
    if (NodeImpl* root = m_root.impl())
        root->disconnect(this);
    // In the order in which they were connected, which leaves the memory in better order than that of the map.
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        disconnectNodesOf(m_tree->topLevelItem(i));
}

void Inspector::disconnectNodesOf(const QTreeWidgetItem* item)
{
    const NodeImpl* node = static_cast<const InspectorItem*>(item)->node();
    PropertyImpl* id = NodeImpl::valid(node) ? node->existingProperty(coreKeys::id()) : nullptr;
    if (id)
        id->disconnect(this);
    for (int i = 0, count = item->childCount(); i < count; ++i)
        disconnectNodesOf(item->child(i));
}

InspectorItem* Inspector::makeItem(NodeImpl* node)
{
    auto* item = new InspectorItem(node);
    m_items.insert(node, item);
    if (PropertyImpl* id = node->getProperty(coreKeys::id()))
        connect(id, &PropertyImpl::ValueChanged, this, &Inspector::onIdChanged);
    return item;
}

void Inspector::buildChildrenForElement(NodeImpl* node, QTreeWidgetItem* item)
{
    QList<QTreeWidgetItem*> children;
    children.reserve(static_cast<qsizetype>(node->childCount()) + 1);
    const auto add = [&](NodeImpl* child) {
        InspectorItem* row = makeItem(child);
        buildChildrenForElement(child, row);
        children.append(row);
    };
    for (NodeImpl* child : node->children())
        add(child);
    if (node->kind() == NodeKind::Part) {
        if (PopupImpl* popup = static_cast<PartImpl*>(node)->popup())
            add(popup);
    }
    item->addChildren(children);
    int index = 0;
    for (QTreeWidgetItem* row : std::as_const(children))
        static_cast<InspectorItem*>(row)->noteRow(index++);
}

void Inspector::addChildNode(NodeImpl* parent, NodeImpl* child)
{
    if (m_items.contains(child)) {
        qWarning("FIXME - duplicate child added signal in inspector");
        return;
    }
    InspectorItem* above = m_items.value(parent);
    if (!above) {
        qWarning("Inspector: Attempting to add a node which does not have our root as an anscestor");
        return;
    }
    int index = above->childCount();
    if (child->kind() != NodeKind::Popup) {
        // Its pop-up is the last row of a part.
        if (parent->kind() == NodeKind::Part && m_items.contains(static_cast<PartImpl*>(parent)->popup()))
            --index;
        index = std::clamp(parent->getIndexForChild(child), 0, index);
    }
    indexOf(above); // the toolkit would search for it
    InspectorItem* item = makeItem(child);
    above->insertChild(index, item);
    item->noteRow(index);
}

void Inspector::removeChildNode(NodeImpl* node)
{
    InspectorItem* item = m_items.value(node);
    if (!item) {
        qWarning("FIXME - child not found in inspector");
        return;
    }
    // Nothing is selected after the selected node went; the table is empty then.
    for (const QTreeWidgetItem* above = m_tree->currentItem(); above; above = above->parent()) {
        if (above == item) {
            m_tree->setCurrentItem(nullptr);
            break;
        }
    }
    if (m_table->node() == Node(node))
        m_table->setNode(Node());
    forgetItemsBelow(item);
    m_items.remove(node);
    if (PropertyImpl* id = node->existingProperty(coreKeys::id()))
        id->disconnect(this);
    if (const QTreeWidgetItem* above = item->parent())
        indexOf(static_cast<const InspectorItem*>(above));
    item->takeFromParent();
    delete item;
}

void Inspector::forgetItemsBelow(const QTreeWidgetItem* item)
{
    for (int i = 0; i < item->childCount(); ++i) {
        const auto* child = static_cast<const InspectorItem*>(item->child(i));
        forgetItemsBelow(child);
        m_items.remove(child->node());
    }
}

void Inspector::onElementAdded(Element element)
{
    if (ElementImpl* impl = element.impl())
        addChildNode(impl->parentNode(), impl);
}

void Inspector::onElementRemoved(Element element)
{
    if (ElementImpl* impl = element.impl())
        removeChildNode(impl);
}

void Inspector::onSceneAdded(Scene scene)
{
    if (SceneImpl* impl = scene.impl())
        addChildNode(impl->parentNode(), impl);
}

void Inspector::onSceneRemoved(Scene scene)
{
    if (SceneImpl* impl = scene.impl())
        removeChildNode(impl);
}

void Inspector::onPopupAdded(Popup popup)
{
    if (PopupImpl* impl = popup.impl())
        addChildNode(impl->parentNode(), impl);
}

void Inspector::onPopupRemoved(Popup popup)
{
    if (PopupImpl* impl = popup.impl())
        removeChildNode(impl);
}

void Inspector::onNodeMoved(NodeImpl* node)
{
    InspectorItem* item = m_items.value(node);
    QTreeWidgetItem* above = item ? item->parent() : nullptr;
    if (!above)
        return;
    const NodeImpl* selected = m_table->node().impl();
    item->takeFromParent();
    const int index = std::clamp(node->parentNode()->getIndexForChild(node), 0, above->childCount());
    above->insertChild(index, item);
    item->noteRow(index);
    expandAgain(item);
    if (const InspectorItem* again = m_items.value(selected))
        m_tree->setCurrentIndex(indexOf(again));
}

void Inspector::onIdChanged(Property property, Value value)
{
    InspectorItem* item = m_items.value(property.owner().impl());
    if (!item) {
        qWarning("Inspector: Attempting to set id of unknown node");
        return;
    }
    indexOf(item); // the toolkit would search for it
    item->setId(value.toQString());
}

void Inspector::onTreeSelect(QTreeWidgetItem* item)
{
    const auto* row = dynamic_cast<InspectorItem*>(item);
    if (item && (!row || m_items.value(row->node()) != row))
        qFatal("got selection of unknown item in tree!");
    m_table->setNode(row ? Node(const_cast<NodeImpl*>(row->node())) : Node());
}

void Inspector::onRootDeleted(Node root)
{
    ZK_ASSERT(root == m_root);
    setRootElement(Node());
}

void Inspector::onUndoRedoStarted()
{
    m_selectedBefore = m_table->node().instanceId();
    m_scrolledBefore = m_tree->verticalScrollBar()->value();
    m_restoring = true;
    setRootElement(Node());
}

void Inspector::onDocLoaded()
{
    ZK_ASSERT(!m_root.valid());
    auto* document = qobject_cast<DocumentImpl*>(sender());
    if (!document)
        qFatal("Inspector: Loaded() came from something that is no document");
    setRootElement(Node(document->getModel()));
    if (!m_restoring)
        return;
    m_restoring = false;
    restoreView(m_selectedBefore, m_scrolledBefore);
}

void Inspector::restoreView(InstanceId selected, int scrolled)
{
    const QSet<InstanceId> expanded = m_expanded;
    for (const InstanceId id : expanded) {
        if (const InspectorItem* item = m_items.value(m_document->nodeById(id)))
            m_tree->expand(indexOf(item));
    }
    const InspectorItem* item = m_items.value(m_document->nodeById(selected));
    if (!item)
        item = static_cast<const InspectorItem*>(m_tree->topLevelItem(0));
    m_tree->setCurrentIndex(indexOf(item));
    m_tree->verticalScrollBar()->setValue(scrolled);
}

void Inspector::noteExpanded(const QTreeWidgetItem* item, bool expanded)
{
    const InstanceId id = static_cast<const InspectorItem*>(item)->instanceId();
    if (!expanded) {
        m_expanded.remove(id);
        return;
    }
    m_expanded.insert(id);
    // Deeper rows begin further in.
    if (m_restoring)
        return;
    const int before = m_tree->columnWidth(InspectorItem::ClassColumn);
    m_tree->resizeColumnToContents(InspectorItem::ClassColumn);
    if (m_tree->columnWidth(InspectorItem::ClassColumn) < before)
        m_tree->setColumnWidth(InspectorItem::ClassColumn, before);
}

void Inspector::expandAgain(const QTreeWidgetItem* item)
{
    const auto* row = static_cast<const InspectorItem*>(item);
    if (m_expanded.contains(row->instanceId()))
        m_tree->expand(indexOf(row));
    for (int i = 0; i < item->childCount(); ++i)
        expandAgain(item->child(i));
}

QModelIndex Inspector::indexOf(const InspectorItem* item) const
{
    // The view finds a row's place by a search among its siblings unless it was asked for that place before.
    const auto* above = static_cast<const InspectorItem*>(item->parent());
    if (above) {
        const NodeImpl* parent = above->node();
        int row = parent->getIndexForChild(item->node());
        if (row < 0)
            row = above->childCount() - 1; // a pop-up
        const QModelIndex index = m_tree->model()->index(row, 0, indexOf(above));
        if (m_tree->itemFromIndex(index) == item)
            return index;
    }
    return m_tree->indexFromItem(item);
}

void Inspector::adjustSplitter()
{
    QHeaderView* header = m_tree->header();
    header->setStretchLastSection(false);
    const int least[] = {30, 12, 11};
    const int letter = fontMetrics().averageCharWidth();
    int share = 0;
    for (int column = 0; column < InspectorItem::ColumnCount; ++column) {
        m_tree->resizeColumnToContents(column);
        header->resizeSection(column, std::max(header->sectionSize(column), least[column] * letter));
        share += header->sectionSize(column);
    }
    m_splitter->setSizes({share, std::max(m_splitter->width() - m_splitter->handleWidth() - share, 1)});
    header->setStretchLastSection(true);
}
