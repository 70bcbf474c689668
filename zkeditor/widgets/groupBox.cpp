#include "zkeditor/widgets/groupBox.h"

GroupBox::GroupBox(QWidget* parent, const QString& name) : QGroupBox(parent)
{
    setObjectName(name);
}

void GroupBox::setEnabledByString(const QString& text)
{
    setEnabled(text == m_activateString);
}

void GroupBox::setDisabledByString(const QString& text)
{
    setDisabled(text == m_activateString);
}

void GroupBox::setShownByString(const QString& text)
{
    setVisible(text == m_activateString);
}

void GroupBox::setHiddenByString(const QString& text)
{
    setHidden(text == m_activateString);
}
