// Documents of any size for tests and benchmarks.
#include "tests/support/documentGenerator.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/storage/nodeXml.h"

#include <QTemporaryDir>
#include <QXmlStreamWriter>
#include <algorithm>

namespace {

constexpr size_t nodesOfScene = 1000;

struct PartKind
{
    const char* cid;
    const char* prefix;
    const char* key;       // a property that differs in some parts ...
    const char* values[4]; // ... and the texts it takes in turn
};

constexpr PartKind partKinds[] = {
    {"electronics/led", "led", "brightness", {"100", "60", "35", "80"}},
    {"electronics/resistor", "resistor", "resistance", {"330", "1000", "4700", "220.5"}},
    {"electronics/switch", "switch", "closed", {"false", "true", "false", "true"}},
    {"flowcharts/step", "step", "title", {"", "Light on", "Wait & see", "<stop>"}},
    {"electronics/battery", "battery", "voltage", {"9", "4.5", "1.5", "12"}},
    {"electronics/led", "led", "color", {"#ffae1a", "#35b54a", "#3478f6", "#ffffff"}},
    {"mechanics/motor", "motor", "title", {"", "Drive", "", "Gate"}},
    {"core/info", "info", "title", {"", "Read this", "", ""}},
    {"electronics/buzzer", "buzzer", "melody", {"60 64 67", "72 74", "60", "60 62 64 65"}},
};

const PropertyDefinition& definitionOf(NodeDb& db, ClassId cid, PropertyKey key)
{
    const NodePrototype* prototype = db.lookupPrototype(cid);
    const PropertyDefinition* definition = prototype ? prototype->find(key) : nullptr;
    if (!definition)
        qFatal("documentGenerator: class %s has no property %s", qPrintable(findStringForCid(cid)),
               qPrintable(key.toString()));
    return *definition;
}

void setEntry(NodeDb& db, NodeSnapshot& node, PropertyKey key, const Value& value, const PropertyAddress& proxy = {})
{
    if (!value.isValid())
        qFatal("documentGenerator: wrong value for %s", qPrintable(key.toString()));
    if (proxy.isValid() || !(value == definitionOf(db, node.cid, key).defaultValue))
        node.values.push_back({INVALID_CID, key, value, proxy});
}

void setText(NodeDb& db, NodeSnapshot& node, const char* keyText, const QString& text)
{
    const PropertyKey key = PropertyKey::fromString(keyText);
    setEntry(db, node, key, valueFromText(definitionOf(db, node.cid, key).type, text));
}

/// As saving orders the values: as the class does.
void sortValues(NodeDb& db, NodeSnapshot& node)
{
    const NodePrototype* prototype = db.lookupPrototype(node.cid);
    std::stable_sort(node.values.begin(), node.values.end(), [&](const auto& a, const auto& b) {
        return prototype->indexOf(a.key) < prototype->indexOf(b.key);
    });
    for (NodeSnapshot& child : node.children)
        sortValues(db, child);
    if (node.popup)
        sortValues(db, *node.popup);
}

void placePart(NodeDb& db, NodeSnapshot& part, size_t n)
{
    const QString x = QString::number(0.01 + 0.0254 * static_cast<double>(n % 20));
    const QString y = QString::number(0.015 * static_cast<double>(n / 20 % 30));
    setText(db, part, "position", x + u' ' + y);
}

/// Writes the parts of a document and remembers what later ones refer to.
class PartsWriter
{
public:
    PartsWriter(QXmlStreamWriter& xml, NodeDb& db) : m_xml(xml), m_db(db) {}

    InstanceId takeId() { return m_nextId++; }

    void writeParts(size_t nodes)
    {
        while (nodes > 0) {
            NodeSnapshot part =
                m_partsSinceWire >= 2 && m_pins[0] != 0 ? wire() : generatedPart(m_db, m_parts, m_nextId);
            if (part.count() > nodes)
                part = text();
            if (part.cid == getCidForString("electronics/led"))
                followEarlierLight(part);
            sortValues(m_db, part);
            const size_t count = part.count();
            nodes -= count;
            m_nextId += static_cast<InstanceId>(count);
            ++m_parts;
            NodeXml::write(m_xml, part, m_db);
        }
    }

private:
    NodeSnapshot wire()
    {
        NodeSnapshot part = NodeSnapshot::ofPrototype(m_db, getCidForString("electronics/wire"));
        part.id = m_nextId;
        m_partsSinceWire = 0;
        setText(m_db, part, "id", QStringLiteral("wire%1").arg(m_parts));
        setText(m_db, part, "from", QString::number(m_pins[0]));
        setText(m_db, part, "to", QString::number(m_pins[1]));
        return part;
    }

    NodeSnapshot text()
    {
        NodeSnapshot part = NodeSnapshot::ofPrototype(m_db, getCidForString("core/text"));
        part.id = m_nextId;
        setText(m_db, part, "id", QStringLiteral("text%1").arg(m_parts));
        setText(m_db, part, "text", QStringLiteral("Number %1").arg(m_parts));
        placePart(m_db, part, m_parts);
        return part;
    }

    void followEarlierLight(NodeSnapshot& part)
    {
        const PropertyKey color = PropertyKey::fromString("color");
        if (m_lights % 5 == 4) {
            std::erase_if(part.values, [&](const auto& entry) { return entry.key == color; });
            setEntry(m_db, part, color, m_lightColor, {m_light, INVALID_CID, color});
        } else {
            m_light = part.id;
            m_lightColor = definitionOf(m_db, part.cid, color).defaultValue;
            for (const NodeSnapshot::ValueEntry& entry : part.values) {
                if (entry.key == color)
                    m_lightColor = entry.value;
            }
        }
        ++m_lights;
        m_pins[1] = m_pins[0];
        m_pins[0] = part.children.front().id;
        ++m_partsSinceWire;
    }

    QXmlStreamWriter& m_xml;
    NodeDb& m_db;
    Value m_lightColor;
    size_t m_parts = 0;
    size_t m_lights = 0;
    size_t m_partsSinceWire = 0;
    InstanceId m_nextId = 1;
    InstanceId m_light = 0;
    InstanceId m_pins[2] = {0, 0};
};

void writeText(QXmlStreamWriter& xml, const char* key, const QString& text)
{
    xml.writeStartElement(QStringLiteral("value"));
    xml.writeAttribute(QStringLiteral("key"), QString::fromLatin1(key));
    xml.writeCharacters(text);
    xml.writeEndElement();
}

void startNode(QXmlStreamWriter& xml, const char* element, const char* cid, InstanceId id)
{
    xml.writeStartElement(QString::fromLatin1(element));
    xml.writeAttribute(QStringLiteral("class"), QString::fromLatin1(cid));
    xml.writeAttribute(QStringLiteral("id"), QString::number(id));
}

} // namespace

NodeSnapshot generatedPart(NodeDb& db, size_t n, InstanceId firstId)
{
    const PartKind& kind = partKinds[n % std::size(partKinds)];
    const size_t round = n / std::size(partKinds);
    NodeSnapshot part = NodeSnapshot::ofPrototype(db, getCidForString(kind.cid)).withFreshIds(firstId);
    setText(db, part, "id", QString::fromLatin1(kind.prefix) + QString::number(n));
    placePart(db, part, n);
    setText(db, part, kind.key, QString::fromLatin1(kind.values[round % 4]));
    if (round % 3 == 1)
        setText(db, part, "orientation", QString::number(0.25 * static_cast<double>(round % 24)));
    if (round % 7 == 3)
        part.locks = 1u << (round % 4);
    sortValues(db, part);
    return part;
}

QByteArray generatedDocument(size_t nodes)
{
    NodeDb db;
    DocumentImpl::addPackagedClasses(db);
    const size_t total = std::max<size_t>(nodes, 2);
    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(total) * 250);
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("zkdoc"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("next-id"), QString::number(total + 1));
    PartsWriter parts(xml, db);
    startNode(xml, "model", "core/model", parts.takeId());
    writeText(xml, "title", QStringLiteral("Generated, %1 nodes").arg(total));
    size_t left = total - 1;
    for (int scene = 1; left > 0; ++scene) {
        const size_t inScene = std::min(left, nodesOfScene) - 1;
        startNode(xml, "scene", "core/scene", parts.takeId());
        writeText(xml, "id", QStringLiteral("scene%1").arg(scene));
        if (scene % 2 == 0) {
            xml.writeStartElement(QStringLiteral("domain"));
            xml.writeAttribute(QStringLiteral("class"), QStringLiteral("flowcharts/*"));
            writeText(xml, "speed", QStringLiteral("Fast"));
            xml.writeEndElement();
        }
        parts.writeParts(inScene);
        xml.writeEndElement();
        left -= inScene + 1;
    }
    xml.writeEndDocument();
    return bytes;
}

void loadGeneratedDocument(DocumentImpl& document, size_t nodes)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("generated.zkdoc"));
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(generatedDocument(nodes)) < 0)
        qFatal("documentGenerator: %s", qPrintable(file.errorString()));
    file.close();
    if (!document.load(fileName))
        qFatal("documentGenerator: %s", qPrintable(document.lastError()));
}
