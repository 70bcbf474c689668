// The badge of the product.
#include "zkeditor/widgets/brandWidget.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionFocusRect>

BrandWidget::BrandWidget(QWidget* parent, const char* name)
    : QAbstractButton(parent), m_normal(loadPicture("editor/model_n")), m_pressed(loadPicture("editor/model_a"))
{
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(tr("About the product"));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    takeShape(m_normal);
}

BrandWidget::Picture BrandWidget::loadPicture(const char* resource) const
{
    Picture picture;
    picture.pixmap = ImageCache::getPixmap(Resource(resource));
    picture.size = picture.pixmap.deviceIndependentSize().toSize();
    picture.mask = QBitmap::fromImage(createPixmapMask(picture.pixmap));
    const double ratio = devicePixelRatioF();
    if (ratio > 1.0 && !picture.size.isEmpty()) {
        // Sharp on fine screens; the shape is in the coarser pixels of the window system.
        const QPixmap sharp = ImageCache::getPixmap(Resource(resource), picture.size, ratio);
        if (!sharp.isNull())
            picture.pixmap = sharp;
    }
    return picture;
}

QImage BrandWidget::createPixmapMask(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage();
    return pixmap.hasAlphaChannel() ? image.createAlphaMask() : image.createHeuristicMask();
}

QSize BrandWidget::sizeHint() const
{
    return m_normal.size;
}

void BrandWidget::takeShape(const Picture& picture)
{
    if (m_shape == &picture)
        return;
    m_shape = &picture;
    resize(picture.size);
    if (!picture.mask.isNull())
        setMask(picture.mask);
}

void BrandWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawButton(&painter);
}

void BrandWidget::drawButton(QPainter* painter)
{
    const Picture& picture = isDown() ? m_pressed : m_normal;
    takeShape(picture);
    painter->drawPixmap(0, 0, picture.pixmap);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect().adjusted(3, 3, -3, -3);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, painter, this);
}
