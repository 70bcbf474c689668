#include "zkauthor/darkPalette.h"

#include <QColor>
#include <QPalette>

QPalette darkPalette()
{
    const QColor ground(0x3a, 0x3c, 0x40);
    const QColor ink(0xe6, 0xe6, 0xe6);
    QPalette palette(ground);
    palette.setColor(QPalette::Base, QColor(0x26, 0x28, 0x2b));
    palette.setColor(QPalette::AlternateBase, QColor(0x2e, 0x30, 0x33));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    palette.setColor(QPalette::Link, QColor(0x6f, 0xae, 0xff));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText, QPalette::ToolTipText})
        palette.setColor(role, ink);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x90, 0x92, 0x96));
    palette.setColor(QPalette::PlaceholderText, QColor(0x9a, 0x9c, 0xa0));
    palette.setColor(QPalette::ToolTipBase, QColor(0x4a, 0x4d, 0x50));
    return palette;
}
