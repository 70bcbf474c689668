#include "zkeditor/debugPalette.h"

#include "tests/support/testDocument.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/services/statistic.h"
#include "zkcore/storage/commandLog.h"
#include "zkeditor/commandLogPane.h"
#include "zkeditor/debugConsole.h"
#include "zkeditor/messagesPane.h"
#include "zkeditor/perfMeter.h"
#include "zkeditor/propertyTable.h"
#include "zkeditor/statisticsPane.h"
#include "zkeditor/widgets/paletteBox.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>
#include <memory>

namespace {

class DebugPaletteTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadTestKit()); }
    void SetUp() override
    {
        palette.setDocument(&document);
        palette.resize(400, 900);
        palette.show();
    }

    template <typename Pane> Pane* openPane()
    {
        auto* pane = palette.findChild<Pane*>();
        palette.findChild<PaletteBox*>()->showItem(pane, true);
        return pane;
    }
    QStringList commandLines()
    {
        return palette.findChild<CommandLogPane*>()->findChild<QPlainTextEdit*>()->toPlainText().split(
            u'\n', Qt::SkipEmptyParts);
    }

    DocumentImpl document;
    DebugPalette palette;
    PropertyTable* table = palette.findChild<PropertyTable*>();
};

} // namespace

TEST_F(DebugPaletteTest, ShowsWhatIsSelectedWhileItIsOnView)
{
    PartImpl* box = addPart(document, "testkit/box");
    PartImpl* lamp = addPart(document, "testkit/lamp");
    document.setSelection({box});
    EXPECT_EQ(table->node(), Node(box));
    palette.hide();
    document.setSelection({lamp});
    EXPECT_EQ(table->node(), Node(box)) << "a hidden palette does not work";
    palette.show();
    EXPECT_EQ(table->node(), Node(lamp));
    run<DeleteNodeCommand>(document, Node(lamp), Command::PushUndo);
    EXPECT_FALSE(table->node().valid());
    palette.setDocument(nullptr);
    document.setSelection({box});
    EXPECT_FALSE(table->node().valid());
}

TEST_F(DebugPaletteTest, ListsCommandsThatWorkedAndThatFailedAndUndo)
{
    PartImpl* box = addPart(document, "testkit/box");
    openPane<CommandLogPane>();
    run<DeleteNodeCommand>(document, Node(document.getModel()), Command::PushUndo);
    set(property(box, "count"), Value(5));
    document.undo();
    EXPECT_TRUE(QTest::qWaitFor([this] { return commandLines().size() == 4; }));
    EXPECT_TRUE(commandLines().at(1).contains(QStringLiteral("cannot be deleted")))
        << commandLines().at(1).toStdString();
    EXPECT_TRUE(commandLines().at(3).endsWith(QStringLiteral(" undo")));
}

TEST_F(DebugPaletteTest, RecordsASessionThatCanBeDoneAgain)
{
    auto* log = openPane<CommandLogPane>();
    auto recorded = std::make_unique<DocumentImpl>();
    palette.setDocument(recorded.get());
    log->setRecording(true);
    set(property(addPart(*recorded, "testkit/box"), "count"), Value(5));
    DocumentImpl again;
    QString error;
    ASSERT_TRUE(CommandLog::replay(log->recording(), &again, error)) << error.toStdString();
    EXPECT_EQ(bytesOf(again), bytesOf(*recorded));
    recorded.reset(); // while it is recorded
    EXPECT_TRUE(log->recording().contains("set-value"));
    palette.setDocument(&document);
    addPart(document, "testkit/box");
}

TEST_F(DebugPaletteTest, StatisticsFollowWhatIsMeasured)
{
    auto* pane = openPane<StatisticsPane>();
    auto* names = pane->findChild<QTreeWidget*>();
    const auto samples = [names] {
        const auto found = names->findItems(QStringLiteral("commands (ms)"), Qt::MatchExactly);
        return found.isEmpty() ? -1 : found.first()->text(5).toInt();
    };
    Statistic::get(QStringLiteral("commands")).reset();
    addPart(document, "testkit/box");
    EXPECT_TRUE(QTest::qWaitFor([&] { return samples() == 1; }));
    addPart(document, "testkit/box");
    EXPECT_TRUE(QTest::qWaitFor([&] { return samples() == 2; }));
}

TEST_F(DebugPaletteTest, TheMeterMeasuresWhileItIsOnView)
{
    auto* meter = openPane<PerfMeter>();
    Statistic& turns = Statistic::get(QStringLiteral("event loop turns"));
    turns.reset();
    ASSERT_TRUE(QTest::qWaitFor([&] { return turns.count() > 0; }));
    QElapsedTimer busy;
    for (busy.start(); busy.elapsed() < 250;)
        continue;
    QTest::qWait(1);
    EXPECT_GT(turns.max(), 100);
    meter->hide();
    const auto hidden = turns.count();
    QTest::qWait(150);
    EXPECT_EQ(turns.count(), hidden);
}

TEST_F(DebugPaletteTest, ShowsTheMessagesOfTheConsoleFromBeforeAndAfter)
{
    const DebugConsole& console = DebugConsole::getDebugConsole();
    console.pushWarningMsg(QStringLiteral("before <b>"));
    const auto* text = openPane<MessagesPane>()->findChild<QPlainTextEdit*>();
    EXPECT_TRUE(text->toPlainText().endsWith(QStringLiteral(" WARNING: before <b>")));
    console.pushDebugMsg(QStringLiteral("after"));
    EXPECT_TRUE(text->toPlainText().endsWith(QStringLiteral(" WARNING: before <b>\n DEBUG: after")));
}
