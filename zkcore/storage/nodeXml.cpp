#include "zkcore/storage/nodeXml.h"

#include "zkcore/storage/nodeReader.h"
#include "zkcore/storage/nodeWriter.h"

#include <QXmlStreamReader>

void NodeXml::write(QXmlStreamWriter& writer, const NodeImpl& node)
{
    Writer(writer).write(node);
}

void NodeXml::write(QXmlStreamWriter& writer, const NodeSnapshot& node, const NodeDb& db)
{
    Writer(writer).write(node, db);
}

bool NodeXml::read(QXmlStreamReader& reader, NodeDb& db, NodeSnapshot& node, QStringList& warnings)
{
    node = NodeSnapshot();
    Reader nodes(reader, db, warnings);
    const bool done = nodes.readNode(node) && nodes.check(nullptr);
    nodes.finishWarnings();
    return done;
}
