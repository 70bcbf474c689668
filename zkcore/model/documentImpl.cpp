#include "zkcore/model/documentImpl.h"

#include "zkcore/commands/command.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/changeMarks.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/modelMutator.h"
#include "zkcore/model/nodeRegistry.h"
#include "zkcore/model/nodeSnapshot.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/undoStep.h"
#include "zkcore/services/crashHandler.h"
#include "zkcore/services/statistic.h"
#include "zkcore/storage/documentFile.h"
#include "zkcore/storage/durableFile.h"
#include "zkcore/storage/package.h"
#include "zkcore/values/formatter.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSaveFile>
#include <QScopedValueRollback>
#include <QUndoStack>
#include <algorithm>

DocumentImpl::DocumentImpl(QObject* parent)
    : QObject(parent), m_nodeDb(new NodeDb(this)), m_undoStack(new QUndoStack(this)),
      m_registry(std::make_unique<NodeRegistry>()), m_selectionIds(std::make_shared<const std::vector<InstanceId>>())
{
    addPackagedClasses(*m_nodeDb);
    connect(m_undoStack, &QUndoStack::indexChanged, this, &DocumentImpl::undoStateChanged);
    makeEmptyContent();
}

DocumentImpl::~DocumentImpl()
{
    m_undoStack->disconnect(this);
    m_undoStack->clear();
    destroyContent();
}

void DocumentImpl::addPackagedClasses(NodeDb& nodeDb)
{
    for (const std::unique_ptr<Package>& package : Package::all()) {
        for (const std::shared_ptr<NodePrototype>& prototype : package->classes())
            nodeDb.addPrototype(prototype);
    }
}

void DocumentImpl::makeEmptyContent()
{
    NodeSnapshot root;
    root.cid = getCidForString("core/model");
    root.kind = NodeKind::Model;
    NodeSnapshot scene;
    scene.cid = getCidForString("core/scene");
    scene.kind = NodeKind::Scene;
    scene.values.push_back({INVALID_CID, coreKeys::id(), Value(QStringLiteral("scene1")), {}});
    root.children.push_back(std::move(scene));
    replaceContent(std::move(root), 1);
}

void DocumentImpl::destroyContent()
{
    if (!m_model)
        return;
    const auto visit = [](NodeImpl* node, const auto& action, const auto& self) -> void {
        for (NodeImpl* child : node->m_children)
            self(child, action, self);
        if (node->kind() == NodeKind::Part) {
            if (PopupImpl* popup = static_cast<PartImpl*>(node)->m_popup)
                self(popup, action, self);
        }
        action(node);
    };
    std::vector<NodeImpl*> nodes; // from the leaves up
    nodes.reserve(nodeCount());
    visit(
        m_model, [&nodes](NodeImpl* node) { nodes.push_back(node); }, visit);
    for (auto it = nodes.rbegin(); it != nodes.rend(); ++it)
        Q_EMIT(*it)->beingDeleted(Node(*it));
    if (!m_selection.empty()) {
        m_selection.clear();
        m_selectionIds.reset();
        Q_EMIT SelectionChanged();
    }
    for (NodeImpl* node : nodes) {
        if (node->kind() == NodeKind::Popup)
            Q_EMIT PopupRemoved(Popup(static_cast<PopupImpl*>(node)));
        else if (node->kind() == NodeKind::Scene)
            Q_EMIT SceneRemoved(Scene(static_cast<SceneImpl*>(node)));
    }
    m_model = nullptr;
    m_registry = std::make_unique<NodeRegistry>();
    m_danglingProxies.clear();
    for (NodeImpl* node : nodes)
        delete node;
}

void DocumentImpl::replaceContent(NodeSnapshot&& root, InstanceId nextId)
{
    clearHistory();
    destroyContent();
    m_nextId = std::max(nextId, 1u);
    ModelMutator mutator(*this, ModelMutator::Raw());
    mutator.giveMissingIds(root);
    // The root enters first, so that pop-ups can be listed with it while their parts are made.
    ModelMutator::Built built;
    m_model = static_cast<ModelImpl*>(mutator.buildAlone(nullptr, root, built));
    for (NodeSnapshot& child : root.children)
        mutator.build(m_model, child, built);
    mutator.linkProxies(built);
    if (m_changeMarks)
        m_changeMarks->addAll();
}

void DocumentImpl::clearHistory()
{
    m_undoStack->clear();
    if (m_undoLimit != m_undoStack->undoLimit())
        m_undoStack->setUndoLimit(m_undoLimit);
    m_openStepPending = false;
    m_unrecordedChange = false;
    m_undoStack->setClean();
}

NodeImpl* DocumentImpl::nodeById(InstanceId id) const
{
    return m_registry->byId(id);
}

PropertyImpl* DocumentImpl::propertyAt(const PropertyAddress& address) const
{
    NodeImpl* node = nodeById(address.node);
    if (!node)
        return nullptr;
    if (address.domain == INVALID_CID)
        return node->getProperty(address.key);
    auto* space = qobject_cast<SpaceImpl*>(node);
    return space ? space->getProperty(address.key, address.domain) : nullptr;
}

std::vector<ElementImpl*> DocumentImpl::reflectionsOf(const ElementImpl* original) const
{
    std::vector<ElementImpl*> result;
    for (const InstanceId id : m_registry->reflectionsOf(original->instanceId())) {
        if (NodeImpl* node = nodeById(id))
            result.push_back(static_cast<ElementImpl*>(node));
    }
    return result;
}

std::vector<ElementImpl*> DocumentImpl::connectionsAt(const std::set<InstanceId>& nodes) const
{
    std::vector<ElementImpl*> result;
    const auto endsInside = [this, &nodes](const Value& end) {
        for (const NodeImpl* at = nodeById(end.toInstanceId()); at; at = at->parentNode()) {
            if (nodes.contains(at->instanceId()))
                return true;
        }
        return false;
    };
    for (const InstanceId id : m_registry->connections()) {
        auto* connection = static_cast<ElementImpl*>(nodeById(id));
        if (endsInside(connection->valueOfProperty(coreKeys::from())) ||
            endsInside(connection->valueOfProperty(coreKeys::to())))
            result.push_back(connection);
    }
    return result;
}

InstanceId DocumentImpl::nextFreeId() const
{
    return m_registry->highestId() + 1;
}

size_t DocumentImpl::nodeCount() const
{
    return m_registry->count();
}

NodeImpl* DocumentImpl::nodeWithId(const QString& id) const
{
    return nodeById(m_registry->byTextId(id));
}

QString DocumentImpl::freeId(const QString& prefix) const
{
    return m_registry->freeTextId(prefix);
}

void DocumentImpl::setSelection(const ElementImplSet& elements)
{
    ElementImplSet wanted;
    for (ElementImpl* element : elements) {
        if (NodeImpl::valid(element) && element->document() == this && nodeById(element->instanceId()) == element)
            wanted.insert(wanted.end(), element);
    }
    if (wanted == m_selection)
        return;
    m_selection = std::move(wanted);
    m_selectionIds.reset();
    m_selectionDirty = false;
    static Statistic& time = Statistic::get(QStringLiteral("selection changes"), QStringLiteral("ms"));
    const Statistic::ScopedTimer timer(time);
    Q_EMIT SelectionChanged();
}

std::shared_ptr<const std::vector<InstanceId>> DocumentImpl::selectionIds() const
{
    if (!m_selectionIds) {
        std::vector<InstanceId> ids;
        ids.reserve(m_selection.size());
        for (const ElementImpl* element : m_selection)
            ids.push_back(element->instanceId());
        m_selectionIds = std::make_shared<const std::vector<InstanceId>>(std::move(ids));
    }
    return m_selectionIds;
}

void DocumentImpl::restoreSelection(const std::vector<InstanceId>& ids)
{
    ElementImplSet elements;
    for (const InstanceId id : ids) {
        if (auto* element = qobject_cast<ElementImpl*>(nodeById(id)))
            elements.insert(element);
    }
    const bool dropped = m_selectionDirty;
    m_selectionDirty = false;
    if (elements != m_selection)
        setSelection(elements);
    else if (dropped)
        Q_EMIT SelectionChanged();
}

void DocumentImpl::emitPendingSelectionChange()
{
    if (!m_selectionDirty)
        return;
    m_selectionDirty = false;
    Q_EMIT SelectionChanged();
}

Value DocumentImpl::executeCommand(Command* command)
{
    const std::unique_ptr<Command> owned(command);
    m_lastError.clear();
    if (!command)
        return {};
    if (m_historyBusy) {
        m_lastError = tr("Nothing can be changed while an undo or redo is under way.");
        qWarning("DocumentImpl: command %s refused during undo or redo", qPrintable(command->getXMLClass()));
        return {};
    }
    const bool outermost = !m_mutator;
    QElapsedTimer timer;
    timer.start();
    const Value result = command->execute(this);
    m_lastError = command->error();
    CrashHandler::log(command->logStatus() + QLatin1Char('\n'));
    if (!outermost)
        return result;
    static Statistic& time = Statistic::get(QStringLiteral("commands"), QStringLiteral("ms"));
    time.add(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    if (m_commandListener && result.isValid())
        m_commandListener(command, QString());
    Q_EMIT commandExecuted(command, QString());
    return result;
}

void DocumentImpl::recordChanges(std::unique_ptr<ChangeSet> changes, const Command& command,
                                 UndoStep::Selection selectionBefore)
{
    if (!changes->empty()) {
        const bool opensStep = !command.pushesUndo() && m_openStepPending;
        const bool joins = !command.pushesUndo() && !opensStep;
        const bool nothingToJoin = joins && m_undoStack->index() == 0;
        m_openStepPending = false;
        LiveText text = command.liveUndoDescription();
        if (opensStep && m_openStepDescription && !m_openStepDescription().isEmpty())
            text = m_openStepDescription;
        auto step = std::make_unique<UndoStep>(*this, text, std::move(*changes), std::move(selectionBefore),
                                               selectionIds(), joins);
        if (nothingToJoin) {
            // Not recorded; the steps that could be redone do not fit the document any more and go.
            m_unrecordedChange = true;
            step->setObsolete(true);
        } else if (joins && m_undoStack->isClean()) {
            // The history never merges into the step that was saved.
            m_undoStack->resetClean();
        }
        m_undoStack->push(step.release());
        updateModified();
        Q_EMIT undoStateChanged();
    }
    emitPendingSelectionChange();
}

void DocumentImpl::undo()
{
    if (m_undoStack->canUndo())
        runUndoRedo(true);
}

void DocumentImpl::redo()
{
    if (m_undoStack->canRedo())
        runUndoRedo(false);
}

void DocumentImpl::runUndoRedo(bool undo)
{
    if (m_undoRedoActive || m_mutator) {
        qWarning("DocumentImpl: undo or redo asked for while the document changes");
        return;
    }
    m_openStepPending = false;
    m_undoRedoActive = true;
    Q_EMIT undoRedoStarted();
    {
        const QScopedValueRollback<bool> busy(m_historyBusy, true);
        if (undo)
            m_undoStack->undo();
        else
            m_undoStack->redo();
    }
    const UndoStep::Selection selection = std::move(m_selectionToRestore);
    m_selectionToRestore.reset();
    if (selection)
        restoreSelection(*selection);
    updateModified();
    const QString word = undo ? QStringLiteral("undo") : QStringLiteral("redo");
    if (m_commandListener)
        m_commandListener(nullptr, word);
    Q_EMIT commandExecuted(nullptr, word);
    m_undoRedoActive = false;
    Q_EMIT Loaded();
}

bool DocumentImpl::canUndo() const
{
    return m_undoStack->canUndo();
}

bool DocumentImpl::canRedo() const
{
    return m_undoStack->canRedo();
}

QString DocumentImpl::textOfStep(int index) const
{
    const auto* step = static_cast<const UndoStep*>(m_undoStack->command(index));
    return step ? step->description() : QString();
}

QString DocumentImpl::undoText() const
{
    return textOfStep(m_undoStack->index() - 1);
}

QString DocumentImpl::redoText() const
{
    return textOfStep(m_undoStack->index());
}

void DocumentImpl::setUndoLimit(int steps)
{
    m_undoLimit = std::max(steps, 0);
    if (m_undoStack->count() == 0)
        m_undoStack->setUndoLimit(m_undoLimit);
}

void DocumentImpl::followPreferredUnits(const std::vector<Unit>& before)
{
    // Only what was shown has a formatter; the others begin with the units when they are. Whoever hears of a change may
    // do away with anything.
    std::vector<QPointer<PropertyImpl>> shown;
    std::vector<std::pair<ClassId, NodeImpl::PropertyStore*>> stores;
    for (NodeImpl* node : m_registry->all()) {
        stores.clear();
        node->collectStores(stores);
        for (const auto& [domain, store] : stores) {
            for (const auto& [index, property] : store->objects) {
                if (property->m_formatter)
                    shown.emplace_back(property);
            }
        }
    }
    for (const QPointer<PropertyImpl>& property : shown) {
        auto* formatter = property ? dynamic_cast<NumericalFormatter*>(property->m_formatter.get()) : nullptr;
        if (formatter)
            formatter->followPreferredUnits(before);
    }
}

void DocumentImpl::setCommandListener(CommandListener listener)
{
    m_commandListener = std::move(listener);
}

bool DocumentImpl::isModified() const
{
    return m_unrecordedChange || !m_undoStack->isClean();
}

void DocumentImpl::markUnsaved()
{
    m_unrecordedChange = true;
    updateModified();
}

void DocumentImpl::updateModified()
{
    if (const bool modified = isModified(); modified != m_wasModified) {
        m_wasModified = modified;
        Q_EMIT modifiedChanged(modified);
    }
}

Resource DocumentImpl::getResource() const
{
    if (!m_url.isValid())
        return {};
    const QString fileName = m_url.toLocalFile();
    return Resource(std::make_shared<FileREntry>(QFileInfo(fileName).fileName(), Resource::DATA, fileName));
}

bool DocumentImpl::load(const QString& fileName)
{
    m_lastError.clear();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_lastError = tr("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    if (!readContent(file, fileName))
        return false;
    file.close();
    m_url = QUrl::fromLocalFile(QFileInfo(fileName).absoluteFilePath());
    CrashHandler::setOpenDocument(fileName);
    finishLoading();
    return true;
}

bool DocumentImpl::loadFrom(QIODevice& device, const QString& name)
{
    m_lastError.clear();
    if (!readContent(device, name))
        return false;
    m_url.clear();
    finishLoading();
    return true;
}

bool DocumentImpl::recover(const QString& recoveryFile, const QString& original)
{
    m_lastError.clear();
    QFile file(recoveryFile);
    if (!file.open(QIODevice::ReadOnly)) {
        m_lastError = tr("%1: %2").arg(recoveryFile, file.errorString());
        return false;
    }
    if (!readContent(file, recoveryFile))
        return false;
    m_url = original.isEmpty() ? QUrl() : QUrl::fromLocalFile(QFileInfo(original).absoluteFilePath());
    CrashHandler::setOpenDocument(original);
    m_unrecordedChange = true;
    finishLoading();
    return true;
}

bool DocumentImpl::readContent(QIODevice& device, const QString& name)
{
    DocumentContent content;
    if (!DocumentFile::read(device, name, *m_nodeDb, content, m_lastError))
        return false;
    m_loadWarnings = content.warnings;
    m_resources.clear();
    for (const std::shared_ptr<const ResourceEntry>& entry : content.resources)
        m_resources.insert(entry->name(), entry);
    replaceContent(std::move(content.root), content.nextId);
    return true;
}

void DocumentImpl::finishLoading()
{
    updateModified();
    Q_EMIT undoStateChanged();
    Q_EMIT Loaded();
}

bool DocumentImpl::save(const QString& fileName)
{
    m_lastError.clear();
    QSaveFile file(durableFile::target(fileName));
    if (!file.open(QIODevice::WriteOnly)) {
        m_lastError = tr("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    if (!DocumentFile::write(file, *this, m_lastError)) {
        file.cancelWriting();
        m_lastError = tr("%1: %2").arg(fileName, m_lastError);
        return false;
    }
    if (!durableFile::commit(file)) {
        m_lastError = tr("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    m_url = QUrl::fromLocalFile(QFileInfo(fileName).absoluteFilePath());
    CrashHandler::setOpenDocument(fileName);
    m_unrecordedChange = false;
    m_undoStack->setClean();
    updateModified();
    Q_EMIT saved();
    return true;
}

Resource DocumentImpl::resource(const QString& name) const
{
    const auto it = m_resources.find(name);
    return it == m_resources.end() ? Resource(name) : Resource(*it);
}

std::vector<Resource> DocumentImpl::localResources() const
{
    std::vector<Resource> result;
    result.reserve(static_cast<size_t>(m_resources.size()));
    for (const std::shared_ptr<const ResourceEntry>& entry : m_resources)
        result.emplace_back(entry);
    return result;
}
