#include "observerFixture.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkeditor/widgets/confirmingObserverCheckbox.h"
#include "zkeditor/widgets/observerButton.h"
#include "zkeditor/widgets/observerCheckbox.h"
#include "zkeditor/widgets/observerStringCheckbox.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

class BooleanObserverTest : public ObserverTest
{
protected:
    template <typename Widget> void prepare(Widget& widget, const char* key)
    {
        widget.setObjectName(QString::fromLatin1(key));
        widget.setModelProperty(QString::fromLatin1(key));
        widget.resize(200, 30);
    }
};

using BooleanObserverDeathTest = BooleanObserverTest;

void clickBox(QAbstractButton& button)
{
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
}

// What a shown box says: "mixed" is partly checked, pressed and tri-state at once.
std::string looks(const QCheckBox& box)
{
    if (box.isTristate() && box.isDown() && box.checkState() == Qt::PartiallyChecked)
        return "mixed";
    if (box.isTristate() || box.isDown() || box.checkState() == Qt::PartiallyChecked)
        return "confused";
    return box.isChecked() ? "on" : "off";
}

/// Answers the next question box, by a button or (with QMessageBox::NoButton) by Escape, and remembers what it said.
class Answer
{
public:
    explicit Answer(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(0, &m_context, [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            ++asked;
            title = box->windowTitle();
            text = box->text();
            defaultIsNo = box->standardButton(box->defaultButton()) == QMessageBox::No;
            if (meanwhile)
                meanwhile();
            if (button == QMessageBox::NoButton)
                QTest::keyClick(box, Qt::Key_Escape);
            else
                QTest::keyClick(box->button(button), Qt::Key_Space);
        });
    }

    int asked = 0;
    QString title;
    QString text;
    bool defaultIsNo = false;
    std::function<void()> meanwhile;

private:
    QObject m_context;
};

} // namespace

TEST_F(BooleanObserverTest, CheckBoxWritesWhatIsClicked)
{
    PartImpl* lamp = add("testpackage/lamp");
    const int before = undoSteps();
    ObserverCheckBox box;
    EXPECT_EQ(box.text(), QString("Checkbox"));
    prepare(box, "on");
    QSignalSpy toggled(&box, &QCheckBox::toggled);
    box.bind(&document, {lamp});
    EXPECT_EQ(toggled.count(), 1); // listeners see the bound value
    EXPECT_EQ(looks(box), "off");
    EXPECT_EQ(undoSteps(), before);

    clickBox(box);
    EXPECT_TRUE(isOn(lamp));
    EXPECT_EQ(undoSteps(), before + 1);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_FALSE(isOn(lamp));
    document.undo();
    EXPECT_EQ(looks(box), "on");

    box.bind(&document, {lamp});
    clickBox(box);
    EXPECT_FALSE(isOn(lamp));
    box.unbind();
    clickBox(box); // edits nothing
    EXPECT_FALSE(isOn(lamp));
}

TEST_F(BooleanObserverTest, CheckBoxShowsMixedValuesWhateverTheFirstIs)
{
    const auto parts = add("testpackage/lamp", 3);
    for (size_t on = 0; on < parts.size(); ++on) {
        for (const bool shownBefore : {false, true}) {
            for (size_t i = 0; i < parts.size(); ++i)
                set(property(parts[i], "on"), boolean(i == on));
            const QByteArray before = bytesOf(document);
            ObserverCheckBox box;
            prepare(box, "on");
            box.setChecked(shownBefore);
            box.bind(&document, nodesOf(parts));
            EXPECT_EQ(looks(box), "mixed");
            box.bind(&document, nodesOf(parts));
            EXPECT_EQ(looks(box), "mixed");
            EXPECT_EQ(bytesOf(document), before); // showing writes nothing

            set(property(parts[on], "on"), boolean(false));
            EXPECT_EQ(looks(box), "off");
            set(property(parts[on], "on"), boolean(true));
            EXPECT_EQ(looks(box), "mixed");
            const int steps = undoSteps();
            clickBox(box); // from mixed to on, for all
            EXPECT_EQ(looks(box), "on");
            EXPECT_EQ(undoSteps(), steps + 1);
            for (PartImpl* part : parts)
                EXPECT_TRUE(isOn(part));
            document.undo();
            EXPECT_EQ(looks(box), "mixed");
            EXPECT_EQ(bytesOf(document), before);
        }
    }
}

TEST_F(BooleanObserverTest, CheckBoxCanInvert)
{
    PartImpl* lamp = add("testpackage/lamp");
    ASSERT_TRUE(set(property(lamp, "on"), boolean(true)));
    ObserverCheckBox box;
    prepare(box, "on");
    box.setInvertValue(true);
    box.bind(&document, {lamp});
    EXPECT_EQ(looks(box), "off");
    clickBox(box);
    EXPECT_FALSE(isOn(lamp));
}

TEST_F(BooleanObserverTest, NobodyEnablesAControlOverAReadOnlyProperty)
{
    PartImpl* lamp = add("testpackage/lamp");
    QWidget form;
    auto* box = new ObserverCheckBox(&form);
    auto* stringBox = new ObserverStringCheckBox(&form);
    auto* button = new ObserverButton(&form);
    stringBox->setOnValue("yes");
    stringBox->setOffValue("no");
    prepare(*box, "on");
    prepare(*stringBox, "answer");
    prepare(*button, "on");
    for (PropertyObserver* observer : std::initializer_list<PropertyObserver*>{box, stringBox, button})
        observer->bind(&document, {lamp});
    run<SetUILockedCommand>(document, std::vector{Node(lamp)}, LockPropertyValues, true);
    for (QWidget* widget : std::initializer_list<QWidget*>{box, stringBox, button}) {
        EXPECT_FALSE(widget->isEnabled());
        widget->setEnabled(true); // not virtual
        EXPECT_FALSE(widget->isEnabled());
    }
    box->setEnabled(true);
    box->setDisabled(false);
    EXPECT_FALSE(box->isEnabled());
    EXPECT_TRUE(QMetaObject::invokeMethod(box, "setEnabled", Q_ARG(bool, true)));
    EXPECT_FALSE(box->isEnabled());
    form.setEnabled(false);
    form.setEnabled(true);
    EXPECT_FALSE(box->isEnabled());
    document.undo();
    EXPECT_TRUE(box->isEnabled());
    box->setDisabled(true);
    EXPECT_FALSE(box->isEnabled());
}

TEST_F(BooleanObserverTest, ConfirmingBoxAsksOnceAndOnlyWhatWasGiven)
{
    PartImpl* lamp = add("testpackage/lamp");
    ConfirmingObserverCheckBox box;
    prepare(box, "on");
    box.setConfirmOnQuestion("Really?");
    box.bind(&document, {lamp});
    box.bind(&document, {lamp}); // bound twice, asked once
    const int before = undoSteps();
    {
        Answer no(QMessageBox::NoButton);
        clickBox(box);
        EXPECT_EQ(no.asked, 1);
        EXPECT_EQ(no.title, QString("Change property value"));
        EXPECT_EQ(no.text, QString("Really?"));
        EXPECT_TRUE(no.defaultIsNo);
        EXPECT_EQ(looks(box), "off");
        EXPECT_EQ(undoSteps(), before);
    }
    {
        Answer yes(QMessageBox::Yes);
        clickBox(box);
        EXPECT_EQ(yes.asked, 1);
        EXPECT_TRUE(isOn(lamp));
        EXPECT_EQ(looks(box), "on");
    }
    clickBox(box); // off without a question
    EXPECT_FALSE(isOn(lamp));
    box.setConfirmOffQuestion(""); // empty is not null
    ASSERT_TRUE(set(property(lamp, "on"), boolean(true)));
    Answer no(QMessageBox::No);
    clickBox(box);
    EXPECT_EQ(no.asked, 1);
    EXPECT_TRUE(isOn(lamp));
    EXPECT_EQ(looks(box), "on");
}

TEST_F(BooleanObserverTest, AnswerDoesNotReachWhatWasBoundMeanwhile)
{
    PartImpl* lamp = add("testpackage/lamp");
    PartImpl* other = add("testpackage/lamp");
    ConfirmingObserverCheckBox box;
    prepare(box, "on");
    box.setConfirmOnQuestion("Really?");
    box.bind(&document, {lamp});
    Answer yes(QMessageBox::Yes);
    yes.meanwhile = [&] { box.bind(&document, {other}); };
    clickBox(box);
    EXPECT_EQ(yes.asked, 1);
    EXPECT_FALSE(isOn(lamp));
    EXPECT_FALSE(isOn(other));
    EXPECT_EQ(looks(box), "off");

    box.bind(&document, {lamp, other});
    ASSERT_TRUE(set(property(other, "on"), boolean(true)));
    Answer no(QMessageBox::No);
    clickBox(box);
    EXPECT_EQ(no.asked, 1);
    EXPECT_EQ(looks(box), "mixed"); // as it was
}

TEST_F(BooleanObserverTest, StringBoxComparesExactlyAndSwitchesTexts)
{
    PartImpl* lamp = add("testpackage/lamp");
    PartImpl* other = add("testpackage/lamp");
    ObserverStringCheckBox box("Answer");
    prepare(box, "answer");
    box.setOnValue("yes");
    box.setOffValue("no");
    ASSERT_TRUE(set(property(lamp, "answer"), string("YES")));
    box.bind(&document, {lamp});
    EXPECT_EQ(looks(box), "off");
    EXPECT_EQ(text(lamp, "answer"), QString("YES"));
    clickBox(box);
    EXPECT_EQ(text(lamp, "answer"), QString("yes"));
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(text(lamp, "answer"), QString("no"));
    box.bind(&document, {lamp, other});
    EXPECT_EQ(looks(box), "off");
    ASSERT_TRUE(set(property(other, "answer"), string("perhaps"))); // off as well, but another text
    EXPECT_EQ(looks(box), "mixed");
}

TEST_F(BooleanObserverTest, PlainButtonIsTrueWhileHeldDown)
{
    PartImpl* lamp = add("testpackage/lamp");
    for (const bool invert : {false, true}) {
        ObserverButton button;
        prepare(button, "on");
        button.setInvertBool(invert);
        button.bind(&document, {lamp});
        button.unbind();
        button.bind(&document, {lamp});
        set(property(lamp, "on"), boolean(invert));
        const int before = undoSteps();
        QTest::mousePress(&button, Qt::LeftButton);
        EXPECT_NE(isOn(lamp), invert);
        EXPECT_EQ(undoSteps(), before + 1);
        QTest::mouseRelease(&button, Qt::LeftButton);
        EXPECT_EQ(isOn(lamp), invert);
        EXPECT_EQ(undoSteps(), before + 2);
    }
}

// Held down by the keyboard when the focus goes: the release never comes.
TEST_F(BooleanObserverTest, PlainButtonIsReleasedWhenItLosesTheFocus)
{
    PartImpl* lamp = add("testpackage/lamp");
    QWidget window;
    auto* button = new ObserverButton(&window);
    auto* other = new QLineEdit(&window);
    prepare(*button, "on");
    button->setFocusPolicy(Qt::StrongFocus);
    button->bind(&document, {lamp});
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    button->setFocus();
    QTest::keyPress(button, Qt::Key_Space);
    EXPECT_TRUE(isOn(lamp));
    other->setFocus();
    EXPECT_FALSE(isOn(lamp));
}

TEST_F(BooleanObserverTest, ToggleButtonFollowsWithoutWritingOverOthers)
{
    const auto parts = add("testpackage/lamp", 2);
    ASSERT_TRUE(set(property(parts[0], "on"), boolean(true)));
    ObserverButton button;
    EXPECT_EQ(button.text(), QString("Button"));
    prepare(button, "on");
    button.setCheckable(true);
    button.bind(&document, {parts[0]});
    EXPECT_TRUE(button.isChecked());
    const int before = undoSteps();
    button.bind(&document, nodesOf(parts)); // mixed: goes off, and must not switch the others off
    EXPECT_FALSE(button.isChecked());
    EXPECT_TRUE(isOn(parts[0]));
    EXPECT_EQ(undoSteps(), before);

    ASSERT_TRUE(set(property(parts[1], "on"), boolean(true)));
    EXPECT_TRUE(button.isChecked());
    ASSERT_TRUE(set(property(parts[1], "on"), boolean(false))); // mixed again while connected
    EXPECT_FALSE(button.isChecked());
    EXPECT_TRUE(isOn(parts[0]));
    EXPECT_EQ(undoSteps(), before + 2);

    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(isOn(parts[1]));
    EXPECT_EQ(undoSteps(), before + 3);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_FALSE(isOn(parts[0]) || isOn(parts[1]));
}

TEST_F(BooleanObserverTest, StringButtonIsAToggleButton)
{
    PartImpl* lamp = add("testpackage/lamp");
    ObserverButton button;
    button.setMode(ObserverButton::STRING);
    button.setOnValue("yes");
    button.setOffValue("no");
    prepare(button, "answer");
    EXPECT_TRUE(button.isCheckable());
    button.bind(&document, {lamp});
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(text(lamp, "answer"), QString("yes"));
    ASSERT_TRUE(set(property(lamp, "answer"), string("maybe")));
    EXPECT_FALSE(button.isChecked());
    EXPECT_EQ(text(lamp, "answer"), QString("maybe"));
    button.setMode(ObserverButton::BOOLEAN);
    EXPECT_TRUE(button.isCheckable());
}

TEST_F(BooleanObserverTest, ButtonKeepsItsMenuAndWrapsItsIcon)
{
    PartImpl* lamp = add("testpackage/lamp");
    ObserverButton button;
    prepare(button, "on");
    QMenu menu;
    menu.addAction("Item");
    button.setMenu(&menu);
    button.setPopupMode(QToolButton::InstantPopup);
    button.bind(&document, {lamp});
    button.unbind();
    QTimer::singleShot(0, &menu, [&menu] { menu.close(); });
    QSignalSpy shown(&menu, &QMenu::aboutToShow);
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_EQ(shown.count(), 1);

    QPixmap pixmap(10, 12);
    pixmap.fill(Qt::red);
    button.setIcon(pixmap);
    button.setIconSize({40, 40});
    EXPECT_NE(button.sizeHint(), QSize(16, 18));
    button.setWrapPixmaps(true);
    EXPECT_EQ(button.sizeHint(), QSize(16, 18));
}

TEST_F(BooleanObserverTest, WidgetsWithoutATextAreReadOutAsTheProperty)
{
    PartImpl* lamp = add("testpackage/lamp");
    ObserverCheckBox named("Light");
    ObserverCheckBox silent("");
    prepare(named, "on");
    prepare(silent, "on");
    named.bind(&document, {lamp});
    silent.bind(&document, {lamp});
    EXPECT_EQ(named.accessibleName(), QString());
    EXPECT_EQ(silent.accessibleName(), QString("Switched on"));
    silent.setModelProperty("pulse");
    silent.bind(&document, {lamp});
    EXPECT_EQ(silent.accessibleName(), QString("Pulse"));
}

TEST_F(BooleanObserverDeathTest, MissingTextsAndWrongTypesAreFatal)
{
    PartImpl* lamp = add("testpackage/lamp");
    ObserverStringCheckBox box;
    prepare(box, "answer");
    EXPECT_DEATH(box.bind(&document, {lamp}), "ZK_ASSERT: \"m_onValue != QString::null\" in ");
    box.setOnValue("");
    EXPECT_DEATH(box.bind(&document, {lamp}), "ZK_ASSERT: \"m_offValue != QString::null\" in ");
    ObserverButton button;
    prepare(button, "answer");
    EXPECT_DEATH(button.bind(&document, {lamp}), "ZK_ASSERT: \"m_valueType == Value::BOOL\" in ");
    button.setMode(ObserverButton::STRING);
    EXPECT_DEATH(button.bind(&document, {lamp}), "ZK_ASSERT: \"m_onValue != QString::null\" in ");
    button.setOnValue("a");
    button.setOffValue("b");
    button.setModelProperty("on");
    EXPECT_DEATH(button.bind(&document, {lamp}), "ZK_ASSERT: \"m_valueType == Value::STRING\" in ");
}
