// Every control of the gallery, operated in the main window by mouse and keyboard.
#include "windowTest.h"

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkauthor/palettes.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/sidePane.h"
#include "zkeditor/widgets/paneWidget.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace {

/// A field of the form, inside which text is typed.
struct Field
{
    const char* control;
    const char* editor; // its inner line edit; null when it is one itself
    const char* key;
    const char* typed;
    Value value; // what that stands for
};

std::vector<Field> fields()
{
    return {
        {"remarkEdit", nullptr, "remark", "new text", Value(QStringLiteral("new text"))},
        {"yearEdit", nullptr, "year", "19 84", Value(1984)},
        {"distanceEdit", nullptr, "distance", "5", Value(5000.0)},
        {"piecesSpin", "double_spinbox_edit", "pieces", "1+2*3", Value(7)},
        {"weightSpin", "double_spinbox_edit", "weight", "1 kg", Value(1.0)},
        {"placePoint", "x", "place", "4", Value(zk::Point{0.04, 0.02})},
        {"placePoint", "y", "place", "4", Value(zk::Point{0.03, 0.04})},
        {"paintPicker", "color_edit", "paint", "red", Value(QColor(Qt::red))},
    };
}

class GalleryTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        ASSERT_TRUE(QFile::copy(QStringLiteral(ZK_SOURCE_DIR "/samples/gallery.zkdoc"), path("gallery.zkdoc")));
        open();
    }

    void open()
    {
        QString error;
        ASSERT_TRUE(m_window->openFile(path("gallery.zkdoc"), error)) << error.toStdString();
        select({"first"});
    }

    void select(const QStringList& ids)
    {
        QString error;
        ASSERT_TRUE(m_window->selectParts(ids, error)) << error.toStdString();
        QApplication::processEvents();
    }

    QWidget* control(const char* name)
    {
        for (QWidget* found : m_window->findChildren<QWidget*>(QLatin1String(name))) {
            if (found->isVisible())
                return found;
        }
        ADD_FAILURE() << "no control " << name;
        return nullptr;
    }

    QLineEdit* editorOf(const Field& field)
    {
        QWidget* found = control(field.control);
        if (field.editor && QLatin1String(field.control) == QLatin1String("placePoint"))
            found = found->findChild<QWidget*>(QLatin1String(field.editor));
        if (auto* editor = qobject_cast<QLineEdit*>(found))
            return editor;
        return found->findChild<QLineEdit*>();
    }

    /// Replaces the text of the field, without committing it.
    QLineEdit* type(const Field& field, const char* text)
    {
        QLineEdit* editor = editorOf(field);
        editor->setFocus();
        editor->selectAll();
        QTest::keyClicks(editor, QString::fromUtf8(text));
        return editor;
    }

    Value valueOf(const char* id, const char* key) { return property(part(id), key)->getValue(); }

    static void sendKey(QEvent::Type type, Qt::Key key, bool repeated)
    {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), repeated);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }

    static void hold(Qt::Key key, int repeats)
    {
        sendKey(QEvent::KeyPress, key, false);
        for (int i = 0; i < repeats; ++i) {
            sendKey(QEvent::KeyRelease, key, true);
            sendKey(QEvent::KeyPress, key, true);
        }
        sendKey(QEvent::KeyRelease, key, false);
    }

    static QString told(QWidget* widget, QAccessible::Text what)
    {
        return QAccessible::queryAccessibleInterface(widget)->text(what);
    }
};

} // namespace

TEST_F(GalleryTest, APendingEditIsWrittenToThePartItWasTypedFor)
{
    const Value second = Value(QStringLiteral("Calm and rainy"));
    const auto select = [this] { clickPart("second"); };
    const auto selectFromElsewhere = [this] { document().setSelection({part("second")}); };
    const auto save = [this] { trigger("save"); };
    const auto closePane = [this] { m_window->palettes()->sidePane()->close(); };
    const auto leaveWindow = [] {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    };
    const std::pair<const char*, std::function<void()>> ends[] = {{"click on a part", select},
                                                                  {"selection", selectFromElsewhere},
                                                                  {"save", save},
                                                                  {"closed pane", closePane},
                                                                  {"other window", leaveWindow}};
    for (const auto& [name, end] : ends) {
        for (const Field& field : fields()) {
            SCOPED_TRACE(std::string(name) + ", " + field.control + " " + (field.editor ? field.editor : ""));
            m_window->palettes()->sidePane()->show();
            GalleryTest::select({"first"});
            m_window->activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
            const Value other = valueOf("second", field.key);
            const int steps = undoSteps();
            type(field, field.typed);
            EXPECT_EQ(undoSteps(), steps); // not at every key
            end();
            EXPECT_EQ(valueOf("first", field.key), field.value);
            EXPECT_EQ(valueOf("second", field.key), other);
            EXPECT_EQ(undoSteps(), steps + 1);
            if (end.target_type() == typeid(save)) {
                DocumentImpl saved;
                ASSERT_TRUE(saved.load(path("gallery.zkdoc")));
                EXPECT_EQ(property(saved.nodeWithId(QStringLiteral("first")), field.key)->getValue(), field.value);
            }
            document().undo();
        }
    }
}

TEST_F(GalleryTest, WalkingThroughMixedFieldsChangesNothing)
{
    select({"second", "third"});
    const QByteArray before = bytesOf(document());
    const MessageCapture quiet;
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QWidget* first = control("switchedCheck");
        first->setFocus();
        QSet<QString> seen;
        QWidget* focus = first;
        int count = 0;
        do {
            seen.insert(focus->objectName());
            EXPECT_FALSE(told(focus, QAccessible::Name).isEmpty()) << focus->objectName().toStdString();
            if (properties()->isAncestorOf(focus)) {
                QTest::keyClick(focus, Qt::Key_Escape);
                if (qobject_cast<QLineEdit*>(focus))
                    QTest::keyClick(focus, Qt::Key_Return);
                focus->setFocus(); // links let go of it
            }
            QTest::keyClick(focus, key);
            focus = QApplication::focusWidget();
        } while (focus && focus != first && ++count < 300);
        EXPECT_EQ(focus, first);
        for (const char* name : {"latchedButton", "weatherCombo", "cornerCombo", "remarkEdit", "distanceEdit",
                                 "distanceUnit", "double_spinbox_edit", "levelSlider", "depthUnit", "color_button",
                                 "color_edit", "smallRadio", "guardedGroup", "placeShownUnit"})
            EXPECT_TRUE(seen.contains(QLatin1String(name))) << name;
    }
    EXPECT_EQ(bytesOf(document()), before);
    EXPECT_EQ(undoSteps(), 0);
    EXPECT_EQ(quiet.texts(), QStringList());
}

TEST_F(GalleryTest, ChangesOfTheModelTakeNothingFromSomebodyWhoTypes)
{
    for (const Field& field : fields()) {
        SCOPED_TRACE(std::string(field.control) + " " + (field.editor ? field.editor : ""));
        const Value other = valueOf("third", field.key);
        const QString old = editorOf(field)->text();
        QLineEdit* editor = type(field, field.typed);
        editor->setCursorPosition(1);
        const QString typed = editor->text();
        ASSERT_TRUE(set(property(part("first"), field.key), other));
        ASSERT_TRUE(set(property(part("first"), "title"), Value(QString(field.control))));
        EXPECT_TRUE(editor->hasFocus());
        EXPECT_EQ(editor->text(), typed);
        EXPECT_EQ(editor->cursorPosition(), 1);
        // Giving up shows what the model has by now.
        QTest::keyClick(editor, Qt::Key_Escape);
        control("switchedCheck")->setFocus();
        EXPECT_EQ(valueOf("first", field.key), other);
        EXPECT_NE(editor->text(), typed);
        EXPECT_NE(editor->text(), old);
        EXPECT_EQ(undoSteps(), 2);
        document().undo();
        document().undo();
        EXPECT_EQ(editor->text(), old);
    }
}

TEST_F(GalleryTest, ReturnWritesAndStaysEscapeGivesTheOldTextBack)
{
    for (const Field& field : fields()) {
        SCOPED_TRACE(std::string(field.control) + " " + (field.editor ? field.editor : ""));
        const Value old = valueOf("first", field.key);
        const QString oldText = editorOf(field)->text();
        QLineEdit* editor = type(field, field.typed);
        QTest::keyClick(editor, Qt::Key_Escape);
        EXPECT_EQ(editor->text(), oldText);
        control("switchedCheck")->setFocus();
        EXPECT_EQ(valueOf("first", field.key), old);
        EXPECT_EQ(undoSteps(), 0);

        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
            type(field, field.typed);
            QTest::keyClick(editor, key);
            EXPECT_EQ(editor->hasFocus(), key == Qt::Key_Return);
            EXPECT_EQ(valueOf("first", field.key), field.value);
            EXPECT_EQ(undoSteps(), 1);
            // The same once more is no command.
            type(field, field.typed);
            QTest::keyClick(editor, key);
            EXPECT_EQ(undoSteps(), 1);
            document().undo();
            EXPECT_EQ(editor->text(), oldText);
        }
    }
}

TEST_F(GalleryTest, FieldsThatShowLessThanThereIsDoNotRound)
{
    const Value weight(0.123456789);
    const Value place(zk::Point{0.0123456789, 0.0198765});
    const Value distance(1234.56789);
    ASSERT_TRUE(set(property(part("first"), "weight"), weight));
    ASSERT_TRUE(set(property(part("first"), "place"), place));
    ASSERT_TRUE(set(property(part("first"), "distance"), distance));
    const auto expectWhole = [&] {
        control("switchedCheck")->setFocus();
        EXPECT_EQ(valueOf("first", "weight"), weight);
        EXPECT_EQ(valueOf("first", "place"), place);
        EXPECT_EQ(valueOf("first", "distance"), distance);
        EXPECT_EQ(undoSteps(), 3);
    };
    for (const Field& field : fields()) {
        SCOPED_TRACE(field.control);
        QLineEdit* editor = editorOf(field);
        editor->setFocus();
        QTest::keyClick(editor, Qt::Key_Return);
        expectWhole();
        type(field, field.typed);
        QTest::keyClick(editor, Qt::Key_Escape);
        expectWhole();
    }
    // Neither does editing one coordinate round the other.
    type(fields()[5], "4\r");
    EXPECT_EQ(valueOf("first", "place"), Value(zk::Point{0.04, 0.0198765}));
}

TEST_F(GalleryTest, AHeldKeyIsOneStepInEveryControlThatStepsByKeys)
{
    const struct
    {
        const char* control;
        const char* key;
        Qt::Key step;
    } cases[] = {{"piecesSpin", "pieces", Qt::Key_Up},       {"weightSpin", "weight", Qt::Key_Down},
                 {"placePoint", "place", Qt::Key_Up},        {"levelSlider", "level", Qt::Key_Right},
                 {"depthSlider", "depth", Qt::Key_PageDown}, {"weatherCombo", "weather", Qt::Key_Down},
                 {"playersCombo", "players", Qt::Key_Down},  {"mediumRadio", "format", Qt::Key_Up}};
    for (const auto& step : cases) {
        SCOPED_TRACE(step.control);
        const Value before = valueOf("first", step.key);
        control(step.control)->setFocus();
        hold(step.step, 2);
        const Value held = valueOf("first", step.key);
        EXPECT_NE(held, before);
        EXPECT_EQ(undoSteps(), 1);
        hold(step.step == Qt::Key_Down ? Qt::Key_Up : step.step == Qt::Key_Up ? Qt::Key_Down : step.step, 0);
        EXPECT_EQ(undoSteps(), 2);
        document().undo();
        EXPECT_EQ(valueOf("first", step.key), held);
        document().undo();
        EXPECT_EQ(valueOf("first", step.key), before);
    }
}

TEST_F(GalleryTest, PageKeysScrollThePaneExceptInSliders)
{
    auto* area = properties()->findChild<QScrollArea*>();
    for (const Field& field : fields()) {
        QLineEdit* editor = editorOf(field);
        editor->setFocus();
        area->verticalScrollBar()->setValue(0);
        QTest::keyClick(editor, Qt::Key_PageDown);
        EXPECT_GT(area->verticalScrollBar()->value(), 0) << field.control;
    }
    area->verticalScrollBar()->setValue(0);
    QWidget* slider = control("levelSlider");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_PageUp);
    EXPECT_EQ(valueOf("first", "level"), Value(70));
    EXPECT_EQ(area->verticalScrollBar()->value(), 0);
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(GalleryTest, RefusedTextIsRedExplainedAndGoesOnCommit)
{
    const struct
    {
        Field field;
        QString after; // the text when it is committed
    } cases[] = {
        {{"codeEdit", nullptr, "code", "zz", Value()}, "A1"},
        {{"yearEdit", nullptr, "year", "9000", Value()}, "5000"},
        {{"yearEdit", nullptr, "year", "19-", Value()}, "2000"},
        {{"piecesSpin", "double_spinbox_edit", "pieces", "5000", Value()}, "1000"},
        {{"piecesSpin", "double_spinbox_edit", "pieces", "1+", Value()}, "12"},
        {{"placePoint", "y", "place", "900", Value()}, "100"},
        {{"paintPicker", "color_edit", "paint", "no colour", Value()}, "#3478f6"},
    };
    for (const auto& refused : cases) {
        SCOPED_TRACE(std::string(refused.field.control) + " " + refused.field.typed);
        const MessageCapture quiet;
        QLineEdit* editor = editorOf(refused.field);
        QWidget* whole = control(refused.field.control);
        const QString help = whole->toolTip();
        EXPECT_FALSE(help.isEmpty());
        type(refused.field, refused.field.typed);
        EXPECT_EQ(editor->palette().color(QPalette::Text), QColor(Qt::red));
        EXPECT_NE(whole->toolTip(), help);
        EXPECT_EQ(told(editor, QAccessible::Description), whole->toolTip());
        EXPECT_EQ(undoSteps(), 0);
        QTest::keyClick(editor, Qt::Key_Return);
        EXPECT_EQ(editor->text(), refused.after);
        EXPECT_NE(editor->palette().color(QPalette::Text), QColor(Qt::red));
        EXPECT_EQ(whole->toolTip(), help);
        EXPECT_EQ(told(editor, QAccessible::Description), editor == whole ? help : QString());
        document().undo();
        EXPECT_EQ(undoSteps(), 0);
    }
}

TEST_F(GalleryTest, TheWheelScrollsThePanePastEveryControl)
{
    auto* bar = properties()->findChild<QScrollArea*>()->verticalScrollBar();
    const QByteArray before = bytesOf(document());
    m_window->spaceTabs()->setFocus();
    int controls = 0;
    for (QWidget* found : bar->parentWidget()->parentWidget()->findChildren<QWidget*>()) {
        if (!dynamic_cast<PaneWidget*>(found) || !found->isVisible())
            continue;
        for (const int delta : {-120, 120}) {
            bar->setValue(bar->maximum() / 2);
            QWidget* inner = found->childAt(found->rect().center());
            QWidget* over = inner ? inner : found;
            const QPoint at = over->mapTo(m_window.get(), over->rect().center());
            QWheelEvent event(over->rect().center(), m_window->mapToGlobal(at), QPoint(), QPoint(0, delta),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QSpontaneKeyEvent::setSpontaneous(&event);
            qApp->notify(over, &event);
            EXPECT_EQ(bar->value() > bar->maximum() / 2, delta < 0) << found->objectName().toStdString();
            EXPECT_NE(bar->value(), bar->maximum() / 2) << found->objectName().toStdString();
        }
        ++controls;
    }
    EXPECT_GT(controls, 40);
    EXPECT_EQ(bytesOf(document()), before);
    EXPECT_EQ(undoSteps(), 0);
}

TEST_F(GalleryTest, MouseOperatesEveryKindOfControl)
{
    const auto click = [this](const char* name, QPoint at) {
        QTest::mouseClick(control(name), Qt::LeftButton, Qt::NoModifier, at);
    };
    int steps = 0;
    const auto expectStep = [&](const char* key, const Value& value) {
        EXPECT_EQ(valueOf("first", key), value) << key;
        EXPECT_EQ(undoSteps(), ++steps) << key;
    };
    click("switchedCheck", {8, 10});
    expectStep("switched", Value(false));
    answer(QMessageBox::Yes);
    click("trustedCheck", {8, 10});
    expectStep("trusted", Value(true));
    click("loudnessCheck", {8, 10});
    expectStep("loudness", Value(QStringLiteral("loud")));
    click("loudnessButton", {10, 10});
    expectStep("loudness", Value(QStringLiteral("quiet")));
    click("latchedButton", {10, 10});
    expectStep("latched", Value(true));
    QTest::mousePress(control("heldButton"), Qt::LeftButton);
    EXPECT_EQ(valueOf("first", "held"), Value(true));
    QTest::mouseRelease(control("heldButton"), Qt::LeftButton);
    EXPECT_EQ(valueOf("first", "held"), Value(false));
    click("largeRadio", {8, 10});
    expectStep("format", Value(QStringLiteral("large")));
    click("ownRadio", {8, 10});
    expectStep("format", Value(QStringLiteral("own")));
    EXPECT_TRUE(control("ownWidthSpin")->isEnabled());
    click("guardedGroup", {10, 8});
    expectStep("guarded", Value(true));
    EXPECT_TRUE(control("guardEdit")->isEnabled());
    // The upper button of a spin box.
    QWidget* spin = control("piecesSpin")->findChild<QWidget*>(QStringLiteral("controls"));
    QTest::mouseClick(spin, Qt::LeftButton, Qt::NoModifier, QPoint(spin->width() - 6, 6));
    expectStep("pieces", Value(13));
    QWidget* y = control("placePoint")->findChild<QWidget*>(QStringLiteral("y"));
    spin = y->findChild<QWidget*>(QStringLiteral("controls"));
    QTest::mouseClick(spin, Qt::LeftButton, Qt::NoModifier, QPoint(spin->width() - 6, spin->height() - 5));
    expectStep("place", Value(zk::Point{0.03, 0.01}));
    // A drag of the handle to the end, with many moves.
    QWidget* slider = control("levelSlider");
    const QPoint from(static_cast<int>(slider->width() * 0.6), slider->height() / 2);
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, from);
    for (int x = from.x(); x < slider->width() + 20; x += 3) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, from.y()), slider->mapToGlobal(QPointF(x, from.y())),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(slider, &move);
    }
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, {slider->width() - 1, from.y()});
    expectStep("level", Value(100));
    // A colour of the grid.
    QTest::mouseClick(control("trimPicker")->findChild<QAbstractButton*>(), Qt::LeftButton);
    QWidget* popup = QApplication::activePopupWidget();
    ASSERT_TRUE(popup);
    auto* swatch = popup->findChildren<QAbstractButton*>().at(3);
    const QString name = swatch->toolTip();
    QTest::mouseClick(swatch, Qt::LeftButton);
    expectStep("trim", valueOf("first", "trim"));
    EXPECT_EQ(told(control("trimPicker")->findChild<QAbstractButton*>(), QAccessible::Description), name);
    // An item of a list.
    auto* combo = qobject_cast<QComboBox*>(control("directionCombo"));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    expectStep("direction", Value(false));
    // A unit changes what is shown, and is no step.
    QWidget* unit = control("weightUnit");
    QTest::mouseClick(unit, Qt::LeftButton);
    ASSERT_TRUE(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(control("weightSpin")->findChild<QLineEdit*>()->text(), QString("0.25"));
    EXPECT_EQ(undoSteps(), steps);

    while (undoSteps() > 0)
        document().undo();
    EXPECT_EQ(valueOf("first", "level"), Value(60));
    EXPECT_EQ(valueOf("first", "switched"), Value(true));
}
