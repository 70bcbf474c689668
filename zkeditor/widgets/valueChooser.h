#pragma once

#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <utility>
#include <vector>

/// A combo box over a property that takes one of some values, each with a text of its own. Empty while the nodes have
/// different values, or one that is not offered.
class ValueChooser : public ComboBox, public PropertyObserver
{
    Q_OBJECT

public:
    using Choices = std::vector<std::pair<QString, Value>>;

    explicit ValueChooser(const QString& modelProperty, QWidget* parent = nullptr);

    /// What is offered, in order. What is bound is shown again.
    void setChoices(Choices choices);
    /// The value shown; invalid when there is none.
    Value chosen() const;

Q_SIGNALS:
    /// After another value, or none, is shown.
    void chosenChanged();

protected:
    void onPropertyValueChanged(Property property, Value value) override;
    void changeEvent(QEvent* event) override;

private:
    void onActivated(int index);

    Choices m_choices;
};
