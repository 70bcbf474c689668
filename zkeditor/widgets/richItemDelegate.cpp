#include "zkeditor/widgets/richItemDelegate.h"

#include "zkeditor/widgets/isolatedText.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextOption>
#include <QWidget>

namespace {

void layOutItem(QTextDocument& document, const QString& markup, const QFont& font, Qt::LayoutDirection direction)
{
    QTextOption option(Qt::AlignLeading);
    option.setTextDirection(direction);
    document.setDefaultTextOption(option);
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(markup);
    // Lines are broken by the markup only.
    document.setTextWidth(document.idealWidth());
}

const QStyle& styleOf(const QStyleOptionViewItem& option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

int itemTextMargin(const QStyleOptionViewItem& option)
{
    return styleOf(option).pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
}

QColor itemTextColor(const QStyleOptionViewItem& option)
{
    QPalette::ColorGroup group = QPalette::Disabled;
    if (option.state & QStyle::State_Enabled)
        group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    return option.palette.color(group,
                                option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

QString RichItemDelegate::plainText(const QString& markup)
{
    return QTextDocumentFragment::fromHtml(markup).toPlainText();
}

void RichItemDelegate::draw(QPainter& painter, const QString& markup, const QRect& rect, const QFont& font,
                            const QColor& color, Qt::LayoutDirection direction)
{
    QTextDocument document;
    layOutItem(document, markup, font, direction);
    const QSizeF size = document.size();
    const double left = direction == Qt::RightToLeft ? rect.right() + 1 - size.width() : rect.left();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, color);
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    painter.translate(left, rect.top() + (rect.height() - size.height()) / 2.0);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

void RichItemDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->direction == Qt::RightToLeft)
        option->text = isolatedText(option->text);
}

void RichItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QString markup = index.data(markupRole).toString();
    if (markup.isEmpty()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle& style = styleOf(item);
    const int margin = itemTextMargin(item);
    const QRect rect = style.subElementRect(QStyle::SE_ItemViewItemText, &item, item.widget);
    item.text.clear();
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    draw(*painter, markup, rect.adjusted(margin, 0, -margin, 0), item.font, itemTextColor(item), item.direction);
}

QSize RichItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize plain = QStyledItemDelegate::sizeHint(option, index);
    const QString markup = index.data(markupRole).toString();
    if (markup.isEmpty())
        return plain;
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    QTextDocument document;
    layOutItem(document, markup, item.font, item.direction);
    return plain.expandedTo(document.size().toSize() + QSize(2 * itemTextMargin(item) + 1, 0));
}
