#pragma once

#include "zkcore/base/propertyKey.h"

#include <vector>

class DocumentImpl;
class ElementImpl;
class NodeImpl;
class PartImpl;
class SpaceImpl;

/// Whether readers see the part while the model runs: it is visible, and no explanation that went away.
bool isSeenByReaders(const ElementImpl& element);
/// Whether the user may change the property now, locks aside; answered without making the property object.
bool userMayChange(const ElementImpl& element, PropertyKey key);

/// The part of the space that the node is or stands in; null when it stands elsewhere.
ElementImpl* partInSpace(NodeImpl* node, const SpaceImpl* space);

/// The selected parts that stand in the space, back to front.
std::vector<ElementImpl*> selectedParts(const DocumentImpl& document, const SpaceImpl* space);
