#include "zkcore/storage/packageElement.h"

#include "zkcore/storage/xmlGuard.h"
#include "zkcore/storage/xmlText.h"

#include <QIODevice>
#include <QXmlStreamReader>
#include <algorithm>

namespace {

constexpr int greatestPackageDepth = 32;
constexpr qint64 greatestPackageFile = 16 * 1024 * 1024;

bool isNameAmong(const QString& name, std::initializer_list<const char*> names)
{
    return std::any_of(names.begin(), names.end(), [&name](const char* known) { return name == QLatin1String(known); });
}

void appendPackageElement(const PackageElement& element, QString& out)
{
    xmlText::appendOpenTag(out, element.name);
    for (const auto& [name, value] : element.attributes)
        xmlText::appendAttribute(out, name, value);
    out += u'>';
    // Text beside elements is only white space, its place does not matter.
    xmlText::appendText(out, element.text);
    for (const PackageElement& child : element.children)
        appendPackageElement(child, out);
    out += u"</";
    out += element.name;
    out += u'>';
}

/// Makes the element on whose start the reader stands.
PackageElement startedPackageElement(const QXmlStreamReader& reader)
{
    PackageElement element;
    element.name = reader.qualifiedName().toString();
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        QString value = attribute.value().toString();
        if (value.isNull())
            value = QStringLiteral("");
        element.attributes.emplace_back(attribute.qualifiedName().toString(), value);
    }
    element.line = reader.lineNumber();
    element.column = reader.columnNumber();
    return element;
}

} // namespace

bool PackageFault::raise(const PackageElement& at, const QString& reason)
{
    return raise(at.line, at.column, reason);
}

bool PackageFault::raise(qint64 line, qint64 column, const QString& reason)
{
    if (isRaised())
        return false;
    m_line = qMax<qint64>(line, 1);
    m_column = qMax<qint64>(column, 1);
    m_reason = reason;
    return false;
}

QString PackageFault::message(const QString& fileName) const
{
    return QStringLiteral("%1:%2:%3: %4").arg(fileName, QString::number(m_line), QString::number(m_column), m_reason);
}

QString PackageElement::attribute(const char* attributeName) const
{
    for (const auto& [known, value] : attributes)
        if (known == QLatin1String(attributeName))
            return value;
    return {};
}

bool PackageElement::check(std::initializer_list<const char*> attributeNames,
                           std::initializer_list<const char*> childNames, Content content, PackageFault& fault) const
{
    for (const auto& [known, value] : attributes)
        if (!isNameAmong(known, attributeNames))
            return fault.raise(*this, tr("<%1> has no attribute \"%2\"").arg(name, known));
    for (const PackageElement& child : children)
        if (!isNameAmong(child.name, childNames))
            return fault.raise(child, tr("<%1> cannot stand in <%2>").arg(child.name, name));
    if ((content == OnlyElements || !children.empty()) && !text.trimmed().isEmpty())
        return fault.raise(*this, tr("<%1> cannot have text here").arg(name));
    return true;
}

QString PackageElement::toXml() const
{
    QString out;
    appendPackageElement(*this, out);
    return out;
}

bool PackageElement::read(QIODevice& device, PackageElement& root, PackageFault& fault)
{
    if (device.size() > greatestPackageFile)
        return fault.raise(1, 1, tr("the file is larger than 16 MB"));
    XmlGuardDevice guard(device);
    QXmlStreamReader reader(&guard);
    reader.setNamespaceProcessing(false);
    std::vector<PackageElement> open; // from the root to the element that is being read
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (open.size() >= greatestPackageDepth)
                reader.raiseError(tr("the elements are nested too deep"));
            else
                open.push_back(startedPackageElement(reader));
            break;
        case QXmlStreamReader::EndElement: {
            PackageElement finished = std::move(open.back());
            open.pop_back();
            if (open.empty())
                root = std::move(finished);
            else
                open.back().children.push_back(std::move(finished));
            break;
        }
        case QXmlStreamReader::Characters:
            if (!open.empty())
                open.back().text += reader.text();
            break;
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            reader.raiseError(tr("document types and entities are not understood"));
            break;
        default:
            break;
        }
    }
    if (!reader.hasError())
        return true;
    return fault.raise(reader.lineNumber(), reader.columnNumber(),
                       guard.isStopped() ? XmlGuardDevice::reason() : reader.errorString());
}
