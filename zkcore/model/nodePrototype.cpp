#include "zkcore/model/nodePrototype.h"

#include "zkcore/values/validator.h"

#include <algorithm>

namespace {

PropertyDefinition metaPropertyDefinition(const char* key, const Value& value)
{
    PropertyDefinition definition;
    definition.key = PropertyKey::fromString(key);
    definition.type = value.type();
    definition.defaultValue = value;
    definition.flags = PropertyDefinition::ReadOnly | PropertyDefinition::Invisible | PropertyDefinition::Transient |
                       PropertyDefinition::Native;
    if (value.type() == Value::INT) {
        static const auto validator = std::make_shared<IntValidator>();
        static const auto format = std::make_shared<const NumericalFormat>();
        definition.validator = validator;
        definition.format = format;
    }
    return definition;
}

} // namespace

void NodePrototype::addProperty(PropertyDefinition definition)
{
    const int index = indexOf(definition.key);
    if (index >= 0) {
        m_properties[static_cast<size_t>(index)] = std::move(definition);
        return;
    }
    m_index.insert(definition.key, static_cast<int>(m_properties.size()));
    m_properties.push_back(std::move(definition));
}

void NodePrototype::addMetaProperties()
{
    addProperty(metaPropertyDefinition("meta-label", Value(label)));
    addProperty(metaPropertyDefinition("meta-group", Value(group)));
    addProperty(metaPropertyDefinition("meta-keystage", Value(keyStage)));
    addProperty(metaPropertyDefinition("meta-icon", Value(icon)));
}

int NodePrototype::indexOf(PropertyKey key) const
{
    return m_index.value(key, -1);
}

const PropertyDefinition* NodePrototype::find(PropertyKey key) const
{
    const int index = indexOf(key);
    return index < 0 ? nullptr : &m_properties[static_cast<size_t>(index)];
}

bool NodePrototype::instanceOf(ClassId other) const
{
    if (other == INVALID_CID)
        return false;
    return other == cid || std::find(bases.begin(), bases.end(), other) != bases.end() ||
           (isDomain(other) && getDomain(cid) == other);
}

const SubpartRule* NodePrototype::ruleFor(ClassId subpart) const
{
    if (subpart == INVALID_CID)
        return nullptr;
    const ClassId domain = getDomain(subpart);
    for (const SubpartRule& rule : rules)
        for (const ClassId allowed : rule.classes)
            if (allowed == subpart || (allowed == domain && isDomain(allowed)))
                return &rule;
    return nullptr;
}
