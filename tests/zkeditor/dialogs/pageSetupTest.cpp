#include "zkeditor/dialogs/pageSetup.h"

#include "tests/support/testDocument.h"
#include "zkcore/printing/printCommand.h"
#include "zkeditor/widgets/comboBox.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class PageSetupTest : public testing::Test
{
protected:
    /// Shows the dialog for the printer of the test.
    void open(DocumentImpl* document = nullptr)
    {
        dialog = std::make_unique<PageSetupDialog>(&printer, document, nullptr, nullptr, true);
        dialog->show();
    }
    QSpinBox* margin(const char* side) const
    {
        for (QSpinBox* spinBox : dialog->findChildren<QSpinBox*>())
            if (spinBox->accessibleName().startsWith(side))
                return spinBox;
        return nullptr;
    }
    ComboBox* choice(const char* name) const { return dialog->findChild<ComboBox*>(name); }
    /// As the user does it, with the keyboard.
    void choose(const char* name, const QString& text) const
    {
        ComboBox* box = choice(name);
        box->setCurrentIndex(box->findText(text));
        Q_EMIT box->activated(box->currentIndex());
    }
    std::vector<int> margins() const
    {
        return {margin("Top")->value(), margin("Left")->value(), margin("Bottom")->value(), margin("Right")->value()};
    }
    QImage picture() const { return dialog->findChild<QLabel*>("preview")->pixmap().toImage(); }
    void click(const QString& text) const
    {
        for (QPushButton* button : dialog->findChildren<QPushButton*>())
            if (button->text() == text)
                QTest::mouseClick(button, Qt::LeftButton);
    }
    /// The rows and columns of an otherwise white picture that have a dotted line.
    static std::pair<std::vector<int>, std::vector<int>> guides(const QImage& image)
    {
        std::vector<int> rows;
        std::vector<int> columns;
        const auto dots = [&](int n, int length, bool row) {
            int count = 0;
            for (int i = 0; i < length; ++i)
                count += (row ? image.pixelColor(i, n) : image.pixelColor(n, i)) != QColor(Qt::white);
            return count;
        };
        for (int y = 0; y < image.height(); ++y)
            if (dots(y, image.width(), true) > image.width() / 4)
                rows.push_back(y);
        for (int x = 0; x < image.width(); ++x)
            if (dots(x, image.height(), false) > image.height() / 4)
                columns.push_back(x);
        return {rows, columns};
    }

    Printer printer;
    std::unique_ptr<PageSetupDialog> dialog;
};

using PageSetupDeathTest = PageSetupTest;

} // namespace

TEST_F(PageSetupTest, PaperBringsItsMarginsAndCancelKeepsTheOldOnes)
{
    printer.setOrientation(QPageLayout::Landscape);
    printer.setPageSize(QPageSize::Legal);
    printer.setScaleFactor(0.456);
    const Printer before = printer;
    open();
    EXPECT_EQ(dialog->width(), 320);
    EXPECT_EQ(choice("pageSize")->count(), 30);
    EXPECT_EQ(choice("pageSize")->currentText(), QString("Legal (216 x 356 mm)"));
    EXPECT_EQ(choice("orientation")->currentText(), QString("Landscape"));
    EXPECT_EQ(dialog->findChild<QSpinBox*>("scaleFactor")->value(), 46);
    choose("orientation", "Portrait");
    choose("pageSize", "A4 (210 x 297 mm)");
    EXPECT_EQ(margins(), (std::vector{15, 11, 15, 11}));
    choose("pageSize", "A8 (52 x 74 mm)");
    EXPECT_EQ(margins(), (std::vector{5, 5, 5, 5})); // the least that can be printed
    margin("Bottom")->setValue(69);
    choose("pageSize", "A0 (841 x 1189 mm)");
    EXPECT_EQ(margins(), (std::vector{59, 42, 59, 42})); // nothing left of the small paper's limits
    click("&Cancel");
    EXPECT_TRUE(printer == before);

    open();
    choose("pageSize", "Envelope #10 (105 x 241 mm)");
    click("&Ok");
    EXPECT_EQ(printer.pageSize(), QPageSize::Comm10E);
    EXPECT_EQ(printer.orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printer.topMargin(), 5);
    EXPECT_EQ(printer.leftMargin(), 12);
    EXPECT_NEAR(printer.scaleFactor(), 0.46, 1e-9);
}

TEST_F(PageSetupTest, OppositeMarginsLeaveEachOtherRoom)
{
    open();
    EXPECT_EQ(margin("Bottom")->maximum(), 297 - 15);
    EXPECT_EQ(margin("Left")->minimum(), 5);
    margin("Top")->setValue(200);
    EXPECT_EQ(margin("Bottom")->maximum(), 97);
    choose("orientation", "Landscape"); // only 210 mm high
    EXPECT_EQ(margin("Top")->value(), 195);
    EXPECT_EQ(margin("Bottom")->maximum(), 15);
    const auto [rows, columns] = guides(picture());
    EXPECT_EQ(rows, (std::vector{117})); // drawn where the margins are after the cut
}

TEST_F(PageSetupTest, GuidesStandAtTheMargins)
{
    open();
    EXPECT_EQ(picture().size(), QSize(126, 178));
    auto [rows, columns] = guides(picture());
    EXPECT_EQ(rows, (std::vector{9, 169}));
    EXPECT_EQ(columns, (std::vector{7, 119}));
    choose("orientation", "Landscape");
    EXPECT_EQ(picture().size(), QSize(178, 126));
    choose("pageSize", "Ledger (432 x 279 mm)");
    EXPECT_LE(picture().width(), 178);
    EXPECT_LE(picture().height(), 126);
}

TEST_F(PageSetupTest, ReturnEndsTypingOnly)
{
    open();
    QSpinBox* top = margin("Top");
    top->setFocus();
    top->selectAll();
    QTest::keyClicks(top, "33");
    QTest::keyClick(top, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(top->value(), 33);
    auto* scale = dialog->findChild<QSpinBox*>("scaleFactor");
    QTest::keyClick(scale, Qt::Key_Enter);
    EXPECT_TRUE(dialog->isVisible());
    auto* toWidth = dialog->findChild<QCheckBox*>();
    QTest::keyClick(toWidth, Qt::Key_Space);
    EXPECT_FALSE(scale->isEnabled());
    QTest::keyClick(toWidth, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(printer.scaleToWidth());
    EXPECT_EQ(printer.topMargin(), 33);
    open();
    EXPECT_FALSE(dialog->findChild<QSpinBox*>("scaleFactor")->isEnabled());
}

TEST_F(PageSetupTest, ShowsTheFirstPageAndFollowsWhenSpinningEnds)
{
    DocumentImpl document;
    set(property(firstScene(document), "background"), Value(QColor(0, 0, 255)));
    open(&document);
    const auto blueAt = [this](int x, int y) { return picture().pixelColor(x, y) == QColor(0, 0, 255); };
    EXPECT_TRUE(blueAt(20, 15));
    EXPECT_FALSE(blueAt(3, 15));
    margin("Left")->setValue(60); // at 36 pixels
    EXPECT_TRUE(blueAt(20, 15));  // the page as it was, under the new guide
    EXPECT_TRUE(QTest::qWaitFor([&] { return !blueAt(20, 15); }, 3000));
    EXPECT_TRUE(blueAt(50, 15));
    dialog->findChild<QSpinBox*>("scaleFactor")->setValue(10); // at once
    EXPECT_FALSE(blueAt(90, 15));
}

TEST_F(PageSetupDeathTest, NeedsAPrinter)
{
    EXPECT_DEATH(PageSetupDialog(nullptr, nullptr, nullptr, nullptr, true), "ZK_ASSERT: \"m_printer\"");
}
