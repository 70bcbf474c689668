#include "zkauthor/actions.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkeditor/widgets/brandWidget.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QSet>
#include <QToolBar>

namespace {

QIcon actionIcon(const char* name)
{
    const Resource resource(QStringLiteral("editor/actions/") + QLatin1String(name));
    return resource.isValid() ? QIcon(ImageCache::getPixmap(resource, true)) : QIcon();
}

QAction* makeAction(QMainWindow* window, const char* name, const QString& text, const QString& help,
                    const QList<QKeySequence>& shortcuts = {})
{
    auto* action = new QAction(actionIcon(name), text, window);
    action->setObjectName(QLatin1String(name));
    action->setStatusTip(help);
    action->setShortcuts(shortcuts);
    QString toolTip = help;
    if (!shortcuts.isEmpty())
        toolTip += QStringLiteral(" (%1)").arg(shortcuts.first().toString(QKeySequence::NativeText));
    action->setToolTip(toolTip);
    return action;
}

/// Desktops bind several keys to standard actions, Ctrl+D to Delete for instance. Keys that two actions share would do
/// neither, so further keys of an action give way.
void dropSharedKeys(const QList<QAction*>& actions)
{
    QSet<QKeySequence> taken;
    for (const QAction* action : actions) {
        if (!action->shortcut().isEmpty())
            taken.insert(action->shortcut());
    }
    for (QAction* action : actions) {
        QList<QKeySequence> own = action->shortcuts();
        for (qsizetype i = own.size() - 1; i > 0; --i) {
            if (taken.contains(own.at(i)))
                own.removeAt(i);
            else
                taken.insert(own.at(i));
        }
        action->setShortcuts(own);
    }
}

} // namespace

Actions::Actions(QMainWindow* window)
{
    const auto keys = [](QKeySequence::StandardKey key, const char* otherwise) {
        const QList<QKeySequence> bound = QKeySequence::keyBindings(key);
        return bound.isEmpty() ? QList<QKeySequence>{QKeySequence(QLatin1String(otherwise))} : bound;
    };
    const auto key = [](const char* text) { return QList<QKeySequence>{QKeySequence(QLatin1String(text))}; };

    newDocument =
        makeAction(window, "new", tr("&New"), tr("Start an empty document"), keys(QKeySequence::New, "Ctrl+N"));
    open = makeAction(window, "open", tr("&Open..."), tr("Open a document"), keys(QKeySequence::Open, "Ctrl+O"));
    save = makeAction(window, "save", tr("&Save"), tr("Save the document"), keys(QKeySequence::Save, "Ctrl+S"));
    saveAs = makeAction(window, "save-as", tr("Save &As..."), tr("Save the document under another name"),
                        key("Ctrl+Shift+S"));
    revert = makeAction(window, "revert", tr("Re&vert"), tr("Go back to what was last saved"));
    close = makeAction(window, "close", tr("&Close"), tr("Close the document"), key("Ctrl+W"));
    quit = makeAction(window, "quit", tr("&Quit"), tr("Close the program"), key("Ctrl+Q"));

    // What people try first, whatever the desktop's own key is.
    QList<QKeySequence> redoKeys = keys(QKeySequence::Redo, "Ctrl+Y");
    if (!redoKeys.contains(QKeySequence(QStringLiteral("Ctrl+Y"))))
        redoKeys.append(QKeySequence(QStringLiteral("Ctrl+Y")));
    undo = makeAction(window, "undo", tr("&Undo"), tr("Take back the last change"), keys(QKeySequence::Undo, "Ctrl+Z"));
    redo = makeAction(window, "redo", tr("&Redo"), tr("Do again what was taken back"), redoKeys);
    cut = makeAction(window, "cut", tr("Cu&t"), tr("Move the selected parts to the clipboard"),
                     keys(QKeySequence::Cut, "Ctrl+X"));
    copy = makeAction(window, "copy", tr("&Copy"), tr("Copy the selected parts to the clipboard"),
                      keys(QKeySequence::Copy, "Ctrl+C"));
    paste = makeAction(window, "paste", tr("&Paste"), tr("Add the parts on the clipboard"),
                       keys(QKeySequence::Paste, "Ctrl+V"));
    duplicate =
        makeAction(window, "duplicate", tr("Dup&licate"), tr("Add copies of the selected parts"), key("Ctrl+D"));
    remove =
        makeAction(window, "delete", tr("&Delete"), tr("Delete the selected parts"), keys(QKeySequence::Delete, "Del"));
    selectAll = makeAction(window, "select-all", tr("Select &All"), tr("Select every part of the scene"),
                           keys(QKeySequence::SelectAll, "Ctrl+A"));
    selectNext = makeAction(window, "select-next", tr("Select Ne&xt"), tr("Select the next part"), key("Alt+Down"));
    selectPrevious =
        makeAction(window, "select-previous", tr("Select Pre&vious"), tr("Select the part before"), key("Alt+Up"));
    rotateLeft = makeAction(window, "rotate-left", tr("Rotate Le&ft"),
                            tr("Turn the selected parts a quarter to the left"), key("Ctrl+Shift+R"));
    rotateRight = makeAction(window, "rotate", tr("R&otate Right"),
                             tr("Turn the selected parts a quarter to the right"), key("Ctrl+R"));

    QList<QKeySequence> zoomInKeys = keys(QKeySequence::ZoomIn, "Ctrl++");
    zoomInKeys.append(QKeySequence(QStringLiteral("Ctrl+=")));
    zoomIn = makeAction(window, "zoom-in", tr("Zoom &In"), tr("Show things larger"), zoomInKeys);
    zoomOut = makeAction(window, "zoom-out", tr("Zoom &Out"), tr("Show things smaller"),
                         keys(QKeySequence::ZoomOut, "Ctrl+-"));
    zoomNormal =
        makeAction(window, "zoom-normal", tr("&Real Size"), tr("Show things in their real size"), key("Ctrl+1"));
    zoomFit = makeAction(window, "zoom-fit", tr("&Fit"), tr("Show the whole scene"), key("Ctrl+0"));
    openPopup = makeAction(window, "open-popup", tr("Open Pop-&up"), tr("Show the pop-up of the selected part"),
                           key("Ctrl+Return"));
    closePopup = makeAction(window, "close-popup", tr("C&lose Pop-up"), tr("Close the pop-up on view"), key("Ctrl+F4"));

    addScene = makeAction(window, "add-scene", tr("New &Scene"), tr("Add an empty scene"));
    removeScene = makeAction(window, "delete-scene", tr("Delete S&cene"), tr("Delete the scene on view"));
    pageSetup = makeAction(window, "page-setup", tr("Pa&ge Setup..."), tr("Paper, margins and scale"));
    printPreview =
        makeAction(window, "print-preview", tr("Print Previe&w..."), tr("Show the pages as they are printed"));
    print = makeAction(window, "print", tr("&Print..."), tr("Print the document"), keys(QKeySequence::Print, "Ctrl+P"));
    exportPdf = makeAction(window, "export-pdf", tr("Export to P&DF..."), tr("Write the pages into a PDF file"));
    exportSvg = makeAction(window, "export-svg", tr("E&xport to SVG..."), tr("Write the scene on view as a drawing"));
    saveCustomPart = makeAction(window, "save-custom-part", tr("&Save as Custom Part..."),
                                tr("Offer the selected part among the parts from now on"));
    preferences = makeAction(window, "preferences", tr("Pr&eferences..."), tr("How the program works for you"),
                             keys(QKeySequence::Preferences, "Ctrl+,"));
    preferences->setMenuRole(QAction::PreferencesRole);
    licence = makeAction(window, "licence", tr("&Licence..."), tr("Show or enter the licence"));
    help = makeAction(window, "help", tr("&Contents"), tr("Read how things are done"),
                      keys(QKeySequence::HelpContents, "F1"));
    about = makeAction(window, "about", tr("&About zkauthor"), tr("What this program is"));
    about->setMenuRole(QAction::AboutRole);
    quit->setMenuRole(QAction::QuitRole);

    dropSharedKeys(window->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly));
    makeMenus(window);
    makeToolBar(window);
}

void Actions::makeMenus(QMainWindow* window)
{
    QMenu* file = window->menuBar()->addMenu(tr("&File"));
    file->addActions({newDocument, open});
    recentMenu = file->addMenu(tr("Open &Recent"));
    recentMenu->setObjectName(QStringLiteral("recentMenu"));
    file->addSeparator();
    file->addActions({save, saveAs, revert});
    file->addSeparator();
    file->addActions({pageSetup, printPreview, print, exportPdf, exportSvg});
    file->addSeparator();
    file->addActions({close, quit});

    editMenu = window->menuBar()->addMenu(tr("&Edit"));
    editMenu->addActions({undo, redo});
    editMenu->addSeparator();
    editMenu->addActions({cut, copy, paste, duplicate, remove});
    editMenu->addSeparator();
    editMenu->addActions({rotateLeft, rotateRight});
    editMenu->addSeparator();
    editMenu->addActions({selectAll, selectNext, selectPrevious});
    editMenu->addSeparator();
    editMenu->addActions({saveCustomPart, preferences});

    viewMenu = window->menuBar()->addMenu(tr("&View"));
    viewMenu->addActions({zoomIn, zoomOut, zoomNormal, zoomFit});
    viewMenu->addSeparator();
    viewMenu->addActions({openPopup, closePopup});
    viewMenu->addSeparator();

    insertMenu = window->menuBar()->addMenu(tr("&Insert"));
    insertMenu->setObjectName(QStringLiteral("insertMenu"));

    runMenu = window->menuBar()->addMenu(tr("&Run"));
    QMenu* helpMenu = window->menuBar()->addMenu(tr("&Help"));
    helpMenu->addAction(help);
    helpMenu->addSeparator();
    helpMenu->addActions({licence, about});

    partMenu = new QMenu(window);
    partMenu->addActions({cut, copy, paste, duplicate, remove});
    partMenu->addSeparator();
    partMenu->addActions({rotateLeft, rotateRight, openPopup, saveCustomPart});
}

void Actions::makeToolBar(QMainWindow* window)
{
    QToolBar* bar = window->addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setAccessibleName(tr("Tools"));
    bar->addActions({newDocument, open, save});
    bar->addSeparator();
    bar->addActions({undo, redo});
    bar->addSeparator();
    bar->addActions({copy, paste, duplicate, remove});
    bar->addSeparator();
    bar->addAction(rotateRight);
    bar->addSeparator();
    bar->addActions({zoomIn, zoomOut, zoomFit});
}

void Actions::addBadge(QMainWindow* window)
{
    QToolBar* bar = window->addToolBar(tr("Badge"));
    bar->setObjectName(QStringLiteral("badgeBar"));
    bar->setMovable(false);
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    auto* badge = new BrandWidget(bar, "badge");
    badge->setAccessibleName(about->toolTip());
    badge->setToolTip(about->toolTip());
    badge->setFocusPolicy(Qt::TabFocus);
    bar->addWidget(badge);
    QObject::connect(badge, &QAbstractButton::clicked, about, &QAction::trigger);
}
