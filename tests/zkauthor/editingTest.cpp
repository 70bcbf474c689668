#include "windowTest.h"

#include "tests/support/testDocument.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/widgets/msgPane.h"
#include "zkeditor/widgets/nodePaletteBox.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>
#include <QUndoStack>

namespace {

class EditingTest : public WindowTest
{
protected:
    /// The check box of the form that stands for a property.
    QCheckBox* box(const char* property)
    {
        for (QCheckBox* found : properties()->findChildren<QCheckBox*>()) {
            if (found->isVisible() && found->property("modelProperty").toString() == QLatin1String(property))
                return found;
        }
        return nullptr;
    }

    QString message()
    {
        for (const MsgPane* pane : properties()->findChildren<MsgPane*>()) {
            if (pane->isVisible())
                return pane->findChild<QLabel*>()->text();
        }
        return {};
    }

    bool lit(const char* id) { return part(id)->valueOfProperty(PropertyKey::fromString("lit")).toBool(); }
};

TEST_F(EditingTest, EditOfTwoLampsIsOneUndoStepAndSurvivesSaving)
{
    clickPart("lamp1");
    clickPart("lamp2", Qt::ShiftModifier);
    EXPECT_EQ(selectedIds(), (QStringList{"lamp1", "lamp2"}));
    ASSERT_TRUE(box("lit"));
    const QByteArray before = bytesOf(document());

    QTest::mouseClick(box("lit"), Qt::LeftButton, Qt::NoModifier, QPoint(8, box("lit")->height() / 2));
    EXPECT_TRUE(lit("lamp1"));
    EXPECT_TRUE(lit("lamp2"));
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_EQ(undoSteps(), 1);

    trigger("undo");
    EXPECT_EQ(bytesOf(document()), before);
    EXPECT_FALSE(box("lit")->isChecked());
    EXPECT_FALSE(m_window->isWindowModified());
    trigger("redo");
    EXPECT_TRUE(box("lit")->isChecked());

    trigger("save");
    EXPECT_FALSE(m_window->isWindowModified());
    const QByteArray saved = bytesOf(document());
    QString error;
    ASSERT_TRUE(m_window->openFile(path("sample.zkdoc"), error)) << error.toStdString();
    EXPECT_EQ(bytesOf(document()), saved);
    EXPECT_TRUE(lit("lamp2"));
}

TEST_F(EditingTest, FormFollowsTheSelection)
{
    EXPECT_EQ(properties()->windowTitle(), "Properties");
    EXPECT_TRUE(properties()->updatesEnabled()); // or it would stay black
    clickPart("lamp1");
    EXPECT_TRUE(properties()->updatesEnabled());
    const QPointer<QCheckBox> first = box("lit");
    EXPECT_EQ(properties()->windowTitle(), "LED Properties");

    clickPart("lamp2");
    box("lit")->click();
    EXPECT_TRUE(lit("lamp2"));
    EXPECT_FALSE(lit("lamp1"));
    QTest::qWait(0); // the old form goes now
    EXPECT_FALSE(first);

    clickPart("cell", Qt::ShiftModifier);
    EXPECT_EQ(message(), "Multiple parts selected");
    EXPECT_FALSE(box("lit"));

    view().setFocus();
    keys(Qt::Key_Escape);
    EXPECT_EQ(selectedIds(), QStringList());
    EXPECT_EQ(properties()->windowTitle(), "Properties");
    properties()->showSpaceProperties();
    EXPECT_EQ(properties()->windowTitle(), "Scene Properties");
}

TEST_F(EditingTest, SectionsAreRememberedForTheClass)
{
    const auto boxOfItems = [this] { return properties()->findChild<NodePaletteBox*>(); };
    clickPart("lamp1");
    ASSERT_TRUE(boxOfItems());
    ASSERT_EQ(boxOfItems()->openedItemIndex(), 0);
    ASSERT_TRUE(box("lit"));
    boxOfItems()->showItem(1, true);
    EXPECT_FALSE(box("lit"));
    clickPart("cell");
    QTest::qWait(0);
    EXPECT_EQ(boxOfItems()->openedItemIndex(), 0);
    clickPart("lamp2");
    QTest::qWait(0);
    EXPECT_EQ(boxOfItems()->openedItemIndex(), 1);
    boxOfItems()->showItem(0, true);
    EXPECT_TRUE(box("lit"));
}

TEST_F(EditingTest, DeletedPartsComeBackSelectedWithTheirWires)
{
    const QByteArray before = bytesOf(document());
    clickPart("lamp1");
    QTest::keyClick(&view(), Qt::Key_Delete);
    EXPECT_FALSE(part("lamp1"));
    EXPECT_FALSE(part("wire"));
    EXPECT_EQ(properties()->windowTitle(), "Properties");
    trigger("undo");
    EXPECT_EQ(bytesOf(document()), before);
    EXPECT_EQ(selectedIds(), QStringList{"lamp1"});
    box("lit")->click();
    EXPECT_TRUE(lit("lamp1"));
    // The wire's item is there again as well: a click on its middle finds it.
    const zk::Point cell = part("cell")->position();
    EXPECT_EQ(part("wire")->space(), part("cell")->space());
    EXPECT_NE(cell, part("lamp1")->position());
}

TEST_F(EditingTest, CopiesBringTheWiresBetweenThem)
{
    trigger("select-all");
    EXPECT_EQ(selectedIds(), (QStringList{"cell", "lamp1", "lamp2", "wire"}));
    const unsigned int count = firstScene(document())->childCount();
    const auto check = [this, count] {
        const SceneImpl* scene = firstScene(document());
        ASSERT_EQ(scene->childCount(), 2 * count);
        const NodeImpl* wire = scene->getChildAt(2 * count - 1);
        const Node from = wire->valueOfProperty(PropertyKey::fromString("from")).toNode();
        ASSERT_TRUE(from.valid());
        EXPECT_EQ(scene->getIndexForChild(from.impl()->parentNode()), int(count)); // the copy of the cell
        EXPECT_EQ(document().getSelection().size(), 3u);
    };
    trigger("duplicate");
    check();
    trigger("undo");
    EXPECT_EQ(firstScene(document())->childCount(), count);

    trigger("select-all");
    trigger("copy");
    trigger("paste");
    check();
    trigger("undo");
    EXPECT_EQ(undoSteps(), 0);

    // A wire whose other end stays behind stays behind too.
    clickPart("lamp1");
    trigger("cut");
    EXPECT_FALSE(part("lamp1"));
    trigger("paste");
    ASSERT_EQ(selectedIds().size(), 1);
    EXPECT_EQ(document().getMetaLabelForCID((*document().getSelection().begin())->classId()), "LED");
    EXPECT_FALSE(part("wire"));
}

TEST_F(EditingTest, QuarterTurnsRespectConstraintsAndLocks)
{
    run<SetUILockedCommand>(document(), std::vector<Node>{part("lamp2")}, LockOrientation, true);
    const QByteArray before = bytesOf(document());
    const int steps = undoSteps();
    trigger("select-all");
    for (int turns = 0; turns < 3; ++turns)
        trigger("rotate");
    EXPECT_NEAR(part("lamp1")->orientation(), 4.71238898038469, 1e-12);
    EXPECT_EQ(part("lamp2")->orientation(), 0.0);
    trigger("rotate");
    EXPECT_EQ(bytesOf(document()), before); // four quarters are exactly none
    EXPECT_EQ(undoSteps(), steps + 4);
}

TEST_F(EditingTest, InsertMenuAddsInTheMiddleOfTheView)
{
    auto* menu = m_window->findChild<QMenu*>(QStringLiteral("insertMenu"));
    ASSERT_TRUE(menu);
    Q_EMIT menu->aboutToShow();
    QAction* led = nullptr;
    for (QAction* found : menu->findChildren<QAction*>()) {
        if (found->text() == QLatin1String("LED"))
            led = found;
    }
    ASSERT_TRUE(led);
    led->trigger();
    ASSERT_EQ(document().getSelection().size(), 1u);
    const zk::Point first = (*document().getSelection().begin())->position();
    const zk::Point centre = view().visibleCentre();
    EXPECT_NEAR(first.x, centre.x, 1e-6);
    EXPECT_NEAR(first.y, centre.y, 1e-6);
    led->trigger();
    EXPECT_GT((*document().getSelection().begin())->position().x, first.x); // beside, not on top of the first
    EXPECT_EQ(undoSteps(), 2);

    // Connections join the two selected parts.
    const auto wire = [menu]() -> QAction* {
        Q_EMIT menu->aboutToShow();
        for (QMenu* group : menu->findChildren<QMenu*>()) {
            for (QAction* found : group->actions()) {
                if (found->text() == QLatin1String("Wire"))
                    return found;
            }
        }
        return nullptr;
    };
    ASSERT_TRUE(wire());
    EXPECT_FALSE(wire()->isEnabled());
    clickPart("cell");
    clickPart("lamp2", Qt::ShiftModifier);
    EXPECT_TRUE(wire()->isEnabled());
    wire()->trigger();
    ASSERT_EQ(document().getSelection().size(), 1u);
    const ElementImpl* added = *document().getSelection().begin();
    const Node from = added->valueOfProperty(PropertyKey::fromString("from")).toNode();
    const Node to = added->valueOfProperty(PropertyKey::fromString("to")).toNode();
    ASSERT_TRUE(from.valid() && to.valid());
    EXPECT_EQ(from.impl()->parentNode(), part("cell"));
    EXPECT_EQ(to.impl()->parentNode(), part("lamp2"));
    EXPECT_EQ(undoSteps(), 3);
}

TEST_F(EditingTest, ScenesAndPopupsHaveTabs)
{
    SpaceTabs* tabs = m_window->spaceTabs();
    SpaceImpl* first = tabs->currentSpace();
    ASSERT_TRUE(first);
    trigger("add-scene");
    EXPECT_EQ(tabs->count(), 2);
    EXPECT_NE(tabs->currentSpace(), first);
    EXPECT_EQ(m_window->viewManager()->getFocusedSpace().impl(), tabs->currentSpace());

    PartImpl* info = addPart(document(), "core/info", {0.02, 0.02});
    ASSERT_TRUE(info->popup());
    tabs->showSpace(first);
    document().setSelection({info});
    trigger("open-popup");
    EXPECT_EQ(tabs->currentSpace(), info->popup());
    EXPECT_EQ(tabs->count(), 3);
    EXPECT_EQ(document().undoStack()->count(), 2); // looking at a pop-up changes nothing
    EXPECT_EQ(selectedIds(), QStringList());       // what is out of sight is not selected any more

    // What is deleted takes its tabs along, and undo brings the scene's back.
    trigger("undo");
    EXPECT_EQ(tabs->count(), 2);
    trigger("undo");
    EXPECT_EQ(tabs->count(), 1);
    EXPECT_EQ(tabs->currentSpace(), first);
    trigger("redo");
    EXPECT_EQ(tabs->count(), 2);
}

TEST_F(EditingTest, NoCommandIsWithoutAKeyOrAName)
{
    for (const QAction* found : m_window->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (found->isSeparator() || found->text().isEmpty() || found->menu())
            continue;
        EXPECT_TRUE(found->text().contains(QLatin1Char('&'))) << found->text().toStdString();
    }
    EXPECT_FALSE(view().accessibleName().isEmpty());

    // Within a menu a letter stands for one command only, as it does along the menu bar.
    const auto check = [](const QList<QAction*>& entries) {
        QString letters;
        for (const QAction* entry : entries) {
            const QString letter = QKeySequence::mnemonic(entry->text()).toString();
            EXPECT_TRUE(letter.isEmpty() || !letters.contains(letter)) << entry->text().toStdString();
            letters += letter + QLatin1Char(' ');
        }
    };
    check(m_window->menuBar()->actions());
    for (const QMenu* menu : m_window->findChildren<QMenu*>())
        check(menu->actions());
}

} // namespace
