#include "zkeditor/widgets/hyperLink.h"

#include "tests/support/messageCapture.h"
#include "zkcore/services/openUrl.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

void releaseAt(QWidget& widget, const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseButtonRelease, position, widget.mapToGlobal(position), button, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// Catches what would be handed to the system.
class HyperLinkTest : public testing::Test
{
protected:
    void SetUp() override
    {
        setUrlOpener([this](const QUrl& url) {
            opened += url.toString();
            return true;
        });
    }
    void TearDown() override { setUrlOpener({}); }

    QStringList opened;
};

} // namespace

TEST(LinkLabelTest, ClicksAreReleasesInsideAndKeys)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* first = new LinkLabel("first", &window);
    auto* second = new LinkLabel("second", &window);
    layout->addWidget(first);
    layout->addWidget(second);
    window.show();
    QSignalSpy clicked(first, &LinkLabel::clicked);
    QTest::mousePress(first, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 0);
    releaseAt(*first, QPoint(first->width(), 0)); // just beside it
    releaseAt(*first, QPoint(0, -1));
    EXPECT_EQ(clicked.count(), 0);
    releaseAt(*first, first->rect().bottomRight());
    EXPECT_EQ(clicked.count(), 1);
    releaseAt(*first, QPoint(1, 1), Qt::RightButton);
    EXPECT_EQ(clicked.count(), 1);

    window.activateWindow();
    for (int i = 0; i < 2 && window.focusWidget() != first; ++i)
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
    ASSERT_TRUE(window.focusWidget() == first);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter, Qt::Key_A})
        QTest::keyClick(first, key);
    EXPECT_EQ(clicked.count(), 4);
}

TEST(LinkLabelTest, KeepsRoomForTheLineUnderIt)
{
    LinkLabel label("text", nullptr);
    const QSize underlined = label.sizeHint();
    EXPECT_EQ(underlined.width(), label.fontMetrics().horizontalAdvance("text"));
    EXPECT_EQ(underlined.height(), label.fontMetrics().underlinePos() + label.fontMetrics().height());
    EXPECT_TRUE(label.font().underline());
    label.setUnderlined(false);
    EXPECT_FALSE(label.font().underline());
    EXPECT_EQ(label.sizeHint(), underlined);
}

TEST_F(HyperLinkTest, OpensItsUrlWhateverItShows)
{
    HyperLink link("http://example.org/a b?x=1&copy=2", nullptr);
    EXPECT_EQ(link.text(), QString("http://example.org/a b?x=1&copy=2"));
    EXPECT_EQ(link.textFormat(), Qt::PlainText); // no copyright sign
    link.setDisplayText("<b>Help</b>");
    EXPECT_EQ(link.text(), QString("<b>Help</b>"));
    EXPECT_EQ(link.property("url").toString(), QString("http://example.org/a b?x=1&copy=2"));
    MessageCapture capture;
    QTest::mouseClick(&link, Qt::LeftButton);
    link.setProperty("url", "/tmp/a b.txt");
    EXPECT_EQ(link.text(), QString("/tmp/a b.txt"));
    QTest::mouseClick(&link, Qt::LeftButton);
    EXPECT_EQ(opened, QStringList({"http://example.org/a b?x=1&copy=2", "file:///tmp/a b.txt"}));
    EXPECT_EQ(capture.texts(QtDebugMsg),
              QStringList({"HyperLink: attempting to open url http://example.org/a b?x=1&copy=2",
                           "HyperLink: attempting to open url file:///tmp/a b.txt"}));
}

TEST_F(HyperLinkTest, WithoutUrlOnlyClicks)
{
    HyperLink link;
    link.setDisplayText("nowhere");
    QSignalSpy clicked(&link, &LinkLabel::clicked);
    MessageCapture capture;
    QTest::mouseClick(&link, Qt::LeftButton);
    link.setUrl("http://[broken");
    QTest::mouseClick(&link, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 2);
    EXPECT_TRUE(capture.isEmpty());
    EXPECT_EQ(opened, QStringList());
}
