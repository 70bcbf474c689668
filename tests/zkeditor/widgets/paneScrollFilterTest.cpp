#include "zkeditor/widgets/paneScrollFilter.h"

#include "zkeditor/widgets/doubleSlider.h"
#include "zkeditor/widgets/doubleSpinbox.h"
#include "zkeditor/widgets/lineEdit.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>
#include <gtest/gtest.h>

namespace {

/// A pane of controls in a scroll area, higher than that.
class PaneScrollFilterTest : public testing::Test
{
protected:
    void SetUp() override
    {
        new PaneScrollFilter(&area);
        auto* pane = new QWidget;
        auto* layout = new QVBoxLayout(pane);
        for (QWidget* control : {static_cast<QWidget*>(spin), static_cast<QWidget*>(slider),
                                 static_cast<QWidget*>(toolkitSpin), static_cast<QWidget*>(combo)})
            layout->addWidget(control);
        combo->addItems({"one", "two", "three"});
        combo->setCurrentIndex(1);
        layout->addSpacing(1000);
        area.setWidget(pane);
        area.setWidgetResizable(true);
        area.resize(200, 300);
        area.show();
        area.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
        area.setFocus();
    }

    /// Turns the wheel one notch over the middle of the widget, as the window system does; positive is away.
    void turn(QWidget* over, int notches)
    {
        const QWidget* window = over->window();
        const QPoint at = over->mapTo(window, QPoint(over->width() / 3, over->height() / 2));
        QWheelEvent event(at, window->mapToGlobal(at), QPoint(), QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window->windowHandle(), &event);
    }

    int place() const { return area.verticalScrollBar()->value(); }

    QScrollArea area;
    DoubleSpinBox* spin = new DoubleSpinBox;
    DoubleSlider* slider = new DoubleSlider;
    QSpinBox* toolkitSpin = new QSpinBox; // takes the focus by the wheel
    QComboBox* combo = new QComboBox;
};

TEST_F(PaneScrollFilterTest, TheWheelScrollsPastControlsWithoutFocus)
{
    for (QWidget* control : area.widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        area.verticalScrollBar()->setValue(0);
        // Away first: the pane is at its start, and still no value changes.
        for (const int notches : {1, -1}) {
            turn(control, notches);
            EXPECT_EQ(place() > 0, notches < 0) << control->metaObject()->className();
            EXPECT_TRUE(area.hasFocus()) << control->metaObject()->className();
        }
    }
    EXPECT_EQ(spin->value(), 0.0);
    EXPECT_EQ(slider->value(), 0.0);
    EXPECT_EQ(toolkitSpin->value(), 0);
    EXPECT_EQ(combo->currentIndex(), 1);
}

TEST_F(PaneScrollFilterTest, AControlWithTheFocusTakesTheWheel)
{
    for (QWidget* control :
         {static_cast<QWidget*>(spin), static_cast<QWidget*>(slider), static_cast<QWidget*>(toolkitSpin)}) {
        control->setFocus();
        turn(control, 1);
    }
    turn(toolkitSpin->findChild<QLineEdit*>(), 1); // an inner widget of it
    combo->setFocus();
    turn(combo, -1);
    EXPECT_EQ(place(), 0);
    EXPECT_EQ(spin->value(), 1.0);
    EXPECT_EQ(slider->value(), 1.0);
    EXPECT_EQ(toolkitSpin->value(), 2);
    EXPECT_EQ(combo->currentIndex(), 2);

    // The focus of one control says nothing about another.
    turn(spin, 1);
    EXPECT_EQ(spin->value(), 1.0);
}

TEST_F(PaneScrollFilterTest, PanesThatShowEverythingLeaveTheWheelToTheControls)
{
    area.resize(200, 1400);
    QApplication::processEvents();
    ASSERT_EQ(area.verticalScrollBar()->maximum(), 0);
    turn(spin, 1);
    EXPECT_EQ(spin->value(), 1.0);
}

TEST_F(PaneScrollFilterTest, FollowsWhatComesLaterAndForgetsWhatLeaves)
{
    auto* group = new QWidget;
    auto* layout = new QVBoxLayout(group);
    auto* late = new QDoubleSpinBox;
    layout->addWidget(late);
    static_cast<QVBoxLayout*>(area.widget()->layout())->insertWidget(0, group);
    auto* latest = new QSpinBox(group);
    layout->addWidget(latest);
    QApplication::processEvents();
    turn(late, 1);
    turn(latest, 1);
    EXPECT_EQ(late->value(), 0.0);
    EXPECT_EQ(latest->value(), 0);
    EXPECT_TRUE(area.hasFocus());

    // The list of a combo box is a window of its own.
    combo->setMaxVisibleItems(2);
    for (int i = 0; i < 40; ++i)
        combo->addItem(QString::number(i));
    combo->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    combo->showPopup();
    const auto* list = combo->view();
    const int before = list->verticalScrollBar()->value();
    turn(list->viewport(), -1);
    EXPECT_GT(list->verticalScrollBar()->value(), before);
    combo->hidePopup();

    QWidget* taken = area.takeWidget();
    taken->resize(200, 1300);
    taken->show();
    turn(late, 1);
    EXPECT_EQ(late->value(), 1.0);
    delete taken;
}

} // namespace
