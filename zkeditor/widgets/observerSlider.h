#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/doubleSlider.h"
#include "zkeditor/widgets/numericalObserver.h"

/// A slider for an INT or DOUBLE property, in the unit shown. Its range is what all bound properties allow; the form's
/// range serves where they allow everything. A drag writes as it goes, all in one undo step; Escape takes it back. No
/// handle while the selected nodes have different values.
class ZKEDITOR_EXPORT ObserverSlider : public DoubleSlider, public NumericalObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(double value READ value WRITE setValue DESIGNABLE false)

public:
    explicit ObserverSlider(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    /// Steps that are not set follow from the range: about a hundredth and a tenth of it.
    void setLineStep(double step) override;
    void setPageStep(double step) override;

public Q_SLOTS:
    /// What the user slides to; held within what the properties allow, and written.
    void setValue(double value) override;
    /// Does not enable the slider over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void onValidatorChanged() override;
    void onFormatChanged() override;

    void gestureBegan() override;
    void gestureEnded() override;
    void gestureCancelled() override;
    double tidyValue(double value, double resolution) const override;
    void changeEvent(QEvent* event) override;

private:
    void followRange();

    bool m_ownLineStep = false;
    bool m_ownPageStep = false;
    Value m_valueAtPress; // invalid when the nodes had different ones
};
