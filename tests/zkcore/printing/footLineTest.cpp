#include "tests/support/testDocument.h"
#include "zkcore/printing/printCommand.h"
#include "zkcore/services/flowchartRunner.h"

#include <QImage>
#include <gtest/gtest.h>

namespace {

QImage printedPage(const DocumentImpl& document, const QString& footLine)
{
    Printer printer;
    printer.setScaleToWidth(true);
    printer.setFootLine(footLine);
    return PrintCommand::generatePreview(printer, &document, nullptr, 420, 594, 1).front().toImage();
}

} // namespace

TEST(FootLineTest, StandsInTheBottomMarginAndLeavesThePageAsItIs)
{
    DocumentImpl document;
    const QImage plain = printedPage(document, QString());
    const QImage with = printedPage(document, "A line at the foot");
    QRect changed;
    for (int y = 0; y < plain.height(); ++y)
        for (int x = 0; x < plain.width(); ++x)
            if (plain.pixel(x, y) != with.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
    ASSERT_FALSE(changed.isEmpty());
    // Between the margin and the strip on which devices cannot print, in the middle; two pixels are a millimetre.
    EXPECT_GT(changed.top(), (297 - 15) * 2);
    EXPECT_LE(changed.bottom(), (297 - 5) * 2);
    EXPECT_NEAR(changed.center().x(), 210, 6);
}

TEST(RunningStateTest, LampsAndBlocksAreSeenToRun)
{
    DocumentImpl document;
    ASSERT_TRUE(document.load(ZK_SOURCE_DIR "/samples/crossing.zkdoc"));
    const QImage still = printedPage(document, QString());
    FlowchartRunner runner(&document);
    runner.start();
    const QImage starting = printedPage(document, QString());
    runner.advance(2.0);
    const QImage running = printedPage(document, QString());
    EXPECT_FALSE(still == starting);
    EXPECT_FALSE(starting == running);
    runner.stop();
    EXPECT_TRUE(still == printedPage(document, QString()));
}
