#include "zkcore/commands/addNodesCommand.h"

#include "zkcore/commands/commandXml.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/idProvider.h"
#include "zkcore/model/modelMutator.h"
#include "zkcore/storage/nodeXml.h"

#include <QCoreApplication>
#include <QSet>

namespace {

struct AddNodesTexts
{
    Q_DECLARE_TR_FUNCTIONS(AddNodesCommand)
};

bool mayStandIn(NodeKind child, NodeKind parent)
{
    switch (child) {
    case NodeKind::Scene:
        return parent == NodeKind::Model;
    case NodeKind::Part:
        return parent == NodeKind::Scene || parent == NodeKind::Popup;
    case NodeKind::Subpart:
        return parent == NodeKind::Part || parent == NodeKind::Subpart;
    case NodeKind::Popup:
    case NodeKind::Model:
    case NodeKind::Domain:
        break;
    }
    return false;
}

/// "led" of "electronics/led": what ids of new nodes begin with.
QString idPrefix(ClassId cid)
{
    const QString text = findStringForCid(cid);
    return text.mid(text.lastIndexOf(QLatin1Char('/')) + 1);
}

class TextIds
{
public:
    explicit TextIds(const DocumentImpl& document) : m_document(document) {}

    /// Sees to it that every part, scene and pop-up has an id that no other node has.
    void settle(NodeSnapshot& node)
    {
        if (node.kind != NodeKind::Subpart)
            settleOne(node);
        for (NodeSnapshot& child : node.children)
            settle(child);
        if (node.popup)
            settle(*node.popup);
    }

private:
    void settleOne(NodeSnapshot& node)
    {
        NodeSnapshot::ValueEntry* entry = nullptr;
        for (NodeSnapshot::ValueEntry& candidate : node.values) {
            if (candidate.key == coreKeys::id() && candidate.domain == INVALID_CID)
                entry = &candidate;
        }
        const QString given = entry ? entry->value.toQString() : QString();
        QString text = given;
        if (text.isEmpty() || m_document.nodeWithId(text) || m_taken.contains(text)) {
            QString stem = given.isEmpty() ? idPrefix(node.cid) : given;
            while (!stem.isEmpty() && stem.back().isDigit())
                stem.chop(1);
            if (stem.isEmpty())
                stem = idPrefix(node.cid);
            // The document remembers where the free numbers begin, so that adding one by one stays cheap.
            text = m_document.freeId(stem);
            if (m_taken.contains(text)) {
                unsigned int& number = m_numbers[stem];
                if (number == 0)
                    number = text.mid(stem.size()).toUInt();
                do {
                    text = stem + QString::number(++number);
                } while (m_document.nodeWithId(text) || m_taken.contains(text));
            }
        }
        m_taken.insert(text);
        if (entry)
            entry->value = Value(text);
        else
            node.values.push_back({INVALID_CID, coreKeys::id(), Value(text), {}});
    }

    const DocumentImpl& m_document;
    QSet<QString> m_taken;
    QHash<QString, unsigned int> m_numbers;
};

} // namespace

AddNodesCommand::AddNodesCommand(bool pushUndo) : Command(pushUndo ? PushUndo : JoinUndo) {}

AddNodesCommand::AddNodesCommand(const Node& parent, std::vector<NodeSnapshot> nodes, unsigned int index, bool pushUndo)
    : Command(pushUndo ? PushUndo : JoinUndo), m_parent(parent.instanceId()), m_nodes(std::move(nodes)), m_index(index)
{
}

AddNodesCommand::~AddNodesCommand() = default;

LiveText AddNodesCommand::liveUndoDescription() const
{
    return [n = static_cast<int>(m_nodes.size())] { return AddNodesTexts::tr("Adding of %n object(s)", nullptr, n); };
}

QString AddNodesCommand::getXMLClass() const
{
    return QStringLiteral("add-nodes");
}

Value AddNodesCommand::run(ModelMutator& mutator)
{
    const NodeImpl* parent = mutator.node(m_parent);
    if (!parent)
        return fail(AddNodesTexts::tr("The place to add to is not there any more."));
    size_t count = 0;
    for (const NodeSnapshot& node : m_nodes) {
        if (!mayStandIn(node.kind, parent->kind()))
            return fail(
                AddNodesTexts::tr("An object of the class \"%1\" cannot stand there.").arg(findStringForCid(node.cid)));
        count += node.count();
    }
    if (!m_idsGiven) {
        const InstanceId first = count > 0 ? mutator.takeIds(count) : 0;
        if (first == 0 && count > 0)
            return fail(AddNodesTexts::tr("The document has no more instance ids for new objects."));
        m_nodes = NodeSnapshot::withFreshIds(m_nodes, first);
    }
    TextIds textIds(mutator.document());
    for (NodeSnapshot& node : m_nodes)
        textIds.settle(node);
    std::vector<Value> added;
    added.reserve(m_nodes.size());
    unsigned int index = std::min(m_index, parent->childCount());
    for (NodeSnapshot& node : m_nodes) {
        NodeImpl* made = mutator.addNode(m_parent, index++, node);
        if (!made)
            return fail(AddNodesTexts::tr("An instance id is in use already."));
        added.emplace_back(Node(made));
    }
    return Value(added);
}

Value AddNodesCommand::onlyNode(const Value& added)
{
    const std::vector<Value> nodes = added.toValueVector();
    return nodes.empty() ? Value() : nodes.front();
}

void AddNodesCommand::writeContent(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(QStringLiteral("parent"), QString::number(m_parent));
    if (m_index != ~0u)
        writer.writeAttribute(QStringLiteral("index"), QString::number(m_index));
    NodeDb db;
    DocumentImpl::addPackagedClasses(db);
    for (const NodeSnapshot& node : m_nodes)
        NodeXml::write(writer, node, db);
}

bool AddNodesCommand::readContent(QXmlStreamReader& reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    if (!commandXml::readNumber(attributes, QStringLiteral("parent"), m_parent))
        return false;
    m_index = ~0u;
    if (attributes.hasAttribute(QStringLiteral("index")) &&
        !commandXml::readNumber(attributes, QStringLiteral("index"), m_index))
        return false;
    QStringList warnings;
    NodeDb db;
    DocumentImpl::addPackagedClasses(db);
    while (reader.readNextStartElement()) {
        NodeSnapshot node;
        if (!NodeXml::read(reader, db, node, warnings))
            return false;
        m_nodes.push_back(std::move(node));
    }
    m_idsGiven = true;
    return !reader.hasError();
}

AddPartCommand::AddPartCommand(const Space& space, ClassId cid, const zk::Point& position) : AddNodesCommand(true)
{
    m_parent = space.instanceId();
    const SpaceImpl* impl = space.impl();
    if (!impl)
        return;
    m_nodes.push_back(NodeSnapshot::ofPrototype(*impl->document()->getNodeDb(), cid));
    m_nodes.back().values.push_back({INVALID_CID, coreKeys::position(), Value(position), {}});
}

LiveText AddPartCommand::liveUndoDescription() const
{
    return [] { return AddNodesTexts::tr("Adding of a part"); };
}

QString AddPartCommand::getXMLClass() const
{
    return QStringLiteral("add-part");
}

Value AddPartCommand::run(ModelMutator& mutator)
{
    if (m_nodes.empty() || m_nodes.front().kind != NodeKind::Part)
        return fail(AddNodesTexts::tr("There is no such kind of part."));
    return onlyNode(AddNodesCommand::run(mutator));
}

AddSubpartCommand::AddSubpartCommand(const Node& element, ClassId cid, bool pushUndo) : AddNodesCommand(pushUndo)
{
    m_parent = element.instanceId();
    if (const NodeImpl* impl = element.impl())
        m_nodes.push_back(NodeSnapshot::ofPrototype(*impl->document()->getNodeDb(), cid));
}

LiveText AddSubpartCommand::liveUndoDescription() const
{
    return [] { return AddNodesTexts::tr("Adding of a subpart"); };
}

QString AddSubpartCommand::getXMLClass() const
{
    return QStringLiteral("add-subpart");
}

Value AddSubpartCommand::run(ModelMutator& mutator)
{
    const auto* element = qobject_cast<const ElementImpl*>(mutator.node(m_parent));
    if (!element || m_nodes.empty())
        return fail(AddNodesTexts::tr("The part is not there any more."));
    const SubpartRule* rule = element->prototype().ruleFor(m_nodes.front().cid);
    if (!rule)
        return fail(AddNodesTexts::tr("The part cannot have a subpart of the class \"%1\".")
                        .arg(findStringForCid(m_nodes.front().cid)));
    if (rule->maximum != 0) {
        const RoleSet role(rule->role);
        unsigned int present = 0;
        for (const ElementImpl* subpart : element->allSubparts()) {
            if (subpart->getRoles().intersects(role))
                ++present;
        }
        if (present >= rule->maximum)
            return fail(AddNodesTexts::tr("The part has all the subparts of that role that it can have."));
    }
    return onlyNode(AddNodesCommand::run(mutator));
}

AddSceneCommand::AddSceneCommand(const Model& model) : AddNodesCommand(true)
{
    m_parent = model.instanceId();
    if (const ModelImpl* impl = model.impl())
        m_nodes.push_back(NodeSnapshot::ofPrototype(*impl->document()->getNodeDb(), getCidForString("core/scene")));
}

LiveText AddSceneCommand::liveUndoDescription() const
{
    return [] { return AddNodesTexts::tr("Adding of a scene"); };
}

QString AddSceneCommand::getXMLClass() const
{
    return QStringLiteral("add-scene");
}

Value AddSceneCommand::run(ModelMutator& mutator)
{
    return onlyNode(AddNodesCommand::run(mutator));
}
