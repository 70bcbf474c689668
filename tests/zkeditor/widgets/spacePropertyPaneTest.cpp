#include "zkeditor/widgets/spacePropertyPane.h"

#include "../paneFixture.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkeditor/widgets/nodePaletteBox.h"
#include "zkeditor/widgets/observerCombobox.h"
#include "zkeditor/widgets/observerLineEdit.h"
#include "zkeditor/widgets/paneWidget.h"

#include <QSignalSpy>

namespace {

class SpacePropertyPaneTest : public PaneTest
{
};

} // namespace

TEST_F(SpacePropertyPaneTest, EditsSpacesAndWhatDomainsGiveThem)
{
    SceneImpl* first = firstScene(*document);
    auto* second =
        qobject_cast<SceneImpl*>(run<AddSceneCommand>(*document, Model(document->getModel())).toNode().impl());
    const MessageCapture messages;
    auto* pane = new SpacePropertyPane(document.get(), {first, second});
    EXPECT_EQ(messages.texts(), QStringList());
    window.setCentralWidget(pane);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* box = pane->findChild<NodePaletteBox*>();
    ASSERT_TRUE(box);
    QStringList labels;
    int domain = -1;
    for (int i = 0; i < box->count(); ++i) {
        labels.append(box->itemLabel(i));
        if (labels.last() == "Pace")
            domain = i;
    }
    // The space's own sections first.
    EXPECT_EQ(labels.mid(0, 2), (QStringList{"General", "Appearance"}));
    ASSERT_GT(domain, 1);
    EXPECT_TRUE(box->isItemOpen(0));
    QSignalSpy layouts(pane, &SpacePropertyPane::layoutChanged);
    box->showItem(domain, true);
    EXPECT_GE(layouts.count(), 1);

    auto* pace = pane->findChild<ObserverLineEdit*>("pace");
    const int steps = undoSteps();
    type(pace, "brisk");
    QTest::keyClick(pace, Qt::Key_Return);
    const auto key = PropertyKey::fromString("pace");
    EXPECT_EQ(first->valueOfProperty(key, getCidForString("panes/*")).toQString(), "brisk");
    EXPECT_EQ(second->valueOfProperty(key, getCidForString("panes/*")).toQString(), "brisk");
    EXPECT_EQ(undoSteps(), steps + 1);
    EXPECT_TRUE(pane->findChild<ObserverComboBox*>("speedCombo"));
    PaneWidget::unbindChildren(pane);
}

TEST_F(SpacePropertyPaneTest, LivesWithoutADocument)
{
    const SpacePropertyPane pane(nullptr, {});
    EXPECT_FALSE(pane.findChild<NodePaletteBox*>());
}
