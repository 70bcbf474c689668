#include "zkeditor/widgets/readablePalette.h"

#include "zkeditor/widgets/readableColors.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>

namespace {

/// Whether the program asks for the same colours in both; those that are left to the desktop do not count.
bool asksForSame(const QPalette& a, const QPalette& b)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            if (a.isBrushSet(group, role) != b.isBrushSet(group, role) ||
                (a.isBrushSet(group, role) && a.brush(group, role) != b.brush(group, role)))
                return false;
        }
    }
    return true;
}

} // namespace

ReadablePalette::ReadablePalette(QObject* parent) : QObject(parent), m_given(QApplication::palette()), m_own(m_given)
{
    qApp->installEventFilter(this);
    adapt();
}

ReadablePalette::~ReadablePalette()
{
    m_adapting = true;
    if (asksForSame(QApplication::palette(), m_own))
        QApplication::setPalette(m_given);
}

bool ReadablePalette::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && object == qApp)
        adapt();
    return QObject::eventFilter(object, event);
}

void ReadablePalette::adapt()
{
    if (m_adapting)
        return;
    const QScopedValueRollback<bool> adapting(m_adapting, true);
    // When it was the desktop, what it gives for our roles shows only when they are taken back.
    if (asksForSame(QApplication::palette(), m_own))
        QApplication::setPalette(m_given);
    m_given = QApplication::palette();
    m_own = readableColors::adapted(m_given);
    QApplication::setPalette(m_own);
}
