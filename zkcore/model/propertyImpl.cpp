#include "zkcore/model/propertyImpl.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/objectSlab.h"
#include "zkcore/services/translate.h"
#include "zkcore/values/formatter.h"

#include <algorithm>

namespace {

ObjectSlab& propertySlab()
{
    static ObjectSlab slab;
    return slab;
}

unsigned long long nextPropertySerial = 0;

bool isElementKind(NodeKind kind)
{
    return kind == NodeKind::Part || kind == NodeKind::Subpart;
}

/// What the element's kind settles for good: typing is refused as pulling and turning are.
bool isSettledByKind(const ElementImpl& element, PropertyKey key)
{
    if (key == coreKeys::size())
        return !element.isResizeable();
    return key == coreKeys::orientation() && element.getOrientationConstraint() == QLatin1String("fixed");
}

} // namespace

PropertyImpl::PropertyImpl(NodeImpl* owner, ClassId domain, const PropertyDefinition* definition)
    : m_owner(owner), m_definition(definition), m_serial(++nextPropertySerial), m_domain(domain),
      m_readOnly(definition->flags & PropertyDefinition::ReadOnly),
      m_uiHidden(definition->flags & PropertyDefinition::UIHidden)
{
    propertySlab().setAlive(this, true);
}

PropertyImpl::~PropertyImpl()
{
    propertySlab().setAlive(this, false);
    // Links across nodes are detached before a node goes; what is left here are links among nodes that go together.
    if (m_proxy && valid(m_proxy) && m_proxy->m_dependants)
        m_proxy->m_dependants->remove(this);
    if (m_dependants) {
        for (PropertyImpl* dependant : *m_dependants)
            dependant->m_proxy = nullptr;
    }
}

bool PropertyImpl::valid(const PropertyImpl* property)
{
    return propertySlab().isAlive(property);
}

void* PropertyImpl::operator new(size_t size)
{
    return propertySlab().allocate(size);
}

void PropertyImpl::operator delete(void* memory)
{
    propertySlab().release(memory);
}

Value PropertyImpl::getValue() const
{
    if (m_proxy) {
        const PropertyImpl* root = m_proxy;
        while (root->m_proxy)
            root = root->m_proxy;
        Value value = root->getValue();
        if (value.type() == type() || !value.isNumeric())
            return value;
        return type() == Value::INT ? Value(value.toInt()) : Value(value.toDouble());
    }
    const NodeImpl::PropertyStore* store = m_owner->store(m_domain);
    return m_owner->resolved(store->value(store->prototype->indexOf(key())));
}

PropertyAddress PropertyImpl::address() const
{
    return {m_owner->instanceId(), m_domain, key()};
}

DocumentImpl* PropertyImpl::document() const
{
    return m_owner->document();
}

interface::Validator* PropertyImpl::getValidator() const
{
    return m_definition->validator.get();
}

Formatter* PropertyImpl::getFormatter() const
{
    if (m_formatter)
        return m_formatter.get();
    switch (type()) {
    case Value::INT:
    case Value::DOUBLE:
    case Value::POINT: {
        static const auto plain = std::make_shared<const NumericalFormat>();
        auto formatter =
            std::make_unique<NumericalFormatter>(type(), m_definition->format ? m_definition->format : plain);
        auto* self = const_cast<PropertyImpl*>(this);
        formatter->setChangeHandler([self] { Q_EMIT self->formatterChanged(); });
        m_formatter = std::move(formatter);
        break;
    }
    case Value::BOOL:
    case Value::STRING:
    case Value::COLOR:
    case Value::RESOURCE:
        m_formatter = std::make_unique<Formatter>(type());
        break;
    default:
        break;
    }
    return m_formatter.get();
}

QString PropertyImpl::labelSource() const
{
    return m_definition->label.isEmpty() ? key().toString() : m_definition->label;
}

QString PropertyImpl::getUserVisibleLabel() const
{
    return m_label.isNull() ? translated(labelSource()) : m_label;
}

LiveText PropertyImpl::liveUserVisibleLabel() const
{
    if (!m_label.isNull())
        return [label = m_label] { return label; };
    return liveStringFromContext(*m_owner, labelSource(), m_domain);
}

QString PropertyImpl::translated(const QString& text) const
{
    return translateStringFromContext(m_owner, text, m_domain);
}

void PropertyImpl::setUserVisibleLabel(const QString& label)
{
    if (m_label == label && m_label.isNull() == label.isNull())
        return;
    m_label = label;
    Q_EMIT userVisibleLabelChanged();
}

QString PropertyImpl::debugName() const
{
    QString name = QStringLiteral("%1[%2].").arg(findStringForCid(m_owner->classId())).arg(m_owner->instanceId());
    if (m_domain != INVALID_CID)
        name += findStringForCid(m_domain) + QLatin1Char('.');
    return name + key().toString();
}

bool PropertyImpl::userCanEdit() const
{
    if (m_readOnly || isComputed())
        return false;
    if (isElementKind(m_owner->kind())) {
        const auto& element = static_cast<const ElementImpl&>(*m_owner);
        if (element.isEffectivelyLocked(m_definition->lockGroup) || isSettledByKind(element, key()))
            return false;
    }
    if (!m_proxy)
        return true;
    return isMutableProxy() && m_proxy->userCanEdit();
}

bool PropertyImpl::isUIHidden() const
{
    return m_uiHidden;
}

void PropertyImpl::setUIHidden(bool hidden)
{
    if (m_uiHidden == hidden)
        return;
    m_uiHidden = hidden;
    Q_EMIT userVisibilityChanged();
}

bool PropertyImpl::isUserVisible() const
{
    return !(m_definition->flags & PropertyDefinition::Invisible) && !m_uiHidden;
}

bool PropertyImpl::isReadOnly() const
{
    return m_readOnly;
}

void PropertyImpl::setReadOnly(bool readOnly)
{
    if (m_readOnly == readOnly)
        return;
    const bool before = userCanEdit();
    m_readOnly = readOnly;
    emitUserCanEditIf(before);
}

bool PropertyImpl::shouldPersist() const
{
    return !(m_definition->flags & PropertyDefinition::Transient);
}

bool PropertyImpl::isComputed() const
{
    return m_definition->flags & PropertyDefinition::Computed;
}

bool PropertyImpl::isNative() const
{
    return m_definition->flags & PropertyDefinition::Native;
}

bool PropertyImpl::isStyle() const
{
    return m_definition->flags & PropertyDefinition::Style;
}

bool PropertyImpl::alwaysNotify() const
{
    return m_definition->flags & PropertyDefinition::AlwaysNotify;
}

bool PropertyImpl::isMutableProxy() const
{
    if (!m_proxy)
        return false;
    const bool reflected =
        isElementKind(m_owner->kind()) && static_cast<const ElementImpl*>(m_owner)->isWithinReflection();
    return reflected || (m_definition->flags & PropertyDefinition::MutableProxy);
}

bool PropertyImpl::isProxyTarget() const
{
    return m_definition->flags & PropertyDefinition::ProxyTarget;
}

bool PropertyImpl::isProxyDependantOn(const PropertyImpl* other) const
{
    for (const PropertyImpl* subject = m_proxy; subject; subject = subject->m_proxy) {
        if (subject == other)
            return true;
    }
    return false;
}

PropertyImpl* PropertyImpl::proxySubject() const
{
    return m_proxy;
}

PropertyImpl* PropertyImpl::proxyRoot()
{
    PropertyImpl* root = this;
    while (root->m_proxy)
        root = root->m_proxy;
    return root;
}

std::vector<PropertyImpl*> PropertyImpl::proxyDependants() const
{
    std::vector<PropertyImpl*> result;
    if (m_dependants) {
        result.assign(m_dependants->cbegin(), m_dependants->cend());
        std::sort(result.begin(), result.end(), [](auto* a, auto* b) { return a->m_serial < b->m_serial; });
    }
    return result;
}

PropertyFilter PropertyImpl::acceptableProxyTypes() const
{
    return PropertyFilter(Property(const_cast<PropertyImpl*>(this)));
}

void PropertyImpl::notifyValueChanged()
{
    if (!m_dependants || m_dependants->isEmpty()) {
        Q_EMIT ValueChanged(Property(this), getValue());
        return;
    }
    // Everything that follows is gathered first: a slot may link, detach or destroy properties.
    std::vector<Property> affected{Property(this)};
    for (size_t i = 0; i < affected.size(); ++i) {
        for (PropertyImpl* dependant : affected[i].impl()->proxyDependants())
            affected.emplace_back(dependant);
    }
    for (const Property& handle : affected) {
        if (PropertyImpl* property = handle.impl())
            Q_EMIT property->ValueChanged(handle, property->getValue());
        if (handle == affected.front())
            continue;
        if (PropertyImpl* property = handle.impl())
            Q_EMIT property->document()->nodeValueChanged(property->m_owner, property->key());
    }
}

void PropertyImpl::emitUserCanEditIf(bool before)
{
    if (before != userCanEdit())
        Q_EMIT userCanEditChanged();
}
