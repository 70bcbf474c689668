// Every operation of every editor of collections and resources, on the document that shows them all: it changes the
// document in one step, and undo gives the file back byte for byte.
#include "collectionsFixture.h"
#include "zkcore/commands/resourceCommand.h"
#include "zkcore/media/resourceTable.h"
#include "zkeditor/widgets/checkBox.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/fontChooser.h"
#include "zkeditor/widgets/partIdLineEdit.h"
#include "zkeditor/widgets/propertyListBox.h"
#include "zkeditor/widgets/resourceChooser.h"
#include "zkeditor/widgets/resourceDropdown.h"
#include "zkeditor/widgets/resourceListBox.h"
#include "zkeditor/widgets/subpartCombobox.h"
#include "zkeditor/widgets/subpartListView.h"
#include "zkeditor/widgets/valueMapListBox.h"

#include <QFile>
#include <QFontComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QTreeView>
#include <QUrl>
#include <functional>
#include <memory>

namespace {

enum Bound { FirstPart, SecondPart, BothParts };

struct Operation
{
    const char* name;
    Bound bound;
    const char* property;                                        // null: the editor has none
    std::function<QWidget*()> make;                              // owned by the window
    std::function<void(QWidget*, const QTemporaryDir&)> operate; // as a user does it
};

template <typename Editor>
Operation operation(const char* name, Bound bound, const char* property,
                    std::function<void(Editor&, const QTemporaryDir&)> operate)
{
    return {
        name, bound, property, [] { return new Editor; },
        [operate](QWidget* widget, const QTemporaryDir& folder) { operate(static_cast<Editor&>(*widget), folder); }};
}

void pressIn(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    widget->setFocus();
    QTest::keyClick(widget, key, modifiers);
    QCoreApplication::processEvents();
}

void goTo(ListEditor& list, int row, int column = 0)
{
    list.view()->setCurrentIndex(list.view()->model()->index(row, column));
}

void typeAt(ListEditor& list, int row, int column, const char* text)
{
    goTo(list, row, column);
    pressIn(list.view(), Qt::Key_F2);
    typeInPlace(list.view(), QString::fromLatin1(text));
}

void drag(ListEditor& list, int row, int before)
{
    QAbstractItemModel* model = list.view()->model();
    const std::unique_ptr<QMimeData> rows(model->mimeData({model->index(row, 0)}));
    model->dropMimeData(rows.get(), Qt::MoveAction, before, 0, {});
}

QString pictureFile(const QTemporaryDir& folder, const char* name)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::green);
    const QString file = folder.filePath(QString::fromLatin1(name));
    image.save(file);
    return file;
}

void typeId(PartIdLineEdit& field, const char* id)
{
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(id));
    QTest::keyClick(&field, Qt::Key_Return);
}

/// A list of all subparts of a part, which are of several classes.
QWidget* listOfAllSubparts()
{
    auto* list = new SubpartListView;
    list->setSubpart(QStringLiteral("pins controls"));
    return list;
}

std::vector<Operation> operations()
{
    using Folder = const QTemporaryDir&;
    Operation ofChosenClass =
        operation<SubpartListView>("subpart of a chosen class added", BothParts, nullptr, [](auto& list, Folder) {
            pressIn(list.view(), Qt::Key_Insert);
            auto* classes = list.template findChild<QMenu*>();
            ASSERT_TRUE(classes->isVisible());
            QTest::keyClick(classes, Qt::Key_Down);
            QTest::keyClick(classes, Qt::Key_Return);
        });
    ofChosenClass.make = listOfAllSubparts;
    return {
        ofChosenClass,
        operation<SubpartListView>("subpart added", BothParts, nullptr,
                                   [](auto& list, Folder) { pressIn(list.view(), Qt::Key_Insert); }),
        operation<SubpartListView>("subpart renamed", BothParts, nullptr,
                                   [](auto& list, Folder) { typeAt(list, 1, 0, "east"); }),
        operation<SubpartListView>("subpart moved by keys", FirstPart, nullptr,
                                   [](auto& list, Folder) {
                                       goTo(list, 2);
                                       pressIn(list.view(), Qt::Key_Up, Qt::AltModifier);
                                   }),
        operation<SubpartListView>("subpart dragged", FirstPart, nullptr, [](auto& list, Folder) { drag(list, 0, 3); }),
        operation<SubpartListView>("subpart removed", FirstPart, nullptr,
                                   [](auto& list, Folder) {
                                       goTo(list, 2);
                                       pressIn(list.view(), Qt::Key_Delete);
                                   }),
        operation<ValueMapListBox>("entry added", BothParts, "table",
                                   [](auto& list, Folder) { pressIn(list.view(), Qt::Key_Insert); }),
        operation<ValueMapListBox>("key edited", BothParts, "table",
                                   [](auto& list, Folder) { typeAt(list, 0, 0, "pears"); }),
        operation<ValueMapListBox>("key edited into one that is there", FirstPart, "table",
                                   [](auto& list, Folder) { typeAt(list, 0, 0, "ripe"); }),
        operation<ValueMapListBox>("value edited", FirstPart, "table",
                                   [](auto& list, Folder) { typeAt(list, 0, 1, "77"); }),
        operation<ValueMapListBox>("kind chosen", FirstPart, "table",
                                   [](auto& list, Folder) {
                                       goTo(list, 0, 2);
                                       pressIn(list.view(), Qt::Key_F2);
                                       auto* kinds = list.view()->template findChild<QComboBox*>();
                                       ASSERT_TRUE(kinds);
                                       pressIn(kinds, Qt::Key_Home);
                                       settle();
                                   }),
        operation<ValueMapListBox>("entry removed", BothParts, "table",
                                   [](auto& list, Folder) {
                                       goTo(list, 0);
                                       pressIn(list.view(), Qt::Key_Delete);
                                   }),
        operation<ResourceChooser>(
            "file imported", BothParts, "picture",
            [](auto& chooser, Folder folder) { chooser.importFile(pictureFile(folder, "a.png")); }),
        operation<ResourceChooser>("resource of the document chosen", BothParts, "picture",
                                   [](auto& chooser, Folder) { pressIn(chooser.list(), Qt::Key_End); }),
        operation<ResourceChooser>("resource cleared", BothParts, "picture",
                                   [](auto& chooser, Folder) { pressIn(chooser.list(), Qt::Key_Delete); }),
        operation<ResourceDropdown>("resource chosen", FirstPart, "weather",
                                    [](auto& box, Folder) { pressIn(&box, Qt::Key_End); }),
        operation<ResourceListBox>("files added", FirstPart, "album",
                                   [](auto& list, Folder folder) {
                                       list.addFiles({pictureFile(folder, "a.png"), pictureFile(folder, "b.png")}, 1);
                                   }),
        operation<ResourceListBox>("files dropped", BothParts, "album",
                                   [](auto& list, Folder folder) {
                                       QMimeData files;
                                       files.setUrls({QUrl::fromLocalFile(pictureFile(folder, "a.png"))});
                                       list.view()->model()->dropMimeData(&files, Qt::CopyAction, 0, 0, {});
                                   }),
        operation<ResourceListBox>("picture moved by keys", FirstPart, "album",
                                   [](auto& list, Folder) {
                                       goTo(list, 0);
                                       pressIn(list.view(), Qt::Key_Down, Qt::AltModifier);
                                   }),
        operation<ResourceListBox>("picture dragged", FirstPart, "album", [](auto& list, Folder) { drag(list, 1, 0); }),
        operation<ResourceListBox>("picture removed", FirstPart, "album",
                                   [](auto& list, Folder) {
                                       goTo(list, 0);
                                       pressIn(list.view(), Qt::Key_Delete);
                                   }),
        operation<PartIdLineEdit>("id", FirstPart, nullptr, [](auto& field, Folder) { typeId(field, "album"); }),
        operation<PartIdLineEdit>("ids", BothParts, nullptr, [](auto& field, Folder) { typeId(field, "second"); }),
        operation<PropertyListBox>("linked", BothParts, "level",
                                   [](auto& box, Folder) {
                                       // To the gauge that the test adds, the last one.
                                       goTo(box, box.view()->model()->rowCount() - 1);
                                       pressIn(box.view(), Qt::Key_Return);
                                   }),
        operation<PropertyListBox>("detached", SecondPart, "level",
                                   [](auto& box, Folder) { pressIn(box.view(), Qt::Key_Delete); }),
        operation<FontChooser>(
            "family", BothParts, "lettering",
            [](auto& font, Folder) { pressIn(font.template findChild<QFontComboBox*>(), Qt::Key_End); }),
        operation<FontChooser>("size", BothParts, "lettering",
                               [](auto& font, Folder) {
                                   auto* size = font.template findChild<ComboBox*>("size");
                                   size->setFocus();
                                   size->lineEdit()->selectAll();
                                   QTest::keyClicks(size, "33");
                                   QTest::keyClick(size, Qt::Key_Return);
                               }),
        operation<FontChooser>(
            "weight", BothParts, "lettering",
            [](auto& font, Folder) { pressIn(font.template findChild<ComboBox*>("weight"), Qt::Key_Home); }),
        operation<FontChooser>(
            "italic", BothParts, "lettering",
            [](auto& font, Folder) { pressIn(font.template findChild<CheckBox*>("italic"), Qt::Key_Space); }),
    };
}

} // namespace

class CollectionFileTest : public CollectionsTest
{
protected:
    /// Opens the sample, with one part more and a picture of its own.
    void openSample()
    {
        ASSERT_TRUE(document.load(QStringLiteral(ZK_SOURCE_DIR "/samples/collections.zkdoc")));
        ASSERT_TRUE(add("core/collections"));
        const Resource own = defineLocalResource(Resource::IMAGE, QFile(pictureFile(folder, "own.png")));
        run<AddResourceCommand>(document, own);
    }
    PartImpl* partCalled(const char* id)
    {
        return qobject_cast<PartImpl*>(document.nodeWithId(QString::fromLatin1(id)));
    }
    QByteArray savedFile()
    {
        const QString name = folder.filePath("saved.zkdoc");
        EXPECT_TRUE(document.save(name));
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
};

class CollectionUndoTest : public CollectionFileTest, public testing::WithParamInterface<Operation>
{
};

TEST_P(CollectionUndoTest, GivesTheFileBack)
{
    const Operation& operation = GetParam();
    openSample();
    Nodes nodes;
    if (operation.bound != SecondPart)
        nodes.insert(partCalled("first"));
    if (operation.bound != FirstPart)
        nodes.insert(partCalled("second"));
    const QByteArray before = savedFile();
    const int steps = undoSteps();

    QWidget* editor = operation.make();
    window.layout()->addWidget(editor);
    if (operation.property)
        editor->setProperty("modelProperty", QString::fromLatin1(operation.property));
    if (auto* list = qobject_cast<SubpartListView*>(editor); list && list->subpart().isEmpty())
        list->setSubpart(QStringLiteral("pins"));
    show();
    auto* pane = dynamic_cast<PaneWidget*>(editor);
    pane->bind(&document, nodes);
    QCoreApplication::processEvents();
    operation.operate(editor, folder);
    settle();
    EXPECT_EQ(undoSteps(), steps + 1);
    const QByteArray after = savedFile();
    EXPECT_NE(after, before);
    document.undo();
    settle();
    EXPECT_EQ(savedFile(), before);
    document.redo();
    settle();
    EXPECT_EQ(savedFile(), after);
    document.undo();
    pane->unbind();
    EXPECT_EQ(savedFile(), before);
}

INSTANTIATE_TEST_SUITE_P(EachOperation, CollectionUndoTest, testing::ValuesIn(operations()), [](const auto& each) {
    QString name = QString::fromLatin1(each.param.name);
    return name.replace(QLatin1Char(' '), QLatin1Char('_')).toStdString();
});

TEST_F(CollectionFileTest, ChoosingAndSortingWriteNothing)
{
    openSample();
    const QByteArray before = savedFile();
    const int steps = undoSteps();
    auto& combo = placeAs(new SubpartComboBox, "combo");
    combo.setSubpart("pins");
    combo.bind(&document, {partCalled("first")});
    ASSERT_EQ(combo.count(), 3);
    pressIn(&combo, Qt::Key_End);
    EXPECT_EQ(idOf(combo.selectedSubpart().impl()), QString("three"));
    auto& table = place(new ValueMapListBox, "table");
    table.bind(&document, {partCalled("first")});
    const QHeaderView* header = table.view()->header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(1) + 5, header->height() / 2));
    EXPECT_EQ(header->sortIndicatorSection(), 1);
    EXPECT_EQ(undoSteps(), steps);
    EXPECT_EQ(savedFile(), before);
    combo.unbind();
    table.unbind();
    EXPECT_EQ(savedFile(), before);
}
