#include "zkeditor/widgets/leadingLabel.h"

#include <QEvent>

LeadingLabel::LeadingLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    align();
}

void LeadingLabel::align()
{
    setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter);
}

void LeadingLabel::wrapInGivenWidth()
{
    setWordWrap(true);
    QSizePolicy policy = sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    setSizePolicy(policy);
}

void LeadingLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        align();
}
