// Reads the include lines of the tree. The include roots of the build refuse most wrong ones; this also refuses those
// that a root cannot see: toolkit modules, headers behind a library's border, headers that nobody needs.
#include "sourceTree.h"

#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

namespace {

const QStringList layers = {QStringLiteral("zkcore"), QStringLiteral("zkeditor"), QStringLiteral("zkauthor")};
const QStringList codeFolders = layers + QStringList{QStringLiteral("tests"), QStringLiteral("benchmarks")};
const QStringList codeFiles = {QStringLiteral("*.h"), QStringLiteral("*.cpp")};
const QString widgetSupport = QStringLiteral("zkcore/widgetSupport/");

/// Whether a file may use what another one of ours declares: layers see themselves and what is below them.
bool mayInclude(const QString& file, const QString& header)
{
    const qsizetype own = layers.indexOf(sourceTree::topFolder(file));
    const qsizetype other = layers.indexOf(sourceTree::topFolder(header));
    if (own < 0)
        return true; // tests and benchmarks
    if (own == 0 && header.startsWith(widgetSupport))
        return file.startsWith(widgetSupport);
    return other >= 0 && other <= own;
}

bool isWidgetsHeader(const QString& name)
{
    return name.startsWith(QLatin1String("QtWidgets")) ||
           QFileInfo::exists(QStringLiteral(ZK_WIDGETS_INCLUDE_DIR "/") + name);
}

/// Whether a header is its own library's alone: there is code behind it, and none of it is exported.
bool isPrivate(const QString& header)
{
    const bool hasCode = sourceTree::exists(header.chopped(2) + QStringLiteral(".cpp"));
    return hasCode && !sourceTree::text(header).contains(QLatin1String("_EXPORT "));
}

/// A file's text without its comments and include lines.
QString codeOf(const QString& file)
{
    static const QRegularExpression noise(QStringLiteral("//[^\n]*|^\\s*#\\s*include[^\n]*"),
                                          QRegularExpression::MultilineOption);
    return sourceTree::text(file).remove(noise);
}

QSet<QString> captured(const QString& text, const QRegularExpression& pattern)
{
    QSet<QString> result;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        result.insert(matches.next().captured(1));
    return result;
}

/// The names that a header declares: types, functions, constants, macros. A few too many rather than too few.
QSet<QString> declaredIn(const QString& code)
{
    static const QRegularExpression forward(QStringLiteral("\\b(?:class|struct)\\s+(\\w+);"));
    static const QRegularExpression type(
        QStringLiteral("\\b(?:class|struct|enum|namespace|using)\\s+(?:class\\s+)?(?:ZK\\w+_EXPORT\\s+)?(\\w+)"));
    static const QRegularExpression macro(QStringLiteral("#\\s*define\\s+(\\w+)"));
    static const QRegularExpression other(QStringLiteral("\\b(\\w+)\\s*(?:\\(|=|;|\\[\\])"));
    return (captured(code, type) + captured(code, macro) + captured(code, other)) - captured(code, forward);
}

std::string place(const QString& file, const IncludeLine& include)
{
    return file.toStdString() + ':' + std::to_string(include.line) + ": " + include.name.toStdString();
}

template <typename Check> void forEachInclude(Check check)
{
    for (const QString& file : sourceTree::files(codeFolders, codeFiles))
        for (const IncludeLine& include : sourceTree::includes(file))
            check(file, include);
}

} // namespace

TEST(Includes, LeadOnlyDownTheLayers)
{
    int seen = 0;
    forEachInclude([&](const QString& file, const IncludeLine& include) {
        if (include.quoted && include.name.contains(QLatin1Char('/'))) {
            EXPECT_TRUE(mayInclude(file, include.name)) << place(file, include);
        }
        if (file.startsWith(QLatin1String("zkcore/")) && !file.startsWith(widgetSupport)) {
            EXPECT_FALSE(isWidgetsHeader(include.name)) << "a widget in the core: " << place(file, include);
        }
        ++seen;
    });
    EXPECT_GT(seen, 100) << "the sources were not found";
    EXPECT_TRUE(isWidgetsHeader(QStringLiteral("QLabel"))) << "the toolkit's headers were not found";
}

TEST(Includes, StayOutOfTheInsidesOfOtherLibraries)
{
    forEachInclude([](const QString& file, const IncludeLine& include) {
        const bool crosses = layers.contains(sourceTree::topFolder(file)) &&
                             layers.contains(sourceTree::topFolder(include.name)) &&
                             sourceTree::topFolder(file) != sourceTree::topFolder(include.name);
        if (crosses) {
            EXPECT_FALSE(isPrivate(include.name)) << place(file, include);
        }
    });
}

TEST(Includes, AreWrittenFromTheRootAndPrecise)
{
    static const QSet<QString> wholeModules = {
        QStringLiteral("QtCore"),         QStringLiteral("QtGui"),  QStringLiteral("QtWidgets"),
        QStringLiteral("QtPrintSupport"), QStringLiteral("QtXml"),  QStringLiteral("QtSvg"),
        QStringLiteral("QtUiTools"),      QStringLiteral("QtTest"),
    };
    forEachInclude([](const QString& file, const IncludeLine& include) {
        EXPECT_FALSE(wholeModules.contains(include.name)) << "a whole module: " << place(file, include);
        if (!include.quoted || include.name.endsWith(QLatin1String(".moc")))
            return;
        const QString beside = file.section(QLatin1Char('/'), 0, -2) + QLatin1Char('/') + include.name;
        const bool localToTests = !layers.contains(sourceTree::topFolder(file)) && sourceTree::exists(beside);
        EXPECT_TRUE(localToTests || sourceTree::exists(include.name)) << "not from the root: " << place(file, include);
    });
}

TEST(Includes, UseEveryHeader)
{
    QSet<QString> used;
    forEachInclude([&](const QString& file, const IncludeLine& include) {
        const QString folder = file.section(QLatin1Char('/'), 0, -2) + QLatin1Char('/');
        const QString header = include.name.contains(QLatin1Char('/')) ? include.name : folder + include.name;
        if (file.chopped(4) != header.chopped(2)) // its own code does not count
            used.insert(header);
    });
    used.insert(QStringLiteral("tests/support/qtPrinting.h")); // by the build
    for (const QString& header : sourceTree::files(codeFolders, {QStringLiteral("*.h")}))
        EXPECT_TRUE(used.contains(header)) << "nobody includes " << header.toStdString();
}

TEST(Includes, AreOfUse)
{
    static const QRegularExpression word(QStringLiteral("\\b(\\w+)\\b"));
    QHash<QString, QSet<QString>> declared;
    QHash<QString, QSet<QString>> words;
    forEachInclude([&](const QString& file, const IncludeLine& include) {
        const QString folder = file.section(QLatin1Char('/'), 0, -2) + QLatin1Char('/');
        const QString header = sourceTree::exists(include.name) ? include.name : folder + include.name;
        if (!include.quoted || !header.endsWith(QLatin1String(".h")) || file.chopped(4) == header.chopped(2))
            return;
        if (!declared.contains(header))
            declared.insert(header, declaredIn(codeOf(header)));
        if (!words.contains(file))
            words.insert(file, captured(codeOf(file), word));
        EXPECT_TRUE(words.value(file).intersects(declared.value(header)))
            << "nothing of it is used: " << place(file, include);
    });
}

TEST(Sources, StayBelowSixHundredLines)
{
    for (const QString& file : sourceTree::files(codeFolders, codeFiles))
        EXPECT_LE(sourceTree::text(file).count(QLatin1Char('\n')), 600) << file.toStdString();
}
