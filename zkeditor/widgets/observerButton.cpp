#include "zkeditor/widgets/observerButton.h"

#include "zkcore/base/assert.h"
#include "zkeditor/widgets/poReceiver.h"

#include <QEvent>

ObserverButton::ObserverButton(QWidget* parent, const QString& name)
    : ObserverButton(QStringLiteral("Button"), parent, name)
{
}

ObserverButton::ObserverButton(const QString& text, QWidget* parent, const QString& name)
    : QToolButton(parent), PropertyObserver(this)
{
    setObjectName(name);
    setText(text);
}

void ObserverButton::setMode(Mode mode)
{
    m_mode = mode;
    if (mode == STRING)
        setCheckable(true);
}

void ObserverButton::setWrapPixmaps(bool wrap)
{
    m_wrapPixmaps = wrap;
    updateGeometry();
}

void ObserverButton::setupWidget()
{
    if (m_mode == STRING) {
        ZK_ASSERT_TEXT(!m_onValue.isNull(), "m_onValue != QString::null");
        ZK_ASSERT_TEXT(!m_offValue.isNull(), "m_offValue != QString::null");
        ZK_ASSERT(m_valueType == Value::STRING);
    } else {
        ZK_ASSERT(m_valueType == Value::BOOL);
    }
    const QPointer<POReceiver> alive(m_receiver);
    PropertyObserver::setupWidget();
    if (!alive)
        return;
    if (!isCheckable()) {
        connect(this, &QAbstractButton::pressed, this, &ObserverButton::onWidgetValueChanged);
        connect(this, &QAbstractButton::released, this, &ObserverButton::onWidgetValueChanged);
        return;
    }
    Q_EMIT toggled(isChecked());
    if (alive)
        connect(this, &QAbstractButton::toggled, this, &ObserverButton::onWidgetValueChanged);
}

void ObserverButton::unbind()
{
    PropertyObserver::unbind();
    // Only what setupWidget() made: the tool button's own handling of its menu is a connection to itself as well.
    disconnect(this, &QAbstractButton::pressed, this, &ObserverButton::onWidgetValueChanged);
    disconnect(this, &QAbstractButton::released, this, &ObserverButton::onWidgetValueChanged);
    disconnect(this, &QAbstractButton::toggled, this, &ObserverButton::onWidgetValueChanged);
}

void ObserverButton::onWidgetValueChanged()
{
    // A toggle button tells of every change of its state, also when it only follows the model.
    if (isShowingValue())
        return;
    if (m_mode == STRING)
        setPropertyValue(Value(isChecked() ? m_onValue : m_offValue));
    else
        setPropertyValue(Value(invertBool(isCheckable() ? isChecked() : isDown())));
}

void ObserverButton::onPropertyValueChanged(Property, Value value)
{
    if (isCheckable() && (!value.isValid() || !isTypeCompatible(value.type()) || !hasCompatibleValues()))
        setChecked(false);
    else if (m_mode == STRING)
        setChecked(value.toString() == m_onValue);
    else if (isCheckable())
        setChecked(invertBool(value.toBool()));
}

QSize ObserverButton::sizeHint() const
{
    if (!m_wrapPixmaps || icon().isNull())
        return QToolButton::sizeHint();
    return icon().actualSize(iconSize(), QIcon::Normal, QIcon::Off) + QSize(6, 6);
}

void ObserverButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}
