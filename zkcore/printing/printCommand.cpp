// Divides scenes into pages and paints them on screen previews and into PDF files.
#include "zkcore/printing/printCommand.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/model/view.h"
#include "zkcore/printing/paintText.h"
#include "zkcore/printing/scenePainter.h"
#include "zkcore/services/productPackage.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double metrePerMillimetre = 0.001;
constexpr double footLineHeight = 3.2; // in millimetres
constexpr QColor footLineColor(0x80, 0x80, 0x80);
constexpr int pdfResolution = 600;

/// Pages in one direction. A hair's breadth over the edge is rounding, not a reason for one more page.
int pagesFor(double length, double pageLength)
{
    constexpr double most = 30000.0;
    return static_cast<int>(std::clamp(std::ceil(length / pageLength - 1e-6), 1.0, most));
}

struct PrintTexts
{
    Q_DECLARE_TR_FUNCTIONS(PrintCommand)
};

bool printFailed(QString* error, const QString& reason)
{
    if (error)
        *error = reason;
    return false;
}

} // namespace

PrintCommand::PrintCommand(const Printer& printer, const DocumentImpl* document, const View* view) : m_printer(printer)
{
    if (!document || printer.printableRectMM().isEmpty())
        return;
    m_title = document->getModel()->valueOfProperty(coreKeys::title()).toQString();
    for (SceneImpl* scene : document->getModel()->getScenes())
        addSheet(scene);
    SpaceImpl* viewed = view ? view->space().impl() : nullptr;
    if (viewed && viewed->kind() == NodeKind::Popup && viewed->document() == document)
        addSheet(viewed);
}

void PrintCommand::addSheet(SpaceImpl* space)
{
    const zk::Point size = space->valueOfProperty(coreKeys::size()).toPoint();
    if (!(size.x > 0.0) || !(size.y > 0.0))
        return;
    const QSizeF page = m_printer.printableRectMM().size() * metrePerMillimetre;
    Sheet sheet;
    sheet.space = Space(space);
    sheet.area = QRectF(0.0, 0.0, size.x, size.y);
    sheet.scale = m_printer.scaleToWidth() ? page.width() / size.x : m_printer.scaleFactor();
    sheet.columns = pagesFor(size.x * sheet.scale, page.width());
    sheet.rows = pagesFor(size.y * sheet.scale, page.height());
    sheet.firstPage = m_pageCount;
    const qint64 end = qint64(m_pageCount) + qint64(sheet.columns) * sheet.rows;
    m_pageCount = static_cast<int>(std::min<qint64>(end, std::numeric_limits<int>::max()));
    m_sheets.push_back(sheet);
}

const PrintCommand::Sheet* PrintCommand::sheetOf(int page) const
{
    if (page < 0 || page >= m_pageCount)
        return nullptr;
    const auto next = std::upper_bound(m_sheets.begin(), m_sheets.end(), page,
                                       [](int number, const Sheet& sheet) { return number < sheet.firstPage; });
    return &*std::prev(next);
}

int PrintCommand::pageCount() const
{
    return m_pageCount;
}

void PrintCommand::paintPage(QPainter& painter, int page, const QRectF& paper) const
{
    const Sheet* sheet = sheetOf(page);
    const SpaceImpl* space = sheet ? sheet->space.impl() : nullptr;
    if (!space)
        return;
    const int column = (page - sheet->firstPage) % sheet->columns;
    const int row = (page - sheet->firstPage) / sheet->columns;
    const QRectF printable = m_printer.printableRectMM();
    const QSizeF step = printable.size() * metrePerMillimetre / sheet->scale;
    const QPointF origin(step.width() * column, step.height() * row);
    const QRectF area = QRectF(origin, step).intersected(sheet->area);

    const QSizeF paperSize = m_printer.getStandardPaperSizeMM();
    const double dotsPerMetre = sheet->scale / metrePerMillimetre;
    painter.save();
    painter.translate(paper.topLeft());
    painter.scale(paper.width() / paperSize.width(), paper.height() / paperSize.height());
    painter.setClipRect(QRectF(printable.topLeft(), area.size() * dotsPerMetre), Qt::IntersectClip);
    painter.translate(printable.topLeft());
    painter.scale(dotsPerMetre, dotsPerMetre);
    painter.translate(-origin);
    ScenePainter(painter).paintSpace(*space, area);
    painter.restore();
    paintFootLine(painter, paper);
}

/// In small grey letters at the foot of the paper, just over the strip on which devices cannot print.
void PrintCommand::paintFootLine(QPainter& painter, const QRectF& paper) const
{
    if (m_printer.footLine().isEmpty())
        return;
    const QSizeF paperSize = m_printer.getStandardPaperSizeMM();
    const double left = m_printer.leftHardMargin();
    const QRectF strip(left, paperSize.height() - m_printer.bottomHardMargin() - footLineHeight,
                       paperSize.width() - left - m_printer.rightHardMargin(), footLineHeight);
    painter.save();
    painter.translate(paper.topLeft());
    painter.scale(paper.width() / paperSize.width(), paper.height() / paperSize.height());
    painter.setPen(footLineColor);
    drawingText::draw(painter, strip, Qt::AlignCenter | Qt::TextSingleLine, m_printer.footLine(),
                      drawingText::fontOfHeight(footLineHeight * drawingText::unitsPerMillimetre));
    painter.restore();
}

bool PrintCommand::exportPdf(const QString& fileName, QString* error) const
{
    if (m_pageCount == 0)
        return printFailed(error,
                           PrintTexts::tr("There is nothing to print, or the margins leave no room on the paper."));
    if (m_pageCount > exportPageLimit)
        return printFailed(error,
                           PrintTexts::tr("At this scale the document needs %n pages; no more than %1 are exported.",
                                          nullptr, m_pageCount)
                               .arg(exportPageLimit));
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return printFailed(error, PrintTexts::tr("%1 cannot be written: %2").arg(fileName, file.errorString()));

    // The pages carry their margins themselves.
    QPdfWriter writer(&file);
    writer.setResolution(pdfResolution);
    writer.setPageLayout(QPageLayout(QPageSize(m_printer.pageSize()), m_printer.orientation(), QMarginsF()));
    writer.setTitle(m_title);
    writer.setCreator(ProductPackage::instance().productCode() + QLatin1Char(' ') +
                      ProductPackage::instance().version());
    QPainter painter;
    bool ok = painter.begin(&writer);
    for (int page = 0; ok && page < m_pageCount; ++page) {
        ok = page == 0 || writer.newPage();
        if (ok)
            paintPage(painter, page, QRectF(0.0, 0.0, writer.width(), writer.height()));
    }
    painter.end();
    if (!ok)
        file.cancelWriting();
    if (!file.commit())
        return printFailed(error, PrintTexts::tr("%1 cannot be written: %2").arg(fileName, file.errorString()));
    return true;
}

std::vector<QPixmap> PrintCommand::generatePreview(const Printer& printer, const DocumentImpl* document,
                                                   const View* view, int width, int height, int limit)
{
    const PrintCommand command(printer, document, view);
    const int count = std::clamp(command.pageCount(), 1, std::clamp(limit, 1, previewPageLimit));
    std::vector<QPixmap> pages;
    for (int page = 0; page < count; ++page) {
        QPixmap pixmap(std::max(width, 0), std::max(height, 0));
        if (!pixmap.isNull()) {
            pixmap.fill(Qt::white);
            QPainter painter(&pixmap);
            command.paintPage(painter, page, QRectF(pixmap.rect()));
        }
        pages.push_back(pixmap);
    }
    return pages;
}
