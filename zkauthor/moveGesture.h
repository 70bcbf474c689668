#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/values/point.h"

#include <QPointer>
#include <QString>
#include <vector>

class DocumentImpl;
class ElementImpl;

/// Moves parts in one undo step, however often they are written between the first and the last place: a mouse drag, or
/// an arrow key held down. Knows the parts by instance id, so that any of them may go meanwhile.
class MoveGesture
{
public:
    MoveGesture() = default;
    MoveGesture(const MoveGesture&) = delete;
    MoveGesture& operator=(const MoveGesture&) = delete;

    /// Takes those of the parts that may be moved. False when there are none; the gesture is not active then.
    bool begin(DocumentImpl* document, const std::vector<ElementImpl*>& parts);
    bool isActive() const { return !m_parts.empty(); }
    /// Puts the parts at this offset, in metres, from where they stood at the beginning. The first offset other than
    /// zero opens the undo step.
    void moveTo(zk::Point offset);
    zk::Point offset() const { return m_offset; }
    void finish();
    /// Takes the step back: the parts stand where they stood.
    void cancel();

    /// Whether the user may move the element.
    static bool isMovable(const ElementImpl& element);

private:
    struct Start
    {
        InstanceId id;
        zk::Point position;
    };

    QPointer<DocumentImpl> m_document;
    std::vector<Start> m_parts;
    zk::Point m_offset;
    bool m_stepOpen = false;
    bool m_written = false; // the step holds something
};
