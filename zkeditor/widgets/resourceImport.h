#pragma once

#include "zkcore/media/resource.h"
#include "zkeditor/export.h"

#include <QStringList>
#include <vector>

class DocumentImpl;
class QMimeData;
class QWidget;
class UndoGroup;

/// Getting files into documents as resources, and resources out as files: what the editors of resources share.
namespace resourceImport {

/// Reads a file; the null resource, with one translated sentence that names the file and says why, when it cannot be
/// read or is not of the type.
ZKEDITOR_EXPORT Resource readFile(Resource::Type type, const QString& fileName, QString* reason);
/// Reads files and shows how far it is once that takes more than a moment; the user can break it off. Either all of
/// them or none: an empty list, with the reason (null when the user broke off), when one cannot be read.
ZKEDITOR_EXPORT std::vector<Resource> readFiles(Resource::Type type, const QStringList& fileNames, QWidget* parent,
                                                QString* reason);
/// Adds resources to the document's own as a part of the group, in the place of each the one that the document has
/// then. A file that the document holds already, under the same name with the same bytes, is not added again. False
/// when a command failed.
ZKEDITOR_EXPORT bool addTo(DocumentImpl& document, UndoGroup& group, std::vector<Resource>& resources);
/// Writes a resource's bytes into a file; false with the reason.
ZKEDITOR_EXPORT bool writeFile(const Resource& resource, const QString& fileName, QString* reason);
/// The files on this machine that are dragged; empty when there are others among them.
ZKEDITOR_EXPORT QStringList draggedFiles(const QMimeData* content);
/// What people call a resource: the last word of its name.
ZKEDITOR_EXPORT QString nameOf(const Resource& resource);

} // namespace resourceImport
