// What a reader sees and opens while the model runs: explanations, parts that are not visible.
#include "zkauthor/readerActions.h"

#include "tests/support/testDocument.h"
#include "windowTest.h"
#include "zkauthor/flowchartBar.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceScene.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/model/spaceImpl.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTabBar>
#include <QTest>

namespace {

class ReaderActionsTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        addPart(document(), "flowcharts/start", {0.02, 0.1});
        PartImpl* info = addPart(document(), "core/info", {0.05, 0.1});
        set(property(info, "id"), Value(QStringLiteral("info")));
    }
    SpaceTabs& tabs() { return *m_window->spaceTabs(); }
    void setInfo(const char* key, const Value& value) { ASSERT_TRUE(set(property(part("info"), key), value)); }
    void restOn(const char* id)
    {
        QWidget* viewport = view().viewport();
        QHelpEvent event(QEvent::ToolTip, placeOf(id), viewport->mapToGlobal(placeOf(id)));
        QApplication::sendEvent(viewport, &event);
    }
    bool isSeen(const char* id)
    {
        const zk::Point place = part(id)->position();
        return view().spaceScene()->partAt(QPointF(place.x, place.y) * 1000, 1) == part(id);
    }
    SpaceImpl* popup() { return part("info")->popup(); }
    void closeWithEscape()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return view().hasFocus(); }, 1000)); // a new view is shown first
        keys(Qt::Key_Escape);
        QApplication::processEvents(); // the view goes when the key has been dealt with
    }
};

} // namespace

TEST_F(ReaderActionsTest, ExplanationsOpenWhenTheMouseRestsOnThem)
{
    SpaceImpl* scene = tabs().currentSpace();
    for (const char* opensOn : {"click", "hover"}) {
        SCOPED_TRACE(opensOn);
        if (property(part("info"), "opens-on")->getValue().toQString() != QLatin1String(opensOn))
            setInfo("opens-on", Value(QString::fromLatin1(opensOn)));
        restOn("info");
        EXPECT_EQ(tabs().currentSpace(), scene) << "it is being edited";
        trigger("run");
        restOn("lamp1");
        EXPECT_EQ(tabs().currentSpace(), scene);
        restOn("info");
        EXPECT_EQ(tabs().currentSpace() == popup(), qstrcmp(opensOn, "hover") == 0);
        tabs().showSpace(scene);
        clickPart("info"); // and on a click in any case
        EXPECT_EQ(tabs().currentSpace(), popup());
        closeWithEscape();
        EXPECT_EQ(tabs().currentSpace(), scene);
        EXPECT_TRUE(QTest::qWaitFor([this] { return view().hasFocus(); }, 1000));
        EXPECT_TRUE(isSeen("info"));
        trigger("run");
    }
}

TEST_F(ReaderActionsTest, ExplanationsReadOnceAreGoneUntilTheModelStops)
{
    setInfo("show-once", Value(true));
    const QByteArray before = bytesOf(document());
    const int steps = undoSteps();
    for (const bool byKey : {true, false}) {
        SCOPED_TRACE(byKey);
        trigger("run");
        ASSERT_TRUE(isSeen("info"));
        document().setSelection({part("info")});
        view().setFocus();
        keys(Qt::Key_Return);
        ASSERT_EQ(tabs().currentSpace(), popup());
        document().setSelection({});
        if (byKey)
            closeWithEscape();
        else
            Q_EMIT tabs().tabCloseRequested(tabs().currentIndex());
        EXPECT_NE(tabs().currentSpace(), popup());
        EXPECT_FALSE(isSeen("info"));
        EXPECT_EQ(bytesOf(document()), before);
        trigger("run");
        EXPECT_TRUE(isSeen("info"));
    }
    EXPECT_EQ(undoSteps(), steps);
    // Closed while it is edited, it was not read.
    tabs().showSpace(popup());
    closeWithEscape();
    trigger("run");
    EXPECT_TRUE(isSeen("info"));
    // Another document while one is away, and one in which it is deleted.
    clickPart("info");
    closeWithEscape();
    EXPECT_FALSE(isSeen("info"));
    document().setSelection({part("info")});
    trigger("delete");
    trigger("run");
    EXPECT_FALSE(part("info"));
}

TEST_F(ReaderActionsTest, PopupsThatAreOpenAtTheStartComeAndGoWithTheRun)
{
    ASSERT_TRUE(set(property(popup(), "open-at-start"), Value(true)));
    const QByteArray before = bytesOf(document());
    EXPECT_EQ(tabs().count(), 1);
    trigger("run");
    EXPECT_EQ(tabs().count(), 2);
    EXPECT_NE(tabs().currentSpace(), popup());
    trigger("run");
    EXPECT_EQ(tabs().count(), 1);
    EXPECT_EQ(bytesOf(document()), before);
}

TEST_F(ReaderActionsTest, PartsThatAreNotVisibleAreThereOnlyForAuthors)
{
    ASSERT_TRUE(set(property(part("lamp2"), "visible"), Value(false)));
    EXPECT_TRUE(isSeen("lamp2"));
    trigger("run");
    EXPECT_FALSE(isSeen("lamp2"));
    ASSERT_TRUE(set(property(part("lamp2"), "visible"), Value(true)));
    EXPECT_TRUE(isSeen("lamp2"));
    ASSERT_TRUE(set(property(part("lamp1"), "visible"), Value(false)));
    EXPECT_FALSE(isSeen("lamp1"));
    // A view that is made meanwhile sees as a reader does, too.
    trigger("run");
    EXPECT_TRUE(isSeen("lamp1"));
}
