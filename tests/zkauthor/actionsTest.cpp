// The menu entries of the main window.
#include "windowTest.h"

#include <QAction>
#include <QKeySequence>
#include <QMap>
#include <QMenu>

namespace {
using ActionsTest = WindowTest;
}

TEST_F(ActionsTest, NoKeyIsSharedAndNoLetterOfAMenu)
{
    QMap<QString, QStringList> owners;
    for (const QAction* action : m_window->findChildren<QAction*>()) {
        // Keys of a list hold in that list alone.
        if (action->shortcutContext() != Qt::WindowShortcut)
            continue;
        for (const QKeySequence& key : action->shortcuts())
            owners[key.toString()].append(action->text());
    }
    EXPECT_FALSE(owners.isEmpty());
    for (auto it = owners.cbegin(); it != owners.cend(); ++it)
        EXPECT_EQ(it->size(), 1) << it.key().toStdString() << ": " << it->join(u',').toStdString();

    for (const QMenu* menu : m_window->findChildren<QMenu*>()) {
        QMap<QString, QStringList> letters;
        for (const QAction* action : menu->actions()) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            if (!letter.isEmpty())
                letters[letter].append(action->text());
        }
        for (auto it = letters.cbegin(); it != letters.cend(); ++it)
            EXPECT_EQ(it->size(), 1) << menu->title().toStdString() << ' ' << it->join(u',').toStdString();
    }
}
