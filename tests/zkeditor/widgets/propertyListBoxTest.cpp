#include "zkeditor/widgets/propertyListBox.h"
#include "collectionsFixture.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/proxyCommands.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/propertyChoiceModel.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QLabel>
#include <QScrollBar>
#include <QTreeView>
#include <memory>

class PropertyListBoxTest : public CollectionsTest
{
protected:
    PropertyListBox& boxOf(const char* key, const Nodes& nodes)
    {
        auto& box = place(new PropertyListBox, key);
        box.bind(&document, nodes);
        tester = std::make_unique<QAbstractItemModelTester>(box.model());
        partsTester = std::make_unique<QAbstractItemModelTester>(box.partBox()->model());
        return box;
    }
    static int rowOf(const PropertyListBox& box, NodeImpl* node, const char* key)
    {
        return box.model()->rowOf(PropertyAddress{node->instanceId(), INVALID_CID, PropertyKey::fromString(key)});
    }
    static void choose(PropertyListBox& box, int row)
    {
        const QAbstractItemModel* model = box.view()->model();
        for (int at = 0; at < model->rowCount(); ++at) {
            if (box.model()->index(row, 0).data(PropertyChoiceModel::searchRole) ==
                    model->index(at, 0).data(PropertyChoiceModel::searchRole) &&
                model->index(at, 0).data() == box.model()->index(row, 0).data())
                box.view()->setCurrentIndex(model->index(at, 0));
        }
    }

    std::unique_ptr<QAbstractItemModelTester> tester;
    std::unique_ptr<QAbstractItemModelTester> partsTester;
};

TEST_F(PropertyListBoxTest, LinksAndDetachesInOneStepEach)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    PartImpl* source = rack();
    set(property(source, "gain"), whole(8));
    auto& box = boxOf("level", {first, second});
    EXPECT_GE(rowOf(box, source, "gain"), 0);
    EXPECT_EQ(rowOf(box, source, "note"), -1);               // a text
    EXPECT_GE(rowOf(box, source->getChildAt(1), "turn"), 0); // of a subpart
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    choose(box, rowOf(box, source, "gain"));
    QTest::keyClick(box.view(), Qt::Key_Return);
    EXPECT_EQ(property(second, "level")->proxySubject(), property(source, "gain"));
    EXPECT_EQ(property(first, "level")->getValue(), whole(8));
    EXPECT_TRUE(box.linkLabel()->text().contains("Gain"));
    expectOneStepSince(before, steps);
    EXPECT_EQ(box.linkLabel()->text(), QString());
    document.redo();
    QCoreApplication::processEvents();

    const QByteArray linked = bytesOf(document);
    box.view()->setFocus();
    QTest::keyClick(box.view(), Qt::Key_Delete);
    EXPECT_FALSE(property(second, "level")->isProxy());
    EXPECT_EQ(property(second, "level")->getValue(), whole(8)); // the value last seen
    expectOneStepSince(linked, steps + 1);
}

TEST_F(PropertyListBoxTest, SaysWhyAPropertyCannotBeFollowed)
{
    PartImpl* follower = rack();
    PartImpl* chained = rack();
    run<SetProxyCommand>(document, Property(property(chained, "level")), Property(property(follower, "level")));
    auto& box = boxOf("level", {follower});
    const QByteArray before = bytesOf(document);
    const struct
    {
        NodeImpl* node;
        const char* key;
        const char* reason;
    } cases[] = {{follower, "level", "A property cannot follow itself."},
                 {chained, "level", "The property follows this one already."},
                 {chained, "picture", "This property cannot be followed."},
                 {chained, "note", "The property is of another type."}};
    for (const auto& wrong : cases) {
        box.partBox()->setCurrentIndex(box.partBox()->findData(wrong.node->instanceId()));
        Q_EMIT box.partBox()->activated(box.partBox()->currentIndex());
        const int row = rowOf(box, wrong.node, wrong.key);
        ASSERT_GE(row, 0) << wrong.key;
        EXPECT_EQ(box.model()->reasonAt(row), QString(wrong.reason));
        EXPECT_EQ(box.model()->index(row, PropertyChoiceModel::LinkColumn).data().toString(), QString(wrong.reason));
        choose(box, row);
        box.link();
        EXPECT_EQ(box.message(), QString(wrong.reason));
        EXPECT_EQ(bytesOf(document), before);
    }
}

TEST_F(PropertyListBoxTest, FollowsTheDocumentAndSearches)
{
    PartImpl* part = rack();
    auto& box = boxOf("level", {part});
    const int rows = box.model()->rowCount();
    PartImpl* added = rack();
    set(property(added, "title"), string("Needle"));
    QCoreApplication::processEvents();
    EXPECT_EQ(box.model()->rowCount(), 2 * rows);
    EXPECT_GE(box.partBox()->findText("Needle"), 0);
    set(property(added, "title"), string("Sharp needle"));
    QCoreApplication::processEvents();
    EXPECT_EQ(box.model()->index(rowOf(box, added, "gain"), PropertyChoiceModel::OwnerColumn).data().toString(),
              QString("Sharp needle"));
    EXPECT_GE(box.partBox()->findText("Sharp needle"), 0);
    set(property(added, "gain"), whole(77));
    QCoreApplication::processEvents();
    EXPECT_EQ(box.model()->index(rowOf(box, added, "gain"), PropertyChoiceModel::ValueColumn).data().toString(),
              QString("77"));
    QTest::keyClicks(box.searchField(), "needle gain");
    ASSERT_EQ(box.view()->model()->rowCount(), 1);
    QTest::keyClick(box.searchField(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Return);
    EXPECT_EQ(property(part, "level")->proxySubject(), property(added, "gain"));
    EXPECT_TRUE(box.isEnabled()); // to be able to detach
    lock(part);
    EXPECT_FALSE(box.isEnabled());
}

TEST_F(PropertyListBoxTest, StaysFluidWithManyRows)
{
    PartImpl* part = rack();
    add("collections/rack", 4000);
    QElapsedTimer clock;
    clock.start();
    auto& box = boxOf("level", {part});
    tester.reset();
    partsTester.reset();
    EXPECT_GT(box.model()->rowCount(), 10000);
    EXPECT_LT(clock.elapsed(), 3000);
    clock.restart();
    for (int i = 0; i < 10; ++i) {
        set(property(part, "gain"), whole(i));
        QCoreApplication::processEvents();
    }
    EXPECT_LT(clock.elapsed(), 3000);
}

TEST_F(PropertyListBoxTest, SeveralNodesShowWhetherTheyFollowTheSame)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    PartImpl* source = rack();
    run<SetProxyCommand>(document, Property(property(second, "level")), Property(property(source, "gain")));
    auto& box = boxOf("level", {first, second});
    const auto linkShown = [&] {
        return box.model()->index(rowOf(box, source, "gain"), PropertyChoiceModel::LinkColumn).data().toString();
    };
    EXPECT_EQ(box.linkLabel()->text(), QString("The selected parts do not follow the same."));
    EXPECT_EQ(linkShown(), QString("Possible"));
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    choose(box, rowOf(box, source, "gain"));
    QTest::keyClick(box.view(), Qt::Key_Return);
    EXPECT_TRUE(box.linkLabel()->text().contains("Gain"));
    EXPECT_EQ(linkShown(), QString("Linked"));
    expectOneStepSince(before, steps);
    EXPECT_EQ(linkShown(), QString("Possible"));

    // Only the second one follows anything.
    box.view()->setFocus();
    QTest::keyClick(box.view(), Qt::Key_Delete);
    EXPECT_FALSE(property(second, "level")->isProxy());
    EXPECT_FALSE(box.linkLabel()->isVisible());
    expectOneStepSince(before, steps);

    // What cannot follow for one of them follows for none.
    choose(box, rowOf(box, first, "level"));
    EXPECT_EQ(box.message(), QString("A property cannot follow itself."));
    QTest::keyClick(box.view(), Qt::Key_Return);
    EXPECT_EQ(bytesOf(document), before);
}

TEST_F(PropertyListBoxTest, ChoiceAndPlaceSurviveTheModel)
{
    PartImpl* part = rack();
    add("collections/rack", 300);
    auto& box = boxOf("level", {part});
    QTreeView* view = box.view();
    view->setCurrentIndex(view->model()->index(400, 0));
    view->scrollTo(view->currentIndex(), QAbstractItemView::PositionAtTop);
    const QString chosen = view->currentIndex().data(PropertyChoiceModel::searchRole).toString();
    const int place = view->verticalScrollBar()->value();
    run<DeleteNodeCommand>(document, Node(firstScene(document)->getChildAt(7)), Command::PushUndo);
    add("collections/rack");
    set(property(part, "gain"), whole(6));
    QCoreApplication::processEvents();
    EXPECT_EQ(view->currentIndex().data(PropertyChoiceModel::searchRole).toString(), chosen);
    EXPECT_NEAR(view->verticalScrollBar()->value(), place, 6);
}
