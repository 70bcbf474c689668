#pragma once

#include "zkeditor/export.h"

#include <QIcon>
#include <QPixmap>

/// The pictures of one piece of a control, by mode (Normal, Active) and state (On, Off). Pictures keep their pixels and
/// their device pixel ratio; nothing is scaled.
class ZKEDITOR_EXPORT IconSet
{
public:
    /// Active and Selected share a picture. Disabled is refused with a warning: it is made from Normal.
    void setPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state);
    /// What was stored for the mode and state, else for the state's Normal, else the same of the other state; null when
    /// nothing was stored. Disabled is Normal in shades of gray.
    QPixmap pixmap(QIcon::Mode mode, QIcon::State state) const;

private:
    struct Pair
    {
        QPixmap on;
        QPixmap off;
    };

    Pair m_normal;
    Pair m_active;
};
