#include "zkeditor/assocPalette.h"

#include "paneFixture.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/proxyCommands.h"
#include "zkcore/commands/reflectCommand.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/linkPane.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/propertyChoiceModel.h"
#include "zkeditor/widgets/propertyListBox.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTreeView>
#include <QTreeWidget>

namespace {

class AssocPaletteTest : public PaneTest
{
protected:
    enum List { Links, Subparts, Reflections, Popup };

    AssocPaletteTest() : palette(new AssocPalette(&window)) {}

    void SetUp() override
    {
        show(palette);
        palette->setDocument(document.get());
        tool = add("panes/tool");
        other = add("panes/tool");
        run<SetProxyCommand>(*document, Property(property(tool, "follower")), Property(property(other, "armed")));
    }

    QTreeWidget* list(List which) const
    {
        return qobject_cast<QTreeWidget*>(palette->findChild<PaletteBox*>()->item(which));
    }
    /// Headings, and indented what stands under them.
    QStringList rows(List which)
    {
        QApplication::processEvents();
        QStringList texts;
        for (QTreeWidgetItemIterator it(list(which)); *it; ++it)
            texts.append(((*it)->parent() ? "  " : "") + (*it)->text(0));
        return texts;
    }
    /// Clicks the first association of a list in a column.
    void click(List which, int column)
    {
        QTreeWidget* tree = list(which);
        const QModelIndex row = tree->model()->index(0, column, tree->model()->index(0, 0));
        ASSERT_TRUE(QTest::qWaitFor([&] { return tree->viewport()->rect().contains(tree->visualRect(row)); }));
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(row).center());
    }

    AssocPalette* palette;
    PartImpl* tool = nullptr;
    PartImpl* other = nullptr;
};

} // namespace

TEST_F(AssocPaletteTest, ShowsBothEndsOfALinkAndEndsIt)
{
    select({tool});
    EXPECT_EQ(rows(Links), (QStringList{"Follows", QString::fromUtf8("  Follower ← tool2: Armed")}));
    EXPECT_EQ(rows(Subparts), (QStringList{"controls", "  handle"}));
    EXPECT_EQ(rows(Popup), QStringList{"None"});
    click(Links, 0);
    EXPECT_EQ(document->getSelection(), ElementImplSet{other});
    EXPECT_EQ(rows(Links), (QStringList{"Followed by", QString::fromUtf8("  Armed → tool1: Follower")}));
    set(property(tool, "title"), Value(QString("Saw")));
    EXPECT_EQ(rows(Links).last(), QString::fromUtf8("  Armed → Saw: Follower"));

    const int steps = undoSteps();
    click(Links, 1);
    EXPECT_FALSE(property(tool, "follower")->isProxy());
    EXPECT_EQ(undoSteps(), steps + 1);
    EXPECT_EQ(rows(Links), QStringList{"None"});
    EXPECT_EQ(document->getSelection(), ElementImplSet{other});
    document->undo();
    EXPECT_EQ(rows(Links).size(), 2);
    select({tool, other});
    EXPECT_EQ(rows(Links), QStringList{"None"});
}

TEST_F(AssocPaletteTest, WorksByKeysAlone)
{
    select({tool});
    QTreeWidget* tree = list(Links);
    QApplication::processEvents();
    tree->setFocus();
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    QTest::keyClick(tree, Qt::Key_Delete);
    EXPECT_FALSE(property(tool, "follower")->isProxy());
    QApplication::processEvents();
    tree = list(Subparts);
    tree->setFocus();
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_EQ(document->getSelection(), ElementImplSet{static_cast<ElementImpl*>(tool->getChildAt(0))});
}

TEST_F(AssocPaletteTest, ReflectionsAreNoLinksAndCanBeRemoved)
{
    run<ReflectControlsCommand>(*document, Part(other), Node(firstScene(*document)), true);
    ElementImpl* reflection = document->reflectionsOf(other).front();
    select({reflection});
    EXPECT_EQ(rows(Links), QStringList{"None"}); // all of its properties follow, which says nothing
    EXPECT_EQ(rows(Reflections), (QStringList{"Reflection of", "  tool2"}));
    click(Reflections, 0);
    EXPECT_EQ(document->getSelection(), ElementImplSet{other});
    EXPECT_EQ(rows(Links).size(), 2);
    EXPECT_EQ(rows(Reflections).first(), "Controls");
    click(Reflections, 1);
    EXPECT_TRUE(document->reflectionsOf(other).empty());
    EXPECT_EQ(rows(Reflections), QStringList{"None"});
}

TEST_F(AssocPaletteTest, WhatCannotBeSelectedIsAskedOfTheHostAndPopupsOpen)
{
    PartImpl* balloon = add("panes/balloon");
    select({balloon});
    EXPECT_EQ(rows(Popup).size(), 2);
    QSignalSpy requests(palette, &AssocPalette::nodeRequested);
    click(Popup, 0);
    ASSERT_EQ(requests.count(), 1);
    EXPECT_EQ(requests.at(0).at(0).value<Node>().impl(), balloon->popup());
    EXPECT_TRUE(property(balloon->popup(), "open")->getValue().toBool());
    EXPECT_EQ(document->getSelection(), ElementImplSet{balloon});
}

TEST_F(AssocPaletteTest, CatchesUpWhenShownAgain)
{
    palette->hide();
    select({tool});
    QApplication::processEvents();
    EXPECT_EQ(rows(Links), QStringList{"None"});
    palette->show();
    EXPECT_EQ(rows(Links).size(), 2);
    document.reset();
    QApplication::processEvents();
}

TEST_F(AssocPaletteTest, NewLinksAreMadeToo)
{
    auto* pane = palette->findChild<LinkPane*>();
    auto* box = palette->findChild<PaletteBox*>();
    PropertyListBox* targets = pane->targets();
    select({other});
    QApplication::processEvents();
    EXPECT_EQ(targets->model()->rowCount(), 0); // closed at first
    box->showItem(pane, true);
    QApplication::processEvents();
    ASSERT_TRUE(pane->properties()->findText("Follower") >= 0);
    pane->properties()->setFocus();
    QTest::keyClicks(pane->properties(), "Fol");
    ASSERT_GT(targets->model()->rowCount(), 0);
    const int row =
        targets->model()->rowOf(PropertyAddress{tool->instanceId(), INVALID_CID, PropertyKey::fromString("armed")});
    targets->view()->setCurrentIndex(targets->view()->model()->index(row, 0));
    const int steps = undoSteps();
    targets->link();
    EXPECT_EQ(property(other, "follower")->proxySubject(), property(tool, "armed"));
    EXPECT_EQ(undoSteps(), steps + 1);
    EXPECT_EQ(rows(Links).size(), 4); // it follows and is followed
    EXPECT_TRUE(targets->view()->currentIndex().isValid());

    // The same property of what is selected next; another document, or none.
    select({tool});
    QApplication::processEvents();
    EXPECT_EQ(pane->properties()->currentText(), QString("Follower"));
    EXPECT_TRUE(targets->linkLabel()->text().contains("Armed"));
    run<DeleteNodeCommand>(*document, Node(tool), Command::PushUndo);
    QApplication::processEvents();
    EXPECT_EQ(targets->model()->rowCount(), 0);
    document->undo();
    QApplication::processEvents();
    palette->setDocument(nullptr);
    EXPECT_EQ(targets->model()->rowCount(), 0);
}
