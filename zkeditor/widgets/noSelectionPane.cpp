#include "zkeditor/widgets/noSelectionPane.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

NoSelectionPane::NoSelectionPane(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(15, 15, 15, 15);
    layout->setSpacing(10);
    auto* label = new QLabel(tr("Select a part to see and change its properties."), this);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    layout->addWidget(label);
    auto* button = new QPushButton(tr("Scene Properties"), this);
    button->setAutoDefault(false);
    button->setToolTip(tr("Shows the properties of the scene on view"));
    layout->addWidget(button, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    connect(button, &QAbstractButton::clicked, this, &NoSelectionPane::clicked);
}
