#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/export.h"
#include "zkcore/media/resource.h"
#include "zkcore/model/propertyDefinition.h"
#include "zkcore/model/role.h"

#include <QHash>
#include <QSizeF>
#include <memory>
#include <utility>
#include <vector>

/// The kinds of nodes; they decide which class implements a node and where it may stand.
enum class NodeKind { Model, Scene, Popup, Part, Subpart, Domain };

/// A subpart that every new node of a class starts with.
struct SubpartDefinition
{
    ClassId cid = INVALID_CID;
    /// Values that differ from the subpart's own prototype.
    std::vector<std::pair<PropertyKey, Value>> values;
};

/// Which subparts may be added to a node of a class.
struct SubpartRule
{
    Role role;
    std::vector<ClassId> classes;
    /// Greatest number of subparts of that role; 0 means any number.
    unsigned int maximum = 0;
};

/// A node class: what a package says about one kind of node. Immutable once it stands in a NodeDb; properties of the
/// base classes are already merged in.
class ZKCORE_EXPORT NodePrototype
{
public:
    ClassId cid = INVALID_CID;
    /// INVALID_CID for a class without a base.
    ClassId base = INVALID_CID;
    NodeKind kind = NodeKind::Part;
    /// Name of the package that defined it; empty for the placeholder of an unknown class.
    QString package;
    /// Untranslated name for people.
    QString label;
    /// Untranslated name of the parts tree folder; empty when it is not offered there.
    QString group;
    int keyStage = 0;
    Resource icon;
    /// The picture a part is drawn with.
    Resource body;
    RoleSet roles;
    bool resizeable = true;
    /// Not offered to the user, only a base for others.
    bool abstract = false;
    /// Stands in for a class that no package defines; such nodes are kept and written back untouched.
    bool placeholder = false;
    /// A part of this class owns a pop-up of this class; INVALID_CID for none.
    ClassId popupClass = INVALID_CID;
    std::vector<SubpartDefinition> subparts;
    std::vector<SubpartRule> rules;

    /// Adds a property, or replaces the one with the same key (of a base class) in its place.
    void addProperty(PropertyDefinition definition);
    /// Adds the properties that show label, group, key stage and icon ("meta-label", ...) to forms and dialogs, or
    /// renews them. For whoever makes a class, after the members are set.
    void addMetaProperties();
    /// Adds a property that only tells about the class: read-only, not shown, not saved.
    void addMetaProperty(PropertyKey key, const Value& value);
    const std::vector<PropertyDefinition>& properties() const { return m_properties; }
    /// -1 when there is no such property.
    int indexOf(PropertyKey key) const;
    /// Null when there is no such property.
    const PropertyDefinition* find(PropertyKey key) const;

    /// Whether the class is `other` or has it among its bases. A domain's id ("electronics/*") holds for every class of
    /// the domain.
    bool instanceOf(ClassId other) const;
    /// All base classes, nearest first; filled when the prototype enters a NodeDb.
    std::vector<ClassId> bases;

    /// The rule under which subparts of the class may be added; null when they may not. A rule for a domain
    /// ("electronics/*") holds for all classes of the domain.
    const SubpartRule* ruleFor(ClassId subpart) const;

private:
    std::vector<PropertyDefinition> m_properties;
    QHash<PropertyKey, int> m_index;
};
