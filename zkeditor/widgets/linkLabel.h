#pragma once

#include "zkeditor/export.h"

#include <QLabel>

/// A text that looks like a link. It is clicked with the mouse, or with Return or Space while it has the focus. The
/// text may hold markup.
class ZKEDITOR_EXPORT LinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(QWidget* parent = nullptr, const QString& name = {});
    LinkLabel(const QString& text, QWidget* parent, const QString& name = {});

    /// On at first.
    void setUnderlined(bool underlined);
    bool isUnderlined() const { return m_underlined; }

    /// The width of the text, and room for the line under it whether or not it is drawn.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// After the left button was released over the label, or the key was pressed.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_underlined = true;
};
