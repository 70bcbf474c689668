#include "zkcore/storage/fragmentXmlWriter.h"

#include "zkcore/model/elementImpl.h"
#include "zkcore/storage/nodeReader.h"
#include "zkcore/storage/nodeWriter.h"
#include "zkcore/storage/xmlGuard.h"

#include <QBuffer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <unordered_set>

namespace {

constexpr int fragmentVersion = 1;

template <typename WriteNodes> QByteArray makeFragment(const WriteNodes& writeNodes)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("zkfragment"));
    xml.writeAttribute(QStringLiteral("version"), QString::number(fragmentVersion));
    writeNodes(xml);
    xml.writeEndDocument();
    return bytes;
}

bool standsInOneOf(const NodeImpl* node, const std::unordered_set<const NodeImpl*>& others)
{
    for (const NodeImpl* parent = node->parentNode(); parent; parent = parent->parentNode()) {
        if (others.contains(parent))
            return true;
    }
    return false;
}

} // namespace

QByteArray FragmentXMLWriter::writeElement(const ElementImpl* element)
{
    return writeElements({element});
}

QByteArray FragmentXMLWriter::writeElements(const std::vector<const ElementImpl*>& elements)
{
    std::unordered_set<const NodeImpl*> live;
    for (const ElementImpl* element : elements) {
        if (NodeImpl::valid(element))
            live.insert(element);
    }
    return makeFragment([&](QXmlStreamWriter& xml) {
        NodeXml::Writer nodes(xml);
        for (const ElementImpl* element : elements) {
            // An element comes once, with what it stands in when that is among the elements.
            if (live.contains(element) && !standsInOneOf(element, live)) {
                nodes.write(*element);
                live.erase(element);
            }
        }
    });
}

QByteArray FragmentXMLWriter::writeClass(ClassId cid, NodeDb& db)
{
    std::vector<NodeSnapshot> nodes;
    if (db.hasPrototype(cid))
        nodes.push_back(NodeSnapshot::ofPrototype(db, cid));
    return write(nodes, db);
}

QByteArray FragmentXMLWriter::write(const std::vector<NodeSnapshot>& nodes, const NodeDb& db)
{
    return makeFragment([&](QXmlStreamWriter& xml) {
        NodeXml::Writer writer(xml);
        for (const NodeSnapshot& node : nodes)
            writer.write(node, db);
    });
}

bool FragmentXMLWriter::read(const QByteArray& fragment, NodeDb& db, std::vector<NodeSnapshot>& nodes, QString& error)
{
    nodes.clear();
    error.clear();
    QBuffer buffer;
    buffer.setData(fragment);
    buffer.open(QIODevice::ReadOnly);
    XmlGuardDevice guard(buffer);
    QXmlStreamReader xml(&guard);
    xml.setNamespaceProcessing(false);
    QStringList warnings;
    NodeXml::Reader reader(xml, db, warnings);
    const auto readAll = [&] {
        using Tag = NodeXml::Reader::Tag;
        if (reader.nextTag() != Tag::Start || xml.qualifiedName() != u"zkfragment")
            return reader.fault(NodeXml::Reader::tr("this is no fragment"));
        if (xml.attributes().value(QLatin1String("version")) != QString::number(fragmentVersion))
            return reader.fault(NodeXml::Reader::tr("the format version is missing or not known"));
        Tag tag = Tag::Fault;
        while ((tag = reader.nextTag()) == Tag::Start) {
            NodeKind kind{};
            if (!NodeXml::Reader::kindOf(xml.qualifiedName(), kind) ||
                (kind != NodeKind::Part && kind != NodeKind::Subpart))
                return reader.fault(NodeXml::Reader::tr("<%1> cannot stand here").arg(xml.qualifiedName()));
            if (!reader.readNode(nodes.emplace_back()))
                return false;
        }
        return tag == Tag::End && reader.readRest() && reader.check(nullptr);
    };
    if (readAll())
        return true;
    if (guard.isStopped())
        xml.raiseError(XmlGuardDevice::reason());
    error = reader.faultText();
    nodes.clear();
    return false;
}

QString FragmentXMLWriter::fragmentMimeType()
{
    return QStringLiteral("application/x-zk-fragment+xml");
}
