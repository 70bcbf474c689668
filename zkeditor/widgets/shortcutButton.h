#pragma once

#include "zkeditor/export.h"

#include <QToolButton>

/// A small button for something often done with what is selected. It only tells which one was clicked; the host of the
/// pane carries it out.
class ZKEDITOR_EXPORT ShortcutButton : public QToolButton
{
    Q_OBJECT

public:
    enum Type {
        Delete,
        Duplicate,
        Lock, ///< sets or releases the lock of all property values
        Reflect,
        ShowPopup,
        Help
    };
    Q_ENUM(Type)

    explicit ShortcutButton(Type type, QWidget* parent = nullptr);

    Type type() const { return m_type; }

Q_SIGNALS:
    void shortcutClicked(ShortcutButton::Type type);

private:
    const Type m_type;
};
