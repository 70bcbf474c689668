#include "zkeditor/widgets/fontChooser.h"
#include "collectionsFixture.h"
#include "zkeditor/widgets/comboBox.h"

#include <QCheckBox>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QLabel>
#include <QTimer>

class FontChooserTest : public CollectionsTest
{
protected:
    static Value face(const char* family, double points, int weight, bool italic)
    {
        return Value(ValueMap{{"family", Value(QString::fromLatin1(family))},
                              {"size", Value(points * 0.0254 / 72)},
                              {"weight", Value(weight)},
                              {"italic", Value(italic)},
                              {"more", Value(1)}});
    }
    FontChooser& chooserOf(const Nodes& nodes)
    {
        auto& chooser = place(new FontChooser, "face");
        chooser.bind(&document, nodes);
        size = chooser.findChild<ComboBox*>("size");
        weight = chooser.findChild<ComboBox*>("weight");
        italic = chooser.findChild<QCheckBox*>("italic");
        family = chooser.findChild<QFontComboBox*>("family");
        return chooser;
    }
    static Value at(NodeImpl* node, const char* key)
    {
        const ValueMap map = property(node, "face")->getValue().toValueMap();
        const auto entry = map.find(QString::fromLatin1(key));
        return entry == map.end() ? Value() : entry->second;
    }
    void typeSize(const char* text, Qt::Key end)
    {
        size->setFocus();
        size->lineEdit()->selectAll();
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), end);
    }

    ComboBox* size = nullptr;
    ComboBox* weight = nullptr;
    QCheckBox* italic = nullptr;
    QFontComboBox* family = nullptr;
};

TEST_F(FontChooserTest, AttributesAreMixedAndWrittenOneByOne)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    set(property(first, "face"), face("DejaVu Sans", 12, 400, false));
    set(property(second, "face"), face("DejaVu Serif", 12, 700, true));
    auto& chooser = chooserOf({first, second});
    EXPECT_EQ(size->currentText(), QString("12"));
    EXPECT_EQ(weight->currentIndex(), -1);
    EXPECT_EQ(family->currentIndex(), -1);
    EXPECT_EQ(italic->checkState(), Qt::PartiallyChecked);

    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    typeSize("2*9", Qt::Key_Return);
    EXPECT_NEAR(at(second, "size").toDouble(), 18 * 0.0254 / 72, 1e-12);
    EXPECT_EQ(size->currentText(), QString("18"));
    EXPECT_EQ(at(first, "weight"), whole(400));
    EXPECT_EQ(at(second, "weight"), whole(700));
    EXPECT_EQ(at(second, "more"), whole(1));
    expectOneStepSince(before, steps);

    weight->setFocus();
    QTest::keyClick(weight, Qt::Key_End);
    EXPECT_EQ(at(first, "weight"), whole(900));
    EXPECT_EQ(at(first, "family"), string("DejaVu Sans"));
    EXPECT_EQ(at(second, "family"), string("DejaVu Serif"));
    expectOneStepSince(before, steps);

    QTest::keyClick(italic, Qt::Key_Space);
    EXPECT_TRUE(at(first, "italic").toBool());
    expectOneStepSince(before, steps);
    lock(second);
    EXPECT_FALSE(chooser.isEnabled());
}

TEST_F(FontChooserTest, SizesThatCannotBeAreNotWritten)
{
    PartImpl* part = rack();
    set(property(part, "face"), face("DejaVu Sans", 12, 400, false));
    auto& chooser = chooserOf({part});
    const QByteArray before = bytesOf(document);
    for (const char* wrong : {"0", "big", "5000"}) {
        size->setFocus();
        size->lineEdit()->selectAll();
        QTest::keyClicks(size, wrong);
        EXPECT_EQ(size->toolTip(), QString("The size is a number from 1 to 1000."));
        QTest::keyClick(size, Qt::Key_Return);
        EXPECT_EQ(size->currentText(), QString("12"));
    }
    typeSize("14", Qt::Key_Escape);
    EXPECT_EQ(size->currentText(), QString("12"));
    EXPECT_EQ(bytesOf(document), before);
    typeSize("13.5", Qt::Key_Tab); // none of those that are offered
    EXPECT_NEAR(at(part, "size").toDouble(), 13.5 * 0.0254 / 72, 1e-12);
    EXPECT_EQ(size->currentText(), QString("13.5"));
    typeSize("12", Qt::Key_Return);
    EXPECT_EQ(bytesOf(document), before);
    QTest::keyClicks(size, "0");
    chooser.unbind(); // what was typed is written: 120
    EXPECT_NEAR(at(part, "size").toDouble(), 120 * 0.0254 / 72, 1e-12);
}

TEST_F(FontChooserTest, KeysInTheSizeGoOnFromWhatIsShownAndUndoIsTheDocuments)
{
    PartImpl* part = rack();
    set(property(part, "face"), face("DejaVu Sans", 14.2, 400, false));
    chooserOf({part});
    size->setFocus();
    QTest::keyClick(size, Qt::Key_Down);
    EXPECT_EQ(size->currentText(), QString("16"));
    typeSize("33", Qt::Key_Return);
    QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    QApplication::sendEvent(size, &undo);
    EXPECT_FALSE(undo.isAccepted()); // so it is the host's
    QTest::keyClicks(size, "4");
    QApplication::sendEvent(size, &undo);
    EXPECT_TRUE(undo.isAccepted());
}

TEST_F(FontChooserTest, AnEmptyMapShowsTheProductsFont)
{
    PartImpl* part = rack();
    auto& chooser = chooserOf({part});
    const QByteArray before = bytesOf(document);
    const QFont usual = FontChooser::fontFrom({});
    EXPECT_EQ(usual.family(), QFont().family());
    EXPECT_EQ(chooser.findChild<QLabel*>("sample")->font().pointSizeF(), usual.pointSizeF());
    EXPECT_EQ(bytesOf(document), before);
    QTest::keyClick(italic, Qt::Key_Space);
    EXPECT_EQ(property(part, "face")->getValue(), Value(ValueMap{{"italic", Value(true)}}));
}

TEST_F(FontChooserTest, TheDialogWritesWhatIsChangedInIt)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    set(property(first, "face"), face("DejaVu Sans", 12.4, 400, false));
    set(property(second, "face"), face("DejaVu Serif", 10, 400, false));
    auto& chooser = chooserOf({first, second});
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    QTimer::singleShot(0, [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept(); });
    chooser.openDialog(); // which rounds sizes and does not know every weight
    EXPECT_EQ(bytesOf(document), before);
    QTimer::singleShot(0, [] {
        auto* dialog = qobject_cast<QFontDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        EXPECT_EQ(dialog->currentFont().weight(), QFont::Normal);
        dialog->setCurrentFont(QFontDatabase::font("DejaVu Sans", "Bold", 20));
        dialog->accept();
    });
    chooser.openDialog();
    EXPECT_NEAR(at(second, "size").toDouble(), 20 * 0.0254 / 72, 1e-12);
    EXPECT_EQ(at(second, "weight"), whole(700));
    EXPECT_EQ(at(second, "family"), string("DejaVu Serif"));
    expectOneStepSince(before, steps);
}
