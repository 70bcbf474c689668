#pragma once

#include "zkeditor/export.h"

#include <QLineEdit>

class QMenu;

/// A line edit with the product's own edit menu, and a signal for the loss of the keyboard focus. The keys of undo and
/// redo are the document's while nothing is typed that could be taken back.
class ZKEDITOR_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEdit(QWidget* parent = nullptr, const QString& name = {});
    ~LineEdit() override;

    /// Makes the edit menu, a child of this widget; the caller shows it. There may be one at a time.
    QMenu* createPopupMenu();
    /// Whether an edit menu is open.
    bool popupMenuActive() const;

Q_SIGNALS:
    /// After the keyboard focus went elsewhere (to another window included), but not to a pop-up such as the edit menu.
    void lostFocus();

protected Q_SLOTS:
    void onPopupMenuDestroyed(QObject* popup);

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void dropPopupMenu();

    QMenu* m_popupMenu = nullptr;
};
