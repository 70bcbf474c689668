// Text that can be clicked.
#include "zkeditor/widgets/linkLabel.h"

#include "zkeditor/widgets/pressableLabel.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

LinkLabel::LinkLabel(QWidget* parent, const QString& name) : QLabel(parent)
{
    pressableLabel::install();
    setObjectName(name);
    setTextFormat(Qt::RichText);
    setCursor(Qt::PointingHandCursor);
    setUnderlined(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // A click leaves the focus where it is.
    setFocusPolicy(Qt::TabFocus);
}

LinkLabel::LinkLabel(const QString& text, QWidget* parent, const QString& name) : LinkLabel(parent, name)
{
    setText(text);
}

void LinkLabel::setUnderlined(bool underlined)
{
    m_underlined = underlined;
    QFont linkFont = font();
    linkFont.setUnderline(underlined);
    setFont(linkFont);
}

QSize LinkLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return QSize(metrics.horizontalAdvance(text()), metrics.underlinePos() + metrics.height());
}

void LinkLabel::mousePressEvent(QMouseEvent* event)
{
    // Taken, so that the release comes here as well.
    event->accept();
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space || key == Qt::Key_Select) {
        if (!event->isAutoRepeat())
            Q_EMIT clicked();
        return;
    }
    QLabel::keyPressEvent(event);
}

void LinkLabel::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    update();
}

void LinkLabel::focusOutEvent(QFocusEvent* event)
{
    QLabel::focusOutEvent(event);
    update();
}

void LinkLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(backgroundRole());
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
