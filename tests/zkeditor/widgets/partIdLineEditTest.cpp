#include "zkeditor/widgets/partIdLineEdit.h"
#include "collectionsFixture.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QSignalSpy>

class PartIdLineEditTest : public CollectionsTest
{
protected:
    PartIdLineEdit& fieldOf(const Nodes& nodes)
    {
        auto& field = placeAs(new PartIdLineEdit, "field");
        field.bind(&document, nodes);
        field.setFocus();
        field.selectAll();
        return field;
    }
};

TEST_F(PartIdLineEditTest, OnePart)
{
    PartImpl* part = rack();
    PartImpl* second = rack();
    auto& field = fieldOf({part});
    EXPECT_EQ(field.text(), idOf(part));
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    QTest::keyClicks(&field, "shelf");
    EXPECT_EQ(bytesOf(document), before);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(idOf(part), QString("shelf"));
    expectOneStepSince(before, steps);

    field.selectAll();
    QTest::keyClicks(&field, "a b");
    EXPECT_EQ(field.toolTip(), QString("The id must not contain blanks."));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::red));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(field.text(), idOf(part));
    EXPECT_EQ(bytesOf(document), before);

    // A free one is offered in the place of one that is taken.
    field.selectAll();
    QTest::keyClicks(&field, idOf(second));
    EXPECT_EQ(field.toolTip(), QString("Another part has this id."));
    const QString offered = field.suggestion();
    EXPECT_FALSE(offered.isEmpty());
    QWidget* popup = field.findChild<QCompleter*>()->popup();
    ASSERT_TRUE(popup->isVisible());
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
    EXPECT_EQ(field.text(), offered);
    EXPECT_EQ(field.toolTip(), QString());
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(idOf(part), offered);

    field.selectAll();
    QTest::keyClicks(&field, "gone");
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(field.text(), offered);
}

TEST_F(PartIdLineEditTest, SeveralPartsAreNumbered)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    PartImpl* third = rack();
    PartImpl* outside = rack();
    set(property(outside, "id"), string("x2"));
    set(property(second, "id"), string("x1")); // has what the first one gets
    auto& field = fieldOf({third, first, second});
    QSignalSpy previews(&field, &PartIdLineEdit::previewChanged);
    EXPECT_EQ(field.text(), QString());
    EXPECT_FALSE(field.placeholderText().isEmpty());
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    QTest::keyClicks(&field, "x");
    EXPECT_EQ(field.preview(), QString("x1, x3, x4"));
    EXPECT_EQ(previews.size(), 1);
    EXPECT_EQ(bytesOf(document), before);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(idOf(first), QString("x1"));
    EXPECT_EQ(idOf(second), QString("x3"));
    EXPECT_EQ(idOf(third), QString("x4"));
    EXPECT_EQ(field.preview(), QString());
    expectOneStepSince(before, steps);

    for (const auto& [typed, ids] : {std::pair{"part7", "part7, part8, part9"}, std::pair{"a#b", "a1b, a2b, a3b"}}) {
        field.selectAll();
        QTest::keyClicks(&field, typed);
        EXPECT_EQ(field.proposedIds().join(", "), QString(ids));
    }
    for (const char* wrong : {"a b", "##"}) {
        field.selectAll();
        QTest::keyClicks(&field, wrong);
        EXPECT_FALSE(field.toolTip().isEmpty()) << wrong;
        EXPECT_TRUE(field.proposedIds().isEmpty() || !field.toolTip().isEmpty());
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(bytesOf(document), before);
    }
    other->setFocus(); // an empty field that was left as it was writes nothing
    EXPECT_EQ(bytesOf(document), before);
    field.setFocus();
    QTest::keyClicks(&field, "y");
    other->setFocus();
    EXPECT_EQ(idOf(first), QString("y1"));
}

// Ctrl+Z takes back what is being typed, and after that what was written.
TEST_F(PartIdLineEditTest, UndoIsTheDocumentsOnceTheTextIsWritten)
{
    PartImpl* part = rack();
    const QString id = idOf(part);
    auto* undo = new QAction(&window);
    undo->setShortcut(QKeySequence::Undo);
    window.addAction(undo);
    QObject::connect(undo, &QAction::triggered, &document, &DocumentImpl::undo);
    auto& field = fieldOf({part});
    QTest::keyClicks(&field, "shelf");
    const int steps = undoSteps();
    QTest::keySequence(&field, QKeySequence::Undo);
    EXPECT_EQ(undoSteps(), steps);
    EXPECT_NE(field.text(), QString("shelf"));
    field.selectAll();
    QTest::keyClicks(&field, "shelf");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(idOf(part), QString("shelf"));
    QTest::keySequence(&field, QKeySequence::Undo);
    EXPECT_EQ(idOf(part), id);
    EXPECT_EQ(field.text(), id);
}
