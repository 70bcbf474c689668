#include "zkeditor/lockPalette.h"

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkeditor/lockUICheckBox.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>
#include <gtest/gtest.h>

namespace {

class LockPaletteTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadTestKit()); }

    void SetUp() override
    {
        palette.setDocument(&document);
        palette.show();
    }

    LockUICheckBox* box(LockGroup group)
    {
        for (LockUICheckBox* each : palette.findChildren<LockUICheckBox*>()) {
            if (each->lockGroup() == group)
                return each;
        }
        return nullptr;
    }

    Qt::CheckState state(LockGroup group) { return box(group)->checkState(); }
    void click(LockGroup group)
    {
        QTest::mouseClick(box(group), Qt::LeftButton, {}, QPoint(8, box(group)->height() / 2));
    }
    void lock(ElementImpl* element, LockGroup group, bool locked = true)
    {
        run<SetUILockedCommand>(document, std::vector<Node>{Node(element)}, group, locked);
    }
    void settle() const { QTest::qWait(30); }

    DocumentImpl document;
    LockPalette palette{nullptr, "locking"};
};

using LockPaletteDeathTest = LockPaletteTest;

} // namespace

TEST_F(LockPaletteTest, LocksAllSelectedPartsInOneStep)
{
    PartImpl* a = addPart(document, "testkit/box");
    PartImpl* b = addPart(document, "testkit/box");
    for (const LockGroup group : {LockPosition, LockSize, LockOrientation, LockPropertyValues})
        EXPECT_FALSE(box(group)->isEnabled());
    lock(a, LockPosition);
    const int steps = document.undoStack()->count();
    document.setSelection({a, b});
    EXPECT_EQ(state(LockPosition), Qt::PartiallyChecked);
    EXPECT_EQ(state(LockSize), Qt::Unchecked);
    EXPECT_TRUE(box(LockOrientation)->isEnabled());
    settle();
    EXPECT_EQ(document.undoStack()->count(), steps); // showing writes nothing

    click(LockPosition);
    EXPECT_TRUE(a->isLocked(LockPosition) && b->isLocked(LockPosition));
    EXPECT_EQ(document.undoStack()->count(), steps + 1);
    click(LockPosition); // goes on and off only, before the box was refreshed as well
    EXPECT_FALSE(a->isLocked(LockPosition) || b->isLocked(LockPosition));
    click(LockPosition);
    EXPECT_TRUE(b->isLocked(LockPosition));

    document.undo();
    document.undo();
    document.undo();
    settle();
    EXPECT_EQ(state(LockPosition), Qt::PartiallyChecked);
    EXPECT_TRUE(document.canRedo()); // following an undo did not write either
    EXPECT_FALSE(b->isLocked(LockPosition));
}

TEST_F(LockPaletteTest, LockedValuesImplyEveryLock)
{
    PartImpl* part = addPart(document, "testkit/box");
    document.setSelection({part});
    click(LockPropertyValues);
    settle();
    for (const LockGroup group : {LockPosition, LockSize, LockOrientation}) {
        EXPECT_EQ(state(group), Qt::Checked);
        EXPECT_FALSE(box(group)->isEnabled());
        EXPECT_FALSE(part->isLocked(group)); // its own lock is as it was
    }
    // What can be turned again is still locked with its values.
    MessageCapture messages;
    PropertyImpl* constraint = property(part, "orientation-constraint");
    set(constraint, Value(QString("quarter")));
    EXPECT_FALSE(box(LockOrientation)->isEnabled());
    click(LockPropertyValues);
    settle();
    EXPECT_TRUE(box(LockPosition)->isEnabled());
    EXPECT_EQ(state(LockPosition), Qt::Unchecked);
}

TEST_F(LockPaletteTest, OffersOnlyLocksThatApply)
{
    PartImpl* rigid = addPart(document, "flowcharts/start");
    PartImpl* free = addPart(document, "testkit/box");
    lock(rigid, LockSize);
    lock(free, LockOrientation);
    document.setSelection({rigid, free});
    EXPECT_FALSE(rigid->isResizeable());
    EXPECT_FALSE(box(LockSize)->isEnabled());
    EXPECT_EQ(state(LockSize), Qt::Unchecked);
    EXPECT_TRUE(box(LockPosition)->isEnabled());

    document.setSelection({free});
    EXPECT_TRUE(box(LockSize)->isEnabled());
    EXPECT_TRUE(box(LockOrientation)->isEnabled());
    MessageCapture messages;
    PropertyImpl* constraint = property(free, "orientation-constraint");
    lock(free, LockOrientation, false);
    settle();
    set(constraint, Value(QString("fixed")));
    EXPECT_FALSE(box(LockOrientation)->isEnabled());
    lock(free, LockOrientation);
    settle();
    EXPECT_EQ(state(LockOrientation), Qt::Unchecked); // out of use
    set(constraint, Value(QString("free")));
    EXPECT_TRUE(box(LockOrientation)->isEnabled());
    settle();
    EXPECT_EQ(state(LockOrientation), Qt::Checked);
    EXPECT_EQ(messages.texts(QtDebugMsg), QStringList(2, "OrientationLockUICheckBox::onConstraintChanged()"));
}

TEST_F(LockPaletteTest, BurstsRefreshOnce)
{
    PartImpl* part = addPart(document, "testkit/box");
    document.setSelection({part});
    QSignalSpy refreshed(box(LockPosition), &LockUICheckBox::lockPropertiesChanged);
    for (int i = 0; i < 10; ++i)
        lock(part, LockPosition, i % 2 == 0);
    lock(part, LockPosition);
    EXPECT_EQ(state(LockPosition), Qt::Unchecked);
    settle();
    EXPECT_EQ(refreshed.count(), 1);
    EXPECT_EQ(state(LockPosition), Qt::Checked);
}

TEST_F(LockPaletteTest, HiddenPaletteCatchesUp)
{
    PartImpl* a = addPart(document, "testkit/box");
    PartImpl* b = addPart(document, "testkit/box");
    lock(b, LockSize);
    document.setSelection({a});
    palette.hide();
    document.setSelection({b});
    EXPECT_FALSE(box(LockSize)->isBound());
    palette.show();
    EXPECT_EQ(state(LockSize), Qt::Checked);
    document.setSelection({});
    EXPECT_FALSE(box(LockPosition)->isEnabled());
    EXPECT_EQ(state(LockSize), Qt::Unchecked);
}

TEST_F(LockPaletteTest, OutlivesPartsAndDocuments)
{
    PartImpl* a = addPart(document, "testkit/box");
    PartImpl* b = addPart(document, "testkit/box");
    lock(a, LockPosition);
    LockUICheckBox single(LockPosition, "Position");
    single.setDocument(&document);
    single.bindNodes({a, b});
    EXPECT_EQ(single.checkState(), Qt::PartiallyChecked);
    run<DeleteNodeCommand>(document, Node(a), Command::PushUndo);
    settle();
    EXPECT_EQ(single.checkState(), Qt::Unchecked);
    single.click();
    EXPECT_TRUE(b->isLocked(LockPosition));
    {
        DocumentImpl other;
        PartImpl* part = addPart(other, "testkit/box");
        palette.setDocument(&other);
        other.setSelection({part});
        EXPECT_TRUE(box(LockPosition)->isEnabled());
        document.setSelection({b}); // of no interest any more
        EXPECT_EQ(state(LockPosition), Qt::Unchecked);
    }
    EXPECT_FALSE(box(LockPosition)->isEnabled());
    box(LockPosition)->setEnabled(true);
    click(LockPosition);
}

TEST_F(LockPaletteTest, StaysLinear)
{
    const auto time = [this](int count) {
        std::vector<Node> nodes;
        ElementImplSet selection;
        for (int i = 0; i < count; ++i)
            selection.insert(addPart(document, "testkit/wire"));
        nodes.assign(selection.begin(), selection.end());
        QElapsedTimer timer;
        timer.start();
        document.setSelection(selection);
        click(LockPosition);
        box(LockPosition)->update();
        run<DeleteNodeCommand>(document, nodes, Command::PushUndo);
        settle();
        return std::max<qint64>(timer.elapsed(), 40);
    };
    const qint64 few = time(500);
    const qint64 many = time(5000);
    EXPECT_LT(many, 40 * few);
}

TEST_F(LockPaletteDeathTest, NeedsADocument)
{
    EXPECT_DEATH(palette.setDocument(nullptr), "ZK_ASSERT: \"doc\" in ");
}
