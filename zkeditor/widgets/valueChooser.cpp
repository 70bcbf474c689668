#include "zkeditor/widgets/valueChooser.h"

#include "zkcore/model/propertyImpl.h"

#include <QEvent>
#include <QSignalBlocker>
#include <algorithm>

ValueChooser::ValueChooser(const QString& modelProperty, QWidget* parent) : ComboBox(parent), PropertyObserver(this)
{
    setModelProperty(modelProperty);
    connect(this, &QComboBox::activated, this, &ValueChooser::onActivated);
}

void ValueChooser::setChoices(Choices choices)
{
    if (choices == m_choices)
        return;
    m_choices = std::move(choices);
    {
        const QSignalBlocker quiet(this);
        clear();
        for (const auto& [text, value] : m_choices)
            addItem(text);
        setCurrentIndex(-1);
    }
    if (!m_props.empty())
        showFirstValue();
}

Value ValueChooser::chosen() const
{
    const int index = currentIndex();
    return index < 0 ? Value() : m_choices[static_cast<size_t>(index)].second;
}

void ValueChooser::onPropertyValueChanged(Property, Value value)
{
    int index = -1;
    if (hasCompatibleValues()) {
        const auto found = std::find_if(m_choices.begin(), m_choices.end(),
                                        [&value](const auto& choice) { return choice.second == value; });
        if (found != m_choices.end())
            index = static_cast<int>(found - m_choices.begin());
    }
    setCurrentIndex(index);
    Q_EMIT chosenChanged();
}

void ValueChooser::onActivated(int index)
{
    if (!isShowingValue() && !m_props.empty() && index >= 0)
        setPropertyValue(m_choices[static_cast<size_t>(index)].second);
}

void ValueChooser::changeEvent(QEvent* event)
{
    ComboBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}
