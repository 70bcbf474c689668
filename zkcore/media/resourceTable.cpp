#include "zkcore/media/resourceTable.h"

#include "zkcore/media/resourceEntry.h"
#include "zkcore/storage/package.h"
#include "zkcore/storage/xmlGuard.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStringDecoder>
#include <QSvgRenderer>
#include <QXmlStreamReader>

namespace {

constexpr qint64 greatestLocalResource = 64 * 1024 * 1024;

struct ResourceFileType
{
    const char* extension;
    Resource::Type type;
};

/// Which extension stands for what, the first row of an extension unless a type is asked for; within a type in the
/// order in which file dialogs name them.
constexpr ResourceFileType resourceFileTypes[] = {
    {"svg", Resource::IMAGE},  {"png", Resource::IMAGE}, {"jpg", Resource::IMAGE},  {"jpeg", Resource::IMAGE},
    {"gif", Resource::IMAGE},  {"bmp", Resource::IMAGE}, {"gif", Resource::MOVIE},  {"mng", Resource::MOVIE},
    {"webp", Resource::MOVIE}, {"avi", Resource::MOVIE}, {"mp4", Resource::MOVIE},  {"webm", Resource::MOVIE},
    {"wav", Resource::SOUND},  {"ogg", Resource::SOUND}, {"mp3", Resource::SOUND},  {"txt", Resource::TEXT},
    {"html", Resource::TEXT},  {"xml", Resource::DATA},  {"plist", Resource::DATA}, {"csv", Resource::DATA},
    {"dat", Resource::DATA},   {"js", Resource::SCRIPT}, {"lua", Resource::SCRIPT}, {"py", Resource::SCRIPT},
    {"ttf", Resource::FONT},   {"otf", Resource::FONT},  {"ui", Resource::FORM},
};

/// Whether the bytes are XML from end to end; with a root element's name given, whether that is the root.
bool isResourceXml(const QByteArray& bytes, const QString& root)
{
    if (!XmlAttributeCounter::isHarmless(bytes))
        return false;
    QXmlStreamReader reader(bytes);
    if (!reader.readNextStartElement() || (!root.isEmpty() && reader.name() != root))
        return false;
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

bool isResourceImage(QByteArray bytes, const QString& extension)
{
    if (extension == QLatin1String("svg")) {
        // The renderer prints a warning of its own for what is not XML, so that is found out first.
        return isResourceXml(bytes, QStringLiteral("svg")) && QSvgRenderer(bytes).isValid();
    }
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    return !reader.read().isNull();
}

bool isResourceMovie(QByteArray bytes)
{
    // Films that only a player understands are known by their first bytes.
    if (bytes.mid(4, 4) == "ftyp" || bytes.startsWith("\x1a\x45\xdf\xa3") ||
        (bytes.startsWith("RIFF") && bytes.mid(8, 3) == "AVI"))
        return true;
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    return reader.canRead() && reader.supportsAnimation();
}

bool isResourceSound(const QByteArray& bytes)
{
    const bool mp3Frame = bytes.size() > 1 && bytes[0] == '\xff' && (bytes[1] & '\xe0') == '\xe0';
    return (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WAVE") || bytes.startsWith("OggS") ||
           bytes.startsWith("ID3") || mp3Frame;
}

bool isResourceText(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !decoder.hasError() && !text.contains(QChar(u'\0'));
}

bool isResourceFont(const QByteArray& bytes)
{
    return bytes.startsWith(QByteArray("\0\1\0\0", 4)) || bytes.startsWith("OTTO") || bytes.startsWith("true") ||
           bytes.startsWith("ttcf");
}

} // namespace

ResourceTable& ResourceTable::instance()
{
    static ResourceTable table;
    return table;
}

bool ResourceTable::addFolder(const QString& packageFolder, QString* faultyFile, QString* reason)
{
    const QDir folder(packageFolder);
    const QString package = folder.dirName();
    Snapshot found;
    QHash<QString, QString> fileNames;
    QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        const Resource::Type type = resourceTypeForExtension(file.suffix());
        const QString path = folder.relativeFilePath(file.filePath());
        if (type == Resource::INVALID || path == QLatin1String("package.xml"))
            continue;
        const QString name = package + QLatin1Char('/') + path.chopped(file.suffix().size() + 1);
        if (fileNames.contains(name)) {
            // Folders are not read in a fixed order; the message shall not depend on it.
            const QString other = fileNames.value(name);
            if (faultyFile)
                *faultyFile = folder.filePath(qMax(path, other));
            if (reason)
                *reason = QCoreApplication::translate("Package", "it differs from \"%1\" only by its extension")
                              .arg(qMin(path, other));
            return false;
        }
        fileNames.insert(name, path);
        found.insert(name, std::make_shared<FileREntry>(name, type, file.filePath()));
    }
    m_entries.insert(found);
    return true;
}

std::shared_ptr<const ResourceEntry> ResourceTable::find(const QString& name) const
{
    Package::all();
    return m_entries.value(name);
}

QStringList ResourceTable::names(Resource::Type type) const
{
    Package::all();
    QStringList names;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry)
        if (entry.value()->type() == type)
            names.append(entry.key());
    names.sort();
    return names;
}

Resource::Type resourceTypeForExtension(const QString& extension)
{
    const QString lower = extension.toLower();
    for (const ResourceFileType& known : resourceFileTypes)
        if (lower == QLatin1String(known.extension))
            return known.type;
    return Resource::INVALID;
}

QString getFileFilterForResourceType(Resource::Type type)
{
    const auto label = [type]() -> const char* {
        switch (type) {
        case Resource::IMAGE:
            return QT_TRANSLATE_NOOP("Resource", "Images");
        case Resource::MOVIE:
            return QT_TRANSLATE_NOOP("Resource", "Movies");
        case Resource::SOUND:
            return QT_TRANSLATE_NOOP("Resource", "Sounds");
        case Resource::TEXT:
            return QT_TRANSLATE_NOOP("Resource", "Texts");
        case Resource::DATA:
            return QT_TRANSLATE_NOOP("Resource", "Data");
        case Resource::SCRIPT:
            return QT_TRANSLATE_NOOP("Resource", "Scripts");
        case Resource::FONT:
            return QT_TRANSLATE_NOOP("Resource", "Fonts");
        case Resource::FORM:
            return QT_TRANSLATE_NOOP("Resource", "Forms");
        case Resource::INVALID:
            break;
        }
        return nullptr;
    }();
    if (!label)
        return QCoreApplication::translate("Resource", "All files") + QStringLiteral(" (*)");
    QStringList patterns;
    for (const ResourceFileType& known : resourceFileTypes)
        if (known.type == type)
            patterns.append(QStringLiteral("*.") + QLatin1String(known.extension));
    return QStringLiteral("%1 (%2)").arg(QCoreApplication::translate("Resource", label), patterns.join(u' '));
}

Resource defineLocalResource(Resource::Type type, const QFile& file)
{
    // The caller's file may be open, at any place and in any mode; it is left alone.
    const QFileInfo info(file.fileName());
    QFile copy(file.fileName());
    if (!info.isFile() || info.size() > greatestLocalResource || !copy.open(QIODevice::ReadOnly))
        return {};
    // Read no more than that from a file that is still growing.
    const QByteArray bytes = copy.read(greatestLocalResource + 1);
    if (copy.error() != QFileDevice::NoError || bytes.size() > greatestLocalResource)
        return {};
    const Resource resource(std::make_shared<const LocalREntry>(QStringLiteral("local/") + info.completeBaseName(),
                                                                type, bytes, info.suffix().toLower()));
    return isResourceDataValid(resource) ? resource : Resource();
}

bool isResourceDataValid(const Resource& resource)
{
    const QByteArray bytes = resource.data();
    switch (resource.type()) {
    case Resource::IMAGE:
        return isResourceImage(bytes, resource.entry()->extension());
    case Resource::MOVIE:
        return isResourceMovie(bytes);
    case Resource::SOUND:
        return isResourceSound(bytes);
    case Resource::TEXT:
    case Resource::SCRIPT:
        return isResourceText(bytes);
    case Resource::DATA:
        return true;
    case Resource::FONT:
        return isResourceFont(bytes);
    case Resource::FORM:
        return isResourceXml(bytes, QStringLiteral("ui"));
    case Resource::INVALID:
        break;
    }
    return false;
}
