// A menu item painted with the style's own background and a text document on top.
#include "zkcore/widgetSupport/richMenuItem.h"

#include <QAbstractTextDocumentLayout>
#include <QMenu>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionMenuItem>
#include <QTextDocument>
#include <QWidget>
#include <algorithm>
#include <memory>

namespace {

constexpr int richItemGap = 4;

/// What stands in the menu for the item. It takes neither focus nor mouse events: the menu itself finds the item under
/// the pointer and by keyboard, as it does for plain ones.
class RichMenuWidget : public QWidget
{
public:
    RichMenuWidget(RichMenuItem* item, QWidget* parent) : QWidget(parent), m_item(item)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        if (auto* menu = qobject_cast<QMenu*>(parent))
            connect(menu, &QMenu::hovered, this, [this] { update(); });
        connect(item, &QAction::changed, this, [this] {
            updateGeometry();
            update();
        });
    }

    QSize sizeHint() const override
    {
        const std::unique_ptr<QTextDocument> document = makeDocument();
        const QSize text = document->size().toSize();
        return QSize(textLeft() + text.width() + 1 + richItemGap * 3,
                     std::max(text.height(), indicatorColumn()) + richItemGap);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionMenuItem option;
        option.initFrom(this);
        option.menuItemType = QStyleOptionMenuItem::Normal;
        option.menuRect = rect();
        option.font = font();
        option.fontMetrics = QFontMetrics(font());
        option.menuHasCheckableItems = true;
        option.maxIconWidth = indicatorColumn();
        if (m_item->isCheckable()) {
            const auto* group = m_item->actionGroup();
            option.checkType = group ? QStyleOptionMenuItem::Exclusive : QStyleOptionMenuItem::NonExclusive;
            option.checked = m_item->isChecked();
        }
        option.icon = m_item->icon();
        option.state.setFlag(QStyle::State_Enabled, m_item->isEnabled() && isEnabled());
        option.state.setFlag(QStyle::State_Selected, isHighlighted());

        QPainter painter(this);
        style()->drawControl(QStyle::CE_MenuItem, &option, &painter, this);
        const std::unique_ptr<QTextDocument> document = makeDocument();
        QAbstractTextDocumentLayout::PaintContext context;
        const QPalette::ColorGroup group = m_item->isEnabled() ? QPalette::Active : QPalette::Disabled;
        const QPalette::ColorRole role = isHighlighted() ? QPalette::HighlightedText : QPalette::WindowText;
        context.palette.setColor(QPalette::Text, palette().color(group, role));
        const double top = (height() - document->size().height()) / 2.0;
        if (layoutDirection() == Qt::RightToLeft)
            painter.translate(width() - textLeft() - document->size().width(), top);
        else
            painter.translate(textLeft(), top);
        document->documentLayout()->draw(&painter, context);
    }

private:
    bool isHighlighted() const
    {
        const auto* menu = qobject_cast<const QMenu*>(parentWidget());
        return menu && m_item->isEnabled() && menu->activeAction() == m_item;
    }

    int indicatorColumn() const { return style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this); }
    int textLeft() const { return indicatorColumn() + richItemGap * 2; }

    std::unique_ptr<QTextDocument> makeDocument() const
    {
        auto document = std::make_unique<QTextDocument>();
        document->setDocumentMargin(0);
        document->setDefaultFont(font());
        document->setHtml(m_item->richText());
        return document;
    }

    RichMenuItem* m_item;
};

} // namespace

RichMenuItem::RichMenuItem(QWidget* parent, const QString& richText) : QWidgetAction(parent)
{
    setRichText(richText);
}

RichMenuItem::~RichMenuItem() = default;

void RichMenuItem::setRichText(const QString& richText)
{
    m_richText = richText;
    QTextDocument document;
    document.setHtml(richText);
    // A '&' in an action's text would mark a shortcut.
    setText(document.toPlainText().replace(QLatin1Char('&'), QLatin1String("&&")));
}

QWidget* RichMenuItem::createWidget(QWidget* parent)
{
    return new RichMenuWidget(this, parent);
}
