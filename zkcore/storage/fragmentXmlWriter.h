#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/nodeSnapshot.h"

#include <QByteArray>
#include <vector>

class ElementImpl;
class NodeDb;

/// Parts as an XML fragment for drags and the clipboard (MIME type fragmentMimeType()).
class ZKCORE_EXPORT FragmentXMLWriter
{
public:
    static QByteArray writeElement(const ElementImpl* element);
    static QByteArray writeElements(const std::vector<const ElementImpl*>& elements);
    /// A new part of a class.
    static QByteArray writeClass(ClassId cid, NodeDb& db);
    static QByteArray write(const std::vector<NodeSnapshot>& nodes, const NodeDb& db);
    /// Reads a fragment; false with the message (line, column, reason) when it is faulty.
    static bool read(const QByteArray& fragment, NodeDb& db, std::vector<NodeSnapshot>& nodes, QString& error);

    static QString fragmentMimeType();
};
