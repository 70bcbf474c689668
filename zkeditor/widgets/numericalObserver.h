#pragma once

#include "zkcore/values/unit.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

class NOReceiver;

/// A PropertyObserver for widgets that show numbers: the model has SI values, the widget shows them in the unit that
/// the first property's formatter prescribes, and follows when the user picks another.
class ZKEDITOR_EXPORT NumericalObserver : public PropertyObserver
{
public:
    explicit NumericalObserver(QWidget* widget);
    NumericalObserver(QWidget* widget, Value::Type type);
    ~NumericalObserver() override;

    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;

protected:
    /// Whether all bound properties show the same: values are compared in the unit shown.
    bool hasCompatibleValues() const override;
    Value comparableValue(const Value& value) const override;
    /// Shows the first property's value again; after its format changed.
    virtual void onFormatChanged();

    /// From and to SI in the unit of the first property; unchanged where it has none.
    Value convertFromSI(const Value& value) const;
    Value convertToSI(const Value& value) const;
    /// For typed numbers: a DOUBLE may lie outside a validator's range by less than the last decimal of its bounds, so
    /// that a number rounded for display is not refused. Other types as in validateValue().
    bool fuzzyValidateValue(const Value& value) const;

    /// The unit that the first property is shown in; the null unit when it has none, or nothing is bound.
    Unit shownUnit() const;

private:
    friend class NOReceiver;

    NOReceiver* m_no;
};
