#pragma once

#include "zkcore/media/resource.h"
#include "zkeditor/export.h"

#include <QString>

class DocumentImpl;

/// Giving the document's own resources other names.
namespace resourceRename {

/// Why a resource may not have the name (the last word of it): one translated sentence; empty when it may.
ZKEDITOR_EXPORT QString reason(const DocumentImpl& document, const Resource& resource, const QString& name);
/// Renames the resource, and every property of the document that names it, in one undo step; linear in the size of the
/// document. Gives why that failed, translated; empty when it did not.
ZKEDITOR_EXPORT QString rename(DocumentImpl& document, Resource resource, const QString& name);

} // namespace resourceRename
