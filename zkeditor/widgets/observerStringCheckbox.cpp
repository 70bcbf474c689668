#include "zkeditor/widgets/observerStringCheckbox.h"

#include "zkcore/base/assert.h"
#include "zkeditor/widgets/checkBox.h"
#include "zkeditor/widgets/poReceiver.h"

#include <QEvent>

ObserverStringCheckBox::ObserverStringCheckBox(QWidget* parent, const QString& name)
    : ObserverStringCheckBox(QStringLiteral("Checkbox"), parent, name)
{
}

ObserverStringCheckBox::ObserverStringCheckBox(const QString& text, QWidget* parent, const QString& name)
    : QCheckBox(text, parent), PropertyObserver(this, Value::STRING)
{
    setObjectName(name);
}

void ObserverStringCheckBox::setupWidget()
{
    ZK_ASSERT_TEXT(!m_onValue.isNull(), "m_onValue != QString::null");
    ZK_ASSERT_TEXT(!m_offValue.isNull(), "m_offValue != QString::null");
    ZK_ASSERT(m_valueType == Value::STRING);
    const QPointer<POReceiver> alive(m_receiver);
    PropertyObserver::setupWidget();
    if (alive)
        Q_EMIT toggled(isChecked());
    if (alive)
        connect(this, &QAbstractButton::clicked, this, &ObserverStringCheckBox::onWidgetValueChanged,
                Qt::UniqueConnection);
}

void ObserverStringCheckBox::onWidgetValueChanged()
{
    if (!isShowingValue())
        setPropertyValue(Value(isChecked() ? m_onValue : m_offValue));
}

void ObserverStringCheckBox::onPropertyValueChanged(Property, Value value)
{
    if (!value.isValid() || !isTypeCompatible(value.type()))
        CheckBox::showState(*this, false, false);
    else
        CheckBox::showState(*this, value.toString() == m_onValue, !hasCompatibleValues());
}

void ObserverStringCheckBox::changeEvent(QEvent* event)
{
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}
