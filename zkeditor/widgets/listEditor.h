#pragma once

#include "zkeditor/export.h"

#include <QKeySequence>
#include <QWidget>
#include <functional>
#include <utility>

class EditDelegate;
class QAction;
class QHBoxLayout;
class QLabel;
class QTreeView;

/// A list with buttons below it, for editors of collections: what they share of looks, keys and messages. Ins adds, Del
/// removes, F2 edits in place, Alt+Up and Alt+Down move; the buttons and the menu of the list do the same. In a list
/// that is edited in place Left, Right and Tab go from cell to cell.
class ZKEDITOR_EXPORT ListEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ListEditor(QWidget* parent = nullptr, const QString& name = {});

    QTreeView* view() const { return m_view; }
    /// What went wrong last; empty when nothing did.
    QString message() const;

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Says below the list why something was not done; the empty text takes it away.
    void setMessage(const QString& message);

protected:
    /// A button below the list. The icon is one of the library's pictures ("editor/lists/up").
    QAction* addButton(const char* icon, const QString& text, const QKeySequence& keys, std::function<void()> run);
    /// Plus and minus, with Ins and Del as keys. The actions for adding and removing.
    std::pair<QAction*, QAction*> addPlusMinus(const QString& plusText, std::function<void()> plus,
                                               const QString& minusText, std::function<void()> minus);
    /// Makes the buttons and keys of moving rows; `move` gets -1 for up and 1 for down.
    void addMoveButtons(const std::function<void(int)>& move);
    QAction* moveUpAction() const { return m_up; }
    QAction* moveDownAction() const { return m_down; }
    EditDelegate* editDelegate() const { return m_delegate; }

    /// The rows that are selected, in rising order.
    QList<int> selectedRows() const;
    /// Selects rows alone and shows the first of them.
    void selectRows(const QList<int>& rows);
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

    /// Says in the list what it means that it is empty; the empty text says nothing.
    void setPlaceholderText(const QString& text);

    /// Calls showMixed() when what is going on is over: while a change of several nodes goes through them one by one
    /// they differ for a moment, and the list must not lose what is selected in it for that.
    void showMixedSoon();
    /// Empties the list if the nodes still differ.
    virtual void showMixed() {}
    /// To be called when what can be done may have changed.
    virtual void updateActions() = 0;

private:
    QAction* makeAction(const QString& text, std::function<void()> run);

    QTreeView* m_view;
    EditDelegate* m_delegate;
    QHBoxLayout* m_buttons;
    QLabel* m_message;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
    bool m_mixedPending = false;
};
