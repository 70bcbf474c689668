#pragma once

#include "zkeditor/export.h"

#include <QLabel>

/// Plain text that says in red why something was not done, a red that can be read on the ground of the window; wrapped
/// into several lines.
class ZKEDITOR_EXPORT ErrorLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ErrorLabel(QWidget* parent = nullptr);

    /// Whether the text tells of something wrong; else it looks like any other. On at first.
    void setWrong(bool wrong);

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeColor();

    bool m_wrong = true;
};
