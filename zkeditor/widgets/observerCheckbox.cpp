#include "zkeditor/widgets/observerCheckbox.h"

#include "zkeditor/widgets/checkBox.h"
#include "zkeditor/widgets/poReceiver.h"

#include <QEvent>

ObserverCheckBox::ObserverCheckBox(QWidget* parent, const QString& name)
    : ObserverCheckBox(QStringLiteral("Checkbox"), parent, name)
{
}

ObserverCheckBox::ObserverCheckBox(const QString& text, QWidget* parent, const QString& name)
    : QCheckBox(text, parent), PropertyObserver(this, Value::BOOL)
{
    setObjectName(name);
}

void ObserverCheckBox::setupWidget()
{
    const QPointer<POReceiver> alive(m_receiver);
    PropertyObserver::setupWidget();
    if (alive)
        Q_EMIT toggled(isChecked());
    // Stays across bindings; once, so that a question to the user is not asked again for every one of them.
    if (alive)
        connect(this, &QAbstractButton::clicked, this, &ObserverCheckBox::onWidgetValueChanged, Qt::UniqueConnection);
}

void ObserverCheckBox::onWidgetValueChanged()
{
    if (!isShowingValue())
        setPropertyValue(Value(invertBool(isChecked())));
}

void ObserverCheckBox::onPropertyValueChanged(Property, Value value)
{
    if (!value.isValid() || !isTypeCompatible(value.type()))
        CheckBox::showState(*this, false, false);
    else
        CheckBox::showState(*this, invertBool(value.toBool()), !hasCompatibleValues());
}

void ObserverCheckBox::setEnabled(bool enabled)
{
    QCheckBox::setEnabled(enabled && isPropertyWriteable());
}

void ObserverCheckBox::setDisabled(bool disabled)
{
    QCheckBox::setDisabled(disabled || !isPropertyWriteable());
}

void ObserverCheckBox::changeEvent(QEvent* event)
{
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}
