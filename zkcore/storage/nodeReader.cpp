#include "zkcore/storage/nodeReader.h"

#include "zkcore/storage/xmlText.h"

#include <QXmlStreamReader>
#include <algorithm>

namespace {

constexpr unsigned int idPageBits = 12;

bool mayHold(NodeKind parent, NodeKind child)
{
    switch (parent) {
    case NodeKind::Model:
        return child == NodeKind::Scene;
    case NodeKind::Scene:
    case NodeKind::Popup:
        return child == NodeKind::Part;
    case NodeKind::Part:
        return child == NodeKind::Subpart || child == NodeKind::Popup;
    case NodeKind::Subpart:
        return child == NodeKind::Subpart;
    case NodeKind::Domain:
        break;
    }
    return false;
}

} // namespace

NodeXml::Reader::Reader(QXmlStreamReader& xml, NodeDb& db, QStringList& warnings, const QString& name)
    : m_xml(xml), m_db(db), m_warnings(warnings), m_name(name)
{
}

NodeXml::Reader::~Reader() = default;

bool NodeXml::Reader::kindOf(QStringView element, NodeKind& kind)
{
    static constexpr std::pair<QStringView, NodeKind> kinds[] = {{u"subpart", NodeKind::Subpart},
                                                                 {u"part", NodeKind::Part},
                                                                 {u"scene", NodeKind::Scene},
                                                                 {u"popup", NodeKind::Popup},
                                                                 {u"model", NodeKind::Model}};
    for (const auto& [name, value] : kinds) {
        if (name == element) {
            kind = value;
            return true;
        }
    }
    return false;
}

bool NodeXml::Reader::parseId(QStringView text, InstanceId& id)
{
    quint64 number = 0;
    if (text.isEmpty() || text.size() > 10)
        return false;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return false;
        number = number * 10 + (c.unicode() - u'0');
    }
    if (number == 0 || number > highestInstanceId)
        return false;
    id = static_cast<InstanceId>(number);
    return true;
}

NodeXml::Reader::Position NodeXml::Reader::here() const
{
    return {m_xml.lineNumber(), std::max<qint64>(m_xml.columnNumber(), 1)};
}

bool NodeXml::Reader::fault(const QString& reason)
{
    if (!m_xml.hasError())
        m_xml.raiseError(reason);
    return false;
}

QString NodeXml::Reader::faultText() const
{
    const Position position = m_faultPosition.line > 0 ? m_faultPosition : here();
    return QStringLiteral("%1:%2: %3").arg(position.line).arg(position.column).arg(m_xml.errorString());
}

void NodeXml::Reader::warn(const QString& sentence)
{
    warnAt(here(), sentence);
}

void NodeXml::Reader::warnAt(const Position& position, const QString& sentence)
{
    if (m_warnings.size() >= maximumWarnings) {
        ++m_warningsLeftOut;
        return;
    }
    m_warnings.append(
        m_name +
        QStringLiteral("%1:%2: %3").arg(QString::number(position.line), QString::number(position.column), sentence));
}

void NodeXml::Reader::finishWarnings()
{
    if (m_warningsLeftOut > 0)
        m_warnings.append(tr("%1 %n more warning(s) left out", nullptr, m_warningsLeftOut).arg(m_name));
    m_warningsLeftOut = 0;
}

void NodeXml::Reader::warnOfAttribute(QStringView element, QStringView attribute)
{
    const QString text = element.toString() + u'@' + attribute.toString();
    if (m_warnedOf.contains(text))
        return;
    if (m_warnings.size() < maximumWarnings)
        m_warnedOf.insert(text);
    warn(tr("attribute \"%1\" of <%2> is not known and was dropped").arg(attribute, element));
}

NodeXml::Reader::ClassInfo* NodeXml::Reader::classInfo(QStringView text, NodeKind kind)
{
    ClassInfo* info = m_lastClass;
    if (!info || info->text != text) {
        const auto it = m_classes.find(text);
        info = it == m_classes.end() ? nullptr : it->second.get();
    }
    if (!info) {
        if (text.isEmpty()) {
            fault(tr("the class is missing"));
            return nullptr;
        }
        auto made = std::make_unique<ClassInfo>();
        made->text = text.toString();
        made->cid = getCidForString(made->text);
        made->prototype = m_db.lookupPrototype(made->cid);
        const bool unknown = !made->prototype || made->prototype->placeholder;
        if (kind == NodeKind::Domain && !isDomain(made->cid)) {
            fault(tr("\"%1\" names no domain").arg(text));
            return nullptr;
        }
        if (unknown && (kind == NodeKind::Model || (kind != NodeKind::Domain && isDomain(made->cid)))) {
            fault(tr("class \"%1\" is not known").arg(text));
            return nullptr;
        }
        if (unknown && ++m_unknownClasses > maximumUnknownClasses) {
            fault(tr("more than %1 classes are not known").arg(maximumUnknownClasses));
            return nullptr;
        }
        if (unknown && kind != NodeKind::Domain)
            made->prototype = m_db.prototypeOrPlaceholder(made->cid, kind);
        if (unknown)
            warn(tr("class \"%1\" is not known; kept as it is").arg(text));
        if (made->prototype) {
            for (const PropertyDefinition& definition : made->prototype->properties()) {
                made->keyTexts.push_back(definition.key.toString());
                made->keys.emplace(made->keyTexts.back(), &definition);
            }
        }
        info = made.get();
        m_classes.emplace(info->text, std::move(made));
    }
    m_lastClass = info;
    if (info->prototype && info->prototype->kind != kind) {
        fault(tr("class \"%1\" is of another kind than <%2>").arg(text, m_xml.qualifiedName()));
        return nullptr;
    }
    return info;
}

bool NodeXml::Reader::claimId(InstanceId id)
{
    std::vector<bool>& page = m_idPages[id >> idPageBits];
    if (page.empty())
        page.resize(size_t{1} << idPageBits);
    const auto bit = page.begin() + (id & ((1u << idPageBits) - 1));
    if (*bit)
        return fault(tr("instance id %1 is used twice").arg(id));
    *bit = true;
    m_highestId = std::max(m_highestId, id);
    return true;
}

bool NodeXml::Reader::readLocks(QStringView text, unsigned int& locks)
{
    static constexpr std::pair<QStringView, LockGroup> groups[] = {{u"position", LockPosition},
                                                                   {u"size", LockSize},
                                                                   {u"orientation", LockOrientation},
                                                                   {u"values", LockPropertyValues}};
    for (const QStringView word : text.split(u' ', Qt::SkipEmptyParts)) {
        const auto* const found =
            std::find_if(std::begin(groups), std::end(groups), [&](const auto& group) { return group.first == word; });
        if (found == std::end(groups))
            return fault(tr("\"%1\" is no lock").arg(word));
        locks |= 1u << found->second;
    }
    return true;
}

bool NodeXml::Reader::readNodeAttributes(NodeSnapshot& node, ClassInfo*& info)
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QStringView name = attribute.qualifiedName();
        const QStringView text = attribute.value();
        const bool element = node.kind == NodeKind::Part || node.kind == NodeKind::Subpart;
        if (name == u"class") {
            info = classInfo(text, node.kind);
            if (!info)
                return false;
        } else if (name == u"id") {
            if (!parseId(text, node.id))
                return fault(tr("\"%1\" is no instance id").arg(text));
            if (!claimId(node.id))
                return false;
        } else if (element && name == u"locks") {
            if (!readLocks(text, node.locks))
                return false;
        } else if (element && name == u"adhoc") {
            node.adhoc = text == u"true";
            if (!node.adhoc && text != u"false")
                return fault(tr("\"%1\" is neither true nor false").arg(text));
        } else if (element && name == u"reflects") {
            if (!parseId(text, node.reflects))
                return fault(tr("\"%1\" is no instance id").arg(text));
            m_reflections.push_back({node.reflects, here()});
        } else if (element && name == u"reflection") {
            node.reflectionKind = text == u"controls" ? ReflectionKind::Controls
                                  : text == u"pads"   ? ReflectionKind::Pads
                                  : text == u"body"   ? ReflectionKind::Body
                                                      : ReflectionKind::None;
            if (node.reflectionKind == ReflectionKind::None)
                return fault(tr("\"%1\" is no kind of reflection").arg(text));
        } else {
            warnOfAttribute(m_xml.qualifiedName(), name);
        }
    }
    if (!info)
        return fault(tr("<%1> has no class").arg(m_xml.qualifiedName()));
    if (node.id == 0 && m_idsRequired)
        return fault(tr("<%1> has no instance id").arg(m_xml.qualifiedName()));
    if ((node.reflects != 0) != (node.reflectionKind != ReflectionKind::None))
        return fault(tr("a reflection needs both what it reflects and which kind it is"));
    node.cid = info->cid;
    return true;
}

bool NodeXml::Reader::readNode(NodeSnapshot& node)
{
    if (m_depth == maximumDepth)
        return fault(tr("nodes are nested deeper than %1").arg(maximumDepth));
    if (++m_nodeCount > maximumNodes)
        return fault(tr("there are more than %n nodes", nullptr, static_cast<int>(maximumNodes)));
    if (!kindOf(m_xml.qualifiedName(), node.kind))
        return fault(tr("<%1> is no node").arg(m_xml.qualifiedName()));
    ClassInfo* info = nullptr;
    if (!readNodeAttributes(node, info))
        return false;
    ++m_depth;
    const bool done = readContent(node, *info);
    --m_depth;
    return done;
}

NodeXml::Reader::Tag NodeXml::Reader::nextTag()
{
    for (;;) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            return Tag::Start;
        case QXmlStreamReader::EndElement:
            return Tag::End;
        case QXmlStreamReader::Characters:
            if (m_xml.isWhitespace())
                break;
            fault(tr("text cannot stand here"));
            return Tag::Fault;
        case QXmlStreamReader::StartDocument:
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        case QXmlStreamReader::DTD:
            fault(tr("document type declarations are not allowed"));
            return Tag::Fault;
        default:
            fault(tr("this cannot stand here"));
            return Tag::Fault;
        }
    }
}

bool NodeXml::Reader::readRest()
{
    for (;;) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::EndDocument:
            return true;
        case QXmlStreamReader::Characters:
            break;
        default:
            return fault(tr("nothing can stand after the end of the document"));
        }
    }
}

bool NodeXml::Reader::readContent(NodeSnapshot& node, ClassInfo& info)
{
    const size_t firstEntry = m_entries.size();
    Tag tag = Tag::Fault;
    while ((tag = nextTag()) == Tag::Start) {
        const QStringView element = m_xml.qualifiedName();
        NodeKind kind{};
        bool done = false;
        if (element == u"value") {
            done = readValue(node, info, firstEntry, node.unknownContent);
        } else if (kindOf(element, kind)) {
            done = readChild(node, kind);
        } else if (element == u"domain") {
            done = readDomain(node, firstEntry);
        } else {
            warn(tr("<%1> is not known; kept as it is").arg(element));
            done = xmlText::appendElement(m_xml, node.unknownContent);
        }
        if (!done)
            return false;
    }
    if (tag == Tag::Fault)
        return false;
    const auto first = m_entries.begin() + static_cast<std::ptrdiff_t>(firstEntry);
    node.values.assign(std::make_move_iterator(first), std::make_move_iterator(m_entries.end()));
    m_entries.erase(first, m_entries.end());
    return true;
}

bool NodeXml::Reader::readChild(NodeSnapshot& node, NodeKind kind)
{
    if (!mayHold(node.kind, kind))
        return fault(tr("<%1> cannot stand here").arg(m_xml.qualifiedName()));
    if (kind != NodeKind::Popup)
        return readNode(node.children.emplace_back());
    if (node.popup)
        return fault(tr("a part has one pop-up only"));
    node.popup = std::make_unique<NodeSnapshot>();
    return readNode(*node.popup);
}

bool NodeXml::Reader::readDomain(NodeSnapshot& node, size_t firstEntry)
{
    if (node.kind != NodeKind::Scene && node.kind != NodeKind::Popup)
        return fault(tr("<%1> cannot stand here").arg(m_xml.qualifiedName()));
    ClassInfo* info = nullptr;
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        info = classInfo(attributes.value(QLatin1String("class")), NodeKind::Domain);
        if (!info)
            return false;
        if (!info->prototype)
            return xmlText::appendElement(m_xml, node.unknownContent);
        for (const QXmlStreamAttribute& attribute : attributes) {
            if (attribute.qualifiedName() != u"class")
                warnOfAttribute(u"domain", attribute.qualifiedName());
        }
    }
    QString unknown;
    Tag tag = Tag::Fault;
    while ((tag = nextTag()) == Tag::Start) {
        if (m_xml.qualifiedName() == u"value") {
            if (!readValue(node, *info, firstEntry, unknown))
                return false;
        } else {
            warn(tr("<%1> is not known; kept as it is").arg(m_xml.qualifiedName()));
            if (!xmlText::appendElement(m_xml, unknown))
                return false;
        }
    }
    if (tag == Tag::Fault)
        return false;
    if (!unknown.isEmpty()) {
        xmlText::appendOpenTag(node.unknownContent, u"domain");
        xmlText::appendAttribute(node.unknownContent, u"class", info->text);
        node.unknownContent += u'>';
        node.unknownContent += unknown;
        node.unknownContent += u"</domain>";
    }
    return true;
}
