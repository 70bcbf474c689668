#include "zkeditor/widgets/checkBox.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/groupBox.h"
#include "zkeditor/widgets/lineEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

// The items of the menu, "-" before those that are disabled.
QStringList describeMenu(const QMenu* menu)
{
    QStringList items;
    for (const QAction* action : menu->actions())
        items += action->isSeparator() ? "separator" : (action->isEnabled() ? "" : "-") + action->text();
    return items;
}

QStringList menuFor(LineEdit& edit)
{
    const QScopedPointer<QMenu> menu(edit.createPopupMenu());
    EXPECT_EQ(menu->objectName(), QString("qt_edit_menu"));
    return describeMenu(menu.data());
}

void requestMenu(LineEdit& edit)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, edit.rect().center(), edit.mapToGlobal(edit.rect().center()));
    QApplication::sendEvent(&edit, &event);
}

} // namespace

TEST(LineEditTest, EditMenuOffersWhatCanBeDone)
{
    LineEdit edit;
    QApplication::clipboard()->clear();
    EXPECT_EQ(menuFor(edit), QStringList({"-Cu&t\tCtrl+X", "-&Copy\tCtrl+C", "-&Paste\tCtrl+V", "-Clear", "separator",
                                          "-Select All\tCtrl+A"}));
    edit.setText("some text");
    QApplication::clipboard()->setText("more");
    EXPECT_EQ(menuFor(edit), QStringList({"-Cu&t\tCtrl+X", "-&Copy\tCtrl+C", "&Paste\tCtrl+V", "Clear", "separator",
                                          "Select All\tCtrl+A"}));
    edit.selectAll();
    EXPECT_EQ(menuFor(edit), QStringList({"Cu&t\tCtrl+X", "&Copy\tCtrl+C", "&Paste\tCtrl+V", "Clear", "separator",
                                          "-Select All\tCtrl+A"}));
    edit.setReadOnly(true);
    EXPECT_EQ(menuFor(edit), QStringList({"-Cu&t\tCtrl+X", "&Copy\tCtrl+C", "-&Paste\tCtrl+V", "-Clear", "separator",
                                          "-Select All\tCtrl+A"}));
    edit.setReadOnly(false);
    const QScopedPointer<QMenu> menu(edit.createPopupMenu());
    menu->actions().at(0)->trigger();
    EXPECT_EQ(edit.text(), QString());
    EXPECT_EQ(QApplication::clipboard()->text(), QString("some text"));
}

TEST(LineEditTest, MenuComesAndGoesWithRequests)
{
    auto edit = std::make_unique<LineEdit>();
    edit->show();
    EXPECT_FALSE(edit->popupMenuActive());
    requestMenu(*edit);
    EXPECT_TRUE(edit->popupMenuActive());
    requestMenu(*edit); // while one is open
    EXPECT_TRUE(edit->popupMenuActive());
    edit->findChild<QMenu*>("qt_edit_menu")->close();
    edit->findChildren<QMenu*>("qt_edit_menu").last()->close();
    EXPECT_FALSE(edit->popupMenuActive());
    requestMenu(*edit); // while the closed one waits for its deletion
    EXPECT_TRUE(edit->popupMenuActive());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(edit->findChildren<QMenu*>("qt_edit_menu").size(), 1);
    edit.reset(); // with its menu open
}

TEST(LineEditDeathTest, OneMenuAtATime)
{
    LineEdit edit;
    const QScopedPointer<QMenu> menu(edit.createPopupMenu());
    EXPECT_DEATH(edit.createPopupMenu(), "ZK_ASSERT: \"m_popupMenu == NULL\" in ");
}

TEST(LineEditTest, LostFocusIsNotForPopups)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* edit = new LineEdit;
    auto* other = new QLineEdit;
    layout->addWidget(edit);
    layout->addWidget(other);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QSignalSpy lost(edit, &LineEdit::lostFocus);
    edit->setFocus();
    requestMenu(*edit);
    EXPECT_EQ(lost.count(), 0);
    edit->findChild<QMenu*>("qt_edit_menu")->close();
    QTest::keyClick(edit, Qt::Key_Tab);
    EXPECT_TRUE(other->hasFocus());
    EXPECT_EQ(lost.count(), 1);
}

TEST(GroupBoxTest, TextsSwitchIt)
{
    GroupBox box;
    box.setActivateString("Manual step");
    box.setEnabledByString("Fast");
    EXPECT_FALSE(box.isEnabled());
    box.setEnabledByString("Manual step");
    EXPECT_TRUE(box.isEnabled());
    box.setDisabledByString("Manual step");
    EXPECT_FALSE(box.isEnabled());
    box.setDisabledByString("manual step");
    EXPECT_TRUE(box.isEnabled());
    box.setShownByString("Manual step");
    EXPECT_FALSE(box.isHidden());
    box.setHiddenByString("Manual step");
    EXPECT_TRUE(box.isHidden());
    box.setHiddenByString("Fast");
    EXPECT_FALSE(box.isHidden());
    box.setShownByString("Fast");
    EXPECT_TRUE(box.isHidden());
}

TEST(ComboBoxTest, LongItemsDoNotWidenThePalette)
{
    ComboBox box;
    const QSize empty = box.minimumSizeHint();
    box.addItem("on");
    const int narrow = box.sizeHint().width();
    box.addItem(QString(200, QLatin1Char('w')));
    EXPECT_EQ(box.minimumSizeHint().width(), empty.width());
    EXPECT_GT(box.sizeHint().width(), narrow);
    EXPECT_LT(box.sizeHint().width(), 40 * box.fontMetrics().averageCharWidth());
    EXPECT_GE(narrow, box.minimumSizeHint().width());
}

TEST(ComboBoxTest, WheelPassesByWithoutFocus)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* box = new ComboBox;
    auto* other = new QLineEdit;
    layout->addWidget(other);
    layout->addWidget(box);
    box->addItems({"one", "two"});
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    const auto wheel = [box] {
        const QPointF place = box->rect().center();
        QWheelEvent event(place, box->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &event);
        return box->currentIndex();
    };
    EXPECT_EQ(wheel(), 0);
    EXPECT_FALSE(box->hasFocus());
    box->setFocus();
    EXPECT_EQ(wheel(), 1);
}

TEST(CheckBoxTest, PartialStateLeavesNoTrace)
{
    CheckBox box("Box");
    box.setCheckBoxState(false, true);
    EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
    EXPECT_TRUE(box.isTristate() && box.isDown());
    box.setCheckBoxState(true, false);
    EXPECT_EQ(box.checkState(), Qt::Checked);
    EXPECT_FALSE(box.isTristate() || box.isDown());
    box.setCheckBoxState(true, true);
    box.resetTristate();
    EXPECT_EQ(box.checkState(), Qt::Unchecked);
    QTest::keyClick(&box, Qt::Key_Space); // two states again
    EXPECT_EQ(box.checkState(), Qt::Checked);
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    box.setCheckBoxState(true, false); // does not let go of a box that the user holds
    EXPECT_TRUE(box.isDown());
    QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    EXPECT_EQ(box.checkState(), Qt::Unchecked);
}
