#include "zkeditor/widgets/shortcutButton.h"

#include "zkeditor/widgets/resourceIcon.h"

#include <QIcon>
#include <QStyle>

namespace {

struct ShortcutLook
{
    const char* icon;
    const char* name;
    const char* toolTip;
};

ShortcutLook shortcutLook(ShortcutButton::Type type)
{
    switch (type) {
    case ShortcutButton::Delete:
        return {"editor/actions/delete", QT_TRANSLATE_NOOP("ShortcutButton", "Delete"),
                QT_TRANSLATE_NOOP("ShortcutButton", "Deletes what is selected")};
    case ShortcutButton::Duplicate:
        return {"editor/actions/duplicate", QT_TRANSLATE_NOOP("ShortcutButton", "Duplicate"),
                QT_TRANSLATE_NOOP("ShortcutButton", "Adds a copy of what is selected")};
    case ShortcutButton::Lock:
        return {"editor/actions/lock", QT_TRANSLATE_NOOP("ShortcutButton", "Lock"),
                QT_TRANSLATE_NOOP("ShortcutButton", "Keeps what is selected from being changed")};
    case ShortcutButton::Reflect:
        return {"editor/panes/reflect", QT_TRANSLATE_NOOP("ShortcutButton", "Reflect"),
                QT_TRANSLATE_NOOP("ShortcutButton", "Shows the part in another place as well")};
    case ShortcutButton::ShowPopup:
        return {"editor/panes/show-popup", QT_TRANSLATE_NOOP("ShortcutButton", "Show Pop-up"),
                QT_TRANSLATE_NOOP("ShortcutButton", "Opens the pop-up of the part")};
    case ShortcutButton::Help:
        break;
    }
    return {"editor/panes/help", QT_TRANSLATE_NOOP("ShortcutButton", "Help"),
            QT_TRANSLATE_NOOP("ShortcutButton", "Tells more about what is selected")};
}

} // namespace

ShortcutButton::ShortcutButton(Type type, QWidget* parent) : QToolButton(parent), m_type(type)
{
    const ShortcutLook look = shortcutLook(type);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    setIconSize(QSize(side, side));
    setIcon(resourceIcon(QLatin1String(look.icon), side, this));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setCheckable(type == Lock);
    setAccessibleName(tr(look.name));
    setToolTip(tr("%1: %2").arg(tr(look.name), tr(look.toolTip)));
    connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT shortcutClicked(m_type); });
}
