#include "zkeditor/propertyTable.h"

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/proxyCommands.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/values/formatter.h"
#include "zkeditor/propertyTableModel.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using Column = PropertyTableModel::Column;

class PropertyTableTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadTestKit()); }
    void SetUp() override
    {
        box = addPart(document, "testkit/box");
        table.setNode(Node(box));
        table.show();
    }

    /// A cell of the row with that key, as it is on the screen; null when there is no such row.
    QString cell(const char* key, Column column) const
    {
        const QAbstractItemModel* model = view->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row, Column::KeyColumn).data().toString() == QLatin1String(key))
                return model->index(row, column).data().toString();
        }
        return {};
    }

    DocumentImpl document;
    PartImpl* box = nullptr;
    PropertyTable table;
    QTableView* view = table.findChild<QTableView*>();
    QLineEdit* filter = table.findChild<QLineEdit*>();
    QAbstractItemModelTester tester{table.findChild<PropertyTableModel*>(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal};
    QAbstractItemModelTester sortedTester{view->model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(PropertyTableTest, FollowsValuesUnitsFlagsAndTargets)
{
    EXPECT_EQ(view->model()->rowCount(), static_cast<int>(box->propertyKeys().size()));
    EXPECT_EQ(cell("length", Column::ValueColumn), QStringLiteral("20"));
    EXPECT_EQ(cell("length", Column::UnitColumn), QStringLiteral("mm"));
    EXPECT_EQ(cell("length", Column::TypeColumn), QStringLiteral("double"));
    EXPECT_EQ(cell("length", Column::FlagsColumn), QStringLiteral("proxy-target mutable-proxy"));

    PropertyImpl* length = property(box, "length");
    set(length, Value(0.05));
    auto* formatter = dynamic_cast<NumericalFormatter*>(length->getFormatter());
    ASSERT_TRUE(formatter->setCurrentUnit(Unit::fromText(QStringLiteral("cm"))));
    EXPECT_EQ(cell("length", Column::ValueColumn) + cell("length", Column::UnitColumn), QStringLiteral("5cm"));

    PartImpl* other = addPart(document, "testkit/box");
    run<SetProxyCommand>(document, Property(property(box, "count")), Property(property(other, "count")));
    EXPECT_EQ(cell("count", Column::TargetColumn),
              QStringLiteral("%1 [%2] count").arg(other->displayName()).arg(other->instanceId()));
    set(property(other, "count"), Value(7));
    EXPECT_EQ(cell("count", Column::ValueColumn), QStringLiteral("7"));
    property(box, "name")->setReadOnly(true);
    EXPECT_EQ(cell("name", Column::FlagsColumn), QStringLiteral("read-only proxy-target"));
}

TEST_F(PropertyTableTest, ShowsTheDomainsOfASceneAndEmptiesItselfWithItsNode)
{
    table.setNode(Node(firstScene(document)));
    EXPECT_EQ(cell("testkit/* speed", Column::ValueColumn), QStringLiteral("Normal"));
    table.setNode(Node(box));
    run<DeleteNodeCommand>(document, Node(box), Command::PushUndo);
    EXPECT_EQ(view->model()->rowCount(), 0);
    EXPECT_FALSE(table.node().valid());
    table.setNode(Node());
}

TEST_F(PropertyTableTest, FiltersWhileTypingAndCopiesWhatIsSelected)
{
    QTest::keyClicks(filter, QStringLiteral("LENG"));
    EXPECT_EQ(view->model()->rowCount(), 1);
    set(property(box, "name"), Value(QStringLiteral("the length of it")));
    EXPECT_EQ(view->model()->rowCount(), 2) << "rows come when they begin to match";
    view->selectRow(0);
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("Key\tLabel\tType\tValue\tUnit\tFlags\tFollows\n"
                             "length\tLength\tdouble\t20\tmm\tproxy-target mutable-proxy\t\n"));
    view->clearSelection();
    table.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count(u'\n'), 3);
}
