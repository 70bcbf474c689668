#include "zkeditor/advancedPalette.h"

#include "paneFixture.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/model/coreKeys.h"
#include "zkeditor/duplication.h"
#include "zkeditor/widgets/doubleSpinbox.h"
#include "zkeditor/widgets/msgPane.h"
#include "zkeditor/widgets/observerCheckbox.h"
#include "zkeditor/widgets/observerLineEdit.h"
#include "zkeditor/widgets/observerStringCheckbox.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/spacePropertyPane.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace {

class AdvancedPaletteTest : public PaneTest
{
protected:
    enum Item { Click, Duplication, Popup };

    AdvancedPaletteTest() : palette(new AdvancedPalette(&window)) {}

    void SetUp() override
    {
        show(palette);
        palette->setDocument(document.get());
    }

    QWidget* item(Item which) const { return palette->findChild<PaletteBox*>()->item(which); }
    QComboBox* combo(const QString& withText) const
    {
        for (auto* box : item(Click)->findChildren<QComboBox*>()) {
            if (box->findText(withText) >= 0)
                return box;
        }
        return nullptr;
    }
    static void choose(QComboBox* box, const QString& text)
    {
        box->setFocus();
        while (box->currentText() != text && box->currentIndex() + 1 < box->count())
            QTest::keyClick(box, Qt::Key_Down);
        EXPECT_EQ(box->currentText(), text);
    }
    static zk::Point place(const ElementImpl* element) { return element->position(); }

    AdvancedPalette* palette;
};

} // namespace

TEST_F(AdvancedPaletteTest, ClickActionsAreEditedForAllSelectedPartsInOneStep)
{
    PartImpl* tool = add("panes/tool");
    PartImpl* bare = add("panes/bare");
    auto* second =
        qobject_cast<SceneImpl*>(run<AddSceneCommand>(*document, Model(document->getModel())).toNode().impl());
    EXPECT_FALSE(item(Click)->isEnabled());
    select({tool, bare});
    QComboBox* action = combo("Open a link");
    auto* link = item(Click)->findChild<ObserverLineEdit*>();
    QComboBox* scene = combo(second->displayName());
    ASSERT_TRUE(action && link && scene);
    EXPECT_EQ(action->currentText(), "Nothing");
    EXPECT_FALSE(link->isVisible());

    const int steps = undoSteps();
    action->setFocus();
    QTest::keyClick(action, Qt::Key_End);
    EXPECT_EQ(text(tool, "click-action"), "show scene");
    EXPECT_EQ(text(bare, "click-action"), "show scene");
    EXPECT_EQ(undoSteps(), steps + 1);
    EXPECT_TRUE(scene->isVisible());
    choose(scene, second->displayName());
    EXPECT_EQ(property(bare, "click-scene")->getValue().toNode().impl(), second);

    set(property(second, "title"), Value(QString("Finale")));
    EXPECT_EQ(scene->currentText(), "Finale");
    set(property(bare, "click-action"), Value(QString("open link")));
    EXPECT_EQ(action->currentIndex(), -1); // mixed
    EXPECT_FALSE(scene->isVisible());
    select({bare});
    EXPECT_TRUE(link->isVisible());
    const int before = undoSteps();
    select({tool});
    select({});
    EXPECT_EQ(undoSteps(), before); // showing writes nothing
}

TEST_F(AdvancedPaletteTest, CopiesInARowAreOneStepAndKeepTheirConnectionsToThemselves)
{
    PartImpl* led = add("electronics/led");
    PartImpl* battery = add("electronics/battery");
    PartImpl* wire = add("electronics/wire");
    set(property(wire, "from"), Value(Node(led->getChildAt(0))));
    set(property(wire, "to"), Value(Node(battery->getChildAt(0))));
    select({led, battery});
    auto boxes = item(Duplication)->findChildren<DoubleSpinBox*>();
    ASSERT_EQ(boxes.size(), 3);
    type(boxes[0]->findChild<QLineEdit*>(), "2");
    type(boxes[1]->findChild<QLineEdit*>(), "10");
    const int steps = undoSteps();
    const size_t parts = firstScene(*document)->parts().size();
    QTest::mouseClick(item(Duplication)->findChild<QPushButton*>(), Qt::LeftButton);

    EXPECT_EQ(undoSteps(), steps + 1);
    const std::vector<PartImpl*> all = firstScene(*document)->parts();
    ASSERT_EQ(all.size(), parts + 6);
    EXPECT_EQ(document->getSelection().size(), 4u);
    std::set<NodeImpl*> ends;
    for (size_t i = parts; i < all.size(); ++i) {
        if (all[i]->classId() != wire->classId())
            continue;
        const NodeImpl* from = all[i]->valueOfProperty(coreKeys::from()).toNode().impl();
        const NodeImpl* to = all[i]->valueOfProperty(coreKeys::to()).toNode().impl();
        ASSERT_TRUE(from && to);
        ends.insert(from->parentNode());
        ends.insert(to->parentNode());
        EXPECT_DOUBLE_EQ(static_cast<ElementImpl*>(from->parentNode())->position().x,
                         static_cast<ElementImpl*>(to->parentNode())->position().x);
    }
    EXPECT_EQ(ends.size(), 4u); // each copy its own, none the originals
    double rightmost = 0;
    for (const ElementImpl* copy : document->getSelection())
        rightmost = std::max(rightmost, copy->position().x);
    EXPECT_NEAR(rightmost, led->position().x + 0.02, 1e-12);
    document->undo();
    EXPECT_EQ(firstScene(*document)->parts().size(), parts);
    select({});
    EXPECT_FALSE(duplicateSelectedParts(*document, 1, {}));
}

TEST_F(AdvancedPaletteTest, PopupSettingsFollowTheSelection)
{
    PartImpl* balloon = add("panes/balloon");
    PartImpl* tool = add("panes/tool");
    select({tool, balloon});
    auto* pane = item(Popup)->findChild<SpacePropertyPane*>();
    ASSERT_TRUE(pane);
    ObserverLineEdit* title = nullptr;
    for (auto* edit : pane->findChildren<ObserverLineEdit*>()) {
        if (edit->modelProperty() == "title")
            title = edit;
    }
    ASSERT_TRUE(title);
    type(title, "Help"); // not entered yet
    const QPointer<SpacePropertyPane> old = pane;
    select({tool});
    EXPECT_EQ(text(balloon->popup(), "title"), "Help");
    EXPECT_TRUE(old);
    loop();
    EXPECT_FALSE(old);
    EXPECT_TRUE(qobject_cast<MsgPane*>(item(Popup)));

    // Explanations show their pop-up's form when they are selected: how they open is set here.
    PartImpl* info = add("core/info");
    select({info});
    const auto boxes = item(Popup)->findChildren<ObserverCheckBox*>();
    auto* hover = item(Popup)->findChild<ObserverStringCheckBox*>();
    ASSERT_TRUE(hover);
    QTest::keyClick(hover, Qt::Key_Space);
    EXPECT_EQ(text(info, "opens-on"), "hover");
    for (ObserverCheckBox* box : boxes) {
        if (box->modelProperty() == "show-once")
            QTest::keyClick(box, Qt::Key_Space);
    }
    EXPECT_TRUE(property(info, "show-once")->getValue().toBool());
    select({info, balloon});
    EXPECT_FALSE(item(Popup)->findChild<ObserverStringCheckBox*>());
    loop();

    palette->hide();
    select({balloon});
    EXPECT_TRUE(item(Popup)->findChild<SpacePropertyPane*>());
    palette->show();
    auto* button = item(Popup)->findChild<QPushButton*>();
    ASSERT_TRUE(button);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(property(balloon->popup(), "open")->getValue().toBool());
    document.reset();
    loop();
}
