#pragma once

#include "zkeditor/export.h"
// The one header that forms name for all kinds of radio buttons.
#include "zkeditor/widgets/radioButton.h" // IWYU pragma: export

class ChildrenGate;

/// A radio button that may hold widgets below its text; they are enabled only while it is checked. Its contents' top
/// margin keeps the line of the button free, so a layout in it needs none for that.
class ZKEDITOR_EXPORT GroupRadioButton : public RadioButton
{
    Q_OBJECT

public:
    explicit GroupRadioButton(QWidget* parent = nullptr, const QString& name = {});

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint& position) const override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QSize headerSize() const;
    QRect headerRect() const;
    void reserveHeader();

    ChildrenGate* m_gate;
};
