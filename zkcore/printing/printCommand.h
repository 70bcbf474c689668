#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/handles.h"
#include "zkcore/printing/printer.h"

#include <QPixmap>
#include <QRectF>
#include <QString>
#include <vector>

class DocumentImpl;
class QPainter;
class View;

/// The pages of a document: every scene in order, each beginning on a page of its own and going on over as many pages,
/// row by row, as it needs at the printer's scale. It changes nothing in the document and is not executed by it.
class ZKCORE_EXPORT PrintCommand
{
public:
    /// A document that needs more pages than this is not exported.
    static constexpr int exportPageLimit = 2000;
    /// Pages beyond this number are left out of previews.
    static constexpr int previewPageLimit = 100;

    /// Works out the pages at once; a command made before a change of the document does not follow it. With a view that
    /// shows a pop-up, the pop-up follows the scenes. Document and view may be null.
    PrintCommand(const Printer& printer, const DocumentImpl* document, const View* view = nullptr);

    /// 0 without a document and when the margins leave no room on the paper.
    int pageCount() const;
    /// Paints a page, counted from 0, so that the whole paper, margins included, fills the rectangle `paper` of the
    /// painter's coordinates. In the margins there is nothing but the printer's line at the foot.
    /// Nothing is painted for a page that is not there.
    void paintPage(QPainter& painter, int page, const QRectF& paper) const;
    /// Writes all pages as a PDF file in the paper's size. False with a translated message in `error` when there is
    /// nothing to print, there are too many pages, or the file cannot be written; a file that was there before is then
    /// left as it was.
    bool exportPdf(const QString& fileName, QString* error = nullptr) const;

    /// The first `limit` pages as pictures on white paper, each exactly `width` by `height` pixels. A document without
    /// pages gives one blank page.
    static std::vector<QPixmap> generatePreview(const Printer& printer, const DocumentImpl* document, const View* view,
                                                int width, int height, int limit = previewPageLimit);

private:
    struct Sheet
    {
        Space space;
        QRectF area; // the space's whole area in metres
        double scale = 1.0;
        int columns = 1;
        int rows = 1;
        int firstPage = 0;
    };

    void addSheet(SpaceImpl* space);
    const Sheet* sheetOf(int page) const;
    void paintFootLine(QPainter& painter, const QRectF& paper) const;

    Printer m_printer;
    std::vector<Sheet> m_sheets;
    QString m_title;
    int m_pageCount = 0;
};
