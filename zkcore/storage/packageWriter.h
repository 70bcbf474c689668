#pragma once

#include "zkcore/storage/packageReader.h"

#include <memory>
#include <vector>

class QIODevice;
class QXmlStreamWriter;
struct NumericalFormat;
struct PropertyDefinition;
struct SubpartDefinition;

/// Writes the classes of a package as package.xml. Of a class with a base only what differs from the base is written.
class PackageWriter
{
public:
    /// `known` finds the bases that are not among the classes. False when the device fails.
    static bool write(QIODevice& device, const QString& name, int version, const QString& label,
                      const std::vector<std::shared_ptr<NodePrototype>>& classes,
                      const PackageReader::KnownClasses& known);

private:
    PackageWriter(QXmlStreamWriter& writer, PackageReader::KnownClasses known)
        : m_writer(writer), m_known(std::move(known))
    {
    }

    void writeClass(const NodePrototype& prototype);
    void writeAttributes(const NodePrototype& prototype, const NodePrototype& base);
    void writeProperty(const PropertyDefinition& definition);
    void writeFormat(const NumericalFormat& format);
    void writeValidator(const PropertyDefinition& definition);
    void writeValue(PropertyKey key, const Value& value);
    void writeForms(const NodePrototype& prototype, const NodePrototype& base);
    void writeSubstitutions(const NodePrototype& prototype, const NodePrototype& base);
    void writeSubparts(const NodePrototype& prototype, const NodePrototype& base);
    void writeRules(const NodePrototype& prototype, const NodePrototype& base);
    void writeContent(const Value& value);
    void writeAttribute(const char* name, const QString& text);

    QXmlStreamWriter& m_writer;
    PackageReader::KnownClasses m_known;
};
