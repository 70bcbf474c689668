#include "zkcore/storage/xmlText.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

constexpr int maximumUnknownDepth = 64;

void appendEscaped(QString& out, QStringView text, bool attribute)
{
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'&':
            out += u"&amp;";
            break;
        case u'<':
            out += u"&lt;";
            break;
        case u'>':
            out += u"&gt;";
            break;
        case u'\r':
            out += u"&#13;";
            break;
        case u'"':
            if (attribute)
                out += u"&quot;";
            else
                out += c;
            break;
        case u'\n':
            if (attribute)
                out += u"&#10;";
            else
                out += c;
            break;
        case u'\t':
            if (attribute)
                out += u"&#9;";
            else
                out += c;
            break;
        default:
            out += c;
        }
    }
}

/// Readers take a carriage return for a line end unless it is written as a reference.
void writeTextWithReturns(QXmlStreamWriter& writer, const QString& text)
{
    qsizetype from = 0;
    for (;;) {
        const qsizetype end = text.indexOf(u'\r', from);
        writer.writeCharacters(text.mid(from, end < 0 ? -1 : end - from));
        if (end < 0)
            return;
        writer.writeEntityReference(QStringLiteral("#13"));
        from = end + 1;
    }
}

bool refuseUnknown(QXmlStreamReader& reader, const char* reason)
{
    reader.raiseError(QCoreApplication::translate("DocumentFile", reason));
    return false;
}

} // namespace

void xmlText::appendOpenTag(QString& out, QStringView name)
{
    out += u'<';
    out += name;
}

void xmlText::appendAttribute(QString& out, QStringView name, QStringView value)
{
    out += u' ';
    out += name;
    out += u"=\"";
    appendEscaped(out, value, true);
    out += u'"';
}

void xmlText::appendText(QString& out, QStringView text)
{
    appendEscaped(out, text, false);
}

bool xmlText::appendElement(QXmlStreamReader& reader, QString& out)
{
    const qsizetype start = out.size();
    int depth = 0;
    bool open = false; // a start tag still lacks its bracket
    const auto close = [&] {
        if (open)
            out += u'>';
        open = false;
    };
    for (;;) {
        switch (reader.tokenType()) {
        case QXmlStreamReader::StartElement: {
            close();
            if (++depth > maximumUnknownDepth)
                return refuseUnknown(reader, QT_TRANSLATE_NOOP("DocumentFile", "elements are nested too deep"));
            appendOpenTag(out, reader.qualifiedName());
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute& attribute : attributes)
                appendAttribute(out, attribute.qualifiedName(), attribute.value());
            open = true;
            break;
        }
        case QXmlStreamReader::EndElement:
            if (open) {
                out += u"/>";
            } else {
                out += u"</";
                out += reader.qualifiedName();
                out += u'>';
            }
            open = false;
            --depth;
            break;
        case QXmlStreamReader::Characters:
            close();
            appendText(out, reader.text());
            break;
        case QXmlStreamReader::Comment:
            close();
            out += u"<!--";
            out += reader.text();
            out += u"-->";
            break;
        case QXmlStreamReader::ProcessingInstruction:
            close();
            out += u"<?";
            out += reader.processingInstructionTarget();
            out += u' ';
            out += reader.processingInstructionData();
            out += u"?>";
            break;
        case QXmlStreamReader::NoToken:
        case QXmlStreamReader::Invalid:
        case QXmlStreamReader::StartDocument:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            if (!reader.hasError())
                return refuseUnknown(reader, QT_TRANSLATE_NOOP("DocumentFile", "this cannot stand here"));
            return false;
        }
        if (out.size() - start > maximumLength)
            return refuseUnknown(reader, QT_TRANSLATE_NOOP("DocumentFile", "an unknown element is longer than 64 MB"));
        if (depth == 0)
            return true;
        reader.readNext();
    }
}

void xmlText::writeElements(QXmlStreamWriter& writer, const QString& elements)
{
    const bool formatting = writer.autoFormatting();
    QXmlStreamReader reader(QStringLiteral("<r>") + elements + QStringLiteral("</r>"));
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            if (++depth == 1)
                break;
            writer.writeStartElement(reader.qualifiedName().toString());
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute& attribute : attributes)
                writer.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
            writer.setAutoFormatting(false);
            break;
        }
        case QXmlStreamReader::EndElement:
            if (--depth == 0)
                break;
            writer.writeEndElement();
            if (depth == 1)
                writer.setAutoFormatting(formatting);
            break;
        case QXmlStreamReader::Characters:
            if (depth > 1)
                writeTextWithReturns(writer, reader.text().toString());
            break;
        case QXmlStreamReader::Comment:
            writer.writeComment(reader.text().toString());
            break;
        case QXmlStreamReader::ProcessingInstruction:
            writer.writeProcessingInstruction(reader.processingInstructionTarget().toString(),
                                              reader.processingInstructionData().toString());
            break;
        default:
            break;
        }
    }
    writer.setAutoFormatting(formatting);
}
