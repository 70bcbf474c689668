// Each window, palette, dialog and form in each language, and the change from one to another while people work.
#include "languageFixture.h"
#include "shownTexts.h"

#include "zkcore/services/languages.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

namespace {

/// Marks each text, so that texts stand out which never were to be translated.
class MarkingTranslator : public QTranslator
{
public:
    MarkingTranslator()
    {
        for (const char* file : {"zkeditor_de", "packages_de"}) {
            for (const TranslationMessage& message : translationsOf(QLatin1String(file))) {
                m_known.insert(message.context + QLatin1Char('\n') + message.source);
                m_contexts.insert(message.context);
            }
        }
    }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const QString text = QString::fromUtf8(source);
        const QString name = QString::fromUtf8(context);
        const bool ours = m_contexts.contains(name) || name.contains(QLatin1Char('/'));
        if (text.isEmpty() || (ours && !m_known.contains(name + QLatin1Char('\n') + text)))
            return {};
        return text == QLatin1String("QT_LAYOUT_DIRECTION") ? QString() : text + QStringLiteral("\u00a4");
    }

private:
    QSet<QString> m_known;
    QSet<QString> m_contexts;
};

/// A text without what the program adds to it.
QString bare(QString text)
{
    static const QRegularExpression keys(QStringLiteral(" \\([^()]*(Ctrl|Shift|Alt|F\\d|Del|Ins)[^()]*\\)$"));
    return text.remove(keys);
}

/// What stands on view as it is in every language: units, and names in the samples and packages.
const QSet<QString> unitsAndNames = {QStringLiteral("in"),     QStringLiteral("out"),    QStringLiteral("min"),
                                     QStringLiteral("mile"),   QStringLiteral("kHz"),    QStringLiteral("rpm"),
                                     QStringLiteral("one"),    QStringLiteral("two"),    QStringLiteral("knob"),
                                     QStringLiteral("apples"), QStringLiteral("ripe"),   QStringLiteral("bell"),
                                     QStringLiteral("horn"),   QStringLiteral("picture")};

/// The inspector shows keys and values as documents have them.
bool isDataOfInspector(const QString& window, const ShownText& shown)
{
    const bool isValue =
        shown.where.endsWith(QLatin1String(": row")) ||
        (shown.where.endsWith(QLatin1String(": tool tip of a row")) && !shown.text.endsWith(QLatin1Char('.')));
    return isValue && (window == QLatin1String("inspector") || window.endsWith(QLatin1String("debugPalette")));
}

class TranslatedInto : public LanguageFixture, public testing::WithParamInterface<const char*>
{
};

class InLanguage : public LanguageFixture, public testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(TranslatedInto, NoTextIsLeftInEnglish)
{
    const QString locale = QLatin1String(GetParam());
    const auto plain = [](QString text) { return text.remove(QLatin1Char('&')); };
    QSet<QString> sources = {};
    QSet<QString> translations = unitsAndNames;
    for (const QString& file : {QStringLiteral("zkeditor_"), QStringLiteral("packages_")}) {
        for (const TranslationMessage& message : translationsOf(file + locale.left(2))) {
            sources.insert(plain(message.source));
            for (const QString& translation : message.translations)
                translations.insert(plain(translation));
        }
    }
    ASSERT_NO_FATAL_FAILURE(start(locale));
    // The title of the scene, which happens to be a text of a package as well.
    translations.insert(document().getModel()->getScenes().front()->displayName());
    sources -= translations;
    QSet<QString> told;
    visitAll([&](const QWidget& window, const QString& name) {
        for (const ShownText& shown : shownTexts(window)) {
            const QString text = plain(bare(shown.text));
            if (sources.contains(text) && !told.contains(text) && !isDataOfInspector(name, shown)) {
                told.insert(text);
                ADD_FAILURE() << name.toStdString() << ", " << shown.where.toStdString() << ": "
                              << shown.text.toStdString();
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedInto, testing::Values("de_DE", "fr_FR", "ar_EG"),
                         [](const auto& tested) { return std::string(tested.param, 2); });

TEST_P(InLanguage, EveryTextHasRoom)
{
    ASSERT_NO_FATAL_FAILURE(start(QLatin1String(GetParam())));
    QSet<QString> told;
    visitAll([&](const QWidget& window, const QString& name) {
        for (const QString& clipped : clippedTexts(window)) {
            if (!told.contains(clipped))
                ADD_FAILURE() << name.toStdString() << ", " << clipped.toStdString();
            told.insert(clipped);
        }
    });
}

TEST_P(InLanguage, AShortcutLetterStandsForOneThing)
{
    ASSERT_NO_FATAL_FAILURE(start(QLatin1String(GetParam())));
    // Exactly these words are wanted there.
    QSet<QString> told = {QStringLiteral("addCustomPart: Alt+L for \"Part &label:\", \"Part &level:\"")};
    visitAll([&](const QWidget& window, const QString& name) {
        // Forms stand in the main window, whose menus and buttons have letters too.
        for (const QString& shared : sharedMnemonics(*window.window())) {
            if (!told.contains(shared))
                ADD_FAILURE() << name.toStdString() << ", " << shared.toStdString();
            told.insert(shared);
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, InLanguage, testing::Values("en_GB", "de_DE", "fr_FR", "ar_EG"),
                         [](const auto& tested) { return std::string(tested.param, 2); });

TEST_F(LanguageFixture, EveryTextIsLookedUp)
{
    Languages::use(QStringLiteral("en_GB"));
    MarkingTranslator marking;
    QCoreApplication::installTranslator(&marking);
    ASSERT_NO_FATAL_FAILURE(open("gallery"));
    QSet<QString> data = unitsAndNames;
    for (const QString& family : QFontDatabase::families())
        data.insert(family);
    const QRegularExpression letters(QStringLiteral("\\p{L}{3,}"));
    const QRegularExpression resourceName(
        QStringLiteral("^([a-z]+/[a-z-]+(/[a-z-]+)*|/.*|#[0-9a-f]+)$")); // path, colour
    for (const char* locale : {"en_GB", "de_DE", "fr_FR", "ar_EG"})
        data.insert(QLocale(QLatin1String(locale)).nativeLanguageName());
    // As they are at first: the texts and titles that stand in the sample.
    const auto titles = [this] {
        QSet<QString> found = {document().getModel()->valueOfProperty(PropertyKey::fromString("notes")).toQString()};
        for (const char* id : {"first", "second", "third", "gallery"}) {
            if (const NodeImpl* node = document().nodeWithId(QLatin1String(id)))
                found.insert(node->displayName());
        }
        return found;
    };
    QSet<QString> told;
    visitAll([&](const QWidget& window, const QString& name) {
        for (const ShownText& shown : shownTexts(window)) {
            const QString text = bare(shown.text);
            const bool isSaid = text.contains(QChar(0xa4)) || text.endsWith(QChar(0x2026)); // or shortened
            const bool isName = data.contains(text) || text.contains(resourceName) || document().nodeWithId(text) ||
                                titles().contains(text);
            if (isSaid || isName || !text.contains(letters) || told.contains(text) || isDataOfInspector(name, shown))
                continue;
            told.insert(text);
            ADD_FAILURE() << name.toStdString() << ", " << shown.where.toStdString() << ": " << text.toStdString();
        }
    });
    m_session.reset();
    QCoreApplication::removeTranslator(&marking);
}
