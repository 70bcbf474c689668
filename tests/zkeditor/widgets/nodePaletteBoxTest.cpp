#include "zkeditor/widgets/nodePaletteBox.h"

#include <QLabel>
#include <gtest/gtest.h>
#include <memory>

namespace {

std::unique_ptr<NodePaletteBox> makeNodeBox(ClassId id, unsigned int flags, int items)
{
    auto box = std::make_unique<NodePaletteBox>(id, flags, nullptr);
    for (int i = 0; i < items; ++i) {
        box->addItem(new QLabel, QString::number(i));
        box->showItem(i, false);
    }
    return box;
}

std::vector<int> openItems(const PaletteBox& box)
{
    std::vector<int> open;
    for (int i = 0; i < box.count(); ++i) {
        if (box.isItemOpen(i))
            open.push_back(i);
    }
    return open;
}

} // namespace

TEST(NodePaletteBoxTest, RemembersOpenItemsForEachClass)
{
    const ClassId id = getCidForString("testing/remembered");
    const ClassId other = getCidForString("testing/other");
    auto box = makeNodeBox(id, PaletteBox::PlainStyle, 3);
    EXPECT_FALSE(box->restoreOpenItemsFor(id));
    box->showItem(0, true);
    box->showItem(2, true);
    box.reset();

    box = makeNodeBox(id, PaletteBox::PlainStyle, 4);
    EXPECT_FALSE(box->restoreOpenItemsFor(other));
    box->showItem(3, true);
    EXPECT_TRUE(box->restoreOpenItemsFor(id));
    EXPECT_EQ(openItems(*box), std::vector<int>({0, 2, 3})); // nothing is closed
    box->setNodeId(INVALID_CID);
    box.reset(); // stores nothing

    const auto exclusive = makeNodeBox(other, PaletteBox::PlainStyle | PaletteBox::Exclusive, 3);
    EXPECT_TRUE(exclusive->restoreOpenItemsFor(id));
    EXPECT_EQ(openItems(*exclusive), std::vector<int>({2}));
    const auto small = makeNodeBox(other, PaletteBox::PlainStyle, 2);
    EXPECT_TRUE(small->restoreOpenItemsFor(id));
    EXPECT_EQ(openItems(*small), std::vector<int>({0}));

    // What is stored replaces what was, also when nothing is open any more.
    auto closed = makeNodeBox(id, PaletteBox::PlainStyle, 3);
    closed->storeOpenItems();
    EXPECT_FALSE(closed->restoreOpenItemsFor(id));
}

TEST(NodePaletteBoxDeathTest, NoClassHasNoItems)
{
    NodePaletteBox box(PaletteBox::PlainStyle);
    EXPECT_DEATH(box.restoreOpenItemsFor(INVALID_CID), "ZK_ASSERT: \"nodeId != INVALID_CID\" in ");
}
