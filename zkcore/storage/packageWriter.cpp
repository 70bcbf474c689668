#include "zkcore/storage/packageWriter.h"

#include "zkcore/model/nodePrototype.h"
#include "zkcore/storage/packageWords.h"
#include "zkcore/storage/valueXml.h"
#include "zkcore/values/validator.h"

#include <QXmlStreamWriter>
#include <algorithm>

namespace {

bool sameFormat(const NumericalFormat& a, const NumericalFormat& b)
{
    return a.decimals == b.decimals && a.units == b.units && a.unit == b.unit;
}

/// Whether the definitions differ in nothing but the default.
bool sameButDefault(const PropertyDefinition& a, const PropertyDefinition& b)
{
    const bool sameValidator =
        a.validator == b.validator || (a.validator && b.validator && a.validator->isEqual(*b.validator));
    const bool equalFormat = a.format == b.format || (a.format && b.format && sameFormat(*a.format, *b.format));
    return a.type == b.type && a.flags == b.flags && a.label == b.label && a.help == b.help &&
           a.lockGroup == b.lockGroup && sameValidator && equalFormat;
}

bool sameSubpart(const SubpartDefinition& a, const SubpartDefinition& b)
{
    return a.cid == b.cid && a.values == b.values;
}

bool sameRule(const SubpartRule& a, const SubpartRule& b)
{
    return a.role == b.role && a.classes == b.classes && a.maximum == b.maximum;
}

bool extendsSubparts(const NodePrototype& prototype, const NodePrototype& base)
{
    return prototype.subparts.size() >= base.subparts.size() &&
           std::equal(base.subparts.begin(), base.subparts.end(), prototype.subparts.begin(), sameSubpart);
}

std::vector<QString> formsOfClass(const NodePrototype& prototype)
{
    static const PropertyKey key = PropertyKey::fromString("meta-controlpane");
    const PropertyDefinition* definition = prototype.find(key);
    return definition ? definition->defaultValue.toStringVector() : std::vector<QString>();
}

ValueMap substitutionsOfClass(const NodePrototype& prototype)
{
    static const PropertyKey key = PropertyKey::fromString("meta-ui-substitutions");
    const PropertyDefinition* definition = prototype.find(key);
    return definition ? definition->defaultValue.toValueMap() : ValueMap();
}

/// The text with what XML cannot hold (control characters, half surrogate pairs) replaced. Value texts have escapes of
/// their own and come out as they are.
QString writableText(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        else if (c.isSurrogate() || c.unicode() >= 0xfffe ||
                 (c.unicode() < 0x20 && c != u'\t' && c != u'\n' && c != u'\r'))
            text[i] = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

} // namespace

bool PackageWriter::write(QIODevice& device, const QString& name, int version, const QString& label,
                          const std::vector<std::shared_ptr<NodePrototype>>& classes,
                          const PackageReader::KnownClasses& known)
{
    QXmlStreamWriter stream(&device);
    const auto lookup = [&classes, &known](ClassId cid) -> const NodePrototype* {
        const auto own = std::find_if(classes.begin(), classes.end(),
                                      [cid](const auto& candidate) { return candidate->cid == cid; });
        return own != classes.end() ? own->get() : known(cid);
    };
    PackageWriter writer(stream, lookup);
    stream.setAutoFormatting(true);
    stream.setAutoFormattingIndent(2);
    stream.writeStartDocument();
    stream.writeStartElement(QStringLiteral("package"));
    writer.writeAttribute("format", QString::number(PackageReader::formatVersion));
    writer.writeAttribute("name", name);
    writer.writeAttribute("version", QString::number(version));
    writer.writeAttribute("label", label);
    for (const std::shared_ptr<NodePrototype>& prototype : classes)
        writer.writeClass(*prototype);
    stream.writeEndDocument();
    return !stream.hasError();
}

void PackageWriter::writeClass(const NodePrototype& prototype)
{
    static const NodePrototype nothing;
    const NodePrototype* known = m_known(prototype.base);
    const NodePrototype& base = known ? *known : nothing;
    m_writer.writeStartElement(QStringLiteral("class"));
    writeAttributes(prototype, base);
    for (const PropertyDefinition& definition : prototype.properties()) {
        if (PackagePropertyReader::isReservedKey(definition.key.toString()))
            continue;
        const PropertyDefinition* inherited = base.find(definition.key);
        if (!inherited || !sameButDefault(definition, *inherited))
            writeProperty(definition);
        else if (!(definition.defaultValue == inherited->defaultValue))
            writeValue(definition.key, definition.defaultValue);
    }
    writeForms(prototype, base);
    writeSubstitutions(prototype, base);
    writeSubparts(prototype, base);
    writeRules(prototype, base);
    m_writer.writeEndElement();
}

void PackageWriter::writeAttributes(const NodePrototype& prototype, const NodePrototype& base)
{
    static const PropertyKey popupPane = PropertyKey::fromString("display-popup-pane-on-selection");
    writeAttribute("id", findStringForCid(prototype.cid));
    if (base.cid != INVALID_CID)
        writeAttribute("base", findStringForCid(base.cid));
    if (base.cid == INVALID_CID || prototype.kind != base.kind)
        writeAttribute("kind", QLatin1String(packageWords::kinds.begin()[static_cast<int>(prototype.kind)]));
    if (!prototype.label.isEmpty())
        writeAttribute("label", prototype.label);
    if (!prototype.group.isEmpty())
        writeAttribute("group", prototype.group);
    if (prototype.keyStage != 0)
        writeAttribute("keystage", QString::number(prototype.keyStage));
    if (!(prototype.icon == base.icon))
        writeAttribute("icon", prototype.icon.toString());
    if (!(prototype.body == base.body))
        writeAttribute("body", prototype.body.toString());
    if (prototype.roles != base.roles)
        writeAttribute("roles", prototype.roles.toString());
    if (prototype.resizeable != base.resizeable)
        writeAttribute("resizeable", prototype.resizeable ? QStringLiteral("true") : QStringLiteral("false"));
    if (prototype.abstract)
        writeAttribute("abstract", QStringLiteral("true"));
    if (prototype.popupClass != base.popupClass)
        writeAttribute("popup", findStringForCid(prototype.popupClass));
    if (prototype.find(popupPane) && !base.find(popupPane))
        writeAttribute("pane", QStringLiteral("popup"));

    // Where taking over from the base is not what the class wants.
    const ValueMap substitutions = substitutionsOfClass(prototype);
    const ValueMap inherited = substitutionsOfClass(base);
    if (formsOfClass(prototype).empty() && !formsOfClass(base).empty())
        writeAttribute("forms", QStringLiteral("replace"));
    if (!extendsSubparts(prototype, base))
        writeAttribute("subparts", QStringLiteral("replace"));
    if (std::any_of(inherited.begin(), inherited.end(), [&substitutions](const auto& substitution) {
            return substitutions.find(substitution.first) == substitutions.end();
        }))
        writeAttribute("substitutions", QStringLiteral("replace"));
}

void PackageWriter::writeProperty(const PropertyDefinition& definition)
{
    m_writer.writeStartElement(QStringLiteral("property"));
    writeAttribute("key", definition.key.toString());
    writeAttribute("type", Value::typeAsString(definition.type));
    if (!ValueXml::isWrittenAsItems(definition.type))
        writeAttribute("default", valueToText(definition.defaultValue));
    if (!definition.label.isEmpty())
        writeAttribute("label", definition.label);
    if (!definition.help.isEmpty())
        writeAttribute("help", definition.help);
    QStringList flags;
    for (const packageWords::FlagName& known : packageWords::flags)
        if (definition.flags & known.flag)
            flags.append(QLatin1String(known.name));
    if (!flags.isEmpty())
        writeAttribute("flags", flags.join(QLatin1Char(' ')));
    if (definition.lockGroup != LockPropertyValues)
        writeAttribute("lock", QLatin1String(packageWords::locks.begin()[definition.lockGroup]));
    writeValidator(definition);
    if (definition.format && !sameFormat(*definition.format, NumericalFormat()))
        writeFormat(*definition.format);
    if (ValueXml::isWrittenAsItems(definition.type)) {
        m_writer.writeStartElement(QStringLiteral("default"));
        writeContent(definition.defaultValue);
        m_writer.writeEndElement();
    }
    m_writer.writeEndElement();
}

void PackageWriter::writeFormat(const NumericalFormat& format)
{
    m_writer.writeStartElement(QStringLiteral("format"));
    if (format.decimals >= 0)
        writeAttribute("decimals", QString::number(format.decimals));
    const auto write = [this](const Unit& unit) {
        m_writer.writeStartElement(QStringLiteral("unit"));
        if (!unit.abbreviatedName().isEmpty())
            writeAttribute("abbreviation", unit.abbreviatedName());
        m_writer.writeCharacters(unit.symbol());
        m_writer.writeEndElement();
    };
    // The first one is the unit shown.
    if (!format.unit.isNull())
        write(format.unit);
    for (const Unit& unit : format.units)
        if (!(unit == format.unit))
            write(unit);
    m_writer.writeEndElement();
}

void PackageWriter::writeValidator(const PropertyDefinition& definition)
{
    const interface::Validator* validator = definition.validator.get();
    if (!validator)
        return;
    const auto begin = [this](const char* kind) {
        m_writer.writeStartElement(QStringLiteral("validator"));
        writeAttribute("kind", QLatin1String(kind));
    };
    if (const auto* whole = dynamic_cast<const IntValidator*>(validator)) {
        if (whole->isEqual(IntValidator()))
            return;
        begin("range");
        writeAttribute("min", QString::number(whole->minimum()));
        writeAttribute("max", QString::number(whole->maximum()));
    } else if (const auto* real = dynamic_cast<const DoubleValidator*>(validator)) {
        if (real->isEqual(DoubleValidator()))
            return;
        begin("range");
        writeAttribute("min", valueToText(Value(real->minimum())));
        writeAttribute("max", valueToText(Value(real->maximum())));
    } else if (const auto* set = dynamic_cast<const SetValidator*>(validator)) {
        begin("set");
        for (const Value& item : set->getValidValues().toValueVector()) {
            m_writer.writeStartElement(QStringLiteral("item"));
            writeContent(item);
            m_writer.writeEndElement();
        }
    } else if (const auto* pattern = dynamic_cast<const StringValidator*>(validator)) {
        if (pattern->regularExpression().isEmpty())
            return;
        begin("pattern");
        writeAttribute("expression", pattern->regularExpression());
    } else if (const auto* resources = dynamic_cast<const ResourceValidator*>(validator)) {
        begin("resources");
        const std::vector<QString> labels = resources->labels();
        for (size_t i = 0; i < resources->resources().size(); ++i) {
            m_writer.writeStartElement(QStringLiteral("item"));
            writeAttribute("label", labels[i]);
            m_writer.writeCharacters(resources->resources()[i].toString());
            m_writer.writeEndElement();
        }
    } else {
        return;
    }
    m_writer.writeEndElement();
}

void PackageWriter::writeValue(PropertyKey key, const Value& value)
{
    m_writer.writeStartElement(QStringLiteral("value"));
    writeAttribute("key", key.toString());
    writeContent(value);
    m_writer.writeEndElement();
}

void PackageWriter::writeForms(const NodePrototype& prototype, const NodePrototype& base)
{
    const std::vector<QString> forms = formsOfClass(prototype);
    if (forms == formsOfClass(base))
        return;
    for (const QString& form : forms) {
        m_writer.writeStartElement(QStringLiteral("form"));
        m_writer.writeCharacters(form);
        m_writer.writeEndElement();
    }
}

void PackageWriter::writeSubstitutions(const NodePrototype& prototype, const NodePrototype& base)
{
    const ValueMap substitutions = substitutionsOfClass(prototype);
    if (substitutions == substitutionsOfClass(base))
        return;
    for (const auto& [string, value] : substitutions) {
        m_writer.writeStartElement(QStringLiteral("substitution"));
        writeAttribute("string", string);
        if (value.type() == Value::RESOURCE)
            writeAttribute("resource", value.toResource().toString());
        else
            writeAttribute("text", value.toQString());
        m_writer.writeEndElement();
    }
}

void PackageWriter::writeSubparts(const NodePrototype& prototype, const NodePrototype& base)
{
    const size_t first = extendsSubparts(prototype, base) ? base.subparts.size() : 0;
    for (size_t i = first; i < prototype.subparts.size(); ++i) {
        m_writer.writeStartElement(QStringLiteral("subpart"));
        writeAttribute("class", findStringForCid(prototype.subparts[i].cid));
        for (const auto& [key, value] : prototype.subparts[i].values)
            if (!PackagePropertyReader::isReservedKey(key.toString()))
                writeValue(key, value);
        m_writer.writeEndElement();
    }
}

void PackageWriter::writeRules(const NodePrototype& prototype, const NodePrototype& base)
{
    const auto write = [this](const SubpartRule& rule) {
        m_writer.writeStartElement(QStringLiteral("allow"));
        writeAttribute("role", rule.role.name());
        if (rule.maximum != 0)
            writeAttribute("max", QString::number(rule.maximum));
        for (const ClassId cid : rule.classes) {
            m_writer.writeStartElement(QStringLiteral("class"));
            m_writer.writeCharacters(findStringForCid(cid));
            m_writer.writeEndElement();
        }
        m_writer.writeEndElement();
    };
    for (const SubpartRule& rule : prototype.rules)
        if (std::none_of(base.rules.begin(), base.rules.end(),
                         [&](const auto& other) { return sameRule(rule, other); }))
            write(rule);
    // A rule without classes takes an inherited one away.
    for (const SubpartRule& rule : base.rules)
        if (std::none_of(prototype.rules.begin(), prototype.rules.end(),
                         [&rule](const auto& other) { return other.role == rule.role; }))
            write({rule.role, {}, 0});
}

void PackageWriter::writeContent(const Value& value)
{
    if (ValueXml::isWrittenAsItems(value.type()))
        ValueXml::writeContent(m_writer, value);
    else
        m_writer.writeCharacters(valueToText(value));
}

void PackageWriter::writeAttribute(const char* name, const QString& text)
{
    m_writer.writeAttribute(QLatin1String(name), writableText(text));
}
