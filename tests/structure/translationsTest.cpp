// The files in translations/: complete, with what the program puts into the texts, and for the texts that there are.
#include "sourceTree.h"

#include "tests/support/translationFile.h"

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QStringList translationFiles()
{
    return sourceTree::files({QStringLiteral("translations")}, {QStringLiteral("*.ts")});
}

QString languageOf(const QString& file)
{
    return file.section(QLatin1Char('_'), -1).section(QLatin1Char('.'), 0, 0);
}

/// What a pattern finds in a text, sorted.
QStringList all(const char* pattern, const QString& text)
{
    QStringList found;
    const QRegularExpression expression(QString::fromLatin1(pattern), QRegularExpression::UseUnicodePropertiesOption);
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    found.sort();
    return found;
}

bool hasMnemonic(const QString& text)
{
    return !all("&(?=[\\w])(?!\\w+;)", QString(text).remove(QStringLiteral("&&"))).isEmpty();
}

/// What is wrong with a translation of a text; empty when nothing is.
QString faultOf(const QString& source, const QString& translation, bool mayDropNumber)
{
    if (translation.trimmed().isEmpty())
        return QStringLiteral("is missing");
    if (all("%L?[1-9]", source) != all("%L?[1-9]", translation))
        return QStringLiteral("has other places for values");
    if (!mayDropNumber && all("%L?n", source) != all("%L?n", translation))
        return QStringLiteral("has no place for the number");
    if (all("</?[a-z]+>", source) != all("</?[a-z]+>", translation))
        return QStringLiteral("has other markup");
    if (all("^\\s+", source) != all("^\\s+", translation) || all("\\s+$", source) != all("\\s+$", translation))
        return QStringLiteral("begins or ends with other blanks");
    if (hasMnemonic(source) != hasMnemonic(translation))
        return QStringLiteral("has a shortcut letter where there is none, or none where there is one");
    const QRegularExpression dots(QStringLiteral("(\\.\\.\\.|…)(\\s*\\(&\\w\\))?$"));
    if (source.endsWith(QLatin1String("...")) != translation.contains(dots))
        return QStringLiteral("does not end with dots as the source does");
    return {};
}

} // namespace

TEST(Translations, AreCompleteAndKeepWhatIsPutIn)
{
    const QMap<QString, int> pluralForms = {
        {QStringLiteral("ar"), 6}, {QStringLiteral("de"), 2}, {QStringLiteral("en"), 2}, {QStringLiteral("fr"), 2}};
    const QStringList files = translationFiles();
    EXPECT_EQ(files.size(), 7);
    for (const QString& file : files) {
        ASSERT_TRUE(pluralForms.contains(languageOf(file))) << file.toStdString();
        const int forms = pluralForms.value(languageOf(file));
        for (const TranslationMessage& message : readTranslations(sourceTree::text(file))) {
            const std::string where = (file + QLatin1Char(' ') + message.name()).toStdString();
            EXPECT_EQ(message.type, QString()) << where;
            EXPECT_EQ(message.translations.size(), message.numerus ? forms : 1) << where;
            for (qsizetype i = 0; i < message.translations.size(); ++i) {
                // Forms for none, one and two may say the number in words.
                const bool mayDropNumber = message.numerus && i < forms - 1 && i < 3;
                const QString fault = faultOf(message.source, message.translations[i], mayDropNumber);
                EXPECT_EQ(fault, QString()) << where << " = " << message.translations[i].toStdString();
            }
        }
    }
}

// "scripts/translations" mends what fails here.
TEST(Translations, AreForTheTextsThatThereAre)
{
    const QTemporaryDir folder;
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZKTEXTS"), QStringLiteral(ZK_BINARY_DIR "/bin/zktexts"));
    script.setProcessEnvironment(environment);
    script.start(QStringLiteral(ZK_SOURCE_DIR "/scripts/translations"), {QStringLiteral("--into"), folder.path()});
    ASSERT_TRUE(script.waitForFinished(60000));
    ASSERT_EQ(script.exitCode(), 0) << script.readAllStandardError().toStdString();

    const auto names = [](const std::vector<TranslationMessage>& messages, bool pluralsOnly) {
        QSet<QString> result;
        for (const TranslationMessage& message : messages) {
            if (message.numerus || !pluralsOnly)
                result.insert(message.name());
        }
        return result;
    };
    for (const QString& file : translationFiles()) {
        const QString kind = file.section(QLatin1Char('/'), -1).section(QLatin1Char('_'), 0, 0);
        QFile collected(folder.filePath(kind + QStringLiteral(".ts")));
        ASSERT_TRUE(collected.open(QIODevice::ReadOnly));
        const bool pluralsOnly = languageOf(file) == QLatin1String("en");
        const QSet<QString> wanted = names(readTranslations(QString::fromUtf8(collected.readAll())), pluralsOnly);
        const QSet<QString> present = names(readTranslations(sourceTree::text(file)), pluralsOnly);
        EXPECT_FALSE(wanted.isEmpty());
        for (const QString& name : wanted - present)
            ADD_FAILURE() << file.toStdString() << " lacks " << name.toStdString();
        for (const QString& name : present - wanted)
            ADD_FAILURE() << file.toStdString() << " has what nothing says: " << name.toStdString();
    }
}
