#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QLabel>

/// Shows what people call a property, and follows when it is called otherwise. Its tool tip explains the property,
/// unless the form has one of its own. With a buddy, clicks and screen readers take it for the buddy's label.
class ZKEDITOR_EXPORT PropertyLabel : public QLabel, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit PropertyLabel(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }

protected:
    void addProperty(PropertyImpl* property) override;
    void onPropertyValueChanged(Property property, Value value) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void showLabel();

    QString m_help; // the tool tip that is the property's
};
