#pragma once

#include "zkeditor/export.h"

#include <QBasicTimer>
#include <QStyle>
#include <QWidget>

class QStyleOptionSpinBox;

/// The frame and the two buttons of a spin box around an editor, drawn by the style. A button that is held down repeats
/// after the delay, and at the rate, that the style gives.
class ZKEDITOR_EXPORT SpinControls : public QWidget
{
    Q_OBJECT

public:
    explicit SpinControls(QWidget* parent = nullptr, const QString& name = {});
    ~SpinControls() override;

    /// Becomes a child, placed between the frame and the buttons.
    void setEditWidget(QWidget* editor);
    /// Places the editor anew; after a change of style or direction.
    void arrange();

    void setUpEnabled(bool enabled);
    void setDownEnabled(bool enabled);
    bool isUpEnabled() const { return m_upEnabled; }
    bool isDownEnabled() const { return m_downEnabled; }
    QRect upRect() const;
    QRect downRect() const;

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The button was pressed, or repeats.
    void stepUpPressed();
    void stepDownPressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void initStyleOption(QStyleOptionSpinBox& option) const;
    QStyle::SubControl buttonAt(const QPoint& position) const;
    QRect rectOf(QStyle::SubControl control) const;
    void press(QStyle::SubControl control);
    void release();
    void setHovered(QStyle::SubControl control);

    QWidget* m_editor = nullptr;
    QBasicTimer m_repeat;
    QStyle::SubControl m_pressed = QStyle::SC_None;
    QStyle::SubControl m_hovered = QStyle::SC_None;
    bool m_upEnabled = true;
    bool m_downEnabled = true;
};
