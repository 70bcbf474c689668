#pragma once

#include <QCoreApplication>
#include <QString>

class QAction;
class QMainWindow;
class QMenu;

/// The actions, menus and tool bar of the main window. Owned by the window, which connects them.
struct Actions
{
    Q_DECLARE_TR_FUNCTIONS(Actions)

public:
    explicit Actions(QMainWindow* window);
    /// A tool bar of its own, to the right of all that are there, with the product's badge; a click shows the about
    /// box.
    void addBadge(QMainWindow* window);

    QAction* newDocument;
    QAction* open;
    QAction* save;
    QAction* saveAs;
    QAction* revert;
    QAction* close;
    QAction* quit;

    QAction* undo;
    QAction* redo;
    QAction* cut;
    QAction* copy;
    QAction* paste;
    QAction* duplicate;
    QAction* remove;
    QAction* selectAll;
    QAction* selectNext;
    QAction* selectPrevious;
    QAction* rotateLeft;
    QAction* rotateRight;

    QAction* zoomIn;
    QAction* zoomOut;
    QAction* zoomNormal;
    QAction* zoomFit;
    QAction* openPopup;
    QAction* closePopup;

    QAction* addScene;
    QAction* removeScene;

    QAction* pageSetup;
    QAction* printPreview;
    QAction* print;
    QAction* exportPdf;
    QAction* exportSvg;
    QAction* saveCustomPart;
    QAction* preferences;
    QAction* help;
    QAction* licence;
    QAction* about;

    QMenu* recentMenu;
    QMenu* editMenu;
    QMenu* viewMenu;
    QMenu* insertMenu;
    QMenu* runMenu;
    QMenu* partMenu; ///< for the right mouse button

private:
    void makeMenus(QMainWindow* window);
    void makeToolBar(QMainWindow* window);
};
