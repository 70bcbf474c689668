#include "zkcore/services/flowchartRunner.h"

#include "tests/support/testDocument.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/model/coreKeys.h"

#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>
#include <gtest/gtest.h>

namespace {

const ClassId chartDomain = getCidForString("flowcharts/*");

/// The sample of the pedestrian crossing: a loop that asks a button, and a procedure with a chart in its pop-up.
class CrossingTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(document.load(ZK_SOURCE_DIR "/samples/crossing.zkdoc")) << document.lastError().toStdString();
        before = bytesOf(document);
        QObject::connect(&runner, &FlowchartRunner::blockEntered,
                         [this](const Node& block) { path += block.impl()->displayName(); });
        QObject::connect(&runner, &FlowchartRunner::problemFound, [this](const QString& text) { problems += text; });
    }

    NodeImpl* node(const char* id) { return document.nodeWithId(id); }
    int level(const char* id) { return node(id)->valueOfProperty(PropertyKey::fromString("running-level")).toInt(); }
    bool isActive(const char* id) { return node(id)->valueOfProperty(PropertyKey::fromString("active")).toBool(); }
    SpaceImpl* scene() { return firstScene(document); }
    PropertyImpl* speed() { return scene()->getProperty(PropertyKey::fromString("speed"), chartDomain); }
    void pressStep(bool down)
    {
        set(scene()->getProperty(PropertyKey::fromString("step-pressed"), chartDomain), Value(down), false);
        QCoreApplication::processEvents();
    }
    void step()
    {
        pressStep(true);
        pressStep(false);
    }
    void pressButton()
    {
        const Part button{Node(node("button"))};
        EXPECT_TRUE(runner.press(button, true));
        EXPECT_TRUE(runner.press(button, false));
    }
    /// The lamps that shine, in the order red, amber, green of the cars, red, green of the walkers.
    QString lights()
    {
        QString text;
        for (const char* id : {"car-red", "car-amber", "car-green", "walk-red", "walk-green"})
            text += level(id) > 0 ? 'x' : '-';
        return text;
    }
    QStringList takePath() { return std::exchange(path, {}); }

    DocumentImpl document;
    QByteArray before;
    FlowchartRunner runner{&document};
    QStringList path;
    QStringList problems;
};

/// Blocks in a new document, wired as a test needs them.
class ChartTest : public testing::Test
{
protected:
    PartImpl* block(const char* cid) { return addPart(document, cid); }
    void link(PartImpl* from, const char* wayOut, PartImpl* to)
    {
        PartImpl* connection = addPart(document, "flowcharts/link");
        ASSERT_TRUE(set(property(connection, "from"), Value(Node(pin(from, wayOut)))));
        ASSERT_TRUE(set(property(connection, "to"), Value(Node(pin(to, "in")))));
    }
    static NodeImpl* pin(PartImpl* part, const char* id)
    {
        for (ElementImpl* subpart : part->allSubparts())
            if (subpart->valueOfProperty(coreKeys::id()).toQString() == id)
                return subpart;
        ADD_FAILURE() << "no pin " << id;
        return nullptr;
    }
    PartImpl* component(const char* cid, const char* name)
    {
        PartImpl* part = addPart(document, cid);
        set(property(part, "output-name"), Value(QString(name)));
        return part;
    }
    static int level(PartImpl* part) { return part->valueOfProperty(PropertyKey::fromString("running-level")).toInt(); }

    DocumentImpl document;
    FlowchartRunner runner{&document};
};

} // namespace

TEST_F(CrossingTest, RunsThroughAWholeCycle)
{
    ASSERT_TRUE(set(speed(), Value(QString("Normal"))));
    before = bytesOf(document);
    const int steps = document.undoStack()->count();
    ASSERT_TRUE(runner.hasCharts());
    runner.start();
    EXPECT_TRUE(isActive("start"));
    EXPECT_EQ(lights(), "x--x-"); // as at the start
    runner.advance(0.3);
    EXPECT_TRUE(isActive("cars-go"));
    EXPECT_FALSE(isActive("start"));
    EXPECT_EQ(lights(), "--xx-");
    runner.advance(3.3); // nobody pressed: round again
    EXPECT_EQ(takePath(), QStringList({"Start", "Cars: green", "Pressed?", "Cars: green"}));
    pressButton(); // let go long before the chart asks
    runner.advance(3.2);
    EXPECT_EQ(takePath(), QStringList({"Pressed?", "Cars: amber"}));
    EXPECT_EQ(lights(), "-x-x-");
    runner.advance(2.0);
    EXPECT_EQ(lights(), "x--x-");
    EXPECT_EQ(level("buzzer"), 0);
    runner.advance(2.0);
    EXPECT_EQ(takePath(), QStringList({"Cars: red", "Let people walk", "Start", "Buzzer on", "Walk: green"}));
    EXPECT_TRUE(isActive("walk")); // as long as the chart inside it runs
    EXPECT_EQ(lights(), "x---x");
    EXPECT_EQ(level("buzzer"), 100);
    runner.advance(6.0);
    QSet<int> seen;
    for (int i = 0; i < 50; ++i) {
        runner.advance(0.05);
        seen.insert(level("walk-green"));
    }
    EXPECT_EQ(seen, QSet<int>({0, 100}));
    EXPECT_EQ(level("buzzer"), 0);
    runner.advance(1.0);
    EXPECT_EQ(lights(), "x--x-");
    runner.advance(2.0);
    EXPECT_FALSE(isActive("walk"));
    EXPECT_EQ(lights(), "xx-x-");
    for (int i = 0; i < 50 && !path.contains("Again"); ++i)
        runner.advance(0.05);
    EXPECT_EQ(takePath(), QStringList({"Flash green", "Walk: red", "Back", "Red and amber", "Again"}));
    runner.advance(0.6);
    EXPECT_EQ(lights(), "--xx-");

    EXPECT_EQ(document.undoStack()->count(), steps);
    EXPECT_EQ(bytesOf(document), before); // running leaves no trace in the file
    runner.stop();
    EXPECT_EQ(level("car-green"), -1);
    EXPECT_FALSE(isActive("cars-go"));
    EXPECT_EQ(problems, QStringList());
}

TEST_F(CrossingTest, ManualStepsGoBlockByBlock)
{
    ASSERT_TRUE(set(speed(), Value(QString("Manual step"))));
    const bool modified = document.isModified();
    const QString undoText = document.undoText();
    runner.start();
    runner.advance(100.0); // time does nothing
    pressStep(true);
    runner.advance(100.0); // nor does holding the button
    pressStep(false);
    EXPECT_EQ(takePath(), QStringList({"Start", "Cars: green"}));
    pressButton();
    QStringList states;
    for (int i = 0; i < 14; ++i) {
        step();
        states += lights();
    }
    // The steps go on inside the pop-up, whose speed follows the scene's.
    EXPECT_EQ(takePath(), QStringList({"Pressed?", "Cars: amber", "Cars: red", "Let people walk", "Start", "Buzzer on",
                                       "Walk: green", "Flash green", "Walk: red", "Back", "Red and amber", "Again",
                                       "Start", "Cars: green"}));
    EXPECT_EQ(states, QStringList({"--xx-", "-x-x-", "x--x-", "x--x-", "x--x-", "x--x-", "x---x", "x---x", "x--x-",
                                   "x--x-", "xx-x-", "xx-x-", "xx-x-", "--xx-"}));
    EXPECT_EQ(document.undoText(), undoText);
    EXPECT_EQ(document.isModified(), modified);
    // Another speed goes on by itself.
    ASSERT_TRUE(set(speed(), Value(QString("Fast"))));
    runner.advance(1.0);
    EXPECT_EQ(takePath(), QStringList({"Pressed?", "Cars: green"}));
}

TEST_F(CrossingTest, PausesAndHurries)
{
    const auto blocksIn = [&](const char* pace, double seconds) {
        runner.stop();
        set(speed(), Value(QString(pace)));
        runner.start();
        path.clear();
        runner.advance(seconds);
        return takePath().size();
    };
    EXPECT_EQ(blocksIn("Slow", 13.0), 4);
    EXPECT_EQ(blocksIn("Normal", 6.5), 4);
    EXPECT_EQ(blocksIn("Fast", 1.65), 4);

    PropertyImpl* paused = property(document.getModel(), "paused");
    set(paused, Value(true), false);
    runner.advance(100.0);
    runner.step();
    step();
    EXPECT_EQ(path, QStringList());
    set(paused, Value(false), false);
    runner.advance(1.0);
    EXPECT_FALSE(path.isEmpty());
}

TEST_F(CrossingTest, RunsByItsOwnTimer)
{
    ASSERT_TRUE(set(speed(), Value(QString("Fast"))));
    runner.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return path.contains("Cars: green"); }, 5000));
    PropertyImpl* paused = property(document.getModel(), "paused");
    set(paused, Value(true), false);
    path.clear();
    QTest::qWait(120);
    EXPECT_EQ(path, QStringList());
    runner.stop();
    runner.start(); // while it is paused
    EXPECT_EQ(path, QStringList());
    set(paused, Value(false), false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return path.contains("Start"); }, 5000));
}

TEST_F(CrossingTest, TheDocumentMayChangeMeanwhile)
{
    ASSERT_TRUE(set(speed(), Value(QString("Normal"))));
    runner.start();
    runner.advance(0.3);
    ASSERT_EQ(lights(), "--xx-");
    run<DeleteNodeCommand>(document, Node(node("car-green")), Command::PushUndo);
    run<DeleteNodeCommand>(document, Node(node("cars-slow")), Command::PushUndo);
    runner.advance(0.1);
    document.undo();
    document.undo();
    EXPECT_EQ(level("car-green"), 100); // it came back in the middle of the run
    pressButton();
    runner.advance(3.5);
    EXPECT_TRUE(isActive("cars-slow"));
    document.redo();
    document.redo();
    runner.advance(5.0); // its block is gone
    EXPECT_EQ(takePath().last(), "Cars: amber");
    EXPECT_FALSE(isActive("cars-stop"));
    document.undo();
    document.undo();
    EXPECT_FALSE(isActive("cars-slow"));
    run<DeleteNodeCommand>(document, Node(node("car-amber")), Command::PushUndo);
    runner.stop();
    document.undo();
    EXPECT_EQ(level("car-amber"), -1);

    runner.start();
    QSignalSpy running(&runner, &FlowchartRunner::runningChanged);
    ASSERT_TRUE(document.load(ZK_SOURCE_DIR "/samples/nightlight.zkdoc"));
    EXPECT_FALSE(runner.isRunning());
    EXPECT_EQ(running.count(), 1);
    runner.start();
    runner.advance(3.0);
}

TEST_F(CrossingTest, ReceiversMayStopOrDeleteEverything)
{
    ASSERT_TRUE(set(speed(), Value(QString("Normal"))));
    QObject::connect(&runner, &FlowchartRunner::blockEntered, &runner, [this](const Node& block) {
        if (block.impl()->displayName() == "Pressed?")
            runner.stop();
    });
    runner.start();
    runner.advance(60.0);
    EXPECT_FALSE(runner.isRunning());
    EXPECT_EQ(bytesOf(document).contains("running-level"), false);

    auto other = std::make_unique<DocumentImpl>();
    ASSERT_TRUE(other->load(ZK_SOURCE_DIR "/samples/crossing.zkdoc"));
    auto* second = new FlowchartRunner(other.get());
    second->start();
    QObject::connect(other.get(), &DocumentImpl::nodeValueChanged, [&] { delete std::exchange(second, nullptr); });
    second->advance(10.0);
    EXPECT_TRUE(second == nullptr);
    FlowchartRunner third(other.get());
    third.start();
    other.reset();
    EXPECT_FALSE(third.isRunning());
    third.start();
    third.advance(1.0);
}

TEST_F(ChartTest, FadesAskInputsAndEnd)
{
    PartImpl* start = block("flowcharts/start");
    PartImpl* fade = block("flowcharts/step");
    PartImpl* stop = block("flowcharts/stop");
    link(start, "out", fade);
    link(fade, "out", stop);
    PartImpl* lamp = component("electronics/led", "lamp");
    PartImpl* other = component("electronics/led", "other");
    PartImpl* toggle = component("electronics/switch", "toggle");
    set(property(toggle, "key"), Value(QString("T")));
    set(property(other, "lit"), Value(true));
    set(property(start, "inputs"), Value(std::vector<QString>{"toggle"}));
    set(property(fade, "action"), Value(QString("Fade")));
    set(property(fade, "output-name"), Value(QString("lamp")));
    set(property(fade, "strength"), Value(80));
    set(property(fade, "duration"), Value(2.0));
    set(property(stop, "outputs"), Value(QString("switch off")));
    set(property(stop, "message"), Value(QString("Done")));
    QSignalSpy message(&runner, &FlowchartRunner::messageShown);

    runner.start();
    runner.advance(5.0);
    EXPECT_EQ(level(lamp), 0);
    EXPECT_EQ(level(other), 100);
    EXPECT_FALSE(runner.pressKey('X', true));
    EXPECT_TRUE(runner.pressKey('t', true));
    EXPECT_TRUE(runner.pressKey('t', false));
    EXPECT_EQ(level(toggle), 100); // stays
    runner.advance(1.3);           // the start block, then half the time
    EXPECT_NEAR(level(lamp), 40, 3);
    runner.advance(0.9);
    EXPECT_NEAR(level(lamp), 76, 3);
    EXPECT_TRUE(message.isEmpty());
    runner.advance(1.0);
    EXPECT_EQ(level(lamp), 0);
    EXPECT_EQ(level(other), 0);
    EXPECT_EQ(message.count(), 1);
    runner.advance(10.0); // it does not begin again while the input is still on
    EXPECT_EQ(message.count(), 1);
    runner.pressKey('T', true);
    runner.advance(0.1);
    runner.pressKey('T', true);
    runner.advance(10.0);
    EXPECT_EQ(message.count(), 2);
}

TEST_F(ChartTest, BreakpointsHaltAndDecisionsCompare)
{
    PartImpl* start = block("flowcharts/start");
    PartImpl* decision = block("flowcharts/decision");
    PartImpl* yes = block("flowcharts/step");
    PartImpl* no = block("flowcharts/step");
    link(start, "out", decision);
    link(decision, "right", yes);
    link(decision, "down", no);
    PartImpl* sensor = component("electronics/light-sensor", "light");
    set(property(decision, "yes-branch"), Value(QString("right")));
    set(property(decision, "breakpoint"), Value(true));
    QString last;
    QObject::connect(&runner, &FlowchartRunner::blockEntered, [&](const Node& node) {
        last = node.impl() == yes ? "yes" : node.impl() == no ? "no" : "";
    });
    QSignalSpy halted(&runner, &FlowchartRunner::halted);
    const auto answer = [&](const char* comparison, double threshold, int light) {
        set(property(decision, "comparison"), Value(QString(comparison)));
        set(property(decision, "threshold"), Value(threshold));
        set(property(sensor, "light-level"), Value(light));
        runner.stop();
        runner.start();
        runner.advance(5.0);
        EXPECT_EQ(last, "");
        runner.step();
        runner.advance(0.3);
        return last;
    };
    set(property(decision, "input-name"), Value(QString("light")));
    EXPECT_EQ(answer("is greater than", 50.0, 51), "yes");
    EXPECT_EQ(answer("is greater than", 50.0, 50), "no");
    EXPECT_EQ(answer("is less than", 50.0, 49), "yes");
    EXPECT_EQ(answer("is on", 0.0, 1), "yes"); // it signals darkness
    EXPECT_EQ(answer("is on", 0.0, 80), "no");
    set(property(decision, "input-name"), Value(QString()));
    set(property(decision, "watched"), Value(Node(sensor)));
    EXPECT_EQ(answer("is off", 0.0, 80), "yes");
    EXPECT_EQ(halted.count(), 6);
}

TEST_F(ChartTest, FaultsOfTheDrawingAreNamedOnce)
{
    PartImpl* start = block("flowcharts/start");
    PartImpl* step = block("flowcharts/step");
    PartImpl* decision = block("flowcharts/decision");
    link(start, "out", step);
    link(step, "out", decision);
    link(decision, "down", step);
    for (auto [part, name] : {std::pair(start, "Begin"), std::pair(step, "Lamp"), std::pair(decision, "Ask")})
        set(property(part, "title"), Value(QString(name)));
    set(property(step, "output-name"), Value(QString("nothing")));
    set(property(decision, "input-name"), Value(QString("nobody")));
    QStringList problems;
    QObject::connect(&runner, &FlowchartRunner::problemFound, [&](const QString& text) { problems += text; });
    QSignalSpy finished(&runner, &FlowchartRunner::finished);
    runner.start();
    runner.advance(20.0);
    EXPECT_EQ(problems, QStringList({"The block \"Lamp\" switches \"nothing\", but nothing has that output name.",
                                     "The decision \"Ask\" asks \"nobody\", but nothing has that output name.",
                                     "Nothing follows one of the answers of \"Ask\": the chart ends there."}));
    EXPECT_EQ(finished.count(), 1);
    EXPECT_TRUE(runner.isRunning()); // what was switched stays to be seen
    runner.stop();
    runner.start();
    runner.advance(20.0);
    EXPECT_EQ(problems.size(), 6);
}
