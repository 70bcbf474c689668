#include "zkeditor/widgets/valueMapListBox.h"
#include "collectionsFixture.h"
#include "zkeditor/widgets/valueMapModel.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <QTreeView>
#include <memory>

class ValueMapListBoxTest : public CollectionsTest
{
protected:
    ValueMapListBox& tableOf(const Nodes& nodes)
    {
        auto& box = place(new ValueMapListBox, "table");
        box.bind(&document, nodes);
        tester = std::make_unique<QAbstractItemModelTester>(box.model());
        sortedTester = std::make_unique<QAbstractItemModelTester>(box.view()->model());
        return box;
    }
    static QStringList shown(const ValueMapListBox& box)
    {
        QStringList rows;
        const QAbstractItemModel* model = box.view()->model();
        for (int row = 0; row < model->rowCount(); ++row)
            rows.append(model->index(row, 0).data().toString() + '=' + model->index(row, 1).data().toString());
        return rows;
    }
    void edit(ValueMapListBox& box, int row, int column, const QString& text)
    {
        box.view()->setCurrentIndex(box.view()->model()->index(row, column));
        press(box, Qt::Key_F2);
        typeInPlace(box.view(), text);
    }
    static void press(ValueMapListBox& box, Qt::Key key)
    {
        box.view()->setFocus();
        QTest::keyClick(box.view(), key);
    }
    static Value map(std::initializer_list<std::pair<const QString, Value>> entries)
    {
        return Value(ValueMap(entries));
    }

    std::unique_ptr<QAbstractItemModelTester> tester;
    std::unique_ptr<QAbstractItemModelTester> sortedTester;
};

TEST_F(ValueMapListBoxTest, EachOperationIsOneStep)
{
    PartImpl* part = rack();
    set(property(part, "table"), map({{"b", whole(2)}, {"a", string("x")}, {"b", whole(10)}}));
    auto& box = tableOf({part});
    EXPECT_EQ(shown(box), QStringList({"a=x", "b=2", "b=10"}));
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();

    edit(box, 1, 1, "1+2*3");
    EXPECT_EQ(shown(box), QStringList({"a=x", "b=7", "b=10"})); // the other one of that name stays
    expectOneStepSince(before, steps);

    edit(box, 2, 0, "c");
    EXPECT_EQ(property(part, "table")->getValue(), map({{"a", string("x")}, {"b", whole(2)}, {"c", whole(10)}}));
    EXPECT_EQ(box.view()->currentIndex().row(), 2);
    expectOneStepSince(before, steps);
    EXPECT_TRUE(box.view()->selectionModel()->isRowSelected(2)); // under the old key again

    edit(box, 0, 0, "b"); // a third of that name
    EXPECT_EQ(property(part, "table")->getValue(), map({{"b", string("x")}, {"b", whole(2)}, {"b", whole(10)}}));
    expectOneStepSince(before, steps);

    box.view()->setCurrentIndex(box.view()->model()->index(1, 0));
    press(box, Qt::Key_Delete);
    EXPECT_EQ(shown(box), QStringList({"a=x", "b=10"}));
    EXPECT_EQ(box.view()->currentIndex().row(), 1);
    expectOneStepSince(before, steps);

    box.view()->setCurrentIndex(box.view()->model()->index(1, 0));
    press(box, Qt::Key_Insert);
    EXPECT_EQ(box.model()->rowCount(), 4);
    typeInPlace(box.view(), "new", Qt::Key_Escape);
    EXPECT_EQ(shown(box), QStringList({"a=x", "b=2", "b=10", "key=0"})); // of the kind of the selected entry
    expectOneStepSince(before, steps);
}

TEST_F(ValueMapListBoxTest, WhatCannotStandThereIsRefusedWithTheReason)
{
    PartImpl* part = rack();
    set(property(part, "table"), map({{"n", whole(2)}, {"p", Value(zk::Point{1, 2})}}));
    auto& box = tableOf({part});
    const QByteArray before = bytesOf(document);
    const struct
    {
        int row, column;
        const char* text;
        const char* reason;
    } cases[] = {{0, 0, " ", "The key must not be empty."},
                 {0, 1, "many", "This text does not stand for a value of the kind \"Whole number\"."},
                 {1, 1, "1", "This text does not stand for a value of the kind \"Point\"."}};
    for (const auto& wrong : cases) {
        edit(box, wrong.row, wrong.column, wrong.text);
        EXPECT_EQ(box.message(), QString(wrong.reason));
        EXPECT_EQ(bytesOf(document), before);
        press(box, Qt::Key_Escape);
    }
}

TEST_F(ValueMapListBoxTest, KindsAreChosenAndConvertWhatCanBeConverted)
{
    PartImpl* part = rack();
    set(property(part, "table"), map({{"n", string("12")}}));
    auto& box = tableOf({part});
    const auto choose = [&](const char* kind) {
        box.view()->setCurrentIndex(box.view()->model()->index(0, 2));
        press(box, Qt::Key_F2);
        auto* choices = box.view()->findChild<QComboBox*>();
        ASSERT_TRUE(choices);
        const int index = choices->findText(kind);
        choices->setCurrentIndex(index);
        Q_EMIT choices->activated(index);
        settle();
    };
    choose("Whole number");
    EXPECT_EQ(property(part, "table")->getValue(), map({{"n", whole(12)}}));
    choose("Yes or no");
    EXPECT_EQ(property(part, "table")->getValue(), map({{"n", boolean(true)}}));
    choose("Text");
    EXPECT_EQ(property(part, "table")->getValue(), map({{"n", string("true")}}));
    choose("Colour");
    EXPECT_EQ(property(part, "table")->getValue(), map({{"n", Value(QColor(Qt::black))}}));
}

TEST_F(ValueMapListBoxTest, NumbersAreSortedByTheirSizeAndBeforeTexts)
{
    PartImpl* part = rack();
    set(property(part, "table"), map({{"a", string("3 cups")},
                                      {"b", whole(10)},
                                      {"c", Value(true)},
                                      {"d", Value(2.5)},
                                      {"e", string("10")},
                                      {"f", whole(3)}}));
    auto& box = tableOf({part});
    box.view()->sortByColumn(ValueMapModel::ValueColumn, Qt::AscendingOrder);
    EXPECT_EQ(shown(box), QStringList({"d=2.5", "f=3", "b=10", "e=10", "a=3 cups", "c=true"}));
    box.view()->sortByColumn(ValueMapModel::ValueColumn, Qt::DescendingOrder);
    EXPECT_EQ(shown(box), QStringList({"c=true", "a=3 cups", "e=10", "b=10", "f=3", "d=2.5"}));
}

TEST_F(ValueMapListBoxTest, SeveralNodes)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    set(property(first, "table"), map({{"a", whole(1)}}));
    auto& box = tableOf({first, second});
    EXPECT_TRUE(box.showsNoValue());
    EXPECT_EQ(box.model()->rowCount(), 0);
    press(box, Qt::Key_Insert);
    EXPECT_FALSE(box.showsNoValue());
    EXPECT_EQ(property(first, "table")->getValue(), property(second, "table")->getValue());
    EXPECT_EQ(property(first, "table")->getValue().toValueMap().size(), 1u);
    lock(second);
    EXPECT_FALSE(box.isEnabled());
}

TEST_F(ValueMapListBoxTest, TypingSelectionAndPlaceSurviveTheModel)
{
    PartImpl* part = rack();
    ValueMap many;
    for (int i = 0; i < 10000; ++i)
        many.emplace(QStringLiteral("k%1").arg(i, 5, 10, QLatin1Char('0')), Value(i));
    set(property(part, "table"), Value(many));
    auto& box = tableOf({part});
    tester.reset();
    sortedTester.reset();
    box.view()->header()->setSortIndicator(ValueMapModel::ValueColumn, Qt::DescendingOrder);
    EXPECT_EQ(box.view()->model()->index(0, 0).data().toString(), QString("k09999"));
    box.view()->setCurrentIndex(box.view()->model()->index(4000, 1));
    box.view()->scrollTo(box.view()->currentIndex(), QAbstractItemView::PositionAtTop);
    press(box, Qt::Key_F2);
    auto* edit = box.view()->findChild<QLineEdit*>();
    ASSERT_TRUE(edit);
    QTest::keyClicks(edit, "77");
    many.erase("k09000");
    many.find("k00003")->second = Value(123456);
    set(property(part, "table"), Value(many));
    EXPECT_EQ(box.view()->currentIndex().siblingAtColumn(0).data().toString(), QString("k05999"));
    ASSERT_EQ(box.view()->findChild<QLineEdit*>(), edit);
    EXPECT_EQ(edit->text(), QString("77"));
    EXPECT_NEAR(box.view()->verticalScrollBar()->value(), 4000, 5);
    QTest::keyClick(edit, Qt::Key_Return);
    settle();
    many.find("k05999")->second = Value(77);
    EXPECT_EQ(property(part, "table")->getValue(), Value(many));
}

TEST_F(ValueMapListBoxTest, EveryCellIsReachedByKeys)
{
    PartImpl* part = rack();
    set(property(part, "table"), map({{"a", whole(1)}, {"b", whole(2)}}));
    auto& box = tableOf({part});
    box.view()->setCurrentIndex(box.view()->model()->index(0, 0));
    press(box, Qt::Key_Right);
    press(box, Qt::Key_F2);
    typeInPlace(box.view(), "5");
    EXPECT_EQ(shown(box), QStringList({"a=5", "b=2"}));

    // Tab takes the text and goes on, also where the row finds another place for its new key.
    press(box, Qt::Key_Left);
    press(box, Qt::Key_F2);
    typeInPlace(box.view(), "c", Qt::Key_Tab);
    EXPECT_EQ(shown(box), QStringList({"b=2", "c=5"}));
    typeInPlace(box.view(), "6", Qt::Key_Return);
    EXPECT_EQ(shown(box), QStringList({"b=2", "c=6"}));

    window.setLayoutDirection(Qt::RightToLeft);
    press(box, Qt::Key_Right);
    EXPECT_EQ(box.view()->currentIndex().column(), int(ValueMapModel::KeyColumn));
    box.sortByCurrentColumn();
    EXPECT_EQ(shown(box), QStringList({"c=6", "b=2"}));
    press(box, Qt::Key_Left);
    box.sortByCurrentColumn();
    EXPECT_EQ(shown(box), QStringList({"b=2", "c=6"}));
}
