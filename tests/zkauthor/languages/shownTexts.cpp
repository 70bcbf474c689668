#include "shownTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QMetaProperty>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QTextDocument>
#include <QTreeView>

namespace {

const char* const textProperties[] = {"text",           "title",          "label",
                                      "windowTitle",    "toolTip",        "statusTip",
                                      "whatsThis",      "accessibleName", "accessibleDescription",
                                      "prefix",         "suffix",         "specialValueText",
                                      "placeholderText"};
constexpr int rowsLookedAt = 100;

class Collector
{
public:
    void look(const QWidget& widget)
    {
        const QString place =
            QStringLiteral("%1 %2").arg(QLatin1String(widget.metaObject()->className()), widget.objectName());
        for (const char* property : textProperties) {
            // What is in a field is the user's.
            const bool isField = widget.inherits("QLineEdit") || widget.inherits("QTextEdit");
            if (!(isField && qstrcmp(property, "text") == 0))
                add(widget.property(property).toString(), place, property);
        }
        if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
            for (int i = 0; i < combo->count(); ++i)
                add(combo->itemText(i), place, "item");
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                add(tabs->tabToolTip(i), place, "tab tool tip");
        } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
            lookAtModel(*view, place);
        }
        const QList<QAction*> actions = widget.actions();
        for (const QAction* action : actions)
            look(*action, place);
        if (const auto* bar = qobject_cast<const QMenuBar*>(&widget)) {
            for (const QAction* action : bar->actions()) {
                if (action->menu())
                    look(*action->menu());
            }
        }
    }

    std::vector<ShownText> texts;

private:
    void add(const QString& text, const QString& place, const char* kind)
    {
        if (!text.isEmpty())
            texts.push_back({text, place + QStringLiteral(": ") + QLatin1String(kind)});
    }

    void look(const QAction& action, const QString& place)
    {
        const QString own = place + QStringLiteral(", action ") + action.objectName();
        add(action.text(), own, "text");
        add(action.toolTip(), own, "toolTip");
        add(action.statusTip(), own, "statusTip");
    }

    void lookAtModel(const QAbstractItemView& view, const QString& place)
    {
        const QAbstractItemModel* model = view.model();
        if (!model || view.inherits("QComboBoxListView") || view.inherits("QHeaderView"))
            return;
        const bool hasHeader = view.inherits("QTreeView") || view.inherits("QTableView");
        for (int column = 0; hasHeader && column < model->columnCount(); ++column)
            add(model->headerData(column, Qt::Horizontal).toString(), place, "header");
        lookAtRows(*model, {}, place);
    }

    void lookAtRows(const QAbstractItemModel& model, const QModelIndex& parent, const QString& place)
    {
        for (int row = 0; row < std::min(rowsLookedAt, model.rowCount(parent)); ++row) {
            for (int column = 0; column < model.columnCount(parent); ++column) {
                const QModelIndex index = model.index(row, column, parent);
                add(index.data().toString(), place, "row");
                add(index.data(Qt::ToolTipRole).toString(), place, "tool tip of a row");
                add(index.data(Qt::AccessibleTextRole).toString(), place, "accessible text of a row");
            }
            lookAtRows(model, model.index(row, 0, parent), place);
        }
    }
};

/// The window's or scroll area's part in which a widget can be seen.
QRect roomIn(const QWidget& widget)
{
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        const auto* area = qobject_cast<const QScrollArea*>(above->parentWidget());
        if (area && area->viewport() == above)
            return QRect(widget.mapFrom(above, QPoint()), above->size());
        if (above->isWindow())
            return QRect(widget.mapFrom(above, QPoint()), above->size());
    }
    return widget.rect();
}

QString describe(const QWidget& widget, const QString& text, int needed, int room)
{
    return QStringLiteral("%1 %2: \"%3\" needs %4 pixels and has %5")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(), text, QString::number(needed),
             QString::number(room));
}

QString mnemonicOf(const QString& text)
{
    return QKeySequence::mnemonic(text).toString();
}

void noteSharedMnemonics(const QMap<QString, QStringList>& texts, const QString& where, QStringList& shared)
{
    for (auto it = texts.begin(); it != texts.end(); ++it) {
        if (it.value().size() > 1)
            shared.append(where + QStringLiteral(": ") + it.key() + QStringLiteral(" for \"") +
                          it.value().join(QLatin1String("\", \"")) + QLatin1Char('"'));
    }
}

void findInMenu(const QMenu& menu, QStringList& shared)
{
    QMap<QString, QStringList> texts;
    for (const QAction* action : menu.actions()) {
        if (const QString letter = mnemonicOf(action->text()); !letter.isEmpty() && action->isVisible())
            texts[letter].append(action->text());
        if (action->menu())
            findInMenu(*action->menu(), shared);
    }
    noteSharedMnemonics(texts, menu.title(), shared);
}

} // namespace

std::vector<ShownText> shownTexts(const QWidget& root)
{
    Collector collector;
    collector.look(root);
    for (const QWidget* widget : root.findChildren<QWidget*>())
        collector.look(*widget);
    return collector.texts;
}

QStringList clippedTexts(const QWidget& root)
{
    QStringList clipped;
    const auto check = [&](const QWidget& widget, const QString& text, int needed) {
        const QRect seen = roomIn(widget).intersected(widget.rect());
        if (needed > seen.width())
            clipped.append(describe(widget, text, needed, seen.width()));
    };
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&root) || widget->inherits("QDockWidgetTitleButton"))
            continue;
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            if (label->text().isEmpty() || !label->pixmap(Qt::ReturnByValue).isNull())
                continue;
            if (!label->wordWrap())
                check(*label, label->text(), label->sizeHint().width());
            else if (label->height() < label->heightForWidth(label->width()))
                clipped.append(describe(*label, label->text(), label->heightForWidth(label->width()), label->height()));
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            if (!button->text().isEmpty())
                check(*button, button->text(), button->minimumSizeHint().width());
        } else if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
            if (!group->title().isEmpty())
                check(*group, group->title(), group->fontMetrics().horizontalAdvance(group->title()) + 8);
        } else if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
            QStyleOptionComboBox option;
            option.initFrom(combo);
            const int room = combo->style()
                                 ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
                                 .width();
            const int needed = combo->fontMetrics().horizontalAdvance(combo->currentText());
            if (needed > room)
                clipped.append(describe(*combo, combo->currentText(), needed, room));
        } else if (const auto* header = qobject_cast<const QHeaderView*>(widget)) {
            for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
                if (!header->isSectionHidden(i) && header->sectionSize(i) < header->sectionSizeHint(i))
                    clipped.append(describe(*header, header->model()->headerData(i, Qt::Horizontal).toString(),
                                            header->sectionSizeHint(i), header->sectionSize(i)));
            }
        }
    }
    return clipped;
}

QStringList sharedMnemonics(const QWidget& root)
{
    QStringList shared;
    QMap<QString, QStringList> inWindow;
    for (const QMenuBar* bar : root.findChildren<QMenuBar*>()) {
        for (const QAction* action : bar->actions()) {
            if (action->menu())
                findInMenu(*action->menu(), shared);
            if (const QString letter = mnemonicOf(action->text()); !letter.isEmpty())
                inWindow[letter].append(action->text());
        }
    }
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        QString text;
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            text = label->buddy() ? label->text() : QString();
        else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            text = button->text();
        else if (const auto* group = qobject_cast<const QGroupBox*>(widget))
            text = group->title();
        if (!widget->isVisibleTo(&root))
            continue;
        if (const QString letter = mnemonicOf(text); !letter.isEmpty())
            inWindow[letter].append(text);
    }
    noteSharedMnemonics(inWindow, root.objectName(), shared);
    return shared;
}
