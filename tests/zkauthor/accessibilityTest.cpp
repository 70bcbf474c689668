// Every window, palette, dialog and form as people meet them who work without a mouse, by ear, or need contrast.
#include "windowTest.h"

#include "tests/support/accessibilityWalk.h"
#include "tests/support/testDocument.h"
#include "zkauthor/darkPalette.h"
#include "zkauthor/documentFiles.h"
#include "zkauthor/mainWindow.h"
#include "zkauthor/palettes.h"
#include "zkauthor/partHelp.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/model/nodeDb.h"
#include "zkeditor/debugConsole.h"
#include "zkeditor/dialogs/getCustomPartLabel.h"
#include "zkeditor/flowchartSpeedWidget.h"
#include "zkeditor/inspector.h"
#include "zkeditor/perfMeter.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/sidePane.h"
#include "zkeditor/widgets/qtColorPicker.h"
#include "zkeditor/widgets/readableColors.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// What the walks pass over. Besides: what is disabled may be faint, as the Web Content Accessibility Guidelines have
/// it, and text that is typed and not allowed is in the one red that the library has for it, see WhatIsMixedOrChosen.
bool isExempt(const QWidget* widget)
{
    // The document's own picture, in colours of its author.
    const bool picture = qobject_cast<const SceneView*>(widget->parentWidget());
    // The toolkit's view of the pages to print: nobody can give it a role.
    return picture || widget->inherits("GraphicsView");
}

/// What cannot be mended: both labels have their letters from elsewhere; Alt+L goes from one to the other.
bool isKnown(const QString& fault)
{
    return fault.contains(QLatin1String("\"Part &level:\": Alt+L is the letter of"));
}

class AccessibilityTest : public WindowTest
{
protected:
    enum Look : unsigned int { Names = 1, Keyboard = 2, Light = 4, Dark = 8, Mirrored = 16, All = 31 };

    void SetUp() override
    {
        WindowTest::SetUp();
        m_window->resize(1500, 1800);
        QApplication::processEvents();
    }

    void TearDown() override
    {
        WindowTest::TearDown();
        QApplication::setPalette(m_light);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    static void expectNone(const QStringList& faults, const char* what)
    {
        for (const QString& fault : faults) {
            if (!isKnown(fault))
                ADD_FAILURE() << what << ": " << qPrintable(fault);
        }
    }

    void setPalette(const QPalette& palette)
    {
        QApplication::setPalette(palette);
        QApplication::processEvents();
    }
    static void setDirection(Qt::LayoutDirection direction)
    {
        QApplication::setLayoutDirection(direction);
        QApplication::processEvents();
    }

    /// Colours and direction change while the window is on show, and change back afterwards.
    void look(QWidget& window, unsigned int at = All)
    {
        if (at & Names)
            expectNone(accessibilityWalk::nameFaults(window, isExempt), "name");
        if (at & Keyboard)
            expectNone(accessibilityWalk::keyboardFaults(window, isExempt), "keyboard");
        if (at & Light)
            expectNone(accessibilityWalk::contrastFaults(window, isExempt), "light");
        if (at & Dark) {
            setPalette(darkPalette());
            expectNone(accessibilityWalk::contrastFaults(window, isExempt), "dark");
            setPalette(m_light);
        }
        if (at & Mirrored) {
            setDirection(Qt::RightToLeft);
            expectNone(accessibilityWalk::keyboardFaults(window, isExempt), "mirrored");
            setDirection(Qt::LeftToRight);
        }
    }

    void lookAtNew(QWidget& window)
    {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        look(window);
    }

    void showAllPalettes()
    {
        for (QDockWidget* dock : m_window->findChildren<QDockWidget*>()) {
            if (dock->parentWidget() == m_window.get())
                dock->show();
        }
    }

    void open(const char* sample, const QStringList& selected = {})
    {
        QString error;
        const QString file = QStringLiteral(ZK_SOURCE_DIR "/samples/%1.zkdoc").arg(QLatin1String(sample));
        ASSERT_TRUE(m_window->openFile(file, error)) << error.toStdString();
        ASSERT_TRUE(m_window->selectParts(selected, error)) << error.toStdString();
        QApplication::processEvents();
    }

    /// Looks at the dialog that the action opens, which Escape closes.
    void lookAtDialog(const char* name)
    {
        SCOPED_TRACE(name);
        bool seen = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer.stop();
            dialog->activateWindow();
            seen = QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; });
            look(*dialog);
            QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
            EXPECT_FALSE(dialog->isVisible());
            dialog->reject();
        });
        timer.start(5);
        trigger(name);
        EXPECT_TRUE(seen);
    }

    const QPalette m_light = QApplication::palette();
};

} // namespace

TEST(AccessibilityWalk, FindsEachFault)
{
    QDialog window;
    auto* column = new QVBoxLayout(&window);
    const auto add = [&](QWidget* widget, const char* name) {
        widget->setObjectName(QLatin1String(name));
        column->addWidget(widget);
        return widget;
    };
    auto* faint = new QLabel(QStringLiteral("faint"));
    faint->setStyleSheet(QStringLiteral("color: #999; background: #fff"));
    add(faint, "faint");
    add(new QLineEdit, "silent");
    add(new QPushButton(QStringLiteral("...")), "dots");
    add(new QPushButton(QStringLiteral("&Twice")), "twiceA");
    add(new QPushButton(QStringLiteral("&Twice")), "twiceB");
    add(new QPushButton(QStringLiteral("Mouse only")), "mouseOnly")->setFocusPolicy(Qt::NoFocus);
    QWidget* thing = add(new QWidget, "thing");
    thing->setFocusPolicy(Qt::StrongFocus);
    thing->setAccessibleName(QStringLiteral("Thing"));
    auto* list = new QListWidget;
    list->addItem(QString());
    add(list, "list")->setAccessibleName(QStringLiteral("List"));
    QWidget* late = add(new QCheckBox(QStringLiteral("Late")), "late");
    QWidget* trap = add(new QTextEdit, "trap");
    trap->setAccessibleName(QStringLiteral("Trap"));
    QWidget::setTabOrder(late, list);
    QWidget::setTabOrder(list, trap);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    const auto expect = [](const QStringList& faults, const QStringList& expected) {
        const QString all = faults.join(QLatin1Char('\n'));
        for (const QString& fault : expected)
            EXPECT_TRUE(all.contains(fault)) << qPrintable(fault) << " is not in\n" << qPrintable(all);
        EXPECT_EQ(faults.size(), expected.size()) << qPrintable(all);
    };
    expect(accessibilityWalk::nameFaults(window),
           {"silent: has no name", "dots: its name is \"...\"", "twiceB: \"Twice\" is the name of",
            "thing: has the focus", "list: row 0 has no text"});
    expect(accessibilityWalk::contrastFaults(window), {"faint: \"faint\" is #999999 on #ffffff, a contrast of 2.85"});
    expect(accessibilityWalk::keyboardFaults(window),
           {"trap: Tab does not come round", "mouseOnly: Tab does not come to it", "list: Tab comes to it after",
            "twiceB \"&Twice\": Alt+T is the letter of"});
}

TEST_F(AccessibilityTest, TheWindowWithEveryPaletteAndSample)
{
    clickPart("lamp1");
    showAllPalettes();
    look(*m_window);
    for (const auto& [sample, selected] : {std::pair("blank", ""), std::pair("nightlight", ""),
                                           std::pair("collections", "first"), std::pair("gallery", "first")}) {
        SCOPED_TRACE(sample);
        open(sample, selected[0] ? QStringList{selected} : QStringList());
        look(*m_window);
    }
}

TEST_F(AccessibilityTest, TheFormsOfEveryClass)
{
    open("blank");
    std::vector<PartImpl*> parts;
    for (const NodePrototype* prototype : document().getNodeDb()->prototypes()) {
        if (prototype->kind == NodeKind::Part && !prototype->abstract)
            parts.push_back(addPart(document(), qPrintable(findStringForCid(prototype->cid))));
    }
    PropPalette palette(EditPalette::OutsideDock);
    palette.setDocument(&document());
    palette.resize(360, 1800);
    palette.show();
    palette.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&palette));
    const auto walk = [&](unsigned int at, size_t step) {
        for (size_t i = 0; i < parts.size(); i += step) {
            PartImpl* part = parts[i];
            SCOPED_TRACE(qPrintable(findStringForCid(part->classId())));
            document().setSelection({part});
            QApplication::processEvents();
            look(palette, at);
        }
    };
    walk(Names | Keyboard | Light, 1);
    setPalette(darkPalette());
    walk(Light, 1);
    setDirection(Qt::RightToLeft);
    walk(Keyboard, 6); // what mirrors is the same in all forms
    palette.setDocument(nullptr);
}

TEST_F(AccessibilityTest, PanesOfScenesAndPopups)
{
    document().setSelection({});
    look(*m_window);
    PartImpl* info = addPart(document(), "core/info");
    ASSERT_TRUE(info->popup());
    m_window->spaceTabs()->showSpace(info->popup());
    look(*m_window);
    const int tabs = m_window->spaceTabs()->count();
    trigger("close-popup");
    EXPECT_EQ(m_window->spaceTabs()->count(), tabs - 1);
}

TEST_F(AccessibilityTest, WhatIsMixedOrChosen)
{
    open("gallery", {"second", "third"});
    look(*m_window);
    for (const QPalette& palette : {QApplication::palette(), darkPalette()})
        EXPECT_GE(readableColors::contrast(Qt::red, palette.color(QPalette::Base)), 3);

    for (QtColorPicker* picker : properties()->findChildren<QtColorPicker*>()) {
        if (!picker->isVisible() || !picker->isEnabled())
            continue;
        picker->showPopup();
        ASSERT_TRUE(picker->popup());
        QApplication::processEvents();
        look(*picker->popup(), Names | Light | Dark);
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(picker->popup());
        break;
    }

    // Selected rows, with and without the focus.
    open("collections", {"first"});
    showAllPalettes();
    for (QAbstractItemView* view : m_window->findChildren<QAbstractItemView*>()) {
        if (view->isVisible())
            view->selectAll();
    }
    look(*m_window, Light | Dark);
}

TEST_F(AccessibilityTest, Dialogs)
{
    clickPart("lamp1");
    for (const char* name : {"preferences", "about", "licence", "save-custom-part", "page-setup", "print-preview"})
        lookAtDialog(name);
    clickPart("lamp1");
    trigger("inspector");
    auto* inspector = m_window->findChild<Inspector*>();
    ASSERT_TRUE(inspector);
    lookAtNew(*inspector);
    QTest::keyClick(inspector->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(inspector->isVisible());
    showPartHelp(m_window.get(), document());
    trigger("help");
    for (const char* name : {"partHelp", "help"}) {
        const QPointer<QDialog> help = m_window->findChild<QDialog*>(QLatin1String(name));
        ASSERT_TRUE(help) << name;
        lookAtNew(*help);
        QTest::keyClick(help->windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(help && help->isVisible());
    }
    addPart(document(), "electronics/led");
    for (const char* name : {"revert", "close"})
        lookAtDialog(name);
}

TEST_F(AccessibilityTest, NoticesAboveTheDocument)
{
    const QString folder = path("recovery");
    m_window->files()->enableRecovery(folder, 100);
    ASSERT_TRUE(set(property(part("lamp1"), "title"), Value(QStringLiteral("Lit"))));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !QDir(folder, QStringLiteral("*.zkdoc")).isEmpty(); }));
    m_window.reset(); // without a word, as in a crash
    m_window = std::make_unique<MainWindow>();
    m_window->files()->enableRecovery(folder, 100);
    QString error;
    ASSERT_TRUE(m_window->openFile(path("sample.zkdoc"), error)) << error.toStdString();
    m_window->resize(1500, 1800);
    m_window->show();
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    ASSERT_TRUE(QFile::rename(path("sample.zkdoc"), path("moved.zkdoc")));
    const auto isOnView = [this](const char* name) {
        const auto* found = m_window->findChild<QPushButton*>(QLatin1String(name));
        return found && found->isVisible();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOnView("recover") && isOnView("save-again"); }));
    look(*m_window);
}

TEST_F(AccessibilityTest, WindowsThatTheHostDoesNotShow)
{
    GetCustomPartLabel label(part("lamp1"), nullptr, "label", false);
    lookAtNew(label);
    QTest::keyClick(label.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(label.isVisible());
    FlowchartSpeedWidget speed;
    speed.bind(&document(), Space(firstScene(document())));
    lookAtNew(speed);
    speed.unbind();
    PerfMeter meter;
    lookAtNew(meter);
    DebugConsole& console = DebugConsole::getDebugConsole();
    console.pushDebugMsg(QStringLiteral("one"));
    console.pushWarningMsg(QStringLiteral("two"));
    console.pushFatalMsg(QStringLiteral("three"));
    lookAtNew(console);
    console.close();
}

TEST_F(AccessibilityTest, Menus)
{
    for (const QPalette& palette : {darkPalette(), m_light}) {
        setPalette(palette);
        for (const QAction* action : m_window->menuBar()->actions())
            expectNone(accessibilityWalk::menuFaults(*action->menu()), "menu");
    }
}

TEST_F(AccessibilityTest, ColoursAndDirectionChangeWhileTheWindowIsOnShow)
{
    const auto picture = [this] {
        QApplication::processEvents();
        if (QWidget* focus = m_window->focusWidget())
            focus->clearFocus();
        QApplication::processEvents();
        return m_window->grab().toImage();
    };
    const auto prepare = [this] {
        m_window.reset();
        m_window = std::make_unique<MainWindow>();
        m_window->resize(1500, 1800);
        showAllPalettes();
        m_window->show();
        open("gallery", {"first"});
    };
    for (const bool dark : {true, false}) {
        setPalette(m_light);
        setDirection(Qt::LeftToRight);
        prepare();
        picture();
        if (dark)
            setPalette(darkPalette());
        else
            setDirection(Qt::RightToLeft);
        const QImage changed = picture();
        prepare();
        const QImage fresh = picture();
        ASSERT_EQ(changed.size(), fresh.size());
        QStringList places;
        const QWidget* last = nullptr;
        for (int y = 0; y < fresh.height(); ++y) {
            for (int x = 0; x < fresh.width(); ++x) {
                if (fresh.pixel(x, y) == changed.pixel(x, y))
                    continue;
                const QWidget* widget = m_window->childAt(x, y);
                if (widget && widget != last)
                    places += accessibilityWalk::placeOf(widget);
                last = widget;
            }
        }
        places.removeDuplicates();
        expectNone(places, dark ? "differs from a window that was dark from the start"
                                : "differs from a window that was mirrored from the start");
    }
}
