#pragma once

#include "zkcore/model/propertyAddress.h"

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <vector>

/// What recorded commands share: property addresses and lists of instance ids as attributes.
namespace commandXml {

void writeAddress(QXmlStreamWriter& writer, const PropertyAddress& address, const QString& prefix = {});
/// Invalid address when an attribute is missing or faulty.
PropertyAddress readAddress(const QXmlStreamAttributes& attributes, const QString& prefix = {});

void writeIds(QXmlStreamWriter& writer, const QString& attribute, const std::vector<InstanceId>& ids);
bool readIds(const QXmlStreamAttributes& attributes, const QString& attribute, std::vector<InstanceId>& ids);

/// False when the attribute is missing or no number.
bool readNumber(const QXmlStreamAttributes& attributes, const QString& attribute, unsigned int& number);

} // namespace commandXml
