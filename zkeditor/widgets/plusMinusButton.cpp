// A pair of buttons for lists.
#include "zkeditor/widgets/plusMinusButton.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"

#include <QAction>
#include <QHBoxLayout>
#include <QPointer>
#include <QStyle>
#include <QToolButton>

PlusMinusButton::PlusMinusButton(QWidget* parent, QString plusTooltip, QString minusTooltip) : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_plus = addButton("editor/plus_small");
    m_minus = addButton("editor/minus_small");
    connect(m_plus, &QToolButton::clicked, this, &PlusMinusButton::plusClicked);
    connect(m_minus, &QToolButton::clicked, this, &PlusMinusButton::onMinusClicked);
    setPlusTooltip(plusTooltip);
    setMinusTooltip(minusTooltip);
}

QToolButton* PlusMinusButton::addButton(const char* picture)
{
    auto* button = new QToolButton(this);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, button);
    button->setIconSize(QSize(side, side));
    button->setIcon(QIcon(ImageCache::getPixmap(Resource(picture), QSize(side, side), devicePixelRatioF())));
    // Reached with Tab as well; a click does not take the focus from the list.
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    return button;
}

void PlusMinusButton::onMinusClicked()
{
    const bool focused = m_minus->hasFocus();
    const QPointer<PlusMinusButton> alive(this);
    Q_EMIT minusClicked();
    if (!alive || !focused || m_minus->hasFocus())
        return;
    // While nothing is selected the button is out of use, which sends the focus on: the next one is to go as well.
    if (m_minus->isEnabled())
        m_minus->setFocus();
    else if (m_plus->isEnabled())
        m_plus->setFocus();
}

void PlusMinusButton::setActions(QAction* plus, QAction* minus)
{
    const auto followPlus = [this, plus] {
        setPlusEnabled(plus->isEnabled());
        setPlusTooltip(plus->toolTip());
    };
    const auto followMinus = [this, minus] {
        setMinusEnabled(minus->isEnabled());
        setMinusTooltip(minus->toolTip());
    };
    connect(plus, &QAction::changed, this, followPlus);
    connect(minus, &QAction::changed, this, followMinus);
    connect(this, &PlusMinusButton::plusClicked, plus, &QAction::trigger);
    connect(this, &PlusMinusButton::minusClicked, minus, &QAction::trigger);
    followPlus();
    followMinus();
}

void PlusMinusButton::setPlusEnabled(bool enabled)
{
    m_plus->setEnabled(enabled);
}

void PlusMinusButton::setMinusEnabled(bool enabled)
{
    m_minus->setEnabled(enabled);
}

void PlusMinusButton::setPlusTooltip(const QString& tooltip)
{
    m_plus->setToolTip(tooltip);
    m_plus->setAccessibleName(tooltip.isEmpty() ? tr("Add") : tooltip);
}

void PlusMinusButton::setMinusTooltip(const QString& tooltip)
{
    m_minus->setToolTip(tooltip);
    m_minus->setAccessibleName(tooltip.isEmpty() ? tr("Remove") : tooltip);
}
