#include "zkauthor/screenshot.h"

#include "zkauthor/darkPalette.h"
#include "zkauthor/mainWindow.h"
#include "zkauthor/palettes.h"
#include "zkauthor/startOptions.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/sidePane.h"

#include <QApplication>
#include <QImageWriter>
#include <QPixmap>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

namespace {

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
