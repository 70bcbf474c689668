#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/doubleSpinbox.h"
#include "zkeditor/widgets/numericalObserver.h"

/// A spin box for an INT or DOUBLE property, in the unit shown. What is typed may be an expression ("1+2*3", "2 in + 3
/// mm") and is written on Return or when the focus goes; stepping is faster the longer a button or key is held, and
/// writes as it goes, all in one undo step. Blank while the selected nodes have different values.
class ZKEDITOR_EXPORT ObserverSpinBox : public DoubleSpinBox, public NumericalObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(bool autoSetLineStep READ isAutoSetLineStep WRITE setAutoSetLineStep)
    // The binding decides these; forms cannot.
    Q_PROPERTY(int maxValue READ intMaxValue WRITE setIntMaxValue DESIGNABLE false)
    Q_PROPERTY(int minValue READ intMinValue WRITE setIntMinValue DESIGNABLE false)
    Q_PROPERTY(int precision READ precision WRITE setPrecision DESIGNABLE false)

public:
    explicit ObserverSpinBox(QWidget* parent = nullptr, const QString& name = {});
    ~ObserverSpinBox() override;

    void unbind() override;

    void setModelProperty(const QString& key) { PropertyObserver::setModelProperty(key); }
    QString modelProperty() const { return PropertyObserver::modelProperty(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    QString subpart() const { return subpartId(); }
    void setSupportsMultipleProps(bool supports) { PropertyObserver::setSupportsMultipleProps(supports); }
    bool supportsMultipleProps() const { return PropertyObserver::supportsMultipleProps(); }
    /// Whether the line step follows from the validator's range: a tenth of its power of ten.
    void setAutoSetLineStep(bool automatic);
    bool isAutoSetLineStep() const { return m_autoSetLineStep; }
    int intMaxValue() const { return static_cast<int>(maxValue()); }
    void setIntMaxValue(int maxValue) { setMaxValue(maxValue); }
    int intMinValue() const { return static_cast<int>(minValue()); }
    void setIntMinValue(int minValue) { setMinValue(minValue); }

    /// Whether the editor is blank because there is no single value.
    bool showsNoValue() const { return m_noValue; }

public Q_SLOTS:
    /// What is typed or stepped to; held within what the properties allow, or refused.
    void setValue(double value) override;
    void stepUp() override;
    void stepDown() override;
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    void textChanged() override;
    void onWidgetValueChanged(double value);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void onValidatorChanged() override;
    void onFormatChanged() override;

    QString mapValueToText(double value) override;
    double mapTextToValue(bool* ok) override;
    void interpretText() override;
    void updateDisplay() override;
    void stepChange() override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Value getValueWithType(double value) const;
    double numberOf(const Value& value) const;
    void setNoValue(bool noValue);
    void setOwnValue(double value);
    void updateLineStep();
    void endStepping();
    double acceleratedValue();
    bool isTyping() const;

    SpinControls* m_buttons;
    bool m_noValue = false;
    bool m_autoSetLineStep = false;
    double m_baseStep = 1.0;
    double m_currentStep = 1.0;
    int m_stepCounter = 0;
    bool m_refreshing = false;
    bool m_refreshPending = false; // the model changed while the user was typing
};
