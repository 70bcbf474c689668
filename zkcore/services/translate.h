#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/export.h"

#include <QString>
#include <functional>

class NodeImpl;
class NodePrototype;

/// Gives a text in the language that the program has when it is asked; for texts that outlive a change of the language.
using LiveText = std::function<QString()>;

/// The translation of a text that a package gave to a class: the first one found with the text of the node's class id
/// as context ("electronics/led"), then those of its base classes, nearest first, then that of its domain
/// ("electronics/*"). What another domain gave the node is looked for under that domain before all. The text itself
/// when none has it or the node is null.
ZKCORE_EXPORT QString translateStringFromContext(const NodeImpl* node, const QString& text,
                                                 ClassId domain = INVALID_CID);
/// The same for a class of which there need be no node.
ZKCORE_EXPORT QString translateStringForClass(const NodePrototype& prototype, const QString& text);
/// The same whenever it is asked, also when the node is gone.
ZKCORE_EXPORT LiveText liveStringFromContext(const NodeImpl& node, const QString& text, ClassId domain = INVALID_CID);
