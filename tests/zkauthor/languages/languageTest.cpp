// Each window, palette, dialog and form in each language, and the change from one to another while people work.
#include "languageFixture.h"
#include "shownTexts.h"

#include "zkcore/services/languages.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QHash>
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

class InLanguage : public LanguageFixture, public testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(InLanguage, NoTextIsLeftInEnglish)
{
    const QString locale = QLatin1String(GetParam());
    const QString language = locale.left(2);
    // What is translated everywhere by something else must not be seen.
    QHash<QString, bool> mayStay;
    for (const QString& file : {QStringLiteral("zkeditor_"), QStringLiteral("packages_")}) {
        for (const TranslationMessage& message : translationsOf(file + language))
            mayStay[message.source] |= message.translations.contains(message.source);
    }
    ASSERT_NO_FATAL_FAILURE(start(locale));
    QSet<QString> told;
    visitAll([&](const QWidget& window, const QString& name) {
        for (const ShownText& shown : shownTexts(window)) {
            const auto known = mayStay.constFind(bare(shown.text));
            if (known != mayStay.constEnd() && !*known && !told.contains(shown.text)) {
                told.insert(shown.text);
                ADD_FAILURE() << name.toStdString() << ", " << shown.where.toStdString() << ": "
                              << shown.text.toStdString();
            }
        }
    });
}

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
    QSet<QString> told;
    visitAll([&](const QWidget& window, const QString& name) {
        for (const QString& shared : sharedMnemonics(window)) {
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
    QSet<QString> data;
    for (const QString& family : QFontDatabase::families())
        data.insert(family);
    const QRegularExpression letters(QStringLiteral("\\p{L}{3,}"));
    QSet<QString> told;
    visitAll([&](const QWidget& window, const QString& name) {
        for (const ShownText& shown : shownTexts(window)) {
            const QString text = bare(shown.text);
            if (text.contains(QChar(0xa4)) || !text.contains(letters) || data.contains(text) || told.contains(text))
                continue;
            told.insert(text);
            ADD_FAILURE() << name.toStdString() << ", " << shown.where.toStdString() << ": " << text.toStdString();
        }
    });
    m_session.reset();
    QCoreApplication::removeTranslator(&marking);
}
