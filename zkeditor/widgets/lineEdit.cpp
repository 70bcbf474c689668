#include "zkeditor/widgets/lineEdit.h"

#include "zkcore/base/assert.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>

namespace {

// The shortcut is only shown: the line edit itself reacts to the keys.
QString editMenuText(const QString& label, const QKeySequence& shortcut)
{
    return label + QLatin1Char('\t') + shortcut.toString(QKeySequence::NativeText);
}

} // namespace

LineEdit::LineEdit(QWidget* parent, const QString& name) : QLineEdit(parent)
{
    setObjectName(name);
}

LineEdit::~LineEdit()
{
    // Before the base destroys its children, when the menu's end could no longer be told to this object.
    if (m_popupMenu)
        m_popupMenu->disconnect(this);
}

QMenu* LineEdit::createPopupMenu()
{
    ZK_ASSERT_TEXT(m_popupMenu == nullptr, "m_popupMenu == NULL");
    const bool writable = !isReadOnly();
    const bool selected = hasSelectedText();
    m_popupMenu = new QMenu(this);
    m_popupMenu->setObjectName(QStringLiteral("qt_edit_menu"));
    m_popupMenu->addAction(editMenuText(tr("Cu&t"), Qt::CTRL | Qt::Key_X), this, &QLineEdit::cut)
        ->setEnabled(writable && selected);
    m_popupMenu->addAction(editMenuText(tr("&Copy"), Qt::CTRL | Qt::Key_C), this, &QLineEdit::copy)
        ->setEnabled(selected);
    m_popupMenu->addAction(editMenuText(tr("&Paste"), Qt::CTRL | Qt::Key_V), this, &QLineEdit::paste)
        ->setEnabled(writable && !QGuiApplication::clipboard()->text().isEmpty());
    m_popupMenu->addAction(tr("Clear"), this, &QLineEdit::clear)->setEnabled(writable && !text().isEmpty());
    m_popupMenu->addSeparator();
    m_popupMenu->addAction(editMenuText(tr("Select All"), Qt::CTRL | Qt::Key_A), this, &QLineEdit::selectAll)
        ->setEnabled(!text().isEmpty() && text() != selectedText());
    connect(m_popupMenu, &QObject::destroyed, this, &LineEdit::onPopupMenuDestroyed);
    return m_popupMenu;
}

bool LineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->matches(QKeySequence::Undo) && (!isModified() || !isUndoAvailable())) ||
            (key->matches(QKeySequence::Redo) && !isRedoAvailable())) {
            event->ignore();
            return false;
        }
    }
    return QLineEdit::event(event);
}

bool LineEdit::popupMenuActive() const
{
    return m_popupMenu && m_popupMenu->isVisible();
}

void LineEdit::onPopupMenuDestroyed(QObject* popup)
{
    ZK_ASSERT(m_popupMenu == popup);
    m_popupMenu = nullptr;
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    // A menu that was closed lives until control returns to the event loop, and the next request can come before that.
    dropPopupMenu();
    QMenu* menu = createPopupMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
    event->accept();
}

void LineEdit::focusOutEvent(QFocusEvent* event)
{
    const bool toPopup = event->reason() == Qt::PopupFocusReason;
    QLineEdit::focusOutEvent(event);
    if (!toPopup)
        Q_EMIT lostFocus();
}

void LineEdit::dropPopupMenu()
{
    if (!m_popupMenu)
        return;
    m_popupMenu->disconnect(this);
    m_popupMenu->hide();
    m_popupMenu->deleteLater();
    m_popupMenu = nullptr;
}
