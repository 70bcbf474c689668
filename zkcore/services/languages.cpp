#include "zkcore/services/languages.h"

#include "zkcore/storage/package.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>
#include <memory>
#include <vector>

namespace {

const QString sourceLanguage = QStringLiteral("en");
const QString embeddedTranslations = QStringLiteral(":/zk/translations");

struct LanguageInUse
{
    QString code = sourceLanguage;
    std::vector<std::unique_ptr<QTranslator>> translators;
};

LanguageInUse& languageInUse()
{
    static auto* const inUse = new LanguageInUse; // translators may not go after the application
    return *inUse;
}

void install(const QString& fileName)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(fileName) && QCoreApplication::installTranslator(translator.get()))
        languageInUse().translators.push_back(std::move(translator));
}

/// The first of the user's languages that there are texts in.
QString bestLanguage(const QLocale& locale)
{
    const QStringList available = Languages::available();
    const QStringList wanted = locale.uiLanguages();
    for (const QString& language : wanted) {
        const QString code = language.section(QLatin1Char('-'), 0, 0);
        if (available.contains(code))
            return code;
    }
    return sourceLanguage;
}

/// Files, formulas, units and expressions are written with the digits 0 to 9, and so are all numbers on view: a locale
/// with other digits gives way to one of the same language, else to English.
QLocale withPlainDigits(const QLocale& locale)
{
    const QString zero = QStringLiteral("0");
    if (locale.zeroDigit() == zero)
        return locale;
    const QList<QLocale> others = QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyTerritory);
    const auto plain = std::find_if(others.begin(), others.end(), [&](const QLocale& other) {
        return other.zeroDigit() == zero && other.decimalPoint() == QLatin1String(".");
    });
    return plain == others.end() ? QLocale(sourceLanguage) : *plain;
}

} // namespace

QStringList Languages::available()
{
    static const QStringList codes = [] {
        QStringList found;
        const QStringList files = QDir(embeddedTranslations).entryList({QStringLiteral("zkeditor_*.qm")});
        for (const QString& file : files)
            found.append(file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0));
        if (!found.contains(sourceLanguage))
            found.append(sourceLanguage);
        found.sort();
        return found;
    }();
    return codes;
}

void Languages::use(const QString& localeName)
{
    // What "-reverse" on the command line asked for holds for all languages.
    static const Qt::LayoutDirection direction = QGuiApplication::layoutDirection();

    LanguageInUse& inUse = languageInUse();
    const QLocale locale = localeName.isEmpty() ? QLocale::system() : QLocale(localeName);
    inUse.code = bestLanguage(locale);
    QLocale::setDefault(withPlainDigits(locale));
    for (const auto& translator : inUse.translators)
        QCoreApplication::removeTranslator(translator.get());
    inUse.translators.clear();

    install(QDir(QLibraryInfo::path(QLibraryInfo::TranslationsPath))
                .filePath(QStringLiteral("qtbase_%1.qm").arg(inUse.code)));
    for (const char* const texts : {"packages", "zkeditor"})
        install(QStringLiteral("%1/%2_%3.qm").arg(embeddedTranslations, QLatin1String(texts), inUse.code));
    const QString ofPackages = QStringLiteral("*_%1.qm").arg(inUse.code);
    const QDir userPackages(Package::userFolder());
    for (const QString& package : userPackages.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir folder(userPackages.filePath(package + QStringLiteral("/translations")));
        for (const QString& file : folder.entryList({ofPackages}, QDir::Files))
            install(folder.filePath(file));
    }
    const bool rightToLeft = QLocale(inUse.code).textDirection() == Qt::RightToLeft;
    QGuiApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : direction);
}

QString Languages::current()
{
    return languageInUse().code;
}
