#include "zkeditor/widgets/observerCombobox.h"
#include "choicesFixture.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/values/validator.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QStyleOptionComboBox>
#include <QTranslator>
#include <ctime>

namespace {

/// Lets the tests see what is painted where.
class SeenCombo : public ObserverComboBox
{
public:
    QRect field() const
    {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    }
    QImage look() { return grab().toImage(); }
    QColor middle() { return look().pixelColor(field().center()); }
    /// Ink in the leading and trailing half of the field.
    std::pair<int, int> halves()
    {
        const QRect all = field().adjusted(2, 3, -2, -3);
        const QRect left(all.topLeft(), QSize(all.width() / 2, all.height()));
        const QImage image = look();
        const int middle = all.center().x();
        return {inkIn(image, left, middle), inkIn(image, left.translated(all.width() / 2, 0), middle)};
    }
};

class ObserverComboBoxTest : public ChoicesTest
{
protected:
    SeenCombo& bound(const char* key, const std::vector<PartImpl*>& parts)
    {
        SeenCombo& combo = place(new SeenCombo, key);
        combo.bind(&document, nodesOf(parts));
        return combo;
    }
    static QStringList items(const QComboBox& combo)
    {
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i)
            texts << combo.itemText(i);
        return texts;
    }
    static void choose(QComboBox& combo, int index)
    {
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
        ASSERT_TRUE(combo.view()->isVisible());
        QTest::keyClick(combo.view(), Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(combo.view(), Qt::Key_Down);
        QTest::keyClick(combo.view(), Qt::Key_Return);
    }
};

using ObserverComboBoxDeathTest = ObserverComboBoxTest;

class WordTranslator : public QTranslator
{
public:
    WordTranslator() { QApplication::installTranslator(this); }
    ~WordTranslator() override { QApplication::removeTranslator(this); }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const QByteArray asked = QByteArray(context) + ' ' + source;
        if (asked == "choices/chooser Slow" || asked == "choices/* Slow")
            return QStringLiteral("Langsam");
        return asked == "choices/chooser Keep <b>warm</b>" ? QStringLiteral("Halte <b>warm</b>") : QString();
    }
    bool isEmpty() const override { return false; }
};

/// A set validator of the package, which gets its values back at the end.
class ChangedSet
{
public:
    ChangedSet(PartImpl* part, const char* key)
        : m_set(dynamic_cast<SetValidator*>(property(part, key)->getValidator())), m_before(m_set->getValidValues())
    {
    }
    ~ChangedSet() { m_set->setValidValues(m_before); }
    void allow(const Value& list) { m_set->setValidValues(list); }

private:
    SetValidator* m_set;
    Value m_before;
};

} // namespace

TEST_F(ObserverComboBoxTest, BoolHasTwoItemsAndWritesWhatIsChosen)
{
    PartImpl* part = add("choices/plain");
    SeenCombo& combo = place(new SeenCombo, "on");
    EXPECT_TRUE(combo.setProperty("trueString", "yes"));
    combo.bind(&document, {part});
    combo.bind(&document, {part});
    EXPECT_EQ(items(combo), QStringList({"yes", "false"}));
    EXPECT_EQ(combo.currentIndex(), 1);
    EXPECT_EQ(combo.accessibleName(), QString("On"));
    const int steps = undoSteps();
    choose(combo, 0);
    EXPECT_TRUE(isOn(part));
    EXPECT_EQ(undoSteps(), steps + 1); // bound twice, written once
    choose(combo, 0);                  // has it already
    EXPECT_EQ(undoSteps(), steps + 1);
    document.undo();
    EXPECT_EQ(combo.currentIndex(), 1);
    combo.unbind();
    choose(combo, 0);
    EXPECT_FALSE(isOn(part));
}

TEST_F(ObserverComboBoxTest, ListsOfEveryKindAreItems)
{
    PartImpl* part = add("choices/chooser");
    struct Case
    {
        const char* key;
        QStringList texts;
        int shown;
        int chosen;
        Value written;
    };
    const std::vector<Case> cases = {
        {"count", {"1", "2", "5", "7", "9"}, 1, 2, Value(5)},
        {"ratio", {formatValueAsString(number(0.5)), formatValueAsString(number(1.5))}, 1, 0, number(0.5)},
        {"spot",
         {formatValueAsString(Value(zk::Point{0, 0})), formatValueAsString(Value(zk::Point{0, 1}))},
         1,
         0,
         Value(zk::Point{0, 0})},
        {"picture", {"choices/images/fast", "choices/images/slow"}, 1, 0, Value(Resource("choices/images/fast"))},
    };
    SeenCombo& combo = place(new SeenCombo, "count");
    for (const Case& each : cases) {
        ObserverComboBox fresh; // the type is that of the first binding
        fresh.setModelProperty(QString::fromLatin1(each.key));
        fresh.bind(&document, {part});
        EXPECT_EQ(items(fresh), each.texts);
        EXPECT_EQ(fresh.currentIndex(), each.shown) << each.key;
        fresh.show();
        choose(fresh, each.chosen);
        EXPECT_EQ(property(part, each.key)->getValue(), each.written) << each.key;
    }
    combo.bind(&document, {part});
    ChangedSet values(part, "count");
    values.allow(Value(std::vector<Value>{Value(5), Value(6)}));
    EXPECT_EQ(items(combo), QStringList({"5", "6"}));
    EXPECT_EQ(combo.currentIndex(), 0);
}

TEST_F(ObserverComboBoxTest, StringsAreShownAsTheirClassSays)
{
    PartImpl* part = add("choices/chooser");
    document.setSelection({part});
    auto translator = std::make_unique<WordTranslator>();
    SeenCombo& combo = place(new SeenCombo, "mode");
    MessageCapture capture; // of the picture that is none
    combo.bind(&document, {part});
    EXPECT_EQ(items(combo), QStringList({"", "Langsam", "Halte warm", "Broken", "a < b"}));
    EXPECT_EQ(capture.warnings().size(), 1);
    EXPECT_EQ(combo.itemIcon(0).pixmap(combo.iconSize()).toImage().pixelColor(5, 5), QColor("#2e9a4b"));
    EXPECT_EQ(combo.itemData(0, Qt::AccessibleTextRole).toString(), QString("Fast"));
    EXPECT_TRUE(combo.itemIcon(3).isNull());
    choose(combo, 2);
    EXPECT_EQ(text(part, "mode"), QString("Keep warm")); // the value, not what is shown

    translator.reset();
    document.setSelection({});
    combo.bind(&document, {part});
    EXPECT_EQ(items(combo), QStringList({"Fast", "Slow", "Keep warm", "Broken", "a < b"}));
}

TEST_F(ObserverComboBoxTest, DomainTextsAreTranslatedInTheDomain)
{
    const WordTranslator translator;
    SeenCombo& combo = place(new SeenCombo, "speed");
    combo.setSpacePropertyCid(getCidForString("choices/*"));
    combo.bind(&document, {firstScene(document)});
    EXPECT_EQ(items(combo), QStringList({"Fast", "Langsam"}));
    choose(combo, 1);
    EXPECT_EQ(
        firstScene(document)->getProperty(Property::getKeyForString("speed"), getCidForString("choices/*"))->getValue(),
        string("Slow"));
}

TEST_F(ObserverComboBoxTest, ColoursAreSwatches)
{
    PartImpl* part = add("choices/chooser");
    SeenCombo& combo = bound("tint", {part});
    ASSERT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.currentIndex(), 1);
    EXPECT_EQ(combo.iconSize().width(), 80);
    EXPECT_LT(combo.iconSize().height(), 60);
    for (const auto& [index, color] : {std::pair(0, QColor(Qt::red)), std::pair(2, QColor(Qt::white))}) {
        const QImage swatch = combo.itemIcon(index).pixmap(combo.iconSize()).toImage();
        EXPECT_EQ(swatch.pixelColor(swatch.rect().center()), color);
        EXPECT_EQ(swatch.pixelColor(0, 2), QColor(Qt::black));
        EXPECT_EQ(swatch.pixelColor(75, swatch.height() - 3), QColor(Qt::black));
        EXPECT_EQ(swatch.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(swatch.pixelColor(78, swatch.height() - 1).alpha(), 0);
    }
    choose(combo, 0);
    EXPECT_EQ(property(part, "tint")->getValue(), Value(QColor(Qt::red)));
    EXPECT_EQ(combo.middle(), QColor(Qt::red));
}

TEST_F(ObserverComboBoxTest, ColoursInAFoldedSectionAreSwatchesWhenItIsOpened)
{
    PartImpl* part = add("choices/chooser");
    const MessageCapture quiet;
    SeenCombo& combo = place(new SeenCombo, "tint");
    combo.hide();
    combo.resize(combo.width(), 0);
    combo.bind(&document, {part});
    combo.show();
    QApplication::processEvents();
    EXPECT_EQ(combo.middle(), property(part, "tint")->getValue().toQColor());
    EXPECT_EQ(quiet.texts().filter(QStringLiteral("QPainter")), QStringList());
}

TEST_F(ObserverComboBoxTest, NumbersKeepTheirOrderInMirroredForms)
{
    PartImpl* part = add("choices/chooser");
    SeenCombo& combo = bound("spot", {part});
    combo.setFixedWidth(200);
    // "0, 1", not "1 ,0": the comma stands closer to the digit at its left.
    const auto commaFollowsAtLeft = [](const QImage& image, const QRect& area) {
        std::vector<int> gaps;
        int last = -1;
        for (int x = area.left(); x <= area.right(); ++x) {
            int darkest = 255;
            for (int y = area.top(); y <= area.bottom(); ++y)
                darkest = std::min(darkest, qGray(image.pixel(x, y)));
            if (darkest > 140)
                continue;
            if (last >= 0 && x > last + 1)
                gaps.push_back(x - last);
            last = x;
        }
        return gaps.size() == 2 && gaps[0] < gaps[1];
    };
    const auto fieldIsRight = [&] { return commaFollowsAtLeft(combo.look(), combo.field().adjusted(2, 4, -2, -4)); };
    EXPECT_TRUE(fieldIsRight());
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(fieldIsRight());
    EXPECT_EQ(combo.currentText(), QString("0, 1")); // for listeners, without any marks
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(combo.view(), Qt::Key_Home);
    const QRect last = combo.view()->visualRect(combo.model()->index(1, 0));
    EXPECT_TRUE(commaFollowsAtLeft(combo.view()->viewport()->grab().toImage(), last.adjusted(2, 2, -2, -2)));
    combo.hidePopup();
}

TEST_F(ObserverComboBoxTest, DifferentValuesAreBlankWhateverTheFirstIs)
{
    const auto parts = add("choices/chooser", 3);
    SeenCombo& combo = place(new SeenCombo, "mode");
    QPalette palette;
    palette.setColor(QPalette::Base, QColor("#123456"));
    combo.setPalette(palette);
    for (size_t odd = 0; odd < parts.size(); ++odd) {
        for (PartImpl* part : parts)
            set(property(part, "mode"), string("Fast"));
        combo.bind(&document, nodesOf(parts)); // shows what the first, or the others, will still have
        EXPECT_FALSE(combo.showsNoValue());
        EXPECT_NE(combo.middle(), QColor("#123456"));
        set(property(parts[odd], "mode"), string("Slow"));
        EXPECT_TRUE(combo.showsNoValue());
        const QByteArray asBefore = bytesOf(document);
        combo.bind(&document, nodesOf(parts));
        EXPECT_TRUE(combo.showsNoValue());
        EXPECT_EQ(combo.middle(), QColor("#123456"));
        EXPECT_EQ(bytesOf(document), asBefore); // showing writes nothing

        const int steps = undoSteps();
        choose(combo, combo.currentIndex()); // the one below the blank
        EXPECT_FALSE(combo.showsNoValue());
        EXPECT_NE(combo.middle(), QColor("#123456"));
        EXPECT_EQ(undoSteps(), steps + 1);
        for (PartImpl* part : parts)
            EXPECT_EQ(property(part, "mode")->getValue(), property(parts[0], "mode")->getValue());
        document.undo();
        EXPECT_TRUE(combo.showsNoValue());
        EXPECT_EQ(bytesOf(document), asBefore);
    }
}

TEST_F(ObserverComboBoxTest, DisagreeingValidatorsKeepItDisabled)
{
    PartImpl* chooser = add("choices/chooser");
    PartImpl* twin = add("choices/twin");
    PartImpl* stranger = add("choices/stranger");
    PartImpl* plain = add("choices/plain");
    SeenCombo& combo = bound("mode", {chooser, twin});
    EXPECT_TRUE(combo.isEnabled());
    EXPECT_EQ(combo.count(), 5);
    for (PartImpl* other : {stranger, plain}) {
        combo.bind(&document, {chooser, other, twin});
        EXPECT_FALSE(combo.isEnabled());
        EXPECT_TRUE(combo.showsNoValue());
        combo.setEnabled(true);
        static_cast<QWidget&>(combo).setEnabled(true);
        run<SetUILockedCommand>(document, std::vector{Node(twin)}, LockPropertyValues, true);
        run<SetUILockedCommand>(document, std::vector{Node(twin)}, LockPropertyValues, false);
        EXPECT_FALSE(combo.isEnabled());
        set(property(twin, "mode"), string("Slow"));
        set(property(twin, "mode"), string("Fast"));
        EXPECT_TRUE(combo.showsNoValue());
        const int steps = undoSteps();
        QTest::keyClick(&combo, Qt::Key_Down);
        EXPECT_EQ(undoSteps(), steps);
    }
    combo.bind(&document, {chooser, twin});
    EXPECT_TRUE(combo.isEnabled());
    EXPECT_FALSE(combo.showsNoValue());

    ChangedSet values(twin, "mode");
    values.allow(Value(std::vector{QString("Fast")}));
    EXPECT_FALSE(combo.isEnabled());
    ChangedSet others(chooser, "mode");
    others.allow(Value(std::vector{QString("Fast")}));
    EXPECT_TRUE(combo.isEnabled());
    EXPECT_EQ(items(combo), QStringList("Fast"));
    EXPECT_FALSE(combo.showsNoValue());

    // Properties that need no validator have none to disagree about.
    SeenCombo flags;
    flags.setModelProperty("on");
    flags.bind(&document, {chooser, twin, plain});
    EXPECT_TRUE(flags.isEnabled());
    EXPECT_EQ(flags.count(), 2);
}

TEST_F(ObserverComboBoxTest, TellsListenersWhatIsShownWithoutWritingIt)
{
    PartImpl* part = add("choices/chooser");
    ASSERT_TRUE(set(property(part, "mode"), string("a < b")));
    SeenCombo& combo = bound("mode", {part}); // the connection that writes is there now
    ASSERT_TRUE(set(property(part, "mode"), string("Slow")));
    QSignalSpy indices(&combo, &QComboBox::activated);
    QSignalSpy texts(&combo, &QComboBox::textActivated);
    const int steps = undoSteps();
    combo.bind(&document, {part});
    ChangedSet values(part, "mode");
    values.allow(Value(std::vector{QString("None"), QString("Slow")}));
    ASSERT_EQ(indices.count(), 2);
    EXPECT_EQ(indices[0][0].toInt(), 1);
    EXPECT_EQ(indices[1][0].toInt(), 1);
    EXPECT_EQ(texts[1][0].toString(), QString("Slow"));
    EXPECT_EQ(undoSteps(), steps);

    // A value that is not among the items leaves the item shown, which can be chosen then.
    values.allow(Value(std::vector{QString("None"), QString("Fast")}));
    EXPECT_EQ(combo.currentText(), QString("None"));
    EXPECT_EQ(text(part, "mode"), QString("Slow"));
    EXPECT_EQ(undoSteps(), steps);
    choose(combo, 0);
    EXPECT_EQ(text(part, "mode"), QString("None"));
}

TEST_F(ObserverComboBoxTest, WhatListenersDoWhileBindingIsSurvived)
{
    PartImpl* part = add("choices/chooser");
    auto* combo = new ObserverComboBox;
    combo->setModelProperty("mode");
    const QPointer<ObserverComboBox> alive(combo);
    QObject::connect(combo, &QComboBox::textActivated, combo, [combo] { combo->unbind(); });
    combo->bind(&document, {part});
    QObject::connect(combo, &QComboBox::activated, &window, [combo] { delete combo; });
    combo->bind(&document, {part});
    EXPECT_FALSE(alive);
}

TEST_F(ObserverComboBoxTest, FaultsAreWarningsAndWriteNothing)
{
    PartImpl* plain = add("choices/plain");
    PartImpl* chooser = add("choices/chooser");
    SeenCombo& combo = place(new SeenCombo, "mode");
    MessageCapture capture;
    combo.bind(&document, {plain});
    EXPECT_EQ(capture.warnings(),
              QStringList({"ObserverComboBox: No SetValidator found on Property mode. Maybe an unintialised proxy?",
                           "ObserverComboBox: Found no combo items during setup"}));
    EXPECT_EQ(combo.count(), 0);
    combo.bind(&document, {chooser});
    capture.clear();
    const int steps = undoSteps();
    Q_EMIT combo.activated(5);
    EXPECT_EQ(capture.warnings(),
              QStringList("m_comboValues.size() <= uindex : returning early from onWidgetValueChanged"));
    EXPECT_EQ(undoSteps(), steps);
    ChangedSet values(chooser, "mode");
    capture.clear();
    values.allow(Value(std::vector<QString>()));
    EXPECT_EQ(capture.warnings(), QStringList("ObserverComboBox: Found no combo items during setup"));
}

TEST_F(ObserverComboBoxDeathTest, ListsThatCannotBeShownAreFatal)
{
    PartImpl* part = add("choices/chooser");
    ObserverComboBox combo;
    combo.setModelProperty("count");
    combo.bind(&document, {part});
    ObserverComboBox colors;
    colors.setModelProperty("tint");
    colors.bind(&document, {part});
    ChangedSet counts(part, "count");
    ChangedSet tints(part, "tint");
    EXPECT_DEATH(counts.allow(Value(std::vector{QString("1")})),
                 "ObserverComboBox: SetValidator contains un-handled types");
    EXPECT_DEATH(tints.allow(Value(std::vector{Value(1)})), "ZK_ASSERT: \"I->type\\(\\) == Value::COLOR\"");
}

TEST_F(ObserverComboBoxTest, HeldKeyIsOneStepAndTwoPressesAreTwo)
{
    PartImpl* part = add("choices/chooser");
    set(property(part, "count"), Value(1));
    SeenCombo& combo = bound("count", {part});
    combo.setFocus();
    const auto key = [&](QEvent::Type type, bool repeat) {
        QKeyEvent event(type, Qt::Key_Down, {}, QString(), repeat);
        QApplication::sendEvent(&combo, &event);
    };
    const int steps = undoSteps();
    key(QEvent::KeyPress, false);
    for (int i = 0; i < 2; ++i) {
        key(QEvent::KeyRelease, true);
        key(QEvent::KeyPress, true);
    }
    key(QEvent::KeyRelease, false);
    EXPECT_EQ(whole(part, "count"), 7);
    EXPECT_EQ(undoSteps(), steps + 1);
    QTest::keyClick(&combo, Qt::Key_Up);
    QTest::keyClick(&combo, Qt::Key_Up);
    EXPECT_EQ(undoSteps(), steps + 3);
    key(QEvent::KeyPress, false);
    after->setFocus(); // the release goes elsewhere
    choose(combo, 0);
    choose(combo, 4);
    EXPECT_EQ(undoSteps(), steps + 6);
    document.undo();
    EXPECT_EQ(whole(part, "count"), 1);
}

TEST_F(ObserverComboBoxTest, LookingWritesNothing)
{
    const auto parts = add("choices/chooser", 2);
    set(property(parts[0], "mode"), string("Slow"));
    SeenCombo& combo = bound("mode", parts);
    const int steps = undoSteps();
    QTest::keyClick(before, Qt::Key_Tab);
    EXPECT_TRUE(combo.hasFocus());
    QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Escape);
    EXPECT_FALSE(combo.view()->isVisible());
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_TRUE(after->hasFocus());
    EXPECT_TRUE(combo.showsNoValue());
    EXPECT_EQ(undoSteps(), steps);

    QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
    combo.bind(&document, {parts[0]}); // an open list belongs to the nodes it was opened for
    EXPECT_FALSE(combo.view()->isVisible());
    EXPECT_FALSE(combo.showsNoValue());

    combo.setSupportsMultipleProps(false);
    combo.bind(&document, nodesOf(parts));
    EXPECT_FALSE(combo.isEnabled());
    EXPECT_TRUE(combo.showsNoValue()); // nothing of the node before
}

TEST_F(ObserverComboBoxTest, EditableTakesTextsOfItemsOnly)
{
    PartImpl* part = add("choices/chooser");
    SeenCombo& combo = place(new SeenCombo, "mode");
    EXPECT_TRUE(combo.setProperty("editable", true));
    combo.bind(&document, {part});
    combo.setFocus();
    combo.lineEdit()->selectAll();
    QTest::keyClicks(combo.lineEdit(), "slow");
    QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(text(part, "mode"), QString("Slow"));
    combo.lineEdit()->selectAll();
    QTest::keyClicks(combo.lineEdit(), "xyz");
    QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(combo.currentText(), QString("Slow"));
    EXPECT_EQ(combo.count(), 5);
}

TEST_F(ObserverComboBoxTest, ClosedFieldRendersMarkup)
{
    PartImpl* part = add("choices/chooser");
    document.setSelection({part});
    set(property(part, "mode"), string("Keep warm"));
    const MessageCapture quiet;
    SeenCombo& combo = place(new SeenCombo, "mode");
    combo.setFixedWidth(400);
    combo.setRichTextEnabled(false);
    combo.bind(&document, {part});
    EXPECT_EQ(combo.currentText(), QString("Keep <b>warm</b>"));
    const int raw = combo.halves().first;
    combo.setRichTextEnabled(true);
    combo.bind(&document, {part});
    const auto [left, right] = combo.halves();
    EXPECT_GT(left, 20);
    EXPECT_LT(left, raw); // without the tags
    EXPECT_EQ(right, 0);
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(combo.halves().first, 0);
    EXPECT_NEAR(combo.halves().second, left, left / 5.0);
    QPalette dark(QColor("#202020"), QColor("#202020"));
    dark.setColor(QPalette::ButtonText, Qt::white);
    window.setPalette(dark);
    const QImage image = combo.look().copy(combo.field().adjusted(2, 3, -2, -3));
    const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
    EXPECT_TRUE(std::any_of(pixels, pixels + image.sizeInBytes() / 4, [](QRgb pixel) { return qGray(pixel) > 200; }));
    // The list renders it as well.
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
    const QImage list = combo.view()->viewport()->grab().toImage();
    const QRect row = combo.view()->visualRect(combo.model()->index(2, 0)).adjusted(2, 2, -2, -2);
    EXPECT_GT(inkIn(list, row.intersected(list.rect()), row.left()), 20);
    combo.hidePopup();
}

TEST_F(ObserverComboBoxTest, ThousandsOfNodesCostNoMoreThanTheirNumber)
{
    const auto seconds = [this](int count) {
        std::vector<NodeSnapshot> snapshots;
        snapshots.reserve(static_cast<size_t>(count));
        for (int i = 0; i < count; ++i)
            snapshots.push_back(NodeSnapshot::ofPrototype(*document.getNodeDb(), getCidForString("choices/chooser")));
        const Value added = run<AddNodesCommand>(document, Node(firstScene(document)), std::move(snapshots));
        std::vector<PartImpl*> parts;
        for (const Value& each : added.toValueVector())
            parts.push_back(qobject_cast<PartImpl*>(each.toNode().impl()));
        EXPECT_EQ(parts.size(), static_cast<size_t>(count));
        ObserverComboBox combo;
        combo.setModelProperty("mode");
        const Nodes nodes = nodesOf(parts);
        for (PartImpl* part : parts)
            property(part, "mode");
        auto command = std::make_unique<SetValueCommand>(true);
        for (PartImpl* part : parts)
            command->addProperty(Property(property(part, "mode")), string("Slow"));
        const std::clock_t begin = std::clock();
        combo.bind(&document, nodes);
        QSignalSpy rebuilt(combo.model(), &QAbstractItemModel::rowsInserted);
        document.executeCommand(command.release());
        EXPECT_EQ(combo.currentText(), QString("Slow"));
        EXPECT_EQ(rebuilt.count(), 0); // not for each notification
        combo.unbind();
        return static_cast<double>(std::clock() - begin);
    };
    seconds(100);
    const double few = seconds(1250);
    EXPECT_LT(seconds(10000), 30 * few); // eight times as many
}
