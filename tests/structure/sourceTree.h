#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// An include line: what it names, and whether between quotes or in angle brackets.
struct IncludeLine
{
    QString name;
    bool quoted;
    int line;
};

/// The files of the project, named relative to its root.
namespace sourceTree {

/// Names of the files below some folders that match one of the patterns ("*.h"), sorted.
QStringList files(const QStringList& folders, const QStringList& patterns);
/// The whole text of a file; reports a test failure when it cannot be read.
QString text(const QString& file);
bool exists(const QString& file);
std::vector<IncludeLine> includes(const QString& file);
/// "zkcore", "zkeditor", "tests"...: the first folder of a name.
QString topFolder(const QString& file);

} // namespace sourceTree
