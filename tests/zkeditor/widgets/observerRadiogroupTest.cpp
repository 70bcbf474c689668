#include "zkeditor/widgets/observerRadiogroup.h"
#include "controlsFixture.h"
#include "zkcore/values/validator.h"
#include "zkeditor/widgets/groupRadioButton.h"
#include "zkeditor/widgets/observerCheckbox.h"

#include <QPointer>
#include <QPushButton>

namespace {

class RadioGroupTest : public ControlsTest
{
protected:
    void SetUp() override
    {
        ControlsTest::SetUp();
        group = new ObserverRadioGroup;
        new QVBoxLayout(group);
        m_alive = group;
    }

    void TearDown() override
    {
        if (m_alive && !m_alive->parent())
            delete m_alive; // it was never placed in the window
        ControlsTest::TearDown();
    }

    template <typename Button = RadioButton> Button* choice(const char* text, QWidget* in = nullptr)
    {
        auto* button = new Button(in ? in : group);
        button->setText(QString::fromUtf8(text));
        (in ? in : group)->layout()->addWidget(button);
        buttons.push_back(button);
        return button;
    }

    void bind(const char* key, const Nodes& nodes) { place(group, key).bind(&document, nodes); }

    /// Which buttons are checked: "0", "12", ...
    QString checked() const
    {
        QString which;
        for (size_t i = 0; i < buttons.size(); ++i) {
            if (buttons[i]->isChecked())
                which += QString::number(i);
        }
        return which;
    }

    void click(size_t index) { QTest::mouseClick(buttons[index], Qt::LeftButton, {}, QPoint(8, 8)); }

    ObserverRadioGroup* group;
    std::vector<QRadioButton*> buttons;

private:
    QPointer<ObserverRadioGroup> m_alive;
};

} // namespace

TEST_F(RadioGroupTest, EachButtonStandsForAValueAcrossContainers)
{
    const auto parts = add("controls/gauge", 2);
    auto* nested = new QWidget(group);
    new QVBoxLayout(nested);
    group->layout()->addWidget(nested);
    choice("&Fast");
    choice<QRadioButton>("Ordinary", nested)->setProperty("value", "Normal");
    choice<GroupRadioButton>("Slow", nested);
    bind("mode", nodesOf(parts));
    EXPECT_EQ(checked(), "1");
    const int steps = undoSteps();
    click(0);
    EXPECT_EQ(checked(), "0");
    EXPECT_EQ(text(parts[0], "mode"), "Fast");
    EXPECT_EQ(text(parts[1], "mode"), "Fast");
    EXPECT_EQ(undoSteps(), steps + 1);
    click(0);
    EXPECT_EQ(undoSteps(), steps + 1);
    click(2);
    EXPECT_EQ(checked(), "2");
    EXPECT_EQ(text(parts[1], "mode"), "Slow");
    document.undo();
    EXPECT_EQ(checked(), "0");

    group->unbind();
    click(1);
    EXPECT_EQ(text(parts[0], "mode"), "Fast");
}

TEST_F(RadioGroupTest, MixedValuesCheckNoneAndArrowsDoNotChoose)
{
    const auto parts = add("controls/gauge", 3);
    ASSERT_TRUE(set(property(parts[1], "mode"), string("Slow")));
    for (const char* name : {"Fast", "Normal", "Slow"})
        choice(name);
    const QByteArray before = bytesOf(document);
    bind("mode", nodesOf(parts));
    EXPECT_EQ(checked(), "");
    QTest::keyClick(other, Qt::Key_Tab);
    ASSERT_TRUE(buttons[0]->hasFocus());
    QTest::keyClick(buttons[0], Qt::Key_Down);
    EXPECT_TRUE(buttons[1]->hasFocus());
    EXPECT_EQ(checked(), "");
    EXPECT_EQ(bytesOf(document), before);
    QTest::keyClick(buttons[1], Qt::Key_Space);
    EXPECT_EQ(checked(), "1");
    EXPECT_EQ(text(parts[1], "mode"), "Normal");
    document.undo();
    EXPECT_EQ(checked(), "");

    group->bind(&document, {parts[0]});
    buttons[1]->setFocus();
    QTest::keyClick(buttons[1], Qt::Key_Right);
    EXPECT_EQ(checked(), "2");
    EXPECT_EQ(text(parts[0], "mode"), "Slow");
    QTest::keyClick(buttons[2], Qt::Key_Down); // goes round
    EXPECT_EQ(checked(), "0");
    window.setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(buttons[0], Qt::Key_Left);
    EXPECT_EQ(checked(), "1");
}

TEST_F(RadioGroupTest, NamesOfValuesOfEveryType)
{
    PartImpl* part = gauge();
    const struct
    {
        const char* key;
        const char* name;
        Value value;
    } cases[] = {{"steps", "4", whole(4)},
                 {"gap", "0.02", number(0.02)}, // as documents have it
                 {"gap", "20", number(0.02)},   // as it is shown
                 {"corner", "0 1", Value(zk::Point{0, 1})},
                 {"corner", "0, 1", Value(zk::Point{0, 1})},
                 {"pair", "3, 4", Value(std::vector<int>{3, 4})},
                 {"count", "7", whole(7)},
                 {"length", "5 cm", number(0.05)}, // without a set: anything that can be typed
                 {"note", "any", string("any")}};
    for (const auto& expected : cases) {
        ObserverRadioGroup box;
        auto* button = new RadioButton(&box);
        button->setText("Label");
        button->setValue(expected.name);
        box.setModelProperty(expected.key);
        MessageCapture messages;
        box.bind(&document, {part});
        EXPECT_EQ(messages.texts(), QStringList()) << expected.key;
        EXPECT_FALSE(button->isChecked());
        button->click();
        EXPECT_TRUE(property(part, expected.key)->getValue() == expected.value) << expected.key << expected.name;
        EXPECT_TRUE(button->isChecked());
        document.undo();
    }
}

TEST_F(RadioGroupTest, ValuesThatAreNotAllowedCannotBeChosen)
{
    PartImpl* part = gauge();
    choice("Fast");
    choice("Backwards");
    bind("mode", {part});
    MessageCapture messages;
    group->bind(&document, {part});
    EXPECT_EQ(messages.texts(), QStringList());
    EXPECT_TRUE(buttons[0]->isEnabled());
    EXPECT_FALSE(buttons[1]->isEnabled());
    // One of the nodes does not allow what the others do.
    choice("Slow");
    group->bind(&document, {part, add("controls/meter")});
    EXPECT_FALSE(buttons[2]->isEnabled());
    group->bind(&document, {part});
    EXPECT_TRUE(buttons[2]->isEnabled());
    auto* validator = dynamic_cast<SetValidator*>(property(part, "mode")->getValidator());
    const Value allowed = validator->getValidValues();
    validator->setValidValues(Value(std::vector<QString>{"Fast", "Backwards"}));
    EXPECT_TRUE(buttons[1]->isEnabled());
    EXPECT_FALSE(buttons[2]->isEnabled());
    validator->setValidValues(allowed);

    ObserverRadioGroup counts(nullptr, "counts");
    auto* five = new RadioButton(&counts);
    five->setText("five");
    counts.setModelProperty("steps");
    messages.clear();
    counts.bind(&document, {part});
    EXPECT_EQ(messages.texts(),
              QStringList("ObserverRadioGroup(counts): Button \"five\" stands for no value of property \"steps\""));
    EXPECT_FALSE(five->isEnabled());
}

TEST_F(RadioGroupTest, ContentsOfAButtonAreBoundAndEnabledWhileItIsChecked)
{
    PartImpl* part = gauge();
    choice("Fast");
    auto* holder = choice<GroupRadioButton>("Normal");
    new QVBoxLayout(holder);
    auto* check = new ObserverCheckBox("on", holder);
    check->setModelProperty("on");
    holder->layout()->addWidget(check);
    auto* never = new QPushButton(holder);
    never->setEnabled(false);
    holder->layout()->addWidget(never);
    bind("mode", {part});
    EXPECT_TRUE(check->isEnabled());
    EXPECT_GE(check->y(), 10); // below the text
    EXPECT_GE(holder->height(), check->height() + never->height());
    QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(5, check->height() / 2));
    EXPECT_TRUE(isOn(part));

    click(0);
    EXPECT_FALSE(check->isEnabled());
    check->bind(&document, {part}); // an observer enables its widget
    EXPECT_FALSE(check->isEnabled());
    lock(part);
    document.undo();
    EXPECT_FALSE(check->isEnabled());
    auto* late = new QPushButton(holder);
    EXPECT_FALSE(late->isEnabled());
    // Beside the text, between its contents, the button does not react.
    QTest::mouseClick(holder, Qt::LeftButton, {}, QPoint(1, holder->height() - 1));
    EXPECT_EQ(checked(), "0");
    click(1);
    EXPECT_TRUE(check->isEnabled() && late->isEnabled());
    EXPECT_FALSE(never->isEnabled());
}

TEST_F(RadioGroupTest, ReadOnlyGroupsStayDisabledAndClicksMayDelete)
{
    PartImpl* part = gauge();
    for (const char* name : {"Fast", "Normal", "Slow"})
        choice(name);
    bind("mode", {part});
    lock(part);
    EXPECT_FALSE(buttons[0]->isEnabled());
    static_cast<QWidget*>(group)->setEnabled(true);
    group->setDisabled(false);
    EXPECT_FALSE(buttons[0]->isEnabled());
    document.undo();
    EXPECT_TRUE(buttons[0]->isEnabled());

    const QPointer<ObserverRadioGroup> alive(group);
    QObject::connect(property(part, "mode"), &PropertyImpl::ValueChanged, group, [&] { delete alive.data(); });
    buttons[1]->setFocus();
    QTest::keyClick(buttons[1], Qt::Key_Down);
    EXPECT_FALSE(alive);
    EXPECT_EQ(text(part, "mode"), "Slow");
}

TEST_F(RadioGroupTest, HeldArrowIsOneStepAndTwoPressesAreTwo)
{
    PartImpl* part = gauge();
    for (const char* name : {"Fast", "Normal", "Slow"})
        choice(name);
    bind("mode", {part});
    const int steps = undoSteps();
    const auto send = [](QEvent::Type type, bool repeated) {
        QKeyEvent event(type, Qt::Key_Down, Qt::NoModifier, QString(), repeated);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    };
    const auto hold = [&](int repeats) {
        send(QEvent::KeyPress, false);
        for (int i = 0; i < repeats; ++i) {
            send(QEvent::KeyRelease, true);
            send(QEvent::KeyPress, true);
        }
        send(QEvent::KeyRelease, false);
    };
    buttons[1]->setFocus();
    hold(4);
    EXPECT_EQ(checked(), "0");
    EXPECT_EQ(undoSteps(), steps + 1);
    hold(0);
    EXPECT_EQ(checked(), "1");
    EXPECT_EQ(undoSteps(), steps + 2);
    document.undo();
    EXPECT_EQ(checked(), "0");
    document.undo();
    EXPECT_EQ(checked(), "1");
    // A click ends what a lost release left open.
    buttons[1]->setFocus();
    send(QEvent::KeyPress, false);
    click(0);
    EXPECT_EQ(undoSteps(), steps + 2);
}
