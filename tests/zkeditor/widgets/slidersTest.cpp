#include "controlsFixture.h"
#include "zkcore/values/formatter.h"
#include "zkeditor/widgets/observerSlider.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalSpy>
#include <QWheelEvent>

namespace {

void turnWheel(QWidget& widget, int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPointF at(widget.rect().center());
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

void grab(DoubleSlider& slider)
{
    QTest::mousePress(&slider, Qt::LeftButton, {}, slider.handlePosition(slider.value()));
}

void dragTo(DoubleSlider& slider, double value)
{
    QTest::mouseMove(&slider, slider.handlePosition(value));
}

void drop(DoubleSlider& slider)
{
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, slider.handlePosition(slider.value()));
}

} // namespace

using DoubleSliderTest = ControlsTest;
using ObserverSliderTest = ControlsTest;

TEST_F(DoubleSliderTest, KeysAndWheelStepInEveryDirection)
{
    DoubleSlider slider;
    slider.setRange(0.0, 1.0);
    slider.setSteps(0.1, 0.25);
    slider.resize(200, 30);
    QSignalSpy changed(&slider, &DoubleSlider::valueChanged);
    const struct
    {
        Qt::Key key;
        double value;
    } keys[] = {{Qt::Key_Right, 0.1}, {Qt::Key_Up, 0.2},  {Qt::Key_Right, 0.3}, {Qt::Key_PageUp, 0.55},
                {Qt::Key_Left, 0.45}, {Qt::Key_End, 1.0}, {Qt::Key_Up, 1.0},    {Qt::Key_PageDown, 0.75},
                {Qt::Key_Down, 0.65}, {Qt::Key_Home, 0.0}};
    for (const auto& pressed : keys) {
        QTest::keyClick(&slider, pressed.key);
        EXPECT_EQ(slider.value(), pressed.value) << pressed.key; // to the last digit
    }
    EXPECT_EQ(changed.count(), 9);
    slider.setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(slider.value(), 0.1);
    turnWheel(slider, 120);
    EXPECT_EQ(slider.value(), 0.2);
    turnWheel(slider, 60);
    EXPECT_EQ(slider.value(), 0.2);
    turnWheel(slider, 60); // half a notch and half a notch
    EXPECT_EQ(slider.value(), 0.3);
    turnWheel(slider, -120, Qt::ControlModifier);
    EXPECT_EQ(slider.value(), 0.05);
}

TEST_F(DoubleSliderTest, MouseDragsPagesAndIsMirrored)
{
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            DoubleSlider slider(orientation, nullptr);
            slider.setLayoutDirection(direction);
            slider.setRange(-5.0, 5.0);
            slider.setTickPosition(QSlider::TicksBothSides);
            slider.resize(orientation == Qt::Horizontal ? QSize(240, 40) : QSize(40, 240));
            slider.show();
            const bool grows = orientation == Qt::Horizontal && direction == Qt::LeftToRight;
            const QPoint low = slider.handlePosition(-5.0);
            const QPoint high = slider.handlePosition(5.0);
            EXPECT_EQ(grows, orientation == Qt::Horizontal ? low.x() < high.x() : low.y() < high.y());
            grab(slider);
            EXPECT_TRUE(slider.isSliderDown());
            EXPECT_EQ(slider.value(), 0.0); // holding is no change
            dragTo(slider, 2.0);
            EXPECT_NEAR(slider.value(), 2.0, 0.06);
            EXPECT_EQ(slider.value(), QString::number(slider.value(), 'f', 2).toDouble()); // what a pixel can tell
            QTest::mouseMove(&slider, high + (high - low));                                // beyond the end
            EXPECT_EQ(slider.value(), 5.0);
            QTest::keyClick(&slider, Qt::Key_Escape);
            EXPECT_EQ(slider.value(), 0.0);
            dragTo(slider, 1.0); // the drag is over
            EXPECT_EQ(slider.value(), 0.0);
            drop(slider);
            EXPECT_FALSE(slider.isSliderDown());
        }
    }
    DoubleSlider slider;
    slider.setRange(0.0, 100.0);
    slider.resize(240, 30);
    slider.show();
    const Qt::MouseButtons jump(slider.style()->styleHint(QStyle::SH_Slider_AbsoluteSetButtons));
    QTest::mouseClick(&slider, Qt::LeftButton, {}, slider.handlePosition(50.0));
    EXPECT_NEAR(slider.value(), jump & Qt::LeftButton ? 50.0 : 10.0, 1.0);
}

TEST_F(DoubleSliderTest, ScreenReadersReadAndSetIt)
{
    DoubleSlider slider;
    slider.setRange(0.0, 2.0);
    slider.setSteps(0.5, 1.0);
    slider.setValue(1.5);
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_TRUE(accessible);
    EXPECT_EQ(accessible->role(), QAccessible::Slider);
    QAccessibleValueInterface* value = accessible->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->currentValue().toDouble(), 1.5);
    EXPECT_EQ(value->maximumValue().toDouble(), 2.0);
    EXPECT_EQ(value->minimumStepSize().toDouble(), 0.5);
    value->setCurrentValue(7.0);
    EXPECT_EQ(slider.value(), 2.0);
}

TEST_F(ObserverSliderTest, RangeAndValueAreInTheUnitShown)
{
    PartImpl* first = gauge();
    auto& slider = place(new ObserverSlider, "length");
    const QByteArray before = bytesOf(document);
    slider.bind(&document, {first});
    EXPECT_EQ(slider.minValue(), 0.0);
    EXPECT_EQ(slider.maxValue(), 200.0);
    EXPECT_EQ(slider.value(), 20.0);
    EXPECT_EQ(slider.pageStep(), 10.0 * slider.lineStep());
    dynamic_cast<NumericalFormatter*>(property(first, "length")->getFormatter())->setCurrentUnit(Unit::fromText("cm"));
    EXPECT_NEAR(slider.maxValue(), 20.0, 1e-9);
    EXPECT_NEAR(slider.value(), 2.0, 1e-9);
    EXPECT_EQ(bytesOf(document), before);

    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(real(first, "length"), 0.2);
    document.undo();
    slider.bind(&document, {first, add("controls/meter")}); // what both allow
    const double unit = dynamic_cast<NumericalFormatter*>(property(first, "length")->getFormatter())
                            ->currentUnit()
                            .convertToSI(slider.maxValue());
    EXPECT_TRUE(std::abs(unit - 0.1) < 1e-9 || std::abs(slider.maxValue() * 0.0254 - 0.1) < 1e-9);

    ObserverSlider whole;
    whole.setModelProperty("count");
    whole.resize(200, 30);
    whole.bind(&document, {first});
    EXPECT_EQ(whole.lineStep(), 1.0);
    QTest::keyClick(&whole, Qt::Key_Right);
    EXPECT_EQ(text(first, "count"), "4");

    ObserverSlider free; // no range of its own: the form's
    free.setModelProperty("free");
    free.setRange(-2.0, 2.0);
    free.bind(&document, {first});
    EXPECT_EQ(free.minValue(), -2.0);
    EXPECT_EQ(free.value(), 1.0);
}

TEST_F(ObserverSliderTest, OneDragIsOneUndoStep)
{
    const auto parts = add("controls/gauge", 2);
    auto& slider = place(new ObserverSlider, "length");
    slider.bind(&document, nodesOf(parts));
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    for (int drag = 1; drag <= 2; ++drag) {
        grab(slider);
        EXPECT_EQ(undoSteps(), steps + drag - 1); // holding writes nothing
        for (double value = 30.0; value <= 150.0; value += 20.0) {
            dragTo(slider, value + drag);
            EXPECT_NEAR(real(parts[1], "length"), (value + drag) / 1000.0, 0.002); // previews
        }
        drop(slider);
        EXPECT_EQ(undoSteps(), steps + drag);
    }
    document.undo();
    document.undo();
    EXPECT_EQ(bytesOf(document), before);
    EXPECT_EQ(slider.value(), 20.0);

    QTest::keyPress(&slider, Qt::Key_Right);
    for (int i = 0; i < 5; ++i)
        QTest::sendKeyEvent(QTest::Press, &slider, Qt::Key_Right, QString(), Qt::NoModifier);
    QTest::keyRelease(&slider, Qt::Key_Right);
    EXPECT_GT(undoSteps(), steps);
    turnWheel(slider, 120);
    const int afterWheel = undoSteps();
    turnWheel(slider, 120);
    EXPECT_EQ(undoSteps(), afterWheel + 1);
}

TEST_F(ObserverSliderTest, EscapeTakesTheDragBackWithoutATrace)
{
    const auto parts = add("controls/gauge", 3);
    for (const bool mixed : {false, true}) {
        for (size_t i = 0; i < parts.size(); ++i)
            set(property(parts[i], "length"), number(mixed ? 0.01 * static_cast<double>(i + 1) : 0.05));
        auto& slider = place(new ObserverSlider, "length");
        slider.bind(&document, nodesOf(parts));
        EXPECT_EQ(slider.showsValue(), !mixed);
        const QByteArray before = bytesOf(document);
        const int steps = undoSteps();
        QTest::mousePress(&slider, Qt::LeftButton, {}, slider.handlePosition(slider.value()));
        dragTo(slider, 120.0);
        dragTo(slider, 180.0);
        EXPECT_NE(bytesOf(document), before);
        EXPECT_TRUE(slider.showsValue());
        QTest::keyClick(&slider, Qt::Key_Escape);
        EXPECT_EQ(bytesOf(document), before);
        EXPECT_EQ(undoSteps(), steps);
        EXPECT_FALSE(document.canRedo());
        EXPECT_EQ(slider.showsValue(), !mixed);
        drop(slider);
        EXPECT_EQ(bytesOf(document), before);
    }
    // What is not recorded is written back.
    auto& slider = place(new ObserverSlider, "lit");
    slider.bind(&document, nodesOf(parts));
    grab(slider);
    dragTo(slider, 0.7);
    EXPECT_NEAR(real(parts[2], "lit"), 0.7, 0.01);
    QTest::keyClick(&slider, Qt::Key_Escape);
    EXPECT_EQ(real(parts[2], "lit"), 0.0);
}

TEST_F(ObserverSliderTest, MixedReadOnlyAndDeletedInADrag)
{
    const auto parts = add("controls/gauge", 2);
    ASSERT_TRUE(set(property(parts[0], "length"), number(0.1)));
    auto* slider = &place(new ObserverSlider, "length");
    slider->bind(&document, nodesOf(parts));
    EXPECT_FALSE(slider->showsValue());
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(slider)->valueInterface()->currentValue().isValid());
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Home);
    EXPECT_EQ(real(parts[0], "length"), 0.0);
    EXPECT_EQ(real(parts[1], "length"), 0.0);
    EXPECT_TRUE(slider->showsValue());

    // Another selection in the middle of a drag gets nothing of it.
    PartImpl* stranger = gauge();
    grab(*slider);
    dragTo(*slider, 50.0);
    slider->bind(&document, {stranger});
    dragTo(*slider, 90.0);
    EXPECT_EQ(real(stranger, "length"), 0.02);
    drop(*slider);

    lock(stranger);
    EXPECT_FALSE(slider->isEnabled());
    static_cast<QWidget*>(slider)->setEnabled(true);
    EXPECT_FALSE(slider->isEnabled());
    document.undo();
    const QPointer<ObserverSlider> alive(slider);
    QObject::connect(property(stranger, "length"), &PropertyImpl::ValueChanged, slider, [&] { delete alive.data(); });
    grab(*slider);
    dragTo(*slider, 150.0);
    EXPECT_FALSE(alive);
}
