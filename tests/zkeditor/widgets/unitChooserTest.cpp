#include "zkeditor/widgets/unitChooser.h"
#include "controlsFixture.h"
#include "zkcore/values/formatter.h"
#include "zkeditor/widgets/observerLabel.h"

#include <QMenu>
#include <QPointer>
#include <QSignalSpy>

namespace {

QStringList itemsOf(const UnitChooser& chooser)
{
    QStringList items;
    if (const QMenu* popup = chooser.getPopup()) {
        for (const QAction* item : popup->actions())
            items << QStringLiteral("%1 %2").arg(item->data().toInt()).arg(item->text());
    }
    return items;
}

void chooseUnit(UnitChooser& chooser, int downs)
{
    QTest::mouseClick(&chooser, Qt::LeftButton);
    QMenu* popup = chooser.getPopup();
    ASSERT_TRUE(popup && popup->isVisible());
    for (int i = 0; i < downs; ++i)
        QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
}

NumericalFormatter* formatterOf(NodeImpl* node, const char* key)
{
    return dynamic_cast<NumericalFormatter*>(property(node, key)->getFormatter());
}

} // namespace

using UnitChooserTest = ControlsTest;
using UnitChooserDeathTest = ControlsTest;

TEST_F(UnitChooserTest, ShowsTheUnitAndChoosesAnotherWithoutWriting)
{
    const auto parts = add("controls/gauge", 3);
    const QByteArray before = bytesOf(document);
    auto& chooser = place(new UnitChooser, "length");
    auto& value = place(new ObserverLabel, "length");
    EXPECT_EQ(chooser.text(), QString("units"));
    chooser.bind(&document, nodesOf(parts));
    value.bind(&document, nodesOf(parts));
    EXPECT_EQ(chooser.text(), QString("mm"));
    EXPECT_TRUE(chooser.font().underline());
    EXPECT_EQ(chooser.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(itemsOf(chooser), QStringList({"0 mm", "1 cm", "2 in"}));

    QSignalSpy changed(&chooser, &UnitChooser::unitChanged);
    QTest::mousePress(&chooser, Qt::LeftButton);
    EXPECT_FALSE(chooser.getPopup()->isVisible());
    QTest::mouseRelease(&chooser, Qt::LeftButton);
    ASSERT_TRUE(chooser.getPopup()->isVisible());
    EXPECT_EQ(chooser.getPopup()->activeAction()->data().toInt(), 0);
    QTest::mouseClick(&chooser, Qt::LeftButton);
    EXPECT_FALSE(chooser.getPopup()->isVisible());

    chooseUnit(chooser, 1);
    EXPECT_EQ(chooser.text(), QString("cm"));
    EXPECT_EQ(value.text(), QString("2"));
    for (PartImpl* part : parts)
        EXPECT_EQ(formatterOf(part, "length")->currentUnit(), Unit::fromText("cm"));
    EXPECT_EQ(changed.count(), 1);
    chooseUnit(chooser, 0); // opens on the current one
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(bytesOf(document), before);

    // Another chooser, or the program, chose.
    formatterOf(*nodesOf(parts).begin(), "length")->setCurrentUnit(Unit::fromText("in"));
    EXPECT_EQ(chooser.text(), QString("in"));
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(UnitChooserTest, KeyboardOpensTheMenu)
{
    PartImpl* part = gauge();
    auto& chooser = place(new UnitChooser, "angle");
    chooser.bind(&document, {part});
    EXPECT_EQ(chooser.text(), QString("°"));
    QTest::keyClick(other, Qt::Key_Tab);
    ASSERT_TRUE(chooser.hasFocus());
    QTest::keyClick(&chooser, Qt::Key_Space);
    ASSERT_TRUE(chooser.getPopup()->isVisible());
    QTest::keyClick(chooser.getPopup(), Qt::Key_Down);
    QTest::keyClick(chooser.getPopup(), Qt::Key_Return);
    EXPECT_EQ(chooser.text(), QString("radians")); // which has no abbreviation
    EXPECT_EQ(itemsOf(chooser), QStringList({"0 °", "1 radians"}));
}

TEST_F(UnitChooserTest, OneUnitIsNoChoice)
{
    PartImpl* part = gauge();
    auto& chooser = place(new UnitChooser, "current");
    chooser.bind(&document, {part});
    EXPECT_EQ(chooser.text(), QString("A"));
    EXPECT_FALSE(chooser.font().underline());
    EXPECT_EQ(chooser.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(chooser.getPopup(), nullptr);
    QTest::mouseClick(&chooser, Qt::LeftButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(chooser.focusPolicy(), Qt::NoFocus);
}

TEST_F(UnitChooserTest, DifferentUnitsAndMissingOnesAreWarnings)
{
    PartImpl* first = gauge();
    PartImpl* second = add("controls/meter");
    PartImpl* bare = add("core/text");
    auto& chooser = place(new UnitChooser, "length");
    MessageCapture messages;
    chooser.bind(&document, {first, second});
    EXPECT_EQ(messages.warnings(),
              QStringList("UnitChooser: Building a unit chooser with Properties using in-compatible units"));
    messages.clear();
    // What the other does not offer it refuses: they differ after the choice.
    const bool gaugeFirst = itemsOf(chooser).size() == 3;
    chooseUnit(chooser, gaugeFirst ? 1 : 0);
    EXPECT_EQ(chooser.text(), QString(gaugeFirst ? "" : "in"));
    messages.clear();
    chooser.bind(&document, {first, bare});
    EXPECT_EQ(messages.warnings(),
              QStringList("UnitChooser: Part/space (core/text) does not have property \"length\""));
    messages.clear();
    chooser.bind(&document, {bare});
    EXPECT_EQ(messages.warnings().last(), QString("UnitChooser: could not get a unit from any of the properties"));
    EXPECT_EQ(chooser.text(), QString());
    chooser.setModelProperty("free"); // a number without units
    messages.clear();
    chooser.bind(&document, {first});
    EXPECT_EQ(messages.warnings(), QStringList("UnitChooser: could not get a unit from any of the properties"));
}

TEST_F(UnitChooserTest, FollowsStateAndLetsGo)
{
    PartImpl* part = gauge();
    auto& chooser = place(new UnitChooser, "length");
    chooser.bind(&document, {part});
    lock(part);
    EXPECT_FALSE(chooser.isEnabled());
    chooser.setEnabled(true);
    static_cast<QWidget&>(chooser).setEnabled(true);
    EXPECT_FALSE(chooser.isEnabled());
    document.undo();
    EXPECT_TRUE(chooser.isEnabled());

    QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
    QApplication::sendEvent(&chooser, &enter);
    EXPECT_EQ(chooser.palette().color(QPalette::WindowText), QColor(Qt::blue));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&chooser, &leave);
    EXPECT_NE(chooser.palette().color(QPalette::WindowText), QColor(Qt::blue));

    chooser.unbind();
    EXPECT_FALSE(chooser.font().underline());
    EXPECT_EQ(chooser.getPopup(), nullptr);
    chooser.bind(&document, {part});
    document.undo(); // the part goes
    EXPECT_EQ(chooser.getPopup(), nullptr);
    EXPECT_FALSE(chooser.font().underline());
}

TEST_F(UnitChooserTest, SurvivesWhatItsChoiceCauses)
{
    const auto parts = add("controls/gauge", 2);
    auto* chooser = &place(new UnitChooser, "length");
    chooser->bind(&document, nodesOf(parts));
    const QPointer<UnitChooser> alive(chooser);
    const auto end = QObject::connect(property(parts[0], "length"), &PropertyImpl::formatterChanged, chooser,
                                      [&] { delete alive.data(); });
    chooseUnit(*chooser, 1);
    EXPECT_FALSE(alive);

    // Bound afresh by the choice, it shows what it is bound to.
    QObject::disconnect(end);
    auto& second = place(new UnitChooser, "length");
    second.bind(&document, nodesOf(parts));
    bool rebound = false;
    QObject::connect(property(parts[0], "length"), &PropertyImpl::formatterChanged, &second, [&] {
        if (!std::exchange(rebound, true))
            second.bind(&document, {parts[1]});
    });
    chooseUnit(second, 1);
    EXPECT_TRUE(rebound);
    EXPECT_EQ(second.text(), formatterOf(parts[1], "length")->currentUnit().abbreviatedName());
}

TEST_F(UnitChooserDeathTest, IndicesOutOfRangeAreFatal)
{
    PartImpl* part = gauge();
    UnitChooser chooser;
    chooser.setModelProperty("length");
    chooser.bind(&document, {part});
    EXPECT_DEATH(chooser.onPopupUnitChanged(3), "ZK_ASSERT: \"uindex < m_units.size\\(\\)\" in ");
}
