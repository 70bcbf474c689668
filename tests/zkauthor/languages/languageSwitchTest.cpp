// Another language is chosen while people work: nothing of their work is lost, and nothing speaks the old language.
#include "languageFixture.h"
#include "shownTexts.h"

#include "tests/support/testDocument.h"
#include "zkauthor/palettes.h"
#include "zkauthor/printing.h"
#include "zkauthor/sceneView.h"
#include "zkauthor/spaceTabs.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/services/languages.h"
#include "zkeditor/inspector.h"
#include "zkeditor/propPalette.h"
#include "zkeditor/settingsService.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFile>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QUndoStack>

namespace {

class LanguageSwitchTest : public LanguageFixture
{
protected:
    QLineEdit* field(const char* control)
    {
        for (QWidget* found : window().palettes()->properties()->findChildren<QWidget*>(QLatin1String(control))) {
            if (!found->isVisible())
                continue;
            auto* edit = qobject_cast<QLineEdit*>(found);
            return edit ? edit : found->findChild<QLineEdit*>();
        }
        return nullptr;
    }

    QByteArray saved()
    {
        const QString file = m_folder.filePath(QStringLiteral("saved.zkdoc"));
        EXPECT_TRUE(document().save(file)) << document().lastError().toStdString();
        QFile read(file);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.readAll();
    }

    QString actionText(const char* name) { return window().findChild<QAction*>(QLatin1String(name))->text(); }
};

} // namespace

TEST_F(LanguageSwitchTest, KeepsTheWorkAndTheViewOfIt)
{
    ASSERT_NO_FATAL_FAILURE(start(QStringLiteral("en_GB"), "crossing"));
    DocumentImpl* const document = window().document();
    MainWindow* const before = &window();
    const Value scene = document->executeCommand(new AddSceneCommand(Model(document->getModel())));
    auto* second = qobject_cast<SpaceImpl*>(scene.toNode().impl());
    ASSERT_TRUE(second);
    PartImpl* lamp = addPart(*document, "electronics/led", {0.02, 0.02});
    SpaceImpl* const first = lamp->space();
    window().spaceTabs()->showSpace(second);
    window().spaceTabs()->currentView()->setZoom(0.5);
    window().spaceTabs()->showSpace(first);
    window().spaceTabs()->currentView()->setZoom(3);
    window().setGeometry(30, 40, 1000, 700);
    window().findChild<QDockWidget*>(QStringLiteral("lockPalette"))->show();
    Printer paper = window().printing()->printer();
    paper.setScaleFactor(0.5);
    window().printing()->setPrinter(paper);
    document->setSelection({lamp});
    window().palettes()->showInspector(QRect(50, 60, 500, 400));
    QApplication::processEvents();
    ASSERT_TRUE(set(property(lamp, "brightness"), Value(50)));
    const QString file = document->getUrl().toLocalFile();
    const int steps = document->undoStack()->count();
    const bool remembered = window().findChild<QAction*>(QStringLiteral("undo"))->isEnabled();

    m_session->changeLanguage(QStringLiteral("de_DE"));
    QApplication::processEvents();
    EXPECT_NE(&window(), before);
    ASSERT_EQ(window().document(), document);
    EXPECT_EQ(document->getUrl().toLocalFile(), file);
    EXPECT_TRUE(document->isModified());
    EXPECT_TRUE(window().isWindowModified());
    EXPECT_EQ(document->undoStack()->count(), steps);
    EXPECT_EQ(window().findChild<QAction*>(QStringLiteral("undo"))->isEnabled(), remembered);
    EXPECT_EQ(document->getSelection(), ElementImplSet{lamp});
    EXPECT_EQ(window().spaceTabs()->currentSpace(), first);
    EXPECT_DOUBLE_EQ(window().spaceTabs()->currentView()->zoom(), 3);
    window().spaceTabs()->showSpace(second);
    EXPECT_DOUBLE_EQ(window().spaceTabs()->currentView()->zoom(), 0.5);
    EXPECT_EQ(window().geometry(), QRect(30, 40, 1000, 700));
    EXPECT_TRUE(window().findChild<QDockWidget*>(QStringLiteral("lockPalette"))->isVisible());
    EXPECT_DOUBLE_EQ(window().printing()->printer().scaleFactor(), 0.5);
    EXPECT_EQ(window().palettes()->inspectorGeometry(), QRect(50, 60, 500, 400));

    while (document->canUndo())
        document->undo();
    EXPECT_FALSE(window().findChild<QAction*>(QStringLiteral("undo"))->isEnabled());
}

TEST_F(LanguageSwitchTest, EntersWhatIsBeingTyped)
{
    ASSERT_NO_FATAL_FAILURE(start(QStringLiteral("en_GB")));
    select({QStringLiteral("first")});
    auto* part = document().nodeWithId(QStringLiteral("first"));
    QLineEdit* weight = field("weightSpin");
    ASSERT_TRUE(weight);
    weight->setFocus();
    weight->selectAll();
    QTest::keyClicks(weight, QStringLiteral("1.5"));
    m_session->changeLanguage(QStringLiteral("de_DE"));
    QApplication::processEvents();
    const double kept = part->valueOfProperty(PropertyKey::fromString("weight")).toDouble();
    ASSERT_TRUE(field("weightSpin"));
    EXPECT_TRUE(field("weightSpin")->text().startsWith(QStringLiteral("1,5")))
        << field("weightSpin")->text().toStdString();
    // The same number, typed as it is written there, is no other one.
    QTest::keyClicks(field("weightSpin"), QString());
    field("weightSpin")->setFocus();
    field("weightSpin")->selectAll();
    QTest::keyClicks(field("weightSpin"), QStringLiteral("2,25"));
    QTest::keyClick(field("weightSpin"), Qt::Key_Return);
    EXPECT_DOUBLE_EQ(part->valueOfProperty(PropertyKey::fromString("weight")).toDouble(), kept * 1.5);
}

TEST_F(LanguageSwitchTest, LeavesNoTextOfTheOldLanguage)
{
    // What German says and English, French and Arabic do not.
    QSet<QString> german;
    QSet<QString> others;
    for (const char* texts : {"zkeditor_", "packages_"}) {
        for (const TranslationMessage& message : translationsOf(QLatin1String(texts) + QStringLiteral("de"))) {
            german.insert(message.translations.first());
            others.insert(message.source);
        }
        for (const char* language : {"fr", "ar"}) {
            for (const TranslationMessage& message : translationsOf(QLatin1String(texts) + QLatin1String(language)))
                others.insert(message.translations.first());
        }
    }
    german -= others;
    ASSERT_NO_FATAL_FAILURE(start(QStringLiteral("de_DE")));
    select({QStringLiteral("first")});
    PartImpl* lamp = addPart(document(), "electronics/led");
    ASSERT_TRUE(set(property(lamp, "brightness"), Value(50)));
    const QString undo = actionText("undo");
    EXPECT_TRUE(undo.contains(QStringLiteral("Helligkeit"))) << undo.toStdString();
    for (const char* locale : {"ar_EG", "fr_FR", "en_GB"}) {
        m_session->changeLanguage(QLatin1String(locale));
        QApplication::processEvents();
        EXPECT_EQ(Languages::current(), QLatin1String(locale).left(2));
        EXPECT_EQ(QApplication::layoutDirection(),
                  Languages::current() == QLatin1String("ar") ? Qt::RightToLeft : Qt::LeftToRight);
        EXPECT_NE(actionText("undo"), undo);
        EXPECT_FALSE(actionText("undo").contains(QStringLiteral("Helligkeit")));
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget* top : windows) {
            for (const ShownText& shown : shownTexts(*top))
                EXPECT_FALSE(german.contains(shown.text))
                    << shown.where.toStdString() << ": " << shown.text.toStdString();
        }
    }
}

TEST_F(LanguageSwitchTest, IsChosenInThePreferences)
{
    ASSERT_NO_FATAL_FAILURE(start(QStringLiteral("en_GB")));
    QTimer::singleShot(50, &window(), [] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        for (QComboBox* box : dialog->findChildren<QComboBox*>()) {
            if (const int index = box->findData(QStringLiteral("fr_FR")); index >= 0)
                box->setCurrentIndex(index);
        }
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    window().findChild<QAction*>(QStringLiteral("preferences"))->trigger();
    QApplication::processEvents();
    EXPECT_EQ(Languages::current(), QStringLiteral("fr"));
    EXPECT_EQ(QLocale().decimalPoint(), QStringLiteral(","));
    EXPECT_EQ(actionText("open"), translated("zkeditor_fr", "Actions", "&Open..."));
}

TEST_F(LanguageSwitchTest, DocumentsAreTheSameInEveryLanguage)
{
    QByteArray english;
    for (const char* locale : {"en_GB", "de_DE", "fr_FR", "ar_EG", "fa_IR"}) {
        ASSERT_NO_FATAL_FAILURE(start(QLatin1String(locale)));
        for (const char* cid : {"electronics/led", "flowcharts/step", "mechanics/gear", "core/text"}) {
            const std::vector<PartImpl*> added = {addPart(document(), cid)};
            document().setSelection({added.front()});
            QApplication::processEvents();
            window().findChild<QAction*>(QStringLiteral("duplicate"))->trigger();
        }
        window().findChild<QAction*>(QStringLiteral("add-scene"))->trigger();
        select({QStringLiteral("first")});
        ASSERT_TRUE(field("weightSpin"));
        field("weightSpin")->setFocus();
        field("weightSpin")->selectAll();
        QTest::keyClicks(field("weightSpin"), QStringLiteral("1234") + QLocale().decimalPoint() + QLatin1Char('5'));
        QTest::keyClick(field("weightSpin"), Qt::Key_Return);
        const QByteArray bytes = saved();
        if (english.isEmpty())
            english = bytes;
        EXPECT_EQ(bytes, english) << locale;
    }
}

TEST_F(LanguageSwitchTest, AnUnknownLanguageIsEnglishAndDigitsArePlain)
{
    Languages::use(QStringLiteral("it_IT"));
    EXPECT_EQ(Languages::current(), QStringLiteral("en"));
    EXPECT_EQ(QLocale().decimalPoint(), QStringLiteral(","));
    for (const char* locale : {"ar_EG", "fa_IR", "hi_IN"}) {
        Languages::use(QLatin1String(locale));
        EXPECT_EQ(QLocale().zeroDigit(), QStringLiteral("0")) << locale;
    }
    Languages::use(QStringLiteral("de_AT"));
    EXPECT_EQ(Languages::current(), QStringLiteral("de"));
    EXPECT_EQ(Languages::available(),
              (QStringList{QStringLiteral("ar"), QStringLiteral("de"), QStringLiteral("en"), QStringLiteral("fr")}));
}
