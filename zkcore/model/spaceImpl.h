#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/nodeImpl.h"

#include <map>
#include <vector>

class PartImpl;

/// A scene or a pop-up: holds parts, and for every domain the properties that the domain gives to spaces.
class ZKCORE_EXPORT SpaceImpl : public NodeImpl
{
    Q_OBJECT

public:
    ~SpaceImpl() override;

    using NodeImpl::getProperty;
    using NodeImpl::hasProperty;
    using NodeImpl::valueOfProperty;
    /// A domain property held by this space ("speed" of "flowcharts/*"). Null when the class id is no domain or the
    /// domain has no such property. Owned by the space.
    PropertyImpl* getProperty(Property::Key key, ClassId domain);
    bool hasProperty(Property::Key key, ClassId domain) const;
    Value valueOfProperty(Property::Key key, ClassId domain) const;
    /// The class ids of the domains whose properties this space holds.
    std::vector<ClassId> getKnownDomains() const;
    /// The keys of a domain's properties, or with INVALID_CID of the space's own.
    std::vector<Property::Key> getPropertyKeys(ClassId domain) const;
    /// Whether any value of the domain differs from its prototype.
    bool hasDomainValues(ClassId domain) const;

    /// The parts in it, in order (back to front).
    std::vector<PartImpl*> parts() const;

protected:
    SpaceImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id);
    PropertyStore* store(ClassId domain) override;
    void collectStores(std::vector<std::pair<ClassId, PropertyStore*>>& out) override;

private:
    friend class DocumentImpl;
    friend class ModelMutator;

    const NodePrototype* domainPrototype(ClassId domain) const;

    std::map<ClassId, PropertyStore> m_domains; // made when a value is first set or a property first asked for
};
/// A scene: what is edited and printed as one picture.
class ZKCORE_EXPORT SceneImpl : public SpaceImpl
{
    Q_OBJECT

public:
    ~SceneImpl() override;

private:
    friend class NodeFactory;
    SceneImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id);
};
/// A pop-up: the space that a part owns and opens.
class ZKCORE_EXPORT PopupImpl : public SpaceImpl
{
    Q_OBJECT

public:
    ~PopupImpl() override;

    /// The part that owns it; never null while it stands in a document.
    PartImpl* owner() const;

private:
    friend class NodeFactory;
    PopupImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id);
};
