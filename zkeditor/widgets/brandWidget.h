#pragma once

#include "zkeditor/export.h"

#include <QAbstractButton>
#include <QBitmap>
#include <QPixmap>

/// The product's badge: a button in the shape of its picture, with another picture while it is pressed.
class ZKEDITOR_EXPORT BrandWidget : public QAbstractButton
{
    Q_OBJECT

public:
    explicit BrandWidget(QWidget* parent = nullptr, const char* name = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    /// Takes the size and shape of the picture for the state and draws it.
    void drawButton(QPainter* painter);

private:
    struct Picture
    {
        QPixmap pixmap;
        QBitmap mask;
        QSize size; // in device-independent pixels
    };

    static QImage createPixmapMask(const QPixmap& pixmap);
    Picture loadPicture(const char* resource) const;
    void takeShape(const Picture& picture);

    Picture m_normal;
    Picture m_pressed;
    const Picture* m_shape = nullptr; // the one whose shape the widget has
};
