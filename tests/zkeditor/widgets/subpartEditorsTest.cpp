#include "collectionsFixture.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/setNodeIndexCommand.h"
#include "zkeditor/widgets/observerGroupBox.h"
#include "zkeditor/widgets/observerLineEdit.h"
#include "zkeditor/widgets/readableColors.h"
#include "zkeditor/widgets/subpartCombobox.h"
#include "zkeditor/widgets/subpartListView.h"
#include "zkeditor/widgets/subpartModel.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeView>
#include <memory>

namespace {

QStringList itemsOf(const QComboBox& box)
{
    QStringList items;
    for (int i = 0; i < box.count(); ++i)
        items.append(box.itemText(i));
    return items;
}

QStringList rowsOf(const SubpartListView& list)
{
    QStringList rows;
    for (const SubpartRow& row : list.model()->rows())
        rows.append(row.label);
    return rows;
}

void press(SubpartListView& list, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    list.view()->setFocus();
    QTest::keyClick(list.view(), key, modifiers);
    QCoreApplication::processEvents();
}

} // namespace

class SubpartEditorsTest : public CollectionsTest
{
protected:
    SubpartListView& listOf(const char* roles, const Nodes& nodes)
    {
        auto& list = placeAs(new SubpartListView, "list");
        list.setSubpart(roles);
        list.bind(&document, nodes);
        tester = std::make_unique<QAbstractItemModelTester>(list.model());
        return list;
    }

    std::unique_ptr<QAbstractItemModelTester> tester;
};

TEST_F(SubpartEditorsTest, ComboFollowsTheSubparts)
{
    PartImpl* part = rack();
    auto& combo = placeAs(new SubpartComboBox, "combo");
    combo.setSubpart("pins");
    QSignalSpy chosen(&combo, &SubpartComboBox::selectedSubpartChanged);
    combo.bind(&document, {part});
    EXPECT_EQ(itemsOf(combo), QStringList({"left", "right"}));
    EXPECT_EQ(chosen.size(), 1);
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(idOf(combo.selectedSubpart().impl()), QString("right"));
    EXPECT_EQ(chosen.size(), 2);

    // The choice stays with its subpart, wherever that goes and whatever it is called.
    NodeImpl* right = combo.selectedSubpart().impl();
    run<SetNodeIndexCommand>(document, Node(right), 0u);
    set(property(right, "id"), string("first"));
    run<AddSubpartCommand>(document, Node(part), getCidForString("collections/pin"));
    QCoreApplication::processEvents();
    EXPECT_EQ(itemsOf(combo), QStringList({"first", "left", "Pin"}));
    EXPECT_EQ(combo.currentIndex(), 0);
    EXPECT_EQ(combo.selectedSubpart(), Node(right));
    EXPECT_EQ(chosen.size(), 2);

    NodeImpl* added = part->getChildAt(3);
    EXPECT_TRUE(combo.selectSubpart(Node(added)));
    EXPECT_EQ(chosen.size(), 3);
    run<DeleteNodeCommand>(document, Node(added), Command::PushUndo);
    QCoreApplication::processEvents();
    EXPECT_EQ(chosen.size(), 4);
    EXPECT_TRUE(combo.selectedSubpart().valid());
    EXPECT_FALSE(combo.selectSubpart(Node(part)));
    combo.unbind();
    EXPECT_EQ(combo.count(), 0);
    EXPECT_FALSE(combo.isEnabled());
}

TEST_F(SubpartEditorsTest, ComboBindsTheOthersInItsBox)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    auto* box = new ObserverGroupBox;
    auto* column = new QVBoxLayout(box);
    auto* polarity = new ObserverLineEdit;
    polarity->setModelProperty("polarity");
    column->addWidget(polarity); // before the combo on purpose
    auto* combo = new SubpartComboBox;
    column->addWidget(combo);
    window.layout()->addWidget(box);
    show();
    box->bind(&document, {first, second});
    EXPECT_EQ(itemsOf(*combo), QStringList({"left", "dial", "right"}));
    set(property(first->getChildAt(2), "polarity"), string("plus"));

    QTest::keyClick(combo, Qt::Key_End);
    EXPECT_EQ(polarity->text(), QString()); // differs
    EXPECT_TRUE(polarity->isEnabled());
    QTest::keyClicks(polarity, "minus");
    QTest::keyClick(polarity, Qt::Key_Return);
    EXPECT_EQ(text(first->getChildAt(2), "polarity"), QString("minus"));
    EXPECT_EQ(text(second->getChildAt(2), "polarity"), QString("minus"));
    EXPECT_EQ(text(first->getChildAt(0), "polarity"), QString("none"));

    // A dial has no polarity.
    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_FALSE(polarity->isEnabled());
    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_TRUE(polarity->isEnabled());
    EXPECT_EQ(polarity->text(), QString("none"));

    // What was typed belongs to the subpart for which it was typed.
    QTest::keyClicks(polarity, "x");
    combo->setCurrentIndex(2);
    EXPECT_EQ(text(first->getChildAt(0), "polarity"), QString("xnone"));
    EXPECT_EQ(polarity->text(), QString("minus"));
    box->unbind();
    combo->setCurrentIndex(-1);
}

TEST_F(SubpartEditorsTest, EachOperationIsOneStep)
{
    PartImpl* part = rack();
    PartImpl* second = rack();
    auto& list = listOf("pins", {part, second});
    EXPECT_EQ(rowsOf(list), QStringList({"left", "right"}));
    const int steps = undoSteps();
    const QByteArray before = bytesOf(document);

    press(list, Qt::Key_Insert);
    EXPECT_EQ(subpartIds(part), QStringList({"left", "dial", "right", "pin1"}));
    EXPECT_EQ(subpartIds(second), subpartIds(part));
    EXPECT_EQ(idOf(list.selectedSubpart().impl()), QString("pin1"));
    expectOneStepSince(before, steps);
    EXPECT_EQ(idOf(list.selectedSubpart().impl()), QString("right")); // its neighbour, now that it is gone

    list.view()->setCurrentIndex(list.model()->index(0, 0));
    press(list, Qt::Key_F2);
    typeInPlace(list.view(), "west");
    EXPECT_EQ(subpartIds(part), QStringList({"west", "dial", "right"}));
    EXPECT_EQ(subpartIds(second), subpartIds(part));
    expectOneStepSince(before, steps);

    press(list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(subpartIds(part), QStringList({"dial", "right", "left"}));
    EXPECT_EQ(subpartIds(second), subpartIds(part));
    EXPECT_EQ(idOf(list.selectedSubpart().impl()), QString("left"));
    expectOneStepSince(before, steps);

    press(list, Qt::Key_Insert);
    const QByteArray added = bytesOf(document);
    press(list, Qt::Key_Delete);
    EXPECT_EQ(subpartIds(part), QStringList({"left", "dial", "right"}));
    expectOneStepSince(added, steps + 1);
}

TEST_F(SubpartEditorsTest, NamesThatAreTakenOrEmptyAreRefused)
{
    PartImpl* part = rack();
    auto& list = listOf("pins", {part});
    const QByteArray before = bytesOf(document);
    list.view()->setCurrentIndex(list.model()->index(0, 0));
    press(list, Qt::Key_F2);
    auto* edit = list.view()->findChild<QLineEdit*>();
    ASSERT_TRUE(edit);
    edit->selectAll();
    QTest::keyClicks(edit, "right");
    EXPECT_EQ(edit->palette().color(QPalette::Text), readableColors::error(edit->palette(), QPalette::Base));
    EXPECT_EQ(edit->toolTip(), QString("Another subpart has this id."));
    QTest::keyClick(edit, Qt::Key_Return);
    settle();
    EXPECT_EQ(list.message(), QString("Another subpart has this id."));
    EXPECT_EQ(bytesOf(document), before);
}

TEST_F(SubpartEditorsTest, WhatIsNotAllowedIsNotOffered)
{
    PartImpl* part = rack();
    auto& list = listOf("controls", {part});
    const auto button = [&](const char* text) {
        for (const QAction* action : list.actions()) {
            if (action->text() == QLatin1String(text))
                return action;
        }
        return static_cast<const QAction*>(nullptr);
    };
    EXPECT_TRUE(button("Add")->isEnabled());
    EXPECT_FALSE(button("Remove")->isEnabled()); // every rack has its dial
    EXPECT_FALSE(button("Move up")->isEnabled());

    // Two classes: a menu asks which.
    press(list, Qt::Key_Insert);
    QMenu* menu = list.findChild<QMenu*>();
    ASSERT_TRUE(menu->isVisible());
    EXPECT_EQ(menu->actions().size(), 2);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(rowsOf(list), QStringList({"dial", "lever1"}));
    run<AddSubpartCommand>(document, Node(part), getCidForString("collections/dial"));
    QCoreApplication::processEvents();
    const int steps = undoSteps();
    press(list, Qt::Key_Insert);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(undoSteps(), steps); // three are all that it can have
    EXPECT_FALSE(list.message().isEmpty());

    lock(part);
    list.bind(&document, {part});
    for (const char* text : {"Add", "Remove", "Move up", "Move down"})
        EXPECT_FALSE(button(text)->isEnabled()) << text;
    press(list, Qt::Key_F2);
    EXPECT_FALSE(list.view()->findChild<QLineEdit*>());
}

TEST_F(SubpartEditorsTest, RowsAreDraggedWithinTheirList)
{
    PartImpl* part = rack();
    auto& list = listOf("pins", {part});
    for (int i = 0; i < 2; ++i)
        press(list, Qt::Key_Insert);
    ASSERT_EQ(rowsOf(list), QStringList({"left", "right", "pin1", "pin2"}));
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    SubpartModel* model = list.model();
    const auto drag = [&](const QList<int>& rows, int to) {
        QModelIndexList indexes;
        for (const int row : rows)
            indexes.append(model->index(row, 0));
        const std::unique_ptr<QMimeData> content(model->mimeData(indexes));
        model->dropMimeData(content.get(), Qt::MoveAction, to, 0, {});
        QCoreApplication::processEvents();
    };
    drag({0, 2}, 4);
    EXPECT_EQ(rowsOf(list), QStringList({"right", "pin2", "left", "pin1"}));
    expectOneStepSince(before, steps);
    drag({3}, 1);
    EXPECT_EQ(rowsOf(list), QStringList({"left", "pin2", "right", "pin1"}));
    expectOneStepSince(before, steps);
    drag({1}, 2);
    EXPECT_EQ(undoSteps(), steps + 1); // where it was: only what can be redone is there
    EXPECT_FALSE(document.undoStack()->canUndo() && bytesOf(document) != before);
    SubpartListView stranger;
    const std::unique_ptr<QMimeData> foreign(stranger.model()->mimeData({model->index(0, 0)}));
    EXPECT_FALSE(model->canDropMimeData(foreign.get(), Qt::MoveAction, 1, 0, {}));
}

TEST_F(SubpartEditorsTest, TypingSelectionAndPlaceSurviveTheModel)
{
    PartImpl* part = rack();
    auto& list = listOf("pins", {part});
    std::vector<NodeSnapshot> many;
    for (int i = 0; i < 10000; ++i)
        many.push_back(NodeSnapshot::ofPrototype(*document.getNodeDb(), getCidForString("collections/pin")));
    QElapsedTimer clock;
    clock.start();
    run<AddNodesCommand>(document, Node(part), std::move(many));
    const qint64 adding = clock.restart();
    QCoreApplication::processEvents();
    EXPECT_LT(clock.elapsed(), 1000 + adding);
    ASSERT_EQ(list.model()->rowCount(), 10002);

    list.view()->setCurrentIndex(list.model()->index(6000, 0));
    list.view()->scrollTo(list.view()->currentIndex(), QAbstractItemView::PositionAtTop);
    const Node chosen = list.selectedSubpart();
    press(list, Qt::Key_F2);
    auto* edit = list.view()->findChild<QLineEdit*>();
    ASSERT_TRUE(edit);
    QTest::keyClicks(edit, "half");
    run<DeleteNodeCommand>(document, Node(part->getChildAt(5000)), Command::PushUndo);
    run<SetNodeIndexCommand>(document, Node(part->getChildAt(2)), 9000u);
    set(property(chosen.impl(), "title"), string("renamed"));
    QCoreApplication::processEvents();
    EXPECT_EQ(list.selectedSubpart(), chosen);
    ASSERT_EQ(list.view()->findChild<QLineEdit*>(), edit);
    EXPECT_EQ(edit->text(), QString("half"));
    EXPECT_TRUE(edit->isVisible());
    EXPECT_NEAR(list.view()->verticalScrollBar()->value(), 6000, 5);
}

// A host may have shortcuts of the same keys; while the focus is in the list they are the list's.
TEST_F(SubpartEditorsTest, KeysBelongToTheListThatHasTheFocus)
{
    PartImpl* part = rack();
    auto& list = listOf("pins", {part});
    int taken = 0;
    for (const QKeyCombination key :
         {QKeyCombination(Qt::ALT, Qt::Key_Up), QKeyCombination(Qt::ALT, Qt::Key_Down), QKeyCombination(Qt::Key_Delete),
          QKeyCombination(Qt::Key_Insert), QKeyCombination(Qt::CTRL, Qt::Key_A)}) {
        auto* action = new QAction(&window);
        action->setShortcut(QKeySequence(key));
        window.addAction(action);
        QObject::connect(action, &QAction::triggered, [&taken] { ++taken; });
    }
    press(list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(rowsOf(list), QStringList({"right", "left"}));
    press(list, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(rowsOf(list), QStringList({"left", "right"}));
    press(list, Qt::Key_Delete); // not possible here, and must not reach what else it could delete
    press(list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.view()->selectionModel()->selectedRows().size(), 2);
    press(list, Qt::Key_Insert);
    EXPECT_EQ(rowsOf(list).size(), 3);
    EXPECT_EQ(taken, 0);
    other->setFocus();
    QTest::keyClick(other, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(taken, 1);
}

TEST_F(SubpartEditorsTest, AMessageTakesItsOwnRoomAndGoesWithTheNextSuccess)
{
    PartImpl* part = rack();
    auto& list = listOf("pins", {part});
    const int height = list.sizeHint().height();
    press(list, Qt::Key_F2);
    typeInPlace(list.view(), "right");
    ASSERT_FALSE(list.message().isEmpty());
    EXPECT_GT(list.sizeHint().height(), height);
    EXPECT_LT(list.sizeHint().height(), height + 4 * list.fontMetrics().height());
    EXPECT_LT(list.heightForWidth(list.width()), height + 4 * list.fontMetrics().height());
    Q_EMIT list.model()->moveAsked({0}, 2);
    EXPECT_EQ(list.message(), QString());
    document.undo();
    QCoreApplication::processEvents();
    press(list, Qt::Key_F2);
    typeInPlace(list.view(), "right");
    ASSERT_FALSE(list.message().isEmpty());
    press(list, Qt::Key_F2);
    typeInPlace(list.view(), "west");
    EXPECT_EQ(list.message(), QString());
    EXPECT_EQ(list.sizeHint().height(), height);
}
