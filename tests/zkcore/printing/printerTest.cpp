#include "zkcore/printing/printer.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

TEST(PrinterTest, StartsWithA4AndFivePercentMargins)
{
    const Printer printer;
    EXPECT_EQ(printer.getStandardPaperSizeMM(), QSizeF(210, 297));
    EXPECT_EQ(printer.printableRectMM(), QRectF(11, 15, 188, 267));
    EXPECT_EQ(printer.scaleFactor(), 1.0);
    EXPECT_FALSE(printer.scaleToWidth());
}

TEST(PrinterTest, HoldsMarginsAndScaleWithinTheirRanges)
{
    Printer printer;
    printer.setTopMargin(0);
    printer.setLeftMargin(-7);
    printer.setBottomMargin(4);
    printer.setRightMargin(6);
    EXPECT_EQ(printer.topMargin(), 5);
    EXPECT_EQ(printer.leftMargin(), 5);
    EXPECT_EQ(printer.bottomMargin(), 5);
    EXPECT_EQ(printer.rightMargin(), 6);

    printer.setScaleFactor(50.0);
    EXPECT_EQ(printer.scaleFactor(), 10.0);
    printer.setScaleFactor(0.0);
    EXPECT_EQ(printer.scaleFactor(), 0.1);
    printer.setScaleFactor(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(printer.scaleFactor(), 0.1);

    printer.setRightMargin(205);
    EXPECT_TRUE(printer.printableRectMM().isEmpty());
    printer.setPageSize(QPageSize::Custom);
    EXPECT_EQ(printer.pageSize(), QPageSize::A4);
}

TEST(PrinterTest, MarginsStayWhereTheyAreWhenThePaperIsTurned)
{
    Printer printer;
    printer.setPageSize(QPageSize::Letter);
    printer.setTopMargin(30);
    printer.setLeftMargin(10);
    printer.setOrientation(QPageLayout::Landscape);
    EXPECT_NEAR(printer.getStandardPaperSizeMM().width(), 279.4, 0.1);
    EXPECT_NEAR(printer.getStandardPaperSizeMM().height(), 215.9, 0.1);
    EXPECT_EQ(printer.printableRectMM().topLeft(), QPointF(10, 30));

    const QPageLayout layout = printer.toPageLayout();
    EXPECT_EQ(layout.orientation(), QPageLayout::Landscape);
    EXPECT_EQ(layout.pageSize().id(), QPageSize::Letter);
    const QRectF painted = layout.paintRect(QPageLayout::Millimeter);
    EXPECT_NEAR(painted.left(), 10.0, 0.2);
    EXPECT_NEAR(painted.top(), 30.0, 0.2);
    EXPECT_NEAR(painted.width(), printer.printableRectMM().width(), 0.4);
}
