// The rules of the undo history, each on a real document.
#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/proxyCommands.h"
#include "zkcore/commands/setNodeIndexCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/commands/viewCommands.h"
#include "zkcore/model/modelMutator.h"
#include "zkcore/model/propertyImpl.h"

#include <QTemporaryDir>
#include <QUndoStack>
#include <gtest/gtest.h>
#include <limits>

namespace {

class UndoTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(loadTestKit());
        m_document = std::make_unique<DocumentImpl>();
        m_box = addPart(*m_document, "testkit/box");
        m_other = addPart(*m_document, "testkit/box", {0.05, 0.02});
        m_steps = m_document->undoStack()->count();
    }

    int newSteps() const { return m_document->undoStack()->count() - m_steps; }
    PropertyImpl* length() { return property(m_box, "length"); }

    std::unique_ptr<DocumentImpl> m_document;
    PartImpl* m_box = nullptr;
    PartImpl* m_other = nullptr;
    int m_steps = 0;
};

TEST_F(UndoTest, aCommandThatChangesNothingLeavesNoStep)
{
    EXPECT_TRUE(set(length(), Value(0.02)));
    EXPECT_TRUE(run<SetNodeIndexCommand>(*m_document, Node(m_box), 0u, Command::PushUndo).isValid());
    EXPECT_TRUE(run<SelectAllCommand>(*m_document).isValid());
    EXPECT_EQ(newSteps(), 0);
    EXPECT_TRUE(set(length(), Value(0.03)));
    EXPECT_EQ(newSteps(), 1);
}

TEST_F(UndoTest, aFailedCommandLeavesTheDocumentAsItWas)
{
    const QByteArray before = bytesOf(*m_document);
    const auto refuse = [this](Command* command) {
        EXPECT_FALSE(m_document->executeCommand(command).isValid());
        EXPECT_FALSE(m_document->lastError().isEmpty());
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Value& bad : {Value(nan), Value(infinity), Value(2.0), Value(QStringLiteral("x")), Value()}) {
        auto* command = new SetValueCommand(true);
        command->addProperty(Property(property(m_other, "length")), Value(0.5));
        command->addProperty(Property(length()), bad);
        refuse(command);
    }
    refuse(new SetValueCommand(Property(property(m_box, "sum")), Value(3), true));
    refuse(new SetValueCommand(Property(property(m_box, "id")), Value(QStringLiteral("two words")), true));
    // The second of two equal ids is found while the command is at work: the first one is taken back.
    auto* ids = new SetValueCommand(true);
    ids->addProperty(Property(property(m_box, "id")), Value(QStringLiteral("same")));
    ids->addProperty(Property(property(m_other, "id")), Value(QStringLiteral("same")));
    refuse(ids);
    refuse(new DeleteNodeCommand(Node(firstScene(*m_document)), Command::PushUndo));
    refuse(new DeleteNodeCommand(Node(m_box->getChildAt(0)), Command::PushUndo));
    EXPECT_EQ(bytesOf(*m_document), before);
    EXPECT_EQ(newSteps(), 0);
    EXPECT_EQ(m_document->nodeWithId(QStringLiteral("same")), nullptr);
}

TEST_F(UndoTest, withTheFlagOffAChangeJoinsTheStepOnTop)
{
    set(length(), Value(0.03));
    set(property(m_box, "count"), Value(5), false);
    EXPECT_EQ(newSteps(), 1);
    m_document->undo();
    EXPECT_EQ(length()->getValue(), Value(0.02));
    EXPECT_EQ(property(m_box, "count")->getValue(), Value(3));
    m_document->redo();
    EXPECT_EQ(property(m_box, "count")->getValue(), Value(5));
}

TEST_F(UndoTest, withTheFlagOffAndNoStepNothingIsRecorded)
{
    DocumentImpl fresh;
    PropertyImpl* title = property(firstScene(fresh), "title");
    ASSERT_TRUE(set(title, Value(QStringLiteral("New")), false));
    EXPECT_FALSE(fresh.canUndo());
    EXPECT_TRUE(fresh.isModified());

    // A step that could be redone does not fit such a change, and goes.
    addPart(fresh, "testkit/box");
    fresh.undo();
    ASSERT_TRUE(fresh.canRedo());
    ASSERT_TRUE(set(title, Value(QStringLiteral("Newer")), false));
    EXPECT_FALSE(fresh.canRedo());
    EXPECT_EQ(title->getValue(), Value(QStringLiteral("Newer")));
}

TEST_F(UndoTest, aGestureIsOneStepAndNeverFlowsIntoAnOlderOne)
{
    set(property(m_box, "count"), Value(5));
    run<PushUndoCommand>(*m_document, [] { return QStringLiteral("Drag"); });
    EXPECT_EQ(newSteps(), 1) << "nothing follows yet";
    for (int i = 1; i <= 5; ++i)
        set(length(), Value(0.02 + i * 0.001), false);
    EXPECT_EQ(newSteps(), 2);
    EXPECT_EQ(m_document->undoText(), QStringLiteral("Drag"));
    m_document->undo();
    EXPECT_EQ(length()->getValue(), Value(0.02));
    EXPECT_EQ(property(m_box, "count")->getValue(), Value(5));

    // Opened and left: the next command makes its own step, and undo takes back what it took back before.
    run<PushUndoCommand>(*m_document, [] { return QStringLiteral("Nothing"); });
    m_document->undo();
    EXPECT_EQ(property(m_box, "count")->getValue(), Value(3));
    set(length(), Value(0.04), false);
    EXPECT_FALSE(m_document->canRedo());
}

TEST_F(UndoTest, aGestureAfterSavingMakesTheDocumentModified)
{
    const QTemporaryDir folder;
    set(length(), Value(0.03));
    ASSERT_TRUE(m_document->save(folder.filePath(QStringLiteral("a.zkdoc"))));
    EXPECT_FALSE(m_document->isModified());
    set(length(), Value(0.04), false);
    EXPECT_TRUE(m_document->isModified());
    EXPECT_EQ(newSteps(), 1);
    m_document->undo();
    EXPECT_EQ(length()->getValue(), Value(0.02));
    EXPECT_TRUE(m_document->isModified());
}

TEST_F(UndoTest, transientValuesAreNeverRecorded)
{
    EXPECT_TRUE(set(property(m_box, "lit"), Value(true)));
    EXPECT_EQ(newSteps(), 0);
    auto* both = new SetValueCommand(true);
    both->addProperty(Property(property(m_box, "lit")), Value(false));
    both->addProperty(Property(length()), Value(0.04));
    m_document->executeCommand(both);
    set(property(m_box, "lit"), Value(true));
    m_document->undo();
    EXPECT_EQ(property(m_box, "lit")->getValue(), Value(true));
    EXPECT_EQ(length()->getValue(), Value(0.02));
}

TEST_F(UndoTest, undoSendsItsSignalsInOrderAndRestoresTheSelection)
{
    m_document->setSelection({m_box});
    run<DeleteNodeCommand>(*m_document, std::vector<Node>{Node(m_box), Node(m_other)}, Command::PushUndo);
    EXPECT_TRUE(m_document->getSelection().empty());

    QStringList order;
    const QObject listener; // the document outlives it, and sends more when it ends
    QObject::connect(m_document.get(), &DocumentImpl::undoRedoStarted, &listener,
                     [&] { order << QStringLiteral("started"); });
    QObject::connect(m_document.get(), &DocumentImpl::ElementAdded, &listener, [&](const Element& element) {
        if (element.impl()->kind() == NodeKind::Part)
            order << QStringLiteral("added");
    });
    QObject::connect(m_document.get(), &DocumentImpl::SelectionChanged, &listener,
                     [&] { order << QStringLiteral("selection"); });
    QObject::connect(m_document.get(), &DocumentImpl::Loaded, &listener, [&] { order << QStringLiteral("loaded"); });
    m_document->undo();
    EXPECT_EQ(order, QStringList({QStringLiteral("started"), QStringLiteral("added"), QStringLiteral("added"),
                                  QStringLiteral("selection"), QStringLiteral("loaded")}));
    ASSERT_EQ(m_document->getSelection().size(), 1u);
    EXPECT_EQ((*m_document->getSelection().begin())->instanceId(),
              firstScene(*m_document)->getChildAt(0)->instanceId());
}

TEST_F(UndoTest, aDeletedNodeIsReallyDestroyedAndMadeAgainUnderItsId)
{
    const InstanceId id = m_box->instanceId();
    const InstanceId pin = m_box->getChildAt(0)->instanceId();
    const QByteArray before = bytesOf(*m_document);
    const Node handle(m_box);
    const Property propertyHandle(length());
    NodeImpl* stale = m_box;
    bool announced = false;
    bool destroyed = false;
    QObject::connect(m_box, &NodeImpl::beingDeleted, [&](const Node& node) {
        announced = node.valid() && m_document->nodeById(id) && node.impl()->childCount() > 0;
    });
    QObject::connect(length(), &QObject::destroyed, [&] { destroyed = true; });
    run<DeleteNodeCommand>(*m_document, Node(m_box), Command::PushUndo);
    EXPECT_TRUE(announced);
    EXPECT_TRUE(destroyed);
    EXPECT_FALSE(NodeImpl::valid(stale));
    EXPECT_FALSE(handle.valid());
    EXPECT_FALSE(propertyHandle.isValid());
    EXPECT_EQ(m_document->nodeById(id), nullptr);

    m_document->undo();
    ASSERT_NE(m_document->nodeById(id), nullptr);
    EXPECT_NE(m_document->nodeById(pin), nullptr);
    EXPECT_FALSE(handle.valid()) << "a handle is never resurrected";
    EXPECT_EQ(bytesOf(*m_document), before);
}

TEST_F(UndoTest, textsNameThePropertyAndTheNumberOfNodes)
{
    auto* command = new SetValueCommand(true);
    command->addProperty(Property(length()), Value(0.04));
    command->addProperty(Property(property(m_other, "length")), Value(0.04));
    m_document->executeCommand(command);
    EXPECT_EQ(m_document->undoText(), QStringLiteral("Change of Length (2 objects)"));
    m_document->undo();
    EXPECT_EQ(m_document->redoText(), QStringLiteral("Change of Length (2 objects)"));
    set(length(), Value(0.05));
    EXPECT_EQ(m_document->undoText(), QStringLiteral("Change of Length"));
}

TEST_F(UndoTest, aCommandFromASlotBelongsToTheStepThatCausedIt)
{
    QObject::connect(length(), &PropertyImpl::ValueChanged, m_document.get(), [this](const Property&, const Value& v) {
        if (!m_document->isUndoRedoActive())
            set(property(m_other, "length"), v);
    });
    set(length(), Value(0.07));
    EXPECT_EQ(property(m_other, "length")->getValue(), Value(0.07));
    EXPECT_EQ(newSteps(), 1);
    m_document->undo();
    EXPECT_EQ(property(m_other, "length")->getValue(), Value(0.02));
}

TEST_F(UndoTest, nothingCanBeChangedWhileAnUndoRuns)
{
    set(length(), Value(0.07));
    QObject::connect(length(), &PropertyImpl::ValueChanged, m_document.get(),
                     [this] { EXPECT_FALSE(set(property(m_other, "length"), Value(0.5))); });
    MessageCapture messages;
    m_document->undo();
    EXPECT_EQ(messages.warnings(),
              QStringList(QStringLiteral("DocumentImpl: command set-value refused during undo or redo")));
    EXPECT_TRUE(m_document->canRedo());
}

TEST_F(UndoTest, aSlotMayDeleteWhatIsBeingChanged)
{
    QObject::connect(length(), &PropertyImpl::ValueChanged, m_document.get(), [this] {
        if (!m_document->isUndoRedoActive())
            run<DeleteNodeCommand>(*m_document, std::vector<Node>{Node(m_box), Node(m_other)}, Command::PushUndo);
    });
    const QByteArray before = bytesOf(*m_document);
    auto* command = new SetValueCommand(true);
    command->addProperty(Property(length()), Value(0.04));
    command->addProperty(Property(property(m_other, "length")), Value(0.04));
    m_document->executeCommand(command);
    EXPECT_EQ(firstScene(*m_document)->childCount(), 0u);
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
}

TEST_F(UndoTest, theLimitHoldsFromTheNextEmptyHistoryOn)
{
    DocumentImpl fresh;
    fresh.setUndoLimit(3);
    for (int i = 0; i < 10; ++i)
        addPart(fresh, "testkit/box");
    int undone = 0;
    for (; fresh.canUndo(); ++undone)
        fresh.undo();
    EXPECT_EQ(undone, 3);
}

} // namespace
