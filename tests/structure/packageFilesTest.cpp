// Forms and pictures of the packages, and pictures of the documentation: each one is named somewhere, and what is named
// is there.
#include "sourceTree.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

namespace {

/// Forms and pictures below packages/, named as programs and packages name them: without folder and extension.
QSet<QString> packageResources()
{
    QSet<QString> names;
    const QStringList patterns = {QStringLiteral("*.ui"), QStringLiteral("*.svg"), QStringLiteral("*.png"),
                                  QStringLiteral("*.jpg")};
    for (const QString& file : sourceTree::files({QStringLiteral("packages")}, patterns))
        names.insert(file.section(QLatin1Char('/'), 1).section(QLatin1Char('.'), 0, 0));
    return names;
}

/// All that a pattern finds in some files.
QSet<QString> found(const char* pattern, const QStringList& folders, const QStringList& files)
{
    const QRegularExpression expression(QString::fromLatin1(pattern));
    QSet<QString> result;
    for (const QString& file : sourceTree::files(folders, files)) {
        const QString text = sourceTree::text(file);
        for (auto matches = expression.globalMatch(text); matches.hasNext();)
            result.insert(matches.next().captured(1));
    }
    return result;
}

} // namespace

TEST(PackageFiles, AreAllNamedSomewhere)
{
    const char* path = "([A-Za-z0-9_-]+(?:/[A-Za-z0-9_-]+)+)";
    const QStringList sources = {QStringLiteral("zkcore"), QStringLiteral("zkeditor"), QStringLiteral("zkauthor")};
    const QStringList code = {QStringLiteral("*.cpp"), QStringLiteral("*.h")};
    const QSet<QString> inPackages =
        found(path, {QStringLiteral("packages")}, {QStringLiteral("*.xml"), QStringLiteral("*.ui")});
    const QSet<QString> inSamples = found(path, {QStringLiteral("samples")}, {QStringLiteral("*.zkdoc")});
    const QSet<QString> inSources = found(path, sources, code);
    const QSet<QString> words = found("\"([A-Za-z0-9_-]+)\"", sources, code);
    const QSet<QString> present = packageResources();
    EXPECT_FALSE(present.isEmpty());
    for (const QString& resource : present) {
        // Code may also put a name together from its folder and a word.
        const bool composed = inSources.contains(resource.section(QLatin1Char('/'), 0, -2)) &&
                              words.contains(resource.section(QLatin1Char('/'), -1));
        const bool named =
            inPackages.contains(resource) || inSamples.contains(resource) || inSources.contains(resource) || composed;
        EXPECT_TRUE(named) << "nothing names " << resource.toStdString();
    }
}

TEST(PackageFiles, AreThereWhenNamed)
{
    const char* reference = "(?:(?:icon|body|resource)=\"|<form>|<item label=\"[^\"]*\">)([a-z0-9/-]+)[\"<]";
    const QSet<QString> present = packageResources();
    const QSet<QString> named = found(reference, {QStringLiteral("packages")}, {QStringLiteral("package.xml")});
    EXPECT_FALSE(named.isEmpty());
    for (const QString& name : named)
        EXPECT_TRUE(present.contains(name)) << "a package names " << name.toStdString();
}

TEST(Documentation, ShowsItsPicturesAndNoOthers)
{
    QSet<QString> named;
    const QRegularExpression reference(QStringLiteral("(?:\\]\\(|src=\"|srcset=\")([^)\"#:]+\\.(?:png|svg|md))"));
    const QStringList pages = sourceTree::files({QStringLiteral("docs")}, {QStringLiteral("*.md")}) +
                              QStringList{QStringLiteral("README.md")};
    for (const QString& page : pages) {
        const QString text = sourceTree::text(page);
        for (auto matches = reference.globalMatch(text); matches.hasNext();) {
            const QString file =
                QDir::cleanPath(QFileInfo(page).path() + QLatin1Char('/') + matches.next().captured(1));
            EXPECT_TRUE(sourceTree::exists(file)) << page.toStdString() << " names " << file.toStdString();
            named.insert(file);
        }
    }
    for (const QString& file : sourceTree::files(
             {QStringLiteral("docs")}, {QStringLiteral("*.png"), QStringLiteral("*.svg"), QStringLiteral("*.md")}))
        EXPECT_TRUE(named.contains(file)) << "no page leads to " << file.toStdString();
}
