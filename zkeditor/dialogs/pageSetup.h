#pragma once

#include "zkcore/printing/printer.h"
#include "zkeditor/export.h"

#include <QDialog>
#include <QMap>
#include <QPageSize>
#include <QPixmap>

class ComboBox;
class DocumentImpl;
class QCheckBox;
class QGridLayout;
class QLabel;
class QSpinBox;
class QTimer;
class View;

/// Paper, margins and scale of a document's printout, with a small picture of its first page. The printer is written
/// only when the user accepts.
class ZKEDITOR_EXPORT PageSetupDialog : public QDialog
{
    Q_OBJECT

public:
    /// The printer is not owned and must not be null; document and view may be null, and are not owned.
    PageSetupDialog(Printer* printer, DocumentImpl* document, View* view, QWidget* parent, bool modal);

protected Q_SLOTS:
    void setPageImage();
    void onSetPageSize();
    void accept() override;

protected:
    /// Return in a number field ends the typing, not the dialog.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    using PageSizeMap = QMap<QString, QPageSize::PageSizeId>;

    void syncPrinter(Printer* printer) const;
    const PageSizeMap& getPageSizeMap() const;
    QSpinBox* addMargin(QGridLayout* grid, int row, int column, const QString& label, int hardMargin, int margin);
    ComboBox* addChoice(QGridLayout* grid, int row, const QString& label);
    void fillChoices();
    void limitMargins(const QSizeF& paper);
    QPixmap pagePicture(const Printer& printer, const QSize& size);
    void renderPage();

    Printer* m_printer;
    DocumentImpl* m_document;
    View* m_view;
    QSpinBox* m_topMargin;
    QSpinBox* m_leftMargin;
    QSpinBox* m_bottomMargin;
    QSpinBox* m_rightMargin;
    ComboBox* m_pageSize;
    ComboBox* m_orientation;
    QCheckBox* m_scaleToWidth;
    QSpinBox* m_scaleFactor;
    QLabel* m_preview;
    mutable PageSizeMap m_pageSizes; // in the language in which it was first asked for
    bool m_busy = false;

    // Painting the page of a large document takes longer than a step of a spin box. While a margin is being spun, the
    // guides move over the page as it was painted last; it is painted anew when the spinning pauses.
    QTimer* m_renderTimer;
    QPixmap m_renderedPage;
    Printer m_renderedPrinter;
};
