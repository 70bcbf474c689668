// Finds the nearest picture for a mode and state.
#include "zkeditor/widgets/iconSet.h"

#include "zkcore/media/imageCache.h"

void IconSet::setPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state)
{
    if (mode == QIcon::Disabled) {
        qWarning("IconSet: Disabled icons are automatically generated - ignoring pixmap");
        return;
    }
    Pair& pair = mode == QIcon::Normal ? m_normal : m_active;
    (state == QIcon::On ? pair.on : pair.off) = pixmap;
}

QPixmap IconSet::pixmap(QIcon::Mode mode, QIcon::State state) const
{
    if (mode == QIcon::Disabled)
        return convertToGrayScale(pixmap(QIcon::Normal, state));
    const bool on = state == QIcon::On;
    const Pair& wanted = mode == QIcon::Normal ? m_normal : m_active;
    const Pair& other = mode == QIcon::Normal ? m_active : m_normal;
    for (const QPixmap* each : {on ? &wanted.on : &wanted.off, on ? &other.on : &other.off,
                                on ? &wanted.off : &wanted.on, on ? &other.off : &other.on}) {
        if (!each->isNull())
            return *each;
    }
    return {};
}
