#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/childList.h"
#include "zkcore/model/node.h"
#include "zkcore/model/nodePrototype.h"
#include "zkcore/model/property.h"
#include "zkcore/services/translate.h"

#include <QObject>
#include <memory>
#include <vector>

class DocumentImpl;
class ElementImpl;
class ModelImpl;
class SpaceImpl;
class PropertyImpl;

/// A node of a document. Owned by its parent, the root by its document. Made and destroyed by commands only.
class ZKCORE_EXPORT NodeImpl : public QObject
{
    Q_OBJECT

public:
    ~NodeImpl() override;

    /// Whether the pointer names a live node. Constant time.
    static bool valid(const NodeImpl* node);
    /// Nodes stand side by side in blocks, in the order in which they were made.
    static void* operator new(size_t size);
    static void operator delete(void* memory);

    ClassId classId() const { return m_store.prototype->cid; }
    InstanceId instanceId() const { return m_instanceId; }
    const NodePrototype& prototype() const { return *m_store.prototype; }
    NodeKind kind() const { return m_store.prototype->kind; }
    /// Whether its class is `cid`, has it among its bases, or belongs to that domain.
    bool instanceOf(ClassId cid) const { return m_store.prototype->instanceOf(cid); }
    DocumentImpl* document() const { return m_document; }

    /// Null for the root. The parent of a pop-up is the part that owns it.
    NodeImpl* parentNode() const { return m_parent; }
    /// The scene or pop-up that the node is or stands in; null for the root.
    SpaceImpl* space();
    ModelImpl* model() const;

    bool hasProperty(Property::Key key) const { return m_store.prototype->find(key) != nullptr; }
    /// Null when the class has no such property. Makes the property object at the first call; owned by the node.
    PropertyImpl* getProperty(Property::Key key);
    /// Null when nobody has asked for the property yet, or there is none.
    PropertyImpl* existingProperty(Property::Key key) const;
    /// The value without making the property object; invalid when there is no such property.
    Value valueOfProperty(Property::Key key) const;
    /// The keys of all properties, in the order of the class.
    std::vector<Property::Key> propertyKeys() const;
    /// Whether the value differs from the prototype's.
    bool hasOwnValue(Property::Key key) const;

    unsigned int childCount() const { return m_children.size(); }
    /// Null when the index is out of range.
    NodeImpl* getChildAt(unsigned int index) const { return m_children.at(index); }
    /// -1 when the node is not a child of this one. Takes the same time however many children there are.
    int getIndexForChild(const NodeImpl* child) const;
    const ChildList& children() const { return m_children; }

    /// The value of "title", else of "id", else the class's label: what people call this node.
    QString displayName() const;
    /// The same whenever it is asked, also when the node is gone; a name as it is now.
    LiveText liveDisplayName() const;

    /// What stands in the file for this node and no class here understands: XML, written back untouched.
    QString unknownContent() const;

    unsigned long long serial() const { return m_serial; }

Q_SIGNALS:
    /// Parent and child; after the child, with everything in it, is in its place.
    void ChildAdded(Node, Node);
    /// Parent and child; the child is out of its place and about to be destroyed.
    void ChildRemoved(Node, Node);
    /// The original and its reflection.
    void ReflectionAdded(Node, Node);
    void ReflectionRemoved(Node, Node);
    /// After a lock of this element was set or released.
    void LockedChanged();
    /// Before the node is taken out of the tree; it is still whole.
    void beingDeleted(Node);

protected:
    NodeImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id);

    /// Values that differ from a prototype, and the property objects made so far.
    struct PropertyStore
    {
        const NodePrototype* prototype = nullptr;
        std::vector<std::pair<int, Value>> values;          // by index of the definition, sorted
        std::vector<std::pair<int, PropertyImpl*>> objects; // likewise

        const Value& value(int index) const;
        bool setValue(int index, const Value& value);
        PropertyImpl* object(int index) const;
    };

    /// The store of a domain, or the node's own for INVALID_CID; null when there is none.
    virtual PropertyStore* store(ClassId domain);
    virtual void collectStores(std::vector<std::pair<ClassId, PropertyStore*>>& out);
    PropertyImpl* propertyIn(PropertyStore& store, ClassId domain, int index);
    Value resolved(const Value& stored) const;

private:
    friend class DocumentImpl;
    friend class ModelMutator;
    friend class PropertyImpl;
    friend class ChildList;
    friend class NodeFactory;
    friend class NodeXml;
    friend struct NodeSnapshot;

    DocumentImpl* m_document;
    NodeImpl* m_parent = nullptr;
    ChildList m_children;
    ChildList::Chunk* m_chunk = nullptr; // of the parent's list, kept by it
    PropertyStore m_store;
    std::unique_ptr<QString> m_unknown;
    unsigned long long m_serial;
    InstanceId m_instanceId;
};
