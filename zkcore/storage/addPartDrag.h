#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/nodeSnapshot.h"

#include <QDrag>

class ElementImpl;
class NodeDb;

/// A drag of a part as an XML fragment.
class ZKCORE_EXPORT AddPartDrag : public QDrag
{
    Q_OBJECT

public:
    /// A drag of a copy of the element.
    AddPartDrag(const ElementImpl* element, QObject* source);
    /// A drag of a new part of the class.
    AddPartDrag(ClassId cid, NodeDb& db, QObject* source);

    static bool canDecode(const QMimeData* data);
    /// False when the data is no fragment or a faulty one.
    static bool decode(const QMimeData* data, NodeDb& db, std::vector<NodeSnapshot>& nodes);
};
