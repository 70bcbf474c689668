#include "zkcore/storage/packageReader.h"

#include "zkcore/model/nodePrototype.h"
#include "zkcore/storage/package.h"
#include "zkcore/storage/packageWords.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

namespace {

/// Deep enough for any sensible chain of bases and subparts, and far from the end of the stack.
constexpr int greatestClassDepth = 100;
/// Each class has a copy of all that its bases have: without limits a small file could fill the memory.
constexpr size_t mostThingsOfClass = 2000;
constexpr size_t mostThingsOfPackage = 500'000;
/// What a class prescribes must be made whenever somebody adds a part, and fit into a document.
constexpr size_t mostNodesOfPart = 10'000;
constexpr int deepestSubparts = 20;

/// More are of no use to anybody.
constexpr qsizetype greatestNumberOfFaults = 100;

QString quotedClass(ClassId cid)
{
    return QLatin1Char('"') + findStringForCid(cid) + QLatin1Char('"');
}

/// Whether a class of one kind may have a base of the other: an abstract base may serve both kinds of spaces, or parts
/// and subparts.
bool kindsAreRelated(NodeKind a, NodeKind b)
{
    const auto isSpace = [](NodeKind kind) { return kind == NodeKind::Scene || kind == NodeKind::Popup; };
    const auto isElement = [](NodeKind kind) { return kind == NodeKind::Part || kind == NodeKind::Subpart; };
    return a == b || (isSpace(a) && isSpace(b)) || (isElement(a) && isElement(b));
}

} // namespace

std::unique_ptr<Package> PackageReader::readFolder(const QString& folder, const KnownClasses& known, QString& error)
{
    QFile file(QDir(folder).filePath(QStringLiteral("package.xml")));
    if (file.open(QIODevice::ReadOnly))
        return read(file, folder, known, error);
    PackageFault fault;
    fault.raise(1, 1, tr("the file cannot be read: %1").arg(file.errorString()));
    error = fault.message(file.fileName());
    return nullptr;
}

std::unique_ptr<Package> PackageReader::read(QIODevice& device, const QString& folder, const KnownClasses& known,
                                             QString& error)
{
    PackageReader reader(known);
    PackageElement root;
    std::unique_ptr<Package> package;
    if (PackageElement::read(device, root, reader.m_fault))
        package = reader.readPackage(root, folder);
    if (!package)
        error = reader.m_fault.message(QDir(folder).filePath(QStringLiteral("package.xml")));
    return package;
}

std::unique_ptr<Package> PackageReader::readPackage(const PackageElement& root, const QString& folder)
{
    std::unique_ptr<Package> package(new Package);
    package->m_folder = folder;
    m_package = package.get();
    if (!readHead(root, *package) || !collectClasses(root))
        return nullptr;
    for (const Entry& entry : m_entries)
        if (!resolve(entry.cid, *entry.element, 0))
            return nullptr;
    if (!checkRules())
        return nullptr;
    return package;
}

QStringList PackageReader::faults(const QString& folder, const KnownClasses& known)
{
    QString error;
    if (readFolder(folder, known, error))
        return {};
    // Read again, class by class.
    QFile file(QDir(folder).filePath(QStringLiteral("package.xml")));
    PackageReader reader(known);
    PackageElement root;
    QStringList all;
    if (file.open(QIODevice::ReadOnly) && PackageElement::read(file, root, reader.m_fault))
        all = reader.collectFaults(root, folder);
    return all.isEmpty() ? QStringList{error} : all;
}

QStringList PackageReader::collectFaults(const PackageElement& root, const QString& folder)
{
    const std::unique_ptr<Package> package(new Package);
    package->m_folder = folder;
    m_package = package.get();
    if (!readHead(root, *package) || !collectClasses(root))
        return {};
    QStringList all;
    for (const Entry& entry : m_entries) {
        if (resolve(entry.cid, *entry.element, 0))
            continue;
        if (m_fault.isRaised())
            all.append(m_fault.message(QDir(folder).filePath(QStringLiteral("package.xml"))));
        m_fault.clear();
        if (all.size() == greatestNumberOfFaults)
            break;
        // What stands half read is what the fault was found in, and what needs that.
        for (Entry& begun : m_entries)
            if (begun.state == Entry::Begun)
                begun.state = Entry::Faulty;
    }
    return all;
}

bool PackageReader::readHead(const PackageElement& root, Package& package)
{
    if (root.name != QLatin1String("package"))
        return fail(root, tr("this is no package but <%1>").arg(root.name));
    int format = 0;
    if (!m_properties.readNumber(root, "format", 1, format))
        return false;
    if (format == 0)
        return fail(root, tr("the attribute \"format\" is missing"));
    // A newer format may have anything in it: this is said first.
    if (format > formatVersion)
        return fail(root, tr("the package has the format %1, this program understands %2")
                              .arg(QString::number(format), QString::number(formatVersion)));
    if (!root.check({"format", "name", "version", "label"}, {"class"}, PackageElement::OnlyElements, m_fault))
        return false;
    package.m_name = root.attribute("name");
    package.m_label = root.has("label") ? root.attribute("label") : package.m_name;
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9_-]+$"));
    if (!form.match(package.m_name).hasMatch())
        return fail(root, tr("a package needs a name of letters, digits, '-' and '_'"));
    if (package.m_name != QDir(package.m_folder).dirName())
        return fail(root, tr("the package \"%1\" must stand in a folder of that name").arg(package.m_name));
    // The first parts of the names of the program's own pictures and of what documents bring along.
    if (package.m_name == QLatin1String("editor") || package.m_name == QLatin1String("local"))
        return fail(root, tr("no package can have the name \"%1\"").arg(package.m_name));
    return m_properties.readNumber(root, "version", 0, package.m_version);
}

bool PackageReader::collectClasses(const PackageElement& root)
{
    static const QRegularExpression form(
        QStringLiteral("^[^/\\s\\p{C}]+(/[^/\\s\\p{C}]([^/\\p{C}]*[^/\\s\\p{C}])?)+$"));
    for (const PackageElement& element : root.children) {
        const QString id = element.attribute("id");
        if (!form.match(id).hasMatch())
            return fail(element, tr("\"%1\" is no class id such as \"electronics/led\"").arg(id));
        const ClassId cid = getCidForString(id);
        if (m_entryOf.contains(cid))
            return fail(element, tr("the class \"%1\" is defined twice").arg(id));
        if (m_known(cid))
            return fail(element, tr("another package defines the class \"%1\"").arg(id));
        m_entryOf.insert(cid, static_cast<int>(m_entries.size()));
        m_entries.push_back({&element, cid, Entry::Waiting});
    }
    return true;
}

const NodePrototype* PackageReader::lookup(ClassId cid) const
{
    const auto found = m_read.constFind(cid);
    return found != m_read.cend() ? found->get() : m_known(cid);
}

bool PackageReader::resolve(ClassId cid, const PackageElement& user, int depth)
{
    const int index = m_entryOf.value(cid, -1);
    if (index < 0) {
        return m_known(cid) || fail(user, tr("there is no class %1").arg(quotedClass(cid)));
    }
    Entry& entry = m_entries[static_cast<size_t>(index)];
    if (entry.state == Entry::Done)
        return true;
    if (entry.state == Entry::Faulty)
        return false; // said already
    if (entry.state == Entry::Begun)
        return fail(user, tr("the class %1 needs itself as a base or subpart").arg(quotedClass(cid)));
    if (depth > greatestClassDepth)
        return fail(user, tr("the classes are nested too deep"));
    entry.state = Entry::Begun;
    if (!resolveNeeded(*entry.element, depth + 1))
        return false;
    auto prototype = std::make_shared<NodePrototype>();
    prototype->cid = cid;
    if (!readClass(*entry.element, *prototype) || !checkExtent(*entry.element, *prototype))
        return false;
    entry.state = Entry::Done;
    m_read.insert(cid, prototype);
    m_package->m_classes.push_back(prototype);
    return true;
}

bool PackageReader::resolveNeeded(const PackageElement& element, int depth)
{
    const auto need = [this, depth](const PackageElement& user, const char* attribute, bool mayBeEmpty) {
        const QString id = user.attribute(attribute);
        if (id.isEmpty() && (mayBeEmpty || id.isNull()))
            return true;
        return resolve(getCidForString(id), user, depth);
    };
    if (!need(element, "base", false) || !need(element, "popup", true))
        return false;
    return std::all_of(element.children.begin(), element.children.end(), [&need](const PackageElement& child) {
        return child.name != QLatin1String("subpart") || need(child, "class", false);
    });
}

bool PackageReader::readClass(const PackageElement& element, NodePrototype& prototype)
{
    if (!element.check({"id", "base", "kind", "label", "group", "keystage", "icon", "body", "roles", "resizeable",
                        "abstract", "popup", "pane", "forms", "subparts", "substitutions"},
                       {"property", "value", "form", "substitution", "subpart", "allow"}, PackageElement::OnlyElements,
                       m_fault))
        return false;
    if (element.children.size() > mostThingsOfClass)
        return failTooLarge(element);
    const ClassId cid = prototype.cid;
    const NodePrototype* base = element.has("base") ? lookup(getCidForString(element.attribute("base"))) : nullptr;
    if (base) {
        prototype = *base;
        prototype.cid = cid;
        prototype.base = base->cid;
        prototype.bases.insert(prototype.bases.begin(), base->cid);
    }
    prototype.package = m_package->name();
    prototype.label = element.attribute("label");
    prototype.group = element.attribute("group");
    prototype.keyStage = 0;
    prototype.abstract = false;
    if (!m_properties.readNumber(element, "keystage", 0, prototype.keyStage) ||
        !m_properties.readFlag(element, "abstract", prototype.abstract) ||
        !m_properties.readFlag(element, "resizeable", prototype.resizeable) || !readKind(element, base, prototype) ||
        !readLooks(element, prototype))
        return false;
    prototype.addMetaProperties();
    return readProperties(element, prototype) && readForms(element, prototype) &&
           readSubstitutions(element, prototype) && readSubparts(element, prototype);
}

bool PackageReader::failTooLarge(const PackageElement& element)
{
    return fail(element, tr("a class has at most %1 properties, values, forms, substitutions, subparts, rules and "
                            "bases, with those of its bases")
                             .arg(mostThingsOfClass));
}

bool PackageReader::checkExtent(const PackageElement& element, const NodePrototype& prototype)
{
    static const PropertyKey forms = PropertyKey::fromString("meta-controlpane");
    static const PropertyKey substitutions = PropertyKey::fromString("meta-ui-substitutions");
    size_t things =
        prototype.properties().size() + prototype.subparts.size() + prototype.rules.size() + prototype.bases.size();
    if (const PropertyDefinition* definition = prototype.find(forms))
        things += definition->defaultValue.toStringVector().size();
    if (const PropertyDefinition* definition = prototype.find(substitutions))
        things += definition->defaultValue.toValueMap().size();
    if (things > mostThingsOfClass)
        return failTooLarge(element);
    m_things += things;
    if (m_things > mostThingsOfPackage)
        return fail(element, tr("the classes of a package have at most %1 properties, subparts and so on together")
                                 .arg(mostThingsOfPackage));
    const Extent extent = extentOf(prototype);
    if (extent.nodes > mostNodesOfPart)
        return fail(element, tr("a part of the class would have more than %1 subparts").arg(mostNodesOfPart));
    if (extent.depth > deepestSubparts)
        return fail(
            element,
            tr("a part of the class would have subparts more than %1 deep in one another").arg(deepestSubparts));
    m_extents.insert(prototype.cid, extent);
    return true;
}

PackageReader::Extent PackageReader::extentOf(const NodePrototype& prototype)
{
    if (const auto known = m_extents.constFind(prototype.cid); known != m_extents.cend())
        return *known;
    Extent extent;
    for (const SubpartDefinition& subpart : prototype.subparts) {
        // Those of this package were measured before; those of others are no larger than allowed.
        const NodePrototype* subpartClass = lookup(subpart.cid);
        const Extent inner = subpartClass ? extentOf(*subpartClass) : Extent();
        extent.nodes += inner.nodes;
        extent.depth = std::max(extent.depth, inner.depth + 1);
    }
    return extent;
}

bool PackageReader::readKind(const PackageElement& element, const NodePrototype* base, NodePrototype& prototype)
{
    int kind = base ? static_cast<int>(base->kind) : -1;
    if (!m_properties.readChoice(element, "kind", packageWords::kinds, kind))
        return false;
    if (kind < 0)
        return fail(element, tr("a class without a base needs a kind"));
    prototype.kind = static_cast<NodeKind>(kind);
    if (base && base->kind != prototype.kind && !(base->abstract && kindsAreRelated(base->kind, prototype.kind)))
        return fail(element, tr("the base %1 is of another kind").arg(quotedClass(base->cid)));
    const bool domainId = isDomain(prototype.cid);
    if (domainId != (prototype.kind == NodeKind::Domain) && (domainId || !prototype.abstract))
        return fail(element, tr("domains have ids such as \"electronics/*\", other classes have not"));
    return true;
}

bool PackageReader::readLooks(const PackageElement& element, NodePrototype& prototype)
{
    if (element.has("roles"))
        prototype.roles = RoleSet(element.attribute("roles"));
    if (element.has("icon") &&
        !m_properties.readResource(element, element.attribute("icon"), Resource::IMAGE, prototype.icon))
        return false;
    if (element.has("body") &&
        !m_properties.readResource(element, element.attribute("body"), Resource::IMAGE, prototype.body))
        return false;
    if (element.has("popup")) {
        prototype.popupClass = getCidForString(element.attribute("popup"));
        const NodePrototype* popup = lookup(prototype.popupClass);
        if (popup && (popup->kind != NodeKind::Popup || popup->abstract))
            return fail(element, tr("the class %1 is no pop-up").arg(quotedClass(popup->cid)));
        if (popup && prototype.kind != NodeKind::Part)
            return fail(element, tr("only parts have a pop-up"));
    }
    int pane = 0;
    if (!m_properties.readChoice(element, "pane", {"popup"}, pane))
        return false;
    static const PropertyKey popupPane = PropertyKey::fromString("display-popup-pane-on-selection");
    if (element.has("pane")) {
        if (prototype.popupClass == INVALID_CID)
            return fail(element, tr("a class without a pop-up cannot show its pane"));
        prototype.addMetaProperty(popupPane, Value(true));
    }
    return true;
}

bool PackageReader::readProperties(const PackageElement& element, NodePrototype& prototype)
{
    QSet<PropertyKey> given;
    for (const PackageElement& child : element.children) {
        const bool isProperty = child.name == QLatin1String("property");
        if (!isProperty && child.name != QLatin1String("value"))
            continue;
        PropertyDefinition definition;
        if (!m_properties.readKey(child, definition.key))
            return false;
        if (given.contains(definition.key))
            return fail(child, tr("the property \"%1\" is given twice").arg(definition.key.toString()));
        given.insert(definition.key);
        const PropertyDefinition* inherited = prototype.find(definition.key);
        if (isProperty) {
            if (!m_properties.readProperty(child, inherited, definition))
                return false;
        } else {
            if (!inherited)
                return fail(child, tr("no base of the class has the property \"%1\"").arg(definition.key.toString()));
            definition = *inherited;
            if (!m_properties.readValue(child, *inherited, definition.defaultValue))
                return false;
        }
        prototype.addProperty(std::move(definition));
    }
    return true;
}

bool PackageReader::readForms(const PackageElement& element, NodePrototype& prototype)
{
    static const PropertyKey key = PropertyKey::fromString("meta-controlpane");
    int mode = 0;
    if (!m_properties.readChoice(element, "forms", {"replace", "extend"}, mode))
        return false;
    std::vector<QString> forms;
    if (const PropertyDefinition* inherited = prototype.find(key); inherited && mode == 1)
        forms = inherited->defaultValue.toStringVector();
    bool any = element.has("forms");
    for (const PackageElement& child : element.children) {
        if (child.name != QLatin1String("form"))
            continue;
        Resource form;
        const QString name = child.text.trimmed();
        if (!child.check({}, {}, PackageElement::MayHaveText, m_fault) ||
            !m_properties.readResource(child, name, Resource::FORM, form))
            return false;
        if (form.isNull())
            return fail(child, tr("the name of the form is missing"));
        forms.push_back(name);
        any = true;
    }
    if (any)
        prototype.addMetaProperty(key, Value(forms));
    return true;
}

bool PackageReader::readSubstitutions(const PackageElement& element, NodePrototype& prototype)
{
    static const PropertyKey key = PropertyKey::fromString("meta-ui-substitutions");
    int mode = 1;
    if (!m_properties.readChoice(element, "substitutions", {"replace", "extend"}, mode))
        return false;
    ValueMap substitutions;
    if (const PropertyDefinition* inherited = prototype.find(key); inherited && mode == 1)
        substitutions = inherited->defaultValue.toValueMap();
    bool any = element.has("substitutions");
    QSet<QString> given;
    for (const PackageElement& child : element.children) {
        if (child.name != QLatin1String("substitution"))
            continue;
        if (!child.check({"string", "resource", "text"}, {}, PackageElement::OnlyElements, m_fault))
            return false;
        const QString string = child.attribute("string");
        if (string.isNull() || child.has("resource") == child.has("text"))
            return fail(child, tr("a substitution needs a string and either a resource or a text"));
        if (given.contains(string))
            return fail(child, tr("\"%1\" is substituted twice").arg(string));
        given.insert(string);
        Resource resource;
        if (!m_properties.readResource(child, child.attribute("resource"), Resource::INVALID, resource))
            return false;
        substitutions.erase(string);
        substitutions.emplace(string, child.has("text") ? Value(child.attribute("text")) : Value(resource));
        any = true;
    }
    if (any)
        prototype.addMetaProperty(key, Value(substitutions));
    return true;
}

bool PackageReader::readSubparts(const PackageElement& element, NodePrototype& prototype)
{
    int mode = 1;
    if (!m_properties.readChoice(element, "subparts", {"replace", "extend"}, mode))
        return false;
    if (mode == 0)
        prototype.subparts.clear();
    QSet<unsigned int> roles;
    for (const PackageElement& child : element.children) {
        const bool isRule = child.name == QLatin1String("allow");
        if (!isRule && child.name != QLatin1String("subpart"))
            continue;
        if (prototype.kind != NodeKind::Part && prototype.kind != NodeKind::Subpart)
            return fail(child, tr("only parts and subparts have subparts"));
        if (isRule) {
            const unsigned int role = Role(child.attribute("role")).number();
            if (roles.contains(role))
                return fail(child, tr("there are two rules for the same role"));
            roles.insert(role);
            if (!readRule(child, prototype))
                return false;
        } else {
            SubpartDefinition subpart;
            if (!readSubpart(child, subpart))
                return false;
            prototype.subparts.push_back(std::move(subpart));
        }
    }
    return true;
}

bool PackageReader::readSubpart(const PackageElement& element, SubpartDefinition& subpart)
{
    if (!element.check({"class"}, {"value"}, PackageElement::OnlyElements, m_fault))
        return false;
    subpart.cid = getCidForString(element.attribute("class"));
    const NodePrototype* subpartClass = lookup(subpart.cid);
    if (!subpartClass)
        return fail(element, tr("the class of the subpart is missing"));
    if (subpartClass->kind != NodeKind::Subpart || subpartClass->abstract)
        return fail(element, tr("no subpart can be of the class %1").arg(quotedClass(subpart.cid)));
    for (const PackageElement& child : element.children) {
        PropertyKey key;
        if (!m_properties.readKey(child, key))
            return false;
        const auto sameKey = [key](const auto& value) { return value.first == key; };
        if (std::any_of(subpart.values.begin(), subpart.values.end(), sameKey))
            return fail(child, tr("the property \"%1\" is given twice").arg(key.toString()));
        const PropertyDefinition* definition = subpartClass->find(key);
        if (!definition)
            return fail(child, tr("the class %1 has no property \"%2\"").arg(quotedClass(subpart.cid), key.toString()));
        Value value;
        if (!m_properties.readValue(child, *definition, value))
            return false;
        subpart.values.emplace_back(key, value);
    }
    return true;
}

bool PackageReader::readRule(const PackageElement& element, NodePrototype& prototype)
{
    if (!element.check({"role", "max"}, {"class"}, PackageElement::OnlyElements, m_fault))
        return false;
    SubpartRule rule;
    const RoleSet role(element.attribute("role"));
    if (role.roles().size() != 1)
        return fail(element, tr("a rule for subparts needs one role"));
    rule.role = role.roles().front();
    int maximum = 0;
    if (!m_properties.readNumber(element, "max", 0, maximum))
        return false;
    rule.maximum = static_cast<unsigned int>(maximum);
    for (const PackageElement& child : element.children) {
        if (!child.check({}, {}, PackageElement::MayHaveText, m_fault))
            return false;
        const QString id = child.text.trimmed();
        const ClassId cid = getCidForString(id);
        if (!m_entryOf.contains(cid) && !m_known(cid))
            return fail(child, tr("there is no class \"%1\"").arg(id));
        rule.classes.push_back(cid);
    }
    const auto sameRole = [&rule](const SubpartRule& other) { return other.role == rule.role; };
    const auto inherited = std::find_if(prototype.rules.begin(), prototype.rules.end(), sameRole);
    if (rule.classes.empty()) {
        if (inherited != prototype.rules.end())
            prototype.rules.erase(inherited);
    } else if (inherited != prototype.rules.end()) {
        *inherited = rule;
    } else {
        prototype.rules.push_back(rule);
    }
    return true;
}

bool PackageReader::checkRules() const
{
    // Only now all classes are read: a rule may name the very class that it stands in.
    for (const Entry& entry : m_entries)
        for (const PackageElement& rule : entry.element->children)
            for (const PackageElement& child : rule.children) {
                if (rule.name != QLatin1String("allow"))
                    continue;
                const NodePrototype* allowed = lookup(getCidForString(child.text.trimmed()));
                if (allowed && allowed->kind != NodeKind::Subpart && !isDomain(allowed->cid))
                    return fail(child, tr("no subpart can be of the class %1").arg(quotedClass(allowed->cid)));
            }
    return true;
}
