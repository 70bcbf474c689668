#include "controlsFixture.h"
#include "zkeditor/widgets/colorNames.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/observerColorpicker.h"
#include "zkeditor/widgets/qtColorPicker.h"

#include <QColorDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>

namespace {

bool dropOn(QWidget& widget, const QMimeData& content)
{
    const QPoint at = widget.rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(at, Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &drop);
    return true;
}

QString focusedName()
{
    const QWidget* popup = QApplication::activePopupWidget();
    return popup && popup->focusWidget() ? popup->focusWidget()->accessibleName() : QString();
}

QColor colorOf(NodeImpl* node, const char* key = "tint")
{
    return property(node, key)->getValue().toQColor();
}

} // namespace

using ColorPickerTest = ControlsTest;

TEST_F(ColorPickerTest, ColoursWithoutANameAreDescribed)
{
    const std::pair<const char*, const char*> cases[] = {
        {"#ff0000", "Red"},
        {"#f03a2e", "Red, #f03a2e"},
        {"#8b1a1a", "Dark red, #8b1a1a"},
        {"#f03a50", "Red, #f03a50"}, // on the other side of the circle
        {"#ffae1a", "Orange, #ffae1a"},
        {"#6b4a20", "Brown, #6b4a20"},
        {"#abcdef", "Light blue, #abcdef"},
        {"#33cc55", "Green, #33cc55"},
        {"#010203", "Black, #010203"},
        {"#fefefd", "White, #fefefd"},
        {"#d3d3d4", "Light grey, #d3d3d4"},
        {"#80ff0000", "Red, #80ff0000"},
        {"#00ffffff", "Transparent, #00ffffff"},
    };
    for (const auto& [color, description] : cases)
        EXPECT_EQ(colorNames::describe(QColor(color)).toStdString(), description);
}

TEST_F(ColorPickerTest, NamesAreReadAsTheyAreWritten)
{
    for (const QColor& color : colorNames::standardColors()) {
        const QString name = colorNames::nameOf(color);
        EXPECT_FALSE(name.startsWith('#'));
        EXPECT_EQ(colorNames::colorNamed(name), color);
        EXPECT_EQ(QColor(name), color) << name.toStdString(); // the web calls it the same
    }
    const struct
    {
        const char* text;
        QColor color;
    } cases[] = {{" Light Blue ", QColor(173, 216, 230)},
                 {"#123456", QColor(0x12, 0x34, 0x56)},
                 {"123456", QColor(0x12, 0x34, 0x56)},
                 {"f00", Qt::red},
                 {"80ff0000", QColor(255, 0, 0, 128)},
                 {"", QColor()},
                 {"reddish", QColor()},
                 {"12345", QColor()}};
    for (const auto& typed : cases)
        EXPECT_EQ(colorNames::colorNamed(typed.text), typed.color) << typed.text;
    EXPECT_EQ(colorNames::nameOf(QColor(255, 0, 0, 128)), QString("#80ff0000"));
}

TEST_F(ColorPickerTest, TheGridIsWalkedByKeyboard)
{
    QtColorPicker picker;
    picker.setColor(Qt::red);
    picker.setUsedColors([] { return std::vector<QColor>{QColor("#102030"), Qt::green}; });
    QSignalSpy chosen(&picker, &QtColorPicker::colorChosen);
    picker.show();
    EXPECT_EQ(picker.accessibleDescription(), QString("Red"));
    QTest::keyClick(&picker, Qt::Key_Space);
    ASSERT_TRUE(picker.popup());
    EXPECT_EQ(focusedName(), QString("Red")); // opens on its own colour
    const struct
    {
        Qt::Key key;
        const char* name;
    } moves[] = {{Qt::Key_Right, "Orange"},
                 {Qt::Key_Up, "Dim grey"},
                 {Qt::Key_End, "Pink"},
                 {Qt::Key_Right, "Red"},
                 {Qt::Key_Left, "Pink"},
                 {Qt::Key_Down, "Magenta"},
                 {Qt::Key_Down, "Indigo"},
                 {Qt::Key_Down, "Lime"},
                 {Qt::Key_Home, "Dark blue, #102030"},
                 {Qt::Key_Down, ""},
                 {Qt::Key_Up, "Dark blue, #102030"}};
    for (const auto& move : moves) {
        QTest::keyClick(picker.popup()->focusWidget(), move.key);
        EXPECT_EQ(focusedName(), QString(move.name));
    }
    QTest::keyClick(picker.popup()->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(picker.popup());
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(picker.color(), QColor("#102030"));

    QTest::keyClick(&picker, Qt::Key_Down);
    ASSERT_TRUE(picker.popup());
    QTest::keyClick(picker.popup(), Qt::Key_Escape);
    EXPECT_FALSE(picker.popup());
    EXPECT_EQ(chosen.count(), 1);
    picker.setColorDialogEnabled(false);
    QTest::mouseClick(&picker, Qt::LeftButton);
    EXPECT_FALSE(picker.popup()->findChild<QPushButton*>("more"));
}

TEST_F(ColorPickerTest, OffersWhatTheDocumentUsesAndTheDialog)
{
    const auto parts = add("controls/gauge", 3);
    for (PartImpl* part : parts)
        ASSERT_TRUE(set(property(part, "tint"), Value(QColor("#abcdef"))));
    auto& picker = place(new ObserverColorPicker, "tint");
    picker.bind(&document, nodesOf(parts));
    QTest::mouseClick(picker.picker(), Qt::LeftButton);
    QStringList names;
    const auto swatches = picker.picker()->popup()->findChildren<QToolButton*>();
    for (const QToolButton* swatch : swatches)
        names << swatch->accessibleName();
    EXPECT_EQ(names.count("Light blue, #abcdef"), 1);
    EXPECT_EQ(names.count("Lime"), 2); // a standard one, and in use

    QTest::mouseClick(picker.picker()->popup()->findChild<QPushButton*>("more"), Qt::LeftButton);
    ASSERT_TRUE(picker.picker()->colorDialog());
    picker.picker()->colorDialog()->setCurrentColor(QColor("#010203"));
    picker.picker()->colorDialog()->accept();
    EXPECT_EQ(colorOf(parts[2]), QColor("#010203"));

    // An open question belongs to the nodes that it was asked for.
    QTest::mouseClick(picker.picker(), Qt::LeftButton);
    ASSERT_TRUE(picker.picker()->popup());
    picker.bind(&document, {gauge()});
    EXPECT_FALSE(picker.picker()->popup());
}

TEST_F(ColorPickerTest, MixedColorsStayUntilOneIsChosen)
{
    const auto parts = add("controls/gauge", 2);
    ASSERT_TRUE(set(property(parts[0], "tint"), Value(QColor(Qt::blue))));
    auto& picker = place(new ObserverColorPicker, "tint");
    const QByteArray before = bytesOf(document);
    picker.bind(&document, nodesOf(parts));
    EXPECT_FALSE(picker.picker()->color().isValid());
    EXPECT_EQ(picker.editor()->text(), QString());
    EXPECT_EQ(picker.picker()->accessibleDescription(), QString("Different colours"));
    const QImage swatch = picker.picker()->icon().pixmap(32, 14).toImage();
    std::set<QRgb> inks;
    for (int x = 4; x < 28; ++x)
        inks.insert(swatch.pixel(x, 7));
    EXPECT_GT(inks.size(), 1U); // hatched
    picker.editor()->setFocus();
    QTest::keyClick(picker.editor(), Qt::Key_Return);
    other->setFocus();
    EXPECT_EQ(bytesOf(document), before);

    const int steps = undoSteps();
    QTest::mouseClick(picker.picker(), Qt::LeftButton);
    QTest::keyClick(picker.picker()->popup()->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(colorOf(parts[0]), QColor(Qt::black));
    EXPECT_EQ(colorOf(parts[1]), QColor(Qt::black));
    EXPECT_EQ(undoSteps(), steps + 1);
    EXPECT_EQ(picker.editor()->text(), QString("Black"));
    document.undo();
    EXPECT_FALSE(picker.picker()->color().isValid());
}

TEST_F(ColorPickerTest, TypedNamesAreCommittedOnceAndWhereTheyBegan)
{
    PartImpl* part = gauge();
    auto& picker = place(new ObserverColorPicker, "tint");
    LineEdit& editor = *picker.editor();
    picker.bind(&document, {part});
    EXPECT_EQ(editor.text(), QString("Red"));
    const int steps = undoSteps();
    editor.setFocus();
    editor.selectAll();
    QTest::keyClicks(&editor, "teal");
    EXPECT_EQ(colorOf(part), QColor(Qt::red));
    QTest::keyClick(&editor, Qt::Key_Return);
    EXPECT_EQ(colorOf(part), QColor("teal"));
    EXPECT_EQ(editor.text(), QString("Teal"));
    other->setFocus();
    EXPECT_EQ(undoSteps(), steps + 1);

    editor.setFocus();
    editor.selectAll();
    QTest::keyClicks(&editor, "teel");
    EXPECT_EQ(editor.palette().color(QPalette::Text), QColor(Qt::red));
    EXPECT_EQ(picker.toolTip(), QString("This names no colour."));
    EXPECT_EQ(editor.accessibleDescription(), QString("This names no colour."));
    ASSERT_TRUE(set(property(part, "tint"), Value(QColor(Qt::white)))); // meanwhile
    EXPECT_EQ(editor.text(), QString("teel"));
    QTest::keyClick(&editor, Qt::Key_Escape);
    EXPECT_EQ(editor.text(), QString("White"));
    EXPECT_NE(editor.palette().color(QPalette::Text), QColor(Qt::red));
    EXPECT_EQ(picker.toolTip(), QString());

    editor.selectAll();
    QTest::keyClicks(&editor, "gold");
    PartImpl* next = gauge();
    picker.bind(&document, {next});
    EXPECT_EQ(colorOf(part), QColor("gold"));
    EXPECT_EQ(colorOf(next), QColor(Qt::red));
    EXPECT_EQ(editor.text(), QString("Red"));

    picker.setModelProperty("paint"); // one of two
    picker.bind(&document, {next});
    editor.setFocus();
    editor.selectAll();
    QTest::keyClicks(&editor, "gold");
    EXPECT_EQ(editor.palette().color(QPalette::Text), QColor(Qt::red));
    other->setFocus();
    EXPECT_EQ(colorOf(next, "paint"), QColor(Qt::green));
    EXPECT_EQ(editor.text(), QString("Lime"));
}

TEST_F(ColorPickerTest, TakesDroppedColoursUnlessReadOnly)
{
    PartImpl* part = gauge();
    auto& picker = place(new ObserverColorPicker, "tint");
    picker.bind(&document, {part});
    QMimeData content;
    content.setColorData(QColor(Qt::cyan));
    EXPECT_TRUE(dropOn(picker, content));
    EXPECT_EQ(colorOf(part), QColor(Qt::cyan));
    QMimeData text;
    text.setText("navy");
    EXPECT_TRUE(dropOn(picker, text));
    EXPECT_EQ(colorOf(part), QColor("navy"));
    text.setText("not a colour");
    EXPECT_FALSE(dropOn(picker, text));
    lock(part);
    EXPECT_FALSE(picker.isEnabled());
    static_cast<QWidget&>(picker).setEnabled(true);
    EXPECT_FALSE(picker.picker()->isEnabled());
    EXPECT_FALSE(dropOn(picker, content));
    document.undo();

    const QPointer<ObserverColorPicker> alive(&picker);
    QObject::connect(property(part, "tint"), &PropertyImpl::ValueChanged, &picker, [&] { delete alive.data(); });
    QTest::mouseClick(picker.picker(), Qt::LeftButton);
    QTest::keyClick(picker.picker()->popup()->focusWidget(), Qt::Key_Right);
    QTest::keyClick(picker.picker()->popup()->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(alive);
    EXPECT_EQ(colorOf(part), QColor("purple"));
}
