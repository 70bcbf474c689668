// A paint device that paints everything but text into a picture, and notes the colour of each text and what lies below.
#include "tests/support/contrastProbe.h"

#include "zkeditor/widgets/readableColors.h"

#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QWidget>
#include <algorithm>

namespace {

constexpr QRgb marker = 0xff01fe03;

QColor over(const QColor& color, double opacity, const QColor& ground)
{
    const double alpha = color.alphaF() * opacity;
    const auto mix = [alpha](int top, int bottom) { return qRound(top * alpha + bottom * (1 - alpha)); };
    return QColor(mix(color.red(), ground.red()), mix(color.green(), ground.green()), mix(color.blue(), ground.blue()));
}

class ProbeEngine : public QPaintEngine
{
public:
    explicit ProbeEngine(QImage* image) : QPaintEngine(AllFeatures), m_image(image) {}

    std::vector<contrastProbe::PaintedText> texts;

    bool begin(QPaintDevice*) override
    {
        setActive(true);
        return m_painter.begin(m_image);
    }
    bool end() override
    {
        setActive(false);
        return m_painter.end();
    }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& now) override
    {
        const DirtyFlags dirty = now.state();
        m_painter.setTransform(now.transform());
        if (dirty & DirtyPen)
            m_painter.setPen(now.pen());
        if (dirty & DirtyBrush)
            m_painter.setBrush(now.brush());
        if (dirty & DirtyBrushOrigin)
            m_painter.setBrushOrigin(now.brushOrigin());
        if (dirty & DirtyFont)
            m_painter.setFont(now.font());
        if (dirty & DirtyBackground)
            m_painter.setBackground(now.backgroundBrush());
        if (dirty & DirtyBackgroundMode)
            m_painter.setBackgroundMode(now.backgroundMode());
        if (dirty & DirtyOpacity)
            m_painter.setOpacity(now.opacity());
        if (dirty & DirtyCompositionMode)
            m_painter.setCompositionMode(now.compositionMode());
        if (dirty & DirtyHints) {
            m_painter.setRenderHints(m_painter.renderHints(), false);
            m_painter.setRenderHints(now.renderHints(), true);
        }
        if (dirty & DirtyClipPath)
            m_painter.setClipPath(now.clipPath(), now.clipOperation());
        if (dirty & DirtyClipRegion)
            m_painter.setClipRegion(now.clipRegion(), now.clipOperation());
        if (dirty & DirtyClipEnabled)
            m_painter.setClipping(now.isClipEnabled());
    }

    void drawPath(const QPainterPath& path) override { inner().drawPath(path); }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        if (mode == PolylineMode)
            inner().drawPolyline(points, count);
        else
            inner().drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }
    void drawRects(const QRectF* rects, int count) override { inner().drawRects(rects, count); }
    void drawLines(const QLineF* lines, int count) override { inner().drawLines(lines, count); }
    void drawEllipse(const QRectF& rect) override { inner().drawEllipse(rect); }
    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override
    {
        inner().drawPixmap(target, pixmap, source);
    }
    void drawTiledPixmap(const QRectF& target, const QPixmap& pixmap, const QPointF& offset) override
    {
        inner().drawTiledPixmap(target, pixmap, offset);
    }
    void drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                   Qt::ImageConversionFlags flags) override
    {
        inner().drawImage(target, image, source, flags);
    }

    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        if (item.text().trimmed().isEmpty())
            return;
        const QRectF box(place.x(), place.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        const QRect area = inner().transform().mapRect(box).toAlignedRect() & m_image->rect();
        if (area.isEmpty())
            return;
        // What of it is visible: the pixels that a mark painted through the same clips reaches.
        const QImage before = m_image->copy(area);
        m_painter.save();
        m_painter.setOpacity(1);
        m_painter.setCompositionMode(QPainter::CompositionMode_Source);
        m_painter.setRenderHint(QPainter::Antialiasing, false);
        m_painter.fillRect(box, QColor::fromRgb(marker));
        m_painter.restore();
        const QColor pen = m_painter.pen().color();
        const QRegion pane = systemClip();
        contrastProbe::PaintedText painted{{}, item.text(), pen, {}, 1};
        std::vector<std::pair<double, QRgb>> pixels;
        for (int y = 0; y < area.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(m_image->scanLine(area.y() + y)) + area.x();
            const auto* old = reinterpret_cast<const QRgb*>(before.constScanLine(y));
            for (int x = 0; x < area.width(); ++x) {
                if (line[x] != marker)
                    continue;
                line[x] = old[x];
                // After a widget's own clip is gone, the picture's painter forgets the edge of the pane around it.
                if (!pane.isEmpty() && !pane.contains(QPoint(area.x() + x, area.y() + y)))
                    continue;
                painted.place |= QRect(area.x() + x, area.y() + y, 1, 1);
                const QColor ground = QColor::fromRgb(old[x]);
                pixels.emplace_back(readableColors::contrast(over(pen, m_painter.opacity(), ground), ground), old[x]);
            }
        }
        if (pixels.size() < 8)
            return; // an edge of a letter at most
        std::sort(pixels.begin(), pixels.end());
        const auto& [contrast, ground] = pixels[pixels.size() / 5];
        painted.contrast = contrast;
        painted.ground = QColor::fromRgb(ground);
        painted.color = over(pen, m_painter.opacity(), painted.ground);
        texts.push_back(painted);
    }

private:
    QPainter& inner()
    {
        m_painter.paintEngine()->setSystemClip(systemClip());
        return m_painter;
    }

    QImage* m_image;
    QPainter m_painter;
};

class ProbeDevice : public QPaintDevice
{
public:
    explicit ProbeDevice(const QSize& size) : m_image(size, QImage::Format_RGB32), m_engine(&m_image)
    {
        m_image.fill(Qt::white);
    }

    QPaintEngine* paintEngine() const override { return &m_engine; }
    std::vector<contrastProbe::PaintedText>& texts() { return m_engine.texts; }

protected:
    int metric(PaintDeviceMetric which) const override
    {
        switch (which) {
        case PdmWidth:
            return m_image.width();
        case PdmHeight:
            return m_image.height();
        case PdmWidthMM:
            return m_image.widthMM();
        case PdmHeightMM:
            return m_image.heightMM();
        case PdmDepth:
            return m_image.depth();
        case PdmNumColors:
            return m_image.colorCount();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_image.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_image.logicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(which);
        }
    }

private:
    QImage m_image;
    mutable ProbeEngine m_engine;
};

} // namespace

std::vector<contrastProbe::PaintedText> contrastProbe::paintedTexts(QWidget& widget)
{
    ProbeDevice device(widget.size());
    widget.render(&device);
    return std::move(device.texts());
}
