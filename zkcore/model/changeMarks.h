#pragma once

#include "zkcore/base/export.h"
#include "zkcore/base/instanceId.h"

#include <functional>
#include <vector>

/// Notes by instance id which nodes of a document changed since somebody last asked. Made for noting: that is done for
/// every node that a command changes, and takes a few nanoseconds.
class ZKCORE_EXPORT ChangeMarks
{
public:
    /// The function is called for the first change after each take(), in the middle of that change.
    explicit ChangeMarks(std::function<void()> onFirst);

    /// A value or lock of the node changed.
    void addValue(InstanceId node)
    {
        if (m_marked.values.empty() || m_marked.values.back() != node)
            append(m_marked.values, m_valueLimit, node);
    }
    /// The node, with everything in it, is new, or there again.
    void addNode(InstanceId node)
    {
        m_marked.added.push_back(node);
        noteFirst();
    }
    /// The node's children are others or in another order, or a property of it follows another one now.
    void addShape(InstanceId node)
    {
        if (m_marked.shapes.empty() || m_marked.shapes.back() != node)
            append(m_marked.shapes, m_shapeLimit, node);
    }
    void addResources() { noteFirst(); }
    /// There is a document with other content.
    void addAll();

    struct Marked
    {
        std::vector<InstanceId> values; ///< some may stand there more than once
        std::vector<InstanceId> shapes;
        std::vector<InstanceId> added;
        bool all = false;
    };
    bool any() const { return m_any; }
    /// Hands out what was noted and forgets it.
    Marked take();
    /// As take(), but leaves values for later. any() stays true while there are some.
    Marked takeShapes();

private:
    void append(std::vector<InstanceId>& nodes, size_t& limit, InstanceId node);
    void noteFirst();

    std::function<void()> m_onFirst;
    Marked m_marked;
    size_t m_valueLimit = 0;
    size_t m_shapeLimit = 0;
    bool m_any = false;
};
