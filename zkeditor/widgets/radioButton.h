#pragma once

#include "zkeditor/export.h"

#include <QRadioButton>

/// A radio button for use in groups that observe a property. Forms include it through groupRadioButton.h.
class ZKEDITOR_EXPORT RadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit RadioButton(QWidget* parent = nullptr, const QString& name = {});
};
