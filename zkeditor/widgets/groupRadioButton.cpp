#include "zkeditor/widgets/groupRadioButton.h"

#include "zkeditor/widgets/childrenGate.h"

#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QStyleOptionButton>

GroupRadioButton::GroupRadioButton(QWidget* parent, const QString& name)
    : RadioButton(parent, name), m_gate(new ChildrenGate(this))
{
    m_gate->setOpen(isChecked());
    connect(this, &QAbstractButton::toggled, m_gate, &ChildrenGate::setOpen);
    reserveHeader();
}

QSize GroupRadioButton::headerSize() const
{
    return RadioButton::sizeHint();
}

QRect GroupRadioButton::headerRect() const
{
    return {0, 0, width(), headerSize().height()};
}

void GroupRadioButton::reserveHeader()
{
    const int height = headerSize().height();
    if (contentsMargins().top() != height)
        setContentsMargins(0, height, 0, 0);
}

QSize GroupRadioButton::sizeHint() const
{
    if (const QLayout* inner = layout())
        return headerSize().expandedTo(inner->totalSizeHint());
    const QRect children = childrenRect();
    return headerSize().expandedTo(QSize(children.right() + 1, children.bottom() + 1));
}

QSize GroupRadioButton::minimumSizeHint() const
{
    const QLayout* inner = layout();
    return inner ? headerSize().expandedTo(inner->totalMinimumSize()) : sizeHint();
}

bool GroupRadioButton::hitButton(const QPoint& position) const
{
    return headerRect().contains(position);
}

bool GroupRadioButton::event(QEvent* event)
{
    const bool result = RadioButton::event(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::Polish:
        reserveHeader();
        break;
    case QEvent::LayoutRequest:
        updateGeometry();
        break;
    default:
        break;
    }
    return result;
}

// Keys that a widget inside left alone are none for the button.
void GroupRadioButton::keyPressEvent(QKeyEvent* event)
{
    if (hasFocus())
        RadioButton::keyPressEvent(event);
    else
        event->ignore();
}

void GroupRadioButton::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect = headerRect();
    QPainter painter(this);
    style()->drawControl(QStyle::CE_RadioButton, &option, &painter, this);
}
