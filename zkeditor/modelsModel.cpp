// Documents on the disk.
#include "zkeditor/modelsModel.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkcore/services/productPackage.h"
#include "zkeditor/documentPreview.h"

#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <algorithm>

namespace {

// A program that writes several files is given time to finish.
constexpr int scanDelay = 150;

/// In the middle of a transparent picture of the full size, so that names stand below each other.
QPixmap centred(const QPixmap& picture, const QSize& size)
{
    const double ratio = picture.devicePixelRatio();
    QPixmap full(size * ratio);
    full.setDevicePixelRatio(ratio);
    full.fill(Qt::transparent);
    QPainter painter(&full);
    const QSizeF taken = picture.deviceIndependentSize();
    const QPointF place((size.width() - taken.width()) / 2, (size.height() - taken.height()) / 2);
    painter.drawPixmap(place, picture);
    painter.setPen(QColor(128, 128, 128, 160));
    painter.drawRect(QRectF(place, taken).adjusted(0.5, 0.5, -0.5, -0.5));
    return full;
}

} // namespace

ModelsModel::ModelsModel(QObject* parent) : QAbstractItemModel(parent)
{
    m_pool.setMaxThreadCount(1);
    m_scanTimer.setSingleShot(true);
    m_scanTimer.setInterval(scanDelay);
    connect(&m_scanTimer, &QTimer::timeout, this, &ModelsModel::scanChanged);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this](const QString& folder) {
        m_changedFolders.insert(folder);
        m_scanTimer.start();
    });
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &ModelsModel::onFileChanged);
}

ModelsModel::~ModelsModel()
{
    *m_cancelled = true;
    m_pool.clear();
    m_pool.waitForDone();
}

bool ModelsModel::comesBefore(const QString& a, const QString& b)
{
    const int order = QString::localeAwareCompare(a, b);
    return order != 0 ? order < 0 : a < b;
}

// Folders

bool ModelsModel::addFolder(const QString& path)
{
    const QString clean = QDir::cleanPath(QDir(path).absolutePath());
    if (indexOfFolder(clean).isValid())
        return false;
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_folders.push_back(std::make_unique<Folder>());
    m_folders.back()->path = clean;
    endInsertRows();
    scan(clean);
    return true;
}

bool ModelsModel::removeFolder(const QString& path)
{
    const QModelIndex index = indexOfFolder(path);
    if (!index.isValid())
        return false;
    QStringList watched{path};
    for (const Document& document : m_folders[static_cast<size_t>(index.row())]->documents)
        watched.append(document.file.path);
    m_watcher.removePaths(watched);
    beginRemoveRows({}, index.row(), index.row());
    m_folders.erase(m_folders.begin() + index.row());
    endRemoveRows();
    return true;
}

QStringList ModelsModel::folders() const
{
    QStringList paths;
    for (const auto& folder : m_folders)
        paths.append(folder->path);
    return paths;
}

QModelIndex ModelsModel::indexOfFolder(const QString& path) const
{
    const auto found =
        std::find_if(m_folders.begin(), m_folders.end(), [&path](const auto& folder) { return folder->path == path; });
    return found == m_folders.end() ? QModelIndex() : createIndex(static_cast<int>(found - m_folders.begin()), 0);
}

void ModelsModel::refresh()
{
    for (const auto& folder : m_folders)
        scan(folder->path);
}

void ModelsModel::scanChanged()
{
    const QSet<QString> changed = std::exchange(m_changedFolders, {});
    for (const QString& folder : changed) {
        if (indexOfFolder(folder).isValid())
            scan(folder);
    }
}

void ModelsModel::scan(const QString& folder)
{
    // A folder may be on a slow or sleeping disk.
    m_pool.start([this, folder, cancelled = m_cancelled,
                  pattern = QStringLiteral("*.") + ProductPackage::instance().documentExtension()] {
        if (*cancelled)
            return;
        const QDir dir(folder);
        const bool exists = dir.exists() && dir.isReadable();
        std::vector<FileEntry> files;
        for (const QFileInfo& info : dir.entryInfoList({pattern}, QDir::Files))
            files.push_back({info.absoluteFilePath(), info.lastModified(), info.size()});
        std::sort(files.begin(), files.end(),
                  [](const FileEntry& a, const FileEntry& b) { return comesBefore(a.path, b.path); });
        if (!*cancelled) {
            QMetaObject::invokeMethod(
                this, [this, folder, exists, files] { applyScan(folder, exists, files); }, Qt::QueuedConnection);
        }
    });
}

void ModelsModel::applyScan(const QString& path, bool exists, std::vector<FileEntry> files)
{
    const QModelIndex parent = indexOfFolder(path);
    if (!parent.isValid())
        return;
    Folder& folder = *m_folders[static_cast<size_t>(parent.row())];
    folder.read = true;
    folder.fault = exists ? QString() : tr("The folder is not there or cannot be read.");
    if (exists && !m_watcher.directories().contains(path))
        m_watcher.addPath(path);

    // Both lists are in the same order.
    std::vector<Document>& documents = folder.documents;
    size_t row = 0;
    for (size_t next = 0; next < files.size() || row < documents.size();) {
        const int at = static_cast<int>(row);
        if (next == files.size() ||
            (row < documents.size() && comesBefore(documents[row].file.path, files[next].path))) {
            beginRemoveRows(parent, at, at);
            documents.erase(documents.begin() + at);
            endRemoveRows();
        } else if (row == documents.size() || documents[row].file.path != files[next].path) {
            // As many as come one after the other.
            size_t last = next + 1;
            while (last < files.size() &&
                   (row == documents.size() || comesBefore(files[last].path, documents[row].file.path)))
                ++last;
            beginInsertRows(parent, at, static_cast<int>(row + last - next) - 1);
            std::vector<Document> added(last - next);
            for (size_t i = next; i < last; ++i)
                added[i - next].file = files[i];
            documents.insert(documents.begin() + at, added.begin(), added.end());
            endInsertRows();
            row += last - next;
            next = last;
        } else {
            Document& document = documents[row];
            if (document.file.modified != files[next].modified || document.file.size != files[next].size) {
                document.file = files[next];
                forgetPreview(index(at, 0, parent));
            }
            ++row;
            ++next;
        }
    }
    Q_EMIT dataChanged(parent, parent);
}

// Documents

QModelIndex ModelsModel::indexOfDocument(const QString& path) const
{
    const QModelIndex parent = indexOfFolder(QFileInfo(path).path());
    if (!parent.isValid())
        return {};
    const std::vector<Document>& documents = m_folders[static_cast<size_t>(parent.row())]->documents;
    const auto found =
        std::lower_bound(documents.begin(), documents.end(), path,
                         [](const Document& document, const QString& p) { return comesBefore(document.file.path, p); });
    if (found == documents.end() || found->file.path != path)
        return {};
    return index(static_cast<int>(found - documents.begin()), 0, parent);
}

void ModelsModel::onFileChanged(const QString& file)
{
    // What is written in place; what is replaced or removed shows in the folder as well.
    const QModelIndex index = indexOfDocument(file);
    if (index.isValid() && QFileInfo::exists(file)) {
        m_changedFolders.insert(QFileInfo(file).path());
        m_scanTimer.start();
    }
}

void ModelsModel::forgetPreview(const QModelIndex& index)
{
    Document& document = const_cast<Document&>(*documentAt(index));
    document.preview = Preview::NotAsked; // the old picture stays until there is a new one
    ++document.generation;
    Q_EMIT dataChanged(index, index);
}

void ModelsModel::askForPreview(const Document& document) const
{
    const_cast<Document&>(document).preview = Preview::Asked;
    const QString file = document.file.path;
    if (!m_watcher.files().contains(file))
        m_watcher.addPath(file);
    auto* self = const_cast<ModelsModel*>(this);
    m_pool.start([self, file, generation = document.generation, cancelled = m_cancelled] {
        if (*cancelled)
            return;
        const DocumentExcerpt excerpt = readDocumentExcerpt(file, *cancelled);
        if (!*cancelled) {
            QMetaObject::invokeMethod(
                self, [self, file, generation, excerpt] { self->applyPreview(file, generation, excerpt); },
                Qt::QueuedConnection);
        }
    });
}

void ModelsModel::applyPreview(const QString& file, int generation, const DocumentExcerpt& excerpt)
{
    const QModelIndex index = indexOfDocument(file);
    if (!index.isValid() || documentAt(index)->generation != generation)
        return;
    Document& document = const_cast<Document&>(*documentAt(index));
    document.preview = Preview::Made;
    document.fault = excerpt.fault;
    document.picture = QIcon();
    if (document.fault.isEmpty() && !excerpt.text.isNull()) {
        const QPixmap picture = paintDocumentPreview(excerpt, pictureSize, qGuiApp->devicePixelRatio(), document.fault);
        if (!picture.isNull())
            document.picture = QIcon(centred(picture, pictureSize));
    }
    Q_EMIT dataChanged(index, index);
}

void ModelsModel::setOpenDocument(const QString& path)
{
    if (path == m_openDocument)
        return;
    const QString before = std::exchange(m_openDocument, path);
    for (const QString& changed : {before, path}) {
        if (const QModelIndex index = indexOfDocument(changed); index.isValid())
            Q_EMIT dataChanged(index, index);
    }
}

// Model

const ModelsModel::Document* ModelsModel::documentAt(const QModelIndex& index) const
{
    const auto* folder = static_cast<const Folder*>(index.internalPointer());
    return folder ? &folder->documents[static_cast<size_t>(index.row())] : nullptr;
}

QString ModelsModel::path(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const Document* document = documentAt(index);
    return document ? document->file.path : m_folders[static_cast<size_t>(index.row())]->path;
}

QModelIndex ModelsModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? m_folders[static_cast<size_t>(parent.row())].get() : nullptr);
}

QModelIndex ModelsModel::parent(const QModelIndex& child) const
{
    const auto* folder = static_cast<const Folder*>(child.internalPointer());
    return folder ? indexOfFolder(folder->path) : QModelIndex();
}

int ModelsModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_folders.size());
    if (parent.internalPointer() || parent.column() != 0)
        return 0;
    return static_cast<int>(m_folders[static_cast<size_t>(parent.row())]->documents.size());
}

int ModelsModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant ModelsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == PathRole)
        return path(index);
    const Document* document = documentAt(index);
    return document ? documentData(*document, role) : folderData(*m_folders[static_cast<size_t>(index.row())], role);
}

QIcon ModelsModel::icon(const QString& name, const QSize& size) const
{
    return QIcon(ImageCache::getPixmap(Resource(name), size, qGuiApp->devicePixelRatio()));
}

QVariant ModelsModel::folderData(const Folder& folder, int role) const
{
    switch (role) {
    case Qt::DisplayRole: {
        const QString name = QFileInfo(folder.path).fileName();
        const QString shown = name.isEmpty() ? QDir::toNativeSeparators(folder.path) : name;
        if (!folder.fault.isEmpty())
            return shown + QLatin1Char('\n') + folder.fault;
        return folder.read && folder.documents.empty() ? tr("%1 (no documents)").arg(shown) : shown;
    }
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(folder.path);
    case Qt::DecorationRole:
        return icon(QStringLiteral("editor/models/folder"), QSize(20, 20));
    case FaultRole:
        return folder.fault;
    default:
        return {};
    }
}

QVariant ModelsModel::documentData(const Document& document, int role) const
{
    const QFileInfo info(document.file.path);
    switch (role) {
    case Qt::DisplayRole:
        return info.completeBaseName() + QLatin1Char('\n') +
               (document.fault.isEmpty() ? QLocale().toString(document.file.modified, QLocale::ShortFormat)
                                         : tr("Cannot be read: %1").arg(document.fault));
    case Qt::ToolTipRole: {
        QString tip = QDir::toNativeSeparators(document.file.path);
        if (!document.fault.isEmpty())
            tip += QLatin1Char('\n') + tr("Cannot be read: %1").arg(document.fault);
        return tip;
    }
    case Qt::DecorationRole:
        if (document.preview == Preview::NotAsked)
            askForPreview(document);
        if (!document.fault.isEmpty())
            return icon(QStringLiteral("editor/models/unreadable"), pictureSize);
        return document.picture.isNull() ? icon(QStringLiteral("editor/models/document"), pictureSize)
                                         : document.picture;
    case Qt::ForegroundRole:
        return document.fault.isEmpty() ? QVariant() : QGuiApplication::palette().brush(QPalette::PlaceholderText);
    case Qt::FontRole:
        if (document.file.path == m_openDocument) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    case FaultRole:
        return document.fault;
    default:
        return {};
    }
}
