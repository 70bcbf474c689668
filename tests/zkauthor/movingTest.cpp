#include "windowTest.h"

#include "tests/support/testDocument.h"
#include "zkauthor/elementItem.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceScene.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/storage/fragmentXmlWriter.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QWheelEvent>

namespace {

class MovingTest : public WindowTest
{
protected:
    void release(const char* id)
    {
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(id));
    }

    /// Key events as a held key makes them.
    void hold(Qt::Key key, int repeats, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const auto send = [&](QEvent::Type type, bool repeat) {
            QKeyEvent event(type, key, modifiers, QString(), repeat);
            QApplication::sendEvent(&view(), &event);
        };
        send(QEvent::KeyPress, false);
        for (int i = 0; i < repeats; ++i) {
            send(QEvent::KeyRelease, true);
            send(QEvent::KeyPress, true);
        }
        send(QEvent::KeyRelease, false);
    }
};

TEST_F(MovingTest, DragOfTheSelectionIsOneStepAndTheWireFollows)
{
    const QByteArray before = bytesOf(document());
    clickPart("lamp1");
    clickPart("lamp2", Qt::ControlModifier);
    const QRectF wire = view().spaceScene()->itemFor(part("wire"))->boundingRect();
    dragPart("lamp1", QPoint(40, 60));
    release("lamp1");
    EXPECT_GT(part("lamp1")->position().x, 0.09);
    EXPECT_NEAR(part("lamp2")->position().x - part("lamp1")->position().x, 0.04, 1e-9);
    EXPECT_EQ(part("cell")->position(), (zk::Point{0.05, 0.05}));
    EXPECT_GT(view().spaceScene()->itemFor(part("wire"))->boundingRect().bottom(), wire.bottom() + 1);
    EXPECT_EQ(undoSteps(), 1);
    EXPECT_EQ(selectedIds(), (QStringList{"lamp1", "lamp2"})); // the release of a drag selects nothing

    // A second drag does not flow into the first.
    dragPart("lamp1", QPoint(20, 0));
    release("lamp1");
    EXPECT_EQ(undoSteps(), 2);
    trigger("undo");
    trigger("undo");
    EXPECT_EQ(bytesOf(document()), before);
    EXPECT_EQ(view().spaceScene()->itemFor(part("wire"))->boundingRect(), wire);
}

TEST_F(MovingTest, EscapePutsADragBack)
{
    const QByteArray before = bytesOf(document());
    dragPart("lamp1", QPoint(50, 50));
    EXPECT_NE(part("lamp1")->position().x, 0.09);
    keys(Qt::Key_Escape);
    EXPECT_EQ(bytesOf(document()), before);
    QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    EXPECT_EQ(bytesOf(document()), before);
    EXPECT_FALSE(document().isModified());
    EXPECT_FALSE(document().canUndo());

    // Nor does it take back more than itself.
    clickPart("lamp2");
    hold(Qt::Key_Up, 0);
    dragPart("lamp1", QPoint(50, 50));
    keys(Qt::Key_Escape);
    EXPECT_EQ(part("lamp2")->position(), (zk::Point{0.13, 0.049}));
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(MovingTest, ClickWithoutMovingIsNoStep)
{
    trigger("select-all");
    clickPart("lamp2");
    EXPECT_EQ(selectedIds(), QStringList{"lamp2"});
    clickPart("lamp2", Qt::ShiftModifier);
    EXPECT_EQ(selectedIds(), QStringList());
    EXPECT_EQ(undoSteps(), 0);
}

TEST_F(MovingTest, HeldArrowKeyIsOneStep)
{
    const QByteArray before = bytesOf(document());
    clickPart("lamp1");
    hold(Qt::Key_Right, 4);
    EXPECT_EQ(part("lamp1")->position(), (zk::Point{0.095, 0.05}));
    EXPECT_EQ(undoSteps(), 1);
    hold(Qt::Key_Down, 1, Qt::ShiftModifier);
    EXPECT_EQ(part("lamp1")->position(), (zk::Point{0.095, 0.07}));
    EXPECT_EQ(undoSteps(), 2);
    trigger("undo");
    EXPECT_EQ(part("lamp1")->position(), (zk::Point{0.095, 0.05}));
    trigger("undo");
    EXPECT_EQ(bytesOf(document()), before);
}

TEST_F(MovingTest, LockedPartsStay)
{
    run<SetUILockedCommand>(document(), std::vector<Node>{part("lamp1")}, LockPosition, true);
    const int steps = undoSteps();
    trigger("select-all");
    hold(Qt::Key_Up, 0);
    EXPECT_EQ(part("lamp1")->position(), (zk::Point{0.09, 0.05}));
    EXPECT_EQ(part("lamp2")->position(), (zk::Point{0.13, 0.049}));
    keys(Qt::Key_Escape);
    dragPart("lamp1", QPoint(30, 30));
    release("lamp1");
    EXPECT_EQ(part("lamp1")->position(), (zk::Point{0.09, 0.05}));
    EXPECT_EQ(undoSteps(), steps + 1);
}

TEST_F(MovingTest, RubberBandSelectsWhatItTouches)
{
    const QPoint from = placeOf("lamp1") + QPoint(-2, -60);
    const QPoint to = placeOf("lamp2") + QPoint(2, 2);
    const auto band = [&](Qt::KeyboardModifiers modifiers) {
        QTest::mousePress(view().viewport(), Qt::LeftButton, modifiers, from);
        QMouseEvent move(QEvent::MouseMove, to, view().viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         modifiers);
        QApplication::sendEvent(view().viewport(), &move);
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, modifiers, to);
    };
    clickPart("cell");
    band(Qt::NoModifier);
    EXPECT_EQ(selectedIds().filter(QStringLiteral("lamp")), (QStringList{"lamp1", "lamp2"}));
    EXPECT_FALSE(selectedIds().contains(QStringLiteral("cell")));
    clickPart("cell");
    band(Qt::ShiftModifier);
    EXPECT_TRUE(selectedIds().contains(QStringLiteral("cell")));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, from);
    EXPECT_EQ(selectedIds(), QStringList());
}

TEST_F(MovingTest, KeyboardAloneReachesEveryPart)
{
    QSet<QString> reached;
    for (unsigned int i = 0; i < firstScene(document())->childCount(); ++i) {
        QTest::keyClick(m_window.get(), Qt::Key_Down, Qt::AltModifier);
        ASSERT_EQ(selectedIds().size(), 1);
        reached.insert(selectedIds().first());
    }
    EXPECT_EQ(reached.size(), 4);
}

TEST_F(MovingTest, DroppedPartStandsUnderThePointer)
{
    QMimeData data;
    data.setData(FragmentXMLWriter::fragmentMimeType(),
                 FragmentXMLWriter::writeClass(getCidForString("electronics/led"), *document().getNodeDb()));
    const QPoint place = placeOf("lamp1") + QPoint(0, 50);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &drop);
    ASSERT_EQ(document().getSelection().size(), 1u);
    const zk::Point at = (*document().getSelection().begin())->position();
    const QPointF wanted = view().mapToScene(place);
    EXPECT_NEAR(at.x * 1000, wanted.x(), 1e-6);
    EXPECT_NEAR(at.y * 1000, wanted.y(), 1e-6);
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(MovingTest, ControlWheelZoomsAboutThePointer)
{
    const QPoint place = placeOf("cell");
    const QPointF under = view().mapToScene(place);
    const double before = view().zoom();
    QMouseEvent move(QEvent::MouseMove, place, view().viewport()->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &move);
    const auto wheel = [&](int delta) {
        QWheelEvent event(place, view().viewport()->mapToGlobal(place), QPoint(), QPoint(0, delta), Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view().viewport(), &event);
    };
    wheel(360);
    EXPECT_NEAR(view().zoom(), before * 1.25 * 1.25 * 1.25, 1e-6);
    EXPECT_NEAR(view().mapToScene(place).x(), under.x(), 1.0);
    for (int i = 0; i < 100; ++i)
        wheel(-120);
    EXPECT_NEAR(view().zoom(), 0.02, 1e-9);
    trigger("zoom-fit");
    EXPECT_NEAR(view().zoom(), before, 1e-6);
}

} // namespace
