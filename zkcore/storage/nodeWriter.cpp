#include "zkcore/storage/nodeWriter.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/storage/valueXml.h"
#include "zkcore/storage/xmlText.h"

#include <QXmlStreamWriter>
#include <algorithm>

namespace {

const QString& elementOf(NodeKind kind)
{
    static const QString texts[] = {QStringLiteral("model"), QStringLiteral("scene"),   QStringLiteral("popup"),
                                    QStringLiteral("part"),  QStringLiteral("subpart"), QStringLiteral("domain")};
    return texts[static_cast<int>(kind)];
}

QString locksText(unsigned int locks)
{
    static const QString names[] = {QStringLiteral("position"), QStringLiteral("size"), QStringLiteral("orientation"),
                                    QStringLiteral("values")};
    QStringList words;
    for (int group = 0; group < lockGroupCount; ++group) {
        if (locks & (1u << group))
            words.append(names[group]);
    }
    return words.join(u' ');
}

} // namespace

NodeXml::Writer::Writer(QXmlStreamWriter& xml) : m_xml(xml) {}

const QString& NodeXml::Writer::classText(ClassId cid)
{
    const auto it = m_classTexts.constFind(cid);
    return it != m_classTexts.constEnd() ? *it : *m_classTexts.insert(cid, findStringForCid(cid));
}

const QString& NodeXml::Writer::keyText(PropertyKey key)
{
    const size_t number = key.number();
    if (number >= m_keyTexts.size())
        m_keyTexts.resize(number + 1);
    QString& text = m_keyTexts[number];
    if (text.isNull())
        text = key.toString();
    return text;
}

void NodeXml::Writer::startNode(NodeKind kind, ClassId cid, InstanceId id)
{
    m_xml.writeStartElement(elementOf(kind));
    m_xml.writeAttribute(QStringLiteral("class"), classText(cid));
    if (id != 0)
        m_xml.writeAttribute(QStringLiteral("id"), QString::number(id));
}

void NodeXml::Writer::writeElementAttributes(unsigned int locks, bool adhoc, InstanceId reflects,
                                             ReflectionKind reflection)
{
    if (!adhoc)
        m_xml.writeAttribute(QStringLiteral("adhoc"), QStringLiteral("false"));
    if (locks != 0)
        m_xml.writeAttribute(QStringLiteral("locks"), locksText(locks));
    if (reflection != ReflectionKind::None) {
        m_xml.writeAttribute(QStringLiteral("reflects"), QString::number(reflects));
        m_xml.writeAttribute(QStringLiteral("reflection"), roleOfReflection(reflection));
    }
}

void NodeXml::Writer::startDomain(ClassId domain)
{
    if (m_openDomain == domain)
        return;
    if (m_openDomain != INVALID_CID)
        m_xml.writeEndElement();
    if (domain != INVALID_CID) {
        m_xml.writeStartElement(elementOf(NodeKind::Domain));
        m_xml.writeAttribute(QStringLiteral("class"), classText(domain));
    }
    m_openDomain = domain;
}

void NodeXml::Writer::writeContent(const Value& value)
{
    switch (value.type()) {
    case Value::STRINGVECTOR:
    case Value::RESOURCEVECTOR:
    case Value::VALUEVECTOR:
    case Value::VALUEMAP:
        ValueXml::writeContent(m_xml, value);
        break;
    default:
        if (const QString text = valueToText(value); !text.isEmpty())
            m_xml.writeCharacters(text);
    }
}

void NodeXml::Writer::writeValue(PropertyKey key, const Value& value, const PropertyAddress& proxy)
{
    m_xml.writeStartElement(QStringLiteral("value"));
    m_xml.writeAttribute(QStringLiteral("key"), keyText(key));
    if (proxy.isValid()) {
        m_xml.writeAttribute(QStringLiteral("proxy"), QString::number(proxy.node));
        m_xml.writeAttribute(QStringLiteral("proxy-key"), keyText(proxy.key));
        if (proxy.domain != INVALID_CID)
            m_xml.writeAttribute(QStringLiteral("proxy-domain"), classText(proxy.domain));
    }
    writeContent(value);
    m_xml.writeEndElement();
}

void NodeXml::Writer::writeStore(const NodeImpl& node, ClassId domain, const Store& store)
{
    const std::vector<PropertyDefinition>& definitions = store.prototype->properties();
    const auto write = [&](int index, const Value& value, const PropertyAddress& proxy) {
        const PropertyDefinition& definition = definitions[static_cast<size_t>(index)];
        if (definition.flags.testFlag(PropertyDefinition::Transient))
            return;
        startDomain(domain);
        writeValue(definition.key, value, proxy);
    };
    if (!node.m_document->m_danglingProxies.isEmpty()) {
        // Rare: some property may follow one that is not there, whatever its value.
        for (size_t i = 0; i < definitions.size(); ++i) {
            const int index = static_cast<int>(i);
            const PropertyImpl* property = store.object(index);
            const Value& value = store.value(index);
            if (property && property->isProxy()) {
                write(index, property->getValue(), property->proxySubject()->address());
                continue;
            }
            const PropertyAddress dangling =
                node.m_document->danglingProxy({node.m_instanceId, domain, definitions[i].key});
            if (dangling.isValid() || !(value == definitions[i].defaultValue))
                write(index, value, dangling);
        }
        return;
    }
    auto object = store.objects.begin();
    const auto writeProxiesBefore = [&](int index) {
        for (; object != store.objects.end() && object->first < index; ++object) {
            if (object->second->isProxy())
                write(object->first, object->second->getValue(), object->second->proxySubject()->address());
        }
    };
    for (const auto& [index, value] : store.values) {
        writeProxiesBefore(index);
        if (object == store.objects.end() || object->first != index || !object->second->isProxy())
            write(index, value, {});
    }
    writeProxiesBefore(static_cast<int>(definitions.size()));
}

void NodeXml::Writer::writeDomains(const NodeImpl& node)
{
    std::vector<std::pair<ClassId, Store*>> stores;
    const_cast<NodeImpl&>(node).collectStores(stores);
    // Class ids are numbered as they are met, so their order differs between runs; their texts do not.
    std::sort(stores.begin(), stores.end(),
              [this](const auto& a, const auto& b) { return classText(a.first) < classText(b.first); });
    for (const auto& [domain, store] : stores) {
        if (domain != INVALID_CID)
            writeStore(node, domain, *store);
    }
    startDomain(INVALID_CID);
}

void NodeXml::Writer::writeStart(const NodeImpl& node)
{
    const NodeKind kind = node.kind();
    startNode(kind, node.classId(), node.m_instanceId);
    if (kind == NodeKind::Part || kind == NodeKind::Subpart) {
        const auto& element = static_cast<const ElementImpl&>(node);
        writeElementAttributes(element.lockMask(), element.isAdhoc(), element.reflectedId(), element.reflectionKind());
    }
    writeStore(node, INVALID_CID, node.m_store);
    if (kind == NodeKind::Scene || kind == NodeKind::Popup)
        writeDomains(node);
}

void NodeXml::Writer::writeEnd(const NodeImpl& node)
{
    if (node.m_unknown && !node.m_unknown->isEmpty())
        xmlText::writeElements(m_xml, *node.m_unknown);
    m_xml.writeEndElement();
}

void NodeXml::Writer::write(const NodeImpl& node)
{
    if (m_depth == maximumDepth) {
        m_tooDeep = true;
        return;
    }
    writeStart(node);
    ++m_depth;
    for (const NodeImpl* child : node.m_children)
        write(*child);
    if (node.kind() == NodeKind::Part) {
        if (const PopupImpl* popup = static_cast<const PartImpl&>(node).popup())
            write(*popup);
    }
    --m_depth;
    writeEnd(node);
}

void NodeXml::Writer::write(const NodeSnapshot& node, const NodeDb& db)
{
    if (m_depth == maximumDepth) {
        m_tooDeep = true;
        return;
    }
    startNode(node.kind, node.cid, node.id);
    if (node.kind == NodeKind::Part || node.kind == NodeKind::Subpart)
        writeElementAttributes(node.locks, node.adhoc, node.reflects, node.reflectionKind);
    const auto writeEntry = [&](const NodeSnapshot::ValueEntry& entry) {
        const NodePrototype* prototype = db.lookupPrototype(entry.domain == INVALID_CID ? node.cid : entry.domain);
        const PropertyDefinition* definition = prototype ? prototype->find(entry.key) : nullptr;
        if (definition && (definition->flags.testFlag(PropertyDefinition::Transient) ||
                           (!entry.proxy.isValid() && entry.value == definition->defaultValue)))
            return;
        startDomain(entry.domain);
        writeValue(entry.key, entry.value, entry.proxy);
    };
    bool hasDomains = false;
    for (const NodeSnapshot::ValueEntry& entry : node.values) {
        if (entry.domain == INVALID_CID)
            writeEntry(entry);
        else
            hasDomains = true;
    }
    if (hasDomains) {
        for (const NodeSnapshot::ValueEntry& entry : node.values) {
            if (entry.domain != INVALID_CID)
                writeEntry(entry);
        }
        startDomain(INVALID_CID);
    }
    ++m_depth;
    for (const NodeSnapshot& child : node.children)
        write(child, db);
    if (node.popup)
        write(*node.popup, db);
    --m_depth;
    if (!node.unknownContent.isEmpty())
        xmlText::writeElements(m_xml, node.unknownContent);
    m_xml.writeEndElement();
}
