#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/nodeSnapshot.h"

class NodeDb;
class QXmlStreamReader;
class QXmlStreamWriter;

/// Nodes as XML, the same in documents, fragments and recorded commands.
class ZKCORE_EXPORT NodeXml
{
public:
    /// Greatest number of nodes in one another; what is deeper is neither read nor written.
    static constexpr int maximumDepth = 64;

    static void write(QXmlStreamWriter& writer, const NodeImpl& node);
    static void write(QXmlStreamWriter& writer, const NodeSnapshot& node, const NodeDb& db);
    /// The reader stands on the start of a node element and is left on its end. Raises an error on the reader when the
    /// content is faulty.
    static bool read(QXmlStreamReader& reader, NodeDb& db, NodeSnapshot& node, QStringList& warnings);

    class Reader; // one per file read: remembers the classes and keys met, and checks what concerns several nodes
    class Writer; // one per file written
};
