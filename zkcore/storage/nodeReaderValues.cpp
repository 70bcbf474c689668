// The values of nodes, and what is judged after all nodes are read.
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/propertyFilter.h"
#include "zkcore/storage/nodeReader.h"
#include "zkcore/storage/valueXml.h"
#include "zkcore/storage/xmlText.h"
#include "zkcore/values/validator.h"

#include <QXmlStreamReader>

PropertyKey NodeXml::Reader::proxyKey(QStringView text)
{
    const QString key = text.toString();
    const auto it = m_proxyKeys.constFind(key);
    if (it != m_proxyKeys.constEnd())
        return *it;
    return *m_proxyKeys.insert(key, PropertyKey::fromString(key));
}

bool NodeXml::Reader::readValueAttributes(const ClassInfo& info, const PropertyDefinition*& definition,
                                          PropertyAddress& proxy)
{
    bool hasKey = false;
    bool hasProxy = false;
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QStringView name = attribute.qualifiedName();
        const QStringView text = attribute.value();
        if (name == u"key") {
            hasKey = !text.isEmpty();
            const auto it = info.keys.find(text);
            if (it == info.keys.end()) {
                definition = nullptr;
                return hasKey || fault(tr("<value> has no key")); // whatever else it says is kept as it is
            }
            definition = it->second;
        } else if (name == u"proxy") {
            hasProxy = true;
            if (!parseId(text, proxy.node))
                return fault(tr("\"%1\" is no instance id").arg(text));
        } else if (name == u"proxy-key") {
            hasProxy = true;
            proxy.key = proxyKey(text);
        } else if (name == u"proxy-domain") {
            hasProxy = true;
            proxy.domain = getCidForString(text.toString());
            if (!isDomain(proxy.domain))
                return fault(tr("\"%1\" names no domain").arg(text));
        } else {
            warnOfAttribute(u"value", name);
        }
    }
    if (!hasKey)
        return fault(tr("<value> has no key"));
    if (hasProxy && !proxy.isValid())
        return fault(tr("a proxy needs both a node and a key to follow"));
    return true;
}

bool NodeXml::Reader::readText(QXmlStreamReader& xml)
{
    m_text.resize(0);
    for (;;) {
        switch (xml.readNext()) {
        case QXmlStreamReader::Characters:
            if (m_text.size() + xml.text().size() > xmlText::maximumLength) {
                xml.raiseError(tr("the text of a value is longer than 64 MB"));
                return false;
            }
            m_text += xml.text();
            break;
        case QXmlStreamReader::EndElement:
            return true;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        default:
            if (!xml.hasError())
                xml.raiseError(tr("only text can stand here"));
            return false;
        }
    }
}

Value NodeXml::Reader::readTyped(QXmlStreamReader& xml, const PropertyDefinition& definition)
{
    if (ValueXml::isWrittenAsItems(definition.type)) {
        const Value value = ValueXml::readContent(xml, definition.type);
        if (!value.isValid() && !xml.hasError())
            xml.raiseError(tr("this is no %1").arg(Value::typeAsString(definition.type)));
        return xml.hasError() ? Value() : value;
    }
    if (!readText(xml))
        return {};
    Value value = valueFromText(definition.type, m_text);
    if (!value.isValid()) {
        const QString shown = m_text.size() > 40 ? m_text.left(40) + QStringLiteral("...") : m_text;
        xml.raiseError(tr("\"%1\" is no %2 (property \"%3\")")
                           .arg(shown, Value::typeAsString(definition.type), definition.key.toString()));
    }
    return value;
}

bool NodeXml::Reader::isGiven(ClassId domain, PropertyKey key, size_t firstEntry) const
{
    for (size_t i = firstEntry; i < m_entries.size(); ++i) {
        if (m_entries[i].key == key && m_entries[i].domain == domain)
            return true;
    }
    return false;
}

bool NodeXml::Reader::readValue(NodeSnapshot& node, const ClassInfo& info, size_t firstEntry, QString& unknown)
{
    const Position position = here();
    const PropertyDefinition* definition = nullptr;
    PropertyAddress proxy;
    if (!readValueAttributes(info, definition, proxy))
        return false;
    if (info.prototype->placeholder)
        return readUnknownClassValue(node, definition, proxy, firstEntry, unknown);
    if (!definition) {
        const QString key = m_xml.attributes().value(QLatin1String("key")).toString();
        if (!m_warnedOf.contains(info.text + u'.' + key)) {
            if (m_warnings.size() < maximumWarnings)
                m_warnedOf.insert(info.text + u'.' + key);
            warn(tr("class \"%1\" has no property \"%2\"; kept as it is").arg(info.text, key));
        }
        return xmlText::appendElement(m_xml, unknown);
    }
    Value value = readTyped(m_xml, *definition);
    if (!value.isValid())
        return false;
    const ClassId domain = info.prototype->kind == NodeKind::Domain ? info.cid : INVALID_CID;
    if (definition->flags.testFlag(PropertyDefinition::Transient)) {
        warnAt(position, tr("property \"%1\" is not kept in files; dropped").arg(definition->key.toString()));
        return true;
    }
    if (isGiven(domain, definition->key, firstEntry)) {
        warnAt(position, tr("property \"%1\" is given twice; the first value counts").arg(definition->key.toString()));
        return true;
    }
    if (!proxy.isValid() && value == definition->defaultValue)
        return true;
    addEntry(node, domain, *definition, std::move(value), proxy, position);
    return true;
}

bool NodeXml::Reader::readUnknownClassValue(NodeSnapshot& node, const PropertyDefinition* definition,
                                            const PropertyAddress& proxy, size_t firstEntry, QString& unknown)
{
    // The class that the file was written with may know other types and defaults than the stand-in has: what does not
    // fit the stand-in, and what it would drop, is kept as it is.
    const Position position = here();
    QString element;
    if (!xmlText::appendElement(m_xml, element))
        return false;
    if (definition && !definition->flags.testFlag(PropertyDefinition::Transient) &&
        !isGiven(INVALID_CID, definition->key, firstEntry)) {
        QXmlStreamReader inner(element);
        inner.setNamespaceProcessing(false);
        inner.readNextStartElement();
        Value value = readTyped(inner, *definition);
        if (value.isValid() && (proxy.isValid() || !(value == definition->defaultValue))) {
            addEntry(node, INVALID_CID, *definition, std::move(value), proxy, position);
            return true;
        }
    }
    unknown += element;
    return true;
}

void NodeXml::Reader::addEntry(const NodeSnapshot& node, ClassId domain, const PropertyDefinition& definition,
                               Value&& value, const PropertyAddress& proxy, const Position& position)
{
    if (definition.validator && !definition.validator->isValid(value))
        warnAt(position, tr("the value of property \"%1\" is not allowed; kept: %2")
                             .arg(definition.key.toString(), definition.validator->reason(value)));
    if (definition.key == coreKeys::id() && domain == INVALID_CID && node.kind != NodeKind::Subpart) {
        const qsizetype before = m_textIds.size();
        m_textIds.insert(value.toQString());
        if (m_textIds.size() == before)
            warnAt(position, tr("the id \"%1\" is used twice; kept").arg(value.toQString()));
    } else if (value.type() == Value::STRING) {
        shareText(value);
    }
    if (proxy.isValid() && node.id != 0)
        m_proxies.push_back({{node.id, domain, definition.key}, proxy, definition.type, position});
    m_entries.push_back({domain, definition.key, std::move(value), proxy});
}

void NodeXml::Reader::shareText(Value& value)
{
    constexpr qsizetype maximumShared = 4096;
    const QString text = value.toQString();
    const auto it = m_sharedTexts.constFind(text);
    if (it != m_sharedTexts.constEnd())
        value = Value(*it);
    else if (m_sharedTexts.size() < maximumShared)
        m_sharedTexts.insert(text);
}

bool NodeXml::Reader::checkCircles()
{
    // Every property follows one at most, so each walk either ends, meets an earlier walk, or meets itself: a circle.
    QHash<PropertyAddress, size_t> index;
    index.reserve(static_cast<qsizetype>(m_proxies.size()));
    for (size_t i = 0; i < m_proxies.size(); ++i)
        index.insert(m_proxies[i].property, i);
    constexpr size_t none = ~size_t{0};
    std::vector<size_t> walkOf(m_proxies.size(), none);
    for (size_t start = 0; start < m_proxies.size(); ++start) {
        size_t at = start;
        while (at != none && walkOf[at] == none) {
            walkOf[at] = start;
            at = index.value(m_proxies[at].target, none);
        }
        if (at != none && walkOf[at] == start) {
            m_faultPosition = m_proxies[at].position;
            return fault(tr("property \"%1\" of node %2 follows itself, directly or through others")
                             .arg(m_proxies[at].property.key.toString())
                             .arg(m_proxies[at].property.node));
        }
    }
    return true;
}

void NodeXml::Reader::collectTargets(const NodeSnapshot& node, TargetClasses& targets) const
{
    const auto it = targets.find(node.id);
    if (it != targets.end())
        *it = m_db.lookupPrototype(node.cid);
    for (const NodeSnapshot& child : node.children)
        collectTargets(child, targets);
    if (node.popup)
        collectTargets(*node.popup, targets);
}

const PropertyDefinition* NodeXml::Reader::findTarget(const PropertyAddress& target, const TargetClasses& targets) const
{
    const NodePrototype* prototype = targets.value(target.node);
    if (prototype && target.domain != INVALID_CID) {
        const bool space = prototype->kind == NodeKind::Scene || prototype->kind == NodeKind::Popup;
        prototype = space ? m_db.lookupPrototype(target.domain) : nullptr;
    }
    return prototype ? prototype->find(target.key) : nullptr;
}

bool NodeXml::Reader::check(const NodeSnapshot* root)
{
    if (!checkCircles())
        return false;
    if (!root || (m_proxies.empty() && m_reflections.empty()))
        return true;
    TargetClasses targets;
    for (const ProxyRecord& record : m_proxies)
        targets.insert(record.target.node, nullptr);
    for (const ReflectionRecord& record : m_reflections)
        targets.insert(record.original, nullptr);
    collectTargets(*root, targets);
    for (const ProxyRecord& record : m_proxies) {
        const PropertyDefinition* target = findTarget(record.target, targets);
        if (!target) {
            warnAt(record.position,
                   tr("property \"%1\" follows one that is not there (\"%2\" of node %3); kept as it is")
                       .arg(record.property.key.toString(), record.target.key.toString())
                       .arg(record.target.node));
        } else if (!PropertyFilter::fits(record.type, target->type)) {
            m_faultPosition = record.position;
            return fault(tr("property \"%1\" (%2) cannot follow \"%3\" (%4)")
                             .arg(record.property.key.toString(), Value::typeAsString(record.type),
                                  record.target.key.toString(), Value::typeAsString(target->type)));
        }
    }
    for (const ReflectionRecord& record : m_reflections) {
        if (!targets.value(record.original))
            warnAt(record.position,
                   tr("node %1, which is reflected here, is not there; kept as it is").arg(record.original));
    }
    return true;
}
