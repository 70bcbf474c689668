// Flowcharts that run in the main window, worked as readers do it.
#include "zkauthor/flowchartBar.h"

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "windowTest.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/services/flowchartRunner.h"
#include "zkcore/services/openUrl.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <QUrl>
#include <utility>

namespace {

class FlowchartBarTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        setUrlOpener([this](const QUrl& url) {
            m_opened.append(url.toString());
            return true;
        });
    }
    void TearDown() override
    {
        setUrlOpener({});
        WindowTest::TearDown();
    }

    FlowchartBar& bar() { return *m_window->flowcharts(); }
    void press(const char* id, bool down)
    {
        if (down)
            QTest::mousePress(view().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(id));
        else
            QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(id));
    }
    QToolButton* button(const char* name) { return bar().findChild<QToolButton*>(QLatin1String(name)); }
    QComboBox* speed() { return bar().findChild<QComboBox*>(); }
    QStringList takeOpened() { return std::exchange(m_opened, {}); }

    QStringList m_opened;
};

/// The sample of the pedestrian crossing.
class CrossingWindowTest : public FlowchartBarTest
{
protected:
    void SetUp() override
    {
        FlowchartBarTest::SetUp();
        ASSERT_TRUE(QFile::copy(QStringLiteral(ZK_SOURCE_DIR "/samples/crossing.zkdoc"), path("crossing.zkdoc")));
        open();
    }
    void TearDown() override
    {
        if (m_window) { // whatever happened, running has left no trace
            m_window->flowcharts()->runner()->stop();
            EXPECT_EQ(bytesOf(document()), m_before);
            EXPECT_EQ(undoSteps(), 0);
            EXPECT_FALSE(document().canUndo());
            EXPECT_FALSE(document().isModified());
            EXPECT_FALSE(m_window->isWindowModified());
        }
        FlowchartBarTest::TearDown();
    }

    void open()
    {
        QString error;
        ASSERT_TRUE(m_window->openFile(path("crossing.zkdoc"), error)) << error.toStdString();
        m_before = bytesOf(document());
        view().setFocus();
    }
    void chooseManualStep()
    {
        const int item = speed()->findText(QStringLiteral("Manual step"));
        ASSERT_GE(item, 0);
        speed()->setFocus();
        while (speed()->currentIndex() != item)
            QTest::keyClick(speed(), speed()->currentIndex() < item ? Qt::Key_Down : Qt::Key_Up);
        ASSERT_TRUE(document().save(path("crossing.zkdoc")));
        open();
    }

    bool shines(const char* id)
    {
        return part(id)->valueOfProperty(PropertyKey::fromString("running-level")).toInt() > 0;
    }
    bool isActive(const char* id) { return part(id)->valueOfProperty(PropertyKey::fromString("active")).toBool(); }
    /// Model time; what runs by the clock meanwhile is little.
    void pass(int seconds)
    {
        for (int i = 0; i < seconds * 10; ++i)
            bar().runner()->advance(0.1);
    }
    bool passUntilActive(const char* id)
    {
        for (int i = 0; i < 100 && !isActive(id); ++i)
            bar().runner()->advance(0.2);
        return isActive(id);
    }

    QByteArray m_before;
};

} // namespace

TEST_F(CrossingWindowTest, RunsByKeyAndIsPressedWithTheMouse)
{
    press("button", true);
    press("button", false);
    EXPECT_EQ(selectedIds(), QStringList{"button"}); // while it is edited, a part is selected
    document().setSelection({});

    keys(Qt::Key_F5);
    EXPECT_TRUE(bar().isRunning());
    EXPECT_TRUE(action("run")->isChecked());
    EXPECT_TRUE(isActive("start"));
    ASSERT_TRUE(passUntilActive("cars-go"));
    EXPECT_TRUE(shines("car-green"));
    ASSERT_TRUE(passUntilActive("pressed"));
    pass(20); // nobody has come: it goes round
    EXPECT_FALSE(isActive("cars-slow"));

    press("button", true);
    press("button", false);
    EXPECT_TRUE(passUntilActive("cars-slow"));
    EXPECT_TRUE(shines("car-amber"));
    EXPECT_FALSE(shines("car-green"));
    EXPECT_TRUE(passUntilActive("walk"));
    EXPECT_EQ(m_window->spaceTabs()->count(), 1);
    EXPECT_EQ(selectedIds(), QStringList());

    keys(Qt::Key_F5);
    EXPECT_FALSE(bar().isRunning());
    EXPECT_FALSE(isActive("walk"));
    EXPECT_FALSE(action("run")->isChecked());
    clickPart("car-red");
    EXPECT_EQ(selectedIds(), QStringList{"car-red"});
}

TEST_F(CrossingWindowTest, EveryPressOfAReaderCounts)
{
    trigger("run");
    view().setFocus();
    ASSERT_TRUE(passUntilActive("pressed"));
    QTest::keyClick(&view(), Qt::Key_P);
    EXPECT_TRUE(passUntilActive("cars-slow"));
    trigger("run");

    // The second press of two quick ones comes as a double click.
    trigger("run");
    int presses = 0;
    QObject::connect(m_window->spaceTabs(), &SpaceTabs::partPressed, &bar(),
                     [&](PartImpl*, bool down) { presses += down ? 1 : 0; });
    press("button", true);
    press("button", false);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf("button"));
    press("button", false);
    EXPECT_EQ(presses, 2);
    EXPECT_TRUE(passUntilActive("cars-slow"));
    // Parts stay where they are.
    const zk::Point place = part("car-red")->position();
    dragPart("car-red", {60, 40});
    QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf("car-red") + QPoint(60, 40));
    EXPECT_EQ(part("car-red")->position(), place);
}

TEST_F(CrossingWindowTest, PauseHoldsEverythingUntilItIsLeft)
{
    trigger("run");
    pass(1);
    QTest::mouseClick(button("pause"), Qt::LeftButton);
    EXPECT_TRUE(button("pause")->isChecked());
    pass(60);
    EXPECT_TRUE(isActive("cars-go"));
    button("pause")->setFocus();
    QTest::keyClick(button("pause"), Qt::Key_Space);
    EXPECT_FALSE(button("pause")->isChecked());
    EXPECT_TRUE(passUntilActive("pressed"));
}

TEST_F(CrossingWindowTest, StepButtonGoesOnByOneBlock)
{
    EXPECT_FALSE(button("flowchartStep")->isVisible());
    chooseManualStep();
    QToolButton* step = button("flowchartStep");
    ASSERT_TRUE(step->isVisible());
    trigger("run");
    pass(60);
    EXPECT_TRUE(isActive("start"));
    for (const char* next : {"cars-go", "pressed"}) {
        QTest::mouseClick(step, Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([&] { return isActive(next); }, 500)) << next;
    }
    press("button", true);
    press("button", false);
    step->setFocus();
    keys(Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isActive("cars-slow"); }, 500));

    // A paused model is not stepped; another document is not paused.
    QTest::mouseClick(button("pause"), Qt::LeftButton);
    EXPECT_FALSE(step->isEnabled());
    open();
    EXPECT_FALSE(button("pause")->isChecked());
    EXPECT_TRUE(step->isVisible());
    EXPECT_TRUE(step->isEnabled());
    trigger("run");
    QTest::mouseClick(step, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return isActive("cars-go"); }, 500));
}

TEST_F(CrossingWindowTest, OtherDocumentsMayComeAtAnyTime)
{
    trigger("run");
    pass(2);
    press("button", true);
    open();
    EXPECT_FALSE(bar().isRunning());
    EXPECT_FALSE(action("run")->isChecked());
    press("button", false);
    clickPart("button");
    EXPECT_EQ(selectedIds(), QStringList{"button"}); // it is edited again
    trigger("run");
    EXPECT_TRUE(bar().isRunning());
    m_window.reset(); // closing the window while they run
}

TEST_F(FlowchartBarTest, WithoutAChartThereIsNothingToRun)
{
    trigger("run");
    EXPECT_FALSE(bar().isRunning());
    EXPECT_FALSE(action("run")->isChecked());
    EXPECT_EQ(m_window->statusBar()->currentMessage(),
              "There is no flowchart in this document: add a start block first.");
    EXPECT_FALSE(speed()->accessibleName().isEmpty());
    for (const QAbstractButton* found : bar().findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(found->isVisible() && found->accessibleName().isEmpty() && found->text().isEmpty());
    }
}

TEST_F(FlowchartBarTest, ClickActionsAreCarriedOutOnlyWhileRunning)
{
    addPart(document(), "flowcharts/start", {0.02, 0.1});
    PartImpl* info = addPart(document(), "core/info", {0.05, 0.1});
    set(property(info, "id"), Value(QStringLiteral("info")));
    set(property(part("lamp1"), "click-action"), Value(QStringLiteral("open link")));
    set(property(part("lamp1"), "click-link"), Value(QStringLiteral("https://example.org/led")));
    set(property(part("lamp2"), "click-action"), Value(QStringLiteral("show scene")));
    const Value scene = run<AddSceneCommand>(document(), Model(document().getModel()));
    set(property(part("lamp2"), "click-scene"), scene);
    SpaceTabs* tabs = m_window->spaceTabs();
    SpaceImpl* first = tabs->currentSpace();
    const QByteArray before = bytesOf(document());
    const int steps = undoSteps();

    for (const bool running : {false, true, false}) {
        SCOPED_TRACE(running);
        if (running != bar().isRunning())
            trigger("run");
        ASSERT_EQ(bar().isRunning(), running);
        clickPart("lamp1");
        EXPECT_EQ(takeOpened(), running ? QStringList{"https://example.org/led"} : QStringList());
        clickPart("lamp2");
        EXPECT_EQ(tabs->currentSpace(), running ? scene.toNode().impl() : first);
        tabs->showSpace(first);
        clickPart("info"); // opens its explanation without being told to
        EXPECT_EQ(tabs->currentSpace(), running ? info->popup() : first);
        tabs->showSpace(first);
        clickPart("cell");
        EXPECT_EQ(tabs->currentSpace(), first);
    }
    EXPECT_EQ(bytesOf(document()), before);
    EXPECT_EQ(undoSteps(), steps);

    // What a click names may be gone or wrong.
    trigger("run");
    set(property(part("lamp1"), "click-link"), Value(QStringLiteral("javascript:alert(1)")));
    {
        const MessageCapture messages;
        clickPart("lamp1");
        EXPECT_EQ(messages.warnings(), QStringList{"openUrl: \"javascript:alert(1)\" is not opened, only http, https, "
                                                   "mailto and file are"});
    }
    EXPECT_EQ(takeOpened(), QStringList());
    EXPECT_TRUE(m_window->statusBar()->currentMessage().contains(QLatin1String("cannot be opened")));
    document().setSelection({});
    tabs->showSpace(qobject_cast<SpaceImpl*>(scene.toNode().impl()));
    trigger("delete-scene");
    tabs->showSpace(first);
    clickPart("lamp2");
    EXPECT_EQ(tabs->currentSpace(), first);
    set(property(part("lamp2"), "click-action"), Value(QStringLiteral("show pop-up")));
    clickPart("lamp2");
    EXPECT_EQ(tabs->currentSpace(), first); // it has none
}
