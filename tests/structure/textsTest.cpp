// What no file of the tree says: where it was written, what is still to be done, which papers it was planned with.
#include "sourceTree.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

struct Unwanted
{
    const char* name;
    /// In two halves, so that this file does not say it either.
    const char* pattern;
    QStringList files;
    const char* allowed;
};

void PrintTo(const Unwanted& unwanted, std::ostream* out)
{
    *out << unwanted.name;
}

const QStringList codeAndBuild = {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.txt"),
                                  QStringLiteral("*.cmake")};
const QStringList allTexts =
    codeAndBuild + QStringList{QStringLiteral("*.md"),    QStringLiteral("*.xml"),   QStringLiteral("*.json"),
                               QStringLiteral("*.zkdoc"), QStringLiteral("*.plist"), QStringLiteral("run"),
                               QStringLiteral("test"),    QStringLiteral("setup"),   QStringLiteral("bench"),
                               QStringLiteral("format"),  QStringLiteral("lint"),    QStringLiteral("lib")};
const QStringList allFolders = {QStringLiteral("zkcore"),  QStringLiteral("zkeditor"),   QStringLiteral("zkauthor"),
                                QStringLiteral("tools"),   QStringLiteral("packages"),   QStringLiteral("samples"),
                                QStringLiteral("tests"),   QStringLiteral("benchmarks"), QStringLiteral("docs"),
                                QStringLiteral("scripts"), QStringLiteral("cmake"),      QStringLiteral(".ci")};
const QStringList topFiles = {QStringLiteral("README.md"), QStringLiteral("CMakeLists.txt"),
                              QStringLiteral("CMakePresets.json")};

class Texts : public testing::TestWithParam<Unwanted>
{
};

} // namespace

TEST_P(Texts, SayNoneOf)
{
    const QRegularExpression pattern(QString::fromLatin1(GetParam().pattern).remove(QLatin1Char('~')));
    ASSERT_TRUE(pattern.isValid());
    const QString allowed = QString::fromLatin1(GetParam().allowed);
    const QStringList files = sourceTree::files(allFolders, GetParam().files) + topFiles;
    for (const QString& file : files) {
        int number = 0;
        for (const QString& line : sourceTree::text(file).split(QLatin1Char('\n'))) {
            ++number;
            const bool says = line.contains(pattern) && (allowed.isEmpty() || !line.contains(allowed));
            EXPECT_FALSE(says) << file.toStdString() << ':' << number << ": " << line.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Unwanted, Texts,
    testing::Values(Unwanted{"places", "/wo~rk/|/far~m/|\\.libr~ary|/ro~ot/|/ho~me/", allTexts, ""},
                    Unwanted{"marks", "\\b(TO~DO|FIX~ME|XX~X|HA~CK)\\b", codeAndBuild, " - "},
                    Unwanted{
                        "papers",
                        "(?i)spec~ification|the sp~ec\\b|shared/sp~ec|part [0-9]+\\.[0-9]+|\\bsp~ecs?\\b.{0,20}\\bpart",
                        allTexts, ""}),
    [](const auto& tested) { return std::string(tested.param.name); });
