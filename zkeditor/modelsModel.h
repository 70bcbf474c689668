#pragma once

#include "zkeditor/export.h"

#include <QAbstractItemModel>
#include <QDateTime>
#include <QFileSystemWatcher>
#include <QIcon>
#include <QSet>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>
#include <atomic>
#include <memory>
#include <vector>

struct DocumentExcerpt;

/// Folders, and the documents in each with small pictures. Follows the disk. Folders and files are read aside; a
/// document's picture is made when a view first asks for it.
class ZKEDITOR_EXPORT ModelsModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role { PathRole = Qt::UserRole + 1, FaultRole };

    explicit ModelsModel(QObject* parent = nullptr);
    /// Waits for what is being read just now.
    ~ModelsModel() override;

    /// False when it is there already.
    bool addFolder(const QString& path);
    bool removeFolder(const QString& path);
    QStringList folders() const;
    bool isFolder(const QModelIndex& index) const { return index.isValid() && !index.internalPointer(); }
    /// Of a document or of a folder.
    QString path(const QModelIndex& index) const;
    QModelIndex indexOfFolder(const QString& path) const;
    /// The document that is open; its name is bold.
    void setOpenDocument(const QString& path);
    /// Reads all folders again.
    void refresh();

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// In device-independent pixels.
    static constexpr QSize pictureSize{72, 54};

private:
    struct FileEntry
    {
        QString path;
        QDateTime modified;
        qint64 size = 0;
    };
    enum class Preview { NotAsked, Asked, Made };
    struct Document
    {
        FileEntry file;
        Preview preview = Preview::NotAsked;
        int generation = 0; // of the file: what was read of an earlier one is of no use
        QIcon picture;
        QString fault;
    };
    struct Folder
    {
        QString path;
        QString fault;
        bool read = false;
        std::vector<Document> documents;
    };

    static bool comesBefore(const QString& a, const QString& b);
    void scan(const QString& folder);
    void applyScan(const QString& folder, bool exists, std::vector<FileEntry> files);
    void scanChanged();
    void onFileChanged(const QString& file);
    void askForPreview(const Document& document) const;
    void applyPreview(const QString& file, int generation, const DocumentExcerpt& excerpt);
    void forgetPreview(const QModelIndex& index);
    const Document* documentAt(const QModelIndex& index) const;
    QModelIndex indexOfDocument(const QString& path) const;
    QVariant folderData(const Folder& folder, int role) const;
    QVariant documentData(const Document& document, int role) const;
    QIcon icon(const QString& name, const QSize& size) const;

    std::vector<std::unique_ptr<Folder>> m_folders; // an index of a document points to its folder
    QString m_openDocument;
    mutable QFileSystemWatcher m_watcher;
    mutable QThreadPool m_pool;
    std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
    QTimer m_scanTimer;
    QSet<QString> m_changedFolders;
};
