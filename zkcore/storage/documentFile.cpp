#include "zkcore/storage/documentFile.h"

#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/storage/nodeReader.h"
#include "zkcore/storage/nodeWriter.h"
#include "zkcore/storage/xmlGuard.h"

#include <QFileDevice>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <algorithm>

namespace {

// What base64 makes of 64 MB.
constexpr qsizetype maximumResourceText = 90 * 1024 * 1024;

/// Reads what stands around the nodes of a document.
class DocumentReader
{
    Q_DECLARE_TR_FUNCTIONS(DocumentFile)

public:
    DocumentReader(QXmlStreamReader& xml, NodeXml::Reader& nodes, DocumentContent& content)
        : m_xml(xml), m_nodes(nodes), m_content(content)
    {
    }

    bool read()
    {
        if (m_nodes.nextTag() != Tag::Start)
            return m_nodes.fault(tr("this is no document"));
        if (m_xml.qualifiedName() != u"zkdoc")
            return m_nodes.fault(tr("this is no document: it begins with <%1>").arg(m_xml.qualifiedName()));
        if (!readRootAttributes() || !readRootContent())
            return false;
        if (!m_hasModel)
            return m_nodes.fault(tr("the document has no model"));
        return m_nodes.readRest() && m_nodes.check(&m_content.root) && raiseNextId();
    }

private:
    using Tag = NodeXml::Reader::Tag;

    bool readRootAttributes()
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        bool isNumber = false;
        const int version = attributes.value(QLatin1String("version")).toInt(&isNumber);
        if (!isNumber || version < 1)
            return m_nodes.fault(tr("the format version is missing or no number"));
        if (version > DocumentFile::formatVersion)
            return m_nodes.fault(tr("the format version is %1; this program reads versions up to %2")
                                     .arg(version)
                                     .arg(DocumentFile::formatVersion));
        const QStringView nextId = attributes.value(QLatin1String("next-id"));
        m_content.nextId = 0;
        if (!nextId.isNull() && nextId != u"4294967295" && !NodeXml::Reader::parseId(nextId, m_content.nextId))
            return m_nodes.fault(tr("\"%1\" is no instance id").arg(nextId));
        return true;
    }

    bool readRootContent()
    {
        Tag tag = Tag::Fault;
        while ((tag = m_nodes.nextTag()) == Tag::Start) {
            if (!readRootChild())
                return false;
        }
        return tag == Tag::End;
    }

    bool readRootChild()
    {
        if (m_xml.qualifiedName() == u"model") {
            if (m_hasModel)
                return m_nodes.fault(tr("a document has one model only"));
            m_hasModel = true;
            if (!m_nodes.readNode(m_content.root))
                return false;
            return !m_content.root.children.empty() || m_nodes.fault(tr("the document has no scene"));
        }
        if (m_xml.qualifiedName() == u"resources" && !m_hasModel)
            return readResources();
        return m_nodes.fault(tr("<%1> cannot stand here").arg(m_xml.qualifiedName()));
    }

    bool readResources()
    {
        Tag tag = Tag::Fault;
        while ((tag = m_nodes.nextTag()) == Tag::Start) {
            if (m_xml.qualifiedName() != u"resource")
                return m_nodes.fault(tr("<%1> cannot stand here").arg(m_xml.qualifiedName()));
            if (!readResource())
                return false;
        }
        return tag == Tag::End;
    }

    bool readResource()
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const QString name = valueFromText(Value::STRING, attributes.value(QLatin1String("name"))).toQString();
        const QString typeText = attributes.value(QLatin1String("type")).toString();
        const QString extension =
            valueFromText(Value::STRING, attributes.value(QLatin1String("extension"))).toQString();
        const Resource::Type type = Resource::typeFromString(typeText);
        if (!name.startsWith(u"local/") || name.size() == 6)
            return m_nodes.fault(tr("\"%1\" is no name of a document's resource").arg(name));
        if (type == Resource::INVALID)
            return m_nodes.fault(tr("\"%1\" is no type of resource").arg(typeText));
        for (const auto& entry : m_content.resources) {
            if (entry->name() == name)
                return m_nodes.fault(tr("resource \"%1\" is there twice").arg(name));
        }
        QByteArray text;
        for (;;) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::EndElement)
                break;
            if (token == QXmlStreamReader::Comment || token == QXmlStreamReader::ProcessingInstruction)
                continue;
            if (token != QXmlStreamReader::Characters)
                return m_nodes.fault(tr("only text can stand here"));
            if (text.size() + m_xml.text().size() > maximumResourceText)
                return m_nodes.fault(tr("resource \"%1\" is larger than 64 MB").arg(name));
            text += m_xml.text().toLatin1();
        }
        text.removeIf([](char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; });
        auto bytes = QByteArray::fromBase64Encoding(std::move(text), QByteArray::AbortOnBase64DecodingErrors);
        if (!bytes)
            return m_nodes.fault(tr("the data of resource \"%1\" are damaged").arg(name));
        m_content.resources.push_back(std::make_shared<LocalREntry>(name, type, std::move(*bytes), extension));
        return true;
    }

    bool raiseNextId()
    {
        const InstanceId least = m_nodes.highestId() + 1;
        if (m_content.nextId != 0 && m_content.nextId < least)
            m_nodes.warn(
                tr("the next instance id was %1, which is too low; it is %2 now").arg(m_content.nextId).arg(least));
        m_content.nextId = std::max(m_content.nextId, least);
        return true;
    }

    QXmlStreamReader& m_xml;
    NodeXml::Reader& m_nodes;
    DocumentContent& m_content;
    bool m_hasModel = false;
};

void writeResources(QXmlStreamWriter& xml, const std::vector<Resource>& resources)
{
    if (resources.empty())
        return;
    xml.writeStartElement(QStringLiteral("resources"));
    for (const Resource& resource : resources) {
        const ResourceEntry* entry = resource.entry();
        if (!entry)
            continue;
        xml.writeStartElement(QStringLiteral("resource"));
        xml.writeAttribute(QStringLiteral("name"), valueToText(Value(entry->name())));
        xml.writeAttribute(QStringLiteral("type"), Resource::typeAsString(entry->type()));
        xml.writeAttribute(QStringLiteral("extension"), valueToText(Value(entry->extension())));
        xml.writeCharacters(QString::fromLatin1(entry->data().toBase64()));
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

/// The parser meets a wrong byte when it decodes the block around it, long before the text that it stands in: this
/// finds the line and column of the first byte of the file that is not UTF-8. False when there is none.
bool findWrongByte(QIODevice& device, qint64& line, qint64& column)
{
    if (device.isSequential() || !device.seek(0))
        return false;
    for (line = 1; !device.atEnd(); ++line) {
        const QByteArray text = device.readLine();
        if (QUtf8StringView(text).isValidUtf8())
            continue;
        column = QString::fromUtf8(text).indexOf(QChar(QChar::ReplacementCharacter)) + 1;
        return true;
    }
    return false;
}

bool isEncodingFault(const QXmlStreamReader& xml)
{
    const QStringView encoding = xml.documentEncoding();
    return xml.errorString() == QCoreApplication::translate("QXmlStream", "Encountered incorrectly encoded content.") &&
           (encoding.isEmpty() || encoding.compare(u"UTF-8", Qt::CaseInsensitive) == 0);
}

} // namespace

bool DocumentFile::read(QIODevice& device, const QString& name, NodeDb& db, DocumentContent& content, QString& error)
{
    content = DocumentContent();
    error.clear();
    if (!device.isOpen() && !device.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("%1: %2").arg(name, device.errorString());
        return false;
    }
    XmlGuardDevice guard(device);
    QXmlStreamReader xml(&guard);
    xml.setNamespaceProcessing(false);
    QStringList warnings;
    NodeXml::Reader nodes(xml, db, warnings, name + u':');
    nodes.requireIds();
    if (!DocumentReader(xml, nodes, content).read()) {
        qint64 line = 0;
        qint64 column = 0;
        if (guard.isStopped())
            xml.raiseError(XmlGuardDevice::reason());
        else if (isEncodingFault(xml) && findWrongByte(device, line, column))
            nodes.setFaultPlace(line, column);
        error = name + u':' + nodes.faultText();
        content = DocumentContent();
        return false;
    }
    nodes.finishWarnings();
    content.warnings = std::move(warnings);
    return true;
}

bool DocumentFile::write(QIODevice& device, const DocumentImpl& document, QString& error)
{
    error.clear();
    if (!device.isOpen() && !device.open(QIODevice::WriteOnly)) {
        error = device.errorString();
        return false;
    }
    QXmlStreamWriter xml(&device);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("zkdoc"));
    xml.writeAttribute(QStringLiteral("version"), QString::number(formatVersion));
    xml.writeAttribute(QStringLiteral("next-id"), QString::number(document.nextFreeId()));
    writeResources(xml, document.localResources());
    NodeXml::Writer nodes(xml);
    nodes.write(*document.m_model);
    xml.writeEndDocument();
    auto* file = qobject_cast<QFileDevice*>(&device);
    if (xml.hasError() || (file && !file->flush())) {
        if (file)
            file->flush(); // what was written in part does not say why; the next try does
        error = device.errorString();
        return false;
    }
    if (nodes.leftOutDeepNodes()) {
        error =
            QCoreApplication::translate("DocumentFile", "nodes are nested deeper than %1").arg(NodeXml::maximumDepth);
        return false;
    }
    return true;
}
