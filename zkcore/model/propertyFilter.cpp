#include "zkcore/model/propertyFilter.h"

#include "zkcore/model/propertyImpl.h"

#include <QCoreApplication>

namespace {

struct FilterTexts
{
    Q_DECLARE_TR_FUNCTIONS(PropertyFilter)
};

} // namespace

PropertyFilter::PropertyFilter(Property property) : m_property(property) {}

bool PropertyFilter::isNodeFilter() const
{
    return m_property.type() == Value::NODE;
}

bool PropertyFilter::fits(Value::Type follower, Value::Type target)
{
    const auto isNumber = [](Value::Type type) { return type == Value::INT || type == Value::DOUBLE; };
    return follower == target || (isNumber(follower) && isNumber(target));
}

bool PropertyFilter::isOkay(const Property& candidate) const
{
    return reason(candidate).isEmpty();
}

QString PropertyFilter::reason(const Property& candidate) const
{
    const PropertyImpl* self = m_property.impl();
    const PropertyImpl* other = candidate.impl();
    if (!self || !other)
        return FilterTexts::tr("One of the properties is gone.");
    if (self == other)
        return FilterTexts::tr("A property cannot follow itself.");
    if (self->document() != other->document())
        return FilterTexts::tr("The properties belong to different documents.");
    if (!other->isProxyTarget())
        return FilterTexts::tr("This property cannot be followed.");
    if (!fits(self->type(), other->type()))
        return FilterTexts::tr("The property is of another type.");
    if (other->isProxyDependantOn(self))
        return FilterTexts::tr("The property follows this one already.");
    return {};
}
