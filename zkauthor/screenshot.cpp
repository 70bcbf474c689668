#include "zkauthor/screenshot.h"

#include "zkauthor/darkPalette.h"
#include "zkauthor/flowchartBar.h"
#include "zkauthor/mainWindow.h"
#include "zkauthor/palettes.h"
#include "zkauthor/startOptions.h"
#include "zkcore/services/flowchartRunner.h"
#include "zkeditor/debugPalette.h"
#include "zkeditor/inspector.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/sidePane.h"
#include "zkeditor/widgets/paletteBox.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPixmap>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <vector>

namespace {

constexpr int paletteWidth = 330;
constexpr int leastHeight = 420; // of a window in which one palette is shown

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

void runFlowcharts(MainWindow& window, double seconds)
{
    constexpr double step = 0.05;
    window.flowcharts()->runAction()->trigger();
    for (double time = 0.0; time < seconds; time += step)
        window.flowcharts()->runner()->advance(step);
    QCoreApplication::processEvents();
}

/// The modal dialog that the menu entry opens; a null picture when it opens none.
QPixmap pictureOfDialog(const MainWindow& window, const QString& entry)
{
    constexpr int settlingTime = 200; // milliseconds, for layouts and previews
    auto* action = window.findChild<QAction*>(entry, Qt::FindDirectChildrenOnly);
    QPixmap picture;
    if (!action || !action->isEnabled())
        return picture;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&picture] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        picture = dialog->grab();
        dialog->close();
    });
    timer.start(settlingTime);
    action->trigger();
    return picture;
}

/// All sections of the forms as if each were open, though one at a time is.
QPixmap pictureOfSections(QWidget& window, QWidget& forms)
{
    const auto boxes = forms.findChildren<PaletteBox*>();
    const auto found = std::find_if(boxes.begin(), boxes.end(), [](const PaletteBox* box) { return box->count() > 1; });
    if (found == boxes.end())
        return forms.grab();
    PaletteBox& box = **found;
    std::vector<QImage> slices;
    int height = 0;
    for (int i = 0; i < box.count(); ++i) {
        box.showItem(i, true);
        QCoreApplication::processEvents();
        showWhole(window, forms);
        const QImage whole = forms.grab().toImage();
        const QWidget* section = box.item(i)->parentWidget();
        const int top = section->mapTo(&forms, QPoint()).y();
        const int begin = i == 0 ? 0 : top; // what stands above all of them
        slices.push_back(whole.copy(0, begin, whole.width(), top + section->height() - begin));
        height += slices.back().height();
    }
    QPixmap all(slices.front().width(), height);
    QPainter painter(&all);
    for (int y = 0; const QImage& slice : slices) {
        painter.drawImage(0, y, slice);
        y += slice.height();
    }
    return all;
}

/// The palette of that name, or the inspector, with as much height as its contents have; null when there is none.
QWidget* showPalette(MainWindow& window, const QString& name)
{
    if (name == QLatin1String("inspector")) {
        window.palettes()->showInspector();
        return window.findChild<Inspector*>();
    }
    auto* palette = window.findChild<QDockWidget*>(name, Qt::FindDirectChildrenOnly);
    if (!palette)
        return nullptr;
    for (QDockWidget* dock : window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        dock->setVisible(dock == palette);
    window.resize(window.width(), leastHeight);
    window.resizeDocks({palette}, {paletteWidth}, Qt::Horizontal);
    // What the debugging palette measures is never the same twice.
    if (!qobject_cast<DebugPalette*>(palette)) {
        for (PaletteBox* box : palette->findChildren<PaletteBox*>()) {
            for (int i = 0; i < box->count(); ++i)
                box->showItem(i, true);
        }
    }
    QCoreApplication::processEvents();
    showWhole(window, *palette);
    return palette;
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

    if (options.runTime > 0.0)
        runFlowcharts(window, options.runTime);

    QImageWriter writer(options.screenshot, "png");
    QPixmap picture;
    if (!options.dialog.isEmpty()) {
        picture = pictureOfDialog(window, options.dialog);
        if (picture.isNull()) {
            error = QCoreApplication::translate("screenshot", "There is no dialog \"%1\" for what is selected.")
                        .arg(options.dialog);
            return false;
        }
    }
    QWidget* shown = &window;
    if (!options.palette.isEmpty()) {
        shown = showPalette(window, options.palette);
        if (!shown) {
            error = QCoreApplication::translate("screenshot", "There is no palette \"%1\".").arg(options.palette);
            return false;
        }
        QCoreApplication::processEvents();
    }
    if (options.forms) {
        SidePane* pane = window.palettes()->sidePane();
        pane->showSection(SidePane::PartsTreePane, false);
        pane->showSection(SidePane::ModelsPane, false);
        pane->showSection(SidePane::PropertiesPane, true);
        QCoreApplication::processEvents();
        shown = window.palettes()->properties()->widget();
        picture = pictureOfSections(window, *shown);
    }
    writer.setCompression(100);
    if (picture.isNull())
        picture = shown->grab();
    if (writer.write(picture.toImage().convertToFormat(QImage::Format_RGB32)))
        return true;
    error = QCoreApplication::translate("screenshot", "The picture %1 cannot be written: %2")
                .arg(options.screenshot, writer.errorString());
    return false;
}
