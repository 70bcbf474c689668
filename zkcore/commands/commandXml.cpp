#include "zkcore/commands/commandXml.h"

namespace commandXml {

void writeAddress(QXmlStreamWriter& writer, const PropertyAddress& address, const QString& prefix)
{
    writer.writeAttribute(prefix + QStringLiteral("node"), QString::number(address.node));
    if (address.domain != INVALID_CID)
        writer.writeAttribute(prefix + QStringLiteral("domain"), findStringForCid(address.domain));
    writer.writeAttribute(prefix + QStringLiteral("key"), address.key.toString());
}

PropertyAddress readAddress(const QXmlStreamAttributes& attributes, const QString& prefix)
{
    PropertyAddress address;
    if (!readNumber(attributes, prefix + QStringLiteral("node"), address.node))
        return {};
    address.domain = getCidForString(attributes.value(prefix + QStringLiteral("domain")).toString());
    address.key = PropertyKey::fromString(attributes.value(prefix + QStringLiteral("key")).toString());
    return address;
}

void writeIds(QXmlStreamWriter& writer, const QString& attribute, const std::vector<InstanceId>& ids)
{
    QString text;
    for (const InstanceId id : ids) {
        if (!text.isEmpty())
            text += QLatin1Char(' ');
        text += QString::number(id);
    }
    writer.writeAttribute(attribute, text);
}

bool readIds(const QXmlStreamAttributes& attributes, const QString& attribute, std::vector<InstanceId>& ids)
{
    ids.clear();
    const QStringView text = attributes.value(attribute);
    for (const QStringView part : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        bool ok = false;
        ids.push_back(part.toUInt(&ok));
        if (!ok)
            return false;
    }
    return attributes.hasAttribute(attribute);
}

bool readNumber(const QXmlStreamAttributes& attributes, const QString& attribute, unsigned int& number)
{
    bool ok = false;
    number = attributes.value(attribute).toUInt(&ok);
    return ok;
}

} // namespace commandXml
