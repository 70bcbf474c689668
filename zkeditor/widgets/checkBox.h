#pragma once

#include "zkeditor/export.h"

#include <QCheckBox>

/// A check box that can show that what it stands for is neither on nor off in all cases.
class ZKEDITOR_EXPORT CheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit CheckBox(QWidget* parent = nullptr, const QString& name = {});
    explicit CheckBox(const QString& text, QWidget* parent = nullptr, const QString& name = {});

    /// This object for connections, where a class has more bases than this one.
    QObject* qObject() { return this; }

    /// Shows on or off, or with `partial` neither of them. Emits what QCheckBox emits when that changes the state.
    void setCheckBoxState(bool on, bool partial) { showState(*this, on, partial); }
    /// Goes from neither on nor off back to the plain two states, and to off.
    void resetTristate() { showState(*this, false, false); }

    /// The same for any check box. The partial state is pressed down, and ends by itself when the user clicks.
    static void showState(QCheckBox& box, bool on, bool partial);
};
