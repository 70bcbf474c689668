#pragma once

#include "zkcore/base/export.h"
#include "zkcore/media/resource.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/handles.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/model/partsTreeStructure.h"
#include "zkcore/model/propertyAddress.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/values/value.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <functional>
#include <memory>
#include <vector>

class Command;
class ChangeMarks;
class ChangeSet;
class ModelMutator;
class NodeRegistry;
class QIODevice;
class QUndoStack;
class UndoStep;
struct NodeSnapshot;

/// A document: its nodes, classes, own resources, selection, and the history of what was done to it.
/// Everything is changed through commands; every notification is synchronous.
class ZKCORE_EXPORT DocumentImpl : public QObject
{
    Q_OBJECT

public:
    /// A new document with one empty scene; knows the classes of all packages loaded so far.
    explicit DocumentImpl(QObject* parent = nullptr);
    ~DocumentImpl() override;

    /// Enters the classes of all packages loaded so far.
    static void addPackagedClasses(NodeDb& nodeDb);

    // Contents
    ModelImpl* getModel() const { return m_model; }
    NodeDb* getNodeDb() const { return m_nodeDb; }
    /// Null when no live node has the id. Constant time.
    NodeImpl* nodeById(InstanceId id) const;
    /// The property made if need be; null when the node or the property is absent.
    PropertyImpl* propertyAt(const PropertyAddress& address) const;
    /// What a property of the file follows that is not there; kept so that saving writes it back. Invalid when there is
    /// none.
    PropertyAddress danglingProxy(const PropertyAddress& address) const { return m_danglingProxies.value(address); }
    bool hasDanglingProxies() const { return !m_danglingProxies.isEmpty(); }
    /// The live reflections of an element, in the order in which they were made.
    std::vector<ElementImpl*> reflectionsOf(const ElementImpl* original) const;
    /// The connections (elements with "from" and "to") that end at one of the nodes or at something in one. Linear in
    /// the number of connections, however many nodes are given.
    std::vector<ElementImpl*> connectionsAt(const std::set<InstanceId>& nodes) const;
    /// One more than the highest instance id in use: what a document file names as its next free id.
    InstanceId nextFreeId() const;
    /// Nodes alive, the root included.
    size_t nodeCount() const;

    /// The element with that "id" value; null when there is none (the first made of several).
    NodeImpl* nodeWithId(const QString& id) const;
    /// The first free id that begins with the prefix.
    QString freeId(const QString& prefix) const;

    /// What people call a class ("LED"), translated; empty when the class says nothing or is unknown.
    QString getMetaLabelForCID(const ClassId& cid) const;
    /// The class's icon; null resource when it has none.
    Resource getMetaIconForCID(const ClassId& cid) const;
    PartsTreeStructure getPartsTreeStructure() const;
    /// Makes a new class from a part of this document (its class becomes the base, its values the defaults, its
    /// subparts the new class's) under the label, writes it into the user's package folder, so that it is there in
    /// later runs, and adds it to the node data base. False, with a warning, when the id is taken or names no domain,
    /// or the package cannot be written.
    bool addCustomPartDefinition(unsigned int cid, PartImpl* part, const QString& label);

    /// Shows all values in the preferred units anew, to be called after setPreferredUnits(); `before` are the units
    /// preferred until then. Units that the user chose for single values, of those that either names, go as well.
    void followPreferredUnits(const std::vector<Unit>& before);

    // Selection
    ElementImplSet getSelection() const { return m_selection; }
    /// Emits SelectionChanged() when it differs. Elements of other documents and dead pointers are left out.
    void setSelection(const ElementImplSet& elements);

    // Commands and undo
    /// Takes ownership, runs the command, records it for undo and returns its value; an invalid value when it failed. A
    /// command that changed nothing leaves no undo step; one that failed leaves the document as it was.
    Value executeCommand(Command* command);
    /// Why the last command failed, translated; empty when it did not.
    QString lastError() const { return m_lastError; }
    void undo();
    void redo();
    bool canUndo() const;
    bool canRedo() const;
    QString undoText() const;
    QString redoText() const;
    /// For undo actions and history views; steps are added by executeCommand only, and undo and redo go through undo()
    /// and redo() of the document.
    QUndoStack* undoStack() const { return m_undoStack; }
    /// Greatest number of steps kept; 0 means all. Takes effect as soon as the history is empty: now, or when the next
    /// document is loaded.
    void setUndoLimit(int steps);
    /// True from undoRedoStarted() until Loaded().
    bool isUndoRedoActive() const { return m_undoRedoActive; }
    /// Called with every command executed, after it ran; and with null and the word "undo" or "redo". For session logs.
    using CommandListener = std::function<void(const Command*, const QString&)>;
    void setCommandListener(CommandListener listener);

    /// Whether the document differs from what was last loaded or saved.
    bool isModified() const;
    /// To be called when the file does not hold any more what was loaded or saved: the document counts as modified
    /// until it is saved, whatever is undone.
    void markUnsaved();
    /// Whether a command, undo or redo is at work, so that what is there now may be half of it.
    bool isChanging() const { return m_mutator || m_historyBusy; }
    /// Where every change that is saved with the document is noted from now on; null: nowhere. Not owned.
    void setChangeMarks(ChangeMarks* marks) { m_changeMarks = marks; }

    // File
    /// The document as a resource of type DATA named by its file name; null resource before it was saved.
    Resource getResource() const;
    /// The file; invalid before the document was loaded or saved.
    QUrl getUrl() const { return m_url; }
    /// Replaces the whole content by the file's. On failure the document stays as it was, and lastError() says what is
    /// wrong and where (file, line, column). Emits Loaded() on success.
    bool load(const QString& fileName);
    /// As load, from a device; the document has no file then. The name stands in messages.
    bool loadFrom(QIODevice& device, const QString& name);
    /// As load, from a file that was written for recovery. The document then counts as modified, and as that of the
    /// file `original`; of none when that is empty.
    bool recover(const QString& recoveryFile, const QString& original);
    /// Writes the file; the old one stays when anything fails (lastError()). Emits saved().
    bool save(const QString& fileName);
    /// What was kept but not understood while loading (unknown classes, values out of range), one sentence each.
    QStringList loadWarnings() const { return m_loadWarnings; }

    // The document's own resources
    /// The document's resource of that name, else the packages'.
    Resource resource(const QString& name) const;
    /// In the order of their names.
    std::vector<Resource> localResources() const;

Q_SIGNALS:
    /// After a command that the user or the program gave (not one within another) ran, well or not; and with null and
    /// the word "undo" or "redo". The command is destroyed right after.
    void commandExecuted(const Command* command, const QString& word);
    void SelectionChanged();
    /// After loading, and at the end of each undo or redo.
    void Loaded();
    void undoRedoStarted();
    void ElementAdded(Element);
    void ElementRemoved(Element);
    void SceneAdded(Scene);
    void SceneRemoved(Scene);
    void PopupAdded(Popup);
    void PopupRemoved(Popup);

    /// After a property of any node changed, whether or not its property object exists. For views.
    void nodeValueChanged(NodeImpl*, PropertyKey);
    /// After a node moved to another place among its siblings.
    void nodeMoved(NodeImpl*);
    /// After a lock of any element was set or released.
    void nodeLocksChanged(NodeImpl*);
    void modifiedChanged(bool);
    /// The texts or availability of undo and redo changed.
    void undoStateChanged();
    void resourcesChanged();
    void saved();

private:
    friend class ModelMutator;
    friend class NodeImpl;
    friend class NodeFactory;
    friend class UndoStep;
    friend class DocumentFile;
    friend class NodeXml;

    void recordChanges(std::unique_ptr<ChangeSet> changes, const Command& command,
                       std::shared_ptr<const std::vector<InstanceId>> selectionBefore);
    /// Empty when there is no such step.
    QString textOfStep(int index) const;
    void runUndoRedo(bool undo);
    void updateModified();
    bool readContent(QIODevice& device, const QString& name);
    void finishLoading();
    void clearHistory();
    std::shared_ptr<const std::vector<InstanceId>> selectionIds() const;
    void restoreSelection(const std::vector<InstanceId>& ids);
    void emitPendingSelectionChange();
    void replaceContent(NodeSnapshot&& root, InstanceId nextId);
    void makeEmptyContent();
    void destroyContent();

    NodeDb* m_nodeDb;
    ModelImpl* m_model = nullptr;
    QUndoStack* m_undoStack;
    std::unique_ptr<NodeRegistry> m_registry;
    QHash<PropertyAddress, PropertyAddress> m_danglingProxies;
    QMap<QString, std::shared_ptr<const ResourceEntry>> m_resources;
    ElementImplSet m_selection;
    mutable std::shared_ptr<const std::vector<InstanceId>> m_selectionIds; // null when the selection changed since
    std::shared_ptr<const std::vector<InstanceId>> m_selectionToRestore;
    CommandListener m_commandListener;
    ChangeMarks* m_changeMarks = nullptr;
    QString m_lastError;
    LiveText m_openStepDescription;
    QStringList m_loadWarnings;
    QUrl m_url;
    InstanceId m_nextId = 1;
    ModelMutator* m_mutator = nullptr; // the outermost one at work
    int m_undoLimit = 0;
    bool m_undoRedoActive = false;
    bool m_historyBusy = false;
    bool m_unrecordedChange = false;
    bool m_wasModified = false;
    bool m_openStepPending = false;
    bool m_selectionDirty = false;
};
