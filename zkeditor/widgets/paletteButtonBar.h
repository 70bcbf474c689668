#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/iconSet.h"

#include <QPushButton>

/// The header of a collapsible item: a bar as wide as its item that is on while the item is open. Made on.
class ZKEDITOR_EXPORT PaletteButtonBar : public QPushButton
{
    Q_OBJECT

public:
    /// The look is the first of PaletteBox::StandardStyle, PlainStyle and SectionStyle that is set in `style`; other
    /// bits are ignored. None of them is fatal.
    explicit PaletteButtonBar(unsigned int style, QWidget* parent = nullptr, const QString& name = {});

    /// Shown as it is, without shortcut letters, and read out as the accessible name.
    void setText(const QString& text);

    /// The longest beginning of the label that is shown in that many pixels, dots included; the label itself when it is
    /// narrower than that.
    static QString fittingText(const QString& label, const QFontMetrics& metrics, int width);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override;

private:
    void loadImages();
    void describeState(bool open);
    int textWidth() const;

    unsigned int m_style;
    IconSet m_left;
    IconSet m_center;
    IconSet m_right;
    double m_imagesRatio = 0.0; // the device pixel ratio that the pictures were loaded for
};
