#include "zkcore/printing/printCommand.h"

#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/model/view.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class FixedView : public View
{
public:
    explicit FixedView(SpaceImpl* space) : m_space(space) {}
    Space space() const override { return m_space; }

private:
    Space m_space;
};

/// A4 with 10 mm at every side: 190 by 277 mm to print on.
Printer tenMillimetres()
{
    Printer printer;
    printer.setTopMargin(10);
    printer.setLeftMargin(10);
    printer.setBottomMargin(10);
    printer.setRightMargin(10);
    return printer;
}

class PrintCommandTest : public testing::Test
{
protected:
    void setScene(double width, double height, const QColor& background = Qt::white)
    {
        ASSERT_TRUE(set(property(firstScene(m_document), "size"), Value(zk::Point{width, height})));
        ASSERT_TRUE(set(property(firstScene(m_document), "background"), Value(background)));
    }

    int pagesWith(const Printer& printer) { return PrintCommand(printer, &m_document).pageCount(); }

    DocumentImpl m_document;
};

/// The box of all pixels of a colour.
QRect boxOf(const QImage& image, const QColor& color)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                box |= QRect(x, y, 1, 1);
    return box;
}

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

TEST_F(PrintCommandTest, ScenesTakeAsManyPagesAsTheyNeed)
{
    Printer printer = tenMillimetres();
    setScene(0.19, 0.277);
    EXPECT_EQ(pagesWith(printer), 1);
    setScene(0.191, 0.277);
    EXPECT_EQ(pagesWith(printer), 2);
    setScene(0.39, 0.56);
    EXPECT_EQ(pagesWith(printer), 9);
    printer.setOrientation(QPageLayout::Landscape);
    EXPECT_EQ(pagesWith(printer), 6);
    printer.setScaleFactor(0.1);
    EXPECT_EQ(pagesWith(printer), 1);
    printer.setScaleToWidth(true); // whatever the factor: one page wide, three high
    EXPECT_EQ(pagesWith(printer), 3);

    run<AddSceneCommand>(m_document, Model(m_document.getModel()));
    EXPECT_GT(pagesWith(printer), 3);
    printer.setLeftMargin(290);
    EXPECT_EQ(pagesWith(printer), 0);
    EXPECT_EQ(PrintCommand(printer, nullptr).pageCount(), 0);
    EXPECT_EQ(m_document.isModified(), true);
}

TEST_F(PrintCommandTest, PagesFitTogetherWithinTheirMargins)
{
    setScene(0.25, 0.1, QColor(Qt::yellow));
    const QColor fill(0xdf, 0xf3, 0xe0);
    PartImpl* block = addPart(m_document, "flowcharts/step", {0.19, 0.05}); // across the edge of the first page
    ASSERT_TRUE(set(property(block, "fill"), Value(fill)));
    ASSERT_TRUE(set(property(block, "size"), Value(zk::Point{0.04, 0.02})));
    // Two pixels per millimetre.
    const std::vector<QPixmap> pages = PrintCommand::generatePreview(tenMillimetres(), &m_document, nullptr, 420, 594);
    ASSERT_EQ(pages.size(), 2u);
    const QImage first = pages[0].toImage();
    const QImage second = pages[1].toImage();
    ASSERT_EQ(first.size(), QSize(420, 594));
    EXPECT_EQ(boxOf(first, Qt::yellow), QRect(20, 20, 380, 200));
    EXPECT_EQ(boxOf(second, Qt::yellow), QRect(20, 20, 120, 200));
    // The block is 80 pixels wide: half of it at the right edge of the first page, half at the left edge of the second.
    EXPECT_NEAR(boxOf(first, fill).left(), 360, 3);
    EXPECT_EQ(boxOf(first, fill).right(), 399);
    EXPECT_EQ(boxOf(second, fill).left(), 20);
    EXPECT_NEAR(boxOf(second, fill).right(), 59, 3);

    Printer scaled = tenMillimetres();
    scaled.setScaleToWidth(true);
    const std::vector<QPixmap> fitted = PrintCommand::generatePreview(scaled, &m_document, nullptr, 420, 594);
    ASSERT_EQ(fitted.size(), 1u);
    EXPECT_EQ(boxOf(fitted[0].toImage(), Qt::yellow), QRect(20, 20, 380, 152));
}

TEST_F(PrintCommandTest, PreviewsAlwaysHaveAFirstPageAndAnEnd)
{
    const std::vector<QPixmap> none = PrintCommand::generatePreview(Printer(), nullptr, nullptr, 126, 178);
    ASSERT_EQ(none.size(), 1u);
    EXPECT_EQ(boxOf(none[0].toImage(), Qt::white), QRect(0, 0, 126, 178));
    setScene(10.0, 10.0);
    EXPECT_EQ(PrintCommand::generatePreview(Printer(), &m_document, nullptr, 1, 1).size(),
              size_t(PrintCommand::previewPageLimit));
}

TEST_F(PrintCommandTest, APopUpIsPrintedWhenTheViewShowsIt)
{
    setScene(0.1, 0.1);
    addPart(m_document, "core/info");
    PopupImpl* popup = m_document.getModel()->getPopups().at(0);
    const FixedView ofScene(firstScene(m_document));
    const FixedView ofPopup(popup);
    EXPECT_EQ(PrintCommand(Printer(), &m_document, &ofScene).pageCount(), 1);
    EXPECT_EQ(PrintCommand(Printer(), &m_document, &ofPopup).pageCount(), 2);
    DocumentImpl other;
    EXPECT_EQ(PrintCommand(Printer(), &other, &ofPopup).pageCount(), PrintCommand(Printer(), &other).pageCount());
}

TEST_F(PrintCommandTest, PdfFilesHaveThePagesAndThePaperSize)
{
    QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("print.pdf"));
    setScene(0.25, 0.1, QColor(Qt::yellow));
    addPart(m_document, "electronics/led", {0.05, 0.05});
    Printer printer = tenMillimetres();
    QString error;
    ASSERT_TRUE(PrintCommand(printer, &m_document).exportPdf(fileName, &error)) << error.toStdString();
    const auto mediaBoxes = [&fileName] {
        QStringList boxes;
        static const QRegularExpression box(QStringLiteral("/MediaBox *\\[([^\\]]*)\\]"));
        auto matches = box.globalMatch(QString::fromLatin1(contentOf(fileName)));
        while (matches.hasNext())
            boxes.append(matches.next().captured(1).simplified());
        return boxes;
    };
    const auto pageCount = [&fileName] { return contentOf(fileName).count("/Type /Page\n"); };
    EXPECT_TRUE(contentOf(fileName).startsWith("%PDF-"));
    EXPECT_EQ(pageCount(), 2);
    ASSERT_EQ(mediaBoxes().size(), 2);
    EXPECT_TRUE(mediaBoxes()[1].startsWith(QStringLiteral("0 0 595"))) << mediaBoxes()[1].toStdString();
    EXPECT_TRUE(mediaBoxes()[1].contains(QStringLiteral(" 842"))) << mediaBoxes()[1].toStdString();

    printer.setOrientation(QPageLayout::Landscape);
    ASSERT_TRUE(PrintCommand(printer, &m_document).exportPdf(fileName, &error)) << error.toStdString();
    EXPECT_EQ(pageCount(), 1);
    ASSERT_EQ(mediaBoxes().size(), 1);
    EXPECT_TRUE(mediaBoxes()[0].startsWith(QStringLiteral("0 0 842"))) << mediaBoxes()[0].toStdString();
}

TEST_F(PrintCommandTest, WhatCannotBePrintedLeavesTheOldFile)
{
    QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("print.pdf"));
    {
        QFile file(fileName);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old");
    }
    QString error;
    Printer printer;
    printer.setRightMargin(300);
    EXPECT_FALSE(PrintCommand(printer, &m_document).exportPdf(fileName, &error));
    EXPECT_EQ(error, QStringLiteral("There is nothing to print, or the margins leave no room on the paper."));
    EXPECT_EQ(contentOf(fileName), "old");

    setScene(10.0, 10.0);
    printer = tenMillimetres();
    printer.setScaleFactor(10.0);
    EXPECT_FALSE(PrintCommand(printer, &m_document).exportPdf(fileName, &error));
    EXPECT_EQ(error, QStringLiteral("At this scale the document needs 190774 pages; no more than 2000 are exported."));
    EXPECT_EQ(contentOf(fileName), "old");

    setScene(0.1, 0.1);
    const QString nowhere = folder.filePath(QStringLiteral("missing/print.pdf"));
    EXPECT_FALSE(PrintCommand(Printer(), &m_document).exportPdf(nowhere, &error));
    EXPECT_TRUE(error.startsWith(nowhere + QStringLiteral(" cannot be written: "))) << error.toStdString();
}
