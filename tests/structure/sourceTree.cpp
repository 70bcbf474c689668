#include "sourceTree.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

const QString& sourceRoot()
{
    static const QString root = QStringLiteral(ZK_SOURCE_DIR "/");
    return root;
}

} // namespace

QStringList sourceTree::files(const QStringList& folders, const QStringList& patterns)
{
    QStringList found;
    for (const QString& folder : folders) {
        QDirIterator walk(sourceRoot() + folder, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            found.append(walk.next().mid(sourceRoot().size()));
    }
    found.sort();
    return found;
}

QString sourceTree::text(const QString& file)
{
    QFile device(sourceRoot() + file);
    EXPECT_TRUE(device.open(QIODevice::ReadOnly)) << file.toStdString();
    return QString::fromUtf8(device.readAll());
}

bool sourceTree::exists(const QString& file)
{
    return QFileInfo::exists(sourceRoot() + file);
}

std::vector<IncludeLine> sourceTree::includes(const QString& file)
{
    static const QRegularExpression pattern(QStringLiteral("^#\\s*include\\s*([<\"])([^>\"]+)[>\"]"));
    std::vector<IncludeLine> found;
    int number = 0;
    for (const QString& line : text(file).split(QLatin1Char('\n'))) {
        ++number;
        const QRegularExpressionMatch match = pattern.match(line);
        if (match.hasMatch())
            found.push_back({match.captured(2), match.captured(1) == QLatin1String("\""), number});
    }
    return found;
}

QString sourceTree::topFolder(const QString& file)
{
    return file.section(QLatin1Char('/'), 0, 0);
}
