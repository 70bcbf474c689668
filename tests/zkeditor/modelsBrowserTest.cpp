#include "zkeditor/modelsBrowser.h"

#include "tests/support/documentGenerator.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkeditor/modelsModel.h"
#include "zkeditor/settingsService.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

class ModelsBrowserTest : public testing::Test
{
protected:
    void SetUp() override
    {
        browser.resize(300, 600);
        browser.show();
    }

    QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    void write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QModelIndex top() const { return model->index(0, 0); }
    QStringList names() const
    {
        QStringList texts;
        for (int row = 0; row < model->rowCount(top()); ++row)
            texts.append(model->index(row, 0, top()).data().toString().section(u'\n', 0, 0));
        return texts;
    }
    QModelIndex named(const char* name) const
    {
        return model->index(static_cast<int>(names().indexOf(QString::fromLatin1(name))), 0, top());
    }
    QString fault(const char* name) const { return named(name).data(ModelsModel::FaultRole).toString(); }
    QImage picture(const char* name) const
    {
        return named(name).data(Qt::DecorationRole).value<QIcon>().pixmap(ModelsModel::pictureSize).toImage();
    }
    /// Whether there are dark, non-white pixels of a scene in the middle of the picture.
    bool hasPreview(const char* name) const { return picture(name).pixelColor(36, 27).alpha() == 255; }

    QTemporaryDir folder;
    /// Other tests of the process may have made the settings service, which would bring their folders along.
    const struct OwnSettings
    {
        OwnSettings() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, place.path()); }
        QTemporaryDir place;
    } settings;
    ModelsBrowser browser;
    ModelsModel* model = browser.findChild<ModelsModel*>();
    QTreeView* view = browser.findChild<QTreeView*>();
    QAbstractItemModelTester tester{model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(ModelsBrowserTest, ShowsPicturesAndOpensByDoubleClickAndReturn)
{
    write("lamp.zkdoc", generatedDocument(60));
    write("notes.txt", "no document");
    browser.addFolder(folder.path());
    browser.addFolder(folder.path() + QStringLiteral("/."));
    EXPECT_EQ(browser.folders(), QStringList(folder.path()));
    EXPECT_TRUE(QTest::qWaitFor([this] { return names() == QStringList("lamp"); }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return hasPreview("lamp"); }));
    EXPECT_EQ(fault("lamp"), QString());

    QSignalSpy chosen(&browser, &ModelsBrowser::documentChosen);
    view->setCurrentIndex(named("lamp"));
    QTest::keyClick(view, Qt::Key_Return);
    const QPoint place = view->visualRect(named("lamp")).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
    ASSERT_EQ(chosen.count(), 2);
    EXPECT_EQ(chosen.last().first().toString(), path("lamp.zkdoc"));
}

TEST_F(ModelsBrowserTest, UnreadableDocumentsSayWhy)
{
    write("empty.zkdoc", "");
    write("other.zkdoc", "<svg/>");
    QByteArray cut = generatedDocument(3000);
    cut.chop(9);
    write("cut.zkdoc", cut);
    write("wrong.zkdoc", generatedDocument(40).replace("version=\"1\"", "version=\"77\""));
    browser.addFolder(folder.path());
    browser.addFolder(path("nowhere"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return names().size() == 4; }));
    for (const char* name : {"empty", "other", "cut", "wrong"}) {
        picture(name); // what is looked at is read
        EXPECT_TRUE(QTest::qWaitFor([&] { return !fault(name).isEmpty(); })) << name;
        EXPECT_TRUE(named(name).data(Qt::ToolTipRole).toString().contains(fault(name)));
    }
    EXPECT_TRUE(fault("cut").startsWith(QString::number(cut.count('\n') + 1) + u':')) << fault("cut").toStdString();
    EXPECT_TRUE(fault("wrong").startsWith(QStringLiteral("2:"))) << fault("wrong").toStdString();
    EXPECT_TRUE(fault("wrong").contains(QStringLiteral("version is 77"))) << fault("wrong").toStdString();
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return !model->index(1, 0).data(ModelsModel::FaultRole).toString().isEmpty(); }));
}

TEST_F(ModelsBrowserTest, FollowsTheDisk)
{
    write("b.zkdoc", generatedDocument(20));
    browser.addFolder(folder.path());
    EXPECT_TRUE(QTest::qWaitFor([this] { return names() == QStringList("b") && hasPreview("b"); }));
    write("a.zkdoc", generatedDocument(20));
    write("c.zkdoc", generatedDocument(20));
    EXPECT_TRUE(QTest::qWaitFor([this] { return names() == QStringList({"a", "b", "c"}); }));
    write("b.zkdoc", "<damaged");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !picture("b").isNull() && !fault("b").isEmpty(); }));
    DocumentImpl document;
    browser.setDocument(&document);
    ASSERT_TRUE(document.save(path("b.zkdoc")));
    EXPECT_TRUE(QTest::qWaitFor([this] { return hasPreview("b") && fault("b").isEmpty(); }));
    EXPECT_TRUE(named("b").data(Qt::FontRole).value<QFont>().bold());
    QFile::remove(path("a.zkdoc"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return names() == QStringList({"b", "c"}); }));
    view->setCurrentIndex(named("c"));
    view->setFocus();
    browser.findChildren<QToolButton*>().at(1)->click();
    EXPECT_EQ(browser.folders(), QStringList());
}

TEST_F(ModelsBrowserTest, GreatScenesAreCutBetweenTwoParts)
{
    // A scene with more parts than a preview shows, and letters of two bytes before the cut.
    DocumentImpl document;
    ASSERT_TRUE(loadTestKit());
    std::vector<NodeSnapshot> parts;
    for (int i = 0; i < 1600; ++i)
        parts.push_back(NodeSnapshot::ofPrototype(*document.getNodeDb(), getCidForString("testkit/box")));
    run<AddNodesCommand>(document, Node(firstScene(document)), std::move(parts));
    set(property(document.getModel(), "title"), Value(QStringLiteral("Größe \U0001F4A1 ‰")));
    ASSERT_TRUE(document.save(path("great.zkdoc")));
    browser.addFolder(folder.path());
    EXPECT_TRUE(QTest::qWaitFor([this] { return names() == QStringList("great"); }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return hasPreview("great") || !fault("great").isEmpty(); }));
    EXPECT_EQ(fault("great"), QString());
}

TEST_F(ModelsBrowserTest, TheSettingsKeepTheFolders)
{
    // There is one service in a process, and other tests have theirs.
    EXPECT_EXIT(
        {
            QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
            QMainWindow window;
            window.setObjectName(QStringLiteral("mainWindow"));
            if (!SettingsService::exists())
                SettingsService::createService(&window, QStringLiteral("models"), QSettings::UserScope);
            ModelsBrowser first;
            first.addFolder(folder.path());
            first.addFolder(path("gone"));
            first.addFolder(path("other"));
            first.removeFolder(path("other"));
            ModelsBrowser second;
            _exit(second.folders() == QStringList({folder.path(), path("gone")}) ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}
