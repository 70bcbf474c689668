#include "zkeditor/widgets/comboBox.h"

#include <QAbstractItemModel>
#include <QEvent>
#include <QFontMetrics>
#include <QIcon>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

ComboBox::ComboBox(QWidget* parent, const QString& name) : QComboBox(parent)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    connect(model(), &QAbstractItemModel::rowsInserted, this, &ComboBox::forgetWidths);
    connect(model(), &QAbstractItemModel::rowsRemoved, this, &ComboBox::forgetWidths);
    connect(model(), &QAbstractItemModel::dataChanged, this, &ComboBox::forgetWidths);
}

QSize ComboBox::sizeHint() const
{
    // Where a layout does not ask for the width, there may be very many items.
    const bool isAsked = sizePolicy().horizontalPolicy() != QSizePolicy::Ignored;
    if (isAsked && m_textWidth < 0) {
        const QFontMetrics metrics = fontMetrics();
        m_textWidth = count() == 0 ? 7 * metrics.horizontalAdvance(QLatin1Char('x')) : 0;
        m_iconTextWidth = -1;
        for (int i = 0; i < count(); ++i) {
            int& widest = itemIcon(i).isNull() ? m_textWidth : m_iconTextWidth;
            widest = qMax(widest, metrics.horizontalAdvance(itemText(i)));
        }
    }
    constexpr int iconGap = 4;
    int content = m_textWidth;
    if (m_iconTextWidth >= 0)
        content = qMax(content, m_iconTextWidth + iconSize().width() + iconGap);
    QSize hint = QComboBox::sizeHint(); // has the width of the items that there were when it was first asked for
    hint.setWidth(qMax(qMin(widthForContent(content), widthForCharacters(30)), minimumSizeHint().width()));
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

void ComboBox::changeEvent(QEvent* event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        forgetWidths();
}

void ComboBox::forgetWidths()
{
    if (m_textWidth < 0)
        return;
    m_textWidth = -1;
    updateGeometry();
}

int ComboBox::widthForCharacters(int characters) const
{
    return widthForContent(fontMetrics().averageCharWidth() * characters);
}

int ComboBox::widthForContent(int width) const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize content(width, fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this).width();
}
