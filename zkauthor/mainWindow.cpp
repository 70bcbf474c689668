#include "zkauthor/mainWindow.h"

#include "zkauthor/aboutBox.h"
#include "zkauthor/actions.h"
#include "zkauthor/documentFiles.h"
#include "zkauthor/flowchartBar.h"
#include "zkauthor/helpWindow.h"
#include "zkauthor/insertMenu.h"
#include "zkauthor/layoutKeeper.h"
#include "zkauthor/notices.h"
#include "zkauthor/palettes.h"
#include "zkauthor/partEditor.h"
#include "zkauthor/partHelp.h"
#include "zkauthor/preferences.h"
#include "zkauthor/printing.h"
#include "zkauthor/recentFiles.h"
#include "zkauthor/reflectMenu.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/view.h"
#include "zkcore/services/crashHandler.h"
#include "zkcore/values/preferredUnits.h"
#include "zkeditor/dialogs/addCustomPart.h"
#include "zkeditor/duplication.h"
#include "zkeditor/license/licenceDialog.h"
#include "zkeditor/license/licenceManager.h"
#include "zkeditor/settingsService.h"
#include "zkeditor/sidePane.h"
#include "zkeditor/widgets/mnemonics.h"
#include "zkeditor/widgets/readablePalette.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <algorithm>

MainWindow::MainWindow(QWidget* parent, std::shared_ptr<DocumentFiles> files)
    : QMainWindow(parent), m_files(files ? std::move(files) : std::make_shared<DocumentFiles>()),
      m_views(new ViewManager(this)), m_editor(new PartEditor(this)), m_tabs(new SpaceTabs(m_views, m_editor)),
      m_palettes(new Palettes(this, m_views)), m_licence(new LicenceManager(this)),
      m_printing(new Printing(this, m_views, m_licence)), m_flowcharts(new FlowchartBar(this)),
      m_actions(std::make_unique<Actions>(this)), m_selectionText(new QLabel), m_pointerText(new QLabel),
      m_zoomText(new QLabel)
{
    setObjectName(QStringLiteral("mainWindow"));
    new ReadablePalette(this);
    setCentralWidget(new Notices(m_files.get(), m_tabs));
    resize(1180, 760);

    for (const auto& [label, name] :
         {std::pair{m_selectionText, tr("Selection")}, std::pair{m_pointerText, tr("Place of the mouse pointer")},
          std::pair{m_zoomText, tr("Zoom")}}) {
        label->setAccessibleDescription(name); // the text is what a screen reader shall read
        label->setToolTip(name);
        statusBar()->addPermanentWidget(label);
    }
    m_pointerText->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000.0, 0000.0 mm")));

    m_files->setWindow(this);
    m_files->recent()->attachTo(m_actions->recentMenu);
    addToolBar(m_flowcharts);
    m_actions->addBadge(this);
    m_palettes->addEntriesTo(m_actions->viewMenu);
    new LayoutKeeper(this);
    // The menu bar and the tabs keep their letters, whatever forms come into the palettes.
    const QString letters = ownLetters();
    mnemonics::reserve(letters);
    for (QDockWidget* palette : findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        mnemonics::remove(palette, letters);
    connectActions();
    setDocument(m_files->document());
}

QString MainWindow::ownLetters() const
{
    QString letters;
    const auto add = [&letters](const QString& text) { letters += QKeySequence::mnemonic(text).toString().right(1); };
    for (const QAction* menu : menuBar()->actions())
        add(menu->text());
    for (const QAbstractButton* button : m_tabs->findChildren<QAbstractButton*>())
        add(button->text());
    return letters;
}

MainWindow::~MainWindow()
{
    // Everything lets go of the document, which may live on.
    m_document->disconnect(this);
    m_flowcharts->setDocument(nullptr);
    m_palettes->close();
    m_tabs->setDocument(nullptr);
    m_editor->setDocument(nullptr);
}

void MainWindow::connectActions()
{
    const auto on = [this](QAction* action, auto function) { connect(action, &QAction::triggered, this, function); };
    DocumentFiles* files = m_files.get();
    on(m_actions->newDocument, [files] { files->newDocument(); });
    on(m_actions->open, [files] { files->open(); });
    on(m_actions->save, [files] { files->save(); });
    on(m_actions->saveAs, [files] { files->saveAs(); });
    on(m_actions->revert, [files] { files->revert(); });
    on(m_actions->close, [files] { files->newDocument(); });
    on(m_actions->quit, &MainWindow::close);

    on(m_actions->undo, &MainWindow::undo);
    on(m_actions->redo, &MainWindow::redo);
    on(m_actions->cut, [this] {
        edit([this](SpaceImpl* space) { return m_editor->copySelection(space) && m_editor->deleteSelection(); });
    });
    on(m_actions->copy, [this] { edit([this](SpaceImpl* space) { return m_editor->copySelection(space); }); });
    on(m_actions->paste, [this] { edit([this](SpaceImpl* space) { return m_editor->paste(space); }); });
    on(m_actions->duplicate,
       [this] { edit([this](SpaceImpl* space) { return m_editor->duplicateSelection(space); }); });
    on(m_actions->remove, [this] { edit([this](SpaceImpl*) { return m_editor->deleteSelection(); }); });
    on(m_actions->rotateLeft,
       [this] { edit([this](SpaceImpl* space) { return m_editor->rotateSelection(space, -1); }); });
    on(m_actions->rotateRight,
       [this] { edit([this](SpaceImpl* space) { return m_editor->rotateSelection(space, 1); }); });

    const auto onView = [this](QAction* action, auto function) {
        connect(action, &QAction::triggered, this, [this, function] {
            m_palettes->commitPendingEdit();
            if (SceneView* view = m_tabs->currentView())
                function(view);
        });
    };
    m_actions->runMenu->addAction(m_flowcharts->runAction());
    on(m_actions->pageSetup, [this] { m_printing->pageSetup(); });
    const auto onPaper = [this, on](QAction* action, auto function) {
        on(action, [this, function] {
            m_palettes->commitPendingEdit();
            function(*m_printing);
        });
    };
    onPaper(m_actions->printPreview, [](Printing& printing) { printing.preview(); });
    onPaper(m_actions->print, [](Printing& printing) { printing.print(); });
    onPaper(m_actions->exportPdf, [](Printing& printing) { printing.exportPdf(); });
    onPaper(m_actions->exportSvg, [](Printing& printing) { printing.exportSvg(); });
    on(m_actions->saveCustomPart, &MainWindow::saveCustomPart);
    on(m_actions->licence, &MainWindow::showLicence);
    on(m_actions->help, [this] { showHelp(this, QStringLiteral("help")); });
    on(m_actions->preferences, &MainWindow::editPreferences);

    onView(m_actions->selectAll, [](SceneView* view) { view->selectAllParts(); });
    onView(m_actions->selectNext, [](SceneView* view) { view->selectNext(false); });
    onView(m_actions->selectPrevious, [](SceneView* view) { view->selectNext(true); });
    onView(m_actions->zoomIn, [](SceneView* view) { view->zoomIn(); });
    onView(m_actions->zoomOut, [](SceneView* view) { view->zoomOut(); });
    onView(m_actions->zoomNormal, [](SceneView* view) { view->setZoom(1); });
    onView(m_actions->zoomFit, [](SceneView* view) { view->zoomToFit(); });
    on(m_actions->openPopup, &MainWindow::openPopup);
    on(m_actions->closePopup, [this] {
        m_palettes->commitPendingEdit();
        m_tabs->closeCurrentPopup();
    });
    on(m_actions->addScene, &MainWindow::addScene);
    on(m_actions->removeScene, &MainWindow::removeScene);
    on(m_actions->about, &MainWindow::about);

    // Delete pressed in a check box of the forms must not delete the part.
    m_actions->remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_tabs->addAction(m_actions->remove);

    const auto note = [this](const QString& text) { statusBar()->showMessage(text, 6000); };
    connect(files, &DocumentFiles::documentReplaced, this, &MainWindow::setDocument);
    connect(files, &DocumentFiles::pendingEditWanted, m_palettes, &Palettes::commitPendingEdit);
    connect(files, &DocumentFiles::recoveredChanged, this, &MainWindow::updateTitle);
    connect(files, &DocumentFiles::noticed, this, note);
    connect(files, &DocumentFiles::failed, this, &MainWindow::showError);
    connect(m_printing, &Printing::done, this, note);
    connect(m_printing, &Printing::failed, this, &MainWindow::showError);
    connect(m_licence, &LicenceManager::statusChanged, this, &MainWindow::updateTitle);
    connect(m_flowcharts, &FlowchartBar::noticed, this, note);
    connect(m_flowcharts, &FlowchartBar::spaceRequested, this, &MainWindow::showNode);
    connect(m_flowcharts, &FlowchartBar::runningChanged, m_tabs, &SpaceTabs::setReaderMode);
    connect(m_tabs, &SpaceTabs::partPressed, m_flowcharts, &FlowchartBar::pressPart);
    connect(m_tabs, &SpaceTabs::readerKey, m_flowcharts, &FlowchartBar::pressKey);
    connect(m_tabs, &SpaceTabs::partRestedOn, m_flowcharts, [this](PartImpl* part) { m_flowcharts->restOn(*part); });
    connect(m_tabs, &SpaceTabs::popupClosed, m_flowcharts,
            [this](PopupImpl* popup) { m_flowcharts->leavePopup(*popup); });
    connect(m_palettes, &Palettes::partChosen, this, &MainWindow::addPart);
    connect(m_palettes, &Palettes::documentChosen, files, &DocumentFiles::openRecent);
    connect(m_palettes, &Palettes::shortcutClicked, this, &MainWindow::onShortcut);
    connect(m_palettes, &Palettes::nodeRequested, this, &MainWindow::showNode);
    connect(m_palettes, &Palettes::failed, this,
            [this](const QString& reason) { showError(tr("That could not be done."), reason); });
    connect(files->recent(), &RecentFiles::chosen, this, [files](const QString& file) { files->openRecent(file); });
    connect(m_editor, &PartEditor::failed, this,
            [this](const QString& reason) { showError(tr("That could not be done."), reason); });
    connect(m_tabs, &SpaceTabs::currentSpaceChanged, this, &MainWindow::onCurrentSpaceChanged);
    connect(m_tabs, &SpaceTabs::pointerMoved, this, &MainWindow::showPointer);
    connect(m_tabs, &SpaceTabs::pointerLeft, m_pointerText, &QLabel::clear);
    connect(m_tabs, &SpaceTabs::zoomChanged, this,
            [this](double zoom) { m_zoomText->setText(tr("%1 %").arg(QLocale().toString(qRound(zoom * 100)))); });
    connect(m_tabs, &SpaceTabs::menuRequested, this,
            [this](const QPoint& place) { m_actions->partMenu->popup(place); });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &MainWindow::updateActions);
    connect(m_actions->insertMenu, &QMenu::aboutToShow, this, &MainWindow::fillInsertMenu);
}

template <typename Function> void MainWindow::edit(Function function)
{
    m_palettes->commitPendingEdit();
    if (SpaceImpl* space = m_tabs->currentSpace())
        function(space);
}

void MainWindow::setDocument(DocumentImpl* document)
{
    if (m_document)
        m_document->disconnect(this);
    m_flowcharts->setDocument(nullptr);
    m_tabs->setDocument(nullptr);

    m_document = document;
    applyPreferences(); // before anything is shown in the units that they name
    connect(document, &DocumentImpl::modifiedChanged, this, &MainWindow::updateTitle);
    connect(document, &DocumentImpl::saved, this, &MainWindow::updateTitle);
    connect(document, &DocumentImpl::Loaded, this, &MainWindow::updateTitle);
    connect(document, &DocumentImpl::undoStateChanged, this, &MainWindow::updateUndoActions);
    connect(document, &DocumentImpl::SelectionChanged, this, &MainWindow::updateActions);
    m_editor->setDocument(document);
    m_palettes->setDocument(document);
    m_printing->setDocument(document);
    m_flowcharts->setDocument(document);
    {
        // The first tab comes up first, which is no reason to let go of what is selected in another one.
        const QScopedValueRollback<bool> showing(m_showingSelection, true);
        m_tabs->setDocument(document);
    }
    updateTitle();
    updateUndoActions();
    updateActions();
}

QString MainWindow::fileName() const
{
    return m_files->fileName();
}

void MainWindow::updateTitle()
{
    const QString file = fileName();
    const QString name =
        m_files->isRecovered() ? tr("%1 (recovered)").arg(m_files->displayName()) : m_files->displayName();
    const QString licence = m_licence->captionText();
    setWindowTitle(licence.isEmpty() ? QStringLiteral("%1[*] - zkauthor").arg(name)
                                     : QStringLiteral("%1[*] - zkauthor (%2)").arg(name, licence));
    CrashHandler::setOpenDocument(file);
    setWindowModified(m_document->isModified());
    m_actions->revert->setEnabled(!file.isEmpty() && m_document->isModified());
}

void MainWindow::updateUndoActions()
{
    m_actions->undo->setEnabled(m_document->canUndo());
    m_actions->redo->setEnabled(m_document->canRedo());
    const auto text = [](QString step) { return step.replace(QLatin1Char('&'), QLatin1String("&&")); };
    m_actions->undo->setText(m_document->canUndo() ? tr("&Undo %1").arg(text(m_document->undoText())) : tr("&Undo"));
    m_actions->redo->setText(m_document->canRedo() ? tr("&Redo %1").arg(text(m_document->redoText())) : tr("&Redo"));
}

void MainWindow::updateActions()
{
    const ElementImplSet selection = m_document->getSelection();
    const bool any = !selection.empty();
    for (QAction* action : {m_actions->cut, m_actions->copy, m_actions->duplicate, m_actions->remove,
                            m_actions->rotateLeft, m_actions->rotateRight})
        action->setEnabled(any);
    m_actions->paste->setEnabled(m_editor->canPaste());
    const auto* part = selection.size() == 1 ? qobject_cast<PartImpl*>(*selection.begin()) : nullptr;
    m_actions->openPopup->setEnabled(part && part->popup());
    m_actions->saveCustomPart->setEnabled(part && !isConnection(*part));
    const SpaceImpl* space = m_tabs->currentSpace();
    m_actions->closePopup->setEnabled(space && space->kind() == NodeKind::Popup);
    m_actions->removeScene->setEnabled(space && space->kind() == NodeKind::Scene &&
                                       m_document->getModel()->childCount() > 1);
    updateSelectionText();
}

void MainWindow::updateSelectionText()
{
    const size_t count = m_document->getSelection().size();
    m_selectionText->setText(count == 0 ? tr("Nothing selected")
                                        : tr("%Ln selected", nullptr, static_cast<int>(count)));
    // What people hear who cannot see which part is framed.
    if (SceneView* view = m_tabs->currentView())
        view->setAccessibleDescription(
            count == 1 ? tr("Selected: %1").arg((*m_document->getSelection().begin())->displayName())
                       : m_selectionText->text());
}

void MainWindow::showPointer(const QPointF& place)
{
    const QLocale locale;
    m_pointerText->setText(tr("%1, %2 mm").arg(locale.toString(place.x(), 'f', 1), locale.toString(place.y(), 'f', 1)));
}

void MainWindow::onCurrentSpaceChanged()
{
    // What is selected must be in sight, or the next command would change what nobody looks at.
    SpaceImpl* space = m_tabs->currentSpace();
    const ElementImplSet selection = m_document->getSelection();
    const bool elsewhere = !selection.empty() && (*selection.begin())->space() != space;
    if (elsewhere && !m_document->isUndoRedoActive() && !m_showingSelection)
        m_document->setSelection({});
    m_flowcharts->setSpace(space);
    updateActions();
}

void MainWindow::saveCustomPart()
{
    m_palettes->commitPendingEdit();
    const ElementImplSet selection = m_document->getSelection();
    auto* part = selection.size() == 1 ? qobject_cast<PartImpl*>(*selection.begin()) : nullptr;
    if (!part)
        return;
    AddCustomPartDialog dialog(part, m_document, this, "addCustomPart", true);
    connect(&dialog, &AddCustomPartDialog::partAddedToNodeDb, m_palettes->sidePane(), &SidePane::rebuildPartsTree);
    dialog.exec();
}

void MainWindow::fillInsertMenu()
{
    QMenu* menu = m_actions->insertMenu;
    ::fillInsertMenu(menu, *m_document, m_editor->canConnect(m_tabs->currentSpace()),
                     [this](ClassId cid) { addPart(cid); });
    menu->addSeparator();
    menu->addActions({m_actions->addScene, m_actions->removeScene});
}

void MainWindow::addPart(unsigned int cid)
{
    edit([this, cid](SpaceImpl* space) {
        SceneView* view = m_tabs->currentView();
        view->setFocus();
        return m_editor->addPart(space, cid, view->visibleCentre());
    });
}

void MainWindow::addScene()
{
    m_palettes->commitPendingEdit();
    const Value scene = m_document->executeCommand(new AddSceneCommand(Model(m_document->getModel())));
    if (auto* added = qobject_cast<SpaceImpl*>(scene.toNode().impl()))
        m_tabs->showSpace(added);
    else
        showError(tr("That could not be done."), m_document->lastError());
}

void MainWindow::removeScene()
{
    m_palettes->commitPendingEdit();
    SpaceImpl* space = m_tabs->currentSpace();
    if (!space || space->kind() != NodeKind::Scene)
        return;
    if (!m_document->executeCommand(new DeleteNodeCommand(Node(space), Command::PushUndo)).isValid())
        showError(tr("That could not be done."), m_document->lastError());
}

void MainWindow::openPopup()
{
    const ElementImplSet selection = m_document->getSelection();
    const auto* part = selection.size() == 1 ? qobject_cast<PartImpl*>(*selection.begin()) : nullptr;
    if (part && part->popup())
        m_tabs->showSpace(part->popup());
}

void MainWindow::showNode(const Node& node)
{
    if (!node.valid())
        return;
    if (SpaceImpl* space = node.impl()->space())
        m_tabs->showSpace(space);
}

void MainWindow::onShortcut(ShortcutButton::Type type)
{
    switch (type) {
    case ShortcutButton::Delete:
        m_actions->remove->trigger();
        break;
    case ShortcutButton::Duplicate:
        m_actions->duplicate->trigger();
        break;
    case ShortcutButton::Lock:
        toggleLock();
        break;
    case ShortcutButton::Reflect:
        showReflectMenu();
        break;
    case ShortcutButton::ShowPopup:
        m_actions->openPopup->trigger();
        break;
    case ShortcutButton::Help:
        showPartHelp(this, *m_document);
        break;
    }
}

void MainWindow::toggleLock()
{
    m_palettes->commitPendingEdit();
    const ElementImplSet selection = m_document->getSelection();
    const bool locked = std::all_of(selection.begin(), selection.end(),
                                    [](ElementImpl* element) { return element->isLocked(LockPropertyValues); });
    const std::vector<Node> nodes(selection.begin(), selection.end());
    if (!m_document->executeCommand(new SetUILockedCommand(nodes, LockPropertyValues, !locked)).isValid())
        showError(tr("That could not be done."), m_document->lastError());
}

void MainWindow::showReflectMenu()
{
    m_palettes->commitPendingEdit();
    std::vector<PartImpl*> parts;
    for (ElementImpl* element : m_document->getSelection()) {
        if (auto* part = qobject_cast<PartImpl*>(element))
            parts.push_back(part);
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillReflectMenu(menu, m_document, parts,
                    [this](const QString& reason) { showError(tr("That could not be done."), reason); });
    menu->popup(m_palettes->placeBelow(ShortcutButton::Reflect));
}

void MainWindow::undo()
{
    m_palettes->commitPendingEdit();
    m_document->undo();
    showSelection();
}

void MainWindow::redo()
{
    m_palettes->commitPendingEdit();
    m_document->redo();
    showSelection();
}

void MainWindow::showSelection()
{
    const ElementImplSet selection = m_document->getSelection();
    SpaceImpl* space = selection.empty() ? nullptr : (*selection.begin())->space();
    if (!space || space == m_tabs->currentSpace())
        return;
    const QScopedValueRollback<bool> showing(m_showingSelection, true);
    m_tabs->showSpace(space);
}

void MainWindow::showTabsLike(const MainWindow& other)
{
    const QScopedValueRollback<bool> showing(m_showingSelection, true);
    m_tabs->showLike(*other.m_tabs);
}

bool MainWindow::openFile(const QString& fileName, QString& error)
{
    return m_files->openFile(fileName, error);
}

bool MainWindow::openStartDocument(const QString& fileName, QString& error)
{
    return m_files->openStartDocument(fileName, error);
}

bool MainWindow::selectParts(const QStringList& ids, QString& error)
{
    ElementImplSet elements;
    for (const QString& id : ids) {
        auto* element = qobject_cast<ElementImpl*>(m_document->nodeWithId(id));
        bool number = false;
        const InstanceId instance = id.toUInt(&number);
        if (!element && number)
            element = qobject_cast<ElementImpl*>(m_document->nodeById(instance));
        if (!element) {
            error = tr("There is no part with the id \"%1\".").arg(id);
            return false;
        }
        elements.insert(element);
    }
    m_document->setSelection(elements);
    showSelection();
    return true;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_files->mayDiscard()) {
        event->ignore();
        return;
    }
    m_files->forget();
    if (SettingsService::exists())
        SettingsService::instance()->write();
    event->accept();
}

void MainWindow::showError(const QString& text, const QString& reason)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("zkauthor"), text, QMessageBox::Ok, this);
    box.setInformativeText(reason);
    box.exec();
}

void MainWindow::about()
{
    showAboutBox(this, *m_licence);
}

void MainWindow::showLicence()
{
    LicenceDialog dialog(m_licence, this);
    connect(&dialog, &LicenceDialog::helpRequested, this, [&dialog] { showHelp(&dialog, QStringLiteral("licences")); });
    dialog.exec();
}

void MainWindow::editPreferences()
{
    m_palettes->commitPendingEdit();
    const QString language = Preferences::read().language;
    // They are other ones after applyPreferences().
    const std::vector<Unit> unitsBefore = preferredUnits(); // NOLINT(performance-unnecessary-copy-initialization)
    const std::optional<Preferences> chosen = Preferences::edit(this);
    if (!chosen)
        return;
    applyPreferences();
    if (preferredUnits() != unitsBefore)
        m_document->followPreferredUnits(unitsBefore);
    if (chosen->language != language)
        Q_EMIT languageChosen(chosen->language);
}

void MainWindow::applyPreferences()
{
    const Preferences preferences = Preferences::read();
    preferences.apply();
    m_document->setUndoLimit(preferences.undoLimit);
}

void MainWindow::followSettings()
{
    applyPreferences();
    m_licence->refresh();
}
