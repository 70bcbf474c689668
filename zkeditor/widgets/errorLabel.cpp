#include "zkeditor/widgets/errorLabel.h"

#include "zkeditor/widgets/readableColors.h"

#include <QEvent>

ErrorLabel::ErrorLabel(QWidget* parent) : QLabel(parent)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    takeColor();
}

void ErrorLabel::setWrong(bool wrong)
{
    m_wrong = wrong;
    takeColor();
}

void ErrorLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColor();
}

void ErrorLabel::takeColor()
{
    QPalette colors;
    if (m_wrong)
        colors.setColor(QPalette::WindowText, readableColors::error(palette()));
    // The same colour again would be a change again.
    if (m_wrong ? palette().color(QPalette::WindowText) != colors.color(QPalette::WindowText)
                : testAttribute(Qt::WA_SetPalette))
        setPalette(colors);
}
