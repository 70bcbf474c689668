#include "zkeditor/editPalette.h"

#include "zkeditor/widgets/paletteBox.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class ProbePalette : public EditPalette
{
public:
    explicit ProbePalette(QWidget* parent) : EditPalette(parent, "probe") { connectStates(); }
    ProbePalette(Place place, QWidget* parent) : EditPalette(place, parent, "probe") { connectStates(); }

    using EditPalette::dockLayout;
    using EditPalette::onChildLayoutChanged;
    using EditPalette::reparent;
    using EditPalette::setPlace;

    std::vector<bool> reparentingWhenMoved;

private:
    void connectStates()
    {
        connect(this, &QDockWidget::topLevelChanged, this, [this] { reparentingWhenMoved.push_back(isReparenting()); });
    }
};

/// A main window with a palette whose content is one label.
class EditPaletteTest : public testing::Test
{
protected:
    EditPaletteTest()
    {
        content->setFixedSize(150, 60);
        palette->dockLayout()->addWidget(content);
        window.setCentralWidget(new QWidget);
        window.addDockWidget(Qt::RightDockWidgetArea, palette);
        window.resize(800, 600);
        window.show();
    }

    QMainWindow window;
    ProbePalette* palette = new ProbePalette(&window);
    QLabel* content = new QLabel("content");
};

} // namespace

TEST_F(EditPaletteTest, FloatsAsLargeAsItsContent)
{
    EXPECT_EQ(palette->objectName(), QString("probe")); // or the window's layout could not be kept
    EXPECT_EQ(palette->minimumWidth(), 200);
    EXPECT_EQ(palette->width(), 200);
    QSignalSpy placed(palette, &EditPalette::placeChanged);
    const int docked = palette->height();
    content->setFixedHeight(90);
    palette->onChildLayoutChanged(); // left to its dock area
    EXPECT_EQ(palette->height(), docked);

    palette->undock();
    ASSERT_EQ(placed.count(), 1);
    EXPECT_EQ(placed[0][0].value<EditPalette::Place>(), EditPalette::OutsideDock);
    EXPECT_EQ(palette->place(), EditPalette::OutsideDock);
    EXPECT_TRUE(palette->isResizeEnabled());
    const int before = palette->height();
    EXPECT_LT(before, docked);
    content->setFixedHeight(190);
    palette->onChildLayoutChanged();
    EXPECT_EQ(palette->height(), before + 100);
    content->setFixedHeight(90);
    palette->onChildLayoutChanged();
    EXPECT_EQ(palette->height(), before);
    EXPECT_TRUE(palette->updatesEnabled());

    // Wider content is not cut off.
    content->setFixedWidth(310);
    EXPECT_TRUE(QTest::qWaitFor([&] { return palette->width() >= 310; }, 1000));
}

TEST_F(EditPaletteTest, CanAlwaysBeResizedInADock)
{
    palette->undock();
    palette->setResizeEnabled(false);
    const QSize fixed = palette->size();
    EXPECT_EQ(palette->maximumSize(), fixed);
    palette->setPlace(EditPalette::InDock);
    EXPECT_TRUE(palette->isResizeEnabled());
    EXPECT_EQ(palette->minimumWidth(), 200);
    EXPECT_GT(palette->maximumHeight(), 10000);
    palette->undock(); // the setting is remembered
    EXPECT_FALSE(palette->isResizeEnabled());
    EXPECT_EQ(palette->size(), fixed);
    palette->setResizeEnabled(true);
    palette->handlePlaceChanged(EditPalette::OutsideDock);
    EXPECT_TRUE(palette->isResizeEnabled());
}

TEST_F(EditPaletteTest, TellsItsOwnMovesFromTheUsers)
{
    palette->undock();
    palette->setPlace(EditPalette::InDock);
    palette->setFloating(true);
    EXPECT_EQ(palette->reparentingWhenMoved, std::vector<bool>({true, true, false}));
    EXPECT_FALSE(palette->isReparenting());
    const ProbePalette outside(EditPalette::OutsideDock, &window);
    EXPECT_TRUE(outside.isFloating());
}

TEST_F(EditPaletteTest, HasNoTitleBarInAPaletteBox)
{
    auto* box = new PaletteBox(PaletteBox::StandardStyle);
    window.setCentralWidget(box);
    auto* inner = new ProbePalette(box);
    inner->setWindowTitle("Inner");
    inner->dockLayout()->addWidget(new QLabel("x"));
    box->addItem(inner, "Item");
    QCoreApplication::sendPostedEvents();
    ASSERT_TRUE(inner->titleBarWidget());
    EXPECT_LE(inner->titleBarWidget()->height(), 0);
    EXPECT_EQ(inner->features(), QDockWidget::NoDockWidgetFeatures);
    inner->undock();
    EXPECT_FALSE(inner->isFloating());
    EXPECT_TRUE(inner->isVisible());
    inner->reparent(&window, Qt::WindowFlags(), QPoint(), true); // taken out, it is a palette like others
    EXPECT_FALSE(inner->titleBarWidget());
    EXPECT_TRUE(inner->features() & QDockWidget::DockWidgetFloatable);
}
