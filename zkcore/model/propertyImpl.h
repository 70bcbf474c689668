#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/export.h"
#include "zkcore/model/property.h"
#include "zkcore/model/propertyAddress.h"
#include "zkcore/model/propertyDefinition.h"
#include "zkcore/model/propertyFilter.h"
#include "zkcore/services/translate.h"

#include <QObject>
#include <QSet>
#include <memory>
#include <vector>

class DocumentImpl;
class NodeImpl;
class Node;

/// A property of a node: made when somebody first asks for it, destroyed with its node. Values live in the node.
class ZKCORE_EXPORT PropertyImpl : public QObject
{
    Q_OBJECT

public:
    ~PropertyImpl() override;

    /// Whether the pointer names a live property. Constant time.
    static bool valid(const PropertyImpl* property);
    /// Property objects stand side by side in blocks, in the order in which they were made.
    static void* operator new(size_t size);
    static void operator delete(void* memory);

    /// The value now: of a proxy, its target's.
    Value getValue() const;
    Value::Type type() const { return m_definition->type; }
    Property::Key key() const { return m_definition->key; }
    NodeImpl* owner() const { return m_owner; }
    /// INVALID_CID unless it is a domain property held by a space.
    ClassId domain() const { return m_domain; }
    PropertyAddress address() const;
    DocumentImpl* document() const;
    const PropertyDefinition& definition() const { return *m_definition; }

    /// Null when every value of the type is allowed. Shared by all nodes of the class.
    interface::Validator* getValidator() const;
    /// This property's own formatter, made at the first call; null for types that have no text form (lists, maps).
    Formatter* getFormatter() const;
    /// The translated label.
    QString getUserVisibleLabel() const;
    LiveText liveUserVisibleLabel() const;
    /// The translation of another text that the package gave to the property: its help, a value to choose.
    QString translated(const QString& text) const;
    /// Gives this property another label than its class's; emits userVisibleLabelChanged(). A null text restores it.
    void setUserVisibleLabel(const QString& label);
    /// "electronics/led[12].colour": for messages.
    QString debugName() const;

    /// Whether the user may edit it now: not read-only, computed, locked, or a proxy that cannot be written through;
    /// nor the size of an element that is not resizeable, or the orientation of one whose "orientation-constraint" is
    /// "fixed".
    bool userCanEdit() const;
    bool isUIHidden() const;
    /// Hides widgets bound to this property; emits userVisibilityChanged().
    void setUIHidden(bool hidden);
    /// Whether it is listed among the user's properties.
    bool isUserVisible() const;
    bool isReadOnly() const;
    /// Emits userCanEditChanged() when userCanEdit() changes by it. Not recorded for undo, not saved.
    void setReadOnly(bool readOnly);
    bool shouldPersist() const;
    bool isComputed() const;
    bool isNative() const;
    bool isStyle() const;
    bool alwaysNotify() const;

    /// Whether its value follows another property.
    bool isProxy() const { return m_proxy != nullptr; }
    /// Whether it is a proxy through which the target can be written.
    bool isMutableProxy() const;
    /// Whether others may follow it.
    bool isProxyTarget() const;
    /// Whether its value follows, directly or along a chain, that of `other`.
    bool isProxyDependantOn(const PropertyImpl* other) const;
    /// The property it follows directly; null when it is not a proxy.
    PropertyImpl* proxySubject() const;
    /// The end of the chain; itself when it is not a proxy.
    PropertyImpl* proxyRoot();
    /// What follows it directly, in the order in which the property objects were made.
    std::vector<PropertyImpl*> proxyDependants() const;
    PropertyFilter acceptableProxyTypes() const;

    unsigned long long serial() const { return m_serial; }

Q_SIGNALS:
    /// After the value changed (or was set again, when alwaysNotify()).
    void ValueChanged(Property, Value);
    /// After it began to follow another property, or ceased to.
    void ProxyTargetChanged(Property);
    void userCanEditChanged();
    void userVisibilityChanged();
    void userVisibleLabelChanged();
    /// After the unit (or format) of this property's formatter changed.
    void formatterChanged();

private:
    /// The label before its translation.
    QString labelSource() const;
    friend class NodeImpl;
    friend class ModelMutator;
    friend class DocumentImpl;

    PropertyImpl(NodeImpl* owner, ClassId domain, const PropertyDefinition* definition);
    /// Emits ValueChanged here and along everything that follows this property. May destroy anything.
    void notifyValueChanged();
    void emitUserCanEditIf(bool before);

    NodeImpl* m_owner;
    const PropertyDefinition* m_definition;
    unsigned long long m_serial;
    ClassId m_domain;
    bool m_readOnly;
    bool m_uiHidden;
    QString m_label;
    mutable std::unique_ptr<Formatter> m_formatter;
    PropertyImpl* m_proxy = nullptr;
    std::unique_ptr<QSet<PropertyImpl*>> m_dependants;
};
