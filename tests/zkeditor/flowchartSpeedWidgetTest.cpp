#include "zkeditor/flowchartSpeedWidget.h"

#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkeditor/widgets/observerButton.h"
#include "zkeditor/widgets/observerCombobox.h"

#include <QLabel>
#include <QTest>
#include <QUndoStack>
#include <gtest/gtest.h>
#include <memory>

namespace {

class FlowchartSpeedTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadTestKit()); }

    void SetUp() override
    {
        scene = firstScene(*document);
        strip.bind(document.get(), Space(scene));
        strip.show();
    }

    static PropertyImpl* ofSpace(SpaceImpl* space, const char* key)
    {
        return space->getProperty(PropertyKey::fromString(key), getCidForString("flowcharts/*"));
    }
    static void setSpeed(SpaceImpl* space, const char* speed) { set(ofSpace(space, "speed"), Value(QString(speed))); }
    SceneImpl* addScene()
    {
        const Value added = run<AddSceneCommand>(*document, Model(document->getModel()));
        return qobject_cast<SceneImpl*>(added.toNode().impl());
    }

    std::unique_ptr<DocumentImpl> document = std::make_unique<DocumentImpl>();
    SceneImpl* scene = nullptr;
    FlowchartSpeedWidget strip{true, nullptr};
    ObserverComboBox* combo = strip.findChild<ObserverComboBox*>();
    ObserverButton* step = strip.findChild<ObserverButton*>();
};

using FlowchartSpeedDeathTest = FlowchartSpeedTest;

} // namespace

TEST_F(FlowchartSpeedTest, ManualModeStepsByHand)
{
    EXPECT_EQ(strip.findChild<QLabel*>()->text(), QString("Flowcharts:"));
    EXPECT_FALSE(FlowchartSpeedWidget().findChild<QLabel*>());
    EXPECT_EQ(combo->count(), 4);
    EXPECT_FALSE(step->isVisible());
    QTest::keyClick(combo, Qt::Key_End);
    EXPECT_EQ(ofSpace(scene, "speed")->getValue().toQString(), QString("Manual step"));
    EXPECT_TRUE(step->isVisible());
    EXPECT_FALSE(step->icon().isNull());

    const int steps = document->undoStack()->count();
    QTest::mousePress(step, Qt::LeftButton);
    EXPECT_TRUE(ofSpace(scene, "step-pressed")->getValue().toBool());
    QTest::mouseRelease(step, Qt::LeftButton);
    EXPECT_FALSE(ofSpace(scene, "step-pressed")->getValue().toBool());
    EXPECT_EQ(document->undoStack()->count(), steps);

    document->undo(); // of the speed
    EXPECT_FALSE(step->isVisible());
    document->redo();
    EXPECT_TRUE(step->isVisible());
}

TEST_F(FlowchartSpeedTest, PausedModelCannotBeStepped)
{
    setSpeed(scene, "Manual step");
    PropertyImpl* paused = property(document->getModel(), "paused");
    QTest::mousePress(step, Qt::LeftButton);
    set(paused, Value(true));
    EXPECT_FALSE(step->isEnabled());
    EXPECT_FALSE(ofSpace(scene, "step-pressed")->getValue().toBool()); // let go with it
    set(paused, Value(false));
    EXPECT_TRUE(step->isEnabled());
}

TEST_F(FlowchartSpeedTest, FollowsOneSpaceOnly)
{
    SceneImpl* second = addScene();
    setSpeed(second, "Manual step");
    EXPECT_FALSE(step->isVisible());
    strip.bind(document.get(), Space(second));
    EXPECT_TRUE(step->isVisible());
    setSpeed(scene, "Slow");
    EXPECT_TRUE(step->isVisible());
    setSpeed(second, "Fast");
    EXPECT_FALSE(step->isVisible());

    run<DeleteNodeCommand>(*document, Node(scene), Command::PushUndo);
    EXPECT_TRUE(strip.space().valid());
    PropertyImpl* paused = property(document->getModel(), "paused");
    document->undo();
    run<DeleteNodeCommand>(*document, Node(second), Command::PushUndo);
    EXPECT_FALSE(strip.space().valid());
    EXPECT_FALSE(strip.isEnabled()); // nobody can choose a speed of nothing
    set(paused, Value(true));
    document->undo();
    EXPECT_FALSE(strip.isEnabled());
}

TEST_F(FlowchartSpeedTest, OutlivesItsDocumentAndPopup)
{
    PartImpl* lamp = addPart(*document, "testkit/lamp");
    ASSERT_TRUE(lamp->popup());
    strip.bind(document.get(), Space(lamp->popup()));
    run<DeleteNodeCommand>(*document, Node(lamp), Command::PushUndo);
    EXPECT_FALSE(strip.isEnabled());
    strip.bind(document.get(), Space(scene));
    EXPECT_TRUE(strip.isEnabled());
    document.reset();
    EXPECT_FALSE(strip.isEnabled());
    strip.unbind();
}

TEST_F(FlowchartSpeedDeathTest, BrokenCallsAreFatal)
{
    EXPECT_DEATH(strip.bind(nullptr, Space(scene)), "ZK_ASSERT: \"doc\" in ");
    EXPECT_DEATH(strip.bind(document.get(), Space()), "ZK_ASSERT: \"space.valid\\(\\)\" in ");
    strip.unbind();
    EXPECT_DEATH(QMetaObject::invokeMethod(&strip, "onSpeedChanged"), "ZK_ASSERT: \"m_space.valid\\(\\)\" in ");
}
