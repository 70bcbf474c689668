#include "zkeditor/widgets/resourceImport.h"

#include "zkcore/commands/resourceCommand.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/media/resourceTable.h"
#include "zkcore/model/documentImpl.h"
#include "zkeditor/widgets/undoGroup.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMimeData>
#include <QPointer>
#include <QProgressDialog>
#include <QSaveFile>
#include <QUrl>

namespace {

constexpr qint64 greatestFile = 64 * 1024 * 1024; // what a document takes

constexpr qsizetype manyFiles = 20; // are worth a look at how far they are

struct ImportTexts
{
    Q_DECLARE_TR_FUNCTIONS(ResourceImport)
};

QString unreadableReason(Resource::Type type, const QString& fileName)
{
    const QFileInfo info(fileName);
    const QString name = QDir::toNativeSeparators(fileName);
    QFile file(fileName);
    if (!info.exists())
        return ImportTexts::tr("There is no file \"%1\".").arg(name);
    if (info.isDir())
        return ImportTexts::tr("\"%1\" is a folder.").arg(name);
    if (!info.isFile()) // opening it could wait for another program for ever
        return ImportTexts::tr("\"%1\" is a device or a channel to another program, not a file.").arg(name);
    if (!file.open(QIODevice::ReadOnly))
        return ImportTexts::tr("The file \"%1\" cannot be read: %2").arg(name, file.errorString());
    if (info.size() > greatestFile)
        return ImportTexts::tr("The file \"%1\" is larger than 64 MB.").arg(name);
    if (info.size() == 0)
        return ImportTexts::tr("The file \"%1\" is empty.").arg(name);
    return ImportTexts::tr("The file \"%1\" cannot be used here: it does not hold data of the kind \"%2\".")
        .arg(name, Resource::typeAsString(type));
}

} // namespace

Resource resourceImport::readFile(Resource::Type type, const QString& fileName, QString* reason)
{
    const Resource resource = defineLocalResource(type, QFile(fileName));
    if (!resource.isValid() && reason)
        *reason = unreadableReason(type, fileName);
    return resource;
}

std::vector<Resource> resourceImport::readFiles(Resource::Type type, const QStringList& fileNames, QWidget* parent,
                                                QString* reason)
{
    std::vector<Resource> resources;
    resources.reserve(static_cast<size_t>(fileNames.size()));
    // While it lets the user press its button, anything can be deleted.
    const QPointer<QProgressDialog> progress(new QProgressDialog(
        ImportTexts::tr("Reading files..."), ImportTexts::tr("Cancel"), 0, static_cast<int>(fileNames.size()), parent));
    progress->setObjectName(QStringLiteral("importProgress"));
    progress->setWindowTitle(ImportTexts::tr("Import"));
    progress->setWindowModality(Qt::WindowModal);
    progress->setMinimumDuration(fileNames.size() > manyFiles ? 0 : 500);
    for (const QString& fileName : fileNames) {
        progress->setValue(static_cast<int>(resources.size()));
        if (!progress || progress->wasCanceled()) {
            resources.clear();
            break;
        }
        resources.push_back(readFile(type, fileName, reason));
        if (!resources.back().isValid()) {
            resources.clear();
            break;
        }
    }
    delete progress;
    return resources;
}

bool resourceImport::addTo(DocumentImpl& document, UndoGroup& group, std::vector<Resource>& resources)
{
    // Many files may bear one name (of different folders); looking for free names one by one would take for ever.
    QHash<QString, int> numbers;
    for (Resource& resource : resources) {
        const Resource present = document.resource(resource.toString());
        if (present.isValid() && present.type() == resource.type() && present.data() == resource.data()) {
            resource = present;
            continue;
        }
        const ResourceEntry* entry = resource.entry();
        const QString stem = resource.toString();
        int& number = numbers[stem];
        QString name = stem;
        if (present.isValid()) {
            number = qMax(number, 1);
            do {
                name = QStringLiteral("%1-%2").arg(stem).arg(++number);
            } while (document.resource(name).isValid());
        }
        const Resource named(std::make_shared<LocalREntry>(name, entry->type(), entry->data(), entry->extension()));
        if (!group.run(new AddResourceCommand(named, group.pushUndo())))
            return false;
        resource = document.resource(name);
    }
    return true;
}

bool resourceImport::writeFile(const Resource& resource, const QString& fileName, QString* reason)
{
    QSaveFile file(fileName);
    const QByteArray bytes = resource.data();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    if (reason)
        *reason = ImportTexts::tr("The file \"%1\" cannot be written: %2")
                      .arg(QDir::toNativeSeparators(fileName), file.errorString());
    return false;
}

QStringList resourceImport::draggedFiles(const QMimeData* content)
{
    QStringList files;
    const QList<QUrl> urls = content->urls();
    for (const QUrl& url : urls) {
        if (!url.isLocalFile())
            return {};
        files.append(url.toLocalFile());
    }
    return files;
}

QString resourceImport::nameOf(const Resource& resource)
{
    const QString name = resource.toString();
    return name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
}
