#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/numericalObserver.h"

#include <QLabel>

/// Shows the value of a property of any type as its formatter writes it, in the unit shown; an em dash while the
/// selected nodes have different values. It only shows, so it stays readable over a property that nobody can edit.
class ZKEDITOR_EXPORT ObserverLabel : public QLabel, public NumericalObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    /// Values are shown as plain text unless another text format is set.
    explicit ObserverLabel(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }

protected:
    void onPropertyValueChanged(Property property, Value value) override;
    void onStateChanged() override;

private:
    void showText(const QString& text);
};
