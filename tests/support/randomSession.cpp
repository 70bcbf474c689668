#include "tests/support/randomSession.h"

#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/proxyCommands.h"
#include "zkcore/commands/reflectCommand.h"
#include "zkcore/commands/resourceCommand.h"
#include "zkcore/commands/setNodeIndexCommand.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/model/propertyImpl.h"

#include <QColor>

namespace {

ClassId sessionClass(unsigned int n)
{
    constexpr const char* classes[] = {"testkit/box", "testkit/lamp", "testkit/wire"};
    return getCidForString(classes[n % 3]);
}

PropertyKey sessionKey(unsigned int n)
{
    constexpr const char* keys[] = {"length", "count", "on", "name", "tint", "lit", "title", "spot", "partner"};
    return PropertyKey::fromString(keys[n % 9]);
}

void collectElements(NodeImpl* node, std::vector<ElementImpl*>& out)
{
    for (NodeImpl* child : node->children()) {
        out.push_back(static_cast<ElementImpl*>(child));
        collectElements(child, out);
    }
    if (auto* part = qobject_cast<PartImpl*>(node); part && part->popup())
        collectElements(part->popup(), out);
}

} // namespace

void RandomSession::step(unsigned int what, unsigned int x, unsigned int y)
{
    switch (what % kinds) {
    case 0:
        run<AddPartCommand>(m_document, Space(space(x)), sessionClass(y), zk::Point{0.001 * x, 0.001 * y});
        break;
    case 1:
        if (NodeImpl* node = element(x))
            run<DeleteNodeCommand>(m_document, Node(node), y % 4 ? Command::PushUndo : Command::JoinUndo);
        break;
    case 2:
    case 3:
        setSomething(x, y, true);
        break;
    case 4:
        setSomething(x, y, false);
        break;
    case 5:
        if (NodeImpl* node = element(x))
            run<SetNodeIndexCommand>(m_document, Node(node), y % 5, Command::PushUndo);
        break;
    case 6:
        link(x, y);
        break;
    case 7:
        if (NodeImpl* node = element(x))
            if (PropertyImpl* property = node->getProperty(sessionKey(y)))
                run<DetachProxyCommand>(m_document, Property(property), true);
        break;
    case 8:
        if (NodeImpl* node = element(x))
            run<SetUILockedCommand>(m_document, std::vector<Node>{Node(node)}, static_cast<LockGroup>(y % 4),
                                    y % 3 != 0);
        break;
    case 9:
        if (NodeImpl* node = element(x))
            run<AddSubpartCommand>(m_document, Node(node), getCidForString("testkit/pin"));
        break;
    case 10:
        reflect(x, y);
        break;
    case 11:
        run<PushUndoCommand>(m_document, [] { return QStringLiteral("Gesture"); });
        break;
    case 12:
        if (y % 3)
            m_document.undo();
        else
            m_document.redo();
        break;
    case 13:
        if (y % 5 == 0)
            run<AddSceneCommand>(m_document, Model(m_document.getModel()));
        else if (y % 5 == 1)
            run<AddResourceCommand>(
                m_document, Resource(std::make_shared<LocalREntry>(QStringLiteral("local/note"), Resource::TEXT,
                                                                   QByteArray::number(x), QStringLiteral("txt"))));
        else if (y % 5 == 2 && !m_document.localResources().empty())
            run<RemoveResourceCommand>(m_document, m_document.localResources().front());
        else
            select(x);
        break;
    case 14:
        setOfDomain(x, y);
        break;
    }
}

SpaceImpl* RandomSession::space(unsigned int n)
{
    std::vector<SpaceImpl*> spaces;
    for (SceneImpl* scene : m_document.getModel()->getScenes())
        spaces.push_back(scene);
    for (PopupImpl* popup : m_document.getModel()->getPopups())
        spaces.push_back(popup);
    return spaces[n % spaces.size()];
}

ElementImpl* RandomSession::element(unsigned int n)
{
    std::vector<ElementImpl*> elements;
    for (SceneImpl* scene : m_document.getModel()->getScenes())
        collectElements(scene, elements);
    return elements.empty() ? nullptr : elements[n % elements.size()];
}

void RandomSession::setSomething(unsigned int x, unsigned int y, bool push)
{
    auto* command = new SetValueCommand(push);
    for (unsigned int i = 0; i <= y % 3; ++i) {
        NodeImpl* node = element(x + i);
        PropertyImpl* property = node ? node->getProperty(sessionKey(y)) : nullptr;
        if (!property)
            continue;
        Value value(QString::number(x));
        switch (property->type()) {
        case Value::DOUBLE:
            value = Value(0.001 * (x % 50));
            break;
        case Value::INT:
            value = Value(static_cast<int>(x % 13)); // sometimes out of range
            break;
        case Value::BOOL:
            value = Value(x % 2 == 0);
            break;
        case Value::COLOR:
            value = Value(QColor::fromRgb(x * 7919 % 0xffffff));
            break;
        case Value::POINT:
            value = Value(zk::Point{0.1 * (x % 7), 0.2});
            break;
        case Value::NODE:
            value = Value(Node(element(y * 31)));
            break;
        default:
            break;
        }
        command->addProperty(Property(property), value);
    }
    m_document.executeCommand(command);
}

void RandomSession::setOfDomain(unsigned int x, unsigned int y)
{
    PropertyImpl* property = space(x)->getProperty(PropertyKey::fromString("speed"), getCidForString("flowcharts/*"));
    constexpr const char* speeds[] = {"Slow", "Normal", "Fast"};
    run<SetValueCommand>(m_document, Property(property), Value(QString::fromLatin1(speeds[y % 3])), true);
}

void RandomSession::link(unsigned int x, unsigned int y)
{
    NodeImpl* a = element(x);
    NodeImpl* b = element(y);
    if (!a || !b)
        return;
    PropertyImpl* from = a->getProperty(sessionKey(x + y));
    PropertyImpl* to = b->getProperty(sessionKey(x + y));
    if (from && to)
        run<SetProxyCommand>(m_document, Property(from), Property(to));
}

void RandomSession::reflect(unsigned int x, unsigned int y)
{
    auto* part = qobject_cast<PartImpl*>(element(x));
    if (part)
        run<ReflectControlsCommand>(m_document, Part(part), Node(space(y)), y % 4 != 0);
}

void RandomSession::select(unsigned int x)
{
    if (ElementImpl* chosen = element(x))
        m_document.setSelection({chosen});
    else
        run<SelectAllCommand>(m_document);
}
