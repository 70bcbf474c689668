// The column of collapsible items, and its rules for what else closes when one opens.
#include "zkeditor/widgets/paletteBox.h"

#include "zkcore/base/assert.h"
#include "zkeditor/widgets/paletteButtonBar.h"
#include "zkeditor/widgets/paletteTabOrder.h"
#include "zkeditor/widgets/updatesSuspended.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace {

constexpr int leastPaletteBoxWidth = 200;

} // namespace

/// A header and below it the content.
class PaletteBox::PaletteItem : public QWidget
{
public:
    PaletteItem(PaletteBox* box, const QString& label)
        : QWidget(box), m_column(new QVBoxLayout(this)), m_button(new PaletteButtonBar(box->flags(), this))
    {
        m_column->setContentsMargins(0, 0, 0, 0);
        m_column->setSpacing(0);
        m_button->setText(label);
        m_column->addWidget(m_button);
    }

    PaletteButtonBar* button() const { return m_button; }
    QWidget* content() const { return m_content; }
    bool isOpen() const { return m_button->isChecked(); }

    void setContent(QWidget* w)
    {
        m_content = w;
        w->setParent(this);
        m_column->insertWidget(1, w);
        w->setVisible(isOpen());
    }

    /// Hiding ends the typing in a field of the content, and what that leads to may delete anything.
    void setOpen(bool open)
    {
        const UpdatesSuspended suspended(this);
        const QPointer<PaletteItem> alive(this);
        m_button->setChecked(open);
        // A closed item is as high as its header, whatever room there is.
        setSizePolicy(QSizePolicy::Preferred, open ? QSizePolicy::Preferred : QSizePolicy::Fixed);
        const QWidget* focus = QApplication::focusWidget();
        if (m_content && !open && focus && (focus == m_content || m_content->isAncestorOf(focus)))
            m_button->setFocus();
        if (alive && m_content)
            m_content->setVisible(open);
    }

private:
    QVBoxLayout* m_column;
    PaletteButtonBar* m_button;
    QPointer<QWidget> m_content;
};

PaletteBox::PaletteBox(unsigned int flags, QWidget* parent, const QString& name, Qt::WindowFlags windowFlags)
    : QWidget(parent, windowFlags), m_flags(flags)
{
    setObjectName(name);
    setMinimumWidth(leastPaletteBoxWidth);
    paletteTabOrder::watch(qApp);
    relayout();
}

PaletteBox::~PaletteBox()
{
    // The items go with the children; nothing may look at them from here on.
    m_items.clear();
}

// Items

int PaletteBox::addItem(QWidget* w, const QString& label)
{
    return insertItem(-1, w, label);
}

int PaletteBox::insertItem(int index, QWidget* w, const QString& label)
{
    if (!w)
        return -1;
    const QPointer<PaletteBox> alive(this);
    const QPointer<PaletteItem> item(new PaletteItem(this, label));
    item->setContent(w);
    if (!alive || !item)
        return -1;
    if (index < 0 || index > count())
        index = count();
    m_items.insert(m_items.begin() + index, item);
    connect(item->button(), &QAbstractButton::clicked, this, &PaletteBox::buttonClicked);
    item->show();
    relayout();
    if (!alive || !item)
        return -1;
    if ((m_flags & Exclusive) && count() > 1)
        closeOthers(item);
    return alive ? indexOf(w) : -1;
}

int PaletteBox::removeItem(QWidget* w)
{
    PaletteItem* item = itemWith(w);
    if (!item)
        return -1;
    ZK_ASSERT(item->content() == w);
    const auto at = std::find(m_items.begin(), m_items.end(), item);
    const int index = static_cast<int>(at - m_items.begin());
    m_items.erase(at);
    const QPointer<PaletteBox> alive(this);
    const QPointer<PaletteItem> doomed(item);
    w->hide();
    delete doomed;
    if (alive)
        relayout();
    return index;
}

int PaletteBox::replaceItem(QWidget* oldWidget, QWidget* newWidget)
{
    const int index = indexOf(oldWidget);
    ZK_ASSERT(index >= 0);
    const UpdatesSuspended suspended(this);
    PaletteItem* item = itemAt(index);
    ZK_ASSERT(item->content() == oldWidget);
    const QPointer<PaletteBox> alive(this);
    item->setContent(newWidget);
    if (alive)
        Q_EMIT layoutChanged();
    return index;
}

PaletteBox::PaletteItem* PaletteBox::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<size_t>(index)] : nullptr;
}

PaletteBox::PaletteItem* PaletteBox::itemWith(const QWidget* content) const
{
    return itemAt(indexOf(content));
}

QWidget* PaletteBox::item(int index) const
{
    const PaletteItem* found = itemAt(index);
    return found ? found->content() : nullptr;
}

int PaletteBox::indexOf(const QWidget* w) const
{
    const auto at =
        std::find_if(m_items.begin(), m_items.end(), [w](const PaletteItem* item) { return item->content() == w; });
    return !w || at == m_items.end() ? -1 : static_cast<int>(at - m_items.begin());
}

int PaletteBox::count() const
{
    return static_cast<int>(m_items.size());
}

bool PaletteBox::isItemOpen(int index) const
{
    const PaletteItem* found = itemAt(index);
    return found && found->isOpen();
}

int PaletteBox::openedItemIndex() const
{
    if (!(m_flags & Exclusive))
        return -1;
    const auto at =
        std::find_if(m_items.begin(), m_items.end(), [](const PaletteItem* each) { return each->isOpen(); });
    return at == m_items.end() ? -1 : static_cast<int>(at - m_items.begin());
}

void PaletteBox::setItemEnabled(int index, bool enabled)
{
    QWidget* w = item(index);
    ZK_ASSERT(w);
    w->setEnabled(enabled);
}

bool PaletteBox::isItemEnabled(int index) const
{
    const QWidget* w = item(index);
    ZK_ASSERT(w);
    return w->isEnabled();
}

void PaletteBox::setItemLabel(int index, const QString& label)
{
    if (const PaletteItem* found = itemAt(index))
        found->button()->setText(label);
}

QString PaletteBox::itemLabel(int index) const
{
    const PaletteItem* found = itemAt(index);
    return found ? found->button()->text() : QString();
}

void PaletteBox::setItemToolTip(int index, const QString& text)
{
    if (const PaletteItem* found = itemAt(index))
        found->button()->setToolTip(text);
}

QString PaletteBox::itemToolTip(int index) const
{
    const PaletteItem* found = itemAt(index);
    return found ? found->button()->toolTip() : QString();
}

// Layout

void PaletteBox::relayout()
{
    const UpdatesSuspended suspended(this);
    delete layout();
    auto* column = new QVBoxLayout(this);
    column->setAlignment(Qt::AlignTop);
    const bool plain = (m_flags & PlainStyle) != 0;
    column->setContentsMargins(plain ? QMargins(2, 2, 2, 2) : QMargins());
    column->setSpacing(plain ? 1 : 0);
    for (PaletteItem* each : m_items)
        column->addWidget(each);
    if (!m_childResize)
        column->addStretch(1);
    // A child that is not on view yet gets its size when it is shown.
    if (isWindow() || isVisible())
        adjustSize();
    Q_EMIT layoutChanged();
}

// Opening and closing

int PaletteBox::showItem(int index, bool open)
{
    return showPaletteItem(itemAt(index), open);
}

int PaletteBox::showItem(QWidget* w, bool open)
{
    return showPaletteItem(itemWith(w), open);
}

int PaletteBox::showPaletteItem(PaletteItem* item, bool open)
{
    ZK_ASSERT(item);
    const QPointer<PaletteBox> alive(this);
    const QPointer<PaletteItem> shown(item);
    const QPointer<QWidget> content(item->content());
    {
        const UpdatesSuspended suspended(this);
        const bool closeOne = open && !(m_flags & Exclusive) && shouldCloseOtherItemsToFit(item);
        item->setOpen(open);
        if (alive && shown && open && (m_flags & Exclusive)) {
            closeOthers(shown);
        } else if (alive && shown && closeOne) {
            const auto other = std::find_if(m_items.rbegin(), m_items.rend(),
                                            [&](const PaletteItem* each) { return each != shown && each->isOpen(); });
            if (other != m_items.rend())
                (*other)->setOpen(false);
        }
    }
    if (alive)
        Q_EMIT layoutChanged();
    return alive && content ? indexOf(content) : -1;
}

void PaletteBox::closeOthers(const PaletteItem* item)
{
    const QPointer<PaletteBox> alive(this);
    const std::vector<QPointer<PaletteItem>> items(m_items.begin(), m_items.end());
    for (const QPointer<PaletteItem>& each : items) {
        if (alive && each && each != item && each->isOpen())
            each->setOpen(false);
    }
}

bool PaletteBox::shouldCloseOtherItemsToFit(const PaletteItem* item) const
{
    if (!(m_flags & CloseToFit) || count() < 2 || !parentWidget())
        return false;
    int height = 0;
    for (const PaletteItem* each : m_items) {
        if (each == item)
            height += each->button()->height() + (each->content() ? each->content()->sizeHint().height() : 0);
        else if (each->isOpen())
            height += each->sizeHint().height();
        else
            height += each->button()->height();
    }
    return height > parentWidget()->height();
}

// User

void PaletteBox::buttonClicked()
{
    const QObject* header = sender();
    const auto at = std::find_if(m_items.begin(), m_items.end(),
                                 [header](const PaletteItem* each) { return each->button() == header; });
    if (at != m_items.end())
        showPaletteItem(*at, (*at)->isOpen());
}

bool PaletteBox::focusNextPrevChild(bool next)
{
    QWidget* focus = window()->focusWidget();
    if (!paletteTabOrder::isOutermost(*this) || !focus || !isAncestorOf(focus))
        return QWidget::focusNextPrevChild(next);
    QWidget* target = paletteTabOrder::next(*focus, next);
    if (!target)
        return false;
    target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void PaletteBox::keyPressEvent(QKeyEvent* event)
{
    const auto at = std::find_if(m_items.begin(), m_items.end(),
                                 [](const PaletteItem* each) { return each->button()->hasFocus(); });
    if (at == m_items.end()) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int index = static_cast<int>(at - m_items.begin());
    int target = index;
    switch (event->key()) {
    case Qt::Key_Up:
        target = std::max(index - 1, 0);
        break;
    case Qt::Key_Down:
        target = std::min(index + 1, count() - 1);
        break;
    case Qt::Key_Home:
        target = 0;
        break;
    case Qt::Key_End:
        target = count() - 1;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    itemAt(target)->button()->setFocus(
        event->key() == Qt::Key_Up || event->key() == Qt::Key_Home ? Qt::BacktabFocusReason : Qt::TabFocusReason);
}
