#include "zkeditor/widgets/confirmingObserverCheckbox.h"

#include "zkeditor/widgets/poReceiver.h"

#include <QMessageBox>

ConfirmingObserverCheckBox::ConfirmingObserverCheckBox(QWidget* parent, const QString& name)
    : ObserverCheckBox(parent, name)
{
}

ConfirmingObserverCheckBox::ConfirmingObserverCheckBox(const QString& text, QWidget* parent, const QString& name)
    : ObserverCheckBox(text, parent, name)
{
}

void ConfirmingObserverCheckBox::onWidgetValueChanged()
{
    const bool on = isChecked();
    const QString question = on ? m_confirmOnQuestion : m_confirmOffQuestion;
    if (m_props.empty() || question.isNull()) {
        ObserverCheckBox::onWidgetValueChanged();
        return;
    }
    // While the user reads, the model may change, and the box be bound to other nodes or deleted.
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    const QMessageBox::StandardButton answer = QMessageBox::question(
        nullptr, tr("Change property value"), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (!alive || binding != bindingNumber())
        return;
    if (answer != QMessageBox::Yes) {
        showFirstValue();
        return;
    }
    setChecked(on);
    ObserverCheckBox::onWidgetValueChanged();
}
