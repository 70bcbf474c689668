#include "zkeditor/widgets/spinControls.h"

#include <QHoverEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionSpinBox>
#include <QTimerEvent>

SpinControls::SpinControls(QWidget* parent, const QString& name) : QWidget(parent)
{
    setObjectName(name);
    setAttribute(Qt::WA_Hover);
}

SpinControls::~SpinControls() = default;

void SpinControls::setEditWidget(QWidget* editor)
{
    m_editor = editor;
    m_editor->setParent(this);
    arrange();
}

void SpinControls::initStyleOption(QStyleOptionSpinBox& option) const
{
    option.initFrom(this);
    option.subControls =
        QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxEditField;
    option.frame = true;
    option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    option.stepEnabled = QAbstractSpinBox::StepNone;
    if (m_upEnabled && isEnabled())
        option.stepEnabled |= QAbstractSpinBox::StepUpEnabled;
    if (m_downEnabled && isEnabled())
        option.stepEnabled |= QAbstractSpinBox::StepDownEnabled;
    option.state.setFlag(QStyle::State_HasFocus, m_editor && m_editor->hasFocus());
    option.state.setFlag(QStyle::State_KeyboardFocusChange, false);
    if (m_pressed != QStyle::SC_None) {
        option.activeSubControls = m_pressed;
        option.state |= QStyle::State_Sunken;
    } else {
        option.activeSubControls = m_hovered;
    }
}

QRect SpinControls::rectOf(QStyle::SubControl control) const
{
    QStyleOptionSpinBox option;
    initStyleOption(option);
    return style()->subControlRect(QStyle::CC_SpinBox, &option, control, this);
}

QRect SpinControls::upRect() const
{
    return rectOf(QStyle::SC_SpinBoxUp);
}

QRect SpinControls::downRect() const
{
    return rectOf(QStyle::SC_SpinBoxDown);
}

void SpinControls::arrange()
{
    if (m_editor)
        m_editor->setGeometry(rectOf(QStyle::SC_SpinBoxEditField));
    update();
}

void SpinControls::setUpEnabled(bool enabled)
{
    if (m_upEnabled == enabled)
        return;
    m_upEnabled = enabled;
    if (!enabled && m_pressed == QStyle::SC_SpinBoxUp)
        release();
    update();
}

void SpinControls::setDownEnabled(bool enabled)
{
    if (m_downEnabled == enabled)
        return;
    m_downEnabled = enabled;
    if (!enabled && m_pressed == QStyle::SC_SpinBoxDown)
        release();
    update();
}

QSize SpinControls::minimumSizeHint() const
{
    const QSize editor = m_editor ? m_editor->minimumSizeHint() : QSize();
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    return {downRect().width() + editor.width(), editor.height() + 2 * frame};
}

void SpinControls::paintEvent(QPaintEvent*)
{
    QStyleOptionSpinBox option;
    initStyleOption(option);
    QPainter painter(this);
    style()->drawComplexControl(QStyle::CC_SpinBox, &option, &painter, this);
}

void SpinControls::resizeEvent(QResizeEvent*)
{
    arrange();
}

QStyle::SubControl SpinControls::buttonAt(const QPoint& position) const
{
    QStyleOptionSpinBox option;
    initStyleOption(option);
    const QStyle::SubControl hit = style()->hitTestComplexControl(QStyle::CC_SpinBox, &option, position, this);
    return hit == QStyle::SC_SpinBoxUp || hit == QStyle::SC_SpinBoxDown ? hit : QStyle::SC_None;
}

void SpinControls::press(QStyle::SubControl control)
{
    const QPointer<SpinControls> alive(this);
    if (control == QStyle::SC_SpinBoxUp && m_upEnabled)
        Q_EMIT stepUpPressed();
    else if (control == QStyle::SC_SpinBoxDown && m_downEnabled)
        Q_EMIT stepDownPressed();
    if (alive)
        update();
}

void SpinControls::release()
{
    m_repeat.stop();
    m_pressed = QStyle::SC_None;
    update();
}

void SpinControls::mousePressEvent(QMouseEvent* event)
{
    const QStyle::SubControl control = buttonAt(event->position().toPoint());
    const bool works =
        (control == QStyle::SC_SpinBoxUp && m_upEnabled) || (control == QStyle::SC_SpinBoxDown && m_downEnabled);
    if (event->button() != Qt::LeftButton || !works) {
        event->ignore();
        return;
    }
    m_pressed = control;
    m_repeat.start(style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold, nullptr, this), this);
    press(control);
}

void SpinControls::mouseMoveEvent(QMouseEvent* event)
{
    // Moving off the button ends the repeating, as with any spin box; moving back does not begin it again.
    if (m_pressed != QStyle::SC_None && buttonAt(event->position().toPoint()) != m_pressed)
        release();
}

void SpinControls::mouseReleaseEvent(QMouseEvent*)
{
    release();
}

void SpinControls::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_repeat.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    if (m_pressed == QStyle::SC_None || !isEnabled()) {
        release();
        return;
    }
    m_repeat.start(style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatRate, nullptr, this), this);
    press(m_pressed);
}

void SpinControls::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::FontChange:
        arrange();
        break;
    case QEvent::EnabledChange:
        if (!isEnabled())
            release();
        break;
    default:
        break;
    }
}

void SpinControls::setHovered(QStyle::SubControl control)
{
    if (m_hovered == control)
        return;
    m_hovered = control;
    update();
}

bool SpinControls::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        setHovered(buttonAt(static_cast<QHoverEvent*>(event)->position().toPoint()));
        break;
    case QEvent::HoverLeave:
        setHovered(QStyle::SC_None);
        break;
    default:
        break;
    }
    return QWidget::event(event);
}
