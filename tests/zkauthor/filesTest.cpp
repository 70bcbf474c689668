#include "windowTest.h"

#include "tests/support/testDocument.h"
#include "zkauthor/recentFiles.h"
#include "zkauthor/sceneView.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QTest>

namespace {

class FilesTest : public WindowTest
{
protected:
    void change() { set(property(part("lamp1"), "lit"), Value(true)); }
};

TEST_F(FilesTest, TitleNamesTheFileAndTheChange)
{
    EXPECT_EQ(m_window->windowTitle(), "sample.zkdoc[*] - zkauthor (unlicensed evaluation)");
    EXPECT_FALSE(m_window->isWindowModified());
    change();
    EXPECT_TRUE(m_window->isWindowModified());
    trigger("undo");
    EXPECT_FALSE(m_window->isWindowModified());
    trigger("new");
    EXPECT_EQ(m_window->windowTitle(), "Untitled[*] - zkauthor (unlicensed evaluation)");
}

TEST_F(FilesTest, ClosingAsksAboutChanges)
{
    change();
    answer(QMessageBox::Cancel);
    EXPECT_FALSE(m_window->close());
    EXPECT_EQ(boxText(), "Save the changes to sample.zkdoc?\n");
    EXPECT_TRUE(m_window->isVisible());

    answer(QMessageBox::Save);
    EXPECT_TRUE(m_window->close());
    QString error;
    ASSERT_TRUE(m_window->openFile(path("sample.zkdoc"), error));
    EXPECT_TRUE(part("lamp1")->valueOfProperty(PropertyKey::fromString("lit")).toBool());
}

TEST_F(FilesTest, DiscardedChangesAreGone)
{
    change();
    answer(QMessageBox::Discard);
    trigger("revert");
    EXPECT_FALSE(part("lamp1")->valueOfProperty(PropertyKey::fromString("lit")).toBool());
    EXPECT_FALSE(m_window->isWindowModified());

    change();
    answer(QMessageBox::Discard);
    trigger("close");
    EXPECT_EQ(document().nodeCount(), 2u);
}

TEST_F(FilesTest, BadFilesAreRefusedWithAReasonAndNothingIsLost)
{
    const QByteArray before = bytesOf(document());
    QFile bad(path("bad.zkdoc"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("<?xml version=\"1.0\"?>\n<zkdoc version=\"1\">\n<model class=");
    bad.close();

    RecentFiles recent;
    recent.add(path("bad.zkdoc"));
    auto* menu = m_window->findChild<QMenu*>(QStringLiteral("recentMenu"));
    ASSERT_TRUE(menu);
    Q_EMIT menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_TRUE(menu->actions().first()->text().startsWith(QLatin1String("&1 ")));
    answer(QMessageBox::Ok);
    menu->actions().first()->trigger();
    EXPECT_TRUE(boxText().startsWith(QLatin1String("bad.zkdoc cannot be opened.\n"))) << boxText().toStdString();
    EXPECT_TRUE(boxText().contains(QLatin1Char('3'))) << boxText().toStdString(); // the line
    EXPECT_EQ(bytesOf(document()), before);
    Q_EMIT menu->aboutToShow();
    EXPECT_FALSE(menu->actions().first()->isEnabled()); // the list is empty again

    // A place that cannot be written.
    change();
    ASSERT_TRUE(QFile::remove(path("sample.zkdoc")));
    ASSERT_TRUE(QDir().mkpath(path("sample.zkdoc/in the way")));
    answer(QMessageBox::Ok);
    trigger("save");
    EXPECT_TRUE(boxText().startsWith(QLatin1String("sample.zkdoc could not be saved.\n"))) << boxText().toStdString();
    EXPECT_TRUE(m_window->isWindowModified());
}

TEST_F(FilesTest, RecentFilesAreTheFourNewestOnce)
{
    RecentFiles recent;
    for (const char* name : {"a", "b", "c", "d", "e", "c"})
        recent.add(path(name));
    QMenu menu;
    RecentFiles other; // as another window, later
    other.attachTo(&menu);
    EXPECT_EQ(other.files(), (QStringList{path("c"), path("e"), path("d"), path("b")}));
    QString chosen;
    QObject::connect(&other, &RecentFiles::chosen, &menu, [&](const QString& file) { chosen = file; });
    menu.actions().at(2)->trigger();
    EXPECT_EQ(chosen, path("d"));
}

} // namespace
