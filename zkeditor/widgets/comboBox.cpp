#include "zkeditor/widgets/comboBox.h"

#include <QStyle>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

ComboBox::ComboBox(QWidget* parent, const QString& name) : QComboBox(parent)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

QSize ComboBox::sizeHint() const
{
    QSize hint = QComboBox::sizeHint();
    hint.setWidth(qMax(qMin(hint.width(), widthForCharacters(30)), minimumSizeHint().width()));
    return hint;
}

QSize ComboBox::minimumSizeHint() const
{
    QSize hint = QComboBox::minimumSizeHint();
    hint.setWidth(widthForCharacters(6));
    return hint;
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

int ComboBox::widthForCharacters(int characters) const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize content(fontMetrics().averageCharWidth() * characters, fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this).width();
}
