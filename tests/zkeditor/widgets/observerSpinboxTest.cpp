// Spin boxes over properties: typed values, mixed values, stepping, units, and what must never be written.
#include "zkeditor/widgets/observerSpinbox.h"
#include "observerFixture.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/validator.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/observerPoint.h"
#include "zkeditor/widgets/spinControls.h"

#include <QTest>

namespace {

class ObserverSpinBoxTest : public ObserverTest
{
protected:
    static void SetUpTestSuite()
    {
        ObserverTest::SetUpTestSuite();
        ASSERT_TRUE(loadTestKit());
    }

    void SetUp() override
    {
        m_one = add("testkit/box");
        m_two = add("testkit/box");
    }

    /// Binds, shows and focuses the box.
    void show(const char* key, const std::vector<PartImpl*>& parts)
    {
        m_box = new ObserverSpinBox(&m_window, QStringLiteral("box"));
        m_box->setModelProperty(QString::fromLatin1(key));
        m_box->bind(&document, nodesOf(parts));
        m_other = new QLineEdit(&m_window);
        m_window.resize(200, 100);
        m_window.show();
        m_window.activateWindow();
        m_box->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_steps = undoSteps();
    }

    void type(const char* text)
    {
        m_box->editor()->selectAll();
        QTest::keyClicks(m_box->editor(), QString::fromUtf8(text));
    }
    void press(Qt::Key key) { QTest::keyClick(m_box->editor(), key); }
    void enter(const char* text)
    {
        type(text);
        press(Qt::Key_Return);
    }
    bool red() const { return m_box->palette().color(QPalette::Text) == QColor(Qt::red); }
    double length(PartImpl* part) const { return property(part, "length")->getValue().toDouble(); }
    int count(PartImpl* part) const { return property(part, "count")->getValue().toInt(); }
    int newSteps() const { return undoSteps() - m_steps; }

    QWidget m_window;
    ObserverSpinBox* m_box = nullptr;
    QLineEdit* m_other = nullptr;
    PartImpl* m_one = nullptr;
    PartImpl* m_two = nullptr;
    int m_steps = 0;
};

TEST_F(ObserverSpinBoxTest, showsAndWritesInTheUnitChosen)
{
    set(property(m_one, "length"), Value(0.0125));
    show("length", {m_one});
    EXPECT_EQ(m_box->text(), QStringLiteral("12.5"));
    enter("13.5");
    EXPECT_DOUBLE_EQ(length(m_one), 0.0135);
    EXPECT_EQ(newSteps(), 1);
    auto* formatter = static_cast<NumericalFormatter*>(property(m_one, "length")->getFormatter());
    ASSERT_TRUE(formatter->setCurrentUnit(Unit::fromText(QStringLiteral("cm"))));
    EXPECT_EQ(m_box->text(), QStringLiteral("1.35"));
    enter("2 in + 3 mm");
    EXPECT_DOUBLE_EQ(length(m_one), 0.0538);
    EXPECT_EQ(m_box->text(), QStringLiteral("5.38"));
}

TEST_F(ObserverSpinBoxTest, expressionsOutOfRangeNumbersAndNonsense)
{
    show("count", {m_one});
    enter("1+2*3");
    EXPECT_EQ(count(m_one), 7);
    type("150");
    EXPECT_TRUE(red());
    EXPECT_FALSE(m_box->toolTip().isEmpty());
    EXPECT_EQ(m_box->accessibleDescription(), m_box->toolTip());
    press(Qt::Key_Return);
    EXPECT_EQ(count(m_one), 10) << "held within the range";
    EXPECT_FALSE(red());
    EXPECT_TRUE(m_box->toolTip().isEmpty());
    type("1+");
    EXPECT_TRUE(red());
    MessageCapture messages;
    press(Qt::Key_Return);
    EXPECT_EQ(messages.warnings(),
              QStringList(QStringLiteral("ObserverSpinBox: Can't fixup setting old value 0.000000")));
    EXPECT_EQ(m_box->text(), QStringLiteral("10"));
    EXPECT_FALSE(red());
    enter("2.5");
    EXPECT_EQ(count(m_one), 3) << "rounded half up";
    EXPECT_EQ(newSteps(), 3);
}

TEST_F(ObserverSpinBoxTest, differentValuesShowBlankAndAreLeftAlone)
{
    set(property(m_two, "count"), Value(5));
    show("count", {m_one, m_two});
    EXPECT_EQ(m_box->text(), QString());
    EXPECT_FALSE(red());
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    m_box->setFocus();
    type("x");
    m_box->editor()->clear();
    m_other->setFocus();
    EXPECT_EQ(newSteps(), 0);
    EXPECT_EQ(count(m_one), 3);
    EXPECT_EQ(count(m_two), 5);

    // The first value is what the box held all along; typed, it is written all the same.
    m_box->setFocus();
    const int held = std::min(m_one, m_two, std::less<>()) == m_one ? 3 : 5;
    enter(held == 3 ? "3" : "5");
    EXPECT_EQ(count(m_one), held);
    EXPECT_EQ(count(m_two), held);
    EXPECT_EQ(newSteps(), 1);
    document.undo();
    EXPECT_EQ(m_box->text(), QString()) << "blank again, though the first value is what was shown";
    set(property(m_one, "count"), Value(5));
    EXPECT_EQ(m_box->text(), QStringLiteral("5"));
}

TEST_F(ObserverSpinBoxTest, tabbingThroughDoesNotRound)
{
    const double third = 1.0 / 3.0;
    set(property(m_one, "length"), Value(third));
    show("length", {m_one});
    EXPECT_EQ(m_box->text(), QStringLiteral("333.33"));
    press(Qt::Key_Tab);
    m_box->setFocus();
    m_other->setFocus();
    m_box->setFocus();
    // Setting it while it has the focus makes the display give the focus away and take it back.
    m_box->setValue(third * 1000);
    set(property(m_one, "length"), Value(third / 2));
    EXPECT_TRUE(m_box->editor()->hasFocus());
    EXPECT_EQ(length(m_one), third / 2);
    m_other->setFocus();
    EXPECT_EQ(length(m_one), third / 2);
}

TEST_F(ObserverSpinBoxTest, theTwentiethStepIsTenTimesAsLong)
{
    document.executeCommand(new SetValueCommand(Property(property(m_one, "free")), Value(3), true));
    show("free", {m_one});
    for (int i = 1; i <= 19; ++i)
        m_box->stepUp();
    EXPECT_EQ(m_box->value(), 22);
    m_box->stepUp();
    EXPECT_EQ(m_box->value(), 30);
    m_box->stepUp();
    EXPECT_EQ(m_box->value(), 40);
    QTest::keyRelease(m_box->editor(), Qt::Key_Up);
    m_box->stepUp();
    EXPECT_EQ(m_box->value(), 41);
}

TEST_F(ObserverSpinBoxTest, aHeldKeyOrButtonIsOneStepAndTwoOfThemNeverMerge)
{
    show("count", {m_one, m_two});
    QTest::keyPress(m_box->editor(), Qt::Key_Up);
    for (int i = 0; i < 3; ++i) {
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent repeat(type, Qt::Key_Up, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(m_box->editor(), &repeat);
        }
    }
    QTest::keyRelease(m_box->editor(), Qt::Key_Up);
    EXPECT_EQ(count(m_two), 7);
    EXPECT_EQ(newSteps(), 1);
    press(Qt::Key_Up);
    EXPECT_EQ(newSteps(), 2);
    auto* buttons = m_box->findChild<SpinControls*>(QStringLiteral("controls"));
    QTest::mouseClick(buttons, Qt::LeftButton, {}, buttons->downRect().center());
    EXPECT_EQ(newSteps(), 3);
    document.undo();
    document.undo();
    EXPECT_EQ(count(m_one), 7);
    document.undo();
    EXPECT_EQ(count(m_one), 3);

    // At the end of the range nothing is written, so nothing may join an older step.
    set(property(m_one, "count"), Value(10));
    set(property(m_two, "count"), Value(10));
    const int steps = undoSteps();
    press(Qt::Key_Up);
    EXPECT_EQ(undoSteps(), steps);
}

TEST_F(ObserverSpinBoxTest, whatWasTypedGoesToTheNodesItWasTypedFor)
{
    show("count", {m_one});
    type("8");
    m_box->bind(&document, nodesOf({m_two}));
    EXPECT_EQ(count(m_one), 8);
    EXPECT_EQ(count(m_two), 3);
    type("nonsense(");
    MessageCapture messages;
    m_box->bind(&document, nodesOf({m_one}));
    EXPECT_EQ(count(m_two), 3);
    type("6");
    delete m_box;
    EXPECT_EQ(newSteps(), 1) << "a box that goes without having been unbound writes nothing";
}

TEST_F(ObserverSpinBoxTest, aNotificationTakesNothingFromSomebodyWhoTypes)
{
    show("count", {m_one});
    type("4");
    QTest::keyClick(m_box->editor(), Qt::Key_Home);
    set(property(m_one, "count"), Value(9));
    EXPECT_EQ(m_box->text(), QStringLiteral("4"));
    EXPECT_EQ(m_box->editor()->cursorPosition(), 0);
    press(Qt::Key_Escape);
    EXPECT_EQ(m_box->text(), QStringLiteral("9"));
    EXPECT_EQ(count(m_one), 9);
}

TEST_F(ObserverSpinBoxTest, lockedPropertiesCannotBeEditedByAnyWay)
{
    show("count", {m_one, m_two});
    run<SetUILockedCommand>(document, std::vector<Node>{Node(m_two)}, LockPropertyValues, true);
    EXPECT_FALSE(m_box->isEnabled());
    m_box->setEnabled(true);
    EXPECT_FALSE(m_box->isEnabled());
    m_box->QWidget::setEnabled(true);
    EXPECT_FALSE(m_box->isEnabled());
    document.undo();
    EXPECT_TRUE(m_box->isEnabled());
}

TEST_F(ObserverSpinBoxTest, theStepFollowsFromTheRange)
{
    for (const auto& [key, step] : {std::pair("count", 1.0), std::pair("length", 1000.0)}) {
        ObserverSpinBox box;
        box.setModelProperty(QString::fromLatin1(key));
        box.setAutoSetLineStep(true);
        box.bind(&document, nodesOf({m_one}));
        EXPECT_DOUBLE_EQ(box.lineStep(), step) << key;
    }
}

TEST_F(ObserverSpinBoxTest, aDisplayedEndOfTheRangeIsValid)
{
    // 1000 mm at the most: with integral bounds a tenth beyond is not red, and is held within on commit.
    show("length", {m_one});
    type("1000090");
    EXPECT_TRUE(red() || m_box->text() == QLatin1String("1000090"));
    enter("1000000000");
    EXPECT_DOUBLE_EQ(length(m_one), 1.0);
}

TEST_F(ObserverSpinBoxTest, destroyedNodesLeaveTheRestBound)
{
    show("count", {m_one, m_two});
    run<DeleteNodeCommand>(document, Node(m_one), Command::PushUndo);
    enter("6");
    EXPECT_EQ(count(m_two), 6);
    interface::Validator* validator = property(m_two, "count")->getValidator();
    run<DeleteNodeCommand>(document, Node(m_two), Command::PushUndo);
    static_cast<IntValidator*>(validator)->setRange(0, 11);
    static_cast<IntValidator*>(validator)->setRange(0, 10);
    type("4");
    press(Qt::Key_Return);
    EXPECT_EQ(newSteps(), 3);
}

TEST_F(ObserverSpinBoxTest, pointsAreEditedByCoordinate)
{
    set(property(m_one, "spot"), Value(zk::Point{1, 2}));
    set(property(m_two, "spot"), Value(zk::Point{1, 4}));
    ObserverPoint point(&m_window);
    point.setModelProperty(QStringLiteral("spot"));
    point.bind(&document, nodesOf({m_one}));
    EXPECT_EQ(point.xBox()->text(), QStringLiteral("1"));
    EXPECT_EQ(point.yBox()->text(), QStringLiteral("2"));
    const int steps = undoSteps();
    point.xBox()->editor()->selectAll();
    QTest::keyClicks(point.xBox()->editor(), QStringLiteral("3+4"));
    QTest::keyClick(point.xBox()->editor(), Qt::Key_Return);
    EXPECT_EQ(property(m_one, "spot")->getValue(), Value(zk::Point{7, 2}));
    EXPECT_EQ(undoSteps(), steps + 1);

    point.bind(&document, nodesOf({m_one, m_two}));
    EXPECT_EQ(point.xBox()->text(), QString());
    EXPECT_EQ(point.yBox()->text(), QString());
    QTest::keyClick(point.yBox()->editor(), Qt::Key_Return);
    EXPECT_EQ(undoSteps(), steps + 1);
    set(property(m_one, "spot"), Value(zk::Point{1, 4}));
    EXPECT_EQ(point.yBox()->text(), QStringLiteral("4"));
    QTest::keyClick(point.yBox()->editor(), Qt::Key_Up);
    EXPECT_EQ(property(m_two, "spot")->getValue(), Value(zk::Point{1, 5}));
    MessageCapture messages;
    point.yBox()->editor()->selectAll();
    QTest::keyClicks(point.yBox()->editor(), QStringLiteral("2*"));
    QTest::keyClick(point.yBox()->editor(), Qt::Key_Return);
    EXPECT_EQ(point.yBox()->text(), QStringLiteral("5"));
    EXPECT_EQ(messages.warnings().size(), 1);
}

TEST_F(ObserverSpinBoxTest, onlyNumbersCanBeBound)
{
    ObserverSpinBox box;
    box.setModelProperty(QStringLiteral("name"));
    EXPECT_DEATH(box.bind(&document, nodesOf({m_one})),
                 "m_valueType == Value::INT \\|\\| m_valueType == Value::DOUBLE");
}

} // namespace
