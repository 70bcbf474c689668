#include "zkcore/model/nodePrototype.h"

#include "zkcore/values/validator.h"

#include <algorithm>

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
    static const PropertyKey labelKey = PropertyKey::fromString("meta-label");
    static const PropertyKey groupKey = PropertyKey::fromString("meta-group");
    static const PropertyKey keyStageKey = PropertyKey::fromString("meta-keystage");
    static const PropertyKey iconKey = PropertyKey::fromString("meta-icon");
    addMetaProperty(labelKey, Value(label));
    addMetaProperty(groupKey, Value(group));
    addMetaProperty(keyStageKey, Value(keyStage));
    addMetaProperty(iconKey, Value(icon));
}

void NodePrototype::addMetaProperty(PropertyKey key, const Value& value)
{
    PropertyDefinition definition;
    definition.key = key;
    definition.type = value.type();
    definition.defaultValue = value;
    definition.flags = PropertyDefinition::ReadOnly | PropertyDefinition::Invisible | PropertyDefinition::Transient |
                       PropertyDefinition::Native;
    if (value.type() == Value::INT) {
        static const auto wholeRange = std::make_shared<IntValidator>();
        static const auto plainFormat = std::make_shared<const NumericalFormat>();
        definition.validator = wholeRange;
        definition.format = plainFormat;
    }
    addProperty(std::move(definition));
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
