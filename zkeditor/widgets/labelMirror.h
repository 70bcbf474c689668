#pragma once

#include "zkeditor/export.h"

#include <QObject>

class QLabel;

/// Keeps the text of a label at the side of it where lines begin in the form's language, whatever the direction of the
/// text itself: the toolkit places "12 mm" at the left also where all around it runs to the left.
class ZKEDITOR_EXPORT LabelMirror : public QObject
{
    Q_OBJECT

public:
    /// Owned by the label. The label's alignment counts as it is when the label is shown first.
    explicit LabelMirror(QLabel* label);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void place();

    QLabel* m_label;
    Qt::Alignment m_own;    // the label's, for a form that runs to the right
    Qt::Alignment m_placed; // what was made of it
};
