#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/doubleRangeControl.h"

#include <QBasicTimer>
#include <QSlider>
#include <QStyle>
#include <QWidget>

class QStyleOptionSlider;

/// A slider for double values. Dragged, it takes values with no more digits than a pixel can tell apart; the arrow keys
/// and the wheel move it by the line step, the page keys (and clicks beside the handle, where the style has it so) by
/// the page step, Home and End to the ends. Escape during a drag brings back the value before it.
class ZKEDITOR_EXPORT DoubleSlider : public QWidget, public DoubleRangeControl
{
    Q_OBJECT
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(double lineStep READ lineStep WRITE setLineStep)
    Q_PROPERTY(double pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(QSlider::TickPosition tickPosition READ tickPosition WRITE setTickPosition)
    Q_PROPERTY(double tickInterval READ tickInterval WRITE setTickInterval)

public:
    /// Horizontal, from 0 to 99, in steps of 1 and 10.
    explicit DoubleSlider(QWidget* parent = nullptr, const QString& name = {});
    DoubleSlider(Qt::Orientation orientation, QWidget* parent, const QString& name = {});
    ~DoubleSlider() override;

    Qt::Orientation orientation() const { return m_orientation; }
    void setOrientation(Qt::Orientation orientation);
    virtual void setLineStep(double step) { setSteps(step, pageStep()); }
    virtual void setPageStep(double step) { setSteps(lineStep(), step); }
    QSlider::TickPosition tickPosition() const { return m_tickPosition; }
    void setTickPosition(QSlider::TickPosition position);
    /// The distance of two tick marks as a value, 0 for the page step. Marks that would stand too close are left out.
    double tickInterval() const { return m_tickInterval; }
    void setTickInterval(double interval);

    /// Whether the user holds the handle.
    bool isSliderDown() const { return m_pressed == QStyle::SC_SliderHandle; }
    /// Whether there is a value to show; without one there is no handle until the user chooses one.
    bool showsValue() const { return m_showsValue; }
    /// The centre of the handle for a value.
    QPoint handlePosition(double value) const;
    /// As if the user had chosen the value in one go; for assistive technology.
    void chooseValue(double value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setValue(double value) override { DoubleRangeControl::setValue(value); }

Q_SIGNALS:
    void valueChanged(double);
    void sliderPressed();
    void sliderReleased();

protected:
    void valueChange() override;
    void rangeChange() override;
    void stepChange() override;

    // What the user holds: the mouse or a key, from press to release. Slots run by valueChanged() may delete the
    // slider.
    virtual void gestureBegan() {}
    virtual void gestureEnded() {}
    /// Escape during a drag.
    virtual void gestureCancelled();
    /// The value that a value under the mouse or reached by a step becomes; `resolution` is what a pixel is worth, 0
    /// for a step.
    virtual double tidyValue(double value, double resolution) const;
    /// Ends what the user holds, as if it was released now.
    void endInteraction();
    void setShowsValue(bool shows);

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Travel
    {
        int start;   // of the handle at one end of the groove
        int length;  // in pixels, at least 1
        bool upside; // whether values grow against the pixels
    };

    void fillOption(QStyleOptionSlider& option) const;
    Travel travel() const;
    int along(const QPoint& point) const { return m_orientation == Qt::Horizontal ? point.x() : point.y(); }
    double valueAt(int handleStart) const;
    double fractionOf(double value) const;
    bool isMirrored() const;
    void stepBy(double distance);
    void pageTowards(const QPoint& point);
    void setHovered(const QPoint& point);

    Qt::Orientation m_orientation;
    QSlider::TickPosition m_tickPosition = QSlider::NoTicks;
    double m_tickInterval = 0.0;
    QStyle::SubControl m_pressed = QStyle::SC_None;
    QStyle::SubControl m_hovered = QStyle::SC_None;
    int m_grabOffset = 0; // from the start of the handle to the mouse
    double m_valueAtPress = 0.0;
    QPoint m_pagePoint;
    QBasicTimer m_repeat;
    int m_wheelDelta = 0;
    bool m_keyHeld = false;
    bool m_showsValue = true;
};
