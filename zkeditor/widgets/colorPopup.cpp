#include "zkeditor/widgets/colorPopup.h"

#include "zkeditor/widgets/colorNames.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr size_t colorColumns = 8;
constexpr QSize gridSwatch(18, 18);

} // namespace

ColorPopup::ColorPopup(const std::vector<QColor>& documentColors, const QColor& current, bool offerMore,
                       QWidget* parent)
    : QFrame(parent, Qt::Popup)
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAccessibleName(tr("Colours"));
    // A click on the picker closes the pop-up, it does not open it again at once.
    setAttribute(Qt::WA_NoMouseReplay);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(6, 6, 6, 6);
    box->setSpacing(4);
    addColors(tr("Standard colours"), colorNames::standardColors(), current);
    if (!documentColors.empty())
        addColors(tr("Colours in this document"), documentColors, current);
    if (offerMore) {
        auto* more = new QPushButton(tr("&More..."), this);
        more->setObjectName(QStringLiteral("more"));
        more->setAutoDefault(true); // Return presses it
        connect(more, &QPushButton::clicked, this, &ColorPopup::moreWanted);
        more->installEventFilter(this);
        box->addWidget(more);
        m_rows.push_back({more});
    }
    if (!m_first)
        m_first = m_rows.front().front();
}

void ColorPopup::addColors(const QString& title, const std::vector<QColor>& colors, const QColor& current)
{
    auto* box = static_cast<QVBoxLayout*>(layout());
    box->addWidget(new QLabel(title, this));
    auto* group = new QWidget(this); // whose name tells two swatches of one colour apart
    group->setAccessibleName(title);
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    for (size_t i = 0; i < colors.size(); ++i) {
        const bool isCurrent = colors[i] == current;
        QToolButton* button = makeButton(colors[i], isCurrent);
        if (isCurrent && !m_first)
            m_first = button;
        if (i % colorColumns == 0)
            m_rows.emplace_back();
        m_rows.back().push_back(button);
        grid->addWidget(button, static_cast<int>(i / colorColumns), static_cast<int>(i % colorColumns));
    }
    grid->setColumnStretch(static_cast<int>(colorColumns), 1);
    box->addWidget(group);
}

QToolButton* ColorPopup::makeButton(const QColor& color, bool current)
{
    auto* button = new QToolButton(this);
    const QString name = colorNames::describe(color);
    button->setIconSize(gridSwatch);
    button->setIcon(colorNames::swatch(color, gridSwatch, *this));
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setChecked(current);
    button->setFocusPolicy(Qt::StrongFocus);
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this, [this, color] { Q_EMIT colorChosen(color); });
    return button;
}

bool ColorPopup::moveFrom(const QObject* from, int key)
{
    size_t row = 0;
    size_t column = 0;
    bool found = false;
    for (row = 0; row < m_rows.size() && !found; ++row) {
        const auto at = std::find(m_rows[row].begin(), m_rows[row].end(), from);
        found = at != m_rows[row].end();
        column = static_cast<size_t>(at - m_rows[row].begin());
    }
    if (!found)
        return false;
    --row;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    if (key == Qt::Key_Left || key == Qt::Key_Right) {
        if ((key == Qt::Key_Right) != mirrored) {
            if (column + 1 < m_rows[row].size())
                ++column;
            else if (row + 1 < m_rows.size())
                ++row, column = 0;
        } else if (column > 0) {
            --column;
        } else if (row > 0) {
            column = m_rows[--row].size() - 1;
        }
    } else if (key == Qt::Key_Up) {
        row -= row > 0 ? 1 : 0;
    } else if (key == Qt::Key_Down) {
        row += row + 1 < m_rows.size() ? 1 : 0;
    } else if (key == Qt::Key_Home) {
        column = 0;
    } else {
        column = m_rows[row].size() - 1;
    }
    column = std::min(column, m_rows[row].size() - 1);
    m_rows[row][column]->setFocus(Qt::TabFocusReason);
    return true;
}

bool ColorPopup::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(object, event);
    switch (const int key = static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        return moveFrom(object, key);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QToolButton*>(object)) {
            button->click();
            return true;
        }
        break;
    default:
        break;
    }
    return QFrame::eventFilter(object, event);
}

void ColorPopup::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    m_first->setFocus(Qt::PopupFocusReason);
}

void ColorPopup::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    Q_EMIT closed();
}
