#pragma once

#include "zkcore/model/nodeSnapshot.h"

#include <QByteArray>
#include <cstddef>

class DocumentImpl;
class NodeDb;

/// Makes the subtree of one part of a real class: the n-th of a document, the same one for the same number. Its ids are
/// the numbers from `firstId` on, from the part down; `id` is its "id" value. Values of some properties differ from the
/// class's, also among parts of one class.
NodeSnapshot generatedPart(NodeDb& db, size_t n, InstanceId firstId);

/// A document file with exactly that number of nodes (at least 2: the model and a scene): scenes of up to a thousand
/// nodes that hold parts of several packages with the subparts, pop-ups and pins that their classes prescribe, wires
/// between the pins, lights whose colour follows another's, locks, and values of a domain. The same bytes for the same
/// number, and in the form in which the program saves: loading and saving gives them back.
QByteArray generatedDocument(size_t nodes);

/// Loads generatedDocument(nodes) into the document. Ends the program with a message when that fails.
void loadGeneratedDocument(DocumentImpl& document, size_t nodes);
