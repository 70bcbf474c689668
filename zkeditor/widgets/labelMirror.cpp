#include "zkeditor/widgets/labelMirror.h"

#include <QEvent>
#include <QLabel>
#include <QStyle>

LabelMirror::LabelMirror(QLabel* label) : QObject(label), m_label(label)
{
    label->installEventFilter(this);
}

bool LabelMirror::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Polish || event->type() == QEvent::LayoutDirectionChange)
        place();
    return false;
}

void LabelMirror::place()
{
    if (const Qt::Alignment now = m_label->alignment(); now != m_placed)
        m_own = now;
    m_placed = QStyle::visualAlignment(m_label->layoutDirection(), m_own);
    m_label->setAlignment(m_placed);
}
