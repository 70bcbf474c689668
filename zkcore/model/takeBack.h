#pragma once

#include "zkcore/base/export.h"

class DocumentImpl;

/// Undoes the last step of the document's history for good: it cannot be redone. For a gesture that the user breaks
/// off. Does nothing without a step, and during an undo or redo.
ZKCORE_EXPORT void takeBackLastStep(DocumentImpl& document);
