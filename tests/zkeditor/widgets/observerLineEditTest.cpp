#include "zkeditor/widgets/observerLineEdit.h"
#include "choicesFixture.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/values/formatter.h"

#include <QLocale>
#include <QMenu>
#include <QSignalSpy>
#include <functional>

namespace {

class ObserverLineEditTest : public ChoicesTest
{
protected:
    void TearDown() override { QLocale::setDefault(QLocale::c()); }

    ObserverLineEdit& bound(const char* key, const std::vector<PartImpl*>& parts)
    {
        ObserverLineEdit& edit = place(new ObserverLineEdit, key);
        edit.bind(&document, nodesOf(parts));
        return edit;
    }
    static void type(ObserverLineEdit& edit, const QString& text)
    {
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    static void enter(ObserverLineEdit& edit, const QString& text) { type(edit, text + QLatin1Char('\r')); }
    static bool isRed(const QWidget& widget) { return widget.palette().color(QPalette::Text) == QColor(Qt::red); }
};

QString shownNumber(double value)
{
    return formatValueAsString(Value(value));
}

} // namespace

TEST_F(ObserverLineEditTest, TypedTextBecomesTheValue)
{
    PartImpl* part = add("choices/chooser");
    struct Case
    {
        const char* key;
        const char* typed;
        Value stored;
        QString shown;
        QLocale::Language language = QLocale::C;
    };
    const std::vector<Case> cases = {
        {"weight", "1 5", number(10), "10"}, // fifteen, held within the range
        {"length", "1 5", number(0.015), "15"},
        {"length", " 1 000 ", number(1), "1000"},
        {"length", "12.5", number(0.0125), "12.5"},
        {"length", "2 cm + 3 mm", number(0.023), "23"},
        {"length", "12.5", number(0.0125), "12,5", QLocale::German},
        {"length", "13,5", number(0.0135), "13,5", QLocale::German},
        {"length", "1001", number(1), "1000"},
        {"level", "1 0", Value(10), "10"},
        {"level", "-4", Value(0), "0"},
        {"level", "99", Value(10), "10"},
        {"weight", "10.05", number(10), "10"},
        {"weight", "1/4", number(0.25), shownNumber(0.25)},
        {"place", "3, 4.5", Value(zk::Point{3, 4.5}), "3, 4.5"},
        {"note", "  two  words ", string("  two  words "), "  two  words "},
        {"code", " B2 ", string("B2"), "B2"},
        {"hue", "#00ff00", Value(QColor(Qt::green)), "#00ff00"},
    };
    for (const Case& each : cases) {
        QLocale::setDefault(QLocale(each.language));
        ObserverLineEdit edit;
        edit.setModelProperty(QString::fromLatin1(each.key));
        edit.show();
        edit.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&edit));
        edit.bind(&document, {part});
        edit.bind(&document, {part});
        const int steps = document.undoStack()->index();
        enter(edit, QString::fromLatin1(each.typed));
        const Value stored = property(part, each.key)->getValue();
        EXPECT_EQ(stored.toQString(), each.stored.toQString()) << each.key << " " << each.typed;
        EXPECT_EQ(edit.text(), each.shown) << each.key << " " << each.typed;
        EXPECT_EQ(document.undoStack()->index(), steps + 1) << each.key << " " << each.typed;
        EXPECT_FALSE(isRed(edit));
        document.undo();
    }
}

TEST_F(ObserverLineEditTest, WhatTheUserDidNotChangeIsNotWritten)
{
    PartImpl* part = add("choices/chooser");
    const double exact = 1.23456789012345;
    ASSERT_TRUE(set(property(part, "wide"), number(exact)));
    ObserverLineEdit& edit = bound("wide", {part});
    EXPECT_EQ(edit.accessibleName(), QString("Wide"));
    const QString shown = edit.text();
    ASSERT_NE(shown.toDouble(), exact);
    const int steps = undoSteps();
    QTest::keyClick(before, Qt::Key_Tab);
    ASSERT_TRUE(edit.hasFocus());
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Tab);
    QTest::keyClick(after, Qt::Key_Backtab);
    QTest::keyClick(&edit, Qt::Key_End);
    QTest::keyClicks(&edit, "7");
    QTest::keyClick(&edit, Qt::Key_Backspace); // typed, and taken back
    QTest::keyClick(&edit, Qt::Key_Backtab);
    EXPECT_TRUE(before->hasFocus());
    edit.unbind();
    edit.bind(&document, {part});
    EXPECT_EQ(undoSteps(), steps);
    EXPECT_EQ(real(part, "wide"), exact);
    EXPECT_EQ(edit.text(), shown);
}

TEST_F(ObserverLineEditTest, TypedTextIsWrittenWhereItBegan)
{
    PartImpl* part = add("choices/chooser");
    PartImpl* other = add("choices/chooser");
    ObserverLineEdit& edit = bound("note", {part});
    const std::vector<std::pair<const char*, std::function<void()>>> ends = {
        {"tab", [&] { QTest::keyClick(&edit, Qt::Key_Tab); }},
        {"other nodes", [&] { edit.bind(&document, {other}); }},
        {"unbind", [&] { edit.unbind(); }},
        {"mouse", [&] { QTest::mouseClick(after, Qt::LeftButton); }},
        {"window",
         [&] {
             QWidget another;
             another.show();
             another.activateWindow();
             ASSERT_TRUE(QTest::qWaitForWindowActive(&another));
             another.hide();
             window.activateWindow();
             ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
         }},
        {"menu",
         [&] {
             QMenu menu;
             menu.addAction("Save");
             menu.popup(QPoint(0, 0));
             EXPECT_FALSE(edit.hasFocus());
         }},
    };
    for (const auto& [name, end] : ends) {
        edit.bind(&document, {part});
        const int steps = undoSteps();
        type(edit, QString::fromLatin1(name));
        EXPECT_EQ(undoSteps(), steps) << name; // not while typing
        end();
        EXPECT_EQ(text(part, "note"), QString::fromLatin1(name));
        EXPECT_EQ(undoSteps(), steps + 1) << name;
        EXPECT_EQ(text(other, "note"), QString()) << name;
    }
    edit.bind(&document, {other});
    EXPECT_EQ(edit.text(), QString());
}

TEST_F(ObserverLineEditTest, OwnEditMenuIsNoEndOfTyping)
{
    PartImpl* part = add("choices/chooser");
    ObserverLineEdit& edit = bound("note", {part});
    const int steps = undoSteps();
    type(edit, "half");
    QContextMenuEvent request(QContextMenuEvent::Keyboard, edit.rect().center(), edit.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&edit, &request);
    ASSERT_TRUE(edit.popupMenuActive());
    EXPECT_EQ(undoSteps(), steps);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_TRUE(edit.hasFocus());
    QTest::keyClicks(&edit, " done");
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(text(part, "note"), QString("half done"));
    EXPECT_EQ(undoSteps(), steps + 1);
}

// What is told of the write binds other nodes, as a selection that follows a value does.
TEST_F(ObserverLineEditTest, WriteThatBindsOtherNodesLeavesThemAlone)
{
    PartImpl* part = add("choices/chooser");
    PartImpl* other = add("choices/chooser");
    ObserverLineEdit& edit = bound("note", {part});
    QObject::connect(property(part, "note"), &PropertyImpl::ValueChanged, &window,
                     [&] { edit.bind(&document, {other}); });
    enter(edit, "mine");
    EXPECT_EQ(text(part, "note"), QString("mine"));
    EXPECT_EQ(text(other, "note"), QString());
    EXPECT_EQ(edit.text(), QString());
}

TEST_F(ObserverLineEditTest, ChangeOfTheModelLeavesTypedTextAlone)
{
    PartImpl* part = add("choices/chooser");
    PartImpl* other = add("choices/chooser");
    ObserverLineEdit& edit = bound("note", {part});
    set(property(part, "note"), string("first"));
    EXPECT_EQ(edit.text(), QString("first"));
    edit.setFocus();
    edit.setCursorPosition(2);
    QTest::keyClicks(&edit, "XY");
    set(property(part, "note"), string("second"));
    EXPECT_EQ(edit.text(), QString("fiXYrst"));
    EXPECT_EQ(edit.cursorPosition(), 4);
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_EQ(edit.text(), QString("second"));
    EXPECT_TRUE(edit.hasFocus());
    edit.setCursorPosition(3);
    set(property(part, "note"), string("second")); // the text that is shown already
    EXPECT_EQ(edit.cursorPosition(), 3);

    edit.bind(&document, {part, other});
    EXPECT_TRUE(edit.showsNoValue());
    QTest::keyClicks(&edit, "both");
    set(property(part, "note"), string("third"));
    EXPECT_EQ(edit.text(), QString("both"));
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_EQ(edit.text(), QString());
    EXPECT_TRUE(edit.showsNoValue());
    QTest::keyClicks(&edit, "both");
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(text(other, "note"), QString("both"));
}

TEST_F(ObserverLineEditTest, EscapeIsTakenFromShortcutsOnlyForTypedText)
{
    PartImpl* part = add("choices/chooser");
    ObserverLineEdit& edit = bound("note", {part});
    auto* cancel = new QAction(&window);
    cancel->setShortcut(Qt::Key_Escape);
    window.addAction(cancel);
    QSignalSpy cancelled(cancel, &QAction::triggered);
    type(edit, "typed");
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_EQ(edit.text(), QString());
    EXPECT_EQ(cancelled.count(), 0);
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_EQ(cancelled.count(), 1);
}

TEST_F(ObserverLineEditTest, DifferentValuesAreEmptyWhateverTheFirstIs)
{
    const auto parts = add("choices/chooser", 3);
    ObserverLineEdit& edit = place(new ObserverLineEdit, "level");
    for (size_t odd = 0; odd < parts.size(); ++odd) {
        for (PartImpl* part : parts)
            set(property(part, "level"), Value(4));
        edit.bind(&document, nodesOf(parts));
        EXPECT_EQ(edit.text(), QString("4"));
        set(property(parts[odd], "level"), Value(7));
        EXPECT_EQ(edit.text(), QString());
        const QByteArray asBefore = bytesOf(document);
        edit.bind(&document, nodesOf(parts));
        EXPECT_TRUE(edit.showsNoValue());
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_Return);
        QTest::keyClicks(&edit, "5");
        QTest::keyClick(&edit, Qt::Key_Backspace);
        EXPECT_FALSE(isRed(edit));
        QTest::keyClick(&edit, Qt::Key_Tab);
        EXPECT_EQ(bytesOf(document), asBefore);
        const int steps = undoSteps();
        enter(edit, "5");
        EXPECT_EQ(undoSteps(), steps + 1);
        for (PartImpl* part : parts)
            EXPECT_EQ(whole(part, "level"), 5);
        EXPECT_EQ(edit.text(), QString("5"));
        document.undo();
        EXPECT_EQ(edit.text(), QString());
    }
}

TEST_F(ObserverLineEditTest, RefusedTextIsRedAndTheOldComesBack)
{
    PartImpl* part = add("choices/chooser");
    struct Case
    {
        const char* key;
        const char* typed;
    };
    for (const Case& each : {Case{"code", "nonsense"}, Case{"level", "12+"}, Case{"weight", "abc"}, Case{"place", "1"},
                             Case{"hue", "nocolour"}, Case{"weight", ""}}) {
        ObserverLineEdit& edit = bound(each.key, {part});
        edit.setToolTip("What it is for");
        const QString old = edit.text();
        const int steps = undoSteps();
        type(edit, QString::fromLatin1(each.typed));
        if (!*each.typed)
            QTest::keyClick(&edit, Qt::Key_Delete);
        EXPECT_EQ(edit.text(), QString::fromLatin1(each.typed));
        EXPECT_TRUE(isRed(edit)) << each.key;
        EXPECT_NE(edit.toolTip(), QString("What it is for"));
        EXPECT_FALSE(edit.toolTip().isEmpty());
        EXPECT_EQ(edit.accessibleDescription(), edit.toolTip());
        const MessageCapture capture;
        QTest::keyClick(&edit, Qt::Key_Return);
        EXPECT_EQ(capture.warnings(),
                  QStringList(QStringLiteral("ObserverLineEdit: Can't fixup '%1'").arg(QLatin1String(each.typed))));
        EXPECT_EQ(edit.text(), old);
        EXPECT_FALSE(isRed(edit));
        EXPECT_EQ(edit.toolTip(), QString("What it is for"));
        EXPECT_EQ(edit.accessibleDescription(), QString());
        EXPECT_EQ(undoSteps(), steps);
    }
    ObserverLineEdit& edit = bound("weight", {part});
    type(edit, "10.05"); // nearer than the last decimal of the bound
    EXPECT_FALSE(isRed(edit));
    type(edit, "10.2");
    EXPECT_TRUE(isRed(edit));
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_FALSE(isRed(edit));
    type(edit, "10.2");
    edit.bind(&document, {add("choices/chooser")}); // clamped for the node it was typed for
    EXPECT_EQ(real(part, "weight"), 10.0);
    EXPECT_EQ(edit.text(), QString("1"));
    EXPECT_FALSE(isRed(edit));
}

TEST_F(ObserverLineEditTest, FollowsTheUnitShown)
{
    PartImpl* part = add("choices/chooser");
    ObserverLineEdit& edit = bound("length", {part});
    EXPECT_EQ(edit.text(), QString("20"));
    auto* formatter = dynamic_cast<NumericalFormatter*>(property(part, "length")->getFormatter());
    ASSERT_TRUE(formatter->setCurrentUnit(formatter->units().at(1)));
    EXPECT_EQ(edit.text(), QString("2"));
    enter(edit, "3");
    EXPECT_DOUBLE_EQ(real(part, "length"), 0.03);
}

TEST_F(ObserverLineEditTest, ManyNodesAndLocks)
{
    const auto parts = add("choices/chooser", 2);
    ObserverLineEdit& edit = place(new ObserverLineEdit, "code");
    edit.setSupportsMultipleProps(false);
    edit.bind(&document, {parts[0]});
    EXPECT_EQ(edit.text(), QString("A1"));
    edit.bind(&document, nodesOf(parts));
    EXPECT_FALSE(edit.isEnabled());
    EXPECT_EQ(edit.text(), QString());
    edit.setSupportsMultipleProps(true);
    edit.bind(&document, nodesOf(parts));
    EXPECT_TRUE(edit.isEnabled());
    run<SetUILockedCommand>(document, std::vector{Node(parts[1])}, LockPropertyValues, true);
    EXPECT_FALSE(edit.isEnabled());
    edit.setEnabled(true);
    edit.setDisabled(false);
    static_cast<QWidget&>(edit).setEnabled(true);
    EXPECT_FALSE(edit.isEnabled());
}

TEST_F(ObserverLineEditTest, LooksLikeALinkUntilItIsEdited)
{
    PartImpl* part = add("choices/chooser");
    set(property(part, "note"), string("a link to follow"));
    ObserverLineEdit& edit = place(new ObserverLineEdit, "note");
    edit.setFixedSize(400, 30);
    QPalette palette(QColor("#202020"), QColor("#202020"));
    palette.setColor(QPalette::Base, QColor("#303030"));
    palette.setColor(QPalette::Link, QColor("#00ffff"));
    edit.setPalette(palette);
    EXPECT_TRUE(edit.setProperty("linkStyle", true));
    edit.bind(&document, {part});
    const auto look = [&edit] { return edit.grab().toImage(); };
    const QRect left(2, 2, 190, 26);
    const QRect right(205, 2, 190, 26);
    QImage image = look();
    EXPECT_EQ(image.pixelColor(0, 0), image.pixelColor(399, 15)); // no frame
    EXPECT_GT(inkIn(image, left, 200), 30);
    EXPECT_EQ(inkIn(image, right, 200), 0);
    const int plain = inkIn(image, left, 200);
    QTest::mouseMove(&edit, QPoint(12, 15));
    EXPECT_EQ(edit.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_GT(inkIn(look(), left, 200), plain + 20); // underlined
    QTest::mouseMove(&edit, QPoint(300, 15));
    EXPECT_EQ(edit.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(inkIn(look(), left, 200), plain);
    set(property(part, "note"), Value(QString::fromUtf8("קישור")));
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(inkIn(look(), left, 200), 0);
    EXPECT_GT(inkIn(look(), right, 200), 30);
    set(property(part, "note"), string("a link to follow"));
    window.setLayoutDirection(Qt::LeftToRight);

    // Different values have a sign, with and without a placeholder: there is no frame that shows where to click.
    PartImpl* second = add("choices/chooser");
    for (const char* placeholder : {"", "nothing yet"}) {
        edit.setPlaceholderText(QString::fromLatin1(placeholder));
        edit.bind(&document, {part, second});
        ASSERT_TRUE(edit.showsNoValue());
        EXPECT_GT(inkIn(look(), left, 200), 5) << placeholder;
        EXPECT_EQ(inkIn(look(), QRect(30, 2, 160, 26), 200), 0) << placeholder;
    }
    edit.bind(&document, {part});

    QTest::mouseClick(&edit, Qt::LeftButton, {}, QPoint(12, 15));
    EXPECT_TRUE(edit.hasFocus());
    EXPECT_EQ(edit.cursor().shape(), Qt::IBeamCursor);
    EXPECT_EQ(look().pixelColor(390, 15), QColor("#303030")); // an ordinary field
    type(edit, "another");
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_FALSE(edit.hasFocus());
    EXPECT_EQ(edit.text(), QString("a link to follow"));
    EXPECT_EQ(text(part, "note"), QString("a link to follow"));
    enter(edit, "another");
    after->setFocus();
    EXPECT_EQ(text(part, "note"), QString("another"));
    EXPECT_NE(look().pixelColor(390, 15), QColor("#303030"));
    edit.setReadOnly(true);
    EXPECT_EQ(look().pixelColor(390, 15), QColor("#303030"));
}
