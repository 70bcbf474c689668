#include "zkeditor/widgets/doubleSlider.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionSlider>
#include <QTimerEvent>
#include <algorithm>
#include <cmath>

namespace {

constexpr int sliderPositions = 1000000; // into which the style divides the range
constexpr int repeatDelay = 500;
constexpr int repeatInterval = 100;
constexpr int closestTicks = 4; // pixels

/// A slider for screen readers.
class DoubleSliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit DoubleSliderAccessible(DoubleSlider* slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? currentValue().toString() : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return slider()->showsValue() ? slider()->value() : QVariant(); }
    void setCurrentValue(const QVariant& value) override { slider()->chooseValue(value.toDouble()); }
    QVariant maximumValue() const override { return slider()->maxValue(); }
    QVariant minimumValue() const override { return slider()->minValue(); }
    QVariant minimumStepSize() const override { return slider()->lineStep(); }

private:
    DoubleSlider* slider() const { return static_cast<DoubleSlider*>(widget()); }
};

QAccessibleInterface* makeDoubleSliderAccessible(const QString& className, QObject* object)
{
    auto* slider = className == QLatin1String("DoubleSlider") ? qobject_cast<DoubleSlider*>(object) : nullptr;
    return slider ? new DoubleSliderAccessible(slider) : nullptr;
}

} // namespace

DoubleSlider::DoubleSlider(QWidget* parent, const QString& name) : DoubleSlider(Qt::Horizontal, parent, name) {}

DoubleSlider::DoubleSlider(Qt::Orientation orientation, QWidget* parent, const QString& name)
    : QWidget(parent), DoubleRangeControl(0.0, 99.0, 1.0, 10.0, 0.0), m_orientation(orientation)
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeDoubleSliderAccessible), true);
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed, QSizePolicy::Slider);
    if (orientation == Qt::Vertical)
        policy.transpose();
    setSizePolicy(policy);
}

DoubleSlider::~DoubleSlider() = default;

void DoubleSlider::setOrientation(Qt::Orientation orientation)
{
    if (orientation == m_orientation)
        return;
    m_orientation = orientation;
    QSizePolicy policy = sizePolicy();
    policy.transpose();
    setSizePolicy(policy);
    update();
}

void DoubleSlider::setTickPosition(QSlider::TickPosition position)
{
    m_tickPosition = position;
    updateGeometry();
    update();
}

void DoubleSlider::setTickInterval(double interval)
{
    m_tickInterval = std::abs(interval);
    update();
}

void DoubleSlider::setShowsValue(bool shows)
{
    if (shows == m_showsValue)
        return;
    m_showsValue = shows;
    update();
}

void DoubleSlider::valueChange()
{
    update();
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent change(this, value());
        QAccessible::updateAccessibility(&change);
    }
    Q_EMIT valueChanged(value());
}

void DoubleSlider::rangeChange()
{
    update();
}

void DoubleSlider::stepChange()
{
    update();
}

// Geometry

bool DoubleSlider::isMirrored() const
{
    return m_orientation == Qt::Horizontal && layoutDirection() == Qt::RightToLeft;
}

double DoubleSlider::fractionOf(double value) const
{
    const double range = maxValue() - minValue();
    return range > 0.0 && std::isfinite(range) ? (bound(value) - minValue()) / range : 0.0;
}

void DoubleSlider::fillOption(QStyleOptionSlider& option) const
{
    option.initFrom(this);
    option.orientation = m_orientation;
    option.upsideDown = m_orientation == Qt::Vertical || isMirrored();
    option.direction = Qt::LeftToRight; // the line above has it
    option.minimum = 0;
    option.maximum = sliderPositions;
    option.sliderPosition = static_cast<int>(std::lround(fractionOf(value()) * sliderPositions));
    option.sliderValue = option.sliderPosition;
    option.singleStep = 1;
    option.pageStep = sliderPositions / 10;
    option.tickPosition = m_tickPosition;
    option.state.setFlag(QStyle::State_Horizontal, m_orientation == Qt::Horizontal);
    option.subControls = QStyle::SC_SliderGroove;
    if (m_showsValue)
        option.subControls |= QStyle::SC_SliderHandle;
    if (m_tickPosition == QSlider::NoTicks)
        return;
    option.subControls |= QStyle::SC_SliderTickmarks;
    double interval = fractionOf(minValue() + (m_tickInterval > 0.0 ? m_tickInterval : pageStep()));
    const double closest = static_cast<double>(closestTicks) / std::max(along(QPoint(width(), height())), 1);
    for (bool twice = true; interval > 0.0 && interval < closest; twice = !twice)
        interval *= twice ? 2.0 : 5.0;
    option.tickInterval = std::max(static_cast<int>(std::lround(interval * sliderPositions)), 1);
    if (interval <= 0.0)
        option.tickInterval = sliderPositions;
}

DoubleSlider::Travel DoubleSlider::travel() const
{
    QStyleOptionSlider option;
    fillOption(option);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const bool horizontal = m_orientation == Qt::Horizontal;
    const int room = (horizontal ? groove.width() : groove.height()) - (horizontal ? handle.width() : handle.height());
    return {along(groove.topLeft()), std::max(room, 1), option.upsideDown};
}

double DoubleSlider::valueAt(int handleStart) const
{
    const Travel way = travel();
    double fraction = static_cast<double>(handleStart - way.start) / way.length;
    if (way.upside)
        fraction = 1.0 - fraction;
    if (fraction <= 0.0)
        return minValue();
    if (fraction >= 1.0)
        return maxValue();
    const double range = maxValue() - minValue();
    return bound(tidyValue(minValue() + fraction * range, range / way.length));
}

double DoubleSlider::tidyValue(double value, double resolution) const
{
    if (resolution > 0.0) {
        const double unit = std::pow(10.0, std::floor(std::log10(resolution)));
        value = std::round(value / unit) * unit;
    }
    // Without what the arithmetic left behind: 0.3, not 0.30000000000000004.
    return QString::number(value, 'g', 15).toDouble();
}

QPoint DoubleSlider::handlePosition(double value) const
{
    QStyleOptionSlider option;
    fillOption(option);
    option.sliderPosition = static_cast<int>(std::lround(fractionOf(value) * sliderPositions));
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this).center();
}

QSize DoubleSlider::sizeHint() const
{
    constexpr int length = 84;
    constexpr int tickSpace = 5;
    ensurePolished();
    QStyleOptionSlider option;
    fillOption(option);
    int thickness = style()->pixelMetric(QStyle::PM_SliderThickness, &option, this);
    for (const QSlider::TickPosition side : {QSlider::TicksAbove, QSlider::TicksBelow}) {
        if (m_tickPosition & side)
            thickness += tickSpace;
    }
    QSize contents(length, thickness);
    if (m_orientation == Qt::Vertical)
        contents.transpose();
    return style()->sizeFromContents(QStyle::CT_Slider, &option, contents, this);
}

QSize DoubleSlider::minimumSizeHint() const
{
    QStyleOptionSlider option;
    fillOption(option);
    const int length = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
    QSize size = sizeHint();
    if (m_orientation == Qt::Horizontal)
        size.setWidth(length);
    else
        size.setHeight(length);
    return size;
}

void DoubleSlider::paintEvent(QPaintEvent*)
{
    QStyleOptionSlider option;
    fillOption(option);
    if (!m_showsValue)
        option.sliderPosition = option.minimum; // some styles fill the groove up to there
    if (m_pressed != QStyle::SC_None) {
        option.activeSubControls = m_pressed;
        option.state |= QStyle::State_Sunken;
    } else {
        option.activeSubControls = m_hovered;
    }
    QPainter painter(this);
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
}

// Mouse

void DoubleSlider::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (event->buttons() != event->button() || m_pressed != QStyle::SC_None)
        return;
    const Qt::MouseButtons jump(style()->styleHint(QStyle::SH_Slider_AbsoluteSetButtons));
    const Qt::MouseButtons page(Qt::MouseButtons(style()->styleHint(QStyle::SH_Slider_PageSetButtons)) |
                                Qt::LeftButton);
    QStyleOptionSlider option;
    fillOption(option);
    const QPoint point = event->position().toPoint();
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const bool onHandle = m_showsValue && handle.contains(point);
    if (event->button() != Qt::LeftButton && !(jump & event->button()))
        return;

    const QPointer<DoubleSlider> alive(this);
    m_valueAtPress = value();
    m_pressed =
        onHandle || (jump & event->button()) || !m_showsValue ? QStyle::SC_SliderHandle : QStyle::SC_SliderGroove;
    gestureBegan();
    if (alive)
        Q_EMIT sliderPressed();
    if (!alive || m_pressed == QStyle::SC_None)
        return;
    if (m_pressed == QStyle::SC_SliderHandle) {
        m_grabOffset = along(point) - along(handle.topLeft());
        if (!onHandle) {
            m_grabOffset = (m_orientation == Qt::Horizontal ? handle.width() : handle.height()) / 2;
            setValue(valueAt(along(point) - m_grabOffset));
        }
    } else if (page & event->button()) {
        m_pagePoint = point;
        m_repeat.start(repeatDelay, this);
        pageTowards(point);
    }
    if (alive)
        update();
}

void DoubleSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed == QStyle::SC_SliderHandle)
        setValue(valueAt(along(event->position().toPoint()) - m_grabOffset));
    else if (m_pressed == QStyle::SC_SliderGroove)
        m_pagePoint = event->position().toPoint();
}

void DoubleSlider::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (event->buttons() == Qt::NoButton)
        endInteraction();
}

void DoubleSlider::pageTowards(const QPoint& point)
{
    const Travel way = travel();
    const int from = along(handlePosition(value()));
    const int to = along(point);
    // As far as the mouse, not past it.
    if (std::abs(to - from) <= style()->pixelMetric(QStyle::PM_SliderLength, nullptr, this) / 2) {
        m_repeat.stop();
        return;
    }
    stepBy((to > from) != way.upside ? pageStep() : -pageStep());
}

void DoubleSlider::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_repeat.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_repeat.start(repeatInterval, this);
    pageTowards(m_pagePoint);
}

void DoubleSlider::endInteraction()
{
    m_repeat.stop();
    const bool pressed = std::exchange(m_pressed, QStyle::SC_None) != QStyle::SC_None;
    const bool held = std::exchange(m_keyHeld, false);
    if (!pressed && !held)
        return;
    update();
    const QPointer<DoubleSlider> alive(this);
    gestureEnded();
    if (alive && pressed)
        Q_EMIT sliderReleased();
}

void DoubleSlider::gestureCancelled()
{
    setValue(m_valueAtPress);
}

// Keys and wheel

void DoubleSlider::stepBy(double distance)
{
    setValue(bound(tidyValue(value() + distance, 0.0)));
}

void DoubleSlider::chooseValue(double value)
{
    const QPointer<DoubleSlider> alive(this);
    gestureBegan();
    if (alive)
        setValue(bound(value));
    if (alive)
        gestureEnded();
}

void DoubleSlider::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_pressed != QStyle::SC_None) {
        m_repeat.stop();
        m_pressed = QStyle::SC_None;
        update();
        const QPointer<DoubleSlider> alive(this);
        gestureCancelled();
        if (alive)
            Q_EMIT sliderReleased();
        return;
    }
    const double forward = isMirrored() ? -1.0 : 1.0;
    double distance = 0.0;
    switch (event->key()) {
    case Qt::Key_Left:
        distance = -forward * lineStep();
        break;
    case Qt::Key_Right:
        distance = forward * lineStep();
        break;
    case Qt::Key_Up:
        distance = lineStep();
        break;
    case Qt::Key_Down:
        distance = -lineStep();
        break;
    case Qt::Key_PageUp:
        distance = pageStep();
        break;
    case Qt::Key_PageDown:
        distance = -pageStep();
        break;
    case Qt::Key_Home:
    case Qt::Key_End:
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_pressed != QStyle::SC_None)
        return;
    const QPointer<DoubleSlider> alive(this);
    if (!event->isAutoRepeat() || !m_keyHeld) {
        m_keyHeld = true;
        gestureBegan();
    }
    if (!alive)
        return;
    if (event->key() == Qt::Key_Home)
        setValue(minValue());
    else if (event->key() == Qt::Key_End)
        setValue(maxValue());
    else
        stepBy(distance);
}

void DoubleSlider::keyReleaseEvent(QKeyEvent* event)
{
    // A key that is held sends releases as well, which end nothing.
    if (m_keyHeld && !event->isAutoRepeat())
        endInteraction();
    else
        QWidget::keyReleaseEvent(event);
}

void DoubleSlider::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (m_pressed != QStyle::SC_None)
        return;
    const QPoint turned = event->angleDelta();
    m_wheelDelta += turned.y() != 0 ? turned.y() : (isMirrored() ? turned.x() : -turned.x());
    const int notches = m_wheelDelta / 120;
    m_wheelDelta -= notches * 120;
    if (notches == 0)
        return;
    const bool byPage = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    const QPointer<DoubleSlider> alive(this);
    gestureBegan();
    if (alive)
        stepBy(notches * (byPage ? pageStep() : lineStep()));
    if (alive)
        gestureEnded();
}

void DoubleSlider::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    if (m_keyHeld && m_pressed == QStyle::SC_None)
        endInteraction();
}

void DoubleSlider::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    endInteraction();
}

void DoubleSlider::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        endInteraction();
    else if (event->type() == QEvent::StyleChange)
        updateGeometry();
}

bool DoubleSlider::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Escape belongs to a drag while there is one.
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && m_pressed != QStyle::SC_None)
            event->accept();
        break;
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        setHovered(static_cast<QHoverEvent*>(event)->position().toPoint());
        break;
    case QEvent::HoverLeave:
        setHovered({-1, -1});
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void DoubleSlider::setHovered(const QPoint& point)
{
    QStyleOptionSlider option;
    fillOption(option);
    const QStyle::SubControl hovered = rect().contains(point)
                                           ? style()->hitTestComplexControl(QStyle::CC_Slider, &option, point, this)
                                           : QStyle::SC_None;
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    update();
}
