#include "zkauthor/screenshot.h"

#include "zkauthor/mainWindow.h"
#include "zkauthor/startOptions.h"

#include <QCoreApplication>
#include <QImageWriter>
#include <QPixmap>

bool takeScreenshot(const StartOptions& options, QString& error)
{
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
    if (writer.write(window.grab().toImage()))
        return true;
    error = QCoreApplication::translate("screenshot", "The picture %1 cannot be written: %2")
                .arg(options.screenshot, writer.errorString());
    return false;
}
