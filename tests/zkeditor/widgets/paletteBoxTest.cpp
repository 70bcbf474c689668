#include "zkeditor/widgets/paletteBox.h"

#include "tests/support/messageCapture.h"
#include "zkeditor/widgets/iconSet.h"
#include "zkeditor/widgets/observerSpinbox.h"
#include "zkeditor/widgets/paletteButtonBar.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

/// A box in a window of its own, whose contents have a fixed height.
class PaletteBoxTest : public testing::Test
{
protected:
    PaletteBox& make(unsigned int flags)
    {
        box = new PaletteBox(flags, &window);
        box->resize(240, 400);
        window.resize(240, 400);
        return *box;
    }

    QWidget* add(const char* label, int height = 50)
    {
        auto* content = new QLabel(label);
        content->setFixedHeight(height);
        box->addItem(content, label);
        return content;
    }

    PaletteButtonBar* header(int index) const
    {
        return box->item(index)->parentWidget()->findChild<PaletteButtonBar*>(QString(), Qt::FindDirectChildrenOnly);
    }

    void click(int index) const { QTest::mouseClick(header(index), Qt::LeftButton); }

    std::vector<int> open() const
    {
        std::vector<int> indexes;
        for (int i = 0; i < box->count(); ++i) {
            EXPECT_EQ(box->isItemOpen(i), header(i)->isChecked()) << i;
            EXPECT_EQ(box->isItemOpen(i), !box->item(i)->isHidden()) << i;
            if (box->isItemOpen(i))
                indexes.push_back(i);
        }
        return indexes;
    }

    QWidget window;
    PaletteBox* box = nullptr;
};

using PaletteBoxDeathTest = PaletteBoxTest;

/// Counts what it costs to have it.
class CostlyContent : public QWidget
{
public:
    int painted = 0;
    int laidOut = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++painted; }
    void resizeEvent(QResizeEvent*) override { ++laidOut; }
};

using Indexes = std::vector<int>;

} // namespace

TEST_F(PaletteBoxTest, KeepsItemsInOrder)
{
    make(PaletteBox::StandardStyle);
    QWidget* first = add("first");
    auto* last = new QLabel;
    auto* middle = new QLabel;
    EXPECT_EQ(box->insertItem(17, last, "last"), 1);
    EXPECT_EQ(box->insertItem(1, middle, "middle"), 1);
    EXPECT_EQ(box->insertItem(0, nullptr, "none"), -1);
    EXPECT_EQ(box->count(), 3);
    EXPECT_EQ(box->indexOf(last), 2);
    EXPECT_EQ(box->itemLabel(1), QString("middle"));
    EXPECT_EQ(open(), Indexes({0, 1, 2}));
    EXPECT_EQ(box->openedItemIndex(), -1); // others may be open as well
    window.show();
    EXPECT_LT(first->mapTo(box, QPoint()).y(), header(1)->mapTo(box, QPoint()).y());
    EXPECT_LT(middle->mapTo(box, QPoint()).y(), header(2)->mapTo(box, QPoint()).y());

    const QPointer<QWidget> gone(middle);
    QSignalSpy changed(box, &PaletteBox::layoutChanged);
    EXPECT_EQ(box->removeItem(middle), 1);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_FALSE(gone);
    QWidget stranger;
    EXPECT_EQ(box->removeItem(&stranger), -1);
    EXPECT_EQ(box->removeItem(nullptr), -1);
    EXPECT_EQ(box->count(), 2);

    box->setItemLabel(1, "renamed");
    box->setItemToolTip(1, "a hint");
    EXPECT_EQ(box->itemLabel(1), QString("renamed"));
    EXPECT_EQ(box->itemToolTip(1), QString("a hint"));
    box->setItemToolTip(1, QString());
    EXPECT_EQ(box->itemToolTip(1), QString());
    box->setItemLabel(2, "nobody");
    EXPECT_EQ(box->itemLabel(2), QString());
    EXPECT_EQ(box->item(-1), nullptr);
    box->setItemEnabled(0, false);
    EXPECT_FALSE(box->isItemEnabled(0));
    EXPECT_TRUE(header(0)->isEnabled());
}

TEST_F(PaletteBoxTest, ExclusiveBoxHasOneItemOpen)
{
    make(PaletteBox::PlainStyle | PaletteBox::Exclusive);
    add("a");
    EXPECT_EQ(box->openedItemIndex(), 0);
    add("b");
    add("c");
    EXPECT_EQ(open(), Indexes({2}));
    click(0);
    EXPECT_EQ(open(), Indexes({0}));
    click(0);
    EXPECT_EQ(open(), Indexes());
    EXPECT_EQ(box->openedItemIndex(), -1);
    QSignalSpy changed(box, &PaletteBox::layoutChanged);
    EXPECT_EQ(box->showItem(1, true), 1);
    EXPECT_EQ(box->showItem(box->item(2), true), 2);
    EXPECT_EQ(box->openedItemIndex(), 2);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(PaletteBoxTest, ClosesTheLowestOpenItemToFit)
{
    make(PaletteBox::StandardStyle | PaletteBox::CloseToFit);
    for (const char* label : {"a", "b", "c", "d"})
        add(label, 80);
    window.show();
    const int headerHeight = header(0)->height();
    box->showItem(0, false);
    window.resize(240, 4 * headerHeight + 4 * 80);
    click(0);
    EXPECT_EQ(open(), Indexes({0, 1, 2, 3})); // exactly as high as the parent

    click(0);
    window.resize(240, 4 * headerHeight + 4 * 80 - 1);
    click(0);
    EXPECT_EQ(open(), Indexes({0, 1, 2}));
    // Only one is closed, also when that is not enough; never the one that was opened.
    window.resize(240, 100);
    click(3);
    EXPECT_EQ(open(), Indexes({0, 1, 3}));
    click(3);
    EXPECT_EQ(open(), Indexes({0, 1})); // closing closes nothing else
}

TEST_F(PaletteBoxTest, ReplacedContentTakesOverWhetherItIsShown)
{
    make(PaletteBox::StandardStyle);
    QWidget* opened = add("open");
    QWidget* closed = add("closed");
    box->showItem(1, false);
    window.show();
    QSignalSpy changed(box, &PaletteBox::layoutChanged);
    auto* newOpened = new QLabel;
    auto* newClosed = new QLabel;
    EXPECT_EQ(box->replaceItem(opened, newOpened), 0);
    EXPECT_EQ(box->replaceItem(closed, newClosed), 1);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_TRUE(newOpened->isVisible());
    EXPECT_TRUE(newClosed->isHidden());
    EXPECT_TRUE(opened->isVisible()); // the caller's to dispose of
    EXPECT_EQ(box->indexOf(opened), -1);
    delete opened;
    click(1);
    EXPECT_TRUE(newClosed->isVisible());
}

TEST_F(PaletteBoxTest, ChildResizeWaitsForTheNextItem)
{
    make(PaletteBox::StandardStyle);
    auto* content = new QWidget;
    content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    box->addItem(content, "tree");
    auto* column = new QVBoxLayout(&window);
    column->addWidget(box);
    window.show();
    const auto reaches = [&] { return content->mapTo(box, QPoint(0, content->height())).y(); };
    QCoreApplication::sendPostedEvents();
    const int before = reaches();
    EXPECT_LT(before, box->height());
    box->setChildResize(true);
    box->showItem(0, false);
    box->showItem(0, true);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(reaches(), before);
    box->addItem(new QWidget, "another");
    box->showItem(1, false);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(reaches() + header(1)->height(), box->height());
}

TEST_F(PaletteBoxTest, ClosedContentsCostNothing)
{
    make(PaletteBox::StandardStyle);
    auto* content = new CostlyContent;
    content->setMinimumHeight(30);
    box->addItem(content, "costly");
    box->showItem(0, false);
    window.show();
    window.resize(300, 500);
    box->resize(300, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(content->painted + content->laidOut, 0);
    click(0);
    window.grab();
    EXPECT_GT(content->painted, 0);
}

// Boxes whose contents were made at any time, one within the other, between controls that are in none.
TEST_F(PaletteBoxTest, TabGoesThroughABoxAsAWhole)
{
    make(PaletteBox::StandardStyle);
    auto* before = new QLineEdit(&window);
    auto* inner = new PaletteBox(PaletteBox::PlainStyle);
    auto* scrolled = new QScrollArea;
    scrolled->setFocusPolicy(Qt::NoFocus);
    scrolled->setWidget(inner);
    scrolled->setWidgetResizable(true);
    box->addItem(scrolled, "outer");
    auto* spin = new ObserverSpinBox;
    auto* tree = new QTreeView;
    inner->addItem(spin, "spin box");
    inner->insertItem(0, tree, "tree");
    auto* between = new QLineEdit(&window); // in the toolkit's order it stands amid what is in the box
    auto* last = new QLineEdit;
    box->addItem(last, "last");
    auto* late = new QLineEdit;
    auto* row = new QWidget;
    auto* rowColumn = new QVBoxLayout(row);
    rowColumn->addWidget(late);
    inner->insertItem(1, row, "row");
    for (QWidget* widget : {before, between}) {
        widget->move(0, 550);
        widget->resize(50, 20);
    }
    window.resize(300, 600);
    box->resize(300, 500);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    const auto innerHeader = [inner](int index) {
        return inner->item(index)->parentWidget()->findChild<PaletteButtonBar*>(QString(), Qt::FindDirectChildrenOnly);
    };
    const std::vector<QWidget*> order = {header(0),      innerHeader(0),     tree,      innerHeader(1), late,
                                         innerHeader(2), spin->focusProxy(), header(1), last,           between,
                                         before};
    order.front()->setFocus();
    for (size_t i = 1; i <= order.size(); ++i) {
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget(), order[i % order.size()]) << i;
    }
    for (size_t i = order.size(); i > 0; --i) {
        QTest::keyClick(window.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(window.focusWidget(), order[i - 1]) << i;
    }
}

TEST_F(PaletteBoxTest, TabGoesThroughABoxThatIsAWindow)
{
    PaletteBox alone(PaletteBox::StandardStyle);
    auto* late = new QLineEdit(&alone); // older than the headers
    auto* early = new QLineEdit(&alone);
    alone.addItem(late, "second");
    alone.insertItem(0, early, "first");
    alone.show();
    alone.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&alone));
    early->setFocus();
    QTest::keyClick(alone.windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(alone.focusWidget(), late->parentWidget()->findChild<PaletteButtonBar*>());
    QTest::keyClick(alone.windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(alone.focusWidget(), late);
    QTest::keyClick(alone.windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(alone.focusWidget(), early->parentWidget()->findChild<PaletteButtonBar*>());
}

TEST_F(PaletteBoxTest, WorksByKeyboard)
{
    make(PaletteBox::StandardStyle);
    auto* late = new QLineEdit(&window); // older than the headers, and still behind its own
    auto* early = new QLineEdit(&window);
    box->addItem(late, "second");
    box->insertItem(0, early, "first");
    box->addItem(new QLabel, "third");
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    header(0)->setFocus();
    for (QWidget* next : {static_cast<QWidget*>(early), static_cast<QWidget*>(header(1)), static_cast<QWidget*>(late),
                          static_cast<QWidget*>(header(2))}) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget(), next);
    }
    // What an item gets later comes between its header and the next one.
    auto* added = new QLineEdit(box->item(2));
    added->show();
    header(1)->setFocus();
    box->showItem(1, false);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), header(2));
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), added);

    header(0)->setFocus();
    const auto press = [&](Qt::Key key, int index) {
        QTest::keyClick(window.focusWidget(), key);
        EXPECT_TRUE(header(index)->hasFocus()) << key;
    };
    press(Qt::Key_Up, 0);
    press(Qt::Key_Down, 1);
    press(Qt::Key_End, 2);
    press(Qt::Key_Down, 2);
    press(Qt::Key_Home, 0);
    press(Qt::Key_Space, 0);
    EXPECT_FALSE(box->isItemOpen(0));
    press(Qt::Key_Return, 0);
    EXPECT_TRUE(box->isItemOpen(0));
    EXPECT_EQ(header(0)->accessibleName(), QString("first"));
    EXPECT_EQ(header(0)->accessibleDescription(), QString("expanded"));

    // The focus does not get lost with what is closed.
    early->setFocus();
    click(0);
    EXPECT_TRUE(header(0)->hasFocus());
    EXPECT_EQ(header(0)->accessibleDescription(), QString("collapsed"));
}

TEST_F(PaletteBoxTest, SurvivesWhateverAClosedFieldLeadsTo)
{
    // A field that loses the focus writes what was typed, and that may end the whole palette.
    for (const bool whole : {true, false}) {
        QWidget frame;
        auto* doomed = new PaletteBox(PaletteBox::PlainStyle | PaletteBox::Exclusive, &frame);
        auto* field = new QLineEdit;
        doomed->addItem(new QLabel("one"), "one");
        doomed->addItem(field, "two");
        frame.show();
        frame.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
        field->setFocus();
        QTest::keyClicks(field, "typed");
        const QPointer<PaletteBox> box2(doomed);
        if (whole)
            QObject::connect(doomed, &PaletteBox::layoutChanged, [box2] { delete box2.data(); });
        else
            QObject::connect(field, &QLineEdit::editingFinished, [box2] { box2->removeItem(box2->item(0)); });
        EXPECT_EQ(doomed->showItem(0, true), -1);
        EXPECT_EQ(box2.isNull(), whole);
    }
}

TEST_F(PaletteBoxTest, LongLabelsAreCutBeforeTheRightEnd)
{
    make(PaletteBox::StandardStyle);
    add("x");
    const QFontMetrics metrics = header(0)->fontMetrics();
    const QString label("A rather long label of a section");
    const int whole = metrics.horizontalAdvance(label);
    EXPECT_EQ(PaletteButtonBar::fittingText(label, metrics, whole + 1), label);
    for (const int width : {whole, whole / 2, 40}) {
        const QString cut = PaletteButtonBar::fittingText(label, metrics, width);
        ASSERT_TRUE(cut.endsWith("...")) << width;
        EXPECT_LT(metrics.horizontalAdvance(cut), width);
        const qsizetype kept = cut.size() - 3;
        EXPECT_TRUE(label.startsWith(cut.left(kept)));
        EXPECT_GE(metrics.horizontalAdvance(cut) + metrics.horizontalAdvance(label[kept]), width) << "one more fits";
    }
    EXPECT_EQ(PaletteButtonBar::fittingText(label, metrics, 1), QString("..."));
    const QString faces = QString::fromUtf8("\U0001F600\U0001F600\U0001F600");
    for (int width = 1; width < metrics.horizontalAdvance(faces); ++width)
        EXPECT_EQ(PaletteButtonBar::fittingText(faces, metrics, width).chopped(3).size() % 2, 0) << width;
    box->setItemLabel(0, "&R&D");
    EXPECT_EQ(box->itemLabel(0), QString("&R&D")); // shown as it is
    EXPECT_TRUE(header(0)->shortcut().isEmpty());
}

TEST_F(PaletteBoxTest, HeadersFollowStyleStateAndDirection)
{
    const auto picture = [](unsigned int style, bool open, Qt::LayoutDirection direction) {
        PaletteButtonBar bar(style);
        bar.setLayoutDirection(direction);
        bar.setChecked(open);
        bar.resize(120, bar.sizeHint().height());
        return bar.grab().toImage();
    };
    for (const unsigned int style : {PaletteBox::StandardStyle, PaletteBox::PlainStyle, PaletteBox::SectionStyle}) {
        const QImage open = picture(style, true, Qt::LeftToRight);
        EXPECT_NE(open, picture(style, false, Qt::LeftToRight)) << style;
        EXPECT_EQ(open.mirrored(true, false), picture(style, true, Qt::RightToLeft)) << style;
    }
    // The first style bit counts, and the others do not matter.
    EXPECT_EQ(picture(PaletteBox::PlainStyle | PaletteBox::SectionStyle | PaletteBox::Exclusive, true, Qt::LeftToRight),
              picture(PaletteBox::PlainStyle, true, Qt::LeftToRight));
    PaletteButtonBar bar(PaletteBox::StandardStyle);
    EXPECT_EQ(bar.palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_TRUE(bar.font().bold());
    EXPECT_EQ(bar.font().pointSize(), 8);
    const int height = qMax(bar.fontMetrics().height(), 17);
    bar.setText("Label");
    EXPECT_EQ(bar.sizeHint(), QSize(bar.fontMetrics().horizontalAdvance("Label") + 21 + 2 * 18, height));
}

TEST_F(PaletteBoxDeathTest, BrokenCallsAreFatal)
{
    make(PaletteBox::StandardStyle);
    add("a");
    QWidget stranger;
    EXPECT_DEATH(box->replaceItem(&stranger, new QLabel), "ZK_ASSERT: \"index >= 0\" in ");
    EXPECT_DEATH(box->showItem(1, true), "ZK_ASSERT: \"item\" in ");
    EXPECT_DEATH(box->setItemEnabled(1, true), "ZK_ASSERT: \"w\" in ");
    EXPECT_DEATH(PaletteButtonBar{PaletteBox::Exclusive},
                 "PaletteButtonBar: Attempting to contruct button with unknown style 8");
}

TEST(IconSetTest, FillsInWhatIsMissing)
{
    const auto filled = [](Qt::GlobalColor color) {
        QPixmap pixmap(4, 4);
        pixmap.fill(color);
        return pixmap;
    };
    const auto color = [](const QPixmap& pixmap) { return pixmap.toImage().pixelColor(1, 1); };
    IconSet set;
    EXPECT_TRUE(set.pixmap(QIcon::Normal, QIcon::On).isNull());
    set.setPixmap(filled(Qt::red), QIcon::Normal, QIcon::On);
    EXPECT_EQ(color(set.pixmap(QIcon::Normal, QIcon::Off)), QColor(Qt::red));
    EXPECT_EQ(color(set.pixmap(QIcon::Active, QIcon::On)), QColor(Qt::red));
    set.setPixmap(filled(Qt::green), QIcon::Normal, QIcon::Off);
    EXPECT_EQ(color(set.pixmap(QIcon::Active, QIcon::Off)), QColor(Qt::green));
    MessageCapture messages;
    set.setPixmap(filled(Qt::blue), QIcon::Disabled, QIcon::On);
    EXPECT_EQ(messages.warnings(),
              QStringList("IconSet: Disabled icons are automatically generated - ignoring pixmap"));
    const QColor gray = color(set.pixmap(QIcon::Disabled, QIcon::On));
    EXPECT_EQ(gray.saturation(), 0);
    EXPECT_EQ(gray.value(), qGray(QColor(Qt::red).rgb()));
}
