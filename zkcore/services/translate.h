#pragma once

#include "zkcore/base/export.h"

#include <QString>

class NodeImpl;

/// The translation of a text that a package gave to a class: the first one found with the text of the node's class id
/// as context ("electronics/led"), then those of its base classes, nearest first, then that of its domain
/// ("electronics/*"). The text itself when none has it or the node is null.
ZKCORE_EXPORT QString translateStringFromContext(const NodeImpl* node, const QString& text);
