// Of two things with one letter neither is reached by it: what is there always keeps it.
#include "zkeditor/widgets/mnemonics.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QTabBar>

namespace {

QString& reservedMnemonics()
{
    static QString letters;
    return letters;
}

/// The place of the mark, not of a doubled one, which stands for itself; -1 when there is none.
qsizetype placeOfMnemonicMark(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != QLatin1Char('&'))
            continue;
        if (text[i + 1] != QLatin1Char('&'))
            return i;
        ++i;
    }
    return -1;
}

template <typename Setter> void changeMnemonicText(const QString& text, const QString& letters, Setter set)
{
    const QString plain = mnemonics::without(text, letters);
    if (plain != text)
        set(plain);
}

} // namespace

QString mnemonics::without(const QString& text, const QString& letters)
{
    const qsizetype mark = placeOfMnemonicMark(text);
    if (mark < 0 || !letters.contains(text[mark + 1].toUpper()))
        return text;
    QString plain = text;
    return plain.remove(mark, 1);
}

void mnemonics::remove(QWidget* root, const QString& letters)
{
    if (letters.isEmpty())
        return;
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : std::as_const(widgets)) {
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            if (label->buddy()) // else the mark is shown
                changeMnemonicText(label->text(), letters, [label](const QString& text) { label->setText(text); });
        } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            if (!button->shortcut().isEmpty()) // else the mark is shown
                changeMnemonicText(button->text(), letters, [button](const QString& text) { button->setText(text); });
        } else if (auto* group = qobject_cast<QGroupBox*>(widget)) {
            changeMnemonicText(group->title(), letters, [group](const QString& text) { group->setTitle(text); });
        } else if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                changeMnemonicText(tabs->tabText(i), letters, [=](const QString& text) { tabs->setTabText(i, text); });
        }
    }
}

void mnemonics::reserve(const QString& letters)
{
    reservedMnemonics() = letters;
}

QString mnemonics::reserved()
{
    return reservedMnemonics();
}
