#pragma once

#include "zkeditor/export.h"

#include <QRadioButton>

/// A radio button for use in groups that observe a property. Forms include it through groupRadioButton.h.
class ZKEDITOR_EXPORT RadioButton : public QRadioButton
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue)

public:
    explicit RadioButton(QWidget* parent = nullptr, const QString& name = {});

    /// The text of the value that the button stands for in a group; null for the button's own text.
    QString value() const { return m_value; }
    void setValue(const QString& text) { m_value = text; }

private:
    QString m_value;
};
