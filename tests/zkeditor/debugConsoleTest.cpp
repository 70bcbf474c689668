#include "zkeditor/debugConsole.h"

#include "zkeditor/msgHandlers.h"

#include <QCoreApplication>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <gtest/gtest.h>

namespace {

class DebugConsoleTest : public testing::Test
{
protected:
    void SetUp() override
    {
        view->clear();
        QCoreApplication::processEvents(); // the highlighter begins its work with the event loop
    }

    QString last() const { return view->document()->lastBlock().text(); }
    // The colour's name and the number of characters that have it; nothing where no colour was set.
    std::pair<QString, int> lastColor() const
    {
        const auto formats = view->document()->lastBlock().layout()->formats();
        if (formats.isEmpty())
            return {};
        EXPECT_EQ(formats.first().start, 0);
        return {formats.first().format.foreground().color().name(), formats.first().length};
    }

    DebugConsole& console = DebugConsole::getDebugConsole();
    QTextEdit* view = console.findChild<QTextEdit*>();
};

} // namespace

TEST_F(DebugConsoleTest, LinesAreColouredByTheFirstLevelWordButForTheLastCharacter)
{
    EXPECT_EQ(&DebugConsole::getDebugConsole(), &console);
    EXPECT_FALSE(console.isVisible());
    EXPECT_TRUE(view->isReadOnly());
    const QString blue = QColor("blue").name();
    const QString orange = QColor("orange").name();
    const QString red = QColor("red").name();

    DebugConsoleMsgHandler(QtDebugMsg, {}, "one");
    EXPECT_EQ(last(), QString(" DEBUG: one"));
    EXPECT_EQ(lastColor(), std::pair(blue, 10));
    DebugConsoleMsgHandler(QtCriticalMsg, {}, "two");
    EXPECT_EQ(last(), QString(" WARNING: two"));
    EXPECT_EQ(lastColor(), std::pair(orange, 12));
    console.pushFatalMsg("three");
    EXPECT_EQ(last(), QString(" FATAL: three"));
    EXPECT_EQ(lastColor(), std::pair(red, 12));
    console.pushWarningMsg("while Debugging");
    EXPECT_EQ(lastColor().first, blue);
    console.pushFatalMsg("a warning");
    EXPECT_EQ(lastColor().first, orange);
    EXPECT_EQ(view->document()->blockCount(), 5);
}

TEST_F(DebugConsoleTest, MessagesAreTextAndOneParagraphEach)
{
    console.pushWarningMsg("<b>bold</b> & \"%1\" %2");
    EXPECT_EQ(last(), QString(" WARNING: <b>bold</b> & \"%1\" %2"));
    console.pushDebugMsg("first\nsecond");
    EXPECT_EQ(view->document()->blockCount(), 2);
    EXPECT_EQ(view->toPlainText(), QString(" WARNING: <b>bold</b> & \"%1\" %2\n DEBUG: first\nsecond"));
}
