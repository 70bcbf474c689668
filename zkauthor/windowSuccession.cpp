#include "zkauthor/windowSuccession.h"

#include "zkauthor/mainWindow.h"
#include "zkauthor/palettes.h"
#include "zkauthor/printing.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceTabs.h"
#include "zkeditor/debugPalette.h"
#include "zkeditor/partsTree.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/sidePane.h"
#include "zkeditor/widgets/paletteBox.h"

#include <QDockWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <vector>

namespace {

/// What the docks hold of a class, in the order in which it was made: the same one in each window that shows the same.
template <typename T> std::vector<T*> inDocks(const MainWindow& window)
{
    std::vector<T*> all;
    for (const QDockWidget* dock : window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QList<T*> found = dock->findChildren<T*>();
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

void openSections(const std::vector<PaletteBox*>& before, const std::vector<PaletteBox*>& now)
{
    for (size_t box = 0; box < std::min(before.size(), now.size()); ++box) {
        for (int i = 0; i < std::min(before[box]->count(), now[box]->count()); ++i)
            now[box]->showItem(i, before[box]->isItemOpen(i));
    }
}

void scrollAlike(const MainWindow& before, MainWindow& now)
{
    std::vector<int> values;
    for (const QScrollArea* area : inDocks<QScrollArea>(before))
        values.push_back(area->verticalScrollBar()->value());
    // The contents get their heights when they are shown.
    QTimer::singleShot(0, &now, [&now, values] {
        const std::vector<QScrollArea*> areas = inDocks<QScrollArea>(now);
        for (size_t i = 0; i < std::min(areas.size(), values.size()); ++i)
            areas[i]->verticalScrollBar()->setValue(values[i]);
    });
}

} // namespace

void succeedWindow(MainWindow& before, MainWindow& now)
{
    now.printing()->setPrinter(before.printing()->printer());
    Palettes* palettes = now.palettes();
    const Palettes* earlier = before.palettes();
    if (earlier->properties()->showsSpaceProperties())
        palettes->properties()->showSpaceProperties();
    palettes->sidePane()->getPartsTree()->setFilter(earlier->sidePane()->getPartsTree()->filter());
    earlier->debugPalette()->passRecordingTo(*palettes->debugPalette());

    const bool wholeScreen = before.isMaximized() || before.isFullScreen();
    now.setGeometry(wholeScreen ? before.normalGeometry() : before.geometry());
    now.setWindowState(before.windowState());
    now.restoreState(before.saveState());
    now.setVisible(before.isVisible());
    now.showTabsLike(before);
    // Twice: opening one can close another for want of room.
    openSections(inDocks<PaletteBox>(before), inDocks<PaletteBox>(now));
    openSections(inDocks<PaletteBox>(before), inDocks<PaletteBox>(now));
    scrollAlike(before, now);
    if (const QRect inspector = earlier->inspectorGeometry(); inspector.isValid())
        palettes->showInspector(inspector);
    if (before.isVisible())
        now.activateWindow();
    if (SceneView* view = now.spaceTabs()->currentView())
        view->setFocus();
}
