#pragma once

#include "zkcore/printing/printer.h"

#include <QObject>

class DocumentImpl;
class LicenceManager;
class QPrinter;
class QWidget;
class ViewManager;

/// What the File menu offers around paper: page setup, preview, printing, and export to PDF and SVG. Keeps the page
/// setup for as long as the program runs.
class Printing : public QObject
{
    Q_OBJECT

public:
    /// The dialogs belong to the window. Without a licence a line stands at the foot of every page. Nothing is owned.
    Printing(QWidget* window, ViewManager* views, const LicenceManager* licence);

    void setDocument(DocumentImpl* document) { m_document = document; }

    /// Paper, margins and scale.
    const Printer& printer() const { return m_printer; }
    void setPrinter(const Printer& printer) { m_printer = printer; }

    void pageSetup();
    void preview();
    void print();
    void exportPdf();
    /// Writes the space on view as a drawing in its real size.
    void exportSvg();

    /// Whether the pages could be painted on the printer, whose page layout must be that of layOut().
    bool paintPages(QPrinter* device) const;
    /// Gives the device the paper and orientation of the page setup.
    void layOut(QPrinter* device) const;

Q_SIGNALS:
    /// A file was written; one translated sentence.
    void done(const QString& text);
    /// One translated sentence, and the reason.
    void failed(const QString& text, const QString& reason);

private:
    Printer printerWithFootLine() const;
    QString askForFile(const QString& title, const QString& filter, const QString& suffix);

    QWidget* m_window;
    ViewManager* m_views;
    const LicenceManager* m_licence;
    DocumentImpl* m_document = nullptr;
    Printer m_printer;
};
