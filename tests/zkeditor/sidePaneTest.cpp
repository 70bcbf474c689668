#include "zkeditor/sidePane.h"

#include "tests/support/testDocument.h"
#include "zkeditor/modelsBrowser.h"
#include "zkeditor/partsTree.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/paletteButtonBar.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class SidePaneTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadTestKit()); }

    static PaletteBox* boxOf(const SidePane& pane) { return qobject_cast<PaletteBox*>(pane.widget()); }
    static QStringList labels(const SidePane& pane)
    {
        QStringList texts;
        for (int i = 0; i < boxOf(pane)->count(); ++i)
            texts.append(boxOf(pane)->itemLabel(i) +
                         (boxOf(pane)->isItemOpen(i) ? QStringLiteral(" open") : QString()));
        return texts;
    }
    static void clickHeader(const SidePane& pane, int index)
    {
        auto* header = boxOf(pane)->item(index)->parentWidget()->findChild<PaletteButtonBar*>();
        QTest::mouseClick(header, Qt::LeftButton, {}, QPoint(10, 5));
    }

    DocumentImpl document;
};

} // namespace

TEST_F(SidePaneTest, MakesThePanesOfItsMaskThePartsWithTheFirstDocument)
{
    SidePane all(SidePane::AllPanes);
    EXPECT_EQ(labels(all), QStringList({"Properties open", "Models"}));
    EXPECT_EQ(all.getPartsTree(), nullptr);
    all.setDocument(nullptr);
    EXPECT_EQ(all.getPartsTree(), nullptr);
    all.setDocument(&document);
    EXPECT_EQ(labels(all), QStringList({"Properties open", "Parts open", "Models"}));
    EXPECT_EQ(boxOf(all)->flags(), 17u);

    SidePane properties(SidePane::PropertiesPane);
    properties.setDocument(&document);
    properties.showSection(SidePane::PartsTreePane, true);
    properties.showSection(SidePane::ModelsPane, true);
    EXPECT_EQ(labels(properties), QStringList("Properties open"));
    EXPECT_EQ(properties.getPartsTree(), nullptr);
    EXPECT_EQ(properties.getModelsBrowser(), nullptr);

    SidePane rest(SidePane::PartsTreePane | SidePane::ModelsPane);
    rest.setDocument(&document);
    EXPECT_EQ(labels(rest), QStringList({"Models", "Parts open"}));
    EXPECT_EQ(rest.getPropertyPane(), nullptr);
    EXPECT_DEATH(rest.showSpaceProperties(), "ZK_ASSERT: \"m_propPane\" in ");
    EXPECT_DEATH(rest.showSection(SidePane::AllPanes, true), "SidePane: Attempting to show unknown section");
}

TEST_F(SidePaneTest, AnotherDocumentReplacesThePartsInPlace)
{
    SidePane pane(SidePane::AllPanes);
    QSignalSpy chosen(&pane, &SidePane::partChosen);
    pane.setDocument(&document);
    pane.showSection(SidePane::PartsTreePane, false);
    const QPointer<PartsTree> first = pane.getPartsTree();
    {
        DocumentImpl second;
        pane.setDocument(&second);
        EXPECT_EQ(labels(pane), QStringList({"Properties open", "Parts", "Models"}));
        EXPECT_NE(pane.getPartsTree(), first);
        EXPECT_EQ(boxOf(pane)->item(1), pane.getPartsTree());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(first);
    }
    pane.setDocument(&document);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    pane.showSection(SidePane::PartsTreePane, true);
    auto* field = pane.getPartsTree()->findChild<QLineEdit*>();
    QTest::keyClicks(field, QStringLiteral("testkit/lamp"));
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.first().first().toUInt(), getCidForString("testkit/lamp"));
}

TEST_F(SidePaneTest, OpeningAnItemThatDoesNotFitClosesTheLowestOther)
{
    QMainWindow window;
    auto* pane = new SidePane(SidePane::AllPanes, &window);
    window.addDockWidget(Qt::RightDockWidgetArea, pane);
    pane->setDocument(&document);
    window.resize(700, 420);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(labels(*pane), QStringList({"Properties open", "Parts open", "Models"}));
    clickHeader(*pane, 2);
    EXPECT_EQ(labels(*pane), QStringList({"Properties open", "Parts", "Models open"}));
    clickHeader(*pane, 1);
    EXPECT_EQ(labels(*pane), QStringList({"Properties open", "Parts open", "Models"}));
}

TEST_F(SidePaneTest, AskingForPropertiesOpensThem)
{
    SidePane pane(SidePane::AllPanes);
    pane.setDocument(&document);
    PartImpl* box = addPart(document, "testkit/box");
    document.setSelection({box});
    for (int way = 0; way < 3; ++way) {
        pane.hide();
        pane.showSection(SidePane::PropertiesPane, false);
        if (way == 0)
            pane.showSelectedPartProperties();
        else if (way == 1)
            pane.showPartProperties({box});
        else
            pane.showSpaceProperties();
        EXPECT_TRUE(pane.isVisible());
        EXPECT_TRUE(boxOf(pane)->isItemOpen(0));
    }
}
