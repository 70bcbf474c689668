#pragma once

#include "zkcore/values/point.h"
#include "zkeditor/export.h"

class DocumentImpl;

/// Adds copies of the selected parts, with the connections between them, beside their originals, and selects the
/// copies: one undo step. Each copy stands off the one before it by the offset (in metres). What the parts of one copy
/// have to do with each other, their copies have too. False when nothing that can be copied is selected, or when it
/// failed (DocumentImpl::lastError()).
ZKEDITOR_EXPORT bool duplicateSelectedParts(DocumentImpl& document, int count, zk::Point offset);
