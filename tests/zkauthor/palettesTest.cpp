// The palettes and the inspector beside the document of the main window.
#include "zkauthor/palettes.h"

#include "tests/support/testDocument.h"
#include "windowTest.h"
#include "zkauthor/layoutKeeper.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceTabs.h"
#include "zkeditor/advancedPalette.h"
#include "zkeditor/assocPalette.h"
#include "zkeditor/debugPalette.h"
#include "zkeditor/inspector.h"
#include "zkeditor/lockPalette.h"
#include "zkeditor/modelsBrowser.h"
#include "zkeditor/partsTree.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/settingsService.h"
#include "zkeditor/sidePane.h"
#include "zkeditor/widgets/paletteBox.h"
#include "zkeditor/widgets/plusMinusButton.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTest>
#include <QTextBrowser>
#include <QTreeView>
#include <QTreeWidget>

namespace {

class PalettesTest : public WindowTest
{
protected:
    std::vector<EditPalette*> all()
    {
        return {m_window->palettes()->sidePane(), m_window->findChild<LockPalette*>(),
                m_window->findChild<AssocPalette*>(), m_window->findChild<AdvancedPalette*>(),
                m_window->findChild<DebugPalette*>()};
    }

    static QString told(QWidget* widget)
    {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    }

    /// The button of the palette's title bar.
    static void clickTitle(EditPalette* palette, const char* button)
    {
        auto* found = palette->findChild<QAbstractButton*>(QLatin1String(button), Qt::FindDirectChildrenOnly);
        ASSERT_TRUE(found);
        QTest::mouseClick(found, Qt::LeftButton);
        QApplication::processEvents();
    }

    /// Whether Tab, pressed again and again, comes from the widget with the focus to one inside `target`.
    static bool tabReaches(const QWidget* target)
    {
        QSet<QWidget*> seen;
        while (QWidget* focus = QApplication::focusWidget()) {
            if (target->isAncestorOf(focus))
                return true;
            if (seen.contains(focus))
                return false;
            seen.insert(focus);
            QTest::keyClick(focus, Qt::Key_Tab);
        }
        return false;
    }

    ShortcutButton* shortcut(ShortcutButton::Type type)
    {
        for (ShortcutButton* found : properties()->findChildren<ShortcutButton*>()) {
            if (found->type() == type && found->isVisible())
                return found;
        }
        return nullptr;
    }
    void clickShortcut(ShortcutButton::Type type)
    {
        ShortcutButton* button = shortcut(type);
        ASSERT_TRUE(button);
        ASSERT_TRUE(button->isEnabled());
        QTest::mouseClick(button, Qt::LeftButton);
    }

    /// Types into the field without entering it.
    static void type(QLineEdit* field, const char* text)
    {
        ASSERT_TRUE(field);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
    }
    QLineEdit* idField()
    {
        for (QLineEdit* found : properties()->findChildren<QLineEdit*>(QStringLiteral("topAreaId"))) {
            if (found->isVisible())
                return found;
        }
        return nullptr;
    }
};

} // namespace

TEST_F(PalettesTest, OpenAndCloseFromTheViewMenuByTheirKeys)
{
    QMenu* view = nullptr;
    for (const QAction* entry : m_window->menuBar()->actions()) {
        if (entry->text() == QLatin1String("&View"))
            view = entry->menu();
    }
    ASSERT_TRUE(view);
    const std::pair<Qt::Key, Qt::KeyboardModifiers> shortcuts[] = {{Qt::Key_F4, Qt::NoModifier},
                                                                   {Qt::Key_F4, Qt::ShiftModifier},
                                                                   {Qt::Key_F6, Qt::NoModifier},
                                                                   {Qt::Key_F6, Qt::ShiftModifier},
                                                                   {Qt::Key_F12, Qt::NoModifier}};
    const std::vector<EditPalette*> palettes = all();
    clickPart("lamp1");
    for (size_t i = 0; i < palettes.size(); ++i) {
        EditPalette* palette = palettes[i];
        ASSERT_TRUE(palette) << i;
        SCOPED_TRACE(palette->objectName().toStdString());
        const bool shown = palette->isVisible();
        EXPECT_EQ(shown, i == 0);
        EXPECT_TRUE(view->actions().contains(palette->toggleViewAction()));
        EXPECT_FALSE(told(palette).isEmpty());
        keys(shortcuts[i].first, shortcuts[i].second);
        EXPECT_EQ(palette->isVisible(), !shown);
        palette->toggleViewAction()->trigger();
        EXPECT_EQ(palette->isVisible(), shown);
        palette->show();
        clickTitle(palette, "qt_dockwidget_closebutton");
        EXPECT_FALSE(palette->isVisible());
        EXPECT_FALSE(palette->toggleViewAction()->isChecked());
    }
    EXPECT_EQ(selectedIds(), QStringList{"lamp1"});
}

TEST_F(PalettesTest, FloatDockBackAndKeepTheirLayout)
{
    clickPart("lamp1");
    m_window->resize(1400, 1000);
    for (EditPalette* palette : all()) {
        SCOPED_TRACE(palette->objectName().toStdString());
        palette->show();
        EXPECT_FALSE(palette->isFloating());
        clickTitle(palette, "qt_dockwidget_floatbutton");
        EXPECT_TRUE(palette->isFloating());
        EXPECT_TRUE(palette->isVisible());
        EXPECT_GE(palette->width(), int(EditPalette::s_minWidth));
        clickTitle(palette, "qt_dockwidget_floatbutton");
        EXPECT_FALSE(palette->isFloating());
    }
    EXPECT_EQ(properties()->windowTitle(), "LED Properties");

    // A layout that is kept comes back, whatever happened in between.
    EditPalette* side = all()[0];
    EditPalette* locks = all()[1];
    EditPalette* debug = all()[4];
    m_window->addDockWidget(Qt::LeftDockWidgetArea, locks);
    side->setFloating(true);
    debug->close();
    const QByteArray kept = m_window->saveState();
    m_window->addDockWidget(Qt::RightDockWidgetArea, locks);
    side->setFloating(false);
    debug->show();
    locks->close();
    ASSERT_TRUE(m_window->restoreState(kept));
    EXPECT_EQ(m_window->dockWidgetArea(locks), Qt::LeftDockWidgetArea);
    EXPECT_TRUE(locks->isVisible());
    EXPECT_TRUE(side->isFloating());
    EXPECT_FALSE(debug->isVisible());

    // A floating palette goes on following the selection, and what it does is undone by the window's key.
    clickPart("lamp2");
    side->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(side));
    type(idField(), "beacon");
    keys(Qt::Key_Return);
    EXPECT_TRUE(part("beacon"));
    side->setFocus();
    QTest::keyClick(side, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(part("lamp2"));
}

TEST_F(PalettesTest, AreReachedByTabAndLeftAgain)
{
    clickPart("lamp1");
    m_window->resize(1400, 1000);
    for (EditPalette* palette : all())
        palette->show();
    QApplication::processEvents();
    for (EditPalette* palette : all()) {
        SCOPED_TRACE(palette->objectName().toStdString());
        view().setFocus();
        EXPECT_TRUE(tabReaches(palette));
        EXPECT_TRUE(tabReaches(&view()));
        palette->close(); // or a long one keeps those after it from being seen
    }
    // Nothing that takes the focus is without a name, or one could not tell what it is.
    for (EditPalette* palette : all()) {
        palette->show();
        for (QWidget* widget : palette->findChildren<QWidget*>()) {
            if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
                continue;
            EXPECT_FALSE(told(widget).isEmpty())
                << palette->objectName().toStdString() << ": " << widget->metaObject()->className() << ' '
                << widget->objectName().toStdString();
        }
    }
}

TEST_F(PalettesTest, UndoSaveAndSelectionEnterWhatIsBeingTyped)
{
    const auto ends = [this](int way) {
        if (way == 0)
            trigger("save");
        else if (way == 1)
            clickPart("lamp2");
        else
            document().setSelection({});
    };
    for (int way = 0; way < 3; ++way) {
        SCOPED_TRACE(way);
        clickPart("lamp1");
        type(idField(), "beacon");
        EXPECT_TRUE(part("lamp1"));
        ends(way);
        EXPECT_FALSE(part("lamp1"));
        EXPECT_TRUE(part("beacon"));
        document().undo();
        EXPECT_TRUE(part("lamp1"));
    }
    // Undo takes back what has just been typed, not the step before it.
    clickPart("lamp1");
    QTest::keyClick(&view(), Qt::Key_Right);
    const zk::Point moved = part("lamp1")->position();
    type(idField(), "beacon");
    trigger("undo");
    EXPECT_EQ(part("lamp1")->position(), moved);
    EXPECT_FALSE(part("beacon"));
    EXPECT_EQ(idField()->text(), "lamp1");
    trigger("redo");
    EXPECT_TRUE(part("beacon"));
}

TEST_F(PalettesTest, PartsTreeAddsToTheSceneOnView)
{
    SpaceImpl* first = m_window->spaceTabs()->currentSpace();
    const unsigned int count = first->childCount();
    trigger("add-scene");
    SpaceImpl* second = m_window->spaceTabs()->currentSpace();
    ASSERT_NE(first, second);

    const PartsTree* tree = m_window->palettes()->sidePane()->getPartsTree();
    auto* field = tree->findChild<QLineEdit*>();
    auto* rows = tree->findChild<QTreeView*>();
    ASSERT_TRUE(field && rows);
    type(field, "buzzer");
    keys(Qt::Key_Return);
    ASSERT_EQ(second->childCount(), 1u);
    EXPECT_EQ(findStringForCid(second->getChildAt(0)->classId()), "electronics/buzzer");
    EXPECT_EQ(document().getSelection(), ElementImplSet{qobject_cast<ElementImpl*>(second->getChildAt(0))});

    type(field, "battery");
    keys(Qt::Key_Down);
    ASSERT_TRUE(rows->currentIndex().parent().isValid());
    keys(Qt::Key_Return);
    EXPECT_EQ(second->childCount(), 2u);
    const QPoint place = rows->visualRect(rows->currentIndex()).center();
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(second->childCount(), 2u);
    QTest::mouseDClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(second->childCount(), 3u);
    EXPECT_EQ(first->childCount(), count);
    // A wire is nothing without its ends.
    document().setSelection({});
    type(field, "electronics/wire");
    answer(QMessageBox::Ok);
    keys(Qt::Key_Return);
    EXPECT_EQ(boxText(), "That could not be done.\nSelect the two parts that it shall connect first.");
    EXPECT_EQ(second->childCount(), 3u);
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    document().setSelection(
        {qobject_cast<ElementImpl*>(second->getChildAt(0)), qobject_cast<ElementImpl*>(second->getChildAt(1))});
    type(field, "electronics/wire");
    keys(Qt::Key_Return);
    ASSERT_EQ(second->childCount(), 4u);
    EXPECT_TRUE(second->getChildAt(3)->valueOfProperty(PropertyKey::fromString("from")).toNode().valid());
    type(field, "battery");
    const QModelIndex row = rows->currentIndex();
    // A group is opened and closed, not added.
    const QModelIndex group = row.parent();
    const bool open = rows->isExpanded(group);
    rows->scrollTo(group);
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier, rows->visualRect(group).center());
    QTest::mouseDClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier, rows->visualRect(group).center());
    EXPECT_NE(rows->isExpanded(group), open);
    EXPECT_EQ(second->childCount(), 4u);
    EXPECT_EQ(undoSteps(), 5);
}

TEST_F(PalettesTest, ShortcutButtonsDoWhatTheySay)
{
    SceneImpl* scene = firstScene(document());
    const unsigned int count = scene->childCount();
    clickPart("lamp1");
    clickShortcut(ShortcutButton::Lock);
    EXPECT_TRUE(part("lamp1")->isLocked(LockPropertyValues));
    EXPECT_TRUE(QTest::qWaitFor([this] { return shortcut(ShortcutButton::Lock)->isChecked(); }));
    // One of two is locked: the button locks the other one first.
    clickPart("lamp2", Qt::ShiftModifier);
    QApplication::processEvents();
    EXPECT_FALSE(shortcut(ShortcutButton::Lock)->isChecked());
    clickShortcut(ShortcutButton::Lock);
    EXPECT_TRUE(part("lamp1")->isLocked(LockPropertyValues));
    EXPECT_TRUE(part("lamp2")->isLocked(LockPropertyValues));
    QApplication::processEvents();
    clickShortcut(ShortcutButton::Lock);
    EXPECT_FALSE(part("lamp1")->isLocked(LockPropertyValues));
    EXPECT_FALSE(part("lamp2")->isLocked(LockPropertyValues));
    EXPECT_EQ(undoSteps(), 3);

    clickShortcut(ShortcutButton::Duplicate);
    EXPECT_EQ(scene->childCount(), count + 2);
    EXPECT_EQ(document().getSelection().size(), 2u);
    QApplication::processEvents();
    clickShortcut(ShortcutButton::Delete);
    EXPECT_EQ(scene->childCount(), count);
    EXPECT_EQ(undoSteps(), 5);

    clickPart("lamp1");
    clickShortcut(ShortcutButton::Help);
    auto* help = m_window->findChild<QDialog*>(QStringLiteral("partHelp"));
    ASSERT_TRUE(help && help->isVisible());
    EXPECT_EQ(help->windowTitle(), "About LED");
    EXPECT_TRUE(help->findChild<QTextBrowser*>()->toPlainText().contains(QLatin1String("Group: Outputs")));
    QTest::keyClick(help, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->findChild<QDialog*>(QStringLiteral("partHelp")); }));
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));

    EXPECT_FALSE(shortcut(ShortcutButton::ShowPopup)->isEnabled());
    const PartImpl* info = addPart(document(), "core/info", {0.02, 0.09});
    document().setSelection({const_cast<PartImpl*>(info)});
    QApplication::processEvents();
    clickShortcut(ShortcutButton::ShowPopup);
    EXPECT_EQ(m_window->spaceTabs()->currentSpace(), info->popup());
}

TEST_F(PalettesTest, ReflectButtonOffersEveryPlace)
{
    m_window->setGeometry(0, 0, 780, 700); // or the menu would have to move away from the edge of the screen
    SceneImpl* scene = firstScene(document());
    addPart(document(), "core/info", {0.02, 0.09});
    const unsigned int count = scene->childCount();
    const auto open = [this] {
        QApplication::processEvents();
        clickShortcut(ShortcutButton::Reflect);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    const auto body = [](const QMenu* menu) -> QAction* {
        for (const QAction* kind : menu->actions()) {
            if (kind->text() == QLatin1String("&Body"))
                return kind->menu()->actions().first();
        }
        return nullptr;
    };
    for (const bool both : {false, true}) {
        SCOPED_TRACE(both);
        const int steps = undoSteps();
        document().setSelection({part("lamp1")});
        if (both)
            document().setSelection({part("lamp1"), part("lamp2")});
        QMenu* menu = open();
        ASSERT_TRUE(menu);
        const QRect button(shortcut(ShortcutButton::Reflect)->mapToGlobal(QPoint()),
                           shortcut(ShortcutButton::Reflect)->size());
        EXPECT_TRUE(button.adjusted(-1, -1, 1, 1).contains(menu->geometry().topLeft())); // also when a key opened it
        QAction* there = body(menu);
        ASSERT_TRUE(there);
        EXPECT_EQ(there->text(), scene->displayName());
        EXPECT_FALSE(there->isChecked());
        there->trigger();
        menu->close();
        EXPECT_EQ(scene->childCount(), count + (both ? 2u : 1u));
        document().setSelection(both ? ElementImplSet{part("lamp1"), part("lamp2")} : ElementImplSet{part("lamp1")});
        menu = open();
        ASSERT_TRUE(menu);
        there = body(menu);
        ASSERT_TRUE(there && there->isChecked());
        there->trigger();
        menu->close();
        EXPECT_EQ(scene->childCount(), count);
        while (undoSteps() > steps)
            document().undo();
        EXPECT_EQ(scene->childCount(), count);
    }
}

TEST_F(PalettesTest, InspectorFollowsUndo)
{
    keys(Qt::Key_F12, Qt::ShiftModifier);
    auto* inspector = m_window->findChild<Inspector*>();
    ASSERT_TRUE(inspector && inspector->isVisible());
    auto* tree = inspector->findChild<QTreeWidget*>();
    const auto rowsOf = [tree](const char* id) {
        return tree->findItems(QLatin1String(id), Qt::MatchExactly | Qt::MatchRecursive, 1).size();
    };
    EXPECT_EQ(rowsOf("lamp2"), 1);
    clickPart("lamp2");
    QTest::keyClick(&view(), Qt::Key_Delete);
    EXPECT_EQ(rowsOf("lamp2"), 0);
    trigger("undo");
    EXPECT_EQ(rowsOf("lamp2"), 1);
    trigger("redo");
    EXPECT_EQ(rowsOf("lamp2"), 0);
    QString error;
    ASSERT_TRUE(m_window->openFile(path("sample.zkdoc"), error));
    EXPECT_EQ(rowsOf("lamp2"), 1);
    keys(Qt::Key_Escape);
    QTest::keyClick(inspector, Qt::Key_Escape);
    EXPECT_FALSE(inspector->isVisible());
}

TEST_F(PalettesTest, NeverMakeTheWindowLargerThanASmallScreen)
{
    m_window->resize(1000, 700);
    document().setSelection({part("lamp1")});
    set(property(part("lamp1"), "id"), Value(QString(200, QLatin1Char('W'))));
    set(property(part("lamp1"), "title"), Value(QString(200, QLatin1Char('W'))));
    for (EditPalette* palette : all()) {
        palette->show();
        for (PaletteBox* box : palette->findChildren<PaletteBox*>()) {
            for (int i = 0; i < box->count(); ++i)
                box->showItem(i, true);
        }
        QApplication::processEvents();
        QApplication::processEvents();
        EXPECT_LE(palette->minimumSizeHint().width(), 350) << palette->objectName().toStdString();
        EXPECT_EQ(m_window->size(), QSize(1000, 700)) << palette->objectName().toStdString();
        palette->setVisible(palette == m_window->palettes()->sidePane());
    }
}

TEST_F(PalettesTest, PlusOfTheModelsIsReachedByTab)
{
    m_window->palettes()->sidePane()->showSection(SidePane::ModelsPane, true);
    QApplication::processEvents();
    view().setFocus();
    EXPECT_TRUE(tabReaches(m_window->palettes()->sidePane()->getModelsBrowser()->findChild<PlusMinusButton*>()));
}

TEST_F(PalettesTest, ALetterOfTheMenuBarOpensItsMenuWhateverAFormSays)
{
    clickPart("lamp1");
    QSet<QString> letters;
    for (const QAction* menu : m_window->menuBar()->actions())
        letters.insert(QKeySequence::mnemonic(menu->text()).toString());
    EXPECT_EQ(letters.size(), m_window->menuBar()->actions().size());
    for (const QLabel* label : properties()->findChildren<QLabel*>())
        EXPECT_FALSE(label->buddy() && letters.contains(QKeySequence::mnemonic(label->text()).toString()))
            << label->text().toStdString();
    for (const QAbstractButton* button : properties()->findChildren<QAbstractButton*>())
        EXPECT_FALSE(letters.contains(button->shortcut().toString())) << button->text().toStdString();
}

TEST_F(PalettesTest, LayoutIsWrittenSoonAfterItChanged)
{
    SettingsService& service = *SettingsService::instance();
    service.setWindow(m_window.get());
    m_window->findChild<LayoutKeeper*>()->setDelay(0);
    m_window->setGeometry(40, 30, 710, 650);
    QTest::qWait(30);
    EXPECT_EQ(service.readSetting(QStringLiteral("/mainWindow/width"), Value(0)).toInt(), 710);
    const QString before = service.readSetting(QStringLiteral("/DockWindows"), Value(QString())).toQString();
    m_window->findChild<LockPalette*>()->show();
    QTest::qWait(30);
    const QString after = service.readSetting(QStringLiteral("/DockWindows"), Value(QString())).toQString();
    EXPECT_NE(after, before);
    // Another run with these settings comes up alike.
    MainWindow next;
    service.setWindow(&next);
    service.restore();
    EXPECT_EQ(next.size(), QSize(710, 650));
    EXPECT_FALSE(next.findChild<LockPalette*>()->isHidden());
    static auto* const owner = new QMainWindow;
    owner->setObjectName(QStringLiteral("settingsOwner"));
    service.setWindow(owner);
}
