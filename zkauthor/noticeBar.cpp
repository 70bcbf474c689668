#include "zkauthor/noticeBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

NoticeBar::NoticeBar(const QString& title, const QString& details, QWidget* parent)
    : QFrame(parent), m_row(new QHBoxLayout(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setAccessibleName(title);
    setAccessibleDescription(details);

    auto* icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize) * 3 / 2;
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size));
    auto* text = new QLabel(QStringLiteral("<b>%1</b><br>%2").arg(title.toHtmlEscaped(), details.toHtmlEscaped()));
    text->setTextFormat(Qt::RichText);
    text->setForegroundRole(QPalette::ToolTipText);
    text->setWordWrap(true);
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text must not push the palettes away
    m_row->setContentsMargins(8, 4, 8, 4);
    m_row->addWidget(icon);
    m_row->addWidget(text, 1);
}

void NoticeBar::addButton(const QString& text, const char* name, const std::function<void()>& function)
{
    m_last = new QPushButton(text);
    m_last->setObjectName(QLatin1String(name));
    m_last->setAutoDefault(true); // Return presses the one with the focus
    connect(m_last, &QPushButton::clicked, this, function);
    m_row->addWidget(m_last, 0, Qt::AlignVCenter);
}

void NoticeBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_last)
        m_last->click();
    else
        QFrame::keyPressEvent(event);
}

void NoticeBar::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
