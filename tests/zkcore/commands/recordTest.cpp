// Random sessions: undone completely they give the first document back byte for byte, redone the last one, and a record
// of them replayed on the first document gives the last one too.
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
#include "zkcore/storage/commandLog.h"

#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace {

/// Does things to a document that numbers choose.
class Session
{
public:
    explicit Session(DocumentImpl& document) : m_document(document) {}

    void step(unsigned int what, unsigned int x, unsigned int y)
    {
        switch (what % 14) {
        case 0:
            run<AddPartCommand>(m_document, Space(space(x)), part(y), zk::Point{0.001 * x, 0.001 * y});
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
                if (PropertyImpl* property = node->getProperty(key(y)))
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
            run<PushUndoCommand>(m_document, QStringLiteral("Gesture"));
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
        }
    }

private:
    static ClassId part(unsigned int n)
    {
        constexpr const char* classes[] = {"testkit/box", "testkit/lamp", "testkit/wire"};
        return getCidForString(classes[n % 3]);
    }

    static PropertyKey key(unsigned int n)
    {
        constexpr const char* keys[] = {"length", "count", "on", "name", "tint", "lit", "title", "spot", "partner"};
        return PropertyKey::fromString(keys[n % 9]);
    }

    SpaceImpl* space(unsigned int n)
    {
        std::vector<SpaceImpl*> spaces;
        for (SceneImpl* scene : m_document.getModel()->getScenes())
            spaces.push_back(scene);
        for (PopupImpl* popup : m_document.getModel()->getPopups())
            spaces.push_back(popup);
        return spaces[n % spaces.size()];
    }

    ElementImpl* element(unsigned int n)
    {
        std::vector<ElementImpl*> elements;
        for (SceneImpl* scene : m_document.getModel()->getScenes())
            collect(scene, elements);
        return elements.empty() ? nullptr : elements[n % elements.size()];
    }

    static void collect(NodeImpl* node, std::vector<ElementImpl*>& out)
    {
        for (NodeImpl* child : node->children()) {
            out.push_back(static_cast<ElementImpl*>(child));
            collect(child, out);
        }
        if (auto* part = qobject_cast<PartImpl*>(node); part && part->popup())
            collect(part->popup(), out);
    }

    void setSomething(unsigned int x, unsigned int y, bool push)
    {
        auto* command = new SetValueCommand(push);
        for (unsigned int i = 0; i <= y % 3; ++i) {
            NodeImpl* node = element(x + i);
            PropertyImpl* property = node ? node->getProperty(key(y)) : nullptr;
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

    void link(unsigned int x, unsigned int y)
    {
        NodeImpl* a = element(x);
        NodeImpl* b = element(y);
        if (!a || !b)
            return;
        PropertyImpl* from = a->getProperty(key(x + y));
        PropertyImpl* to = b->getProperty(key(x + y));
        if (from && to)
            run<SetProxyCommand>(m_document, Property(from), Property(to));
    }

    void reflect(unsigned int x, unsigned int y)
    {
        auto* part = qobject_cast<PartImpl*>(element(x));
        if (part)
            run<ReflectControlsCommand>(m_document, Part(part), Node(space(y)), y % 4 != 0);
    }

    void select(unsigned int x)
    {
        if (ElementImpl* chosen = element(x))
            m_document.setSelection({chosen});
        else
            run<SelectAllCommand>(m_document);
    }

    DocumentImpl& m_document;
};

using Steps = std::vector<std::tuple<unsigned int, unsigned int, unsigned int>>;

void undoAll(DocumentImpl& document)
{
    while (document.canUndo())
        document.undo();
}

TEST(RecordTest, randomSessionsAreUndoneRedoneAndReplayedToTheByte)
{
    ASSERT_TRUE(loadTestKit());
    const bool held = rc::check("sessions", [] {
        const auto size = *rc::gen::inRange(1, 60);
        const auto steps = *rc::gen::container<Steps>(
            static_cast<size_t>(size),
            rc::gen::tuple(rc::gen::inRange(0u, 1000u), rc::gen::inRange(0u, 1000u), rc::gen::inRange(0u, 1000u)));
        DocumentImpl document;
        addPart(document, "testkit/lamp");
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("start.zkdoc"));
        RC_ASSERT(document.save(file));
        RC_ASSERT(document.load(file));
        const QByteArray start = bytesOf(document);

        QByteArray record;
        {
            CommandLog log(&document);
            Session session(document);
            for (const auto& [what, x, y] : steps) {
                // Changes that join no step are not recorded, so the first one makes a step.
                if (!document.canUndo() && what % 14 != 0)
                    continue;
                session.step(what, x, y);
            }
            record = log.toXML();
        }
        const QByteArray end = bytesOf(document);

        DocumentImpl other;
        RC_ASSERT(other.load(file));
        QString error;
        const bool replayed = CommandLog::replay(record, &other, error);
        if (!replayed)
            RC_FAIL(error.toStdString());
        RC_ASSERT(bytesOf(other) == end);

        undoAll(document);
        RC_ASSERT(bytesOf(document) == start);
        while (document.canRedo())
            document.redo();
        undoAll(document);
        RC_ASSERT(bytesOf(document) == start);

        // A document saved anywhere loads into the same bytes.
        const QString last = folder.filePath(QStringLiteral("end.zkdoc"));
        RC_ASSERT(other.save(last));
        RC_ASSERT(document.load(last));
        RC_ASSERT(bytesOf(document) == end);
    });
    EXPECT_TRUE(held);
}

TEST(RecordTest, faultyRecordsAreRefusedWithTheirPlace)
{
    ASSERT_TRUE(loadTestKit());
    const auto replay = [](const QByteArray& entries) {
        DocumentImpl target;
        QString error;
        EXPECT_FALSE(CommandLog::replay(entries, &target, error)) << entries.toStdString();
        return error;
    };
    DocumentImpl document;
    const QByteArray frame = CommandLog(&document).toXML();
    EXPECT_FALSE(replay("").isEmpty());
    EXPECT_FALSE(replay("<nonsense/>").isEmpty());
    EXPECT_FALSE(replay(frame.left(frame.size() / 2)).isEmpty());
    for (const QByteArray entry :
         {"<no-such-command/>", "<set-value><set node=\"x\" key=\"a\" type=\"int\">1</set></set-value>",
          "<set-value><set node=\"1\" key=\"title\" type=\"int\">one</set></set-value>", "<set-value flags=\"9\"/>",
          "<delete-node nodes=\"1 two\"/>", "<set-ui-locked group=\"7\" nodes=\"1\"/>", "<delete-node nodes=\"999\"/>",
          "<add-part parent=\"2\"><part class=\"testkit/box\" id=\"2\"/></add-part>"}) {
        QXmlStreamReader reader(entry);
        reader.readNextStartElement();
        const auto command = Command::create(reader.name().toString());
        if (!command)
            continue;
        DocumentImpl target;
        if (command->fromXML(reader))
            EXPECT_FALSE(command->execute(&target).isValid()) << entry.toStdString();
        else
            EXPECT_TRUE(reader.hasError());
    }
    EXPECT_EQ(Command::create(QStringLiteral("no-such-command")), nullptr);
}

} // namespace
