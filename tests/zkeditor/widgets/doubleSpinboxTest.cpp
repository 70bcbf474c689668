// The range control and the spin box on it, by keys, wheel and mouse.
#include "zkeditor/widgets/doubleSpinbox.h"
#include "tests/support/messageCapture.h"
#include "zkeditor/widgets/doubleSpinboxValidator.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/spinControls.h"

#include <QRegularExpressionValidator>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

class LoggingRange : public DoubleRangeControl
{
public:
    using DoubleRangeControl::DoubleRangeControl;
    QStringList log;

protected:
    void valueChange() override { log << QStringLiteral("value %1").arg(value()); }
    void rangeChange() override { log << QStringLiteral("range, value %1").arg(value()); }
    void stepChange() override { log << QStringLiteral("step"); }
};

TEST(DoubleRangeControlTest, keepsItsValueInRangeAndTellsOfChanges)
{
    LoggingRange range(0, 10, -2, 5, 20);
    EXPECT_EQ(range.value(), 10);
    EXPECT_EQ(range.lineStep(), 2);
    EXPECT_EQ(range.prevValue(), -1);
    EXPECT_TRUE(range.log.isEmpty());
    range.setValue(4);
    range.setValue(4 + 1e-17);
    range.addPage();
    range.subtractLine();
    range.setRange(0, 6); // the value follows after the range hook
    range.setRange(0, 6 + 1e-17);
    range.setSteps(2, 5);
    range.setSteps(-3, 5);
    range.setMinValue(8);
    EXPECT_EQ(range.maxValue(), 8);
    range.setMaxValue(2);
    EXPECT_EQ(range.minValue(), 2);
    EXPECT_EQ(range.log,
              QStringList({QStringLiteral("value 4"), QStringLiteral("value 9"), QStringLiteral("value 7"),
                           QStringLiteral("range, value 7"), QStringLiteral("value 6"), QStringLiteral("step"),
                           QStringLiteral("range, value 6"), QStringLiteral("value 8"),
                           QStringLiteral("range, value 8"), QStringLiteral("value 2")}));
    MessageCapture messages;
    range.setRange(5, 1);
    EXPECT_EQ(messages.warnings(),
              QStringList(QStringLiteral("DoubleRangeControl::setRange: minValue 5.000000 > maxValue 1.000000")));
    EXPECT_EQ(range.minValue(), 5);
    EXPECT_EQ(range.maxValue(), 5);
}

class DoubleSpinBoxTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_box.resize(m_box.sizeHint());
        m_box.show();
        m_box.activateWindow();
        m_box.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_box));
        ASSERT_TRUE(m_box.editor()->hasFocus());
    }

    void type(const QString& text)
    {
        m_box.editor()->selectAll();
        QTest::keyClicks(m_box.editor(), text);
    }
    void press(Qt::Key key) { QTest::keyClick(m_box.editor(), key); }
    QValidator::State verdict(QString text)
    {
        int position = static_cast<int>(text.size());
        return m_box.validator()->validate(text, position);
    }
    static void wheel(QWidget* widget, int delta)
    {
        QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
        EXPECT_TRUE(event.isAccepted());
    }

    DoubleSpinBox m_box;
};

TEST_F(DoubleSpinBoxTest, typedNumbersAreTakenOverOnReturnAndHeldInRange)
{
    QSignalSpy values(&m_box, qOverload<double>(&DoubleSpinBox::valueChanged));
    QSignalSpy texts(&m_box, qOverload<const QString&>(&DoubleSpinBox::valueChanged));
    EXPECT_EQ(m_box.text(), QStringLiteral("0.00"));
    type(QStringLiteral("12.345"));
    EXPECT_EQ(values.count(), 0);
    press(Qt::Key_Return);
    EXPECT_EQ(m_box.text(), QStringLiteral("12.35")) << "shown with two decimals";
    EXPECT_EQ(m_box.value(), 12.345) << "and kept whole";
    ASSERT_EQ(texts.count(), 1);
    EXPECT_EQ(texts[0][0].toString(), QStringLiteral("12.35"));
    type(QStringLiteral("150"));
    EXPECT_EQ(m_box.editor()->text(), QStringLiteral("150"));
    press(Qt::Key_Return);
    EXPECT_EQ(m_box.value(), 99);
    type(QStringLiteral("-"));
    EXPECT_EQ(m_box.editor()->text(), QStringLiteral("99.00")) << "no minus where the minimum is not negative";
    press(Qt::Key_Return);
    EXPECT_EQ(m_box.text(), QStringLiteral("99.00")) << "no number: the value comes back";
    EXPECT_EQ(values.count(), 2);
}

TEST_F(DoubleSpinBoxTest, aPendingEditIsNeverLost)
{
    type(QStringLiteral("7"));
    EXPECT_EQ(m_box.value(), 7);
    type(QStringLiteral("8"));
    press(Qt::Key_Up);
    EXPECT_EQ(m_box.value(), 9);
    type(QStringLiteral("3"));
    m_box.editor()->clearFocus();
    EXPECT_EQ(m_box.text(), QStringLiteral("3.00"));
    m_box.setFocus();
    type(QStringLiteral("5"));
    press(Qt::Key_Escape);
    EXPECT_EQ(m_box.editor()->text(), QStringLiteral("3.00")) << "Escape undoes the typing";
    EXPECT_EQ(m_box.value(), 3);
}

TEST_F(DoubleSpinBoxTest, leavingItUntouchedKeepsTheWholeValue)
{
    m_box.setValue(1.23456);
    m_box.editor()->clearFocus();
    m_box.setFocus();
    press(Qt::Key_Return);
    EXPECT_DOUBLE_EQ(m_box.value(), 1.23) << "Return takes over what is shown";
    m_box.setValue(1.23456);
    press(Qt::Key_Tab);
    EXPECT_DOUBLE_EQ(m_box.value(), 1.23456);
}

TEST_F(DoubleSpinBoxTest, prefixSuffixAndSpecialText)
{
    m_box.setPrecision(1);
    m_box.setPrefix(QStringLiteral("x "));
    m_box.setSuffix(QStringLiteral(" mm"));
    m_box.setValue(3);
    EXPECT_EQ(m_box.text(), QStringLiteral("x 3.0 mm"));
    m_box.selectAll();
    EXPECT_EQ(m_box.editor()->selectedText(), QStringLiteral("3.0"));
    EXPECT_EQ(verdict(QStringLiteral("x  mm")), QValidator::Intermediate);
    EXPECT_EQ(verdict(QStringLiteral("x 5 mm")), QValidator::Acceptable);
    EXPECT_EQ(verdict(QStringLiteral("x 5mm")), QValidator::Acceptable) << "stripped suffix";
    EXPECT_EQ(verdict(QStringLiteral("x y mm")), QValidator::Invalid);
    QTest::keyClicks(m_box.editor(), QStringLiteral("8"));
    press(Qt::Key_Return);
    EXPECT_EQ(m_box.text(), QStringLiteral("x 8.0 mm"));
    m_box.setSpecialValueText(QStringLiteral("Auto"));
    for (const bool bare : {false, true}) {
        if (bare) {
            m_box.setPrefix({});
            m_box.setSuffix({});
        }
        EXPECT_EQ(verdict(QStringLiteral("Au")), QValidator::Intermediate);
        EXPECT_EQ(verdict(QStringLiteral("Auto")), QValidator::Acceptable);
        EXPECT_EQ(verdict(QStringLiteral("Automatic")), QValidator::Invalid);
        m_box.setValue(8);
        type(QStringLiteral("Auto"));
        press(Qt::Key_Return);
        EXPECT_EQ(m_box.value(), 0);
        EXPECT_EQ(m_box.text(), QStringLiteral("Auto"));
    }
}

TEST_F(DoubleSpinBoxTest, aValidatorOfAnotherKindIsUsedWithAWarning)
{
    m_box.setValidator(new DoubleSpinBoxValidator(
        &m_box, new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[a-c]+")))));
    MessageCapture messages;
    EXPECT_EQ(verdict(QStringLiteral("abc")), QValidator::Acceptable);
    EXPECT_EQ(messages.warnings(),
              QStringList(QStringLiteral("DoubleSpinBoxValidator: Using a non-numeric validator.")));
}

TEST_F(DoubleSpinBoxTest, theWheelIsSharedByAllBoxes)
{
    m_box.setValue(10);
    wheel(&m_box, 120);
    wheel(&m_box, 120);
    EXPECT_EQ(m_box.value(), 12);
    wheel(&m_box, 60);
    wheel(&m_box, 60);
    EXPECT_EQ(m_box.value(), 12) << "halves of a notch count nothing";
    wheel(&m_box, -360);
    EXPECT_EQ(m_box.value(), 9);
    DoubleSpinBox other;
    wheel(&other, 120);
    EXPECT_EQ(other.value(), 1);
}

TEST_F(DoubleSpinBoxTest, buttonsStepRepeatAndStopAtTheEnds)
{
    auto* controls = m_box.findChild<SpinControls*>(QStringLiteral("controls"));
    ASSERT_TRUE(controls);
    EXPECT_FALSE(controls->isDownEnabled());
    QTest::mouseClick(controls, Qt::LeftButton, {}, m_box.upRect().center());
    EXPECT_EQ(m_box.value(), 1);
    QTest::mouseClick(controls, Qt::RightButton, {}, m_box.upRect().center());
    EXPECT_EQ(m_box.value(), 1);
    QTest::mouseClick(controls, Qt::LeftButton, {}, m_box.downRect().center());
    QTest::mouseClick(controls, Qt::LeftButton, {}, m_box.downRect().center());
    EXPECT_EQ(m_box.value(), 0);
    QTest::mousePress(controls, Qt::LeftButton, {}, m_box.upRect().center());
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_box.value() >= 3; }, 5000)) << "held, it repeats";
    QTest::mouseRelease(controls, Qt::LeftButton, {}, m_box.upRect().center());
    m_box.QWidget::setEnabled(false);
    EXPECT_FALSE(controls->isUpEnabled());
    EXPECT_FALSE(m_box.editor()->isEnabled());
}

TEST_F(DoubleSpinBoxTest, theWidthDoesNotDependOnTheRange)
{
    const int width = m_box.sizeHint().width();
    m_box.setRange(-1e9, 1e9);
    m_box.setPrecision(8);
    EXPECT_EQ(m_box.sizeHint().width(), width);
    m_box.setSuffix(QStringLiteral(" kilometres"));
    EXPECT_GT(m_box.sizeHint().width(), width);
}

TEST(DoubleSpinBoxLifeTest, aFocusedBoxCanBeDeletedAlsoFromItsOwnSignal)
{
    for (const bool fromSignal : {false, true}) {
        QWidget window;
        auto* box = new DoubleSpinBox(&window);
        window.show();
        window.activateWindow();
        box->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        if (fromSignal)
            QObject::connect(box, qOverload<double>(&DoubleSpinBox::valueChanged), &window, [box] { delete box; });
        QTest::keyClicks(box->editor(), QStringLiteral("4"));
        if (fromSignal)
            box->setValue(9);
        else
            delete box;
    }
}

} // namespace
