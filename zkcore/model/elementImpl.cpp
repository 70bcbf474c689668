#include "zkcore/model/elementImpl.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"

namespace {

const ElementImpl* parentElement(const NodeImpl* node)
{
    const NodeImpl* parent = node->parentNode();
    if (!parent || (parent->kind() != NodeKind::Part && parent->kind() != NodeKind::Subpart))
        return nullptr;
    return static_cast<const ElementImpl*>(parent);
}

} // namespace

QString roleOfReflection(ReflectionKind kind)
{
    switch (kind) {
    case ReflectionKind::Controls:
        return QStringLiteral("controls");
    case ReflectionKind::Pads:
        return QStringLiteral("pads");
    case ReflectionKind::Body:
        return QStringLiteral("body");
    case ReflectionKind::None:
        break;
    }
    return {};
}

ElementImpl::ElementImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id)
    : NodeImpl(document, prototype, id)
{
}

ElementImpl::~ElementImpl() = default;

RoleSet ElementImpl::getRoles() const
{
    const QString own = valueOfProperty(coreKeys::roles()).toQString();
    return own.isEmpty() ? prototype().roles : RoleSet(own);
}

std::vector<ElementImpl*> ElementImpl::allSubparts() const
{
    std::vector<ElementImpl*> result;
    result.reserve(childCount());
    for (NodeImpl* child : children()) {
        if (child->kind() == NodeKind::Subpart)
            result.push_back(static_cast<ElementImpl*>(child));
    }
    return result;
}

bool ElementImpl::isResizeable() const
{
    return prototype().resizeable;
}

QString ElementImpl::getOrientationConstraint() const
{
    return valueOfProperty(coreKeys::orientationConstraint()).toQString();
}

bool ElementImpl::isEffectivelyLocked(LockGroup group) const
{
    for (const ElementImpl* element = this; element; element = parentElement(element)) {
        if (element->isLocked(group) || element->isLocked(LockPropertyValues))
            return true;
    }
    return false;
}

zk::Point ElementImpl::position() const
{
    return valueOfProperty(coreKeys::position()).toPoint();
}

zk::Point ElementImpl::size() const
{
    return valueOfProperty(coreKeys::size()).toPoint();
}

double ElementImpl::orientation() const
{
    return valueOfProperty(coreKeys::orientation()).toDouble();
}

bool ElementImpl::isWithinReflection() const
{
    for (const ElementImpl* element = this; element; element = parentElement(element)) {
        if (element->isReflection())
            return true;
    }
    return false;
}

ElementImpl* ElementImpl::reflectionOriginal() const
{
    NodeImpl* node = document()->nodeById(m_reflects);
    return isReflection() && node ? qobject_cast<ElementImpl*>(node) : nullptr;
}

ElementImpl* ElementImpl::findReflectionOfElement(ElementImpl* original) const
{
    if (!NodeImpl::valid(original))
        return nullptr;
    for (ElementImpl* reflection : document()->reflectionsOf(original)) {
        for (const NodeImpl* node = reflection->parentNode(); node; node = node->parentNode()) {
            if (node == this)
                return reflection;
        }
    }
    return nullptr;
}

PartImpl::PartImpl(DocumentImpl* document, const NodePrototype* prototype, InstanceId id)
    : ElementImpl(document, prototype, id)
{
}

PartImpl::~PartImpl() = default;

std::vector<ElementImpl*> PartImpl::getChildrenWithRole(const RoleSet& roles) const
{
    std::vector<ElementImpl*> result;
    for (ElementImpl* subpart : allSubparts()) {
        if (subpart->getRoles().intersects(roles))
            result.push_back(subpart);
    }
    return result;
}

bool PartImpl::canReflect() const
{
    if (isReflection() || prototype().placeholder)
        return false;
    static const RoleSet reflectable(QStringLiteral("controls pads body"));
    return prototype().body.isValid() || !getChildrenWithRole(reflectable).empty();
}
