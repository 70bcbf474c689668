#include "zkcore/widgetSupport/richMenuItem.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class RichMenuItemTest : public testing::Test
{
protected:
    RichMenuItemTest()
    {
        m_menu.addAction(QStringLiteral("plain"));
        m_item = new RichMenuItem(&m_menu, QStringLiteral("<b>square</b> m<sup>2</sup>"));
        m_menu.addAction(m_item);
        m_menu.addAction(QStringLiteral("last"));
    }

    void popUp()
    {
        m_menu.popup(QPoint(10, 10));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_menu));
    }

    QImage pictureOfItem() { return m_menu.grab(m_menu.actionGeometry(m_item)).toImage(); }

    QMenu m_menu;
    RichMenuItem* m_item;
};

} // namespace

TEST_F(RichMenuItemTest, PlainTextStandsForItElsewhere)
{
    EXPECT_EQ(m_item->text(), QStringLiteral("square m2"));
    m_item->setRichText(QStringLiteral("a &amp; <i>b</i>"));
    EXPECT_EQ(m_item->text(), QStringLiteral("a && b"));
    EXPECT_EQ(m_item->richText(), QStringLiteral("a &amp; <i>b</i>"));
}

TEST_F(RichMenuItemTest, KeysReachHighlightAndTriggerIt)
{
    QSignalSpy triggered(m_item, &QAction::triggered);
    popUp();
    const QImage before = pictureOfItem();
    QTest::keyClick(&m_menu, Qt::Key_Down);
    EXPECT_EQ(pictureOfItem(), before);
    QTest::keyClick(&m_menu, Qt::Key_Down);
    EXPECT_EQ(m_menu.activeAction(), m_item);
    const QImage active = pictureOfItem();
    EXPECT_NE(active, before);
    // Highlighted over its whole width, as plain items are.
    const QColor highlight = active.pixelColor(active.width() - 3, active.height() / 2);
    EXPECT_NE(highlight, before.pixelColor(before.width() - 3, before.height() / 2));
    QTest::keyClick(&m_menu, Qt::Key_Down);
    EXPECT_EQ(pictureOfItem(), before);
    QTest::keyClick(&m_menu, Qt::Key_Up);
    QTest::keyClick(&m_menu, Qt::Key_Return);
    EXPECT_EQ(triggered.count(), 1);
    EXPECT_FALSE(m_menu.isVisible());
}

TEST_F(RichMenuItemTest, ThePointerHighlightsAndTriggersIt)
{
    QSignalSpy triggered(m_item, &QAction::triggered);
    popUp();
    const QPoint place = m_menu.actionGeometry(m_item).center();
    // Over the widget that stands in the menu for the item.
    QTest::mouseMove(m_menu.windowHandle(), place);
    QTest::mouseMove(m_menu.windowHandle(), place + QPoint(1, 0));
    QTRY_COMPARE(m_menu.activeAction(), m_item);
    QTest::mouseClick(m_menu.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(triggered.count(), 1);
}

TEST_F(RichMenuItemTest, RichTextIsShownAsSuchAndFits)
{
    const QSize withMarkup = m_menu.sizeHint();
    m_item->setRichText(QStringLiteral("&lt;b&gt;square&lt;/b&gt; m&lt;sup&gt;2&lt;/sup&gt;"));
    EXPECT_GT(m_menu.sizeHint().width(), withMarkup.width());
    m_item->setEnabled(false);
    popUp();
    QTest::keyClick(&m_menu, Qt::Key_Down);
    QTest::keyClick(&m_menu, Qt::Key_Down);
    EXPECT_NE(m_menu.activeAction(), m_item);
}
