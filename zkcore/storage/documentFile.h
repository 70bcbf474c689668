#pragma once

#include "zkcore/base/export.h"
#include "zkcore/media/resource.h"
#include "zkcore/model/nodeSnapshot.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

class DocumentImpl;
class NodeDb;
class QIODevice;
class QXmlStreamWriter;

/// What a document file holds, read but not yet made into live nodes.
struct DocumentContent
{
    NodeSnapshot root;
    InstanceId nextId = 1;
    std::vector<std::shared_ptr<const ResourceEntry>> resources;
    /// What was kept but not understood, one sentence each with line and column.
    QStringList warnings;
};

/// Reads and writes document files (docs/documents.md): UTF-8 XML by stream.
class ZKCORE_EXPORT DocumentFile
{
public:
    static constexpr int formatVersion = 1;

    /// Reads a whole document; `name` stands in messages. False with one message (name, line, column, reason) when the
    /// content is not a document, is damaged, deeper than 64 nodes, of a newer version, has an instance id twice, a
    /// value text that is not of its type, or proxies that lead in a circle. Unknown classes and properties are kept. A
    /// proxy whose target is not there keeps its value and is kept as written, with a warning. Domain and class
    /// look-ups go to `db`, which gets placeholders for unknown classes.
    static bool read(QIODevice& device, const QString& name, NodeDb& db, DocumentContent& content, QString& error);
    /// Writes the document. False with a message when the device fails.
    static bool write(QIODevice& device, const DocumentImpl& document, QString& error);

    /// The start of a document up to its resources, its resources, and its end; the writer's root element is the
    /// document's.
    static void writeStart(QXmlStreamWriter& xml, InstanceId nextId);
    static void writeResources(QXmlStreamWriter& xml, const std::vector<Resource>& resources);
};
