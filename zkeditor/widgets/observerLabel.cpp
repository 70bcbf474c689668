#include "zkeditor/widgets/observerLabel.h"

#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/formatter.h"
#include "zkeditor/widgets/labelMirror.h"
#include "zkeditor/widgets/poReceiver.h"

ObserverLabel::ObserverLabel(QWidget* parent, const QString& name)
    : QLabel(QStringLiteral("value"), parent), NumericalObserver(this)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText); // documents come from anybody
    new LabelMirror(this);
}

void ObserverLabel::unbind()
{
    const bool wasBound = !m_props.empty();
    NumericalObserver::unbind();
    if (wasBound)
        showText({});
}

void ObserverLabel::onPropertyValueChanged(Property, Value value)
{
    if (!hasCompatibleValues()) {
        showText(QString(QChar(0x2014)));
        return;
    }
    const Formatter* formatter = m_props.empty() ? nullptr : m_props.front()->getFormatter();
    showText(formatter ? formatter->toText(value) : formatValueAsString(value));
}

void ObserverLabel::showText(const QString& text)
{
    setText(text);
    // The accessible name is the property's.
    setAccessibleDescription(text);
}

void ObserverLabel::onStateChanged()
{
    const QPointer<POReceiver> alive(m_receiver);
    NumericalObserver::onStateChanged();
    if (alive)
        setEnabled(true);
}
