// What the window prints, and what it keeps between runs.
#include "zkauthor/printing.h"

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "windowTest.h"
#include "zkauthor/preferences.h"
#include "zkauthor/recentFiles.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/model/view.h"
#include "zkcore/printing/printCommand.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/preferredUnits.h"
#include "zkeditor/license/licenceManager.h"
#include "zkeditor/settingsService.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QUndoStack>

namespace {

class PrintingTest : public WindowTest
{
protected:
    void TearDown() override
    {
        WindowTest::TearDown();
        Preferences().apply(); // they hold for the process
    }

    QByteArray contentOf(const char* file)
    {
        QFile device(path(file));
        EXPECT_TRUE(device.open(QIODevice::ReadOnly));
        return device.readAll();
    }
    /// The pages of a PDF file that was printed; -1 when it could not be.
    int printedPages(int from = 0, int to = 0)
    {
        QPrinter device;
        device.setOutputFormat(QPrinter::PdfFormat);
        device.setOutputFileName(path("out.pdf"));
        m_window->printing()->layOut(&device);
        device.setFromTo(from, to);
        if (!m_window->printing()->paintPages(&device))
            return -1;
        const QByteArray pdf = contentOf("out.pdf");
        EXPECT_TRUE(pdf.startsWith("%PDF-"));
        return int(pdf.count("/Type /Page\n"));
    }
    void setSceneSize(double width, double height)
    {
        set(property(firstScene(document()), "size"), Value(zk::Point{width, height}));
    }

    /// Does something in the modal dialog of that class or name when it is there.
    template <typename Function> void inDialog(const char* name, Function function)
    {
        auto* timer = new QTimer(m_window.get());
        QObject::connect(timer, &QTimer::timeout, timer, [=] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || (dialog->objectName() != QLatin1String(name) && !dialog->inherits(name)))
                return;
            timer->stop();
            timer->deleteLater();
            function(dialog);
        });
        timer->start(5);
    }

    QString settingsFile() const
    {
        return path("settings") + QLatin1Char('/') + SettingsService::domainKey + QStringLiteral("/zkauthor.ini");
    }
    void writeSettings(const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(settingsFile()).path());
        QFile file(settingsFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QString unitOfPosition(const char* id)
    {
        const auto* formatter = dynamic_cast<const NumericalFormatter*>(property(part(id), "position")->getFormatter());
        return formatter ? formatter->currentUnit().abbreviatedName() : QString();
    }
};

} // namespace

TEST_F(PrintingTest, PdfHasAsManyPagesAsTheDocumentNeeds)
{
    setSceneSize(0.45, 0.6);
    addPart(document(), "core/info", {0.02, 0.09});
    const int scenePages = PrintCommand(Printer(), &document()).pageCount();
    ASSERT_GT(scenePages, 3);
    EXPECT_EQ(printedPages(), scenePages);
    EXPECT_EQ(printedPages(2, 3), 2);
    EXPECT_EQ(printedPages(scenePages, scenePages + 5), 1);
    EXPECT_EQ(printedPages(scenePages + 1, scenePages + 1), -1);
    // A pop-up on view is printed too.
    m_window->spaceTabs()->showSpace(document().getModel()->getPopups().at(0));
    EXPECT_EQ(printedPages(), scenePages + 1);
    EXPECT_EQ(PrintCommand(Printer(), &document(), m_window->viewManager()->focusedView()).pageCount(), scenePages + 1);
}

TEST_F(PrintingTest, PageSetupHoldsForPaper)
{
    setSceneSize(0.25, 0.15);
    EXPECT_EQ(printedPages(), 2);
    inDialog("PageSetupDialog", [](QDialog* dialog) {
        for (QComboBox* choice : dialog->findChildren<QComboBox*>()) {
            const int landscape = choice->findText(QStringLiteral("Landscape"));
            if (landscape >= 0)
                choice->setCurrentIndex(landscape);
        }
        dialog->accept();
    });
    trigger("page-setup");
    QPrinter device;
    m_window->printing()->layOut(&device);
    EXPECT_EQ(device.pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(device.pageLayout().pageSize().id(), QPageSize::A4);
    EXPECT_TRUE(device.fullPage());
    EXPECT_EQ(device.docName(), "sample.zkdoc");
    EXPECT_EQ(printedPages(), 1);
}

TEST_F(PrintingTest, WithoutALicenceALineStandsAtTheFoot)
{
    const licenceCode::KeyPair keys = licenceCode::makeKeyPair();
    const QDate today(2030, 5, 1);
    LicenceManager licence(keys.publicKey, QStringLiteral("test"), [=] { return today; });
    Printing printing(m_window.get(), m_window->viewManager(), &licence);
    printing.setDocument(&document());
    const auto page = [&] {
        QPrinter device;
        printing.layOut(&device);
        QPrintPreviewWidget preview(&device);
        QObject::connect(&preview, &QPrintPreviewWidget::paintRequested,
                         [&](QPrinter* printer) { EXPECT_TRUE(printing.paintPages(printer)); });
        preview.resize(600, 800);
        preview.show();
        preview.updatePreview();
        preview.fitInView();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&preview));
        return preview.grab().toImage();
    };
    const QImage evaluation = page();
    const QString code =
        licenceCode::sign({QStringLiteral("A school"), QStringLiteral("test"), {}, 1, today, {}}, keys.secretKey);
    ASSERT_EQ(licence.enterCode(code).message, QString());
    const QImage licensed = page();
    licence.removeCode();
    ASSERT_EQ(evaluation.size(), licensed.size());
    QRect changed;
    for (int y = 0; y < licensed.height(); ++y) {
        for (int x = 0; x < licensed.width(); ++x) {
            if (licensed.pixel(x, y) != evaluation.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    ASSERT_FALSE(changed.isEmpty());
    EXPECT_GT(changed.top(), licensed.height() * 9 / 10);
    EXPECT_NEAR(changed.center().x(), licensed.width() / 2.0, 12);
    EXPECT_TRUE(evaluation == page());
}

TEST_F(PrintingTest, PreferencesAreKeptAndTakeEffect)
{
    EXPECT_EQ(unitOfPosition("lamp1"), "mm");
    inDialog("preferences", [](QDialog* dialog) {
        for (QComboBox* choice : dialog->findChildren<QComboBox*>()) {
            if (const int inches = choice->findText(QStringLiteral("Inches")); inches >= 0)
                choice->setCurrentIndex(inches);
            if (const int german = choice->findData(QStringLiteral("de_DE")); german >= 0)
                choice->setCurrentIndex(german);
        }
        auto* steps = dialog->findChild<QSpinBox*>();
        steps->setFocus();
        steps->selectAll();
        QTest::keyClicks(steps, QStringLiteral("2"));
        QTest::keyClick(dialog->findChild<QCheckBox*>(), Qt::Key_Space);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    trigger("preferences");
    EXPECT_TRUE(QFile::exists(settingsFile()));
    const MessageCapture messages;
    const Preferences kept = Preferences::read();
    EXPECT_EQ(kept.language, "de_DE");
    EXPECT_EQ(kept.lengthUnit, "in");
    EXPECT_EQ(kept.undoLimit, 2);
    EXPECT_TRUE(kept.wheelZooms);
    EXPECT_EQ(kept.log, QString());
    EXPECT_EQ(messages.warnings(), QStringList());
    ASSERT_EQ(preferredUnits().size(), 1u);

    // At once for the document, those of its numbers too that were shown before.
    EXPECT_EQ(unitOfPosition("lamp1"), "in");
    EXPECT_EQ(unitOfPosition("lamp2"), "in");
    for (int i = 0; i < 5; ++i)
        addPart(document(), "electronics/led");
    EXPECT_EQ(document().undoStack()->count(), 2);
    EXPECT_TRUE(document().isModified());
    // And for the next document.
    answer(QMessageBox::Discard);
    trigger("new");
    for (int i = 0; i < 5; ++i)
        addPart(document(), "electronics/led");
    EXPECT_EQ(document().undoStack()->count(), 2);

    // What is cancelled is not kept.
    inDialog("preferences", [](QDialog* dialog) {
        dialog->findChild<QSpinBox*>()->setValue(77);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    trigger("preferences");
    EXPECT_EQ(Preferences::read().undoLimit, 2);
}

TEST_F(PrintingTest, AWindowBeginsWithWhatWasChosen)
{
    Preferences chosen;
    chosen.lengthUnit = QStringLiteral("cm");
    chosen.undoLimit = 3;
    ASSERT_TRUE(chosen.write());
    const MainWindow next;
    const auto* formatter =
        dynamic_cast<const NumericalFormatter*>(property(firstScene(*next.document()), "size")->getFormatter());
    ASSERT_TRUE(formatter);
    EXPECT_EQ(formatter->currentUnit().abbreviatedName(), "cm");
}

TEST_F(PrintingTest, DamagedSettingsGiveTheDefaults)
{
    const std::pair<QByteArray, QStringList> files[] = {
        {QByteArray("\x00\xff\xfe[[[Preferences\n=\n%%%", 24), {}},
        {"[Preferences]\nUndoLimit=many\nWheelZooms=perhaps\nLengthUnit=%&$\nLog=paper\nLanguage=xx_YY\n",
         {QStringLiteral("SettingsService: Failed to read setting /Preferences/UndoLimit"),
          QStringLiteral("SettingsService: Failed to read setting /Preferences/WheelZooms")}},
    };
    for (const auto& [content, warnings] : files) {
        SCOPED_TRACE(content.constData());
        writeSettings(content);
        const MessageCapture messages;
        const Preferences read = Preferences::read();
        EXPECT_EQ(read.undoLimit, Preferences::defaultUndoLimit);
        EXPECT_FALSE(read.wheelZooms);
        read.apply();
        EXPECT_EQ(read.logTarget(), StartOptions::Log::Default);
        EXPECT_TRUE(preferredUnits().empty());
        EXPECT_EQ(RecentFiles().files(), QStringList());
        EXPECT_EQ(messages.warnings(), warnings);
        ASSERT_TRUE(Preferences().write()); // it is mended by the next choice
        EXPECT_EQ(Preferences::read().undoLimit, Preferences::defaultUndoLimit);
    }
    writeSettings("[Preferences]\nUndoLimit=-5\n");
    EXPECT_EQ(Preferences::read().undoLimit, 0);
}

TEST_F(PrintingTest, PreferencesThatCannotBeKeptHoldUntilTheEnd)
{
    ASSERT_TRUE(QDir().mkpath(settingsFile())); // a folder in the file's place
    {
        const MessageCapture messages;
        answer(QMessageBox::Ok);
        inDialog("preferences", [](QDialog* dialog) {
            dialog->findChild<QSpinBox*>()->setValue(2);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        trigger("preferences");
        EXPECT_EQ(boxText().section(u'\n', 0, 0), "The preferences hold until the program ends: they cannot be kept.");
        EXPECT_TRUE(messages.warnings().contains(
            QStringLiteral("SettingsService: Failed to write setting /Preferences/UndoLimit")));
    }
    for (int i = 0; i < 5; ++i)
        addPart(document(), "electronics/led");
    EXPECT_EQ(document().undoStack()->count(), 2);
    EXPECT_EQ(Preferences::read().undoLimit, 2);
    ASSERT_TRUE(QDir().rmdir(settingsFile()));
    ASSERT_TRUE(Preferences().write());
    EXPECT_EQ(Preferences::read().undoLimit, Preferences::defaultUndoLimit);
}

TEST_F(PrintingTest, SavedFilesAreRecentOnes)
{
    set(property(part("lamp1"), "lit"), Value(true));
    trigger("save");
    EXPECT_EQ(RecentFiles().files(), QStringList{path("sample.zkdoc")});
    auto* menu = m_window->findChild<QMenu*>(QStringLiteral("recentMenu"));
    Q_EMIT menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    trigger("new");
    menu->actions().first()->trigger();
    EXPECT_EQ(m_window->fileName(), path("sample.zkdoc"));
    EXPECT_TRUE(part("lamp1"));
}
