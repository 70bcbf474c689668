#include "zkauthor/palettes.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/modelImpl.h"
#include "zkeditor/advancedPalette.h"
#include "zkeditor/assocPalette.h"
#include "zkeditor/debugPalette.h"
#include "zkeditor/formGate.h"
#include "zkeditor/inspector.h"
#include "zkeditor/lockPalette.h"
#include "zkeditor/modelsBrowser.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/sidePane.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMainWindow>
#include <QMenu>

Palettes::Palettes(QMainWindow* window, ViewManager* views)
    : QObject(window), m_window(window), m_sidePane(new SidePane(SidePane::AllPanes, window, "sidePane")),
      m_locks(new LockPalette(window, "lockPalette")), m_associations(new AssocPalette(window)),
      m_advanced(new AdvancedPalette(window)),
      m_debug(new DebugPalette(window)), m_all{m_sidePane, m_locks, m_associations, m_advanced, m_debug}
{
    FormGate::instance().setClosed(true); // before the first pane shows anything
    m_sidePane->setWindowTitle(tr("Side Pane"));
    for (EditPalette* palette : m_all) {
        window->addDockWidget(Qt::RightDockWidgetArea, palette);
        palette->setVisible(palette == m_sidePane);
    }
    window->resizeDocks({m_sidePane}, {330}, Qt::Horizontal);

    m_sidePane->setViewManager(views);
    connect(m_sidePane, &SidePane::partChosen, this, &Palettes::partChosen);
    connect(m_sidePane->getModelsBrowser(), &ModelsBrowser::documentChosen, this, &Palettes::documentChosen);
    connect(properties(), &PropPalette::shortcutClicked, this, &Palettes::shortcutClicked);
    connect(m_associations, &AssocPalette::nodeRequested, this, &Palettes::nodeRequested);
    connect(m_associations, &AssocPalette::failed, this, &Palettes::failed);
    connect(m_advanced, &AdvancedPalette::failed, this, &Palettes::failed);
}

PropPalette* Palettes::properties() const
{
    return m_sidePane->getPropertyPane();
}

void Palettes::addEntriesTo(QMenu* menu)
{
    const char* const keys[] = {"F4", "Shift+F4", "F6", "Shift+F6", "F12"};
    for (size_t i = 0; i < m_all.size(); ++i) {
        QAction* action = m_all[i]->toggleViewAction();
        action->setShortcut(QKeySequence(QLatin1String(keys[i])));
        menu->addAction(action);
    }
    QAction* inspector = menu->addAction(tr("I&nspector..."));
    inspector->setObjectName(QStringLiteral("inspector"));
    inspector->setShortcut(QKeySequence(QStringLiteral("Shift+F12")));
    inspector->setStatusTip(tr("Show the tree of everything in the document"));
    connect(inspector, &QAction::triggered, this, [this] { showInspector(); });
}

void Palettes::setDocument(DocumentImpl* document)
{
    m_document = document;
    for (EditPalette* palette : m_all)
        palette->setDocument(document);
    if (m_inspector)
        m_inspector->setRootElement(Node(document->getModel()));
}

void Palettes::close()
{
    delete m_inspector;
    for (EditPalette* palette : m_all)
        delete palette;
    m_all.clear();
    m_sidePane = nullptr;
}

void Palettes::commitPendingEdit()
{
    const QPointer<QWidget> focus = QApplication::focusWidget();
    if (!focus)
        return;
    for (const EditPalette* palette : m_all) {
        if (!palette->isAncestorOf(focus))
            continue;
        focus->clearFocus();
        if (focus && focus->isVisible() && focus->isEnabled())
            focus->setFocus();
        return;
    }
}

QPoint Palettes::placeBelow(ShortcutButton::Type type) const
{
    for (const ShortcutButton* button : properties()->findChildren<ShortcutButton*>()) {
        if (button->type() == type && button->isVisible())
            return button->mapToGlobal(QPoint(0, button->height()));
    }
    return QCursor::pos();
}

QRect Palettes::inspectorGeometry() const
{
    return m_inspector && m_inspector->isVisible() ? m_inspector->geometry() : QRect();
}

void Palettes::showInspector(const QRect& geometry)
{
    if (!m_inspector) {
        m_inspector = new Inspector(m_window);
        if (m_document)
            m_inspector->setRootElement(Node(m_document->getModel()));
    }
    if (geometry.isValid())
        m_inspector->setGeometry(geometry);
    m_inspector->show();
    m_inspector->raise();
    m_inspector->activateWindow();
}
