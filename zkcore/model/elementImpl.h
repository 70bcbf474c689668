#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/lockGroup.h"
#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/role.h"
#include "zkcore/values/point.h"

#include <set>
#include <vector>

class PopupImpl;

/// What a reflection shows of its original.
enum class ReflectionKind { None = 0, Controls = 1, Pads = 2, Body = 3 };
/// The role of the subparts that a reflection shows ("controls", "pads", "body"), as commands and documents name it;
/// empty for None.
ZKCORE_EXPORT QString roleOfReflection(ReflectionKind kind);

/// An element placed in a space: a part or a subpart. Always a class of kind Part or Subpart.
class ZKCORE_EXPORT ElementImpl : public NodeImpl
{
    Q_OBJECT

public:
    ~ElementImpl() override;

    /// The roles it plays in its parent: its class's, or those that its "roles" property names.
    RoleSet getRoles() const;
    /// Its child elements, in order.
    std::vector<ElementImpl*> allSubparts() const;
    /// Whether it was made by hand in its parent rather than by the parent's class.
    bool isAdhoc() const { return m_adhoc; }
    bool isResizeable() const;
    /// The value of "orientation-constraint": "free", "quarter" (right angles only) or "fixed".
    QString getOrientationConstraint() const;
    /// Whether the lock is set on this element itself.
    bool isLocked(LockGroup group) const { return (m_locks & (1u << group)) != 0; }
    /// Whether the lock, or the one of all property values, is set on this element or one it stands in.
    bool isEffectivelyLocked(LockGroup group) const;
    unsigned int lockMask() const { return m_locks; }

    /// In metres from the parent's origin; the centre of the element.
    zk::Point position() const;
    /// In metres.
    zk::Point size() const;
    /// In radians, clockwise.
    double orientation() const;

    ReflectionKind reflectionKind() const { return m_reflectionKind; }
    bool isReflection() const { return m_reflectionKind != ReflectionKind::None; }
    /// Whether it, or an element it stands in, is a reflection.
    bool isWithinReflection() const;
    /// The instance id of what this element reflects; 0 when it is no reflection.
    InstanceId reflectedId() const { return m_reflects; }
    /// What this element reflects; null when it is no reflection, or the original is gone.
    ElementImpl* reflectionOriginal() const;
    /// The reflection of `original` that stands below this element (or in the pop-up it owns); null when there is none.
    ElementImpl* findReflectionOfElement(ElementImpl* original) const;

protected:
    ElementImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id);

private:
    friend class DocumentImpl;
    friend class ModelMutator;
    friend class NodeFactory;

    InstanceId m_reflects = 0;
    ReflectionKind m_reflectionKind = ReflectionKind::None;
    unsigned char m_locks = 0;
    bool m_adhoc = true;
};

/// A part: an element that stands in a scene or pop-up.
class ZKCORE_EXPORT PartImpl : public ElementImpl
{
    Q_OBJECT

public:
    ~PartImpl() override;

    /// Its direct subparts that play one of the roles, in order.
    std::vector<ElementImpl*> getChildrenWithRole(const RoleSet& roles) const;
    /// Whether it has anything to reflect (controls, pads or a body) and is no reflection itself.
    bool canReflect() const;
    /// The pop-up it owns; null when it has none.
    PopupImpl* popup() const { return m_popup; }

protected:
    PartImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id);

private:
    friend class DocumentImpl;
    friend class ModelMutator;
    friend class NodeFactory;

    PopupImpl* m_popup = nullptr;
};

/// Elements in the order of their addresses; a selection.
using ElementImplSet = std::set<ElementImpl*>;
