#include "zkeditor/widgets/toolAction.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QToolButton>

QIcon toolAction::icon(const char* resource)
{
    QIcon icon;
    for (const int side : {16, 24, 32, 48})
        icon.addPixmap(ImageCache::getPixmap(Resource(resource), QSize(side, side), 1.0));
    return icon;
}

void toolAction::setKeys(QWidget* editor, QAction* action, const QKeySequence& keys)
{
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    if (!keys.isEmpty())
        action->setToolTip(QStringLiteral("%1 (%2)").arg(action->text(), keys.toString(QKeySequence::NativeText)));
    editor->addAction(action);
}

bool toolAction::takeKey(const QWidget* editor, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const QKeySequence pressed(
        QKeyCombination(key->modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(key->key())));
    const QList<QAction*> actions = editor->actions();
    for (QAction* action : actions) {
        if (!action->shortcuts().contains(pressed))
            continue;
        event->accept();
        if (event->type() == QEvent::KeyPress)
            action->trigger();
        return true;
    }
    return false;
}

QToolButton* toolAction::addButton(QWidget* editor, QAction* action, const QKeySequence& keys)
{
    setKeys(editor, action, keys);
    auto* button = new QToolButton(editor);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(action->text());
    return button;
}
