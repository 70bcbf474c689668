#pragma once

#include "zkeditor/export.h"

#include <QComboBox>

/// A combo box that fits into narrow palettes and keeps its value while a palette is scrolled past it.
class ZKEDITOR_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr, const QString& name = {});

    /// This object for connections, where a class has more bases than this one.
    QObject* qObject() { return this; }

    /// As wide as the widest item, but at most 30 average characters.
    QSize sizeHint() const override;
    /// Wide enough for 6 average characters, whatever the items.
    QSize minimumSizeHint() const override;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int widthForCharacters(int characters) const;
    int widthForContent(int width) const;
    void forgetWidths();

    // Of the widest item without and with an icon; negative when it has to be found. The toolkit could follow the items
    // as well, but makes the whole list for it.
    mutable int m_textWidth = -1;
    mutable int m_iconTextWidth = -1;
};
