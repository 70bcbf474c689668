#include "zkeditor/widgets/subpartListView.h"

#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/setNodeIndexCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/media/imageCache.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/idProvider.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/widgets/editDelegate.h"
#include "zkeditor/widgets/rowDrag.h"
#include "zkeditor/widgets/subpartModel.h"
#include "zkeditor/widgets/undoGroup.h"

#include <QAction>
#include <QCursor>
#include <QHeaderView>
#include <QIcon>
#include <QItemSelectionModel>
#include <QMenu>
#include <QSet>
#include <QTreeView>
#include <algorithm>
#include <tuple>
#include <utility>

namespace {

constexpr QSize classIconSize(16, 16);

/// The property that names a subpart in lists: its title where it has one, else its id.
PropertyKey nameKeyOf(const NodeImpl* node)
{
    return node->valueOfProperty(coreKeys::title()).toQString().isEmpty() ? coreKeys::id() : coreKeys::title();
}

/// A free id for a new subpart: the last word of its class and a number.
QString freeSubpartId(const NodeImpl* subpart)
{
    QString stem = findStringForCid(subpart->classId());
    stem = stem.mid(stem.lastIndexOf(QLatin1Char('/')) + 1);
    QSet<QString> taken;
    for (const NodeImpl* sibling : subpart->parentNode()->children())
        taken.insert(sibling->valueOfProperty(coreKeys::id()).toQString());
    int number = 1;
    while (taken.contains(stem + QString::number(number)))
        ++number;
    return stem + QString::number(number);
}

} // namespace

SubpartListView::SubpartListView(QWidget* parent, const QString& name)
    : ListEditor(parent, name), m_model(new SubpartModel(this)), m_classes(new QMenu(this))
{
    // Before the view hears of it.
    connect(m_model, &SubpartModel::rowsAboutToBeRemoved, this,
            [this] { m_losing = m_losing || (m_bound && !m_chosen.empty()); });
    view()->setModel(m_model);
    view()->header()->hide();
    view()->setDragDropMode(QAbstractItemView::InternalMove);
    view()->setDragDropOverwriteMode(false);
    view()->setDefaultDropAction(Qt::MoveAction);
    std::tie(m_add, m_remove) = addPlusMinus(
        tr("Add"), [this] { addSubpart(); }, tr("Remove"), [this] { removeSelected(); });
    addMoveButtons([this](int by) { moveSelected(by); });
    editDelegate()->setCheck(
        [this](const QModelIndex& index, const QString& text) { return refusalOf(index.row(), text); });
    connect(m_model, &SubpartModel::renameAsked, this, &SubpartListView::rename);
    connect(m_model, &SubpartModel::moveAsked, this, &SubpartListView::moveRows);
    connect(m_model, &SubpartModel::synced, this, &SubpartListView::onSynced);
    connect(view()->selectionModel(), &QItemSelectionModel::selectionChanged, this, &SubpartListView::follow);
    setEnabled(false);
}

QString SubpartListView::subpart() const
{
    return m_model->selector();
}

void SubpartListView::setSubpart(const QString& selector)
{
    m_model->setSelector(selector);
}

// Binding

void SubpartListView::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const std::vector<InstanceId> chosen = m_chosen;
    m_bound = false; // for now: what is chosen is told once, at the end
    m_toSelect.clear();
    setMessage({});
    if (!m_supportsMultipleProps && nodes.size() > 1) {
        unbind();
        return;
    }
    m_model->bind(document, nodes);
    setEnabled(!m_model->parts().empty());
    if (accessibleName().isEmpty())
        setAccessibleName(tr("Subparts"));
    view()->setAccessibleName(accessibleName());
    QList<int> rows;
    for (const InstanceId id : chosen) {
        if (const int row = m_model->rowOf(id); row >= 0)
            rows.append(row);
    }
    if (rows.isEmpty() && m_model->rowCount() > 0)
        rows.append(0);
    selectRows(rows);
    m_bound = true;
    updateActions();
    follow();
}

void SubpartListView::unbind()
{
    m_bound = false;
    m_model->unbind();
    setEnabled(false);
}

bool SubpartListView::isWriteable() const
{
    const std::vector<PartImpl*> parts = m_model->parts();
    return !parts.empty() && std::none_of(parts.begin(), parts.end(), [](const PartImpl* part) {
        return part->isEffectivelyLocked(LockPropertyValues) || part->isWithinReflection();
    });
}

void SubpartListView::updateActions()
{
    const bool writeable = m_bound && isWriteable();
    const QList<int> rows = selectedRows();
    const bool prescribed =
        std::any_of(rows.begin(), rows.end(), [this](int row) { return m_model->rowAt(row)->prescribed; });
    m_model->setEditable(writeable);
    m_add->setEnabled(writeable && !m_model->addableClasses().empty());
    m_remove->setEnabled(writeable && !rows.isEmpty() && !prescribed);
    m_remove->setToolTip(prescribed ? tr("Every part of this kind has this subpart") : tr("Remove (Del)"));
    moveUpAction()->setEnabled(writeable && !rows.isEmpty() && rows.back() >= rows.size());
    moveDownAction()->setEnabled(writeable && !rows.isEmpty() && rows.front() < m_model->rowCount() - rows.size());
}

void SubpartListView::onSynced()
{
    QList<int> rows;
    for (const InstanceId id : m_toSelect) {
        if (const int row = m_model->rowOf(id); row >= 0)
            rows.append(row);
    }
    m_toSelect.clear();
    // When what was chosen is gone, its neighbour is: the fields below go on showing something.
    const bool lost = std::exchange(m_losing, false) && !view()->selectionModel()->hasSelection();
    if (rows.isEmpty() && lost && m_model->rowCount() > 0)
        rows.append(qMax(0, view()->currentIndex().row()));
    if (!rows.isEmpty())
        selectRows(rows);
    updateActions();
    follow();
}

// What is chosen

void SubpartListView::follow()
{
    if (!m_bound || m_losing)
        return;
    std::vector<InstanceId> chosen;
    for (const int row : selectedRows())
        chosen.push_back(m_model->rowAt(row)->key());
    updateActions();
    if (chosen == m_chosen)
        return;
    const InstanceId first = m_chosen.empty() ? 0 : m_chosen.front();
    m_chosen = chosen;
    const QPointer<SubpartListView> alive(this);
    handOn();
    if (alive && first != (chosen.empty() ? 0 : chosen.front()))
        Q_EMIT selectedSubpartChanged(selectedSubpart());
}

Node SubpartListView::selectedSubpart() const
{
    const DocumentImpl* document = m_model->document();
    return document && !m_chosen.empty() ? Node(document->nodeById(m_chosen.front())) : Node();
}

std::set<NodeImpl*> SubpartListView::chosenNodes() const
{
    std::set<NodeImpl*> chosen;
    for (const int row : selectedRows())
        chosen.merge(m_model->nodesOf(row));
    return chosen;
}

DocumentImpl* SubpartListView::chosenDocument() const
{
    return m_model->document();
}

// Editing

void SubpartListView::addSubpart()
{
    const std::vector<ClassId> classes = m_model->addableClasses();
    if (classes.empty() || !isWriteable())
        return;
    if (classes.size() == 1) {
        addOfClass(classes.front());
        return;
    }
    m_classes->clear();
    for (const ClassId cid : classes) {
        const QPixmap icon = ImageCache::getPixmap(m_model->document()->getMetaIconForCID(cid), classIconSize, 1.0);
        m_classes->addAction(QIcon(icon), m_model->document()->getMetaLabelForCID(cid), this,
                             [this, cid] { addOfClass(cid); });
    }
    m_classes->setActiveAction(m_classes->actions().constFirst());
    m_classes->popup(mapToGlobal(rect().bottomLeft()));
}

void SubpartListView::addOfClass(ClassId cid)
{
    DocumentImpl* const document = m_model->document();
    if (!document)
        return;
    const QPointer<SubpartListView> alive(this);
    UndoGroup group(document);
    std::vector<InstanceId> parts;
    for (PartImpl* part : m_model->parts())
        parts.push_back(part->instanceId());
    InstanceId first = 0;
    for (const InstanceId id : parts) {
        NodeImpl* part = document->nodeById(id);
        if (!part)
            continue;
        const unsigned int index = part->childCount();
        if (!group.run(new AddSubpartCommand(Node(part), cid, group.pushUndo()))) {
            if (alive)
                setMessage(group.error());
            return;
        }
        part = document->nodeById(id);
        const NodeImpl* added = part ? part->getChildAt(index) : nullptr;
        if (!added)
            continue;
        first = first ? first : added->instanceId();
        auto* command = new SetValueCommand(group.pushUndo());
        command->addAddress({added->instanceId(), INVALID_CID, coreKeys::id()}, Value(freeSubpartId(added)));
        if (!group.run(command)) {
            if (alive)
                setMessage(group.error());
            return;
        }
    }
    if (!alive)
        return;
    m_toSelect = {first};
    m_model->sync();
}

void SubpartListView::removeSelected()
{
    const QList<int> rows = selectedRows();
    std::vector<Node> nodes;
    for (const int row : rows) {
        for (NodeImpl* node : m_model->nodesOf(row))
            nodes.emplace_back(node);
    }
    if (nodes.empty() || !isWriteable())
        return;
    // The row that comes to stand in the place of those that go is selected next.
    int next = rows.front();
    while (rows.contains(next))
        ++next;
    if (next >= m_model->rowCount())
        next = rows.front() - 1;
    const SubpartRow* nextRow = m_model->rowAt(next);
    const std::vector<InstanceId> toSelect(nextRow ? 1 : 0, nextRow ? nextRow->key() : 0);
    const QPointer<SubpartListView> alive(this);
    if (!execute(new DeleteNodeCommand(nodes, Command::PushUndo)) || !alive)
        return;
    m_toSelect = toSelect;
    m_model->sync();
}

QString SubpartListView::refusalOf(int row, const QString& name) const
{
    for (NodeImpl* node : m_model->nodesOf(row)) {
        if (nameKeyOf(node) != coreKeys::id())
            continue;
        if (const QString reason = IdProvider(node).reason(name); !reason.isEmpty())
            return reason;
        break; // the others have other siblings; the command looks at them
    }
    return {};
}

void SubpartListView::rename(int row, const QString& name)
{
    const std::set<NodeImpl*> nodes = m_model->nodesOf(row);
    if (nodes.empty() || !isWriteable())
        return;
    auto* command = new SetValueCommand(true);
    for (const NodeImpl* node : nodes)
        command->addAddress({node->instanceId(), INVALID_CID, nameKeyOf(node)}, Value(name));
    const QPointer<SubpartListView> alive(this);
    if (execute(command) && alive)
        m_model->sync();
}

void SubpartListView::moveSelected(int by)
{
    const QList<int> rows = selectedRows();
    if (rows.isEmpty())
        return;
    const int before = by < 0 ? qMax(rows.front() - 1, 0) : qMin(rows.back() + 2, m_model->rowCount());
    moveRows(rows, before);
}

// Among the children of a part stand others as well, so places are found beside a neighbour that is listed.
void SubpartListView::moveRows(const QList<int>& rows, int before)
{
    DocumentImpl* const document = m_model->document();
    const QList<int> order = rowDrag::orderAfter(m_model->rowCount(), rows, before);
    if (!document || !isWriteable() || std::is_sorted(order.begin(), order.end()))
        return;
    setMessage({});
    const std::vector<SubpartRow> listed = m_model->rows();
    const auto lastMoved = std::find(order.begin(), order.end(), rows.back());
    const bool atEnd = lastMoved + 1 == order.end();
    const int neighbour = atEnd ? *(lastMoved - rows.size()) : *(lastMoved + 1);
    const QPointer<SubpartListView> alive(this);
    UndoGroup group(document);
    for (size_t part = 0; part < listed.front().nodes->size(); ++part) {
        const auto nodeAt = [&](int row) {
            return document->nodeById((*listed[static_cast<size_t>(row)].nodes)[part]);
        };
        int behind = atEnd ? neighbour : -1;
        for (const int row : rows) {
            NodeImpl* node = nodeAt(row);
            const NodeImpl* beside = nodeAt(atEnd ? behind : neighbour);
            if (!node || !beside)
                continue;
            const int from = node->parentNode()->getIndexForChild(node);
            const int at = beside->parentNode()->getIndexForChild(beside) + (atEnd ? 1 : 0);
            behind = row;
            const int place = from < at ? at - 1 : at;
            if (place == from)
                continue;
            if (!group.run(new SetNodeIndexCommand(Node(node), static_cast<unsigned int>(place), group.flags()))) {
                if (alive)
                    setMessage(group.error());
                return;
            }
        }
    }
    if (alive)
        m_model->sync();
}

bool SubpartListView::execute(Command* command)
{
    const QPointer<SubpartListView> alive(this);
    const QPointer<DocumentImpl> document(m_model->document());
    const bool done = document->executeCommand(command).isValid();
    if (!done && alive && document)
        setMessage(document->lastError());
    return done;
}
