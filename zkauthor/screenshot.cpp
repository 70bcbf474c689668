#include "zkauthor/screenshot.h"

#include "zkauthor/mainWindow.h"
#include "zkauthor/palettes.h"
#include "zkauthor/startOptions.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/sidePane.h"

#include <QApplication>
#include <QImageWriter>
#include <QPalette>
#include <QPixmap>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

namespace {

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

/// Makes the window so high that nothing in the widget needs to be scrolled.
void showWhole(QWidget& window, const QWidget& widget)
{
    int hidden = 0;
    const auto areas = widget.findChildren<QScrollArea*>();
    for (const QScrollArea* area : areas)
        hidden = std::max(hidden, area->verticalScrollBar()->maximum());
    window.resize(window.width(), window.height() + hidden);
    QCoreApplication::processEvents();
}

} // namespace

bool takeScreenshot(const StartOptions& options, QString& error)
{
    if (options.dark)
        QApplication::setPalette(darkPalette());
    MainWindow window;
    if (!options.document.isEmpty() && !window.openFile(options.document, error))
        return false;
    window.show();
    QCoreApplication::processEvents();
    if (!options.select.isEmpty() && !window.selectParts(options.select, error))
        return false;
    // Once for the forms to get their sizes, once for what that moves.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();

    QImageWriter writer(options.screenshot, "png");
    QWidget* shown = &window;
    if (options.forms) {
        SidePane* pane = window.palettes()->sidePane();
        pane->showSection(SidePane::PartsTreePane, false);
        pane->showSection(SidePane::ModelsPane, false);
        pane->showSection(SidePane::PropertiesPane, true);
        QCoreApplication::processEvents();
        shown = window.palettes()->properties()->widget();
        showWhole(window, *shown);
    }
    writer.setCompression(100);
    if (writer.write(shown->grab().toImage().convertToFormat(QImage::Format_RGB32)))
        return true;
    error = QCoreApplication::translate("screenshot", "The picture %1 cannot be written: %2")
                .arg(options.screenshot, writer.errorString());
    return false;
}
