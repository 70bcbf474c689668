#include "zkeditor/widgets/msgPane.h"

#include <QLabel>
#include <QVBoxLayout>

MsgPane::MsgPane(const QString& message, QWidget* parent) : QWidget(parent), m_label(new QLabel(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(15, 15, 15, 15);
    layout->addWidget(m_label);
    layout->addStretch(1);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setWordWrap(true);
    setMessage(message);
}

QString MsgPane::message() const
{
    return m_label->text();
}

void MsgPane::setMessage(const QString& message)
{
    m_label->setText(message);
    setAccessibleName(message);
}
