// The page setup dialog.
#include "zkeditor/dialogs/pageSetup.h"

#include "zkcore/base/assert.h"
#include "zkcore/printing/printCommand.h"
#include "zkeditor/widgets/comboBox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace {

constexpr QSize portraitPreview(126, 178);
constexpr QSize landscapePreview(178, 126);
constexpr int pageSetupWidth = 320;
// After the last step of a margin, in milliseconds.
constexpr int renderDelay = 250;
// Beyond every paper, in millimetres.
constexpr int widestMargin = 5000;

int roundHalfUp(double number)
{
    return static_cast<int>(std::floor(number + 0.5));
}

bool differInMarginsOnly(Printer a, const Printer& b)
{
    a.setTopMargin(b.topMargin());
    a.setLeftMargin(b.leftMargin());
    a.setBottomMargin(b.bottomMargin());
    a.setRightMargin(b.rightMargin());
    return a == b;
}

} // namespace

PageSetupDialog::PageSetupDialog(Printer* printer, DocumentImpl* document, View* view, QWidget* parent, bool modal)
    : QDialog(parent), m_printer(printer), m_document(document), m_view(view)
{
    ZK_ASSERT(m_printer);
    setModal(modal);
    setWindowTitle(tr("Page Setup"));
    m_renderTimer = new QTimer(this);
    m_renderTimer->setSingleShot(true);
    m_renderTimer->setInterval(renderDelay);
    connect(m_renderTimer, &QTimer::timeout, this, &PageSetupDialog::renderPage);

    auto* layout = new QVBoxLayout(this);
    auto* marginsLabel = new QLabel(tr("&Margins (mm):"));
    layout->addWidget(marginsLabel);
    auto* margins = new QGridLayout;
    margins->setColumnStretch(1, 1);
    margins->setColumnStretch(3, 1);
    layout->addLayout(margins);
    m_topMargin = addMargin(margins, 0, 0, tr("Top"), printer->topHardMargin(), printer->topMargin());
    m_leftMargin = addMargin(margins, 0, 2, tr("Left"), printer->leftHardMargin(), printer->leftMargin());
    m_bottomMargin = addMargin(margins, 1, 0, tr("Bottom"), printer->bottomHardMargin(), printer->bottomMargin());
    m_rightMargin = addMargin(margins, 1, 2, tr("Right"), printer->rightHardMargin(), printer->rightMargin());
    marginsLabel->setBuddy(m_topMargin);

    auto* choices = new QGridLayout;
    choices->setColumnStretch(1, 1);
    layout->addLayout(choices);
    m_pageSize = addChoice(choices, 0, tr("Page &Size:"));
    m_pageSize->setObjectName(QStringLiteral("pageSize"));
    m_orientation = addChoice(choices, 1, tr("O&rientation:"));
    m_orientation->setObjectName(QStringLiteral("orientation"));
    fillChoices();
    connect(m_pageSize, &QComboBox::activated, this, &PageSetupDialog::onSetPageSize);
    connect(m_orientation, &QComboBox::activated, this, &PageSetupDialog::setPageImage);

    m_scaleToWidth = new QCheckBox(tr("Scale to Page &Width:"));
    m_scaleToWidth->setChecked(printer->scaleToWidth());
    choices->addWidget(m_scaleToWidth, 2, 0, 1, 2);
    m_scaleFactor = new QSpinBox;
    m_scaleFactor->setObjectName(QStringLiteral("scaleFactor"));
    m_scaleFactor->setRange(10, 1000);
    m_scaleFactor->setSingleStep(10);
    m_scaleFactor->setSuffix(tr(" %"));
    m_scaleFactor->setValue(roundHalfUp(printer->scaleFactor() * 100.0));
    m_scaleFactor->setDisabled(m_scaleToWidth->isChecked());
    m_scaleFactor->installEventFilter(this);
    auto* scaleLabel = new QLabel(tr("Scale &Factor:"));
    scaleLabel->setBuddy(m_scaleFactor);
    choices->addWidget(scaleLabel, 3, 0);
    choices->addWidget(m_scaleFactor, 3, 1);
    connect(m_scaleToWidth, &QCheckBox::toggled, this, &PageSetupDialog::setPageImage);
    connect(m_scaleToWidth, &QCheckBox::toggled, m_scaleFactor, &QSpinBox::setDisabled);
    connect(m_scaleFactor, &QSpinBox::valueChanged, this, &PageSetupDialog::setPageImage);

    m_preview = new QLabel;
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setAccessibleName(tr("The first page with its margins"));
    // As high as either orientation needs.
    m_preview->setFixedHeight(std::max(portraitPreview.height(), landscapePreview.height()) + 8);
    layout->addWidget(m_preview);

    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    auto* ok = new QPushButton(tr("&Ok"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(tr("&Cancel"));
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    connect(ok, &QPushButton::clicked, this, &PageSetupDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &PageSetupDialog::reject);

    setPageImage();
    setFixedWidth(pageSetupWidth);
    adjustSize();
}

QSpinBox* PageSetupDialog::addMargin(QGridLayout* grid, int row, int column, const QString& label, int hardMargin,
                                     int margin)
{
    auto* spinBox = new QSpinBox;
    spinBox->setRange(hardMargin, margin);
    spinBox->setValue(margin);
    spinBox->setAccessibleName(tr("%1 margin in millimetres").arg(label));
    spinBox->installEventFilter(this);
    connect(spinBox, &QSpinBox::valueChanged, this, &PageSetupDialog::setPageImage);
    grid->addWidget(new QLabel(label), row, column);
    grid->addWidget(spinBox, row, column + 1);
    return spinBox;
}

ComboBox* PageSetupDialog::addChoice(QGridLayout* grid, int row, const QString& label)
{
    auto* choice = new ComboBox;
    auto* choiceLabel = new QLabel(label);
    choiceLabel->setBuddy(choice);
    grid->addWidget(choiceLabel, row, 0);
    grid->addWidget(choice, row, 1);
    return choice;
}

void PageSetupDialog::fillChoices()
{
    const PageSizeMap& sizes = getPageSizeMap();
    m_pageSize->addItems(sizes.keys());
    QString current = sizes.key(m_printer->pageSize());
    if (current.isEmpty())
        current = sizes.key(Printer().pageSize());
    m_pageSize->setCurrentIndex(m_pageSize->findText(current));
    m_orientation->addItems({tr("Portrait"), tr("Landscape")});
    m_orientation->setCurrentIndex(m_printer->orientation() == QPageLayout::Portrait ? 0 : 1);
}

const PageSetupDialog::PageSizeMap& PageSetupDialog::getPageSizeMap() const
{
    if (!m_pageSizes.isEmpty())
        return m_pageSizes;
    m_pageSizes = {
        {tr("A0 (841 x 1189 mm)"), QPageSize::A0},
        {tr("A1 (594 x 841 mm)"), QPageSize::A1},
        {tr("A2 (420 x 594 mm)"), QPageSize::A2},
        {tr("A3 (297 x 420 mm)"), QPageSize::A3},
        {tr("A4 (210 x 297 mm)"), QPageSize::A4},
        {tr("A5 (148 x 210 mm)"), QPageSize::A5},
        {tr("A6 (105 x 148 mm)"), QPageSize::A6},
        {tr("A7 (74 x 105 mm)"), QPageSize::A7},
        {tr("A8 (52 x 74 mm)"), QPageSize::A8},
        {tr("A9 (37 x 52 mm)"), QPageSize::A9},
        {tr("B0 (1000 x 1414 mm)"), QPageSize::B0},
        {tr("B1 (707 x 1000 mm)"), QPageSize::B1},
        {tr("B2 (500 x 707 mm)"), QPageSize::B2},
        {tr("B3 (353 x 500 mm)"), QPageSize::B3},
        {tr("B4 (250 x 353 mm)"), QPageSize::B4},
        {tr("B5 (176 x 250 mm)"), QPageSize::B5},
        {tr("B6 (125 x 176 mm)"), QPageSize::B6},
        {tr("B7 (88 x 125 mm)"), QPageSize::B7},
        {tr("B8 (62 x 88 mm)"), QPageSize::B8},
        {tr("B9 (44 x 62 mm)"), QPageSize::B9},
        {tr("B10 (31 x 44 mm)"), QPageSize::B10},
        {tr("C5E (163 x 229 mm)"), QPageSize::C5E},
        {tr("DLE (110 x 220 mm)"), QPageSize::DLE},
        {tr("Executive (191 x 254 mm)"), QPageSize::Executive},
        {tr("Folio (210 x 330 mm)"), QPageSize::Folio},
        {tr("Ledger (432 x 279 mm)"), QPageSize::Ledger},
        {tr("Legal (216 x 356 mm)"), QPageSize::Legal},
        {tr("Letter (216 x 279 mm)"), QPageSize::Letter},
        {tr("Tabloid (279 x 432 mm)"), QPageSize::Tabloid},
        {tr("Envelope #10 (105 x 241 mm)"), QPageSize::Comm10E},
    };
    return m_pageSizes;
}

bool PageSetupDialog::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (auto* spinBox = qobject_cast<QSpinBox*>(object))
                spinBox->interpretText();
            return true;
        }
    }
    return QDialog::eventFilter(object, event);
}

void PageSetupDialog::syncPrinter(Printer* printer) const
{
    ZK_ASSERT(printer);
    printer->setTopMargin(m_topMargin->value());
    printer->setLeftMargin(m_leftMargin->value());
    printer->setBottomMargin(m_bottomMargin->value());
    printer->setRightMargin(m_rightMargin->value());
    const auto I = getPageSizeMap().find(m_pageSize->currentText());
    ZK_ASSERT(I != getPageSizeMap().end());
    printer->setPageSize(I.value());
    printer->setOrientation(m_orientation->currentText() == tr("Portrait") ? QPageLayout::Portrait
                                                                           : QPageLayout::Landscape);
    printer->setScaleToWidth(m_scaleToWidth->isChecked());
    if (m_scaleFactor->value() > 0)
        printer->setScaleFactor(m_scaleFactor->value() / 100.0);
}

void PageSetupDialog::limitMargins(const QSizeF& paper)
{
    const auto limit = [](QSpinBox* margin, double length, const QSpinBox* opposite) {
        margin->setMaximum(std::max(static_cast<int>(length) - opposite->value(), margin->minimum()));
    };
    m_busy = true;
    limit(m_topMargin, paper.height(), m_bottomMargin);
    limit(m_bottomMargin, paper.height(), m_topMargin);
    limit(m_leftMargin, paper.width(), m_rightMargin);
    limit(m_rightMargin, paper.width(), m_leftMargin);
    m_busy = false;
}

void PageSetupDialog::setPageImage()
{
    if (m_busy)
        return;
    Printer printer;
    syncPrinter(&printer);
    printer.setFootLine(m_printer->footLine());
    const QSizeF paper = printer.getStandardPaperSizeMM();
    // First, as paper that became smaller takes room from the margins.
    limitMargins(paper);
    syncPrinter(&printer);

    const QSize box = printer.orientation() == QPageLayout::Portrait ? portraitPreview : landscapePreview;
    const QSize size = paper.scaled(box, Qt::KeepAspectRatio).toSize();
    QPixmap picture = pagePicture(printer, size);
    const double w = size.width();
    const double h = size.height();
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::gray, 1.0, Qt::DotLine));
    for (const double y :
         {printer.topMargin() * h / paper.height(), (1.0 - printer.bottomMargin() / paper.height()) * h})
        painter.drawLine(0, roundHalfUp(y), size.width() - 1, roundHalfUp(y));
    for (const double x : {(1.0 - printer.rightMargin() / paper.width()) * w, printer.leftMargin() * w / paper.width()})
        painter.drawLine(roundHalfUp(x), 0, roundHalfUp(x), size.height() - 1);
    painter.end();
    m_preview->setPixmap(picture);
}

QPixmap PageSetupDialog::pagePicture(const Printer& printer, const QSize& size)
{
    const double ratio = devicePixelRatioF();
    const QSize pixels = size * ratio;
    if (!m_document) {
        QPixmap white(pixels);
        white.fill(Qt::white);
        white.setDevicePixelRatio(ratio);
        return white;
    }
    const bool sameSize = m_renderedPage.size() == pixels;
    if (sameSize && m_renderedPrinter == printer)
        return m_renderedPage;
    if (sameSize && differInMarginsOnly(m_renderedPrinter, printer)) {
        m_renderTimer->start();
        return m_renderedPage;
    }
    m_renderTimer->stop();
    m_renderedPage =
        PrintCommand::generatePreview(printer, m_document, m_view, pixels.width(), pixels.height(), 1).front();
    m_renderedPage.setDevicePixelRatio(ratio);
    m_renderedPrinter = printer;
    return m_renderedPage;
}

void PageSetupDialog::renderPage()
{
    m_renderedPage = QPixmap();
    setPageImage();
}

void PageSetupDialog::onSetPageSize()
{
    m_busy = true;
    Printer printer;
    syncPrinter(&printer);
    const QSizeF paper = printer.getStandardPaperSizeMM();
    const auto setMargin = [](QSpinBox* margin, double length, int hardMargin) {
        // The limit that the paper before left must not cut it.
        margin->setMaximum(widestMargin);
        margin->setValue(std::max(roundHalfUp(length * 0.05), hardMargin));
    };
    setMargin(m_topMargin, paper.height(), printer.topHardMargin());
    setMargin(m_bottomMargin, paper.height(), printer.bottomHardMargin());
    setMargin(m_leftMargin, paper.width(), printer.leftHardMargin());
    setMargin(m_rightMargin, paper.width(), printer.rightHardMargin());
    m_busy = false;
    setPageImage();
}

void PageSetupDialog::accept()
{
    syncPrinter(m_printer);
    QDialog::accept();
}
