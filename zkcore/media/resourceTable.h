#pragma once

#include "zkcore/media/resource.h"

#include <QHash>
#include <QStringList>
#include <memory>

class QFile;

/// The resources that packages bring, by name. One for the process; filled by the package loader.
class ZKCORE_EXPORT ResourceTable
{
public:
    static ResourceTable& instance();

    /// Registers every file below a package's folder under its path relative to the folder's parent, without extension:
    /// packages/electronics/images/led.svg is "electronics/images/led". The extension decides the type. A later folder
    /// of the same package replaces entries of the same name. Files whose extension stands for no type are left out.
    /// Two files that differ only by extension are a fault: false, with the file and the reason, and the table is
    /// unchanged.
    bool addFolder(const QString& packageFolder, QString* faultyFile = nullptr, QString* reason = nullptr);
    /// Null when there is none. Never touches the disk, except that the very first look-up loads the packages.
    std::shared_ptr<const ResourceEntry> find(const QString& name) const;
    /// The names of all resources of a type, sorted.
    QStringList names(Resource::Type type) const;

    /// What the table holds now, to go back to when the package that is being loaded is refused.
    using Snapshot = QHash<QString, std::shared_ptr<const ResourceEntry>>;
    Snapshot snapshot() const { return m_entries; }
    void restore(const Snapshot& snapshot) { m_entries = snapshot; }

private:
    Snapshot m_entries;
};

/// The type that a file extension stands for; INVALID when it stands for none.
ZKCORE_EXPORT Resource::Type resourceTypeForExtension(const QString& extension);

/// A filter text for file dialogs, such as "Images (*.svg *.png *.jpg *.jpeg *.gif *.bmp)".
ZKCORE_EXPORT QString getFileFilterForResourceType(Resource::Type type);

/// Reads the file into a new resource of the given type that a document can keep (name "local/" and the file's base
/// name). Null resource when the file cannot be read, is too large (64 MB) or does not hold data of that type.
ZKCORE_EXPORT Resource defineLocalResource(Resource::Type type, const QFile& file);

/// Whether the bytes behind a resource are of its type (an image that can be decoded, a form that is XML, ...).
ZKCORE_EXPORT bool isResourceDataValid(const Resource& resource);
