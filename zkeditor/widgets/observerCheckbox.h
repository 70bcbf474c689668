#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QCheckBox>

/// A check box over a BOOL property. Nodes that disagree show as partly checked and pressed; a click then sets all of
/// them.
class ZKEDITOR_EXPORT ObserverCheckBox : public QCheckBox, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool invertModelValue READ invertModelValue WRITE setInvertValue)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(bool tristate READ isTristate WRITE setTristate DESIGNABLE false)

public:
    explicit ObserverCheckBox(QWidget* parent = nullptr, const QString& name = {});
    explicit ObserverCheckBox(const QString& text, QWidget* parent = nullptr, const QString& name = {});

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    /// Whether the box is checked when the property is false.
    bool invertModelValue() const { return m_invertModelValue; }
    void setInvertValue(bool invert) { m_invertModelValue = invert; }

public Q_SLOTS:
    /// Does not enable the box over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    /// After the user clicked.
    virtual void onWidgetValueChanged();

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void changeEvent(QEvent* event) override;

private:
    bool invertBool(bool value) const { return value != m_invertModelValue; }

    bool m_invertModelValue = false;
};
