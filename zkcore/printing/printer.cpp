// Keeps paper, margins and scale within what can be printed.
#include "zkcore/printing/printer.h"

#include <QMarginsF>
#include <algorithm>
#include <cmath>

void Printer::setTopMargin(int millimetres)
{
    m_topMargin = std::max(millimetres, topHardMargin());
}

void Printer::setLeftMargin(int millimetres)
{
    m_leftMargin = std::max(millimetres, leftHardMargin());
}

void Printer::setBottomMargin(int millimetres)
{
    m_bottomMargin = std::max(millimetres, bottomHardMargin());
}

void Printer::setRightMargin(int millimetres)
{
    m_rightMargin = std::max(millimetres, rightHardMargin());
}

void Printer::setPageSize(QPageSize::PageSizeId pageSize)
{
    if (pageSize != QPageSize::Custom && pageSize >= 0 && pageSize <= QPageSize::LastPageSize)
        m_pageSize = pageSize;
}

void Printer::setScaleFactor(double factor)
{
    if (!std::isnan(factor))
        m_scaleFactor = std::clamp(factor, minimumScale, maximumScale);
}

QSizeF Printer::getStandardPaperSizeMM() const
{
    const QSizeF size = QPageSize::size(m_pageSize, QPageSize::Millimeter);
    return m_orientation == QPageLayout::Landscape ? size.transposed() : size;
}

QRectF Printer::printableRectMM() const
{
    const QSizeF paper = getStandardPaperSizeMM();
    const QSizeF size(paper.width() - m_leftMargin - m_rightMargin, paper.height() - m_topMargin - m_bottomMargin);
    return size.isEmpty() ? QRectF() : QRectF(QPointF(m_leftMargin, m_topMargin), size);
}

QPageLayout Printer::toPageLayout() const
{
    const QMarginsF hard(leftHardMargin(), topHardMargin(), rightHardMargin(), bottomHardMargin());
    return QPageLayout(QPageSize(m_pageSize), m_orientation,
                       QMarginsF(m_leftMargin, m_topMargin, m_rightMargin, m_bottomMargin), QPageLayout::Millimeter,
                       hard);
}
