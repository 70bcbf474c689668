#include "collectionsFixture.h"
#include "zkcore/commands/resourceCommand.h"
#include "zkcore/media/resourceEntry.h"
#include "zkeditor/widgets/comboBox.h"
#include "zkeditor/widgets/resourceChooser.h"
#include "zkeditor/widgets/resourceDropdown.h"
#include "zkeditor/widgets/resourceListBox.h"
#include "zkeditor/widgets/resourceModel.h"

#include <QAbstractItemModelTester>
#include <QDropEvent>
#include <QFile>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QTreeView>
#include <QUrl>
#include <memory>
#include <sys/stat.h>

namespace {

void dropFiles(QWidget& widget, const QStringList& files)
{
    QMimeData content;
    QList<QUrl> urls;
    for (const QString& file : files)
        urls.append(QUrl::fromLocalFile(file));
    content.setUrls(urls);
    const QPoint at = widget.rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop(at, Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &drop);
}

} // namespace

class ResourceEditorsTest : public CollectionsTest
{
protected:
    static Resource resource(NodeImpl* node, const char* key) { return property(node, key)->getValue().toResource(); }
    static QStringList names(NodeImpl* node)
    {
        QStringList all;
        for (const Resource& one : property(node, "pictures")->getValue().toResourceVector())
            all.append(one.toString());
        return all;
    }
    QString badFile(const char* name = "bad.png", const QByteArray& bytes = "no picture")
    {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QString halfPicture()
    {
        QFile whole(QStringLiteral(ZK_SOURCE_DIR "/docs/zkauthor.png"));
        EXPECT_TRUE(whole.open(QIODevice::ReadOnly));
        return badFile("half.png", whole.read(whole.size() / 2));
    }
    QString pipe()
    {
        const QString name = folder.filePath("pipe.png");
        EXPECT_EQ(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
        return name;
    }
    QString linkToNothing()
    {
        const QString name = folder.filePath("link.png");
        EXPECT_TRUE(QFile::link(folder.filePath("gone.png"), name));
        return name;
    }
    ResourceListBox& listOf(const Nodes& nodes)
    {
        auto& list = place(new ResourceListBox, "pictures");
        list.bind(&document, nodes);
        tester = std::make_unique<QAbstractItemModelTester>(list.model());
        return list;
    }
    static void press(ResourceListBox& list, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        list.view()->setFocus();
        QTest::keyClick(list.view(), key, modifiers);
        QCoreApplication::processEvents();
    }

    std::unique_ptr<QAbstractItemModelTester> tester;
};

TEST_F(ResourceEditorsTest, DropdownOffersWhatTheValidatorAllows)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    auto& box = place(new ResourceDropdown, "sound");
    box.bind(&document, {first, second});
    ASSERT_EQ(box.count(), 3);
    EXPECT_EQ(box.itemText(1), QString("Horn"));
    EXPECT_EQ(box.itemText(2), QString("siren"));
    EXPECT_FALSE(box.itemIcon(0).isNull());
    EXPECT_EQ(box.currentIndex(), 0);
    const QByteArray before = bytesOf(document);
    const int steps = undoSteps();
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(resource(second, "sound").toString(), QString("electronics/images/horn"));
    expectOneStepSince(before, steps);
    set(property(first, "sound"), Value(Resource("electronics/images/siren")));
    EXPECT_EQ(box.currentIndex(), -1);
    QTest::keyClick(&box, Qt::Key_Home);
    EXPECT_EQ(resource(first, "sound"), resource(second, "sound"));
    EXPECT_EQ(box.currentIndex(), 0);

    box.bind(&document, {first, add("collections/shelf")});
    EXPECT_FALSE(box.isEnabled()); // they are allowed different ones
    MessageCapture messages;
    box.setModelProperty("picture");
    box.bind(&document, {first});
    EXPECT_EQ(messages.texts(), QStringList("ResourceDropdown: No ResourceValidator found on Property picture."));
    EXPECT_EQ(box.count(), 0);
}

TEST_F(ResourceEditorsTest, ChooserImportsExportsAndClears)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    auto& chooser = place(new ResourceChooser, "picture");
    auto* preview = chooser.findChild<QLabel*>("preview");
    chooser.bind(&document, {first, second});
    EXPECT_EQ(preview->text(), QString("None"));
    const QByteArray empty = bytesOf(document);
    const int steps = undoSteps();
    chooser.importFile(picture("cat.png"));
    EXPECT_EQ(chooser.message(), QString());
    EXPECT_EQ(resource(second, "picture").toString(), QString("local/cat"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(preview->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(chooser.list()->currentText(), QString("cat"));
    expectOneStepSince(empty, steps);
    EXPECT_EQ(chooser.list()->count(), 0);

    dropFiles(chooser, {picture("cat.png")});
    dropFiles(chooser, {picture("dog.png", Qt::blue)});
    QCoreApplication::processEvents();
    EXPECT_EQ(chooser.list()->count(), 2);
    const QByteArray full = bytesOf(document);
    chooser.importFile(picture("dog.png", Qt::blue)); // the same once more is no change
    EXPECT_EQ(bytesOf(document), full);
    chooser.list()->setFocus();
    QTest::keyClick(chooser.list(), Qt::Key_Home);
    EXPECT_EQ(resource(first, "picture").toString(), QString("local/cat"));

    const QString exported = folder.filePath("out.png");
    chooser.exportFile(exported);
    QFile file(exported);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), resource(first, "picture").data());
    QTest::keyClick(chooser.list(), Qt::Key_Delete);
    EXPECT_TRUE(resource(second, "picture").isNull());
    EXPECT_EQ(preview->text(), QString("None"));
    set(property(first, "picture"), Value(document.resource("local/dog")));
    EXPECT_EQ(preview->text(), QString("Different"));
    EXPECT_EQ(chooser.list()->currentIndex(), -1);
}

TEST_F(ResourceEditorsTest, FilesThatCannotBeUsedAreRefusedWithTheReason)
{
    PartImpl* part = rack();
    auto& chooser = place(new ResourceChooser, "picture");
    chooser.bind(&document, {part});
    const QByteArray before = bytesOf(document);
    const struct
    {
        QString file;
        const char* reason;
    } cases[] = {{badFile(), "cannot be used here: it does not hold data of the kind \"image\"."},
                 {halfPicture(), "does not hold data of the kind \"image\"."},
                 {badFile("empty.png", {}), "is empty."},
                 {pipe(), "not a file."},
                 {linkToNothing(), "There is no file"},
                 {folder.filePath("none.png"), "There is no file"},
                 {folder.path(), "is a folder."}};
    for (const auto& wrong : cases) {
        chooser.importFile(wrong.file);
        EXPECT_TRUE(chooser.message().contains(wrong.reason)) << chooser.message().toStdString();
        EXPECT_TRUE(chooser.message().contains(wrong.file));
        EXPECT_EQ(bytesOf(document), before);
    }
    dropFiles(chooser, {picture("a.png"), picture("b.png")});
    EXPECT_EQ(chooser.message(), QString("Only one file can be taken here."));
    chooser.importFile(picture("a.png"));
    EXPECT_EQ(chooser.message(), QString());
    chooser.exportFile(folder.filePath("no/such/folder/x.png"));
    EXPECT_TRUE(chooser.message().contains("cannot be written"));
    lock(part);
    const QByteArray locked = bytesOf(document);
    chooser.clear();
    EXPECT_EQ(bytesOf(document), locked);
}

TEST_F(ResourceEditorsTest, ListOperationsAreOneStepEach)
{
    PartImpl* first = rack();
    PartImpl* second = rack();
    auto& list = listOf({first, second});
    const QByteArray empty = bytesOf(document);
    int steps = undoSteps();
    list.addFiles({picture("a.png"), picture("b.png", Qt::blue), picture("c.png", Qt::green)}, 0);
    EXPECT_EQ(names(second), QStringList({"local/a", "local/b", "local/c"}));
    expectOneStepSince(empty, steps);
    document.redo();
    QCoreApplication::processEvents();
    const QByteArray full = bytesOf(document);
    steps = undoSteps();

    list.view()->setCurrentIndex(list.model()->index(0, 0));
    press(list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(names(first), QStringList({"local/b", "local/a", "local/c"}));
    EXPECT_EQ(list.view()->currentIndex().row(), 1);
    expectOneStepSince(full, steps);

    press(list, Qt::Key_Delete);
    EXPECT_EQ(names(first).size(), 2);
    expectOneStepSince(full, steps);

    // A name is the document's: whatever names it goes along.
    set(property(second, "picture"), Value(document.resource("local/a")));
    const QByteArray used = bytesOf(document);
    list.view()->setCurrentIndex(list.model()->index(0, 0));
    press(list, Qt::Key_F2);
    typeInPlace(list.view(), "alpha");
    EXPECT_EQ(names(first), QStringList({"local/alpha", "local/b", "local/c"}));
    EXPECT_EQ(resource(second, "picture").toString(), QString("local/alpha"));
    EXPECT_TRUE(resource(second, "picture").isValid());
    EXPECT_FALSE(document.resource("local/a").isValid());
    EXPECT_TRUE(list.view()->hasFocus());
    expectOneStepSince(used, steps + 1);
    EXPECT_TRUE(list.view()->selectionModel()->isRowSelected(0)); // under the old name again
    for (const char* wrong : {"b", "", "x/y"}) {
        list.view()->setCurrentIndex(list.model()->index(0, 0));
        press(list, Qt::Key_F2);
        typeInPlace(list.view(), wrong[0] == 0 ? QStringLiteral(" ") : QString(wrong));
        EXPECT_FALSE(list.message().isEmpty()) << wrong;
        EXPECT_EQ(bytesOf(document), used);
        press(list, Qt::Key_Escape);
    }

    set(property(first, "pictures"), Value(std::vector<Resource>()));
    QCoreApplication::processEvents();
    EXPECT_TRUE(list.showsNoValue());
    list.addFiles({picture("c.png", Qt::green)}, 0);
    EXPECT_EQ(names(first), QStringList("local/c"));
    EXPECT_EQ(names(second), names(first));
    dropFiles(*list.view()->viewport(), {picture("d.png"), picture("e.png", Qt::black)});
    EXPECT_EQ(names(second), QStringList({"local/c", "local/d", "local/e"}));
}

TEST_F(ResourceEditorsTest, FilesAreAddedAllOrNone)
{
    PartImpl* part = rack();
    auto& list = listOf({part});
    const QByteArray before = bytesOf(document);
    list.addFiles({picture("a.png"), badFile(), picture("b.png")}, 0);
    EXPECT_TRUE(list.message().contains("bad.png"));
    EXPECT_EQ(bytesOf(document), before);

    QStringList many;
    for (int i = 0; i < 500; ++i)
        many.append(picture(QStringLiteral("p%1.png").arg(i), QColor::fromHsv(i % 360, 255, 255)));
    QTimer user;
    bool cancelled = false;
    QObject::connect(&user, &QTimer::timeout, [&] {
        auto* progress = list.findChild<QProgressDialog*>();
        if (!progress || progress->value() < 3 || cancelled)
            return;
        cancelled = true;
        QTest::mouseClick(progress->findChild<QPushButton*>(), Qt::LeftButton);
    });
    user.start(0);
    list.addFiles(many, 0);
    user.stop();
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(list.message(), QString());
    EXPECT_EQ(bytesOf(document), before);

    const int steps = undoSteps();
    list.addFiles(many, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(list.model()->rowCount(), 500);
    EXPECT_EQ(document.localResources().size(), 500u);
    EXPECT_LE(undoSteps(), steps + 1);
    document.undo();
    EXPECT_EQ(bytesOf(document), before);
    EXPECT_TRUE(document.localResources().empty());
}

TEST_F(ResourceEditorsTest, FilesOfOneNameGetNamesOfTheirOwn)
{
    PartImpl* part = rack();
    auto& list = listOf({part});
    QDir(folder.path()).mkdir("other");
    list.addFiles({picture("a.png"), picture("other/a.png", Qt::blue), picture("a.png")}, 0);
    EXPECT_EQ(names(part), QStringList({"local/a", "local/a-2", "local/a"}));
    list.view()->setCurrentIndex(list.model()->index(2, 0)); // the second of the same resource
    press(list, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(names(part), QStringList({"local/a", "local/a", "local/a-2"}));
}

TEST_F(ResourceEditorsTest, TypingSelectionAndPlaceSurviveTheModel)
{
    PartImpl* part = rack();
    auto& list = listOf({part});
    list.addFiles({picture("a.png")}, 0);
    const Resource own = document.resource("local/a");
    std::vector<Resource> many(10000, Resource("electronics/images/bell"));
    many[6000] = own;
    set(property(part, "pictures"), Value(many));
    list.view()->setCurrentIndex(list.model()->index(6000, 0));
    list.view()->scrollTo(list.view()->currentIndex(), QAbstractItemView::PositionAtTop);
    press(list, Qt::Key_F2);
    auto* edit = list.view()->findChild<QLineEdit*>();
    ASSERT_TRUE(edit);
    QTest::keyClicks(edit, "half");
    many.insert(many.begin(), 2, Resource("electronics/images/horn"));
    many.erase(many.begin() + 100);
    set(property(part, "pictures"), Value(many));
    QCoreApplication::processEvents();
    ASSERT_EQ(list.view()->findChild<QLineEdit*>(), edit);
    EXPECT_EQ(edit->text(), QString("half"));
    EXPECT_EQ(list.view()->currentIndex().row(), 6001);
    EXPECT_NEAR(list.view()->verticalScrollBar()->value(), 6000, 5);
    QTest::keyClick(edit, Qt::Key_Return);
    settle();
    EXPECT_TRUE(document.resource("local/half").isValid());
}
