#include "zkeditor/propPalette.h"

#include "paneFixture.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/model/view.h"
#include "zkeditor/widgets/msgPane.h"
#include "zkeditor/widgets/noSelectionPane.h"
#include "zkeditor/widgets/nodePaletteBox.h"
#include "zkeditor/widgets/observerCheckbox.h"
#include "zkeditor/widgets/observerLineEdit.h"
#include "zkeditor/widgets/panelTopArea.h"
#include "zkeditor/widgets/spacePropertyPane.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

namespace {

class PropPaletteTest : public PaneTest
{
protected:
    PropPaletteTest() : palette(new PropPalette(&window)) {}

    void SetUp() override
    {
        show(palette);
        palette->setDocument(document.get());
    }

    /// In the pane on view; those of panes that wait for their end are hidden.
    template <typename T> T* shown(const QString& name = {}) const
    {
        for (T* widget : palette->findChildren<T*>(name)) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    QStringList items() const
    {
        QStringList labels;
        const auto* box = shown<NodePaletteBox>();
        for (int i = 0; box && i < box->count(); ++i)
            labels.append(box->itemLabel(i) + (box->isItemOpen(i) ? "+" : ""));
        return labels;
    }
    QString message() const
    {
        const auto* pane = shown<MsgPane>();
        return pane ? pane->message() : QString();
    }
    QPushButton* sceneButton() const { return shown<NoSelectionPane>()->findChild<QPushButton*>(); }

    PropPalette* palette;
};

using PropPaletteDeathTest = PropPaletteTest;

class OneView : public View
{
public:
    explicit OneView(SpaceImpl* space) : m_space(space) {}
    Space space() const override { return m_space; }
    Space m_space;
};

} // namespace

TEST_F(PropPaletteTest, ShowsWhatFitsTheSelection)
{
    PartImpl* tool = add("panes/tool");
    PartImpl* other = add("panes/tool");
    PartImpl* bare = add("panes/bare");
    ASSERT_TRUE(shown<NoSelectionPane>());
    EXPECT_EQ(palette->windowTitle(), "Properties");

    select({tool});
    EXPECT_EQ(palette->windowTitle(), "Tool Properties");
    // In the order of their places in the forms, whatever their order in the files.
    EXPECT_EQ(items(), (QStringList{"Only+", "Upper", "Lower"}));

    select({tool, bare});
    EXPECT_EQ(message(), "Multiple parts selected");
    EXPECT_EQ(palette->windowTitle(), "Properties");
    select({bare});
    EXPECT_EQ(message(), "This part has no properties");
    EXPECT_EQ(palette->windowTitle(), "Bare Properties");

    select({tool, other});
    auto* remark = shown<ObserverLineEdit>("remark");
    ASSERT_TRUE(remark);
    type(remark, "both");
    const int steps = undoSteps();
    QTest::keyClick(remark, Qt::Key_Return);
    EXPECT_EQ(text(tool, "note"), "both");
    EXPECT_EQ(text(other, "note"), "both");
    EXPECT_EQ(undoSteps(), steps + 1);

    palette->setDocument(nullptr);
    ASSERT_TRUE(shown<NoSelectionPane>());
    EXPECT_FALSE(sceneButton()->isEnabled());
    select({tool}); // nobody listens any more
    EXPECT_TRUE(shown<NoSelectionPane>());
}

TEST_F(PropPaletteTest, OneSectionStandsWithoutHeaderAndAClassWithoutLabelIsNamedByItsId)
{
    PartImpl* single = add("panes/single");
    const MessageCapture messages;
    select({single});
    EXPECT_FALSE(shown<NodePaletteBox>());
    EXPECT_TRUE(shown<ObserverLineEdit>("remark"));
    EXPECT_EQ(palette->windowTitle(), "single Properties");
    EXPECT_EQ(messages.texts(), QStringList{"PropPalette: Element panes/single has no meta-label information"});
}

TEST_F(PropPaletteTest, OpenSectionsAreRememberedPerClass)
{
    PartImpl* tool = add("panes/tool");
    PartImpl* other = add("panes/tool");
    select({tool});
    shown<NodePaletteBox>()->showItem(2, true);
    select({other}); // of the same class, while the old pane still lives
    EXPECT_EQ(items(), (QStringList{"Only", "Upper", "Lower+"}));
    loop();
    shown<NodePaletteBox>()->showItem(1, true);
    select({add("panes/bare")});
    loop();
    select({tool});
    EXPECT_EQ(items(), (QStringList{"Only", "Upper+", "Lower"}));
    shown<NodePaletteBox>()->showItem(1, false); // none open: the first one then
    select({other});
    EXPECT_EQ(items(), (QStringList{"Only+", "Upper", "Lower"}));
}

TEST_F(PropPaletteTest, AHalfTypedTextBelongsToTheNodesItWasTypedFor)
{
    PartImpl* tool = add("panes/tool");
    PartImpl* other = add("panes/tool");
    select({tool});
    auto* remark = shown<ObserverLineEdit>("remark");
    type(remark, "typed");
    const int steps = undoSteps();
    select({other});
    EXPECT_EQ(text(tool, "note"), "typed");
    EXPECT_EQ(text(other, "note"), "");
    EXPECT_EQ(undoSteps(), steps + 1);
    EXPECT_EQ(shown<ObserverLineEdit>("remark")->text(), "");
}

TEST_F(PropPaletteTest, AControlMayEndItsOwnPane)
{
    PartImpl* tool = add("panes/tool");
    select({tool});
    QPointer<ObserverLineEdit> remark = shown<ObserverLineEdit>("remark");
    // What the control writes has the pane replaced, or even its part deleted, before the write returns.
    QObject::connect(property(tool, "note"), &PropertyImpl::ValueChanged, document.get(),
                     [this, tool] { run<DeleteNodeCommand>(*document, Node(tool), int(Command::PushUndo)); });
    type(remark, "x");
    QTest::keyClick(remark, Qt::Key_Return);
    EXPECT_TRUE(remark); // still inside its own key event until here
    EXPECT_TRUE(shown<NoSelectionPane>());
    loop();
    EXPECT_FALSE(remark);
    EXPECT_EQ(palette->findChildren<PanelTopArea*>().size(), 1);
}

TEST_F(PropPaletteTest, AnEntryThatSelectsSomethingElseLeavesOnePane)
{
    PartImpl* tool = add("panes/tool");
    PartImpl* bare = add("panes/bare");
    PartImpl* other = add("panes/tool");
    select({tool});
    type(shown<ObserverLineEdit>("remark"), "x");
    QObject::connect(property(tool, "note"), &PropertyImpl::ValueChanged, document.get(),
                     [this, bare] { select({bare}); });
    select({other}); // enters the text, upon which another part gets selected
    loop();
    EXPECT_EQ(document->getSelection(), ElementImplSet{bare});
    EXPECT_EQ(message(), "This part has no properties");
    EXPECT_EQ(palette->findChildren<PanelTopArea*>().size(), 1);
}

TEST_F(PropPaletteTest, ScenePropertiesDeselectAndStay)
{
    PartImpl* tool = add("panes/tool");
    select({tool});
    QSignalSpy selections(document.get(), &DocumentImpl::SelectionChanged);
    palette->showSpaceProperties();
    EXPECT_EQ(selections.count(), 1);
    EXPECT_TRUE(document->getSelection().empty());
    EXPECT_TRUE(shown<SpacePropertyPane>());
    EXPECT_EQ(palette->windowTitle(), "Scene Properties");

    select({tool}); // skipped once only
    EXPECT_FALSE(shown<SpacePropertyPane>());
    select({});
    QTest::mouseClick(sceneButton(), Qt::LeftButton);
    EXPECT_TRUE(shown<SpacePropertyPane>());
    palette->resetCaption();
    EXPECT_EQ(palette->windowTitle(), "Properties");
}

TEST_F(PropPaletteTest, TheScenePaneFollowsTheViewButNotDuringUndo)
{
    SceneImpl* first = firstScene(*document);
    auto* second =
        qobject_cast<SceneImpl*>(run<AddSceneCommand>(*document, Model(document->getModel())).toNode().impl());
    ASSERT_TRUE(second);
    set(property(first, "title"), Value(QString("One")));
    set(property(second, "title"), Value(QString("Two")));
    ViewManager views;
    OneView viewOfFirst(first);
    OneView viewOfSecond(second);
    views.addView(&viewOfFirst);
    views.addView(&viewOfSecond);
    views.setFocusedView(&viewOfFirst);
    palette->setViewManager(&views);
    const auto title = [this] { return shown<QLabel>("topAreaName")->text(); };

    views.setFocusedView(&viewOfSecond);
    EXPECT_TRUE(shown<NoSelectionPane>()); // only a scene pane follows
    palette->showSpaceProperties();
    EXPECT_EQ(title(), "Two");
    views.setFocusedView(&viewOfFirst);
    EXPECT_EQ(title(), "One");

    QString during;
    QObject::connect(document->undoStack(), &QUndoStack::indexChanged, &views, [&] {
        views.setFocusedView(&viewOfSecond);
        during = title();
    });
    document->undo();
    EXPECT_EQ(during, "One");
    EXPECT_EQ(shown<QLineEdit>("topAreaId")->text(), text(second, "id")); // after Loaded()
    palette->setViewManager(nullptr);
}

TEST_F(PropPaletteTest, PartsThatAreTheirPopupsShowThose)
{
    PartImpl* balloon = add("panes/balloon");
    PartImpl* other = add("panes/balloon");
    select({balloon, other});
    EXPECT_EQ(palette->windowTitle(), "Scene Properties");
    ASSERT_TRUE(shown<SpacePropertyPane>());
    ObserverLineEdit* title = nullptr;
    for (auto* edit : shown<SpacePropertyPane>()->findChildren<ObserverLineEdit*>()) {
        if (edit->modelProperty() == "title")
            title = edit;
    }
    ASSERT_TRUE(title);
    type(title, "Read me");
    QTest::keyClick(title, Qt::Key_Return);
    EXPECT_EQ(text(balloon->popup(), "title"), "Read me");
    EXPECT_EQ(text(other->popup(), "title"), "Read me");
    EXPECT_TRUE(shown<PanelTopArea>()->button(ShortcutButton::Delete)->isEnabled()); // the parts, not the pop-ups
}

TEST_F(PropPaletteTest, SelectionsOnTheWayToAnotherPlaceAreNotFollowed)
{
    /// Selects something in the middle of the move.
    class Meddler : public QObject
    {
    public:
        std::function<void()> hook;
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Hide && hook)
                std::exchange(hook, nullptr)();
            return false;
        }
    } meddler;
    PartImpl* tool = add("panes/tool");
    palette->installEventFilter(&meddler);
    meddler.hook = [this, tool] { select({tool}); };
    palette->undock();
    EXPECT_FALSE(meddler.hook);
    EXPECT_TRUE(shown<NoSelectionPane>());
    EXPECT_TRUE(palette->isFloating());
    select({});
    select({tool});
    EXPECT_EQ(items().size(), 3);
}

TEST_F(PropPaletteTest, ShortcutsOfEveryPaneAreRelayed)
{
    QSignalSpy clicks(palette, &PropPalette::shortcutClicked);
    select({add("panes/tool")});
    QTest::mouseClick(shown<PanelTopArea>()->button(ShortcutButton::Duplicate), Qt::LeftButton);
    select({add("panes/bare")});
    QTest::mouseClick(shown<PanelTopArea>()->button(ShortcutButton::Help), Qt::LeftButton);
    ASSERT_EQ(clicks.count(), 2);
    EXPECT_EQ(clicks.at(0).at(0).value<ShortcutButton::Type>(), ShortcutButton::Duplicate);
    EXPECT_EQ(clicks.at(1).at(0).value<ShortcutButton::Type>(), ShortcutButton::Help);
}

TEST_F(PropPaletteTest, TheDocumentMayGoFirst)
{
    select({add("panes/tool")});
    type(shown<ObserverLineEdit>("remark"), "x");
    document.reset();
    EXPECT_TRUE(shown<NoSelectionPane>());
    loop();
}

TEST_F(PropPaletteDeathTest, BrokenFormsAndMissingDocumentsAreFatal)
{
    PartImpl* broken = add("panes/broken");
    EXPECT_DEATH(select({broken}), "PropPalette: Trying to load invalid ui file for part panes/broken");
    EXPECT_DEATH(
        {
            palette->setDocument(nullptr);
            palette->showSelectedPartProperties();
        },
        "ZK_ASSERT: \"m_document\" in");
}
