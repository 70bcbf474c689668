#include "zkauthor/packageCheck.h"

#include "zkcore/media/resourceTable.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/nodeDb.h"
#include "zkcore/storage/package.h"
#include "zkcore/values/validator.h"
#include "zkeditor/formChecker.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr qint64 largestTextFile = 16 * 1024 * 1024;

/// The resources that classes of any package name.
QSet<QString> namedByClasses(const NodeDb& classes)
{
    QSet<QString> names;
    const auto addValue = [&names](const Value& value) {
        if (value.type() == Value::RESOURCE)
            names.insert(value.toResource().toString());
        for (const QString& text : value.toStringVector())
            names.insert(text);
        for (const Resource& resource : value.toResourceVector())
            names.insert(resource.toString());
        for (const auto& [key, entry] : value.toValueMap())
            if (entry.type() == Value::RESOURCE)
                names.insert(entry.toResource().toString());
    };
    for (const NodePrototype* prototype : classes.prototypes()) {
        names.insert(prototype->icon.toString());
        names.insert(prototype->body.toString());
        for (const PropertyDefinition& property : prototype->properties()) {
            addValue(property.defaultValue);
            if (const auto* validator = dynamic_cast<const ResourceValidator*>(property.validator.get()))
                addValue(Value(validator->resources()));
        }
    }
    return names;
}

bool isFormFile(const QString& file)
{
    return resourceTypeForExtension(QFileInfo(file).suffix().toLower()) == Resource::FORM;
}

} // namespace

void PackageCheck::run()
{
    const QString name = QFileInfo(QDir(m_folder).absolutePath()).fileName();
    Package::all();
    Package::unload(name);
    const QStringList faults = Package::faults(QDir(m_folder).absolutePath());
    for (const QString& fault : faults) {
        // The file names in them are absolute; what was asked for is what is answered.
        static const QRegularExpression form(QStringLiteral("^(.*?:\\d+:\\d+): (.*)$"),
                                             QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = form.match(fault);
        const QString place = match.captured(1);
        const QString absolute = QDir(m_folder).absolutePath() + QLatin1Char('/');
        addError(place.startsWith(absolute) ? QDir(m_folder).filePath(place.mid(absolute.size())) : place,
                 match.captured(2));
    }
    QString error;
    const bool loaded = faults.isEmpty() && Package::load(QDir(m_folder).absolutePath(), error);
    checkForms(loaded);
    checkUse();
}

void PackageCheck::addError(const QString& place, const QString& text)
{
    m_lines.append(place + QStringLiteral(": error: ") + text);
    ++m_errors;
}

void PackageCheck::addWarning(const QString& place, const QString& text)
{
    m_lines.append(place + QStringLiteral(": warning: ") + text);
    ++m_warnings;
}

QStringList PackageCheck::files() const
{
    QStringList files;
    for (QDirIterator it(m_folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        files.append(it.next());
    files.sort();
    return files;
}

/// From the folder in which the package's folder stands, without extension.
QString PackageCheck::resourceName(const QString& file) const
{
    const QDir parent = QFileInfo(QDir(m_folder).absolutePath()).dir();
    const QString path = parent.relativeFilePath(QFileInfo(file).absoluteFilePath());
    return path.left(path.size() - QFileInfo(file).suffix().size() - 1);
}

void PackageCheck::checkForms(bool hasClasses)
{
    DocumentImpl document;
    const NodeDb& classes = *document.getNodeDb();
    for (const QString& name : files()) {
        QFile file(name);
        if (!isFormFile(name))
            continue;
        if (!file.open(QIODevice::ReadOnly)) {
            addError(name + QStringLiteral(":1"), tr("the file cannot be read: %1").arg(file.errorString()));
            continue;
        }
        std::vector<const NodePrototype*> users;
        if (hasClasses)
            users = FormChecker::classesThatShow(resourceName(name), classes);
        const FormChecker checker(file.read(FormDescription::maximumSize + 1));
        for (const FormFinding& finding : checker.checkAll(users, classes)) {
            m_lines.append(finding.message(name));
            ++(finding.severity == FormFinding::Error ? m_errors : m_warnings);
        }
    }
}

/// Files that neither the package nor a class of another one names.
void PackageCheck::checkUse()
{
    static const QRegularExpression word(QStringLiteral("[\\w./-]+"));
    static const QRegularExpression wholeWord(QRegularExpression::anchoredPattern(word.pattern()));
    static const QSet<QString> texts = {QStringLiteral("xml"), QStringLiteral("ui"), QStringLiteral("html"),
                                        QStringLiteral("txt"), QStringLiteral("js"), QStringLiteral("py"),
                                        QStringLiteral("lua")};
    const QStringList all = files();
    DocumentImpl document;
    QSet<QString> named = namedByClasses(*document.getNodeDb());
    QString everything;
    for (const QString& name : all) {
        QFile file(name);
        if (!texts.contains(QFileInfo(name).suffix().toLower()) || file.size() > largestTextFile ||
            !file.open(QIODevice::ReadOnly))
            continue;
        const QString text = QString::fromUtf8(file.readAll());
        everything += text;
        for (auto words = word.globalMatch(text); words.hasNext();)
            named.insert(words.next().captured());
    }
    for (const QString& name : all) {
        const QString suffix = QFileInfo(name).suffix().toLower();
        const QString resource = resourceName(name);
        const bool isWord = wholeWord.match(resource).hasMatch();
        if (QFileInfo(name) == QFileInfo(QDir(m_folder).filePath(QStringLiteral("package.xml"))))
            continue;
        if (resourceTypeForExtension(suffix) == Resource::INVALID)
            addWarning(name + QStringLiteral(":1"),
                       tr("the extension stands for no kind of resource: the file is never used"));
        else if (isWord ? !named.contains(resource) : !everything.contains(resource))
            addWarning(name + QStringLiteral(":1"), tr("nothing names the file"));
    }
}
