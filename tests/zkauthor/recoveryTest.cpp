// What the window does about left-over documents and about files that other programs touch.
#include "windowTest.h"

#include "tests/support/testDocument.h"
#include "zkauthor/documentFiles.h"
#include "zkauthor/noticeBar.h"
#include "zkauthor/recoveryOffers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

class RecoveryTest : public WindowTest
{
protected:
    static constexpr int interval = 100;

    void SetUp() override
    {
        WindowTest::SetUp();
        m_window->files()->enableRecovery(path("recovery"), interval);
    }

    void change(const char* text = "Lit")
    {
        ASSERT_TRUE(set(property(part("lamp1"), "title"), Value(QString::fromLatin1(text))));
    }

    QString title() { return property(part("lamp1"), "title")->getValue().toQString(); }

    QStringList recoveryFiles() const { return QDir(path("recovery")).entryList({QStringLiteral("*.zkdoc")}); }

    /// Waits until the document is kept, ends the window as a crash would, and begins a new one.
    void crash()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !recoveryFiles().isEmpty(); }));
        restart();
    }

    void restart()
    {
        m_window.reset();
        m_window = std::make_unique<MainWindow>();
        m_window->files()->enableRecovery(path("recovery"), interval);
        m_window->show();
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }

    QPushButton* button(const char* name)
    {
        const auto buttons = m_window->findChildren<QPushButton*>(QLatin1String(name));
        for (QPushButton* each : buttons) {
            if (each->isVisible())
                return each;
        }
        return nullptr;
    }

    QString notice(const char* buttonName)
    {
        const QPushButton* found = button(buttonName);
        return found ? found->parentWidget()->accessibleName() + u'\n' + found->parentWidget()->accessibleDescription()
                     : QString();
    }

    /// As another program would.
    void writeOver(const char* text)
    {
        DocumentImpl other;
        ASSERT_TRUE(other.load(path("sample.zkdoc")));
        ASSERT_TRUE(set(property(other.getModel(), "title"), Value(QString::fromLatin1(text))));
        ASSERT_TRUE(other.save(path("sample.zkdoc")));
    }

    QString modelTitle() { return property(document().getModel(), "title")->getValue().toQString(); }
};

TEST_F(RecoveryTest, AfterACrashTheChangesAreOfferedAndSavedUnderTheirName)
{
    change();
    crash();
    ASSERT_TRUE(button("recover"));
    EXPECT_TRUE(view().hasFocus());
    EXPECT_TRUE(notice("recover").startsWith(
        QStringLiteral("Changes to %1 that were not saved can be recovered.\nLast saved: ").arg(path("sample.zkdoc"))))
        << notice("recover").toStdString();
    EXPECT_TRUE(m_window->isEnabled());

    QTest::keyClick(m_window.get(), Qt::Key_C, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !button("recover"); }));
    EXPECT_TRUE(view().hasFocus());
    EXPECT_EQ(title(), "Lit");
    EXPECT_TRUE(m_window->windowTitle().startsWith(QLatin1String("sample.zkdoc (recovered)[*] - ")))
        << m_window->windowTitle().toStdString();
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_EQ(recoveryFiles().size(), 1) << "until it is saved";

    trigger("save");
    EXPECT_TRUE(m_window->windowTitle().startsWith(QLatin1String("sample.zkdoc[*] - ")));
    EXPECT_TRUE(QTest::qWaitFor([this] { return recoveryFiles().isEmpty(); }));
    restart();
    EXPECT_FALSE(button("recover"));
    QString error;
    ASSERT_TRUE(m_window->openFile(path("sample.zkdoc"), error));
    EXPECT_EQ(title(), "Lit");
}

TEST_F(RecoveryTest, ADocumentThatWasNeverSavedIsRecoveredWithoutAName)
{
    trigger("new");
    ASSERT_TRUE(set(property(document().getModel(), "title"), Value(QStringLiteral("Fresh"))));
    crash();
    ASSERT_TRUE(button("recover"));
    EXPECT_TRUE(notice("recover").startsWith(QLatin1String("A document that was never saved can be recovered.")));
    button("recover")->click();
    EXPECT_EQ(modelTitle(), "Fresh");
    EXPECT_TRUE(m_window->fileName().isEmpty());
    EXPECT_TRUE(m_window->isWindowModified());
    // Recovered, changed and lost once more.
    ASSERT_TRUE(set(property(document().getModel(), "title"), Value(QStringLiteral("Fresher"))));
    QTest::qWait(5 * interval);
    crash();
    ASSERT_TRUE(button("recover"));
    button("recover")->click();
    EXPECT_EQ(modelTitle(), "Fresher");
}

TEST_F(RecoveryTest, LaterAndDiscardAndWhatIsClosedWithAWord)
{
    change();
    crash();
    ASSERT_TRUE(button("later"));
    QTest::keyClick(button("recover"), Qt::Key_Escape); // the last button
    EXPECT_FALSE(button("recover"));
    restart();
    ASSERT_TRUE(button("discard"));
    answer(QMessageBox::Discard);
    button("discard")->click();
    EXPECT_FALSE(button("discard"));
    EXPECT_TRUE(recoveryFiles().isEmpty());

    QString error;
    ASSERT_TRUE(m_window->openFile(path("sample.zkdoc"), error));
    change();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !recoveryFiles().isEmpty(); }));
    answer(QMessageBox::Discard);
    EXPECT_TRUE(m_window->close());
    restart();
    EXPECT_FALSE(button("recover"));
}

TEST_F(RecoveryTest, SaysWhenTheFileIsNewerAndKeepsWhatIsDamaged)
{
    change();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !recoveryFiles().isEmpty(); }));
    m_window.reset();
    QTest::qWait(10);
    writeOver("newer");
    restart();
    EXPECT_TRUE(notice("recover").contains(QLatin1String("The file itself is newer: it was changed on ")))
        << notice("recover").toStdString();
    button("recover")->click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return button("reload") != nullptr; })) << "and saving would write over that";

    // Cut off in the middle, as no crash of ours leaves it, but a disk may.
    answer(QMessageBox::Discard);
    EXPECT_TRUE(m_window->close());
    restart();
    QString error;
    ASSERT_TRUE(m_window->openFile(path("sample.zkdoc"), error));
    change();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !recoveryFiles().isEmpty(); }));
    const QString torn = path("recovery/") + recoveryFiles().first();
    m_window.reset();
    ASSERT_TRUE(QFile::resize(torn, QFileInfo(torn).size() / 2));
    ASSERT_TRUE(QFile::copy(torn, path("recovery/other.zkdoc")));
    ASSERT_TRUE(QFile::resize(path("recovery/other.zkdoc"), 20));
    restart();
    ASSERT_TRUE(button("close-notice"));
    EXPECT_TRUE(notice("close-notice").startsWith(QLatin1String("What was kept of a document cannot be read.")));
    EXPECT_TRUE(QFile::exists(path("recovery/damaged/other.zkdoc")));
    ASSERT_TRUE(button("recover"));
    answer(QMessageBox::Ok);
    button("recover")->click();
    EXPECT_TRUE(boxText().startsWith(QLatin1String("The document cannot be recovered.\n"))) << boxText().toStdString();
    EXPECT_TRUE(QFile::exists(path("recovery/damaged/") + QFileInfo(torn).fileName()));
    EXPECT_EQ(document().nodeCount(), 2u);
}

TEST_F(RecoveryTest, AnotherWindowTakesOverTheDocumentWithItsHistory)
{
    change();
    DocumentImpl* before = m_window->document();
    {
        auto next = std::make_unique<MainWindow>(nullptr, m_window->files());
        m_window = std::move(next);
    }
    EXPECT_EQ(m_window->document(), before);
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_EQ(m_window->fileName(), path("sample.zkdoc"));
    trigger("undo");
    EXPECT_FALSE(m_window->isWindowModified());
    trigger("redo");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !recoveryFiles().isEmpty(); }));
}

TEST_F(RecoveryTest, WhatAnotherProgramWritesIsNoticed)
{
    change();
    trigger("save");
    QTest::qWait(500);
    EXPECT_FALSE(button("reload")) << "our own saving is nothing to tell";

    writeOver("theirs");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("reload") != nullptr; }));
    EXPECT_EQ(notice("reload").section(u'\n', 0, 0), "sample.zkdoc was changed by another program.");
    EXPECT_TRUE(modelTitle().isEmpty());
    button("reload")->click();
    EXPECT_EQ(modelTitle(), "theirs");
    EXPECT_FALSE(button("reload"));

    // With changes: reloading asks, saving asks.
    change("Dark");
    writeOver("again");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("reload") != nullptr; }));
    answer(QMessageBox::Cancel);
    button("reload")->click();
    EXPECT_EQ(title(), "Dark");
    answer(QMessageBox::Cancel);
    trigger("save");
    EXPECT_EQ(boxText(), "sample.zkdoc was changed by another program.\nSaving replaces what it wrote.");
    EXPECT_TRUE(m_window->isWindowModified());
    button("keep")->click();
    EXPECT_FALSE(button("reload"));
    trigger("save");
    EXPECT_FALSE(m_window->isWindowModified());
    DocumentImpl saved;
    ASSERT_TRUE(saved.load(path("sample.zkdoc")));
    EXPECT_EQ(bytesOf(saved), bytesOf(document()));
}

TEST_F(RecoveryTest, AFileThatGoesMakesTheDocumentUnsaved)
{
    ASSERT_TRUE(QFile::rename(path("sample.zkdoc"), path("moved.zkdoc")));
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("save-again") != nullptr; }));
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !recoveryFiles().isEmpty(); })) << "it is nowhere else";
    answer(QMessageBox::Cancel);
    EXPECT_FALSE(m_window->close());
    button("save-again")->click();
    EXPECT_TRUE(QFile::exists(path("sample.zkdoc")));
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_FALSE(button("save-again"));
}

} // namespace
