#pragma once

#include <QPalette>
#include <QString>
#include <QStyledItemDelegate>

class QRect;

/// Paints list items whose text has markup ("m<sup>2</sup>"), and others that run in their own direction. The item's
/// display text is the plain one, for searching, sizes and screen readers; the text with markup stands in a role of its
/// own.
class RichItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int markupRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// The text without its markup.
    static QString plainText(const QString& markup);
    /// Paints a text with markup into the rectangle: at its leading edge, in the middle of its height, one line unless
    /// the markup breaks it. Text that has no colour of its own gets the given one.
    static void draw(QPainter& painter, const QString& markup, const QRect& rect, const QFont& font,
                     const QColor& color, Qt::LayoutDirection direction);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
