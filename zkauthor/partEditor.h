#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/instanceId.h"
#include "zkcore/model/nodeSnapshot.h"
#include "zkcore/values/point.h"

#include <QByteArray>
#include <QObject>
#include <utility>
#include <vector>

class DocumentImpl;
class ElementImpl;
class QMimeData;
class SpaceImpl;

/// What the menus do with the parts of a space. Every operation is one undo step; failures are told by failed().
class PartEditor : public QObject
{
    Q_OBJECT

public:
    explicit PartEditor(QObject* parent = nullptr);

    /// Null lets go of the document.
    void setDocument(DocumentImpl* document) { m_document = document; }

    /// Adds a part of the class near the place (in metres; beside a part that stands right there) and selects it.
    /// A connection joins the two selected parts instead, and fails without them.
    bool addPart(SpaceImpl* space, ClassId cid, zk::Point place);
    bool deleteSelection();
    /// Turns each selected part that may be turned about its own centre, by quarters of a turn clockwise.
    bool rotateSelection(const SpaceImpl* space, int quarters);
    /// Copies of the selected parts, with the connections between them, a little aside; selects them.
    bool duplicateSelection(SpaceImpl* space);

    /// Whether exactly two parts that have pins are selected.
    bool canConnect(const SpaceImpl* space) const;
    /// Adds a connection of the class between the two pins of the selected parts that are nearest to each other, free
    /// ones first; selects it.
    bool connectSelection(SpaceImpl* space, ClassId cid);

    /// Puts the selected parts, with the connections between them, on the clipboard.
    bool copySelection(const SpaceImpl* space);
    bool canPaste() const;
    bool paste(SpaceImpl* space);
    /// Adds parts so that the first stands at the place (in metres); selects them.
    bool drop(SpaceImpl* space, const QMimeData* data, zk::Point place);
    static bool canDrop(const QMimeData* data);

Q_SIGNALS:
    /// Something the user asked for could not be done; one translated sentence.
    void failed(const QString& reason);

private:
    std::vector<const ElementImpl*> selectionWithConnections(const SpaceImpl* space) const;
    std::pair<ElementImpl*, ElementImpl*> pinsToConnect(const SpaceImpl* space) const;
    bool addNodes(SpaceImpl* space, std::vector<NodeSnapshot> nodes, zk::Point offset);
    bool execute(class Command* command, Value& result);

    DocumentImpl* m_document = nullptr;
    int m_pasteCount = 0;
    QByteArray m_lastPasted;
};
