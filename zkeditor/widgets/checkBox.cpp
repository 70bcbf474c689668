#include "zkeditor/widgets/checkBox.h"

CheckBox::CheckBox(QWidget* parent, const QString& name) : QCheckBox(parent)
{
    setObjectName(name);
}

CheckBox::CheckBox(const QString& text, QWidget* parent, const QString& name) : QCheckBox(text, parent)
{
    setObjectName(name);
}

// The state is set last in both branches: its signals may run any slot.
void CheckBox::showState(QCheckBox& box, bool on, bool partial)
{
    if (partial) {
        if (box.isTristate() && box.isDown() && box.checkState() == Qt::PartiallyChecked)
            return;
        box.setTristate(true);
        box.setDown(true);
        box.setCheckState(Qt::PartiallyChecked);
        return;
    }
    // Only a box that was pressed here is released: another may be held down by the user just now.
    if (box.isTristate()) {
        box.setTristate(false);
        box.setDown(false);
    }
    const Qt::CheckState state = on ? Qt::Checked : Qt::Unchecked;
    if (box.checkState() != state)
        box.setCheckState(state);
}
