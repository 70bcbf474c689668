#include "zkeditor/widgets/panelTopArea.h"

#include "../paneFixture.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkeditor/widgets/lineEdit.h"

#include <QLabel>
#include <QSignalSpy>

namespace {

class PanelTopAreaTest : public PaneTest
{
protected:
    void SetUp() override
    {
        area = new PanelTopArea;
        window.setCentralWidget(area);
        window.resize(400, 200);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        id = area->findChild<LineEdit*>();
    }

    void bind(const std::set<NodeImpl*>& nodes) { area->bind(document.get(), nodes); }
    QString name() const { return area->findChild<QLabel*>("topAreaName")->text(); }
    QString enabled() const
    {
        QString names;
        for (int type = ShortcutButton::Delete; type <= ShortcutButton::Help; ++type) {
            const ShortcutButton* button = area->button(static_cast<ShortcutButton::Type>(type));
            EXPECT_FALSE(button->accessibleName().isEmpty());
            if (button->isEnabled())
                names += button->accessibleName() + ";";
        }
        return names;
    }
    bool isRed() const { return id->palette().color(QPalette::Text) == QColor(Qt::red); }

    PanelTopArea* area = nullptr;
    LineEdit* id = nullptr;
};

} // namespace

TEST_F(PanelTopAreaTest, NamesWhatIsSelectedAndOffersWhatCanBeDoneWithIt)
{
    EXPECT_EQ(enabled(), "");
    EXPECT_FALSE(id->isVisible());
    PartImpl* tool = add("panes/tool");
    PartImpl* other = add("panes/tool");
    PartImpl* balloon = add("panes/balloon");
    bind({tool});
    EXPECT_EQ(name(), "Tool");
    EXPECT_EQ(id->text(), "tool1");
    EXPECT_EQ(enabled(), "Delete;Duplicate;Lock;Reflect;Help;");
    set(property(tool, "title"), Value(QString("Hammer")));
    EXPECT_EQ(name(), "Hammer");
    bind({balloon});
    EXPECT_EQ(enabled(), "Delete;Duplicate;Lock;Show Pop-up;Help;");
    bind({tool, other});
    EXPECT_EQ(name(), QString::fromUtf8("2 × Tool"));
    EXPECT_TRUE(id->isVisible());
    bind({tool, balloon});
    EXPECT_EQ(name(), "2 parts");
    EXPECT_FALSE(id->isVisible());
    bind({tool->getChildAt(0)}); // prescribed by the class of its part
    EXPECT_EQ(enabled(), "Lock;Help;");
    bind({firstScene(*document)});
    EXPECT_EQ(enabled(), "Help;");
    area->unbind();
    EXPECT_EQ(enabled(), "");
}

TEST_F(PanelTopAreaTest, EntersIdsThatAreFreeOnly)
{
    PartImpl* tool = add("panes/tool");
    add("panes/tool"); // tool2
    bind({tool});
    const int steps = undoSteps();
    type(id, "tool2");
    EXPECT_TRUE(isRed());
    EXPECT_FALSE(id->accessibleDescription().isEmpty());
    ASSERT_TRUE(QApplication::activePopupWidget()); // offers a free one
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Tab);
    EXPECT_FALSE(id->hasFocus());
    EXPECT_EQ(id->text(), "tool1");
    EXPECT_FALSE(isRed());
    type(id, "saw");
    QTest::keyClick(id, Qt::Key_Escape);
    EXPECT_EQ(id->text(), "tool1");
    EXPECT_EQ(undoSteps(), steps);

    type(id, "saw");
    QTest::keyClick(id, Qt::Key_Return);
    EXPECT_EQ(text(tool, "id"), "saw");
    area->button(ShortcutButton::Help)->setFocus();
    EXPECT_EQ(undoSteps(), steps + 1);
    document->undo();
    EXPECT_EQ(id->text(), "tool1");

    type(id, "axe"); // still typing when something else gets selected
    bind({});
    EXPECT_EQ(text(tool, "id"), "axe");
}

TEST_F(PanelTopAreaTest, SeveralPartsAreNumberedInOneStep)
{
    PartImpl* tool = add("panes/tool");
    PartImpl* other = add("panes/tool");
    bind({tool, other});
    const int steps = undoSteps();
    type(id, "saw");
    area->button(ShortcutButton::Help)->setFocus();
    EXPECT_EQ(text(tool, "id"), "saw1");
    EXPECT_EQ(text(other, "id"), "saw2");
    EXPECT_EQ(undoSteps(), steps + 1);
    document->undo();
    EXPECT_EQ(text(tool, "id"), "tool1");

    // Parts that go while something is typed for them take nothing along.
    type(id, "axe");
    run<DeleteNodeCommand>(*document, Node(other), Command::PushUndo);
    QApplication::processEvents();
    EXPECT_EQ(name(), "Tool");
    bind({});
    EXPECT_TRUE(text(tool, "id").startsWith("axe"));
    EXPECT_FALSE(id->isVisible());
}

TEST_F(PanelTopAreaTest, TheLockButtonShowsWhatIsNotWhatWasAskedFor)
{
    PartImpl* tool = add("panes/tool");
    PartImpl* other = add("panes/tool");
    bind({tool, other});
    QSignalSpy clicks(area, &PanelTopArea::shortcutClicked);
    ShortcutButton* lock = area->button(ShortcutButton::Lock);
    lock->setFocus();
    QTest::keyClick(lock, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_FALSE(lock->isChecked()); // the host did nothing
    run<SetUILockedCommand>(*document, std::vector<Node>{tool}, LockPropertyValues, true);
    QApplication::processEvents();
    EXPECT_FALSE(lock->isChecked());
    run<SetUILockedCommand>(*document, std::vector<Node>{other}, LockPropertyValues, true);
    QApplication::processEvents();
    EXPECT_TRUE(lock->isChecked());
    bind({tool});
    EXPECT_FALSE(id->isEnabled());
}
