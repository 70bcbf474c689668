#include "zkauthor/printing.h"

#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/model/view.h"
#include "zkcore/printing/printCommand.h"
#include "zkcore/printing/scenePainter.h"
#include "zkeditor/dialogs/pageSetup.h"
#include "zkeditor/license/licenceManager.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <QToolButton>
#include <algorithm>

namespace {
constexpr double mmOfMetre = 1000.0;
constexpr int svgDotsPerInch = 2540; // a hundredth of a millimetre
constexpr double svgUnitsOfMm = 100.0;

/// Large documents take seconds; the pointer says so.
class BusyPointer
{
public:
    BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(BusyPointer)
};
} // namespace

Printing::Printing(QWidget* window, ViewManager* views, const LicenceManager* licence)
    : QObject(window), m_window(window), m_views(views), m_licence(licence)
{
}

Printer Printing::printerWithFootLine() const
{
    Printer printer = m_printer;
    printer.setFootLine(m_licence->footLine());
    return printer;
}

void Printing::pageSetup()
{
    PageSetupDialog(&m_printer, m_document, m_views->focusedView(), m_window, true).exec();
}

void Printing::layOut(QPrinter* device) const
{
    device->setFullPage(true);
    device->setPageSize(QPageSize(m_printer.pageSize()));
    device->setPageOrientation(m_printer.orientation());
    const QString file = m_document ? m_document->getUrl().toLocalFile() : QString();
    device->setDocName(file.isEmpty() ? tr("Untitled") : QFileInfo(file).fileName());
}

bool Printing::paintPages(QPrinter* device) const
{
    const BusyPointer busy;
    const PrintCommand pages(printerWithFootLine(), m_document, m_views->focusedView());
    int first = 0;
    int last = pages.pageCount() - 1;
    if (device->fromPage() > 0) {
        first = device->fromPage() - 1;
        last = std::min(last, device->toPage() - 1);
    }
    QPainter painter;
    if (first > last || !painter.begin(device))
        return false;
    const bool backwards = device->pageOrder() == QPrinter::LastPageFirst;
    for (int i = 0; i <= last - first; ++i) {
        if (i > 0 && !device->newPage())
            return false;
        const QRectF paper(QPointF(), device->paperRect(QPrinter::DevicePixel).size());
        pages.paintPage(painter, backwards ? last - i : first + i, paper);
    }
    return painter.end();
}

void Printing::preview()
{
    QPrinter device(QPrinter::HighResolution);
    layOut(&device);
    QPrintPreviewDialog dialog(&device, m_window);
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* printer) { paintPages(printer); });
    // The toolkit leaves them to the mouse, and its fields without names.
    const auto buttons = dialog.findChildren<QToolButton*>();
    for (QToolButton* button : buttons)
        button->setFocusPolicy(Qt::TabFocus);
    const auto zooms = dialog.findChildren<QComboBox*>();
    for (QComboBox* zoom : zooms)
        zoom->setAccessibleName(tr("Zoom"));
    const auto fields = dialog.findChildren<QLineEdit*>();
    for (QLineEdit* field : fields) {
        if (!qobject_cast<QComboBox*>(field->parentWidget()))
            field->setAccessibleName(tr("Page"));
    }
    dialog.exec();
}

void Printing::print()
{
    QPrinter device(QPrinter::HighResolution);
    layOut(&device);
    QPrintDialog dialog(&device, m_window);
    const int pages = PrintCommand(m_printer, m_document, m_views->focusedView()).pageCount();
    if (pages > 0)
        dialog.setMinMax(1, pages);
    if (dialog.exec() == QDialog::Accepted && !paintPages(&device))
        Q_EMIT failed(tr("The document could not be printed."), tr("The printer did not take the pages."));
}

QString Printing::askForFile(const QString& title, const QString& filter, const QString& suffix)
{
    QFileDialog dialog(m_window, title, QString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    const QFileInfo document(m_document->getUrl().toLocalFile());
    if (!document.filePath().isEmpty()) {
        dialog.setDirectory(document.path());
        dialog.selectFile(document.completeBaseName() + u'.' + suffix);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

void Printing::exportPdf()
{
    const QString file = askForFile(tr("Export to PDF"), tr("PDF files (*.pdf)"), QStringLiteral("pdf"));
    if (file.isEmpty())
        return;
    QString error;
    bool written = false;
    {
        const BusyPointer busy;
        written = PrintCommand(printerWithFootLine(), m_document, m_views->focusedView()).exportPdf(file, &error);
    }
    if (written)
        Q_EMIT done(tr("Exported %1").arg(QFileInfo(file).fileName()));
    else
        Q_EMIT failed(tr("%1 could not be written.").arg(QFileInfo(file).fileName()), error);
}

void Printing::exportSvg()
{
    const View* view = m_views->focusedView();
    SpaceImpl* space = view ? view->space().impl() : nullptr;
    if (!space)
        return;
    const QString name = askForFile(tr("Export to SVG"), tr("SVG drawings (*.svg)"), QStringLiteral("svg"));
    if (name.isEmpty())
        return;
    QSaveFile file(name);
    bool written = file.open(QIODevice::WriteOnly);
    if (written) {
        const BusyPointer busy;
        const zk::Point size = space->valueOfProperty(coreKeys::size()).toPoint();
        const QSizeF area(size.x * mmOfMetre * svgUnitsOfMm, size.y * mmOfMetre * svgUnitsOfMm);
        QSvgGenerator generator;
        generator.setOutputDevice(&file);
        generator.setResolution(svgDotsPerInch);
        generator.setSize(area.toSize());
        generator.setViewBox(QRectF(QPointF(), area));
        generator.setTitle(space->displayName());
        QPainter painter(&generator);
        painter.scale(mmOfMetre * svgUnitsOfMm, mmOfMetre * svgUnitsOfMm);
        ScenePainter(painter).paintSpace(*space);
        written = painter.end() && file.commit();
    }
    if (written)
        Q_EMIT done(tr("Exported %1").arg(QFileInfo(name).fileName()));
    else
        Q_EMIT failed(tr("%1 could not be written.").arg(QFileInfo(name).fileName()), file.errorString());
}
