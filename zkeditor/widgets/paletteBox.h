#pragma once

#include "zkeditor/export.h"

#include <QPointer>
#include <QWidget>
#include <vector>

class PaletteButtonBar;

/// A column of collapsible items. Each has a header with its label, and below it a content widget that is shown while
/// the item is open. Hidden contents are neither laid out nor painted.
///
/// With the focus on a header, Space and Return open or close the item; Up, Down, Home and End go to other headers. Tab
/// goes from a header to its content and on to the next header, whenever the content was made.
class ZKEDITOR_EXPORT PaletteBox : public QWidget
{
    Q_OBJECT

public:
    /// One of the styles, which choose the look of the headers, and what else applies.
    enum Flag : unsigned int {
        StandardStyle = 0x01, ///< dark headers with white text: palettes
        PlainStyle = 0x02,    ///< light headers, a small margin: sections within a palette
        SectionStyle = 0x04,  ///< as sections look in a form
        Exclusive = 0x08,     ///< at most one item is open
        CloseToFit = 0x10     ///< opening an item closes another when the column would be higher than the box's parent
    };

    explicit PaletteBox(unsigned int flags, QWidget* parent = nullptr, const QString& name = {},
                        Qt::WindowFlags windowFlags = {});
    ~PaletteBox() override;

    unsigned int flags() const { return m_flags; }

    /// insertItem() at the end.
    int addItem(QWidget* w, const QString& label);
    /// Makes an open item of the widget, which the box owns from now on, before the one at the index; at the end when
    /// there is none. Returns its index, or -1 for a null widget.
    int insertItem(int index, QWidget* w, const QString& label);
    /// Destroys the item with its content. Returns the index that it had, or -1 when w is in no item.
    int removeItem(QWidget* w);
    /// Puts another content into an item, hidden when that is closed. The old one stays a child of the item as it is;
    /// the caller disposes of it. Returns the item's index; it is fatal when the old widget is in no item.
    int replaceItem(QWidget* oldWidget, QWidget* newWidget);
    /// Opens or closes an item, and those that must follow. Returns its index, or -1 when it went away meanwhile. No
    /// such item is fatal.
    int showItem(int index, bool open);
    int showItem(QWidget* w, bool open);
    /// False out of range.
    bool isItemOpen(int index) const;

    /// Enables the content; its header can always be used. No such item is fatal.
    void setItemEnabled(int index, bool enabled);
    bool isItemEnabled(int index) const;
    /// The text of the header. Out of range nothing is done, and an empty text returned.
    void setItemLabel(int index, const QString& label);
    QString itemLabel(int index) const;
    /// The tool tip of the header; an empty text removes it.
    void setItemToolTip(int index, const QString& text);
    QString itemToolTip(int index) const;

    /// The content; null out of range.
    QWidget* item(int index) const;
    /// The index of the item with that content; -1 when there is none.
    int indexOf(const QWidget* w) const;
    int count() const;
    /// For an Exclusive box the first open item; -1 for others, and when none is open.
    int openedItemIndex() const;

    /// Whether open items share all of the box's height, instead of standing at its top. Takes effect with the next
    /// item that is inserted or removed.
    void setChildResize(bool resize) { m_childResize = resize; }

Q_SIGNALS:
    /// After an item was added, removed, replaced, opened or closed: the owner may want to adjust its size.
    void layoutChanged();

protected Q_SLOTS:
    /// After the user clicked the header that is the sender.
    void buttonClicked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    class PaletteItem;

    PaletteItem* itemAt(int index) const;
    PaletteItem* itemWith(const QWidget* content) const;
    int showPaletteItem(PaletteItem* item, bool open);
    bool shouldCloseOtherItemsToFit(const PaletteItem* item) const;
    void closeOthers(const PaletteItem* item);
    void relayout();

    const unsigned int m_flags;
    std::vector<PaletteItem*> m_items;
    bool m_childResize = false;
};
