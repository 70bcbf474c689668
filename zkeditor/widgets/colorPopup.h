#pragma once

#include <QColor>
#include <QFrame>
#include <vector>

class QGridLayout;
class QToolButton;

/// What a colour picker opens: the standard colours, those used in the document, and the way to any other. The arrow
/// keys, Home and End go through all of them as through one grid; Return and Space choose, Escape closes.
class ColorPopup : public QFrame
{
    Q_OBJECT

public:
    /// Without document colours their part is left out.
    ColorPopup(const std::vector<QColor>& documentColors, const QColor& current, bool offerMore, QWidget* parent);

Q_SIGNALS:
    void colorChosen(const QColor& color);
    /// Another colour than these is wanted.
    void moreWanted();
    void closed();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void addColors(const QString& title, const std::vector<QColor>& colors, const QColor& current);
    QToolButton* makeButton(const QColor& color, bool current);
    bool moveFrom(const QObject* from, int key);

    std::vector<std::vector<QWidget*>> m_rows;
    QWidget* m_first = nullptr; // which has the focus when the pop-up opens
};
