#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QCheckBox>

/// A check box over a STRING property that switches between two texts. Any text but the one for on shows the box off.
class ZKEDITOR_EXPORT ObserverStringCheckBox : public QCheckBox, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(bool tristate READ isTristate WRITE setTristate DESIGNABLE false)
    Q_PROPERTY(QString onValue READ onValue WRITE setOnValue)
    Q_PROPERTY(QString offValue READ offValue WRITE setOffValue)

public:
    explicit ObserverStringCheckBox(QWidget* parent = nullptr, const QString& name = {});
    explicit ObserverStringCheckBox(const QString& text, QWidget* parent = nullptr, const QString& name = {});

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    /// The texts for on and off, compared exactly. Both must have been set, if to an empty text, before the box is
    /// bound; an empty text in a form counts as not set.
    QString onValue() const { return m_onValue; }
    void setOnValue(const QString& text) { m_onValue = text; }
    QString offValue() const { return m_offValue; }
    void setOffValue(const QString& text) { m_offValue = text; }

protected Q_SLOTS:
    /// After the user clicked.
    void onWidgetValueChanged();

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void changeEvent(QEvent* event) override;

private:
    QString m_onValue;
    QString m_offValue;
};
