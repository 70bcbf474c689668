#pragma once

#include "zkcore/base/export.h"

#include <QString>

class QSaveFile;

/// What the toolkit's way of replacing files leaves open.
namespace durableFile {

/// The file that a name leads to through symbolic links, however many: replacing it keeps the links. The name itself
/// when it is no link.
ZKCORE_EXPORT QString target(const QString& fileName);
/// Commits the file and has its folder written to the disk, so that the new file is there after a power cut. False
/// when it could not be committed; what cannot be synchronised is no fault.
ZKCORE_EXPORT bool commit(QSaveFile& file);

} // namespace durableFile
