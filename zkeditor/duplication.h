#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/values/point.h"
#include "zkeditor/export.h"

#include <map>
#include <vector>

class DocumentImpl;
class ElementImpl;
class NodePrototype;

/// Whether the element is a connection between pins, which has no place of its own.
ZKEDITOR_EXPORT bool isConnection(const ElementImpl& element);
/// Whether parts of the class are connections.
ZKEDITOR_EXPORT bool isConnection(const NodePrototype& prototype);

/// The selected parts by the space in which they stand, back to front. A connection goes along exactly when both its
/// ends do, whether it is selected itself or not. Linear in the number of selected parts and of connections.
ZKEDITOR_EXPORT std::map<InstanceId, std::vector<const ElementImpl*>> partsToCopy(const DocumentImpl& document);

/// Adds copies of the selected parts, with the connections between them, beside their originals, and selects the
/// copies: one undo step. Each copy stands off the one before it by the offset (in metres). What the parts of one copy
/// have to do with each other, their copies have too. False when nothing that can be copied is selected, or when it
/// failed (DocumentImpl::lastError()).
ZKEDITOR_EXPORT bool duplicateSelectedParts(DocumentImpl& document, int count, zk::Point offset);
