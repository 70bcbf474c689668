#include "zkeditor/widgets/observerLabel.h"
#include "controlsFixture.h"
#include "zkcore/values/formatter.h"
#include "zkeditor/widgets/observerCheckbox.h"
#include "zkeditor/widgets/observerGroupBox.h"
#include "zkeditor/widgets/propertyLabel.h"

#include <QPointer>
#include <QPushButton>
#include <QStyleOptionGroupBox>

using ObserverLabelTest = ControlsTest;
using ObserverGroupBoxTest = ControlsTest;

TEST_F(ObserverLabelTest, ShowsValuesAsTheirFormatterWritesThem)
{
    PartImpl* part = gauge();
    const struct
    {
        const char* key;
        const char* text;
    } cases[] = {{"length", "20"}, {"angle", "90.00"}, {"count", "3"},   {"note", "plain"},
                 {"on", "false"},  {"corner", "0, 0"}, {"pair", "1, 2"}, {"sealed", "1.5"}};
    for (const auto& expected : cases) {
        ObserverLabel label;
        label.setModelProperty(expected.key);
        label.bind(&document, {part});
        EXPECT_EQ(label.text(), QString(expected.text)) << expected.key;
        EXPECT_TRUE(label.isEnabled());
        EXPECT_EQ(label.accessibleName(), property(part, expected.key)->getUserVisibleLabel());
        EXPECT_EQ(label.accessibleDescription(), label.text());
    }
    ASSERT_TRUE(set(property(part, "note"), string("<b>bold</b>")));
    ObserverLabel label;
    label.setModelProperty("note");
    label.bind(&document, {part});
    EXPECT_EQ(label.text(), QString("<b>bold</b>"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    label.unbind();
    EXPECT_EQ(label.text(), QString());
}

TEST_F(ObserverLabelTest, MixedValuesAreADash)
{
    const auto parts = add("controls/gauge", 3);
    ObserverLabel label;
    label.setModelProperty("length");
    label.bind(&document, nodesOf(parts));
    for (PartImpl* part : parts) {
        ASSERT_TRUE(set(property(part, "length"), number(0.05)));
        EXPECT_EQ(label.text(), part == parts.back() ? QString("50") : QString(u'—'));
    }
    document.undo();
    EXPECT_EQ(label.text(), QString(u'—'));
    document.redo();
    NodeImpl* first = *nodesOf(parts).begin();
    dynamic_cast<NumericalFormatter*>(property(first, "length")->getFormatter())->setCurrentUnit(Unit::fromText("cm"));
    EXPECT_EQ(label.text(), QString("5"));
}

TEST_F(ObserverLabelTest, LabelsBeginWhereTheLinesOfTheFormDo)
{
    PartImpl* part = gauge();
    auto& value = place(new ObserverLabel, "length");
    auto& name = place(new PropertyLabel, "length");
    auto& right = place(new ObserverLabel, "length");
    right.setAlignment(Qt::AlignRight);
    for (PaneWidget* label :
         {static_cast<PaneWidget*>(&value), static_cast<PaneWidget*>(&name), static_cast<PaneWidget*>(&right)})
        label->bind(&document, {part});
    const auto hasInk = [](QLabel& label, bool atLeft) {
        const QImage image = label.grab().toImage();
        const QRect half(atLeft ? 0 : image.width() / 2, 0, image.width() / 2, image.height());
        const QRgb ground = image.pixel(image.width() / 2, 0);
        for (int y = half.top(); y <= half.bottom(); ++y)
            for (int x = half.left(); x <= half.right(); ++x)
                if (image.pixel(x, y) != ground)
                    return true;
        return false;
    };
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft, Qt::LeftToRight}) {
        window.setLayoutDirection(direction);
        const bool leftToRight = direction == Qt::LeftToRight;
        for (QLabel* label : {static_cast<QLabel*>(&value), static_cast<QLabel*>(&name)}) {
            EXPECT_EQ(hasInk(*label, true), leftToRight);
            EXPECT_EQ(hasInk(*label, false), !leftToRight);
        }
        EXPECT_EQ(hasInk(right, true), !leftToRight);
        EXPECT_EQ(hasInk(right, false), leftToRight);
    }
}

TEST_F(ObserverLabelTest, PropertyLabelFollowsTheLabelAndExplains)
{
    PartImpl* part = gauge();
    auto& label = place(new PropertyLabel, "length");
    label.bind(&document, {part});
    EXPECT_EQ(label.text(), QString("Length & width"));
    EXPECT_EQ(label.toolTip(), QString("How long it is."));
    property(part, "length")->setUserVisibleLabel("Reach");
    EXPECT_EQ(label.text(), QString("Reach"));
    EXPECT_EQ(label.accessibleName(), QString("Reach"));
    property(part, "length")->setUserVisibleLabel({});
    label.setBuddy(other);
    label.bind(&document, {part});
    EXPECT_EQ(label.text(), QString("Length && width")); // a shortcut otherwise
    window.setFocus();
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_TRUE(other->hasFocus());

    label.setModelProperty("angle"); // nothing to explain
    label.bind(&document, {part});
    EXPECT_EQ(label.toolTip(), QString());
    label.setToolTip("The form's");
    label.setModelProperty("length");
    label.bind(&document, {part});
    EXPECT_EQ(label.toolTip(), QString("The form's"));
    label.setModelProperty("hidden");
    label.bind(&document, {part});
    EXPECT_FALSE(label.isVisible());
}

TEST_F(ObserverGroupBoxTest, BindsItsContentsAndItself)
{
    const auto parts = add("controls/gauge", 2);
    auto* box = new ObserverGroupBox;
    auto* inside = new ObserverCheckBox("on", box);
    auto* button = new QPushButton(box);
    auto* closed = new QPushButton(box);
    closed->setEnabled(false);
    inside->setModelProperty("on");
    place(box, "").bind(&document, nodesOf(parts));
    EXPECT_FALSE(box->isCheckable());
    EXPECT_TRUE(inside->isEnabled());
    QTest::mouseClick(inside, Qt::LeftButton, {}, QPoint(5, inside->height() / 2));
    EXPECT_TRUE(isOn(parts[1]));

    box->setModelProperty("on");
    ASSERT_TRUE(set(property(parts[1], "on"), boolean(false)));
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    box->bind(&document, nodesOf(parts));
    EXPECT_TRUE(box->isMixed());
    EXPECT_FALSE(inside->isEnabled() || button->isEnabled());
    inside->setEnabled(true); // nobody opens what the box keeps closed
    EXPECT_FALSE(inside->isEnabled());
    EXPECT_EQ(bytesOf(document), before);

    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_TRUE(isOn(parts[0]) && isOn(parts[1]));
    EXPECT_FALSE(box->isMixed());
    EXPECT_TRUE(inside->isEnabled() && button->isEnabled());
    EXPECT_FALSE(closed->isEnabled());
    EXPECT_EQ(undoSteps(), steps + 1);
    document.undo();
    EXPECT_TRUE(box->isMixed());

    lock(parts[0]);
    EXPECT_FALSE(box->isEnabled());
    static_cast<QWidget*>(box)->setEnabled(true);
    EXPECT_FALSE(box->isEnabled());
    box->unbind();
    EXPECT_FALSE(box->isMixed());
}

TEST_F(ObserverGroupBoxTest, MayBeDeletedByItsOwnClick)
{
    PartImpl* part = gauge();
    auto* box = new ObserverGroupBox;
    place(box, "on").bind(&document, {part});
    const QPointer<ObserverGroupBox> alive(box);
    QObject::connect(property(part, "on"), &PropertyImpl::ValueChanged, box, [&] { delete alive.data(); });
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_FALSE(alive);
    EXPECT_TRUE(isOn(part));
}
