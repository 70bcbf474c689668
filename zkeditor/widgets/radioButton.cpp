#include "zkeditor/widgets/radioButton.h"

RadioButton::RadioButton(QWidget* parent, const QString& name) : QRadioButton(parent)
{
    setObjectName(name);
}
