#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/propertyObserver.h"

class ResourceModel;

/// Chooses one of the resources that a property's resource validator allows, shown with their pictures and labels.
/// Blank while the selected nodes have different ones; disabled while they are allowed different ones.
class ZKEDITOR_EXPORT ResourceDropdown : public ComboBox, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit ResourceDropdown(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;
    /// Also false while the bound properties are allowed different resources.
    bool isPropertyWriteable() const override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }

    QSize sizeHint() const override;
    void showPopup() override;

public Q_SLOTS:
    /// Does not enable the box over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    /// After the user chose an item.
    void onWidgetValueChanged(int index);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void onValidatorChanged() override;

    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildContent();

    ResourceModel* m_model;
    bool m_validatorsDiffer = false;
};
