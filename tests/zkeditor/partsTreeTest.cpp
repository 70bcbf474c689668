#include "zkeditor/partsTree.h"

#include "tests/support/testDocument.h"
#include "zkcore/storage/addPartDrag.h"
#include "zkeditor/partsModel.h"

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

class PartsTreeTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadTestKit()); }
    void SetUp() override
    {
        tree.resize(300, 500);
        tree.show();
        tree.activateWindow();
        field->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tree));
    }

    QStringList labels(const QModelIndex& parent = QModelIndex()) const
    {
        QStringList texts;
        for (int row = 0; row < shown->rowCount(parent); ++row)
            texts.append(shown->index(row, 0, parent).data().toString());
        return texts;
    }
    QModelIndex group(const char* label) const
    {
        const auto found =
            shown->match(shown->index(0, 0), Qt::DisplayRole, QString::fromLatin1(label), 1, Qt::MatchExactly);
        return found.isEmpty() ? QModelIndex() : found.first();
    }
    static QString classOf(const QSignalSpy& spy) { return findStringForCid(spy.last().first().toUInt()); }
    void type(const char* text) { QTest::keyClicks(field, QString::fromLatin1(text)); }

    DocumentImpl document;
    PartsTree tree{&document};
    QLineEdit* field = tree.findChild<QLineEdit*>();
    QTreeView* view = tree.findChild<QTreeView*>();
    QAbstractItemModel* shown = view->model();
    QSignalSpy chosen{&tree, &PartsTree::partChosen};
    QAbstractItemModelTester modelTester{tree.findChild<PartsModel*>(),
                                         QAbstractItemModelTester::FailureReportingMode::Fatal};
    QAbstractItemModelTester filterTester{shown, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(PartsTreeTest, OffersTheClassesOfThePackagesByGroupAndLabel)
{
    QStringList groups;
    for (const PartsTreeStructure::Folder& folder : document.getPartsTreeStructure().folders)
        groups.append(folder.label);
    EXPECT_EQ(labels(), groups);
    QStringList tested = labels(group("Test"));
    EXPECT_TRUE(tested.contains(QStringLiteral("Lamp")));
    EXPECT_FALSE(tested.contains(QStringLiteral("Base"))) << "abstract classes are not offered";
    EXPECT_TRUE(std::is_sorted(tested.begin(), tested.end()));
    const QModelIndex led = shown->index(0, 0, group("Outputs"));
    EXPECT_FALSE(led.data(Qt::DecorationRole).value<QIcon>().isNull());
    PartsTree withoutDocument;
    EXPECT_EQ(withoutDocument.findChild<QTreeView*>()->model()->rowCount(), 0);
}

TEST_F(PartsTreeTest, WorksByKeyboardAlone)
{
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 0) << "nothing was searched for";
    type("tESt la");
    EXPECT_EQ(labels(), QStringList("Test"));
    EXPECT_EQ(labels(group("Test")), QStringList("Lamp"));
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(classOf(chosen), QStringLiteral("testkit/lamp"));

    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), QString());
    type("testkit");
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_TRUE(view->hasFocus());
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 2);
    EXPECT_EQ(classOf(chosen), QStringLiteral("testkit/wire"));
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(view, Qt::Key_Up);
    EXPECT_TRUE(field->hasFocus());
    type(" nothing");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 2);
}

TEST_F(PartsTreeTest, AGroupStaysClosedThroughASearchAndADoubleClickChooses)
{
    view->collapse(group("Test"));
    type("lamp");
    EXPECT_TRUE(view->isExpanded(group("Test")));
    const QModelIndex lamp = shown->index(0, 0, group("Test"));
    const QPoint place = view->visualRect(lamp).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(chosen.count(), 0);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(classOf(chosen), QStringLiteral("testkit/lamp"));
    field->clear();
    EXPECT_FALSE(view->isExpanded(group("Test")));
    EXPECT_TRUE(view->isExpanded(group("Outputs")));
}

TEST_F(PartsTreeTest, CustomPartsAppearAtOnceWhereTheyBelong)
{
    PartImpl* lamp = addPart(document, "testkit/lamp");
    ASSERT_TRUE(document.addCustomPartDefinition(getCidForString("custom/alarm"), lamp, QStringLiteral("Kettle")));
    EXPECT_EQ(labels(group("Test")), QStringList({"Box", "Kettle", "Lamp", "Wire"}));
    type("ett");
    EXPECT_EQ(labels(group("Test")), QStringList("Kettle"));
    type("ering");
    EXPECT_EQ(labels(), QStringList());
    ASSERT_TRUE(document.addCustomPartDefinition(getCidForString("custom/alarm2"), lamp, QStringLiteral("Bettering")));
    EXPECT_EQ(labels(group("Test")), QStringList("Bettering"));
}

TEST_F(PartsTreeTest, ADragCarriesAPartOfTheClass)
{
    const int row = static_cast<int>(labels(group("Test")).indexOf(QStringLiteral("Box")));
    const QModelIndex box = shown->index(row, 0, group("Test"));
    view->scrollTo(box);
    const QPoint from = view->visualRect(box).center();
    const auto moveTo = [&](const QPoint& place) {
        QMouseEvent move(QEvent::MouseMove, QPointF(place), view->viewport()->mapToGlobal(QPointF(place)), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(view->viewport(), &move);
    };
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, from);
    moveTo(from + QPoint(0, 2));
    moveTo(from + QPoint(60, 0));
    // The platform of the tests ends every drag at once; what was dragged goes with the event loop.
    const auto* drag = tree.findChild<AddPartDrag*>();
    ASSERT_TRUE(drag);
    std::vector<NodeSnapshot> dragged;
    ASSERT_TRUE(AddPartDrag::decode(drag->mimeData(), *document.getNodeDb(), dragged));
    ASSERT_EQ(dragged.size(), 1u);
    EXPECT_EQ(findStringForCid(dragged.front().cid), QStringLiteral("testkit/box"));
}
