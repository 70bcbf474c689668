#pragma once

#include "zkcore/model/propertyDefinition.h"
#include "zkcore/storage/packageElement.h"

#include <QCoreApplication>

class NodePrototype;

/// Makes property definitions and values from the <property> and <value> elements of a package file. Every function
/// returns false after it raised the fault.
class PackagePropertyReader
{
    Q_DECLARE_TR_FUNCTIONS(Package)

public:
    explicit PackagePropertyReader(PackageFault& fault) : m_fault(fault) {}

    /// Keys that the program makes itself from other parts of a class.
    static bool isReservedKey(const QString& key);

    /// `inherited` is the property of the same key in a base class; null when there is none.
    bool readKey(const PackageElement& element, PropertyKey& key);
    bool readProperty(const PackageElement& element, const PropertyDefinition* inherited,
                      PropertyDefinition& definition);
    /// The value that a <value> element gives to a property; the property's validator has allowed it.
    bool readValue(const PackageElement& element, const PropertyDefinition& definition, Value& value);
    /// "true" or "false"; `flag` stays as it is when the attribute is not given.
    bool readFlag(const PackageElement& element, const char* attribute, bool& flag);
    /// A whole number from `minimum` on; `number` stays as it is when the attribute is not given.
    bool readNumber(const PackageElement& element, const char* attribute, int minimum, int& number);
    /// One of the words; `index` stays as it is when the attribute is not given.
    bool readChoice(const PackageElement& element, const char* attribute, std::initializer_list<const char*> words,
                    int& index);
    /// A resource that a package has; the null resource for an empty text. INVALID: any type will do.
    bool readResource(const PackageElement& at, const QString& name, Resource::Type type, Resource& resource);

private:
    bool readUnit(const PackageElement& element, Value::Type type, Unit& unit);
    bool readFlags(const PackageElement& element, PropertyDefinition& definition);
    bool readText(const PackageElement& at, Value::Type type, const QString& text, const Unit& unit, Value& value);
    bool readContent(const PackageElement& element, Value::Type type, const Unit& unit, Value& value);
    bool readDefault(const PackageElement& element, const Unit& unit, PropertyDefinition& definition);
    bool readFormat(const PackageElement& element, const Unit& unit, PropertyDefinition& definition);
    bool readValidator(const PackageElement& element, const Unit& unit, PropertyDefinition& definition);
    bool readRange(const PackageElement& element, const Unit& unit, PropertyDefinition& definition);
    bool readSet(const PackageElement& element, const Unit& unit, PropertyDefinition& definition);
    bool readPattern(const PackageElement& element, PropertyDefinition& definition);
    bool readResources(const PackageElement& element, PropertyDefinition& definition);
    bool checkAllowed(const PackageElement& at, const PropertyDefinition& definition, const Value& value);

    PackageFault& m_fault;
};
