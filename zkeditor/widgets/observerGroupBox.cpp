#include "zkeditor/widgets/observerGroupBox.h"

#include "zkeditor/widgets/childrenGate.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/subpartSource.h"

#include <QEvent>
#include <QStyleOptionGroupBox>
#include <utility>

ObserverGroupBox::ObserverGroupBox(QWidget* parent, const QString& name)
    : QGroupBox(parent), PropertyObserver(this, Value::BOOL), m_contents(this), m_gate(new ChildrenGate(this))
{
    setObjectName(name);
    connect(this, &QGroupBox::clicked, this, &ObserverGroupBox::onWidgetValueChanged);
    connect(this, &QGroupBox::toggled, this, &ObserverGroupBox::updateGate);
}

void ObserverGroupBox::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const QPointer<POReceiver> alive(m_receiver);
    if (modelProperty().isEmpty())
        unbind();
    else
        PropertyObserver::bind(document, nodes);
    if (!alive)
        return;
    // Where a subpart is chosen in the box, the others in it show that subpart.
    if (SubpartSource* source = SubpartSource::in(this))
        source->bindContainer(this, document, nodes);
    else
        m_contents.bind(document, nodes);
}

void ObserverGroupBox::unbind()
{
    const QPointer<POReceiver> alive(m_receiver);
    if (SubpartSource* source = SubpartSource::in(this))
        source->releaseContainer();
    // What is in the box may still have something to write.
    m_contents.unbind();
    if (!alive)
        return;
    PropertyObserver::unbind();
    if (std::exchange(m_mixed, false))
        update();
}

void ObserverGroupBox::setupWidget()
{
    setCheckable(true);
    PropertyObserver::setupWidget();
}

void ObserverGroupBox::onPropertyValueChanged(Property, Value value)
{
    const bool mixed = !hasCompatibleValues();
    if (mixed != m_mixed) {
        m_mixed = mixed;
        update();
    }
    setChecked(!mixed && value.toBool());
    updateGate();
}

void ObserverGroupBox::updateGate()
{
    m_gate->setOpen(!isCheckable() || isChecked());
}

void ObserverGroupBox::onWidgetValueChanged(bool checked)
{
    if (m_props.empty() || isShowingValue())
        return;
    m_mixed = false;
    setPropertyValue(Value(checked));
}

void ObserverGroupBox::initStyleOption(QStyleOptionGroupBox* option) const
{
    QGroupBox::initStyleOption(option);
    if (m_mixed && isCheckable()) {
        option->state.setFlag(QStyle::State_On, false);
        option->state.setFlag(QStyle::State_Off, false);
        option->state.setFlag(QStyle::State_NoChange, true);
    }
}

void ObserverGroupBox::setEnabled(bool enabled)
{
    QGroupBox::setEnabled(enabled && isPropertyWriteable());
}

void ObserverGroupBox::setDisabled(bool disabled)
{
    QGroupBox::setDisabled(disabled || !isPropertyWriteable());
}

void ObserverGroupBox::changeEvent(QEvent* event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}
