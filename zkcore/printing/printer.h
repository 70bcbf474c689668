#pragma once

#include "zkcore/base/export.h"

#include <QPageLayout>
#include <QPageSize>
#include <QRectF>
#include <QSizeF>
#include <QString>

/// How a document is to be printed: paper, margins and scale. Copied by value; knows nothing of devices.
class ZKCORE_EXPORT Printer
{
public:
    static constexpr double minimumScale = 0.1;
    static constexpr double maximumScale = 10.0;

    /// A4 portrait, margins of 15 mm at top and bottom and 11 mm at the sides, scale 1.
    Printer() = default;

    /// In millimetres, seen on the page as it is read, whatever its orientation.
    int topMargin() const { return m_topMargin; }
    int leftMargin() const { return m_leftMargin; }
    int bottomMargin() const { return m_bottomMargin; }
    int rightMargin() const { return m_rightMargin; }
    /// A margin below the hard minimum is raised to it.
    void setTopMargin(int millimetres);
    void setLeftMargin(int millimetres);
    void setBottomMargin(int millimetres);
    void setRightMargin(int millimetres);
    /// The strip, in millimetres, on which common devices cannot print.
    int topHardMargin() const { return 5; }
    int leftHardMargin() const { return 5; }
    int bottomHardMargin() const { return 5; }
    int rightHardMargin() const { return 5; }

    QPageSize::PageSizeId pageSize() const { return m_pageSize; }
    /// QPageSize::Custom names no size and is ignored.
    void setPageSize(QPageSize::PageSizeId pageSize);
    QPageLayout::Orientation orientation() const { return m_orientation; }
    void setOrientation(QPageLayout::Orientation orientation) { m_orientation = orientation; }

    /// The size on paper over the real size of the scene, from 0.1 to 10; other numbers are held within that range.
    double scaleFactor() const { return m_scaleFactor; }
    void setScaleFactor(double factor);
    /// Whether every scene is made as wide as the paper between its margins, whatever the scale factor.
    bool scaleToWidth() const { return m_scaleToWidth; }
    void setScaleToWidth(bool scaleToWidth) { m_scaleToWidth = scaleToWidth; }

    /// A short line of small text at the foot of every page; none when empty, as it is at first.
    QString footLine() const { return m_footLine; }
    void setFootLine(const QString& text) { m_footLine = text; }

    /// Width and height of the paper in millimetres, exchanged for landscape.
    QSizeF getStandardPaperSizeMM() const;
    /// The paper between the margins, in millimetres from its top left corner; empty when the margins leave nothing.
    QRectF printableRectMM() const;
    /// The same for Qt's devices: paper, orientation and margins in millimetres.
    QPageLayout toPageLayout() const;

    friend bool operator==(const Printer&, const Printer&) = default;

private:
    int m_topMargin = 15;
    int m_leftMargin = 11;
    int m_bottomMargin = 15;
    int m_rightMargin = 11;
    QPageSize::PageSizeId m_pageSize = QPageSize::A4;
    QPageLayout::Orientation m_orientation = QPageLayout::Portrait;
    double m_scaleFactor = 1.0;
    bool m_scaleToWidth = false;
    QString m_footLine;
};
