#include "zkauthor/checkForms.h"

#include "zkauthor/packageCheck.h"
#include "zkauthor/startOptions.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeDb.h"
#include "zkeditor/formChecker.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdio>

namespace {

enum ExitCode { NoErrors = 0, Errors = 1, Unreadable = 2 };

struct CheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(checkForms)
};

void printLine(std::FILE* stream, const QString& text)
{
    std::fprintf(stream, "%s\n", text.toLocal8Bit().constData());
}

int refuseToCheck(const QString& text)
{
    printLine(stderr, QStringLiteral("zkauthor: ") + text);
    return Unreadable;
}

/// The name by which classes know a form: its path from the folder in which its package's folder stands.
QString resourceNameOf(const QString& file)
{
    QString name = QFileInfo(file).completeBaseName();
    for (QDir folder = QFileInfo(file).absoluteDir();;) {
        name = folder.dirName() + QLatin1Char('/') + name;
        if (folder.exists(QStringLiteral("package.xml")))
            return name;
        if (!folder.cdUp() || folder.isRoot())
            return {};
    }
}

int sumUp(const QString& name, int errors, int warnings)
{
    printLine(stdout, QStringLiteral("%1: %2, %3")
                          .arg(name, CheckTexts::tr("%n error(s)", nullptr, errors),
                               CheckTexts::tr("%n warning(s)", nullptr, warnings)));
    return errors > 0 ? Errors : NoErrors;
}

int checkForm(const QString& name, const QStringList& classNames)
{
    QFile file(name);
    // Reading a pipe or a device might never end.
    if (!QFileInfo(name).isFile())
        return refuseToCheck(CheckTexts::tr("%1 is no file.").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return refuseToCheck(CheckTexts::tr("%1 cannot be read: %2").arg(name, file.errorString()));
    const FormChecker checker(file.read(FormDescription::maximumSize + 1));

    DocumentImpl document;
    const NodeDb& classes = *document.getNodeDb();
    std::vector<const NodePrototype*> prototypes;
    for (const QString& id : classNames) {
        const NodePrototype* prototype = classes.lookupPrototype(getCidForString(id));
        if (!prototype)
            return refuseToCheck(CheckTexts::tr("There is no class \"%1\".").arg(id));
        prototypes.push_back(prototype);
    }
    if (classNames.isEmpty())
        prototypes = FormChecker::classesThatShow(resourceNameOf(name), classes);
    int errors = 0;
    int warnings = 0;
    for (const FormFinding& finding : checker.checkAll(prototypes, classes)) {
        printLine(stdout, finding.message(name));
        ++(finding.severity == FormFinding::Error ? errors : warnings);
    }
    return sumUp(name, errors, warnings);
}

int checkPackage(const QString& folder)
{
    if (!QFileInfo(QDir(folder).filePath(QStringLiteral("package.xml"))).isFile())
        return refuseToCheck(CheckTexts::tr("%1 is no package: it has no file package.xml.").arg(folder));
    PackageCheck check(folder);
    check.run();
    for (const QString& line : check.lines())
        printLine(stdout, line);
    return sumUp(folder, check.errors(), check.warnings());
}

} // namespace

int checkForms(const StartOptions& options)
{
    return options.checkForm.isEmpty() ? checkPackage(options.checkPackage)
                                       : checkForm(options.checkForm, options.classes);
}
