#pragma once

#include "zkcore/base/export.h"

#include <memory>
#include <vector>

class NodeImpl;

/// The ordered children of a node. Kept in chunks, so that inserting, removing and finding the index of a child stay
/// cheap in lists of a hundred thousand. Does not own the children.
class ZKCORE_EXPORT ChildList
{
public:
    struct Chunk
    {
        std::vector<NodeImpl*> nodes;
        unsigned int position = 0; // in the list of chunks
    };

    /// Visits the children in order. Must not be kept across a change of the list.
    class const_iterator
    {
    public:
        NodeImpl* operator*() const { return (*m_chunks)[m_chunk]->nodes[m_index]; }
        const_iterator& operator++()
        {
            if (++m_index >= (*m_chunks)[m_chunk]->nodes.size()) {
                ++m_chunk;
                m_index = 0;
            }
            return *this;
        }
        friend bool operator==(const const_iterator& a, const const_iterator& b)
        {
            return a.m_chunk == b.m_chunk && a.m_index == b.m_index;
        }

    private:
        friend class ChildList;
        const_iterator(const std::vector<std::unique_ptr<Chunk>>* chunks, size_t chunk)
            : m_chunks(chunks), m_chunk(chunk)
        {
        }
        const std::vector<std::unique_ptr<Chunk>>* m_chunks;
        size_t m_chunk;
        size_t m_index = 0;
    };

    ChildList();
    ~ChildList();
    ChildList(const ChildList&) = delete;
    ChildList& operator=(const ChildList&) = delete;

    unsigned int size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    /// Null when the index is out of range.
    NodeImpl* at(unsigned int index) const;
    /// -1 when the node is not in this list.
    int indexOf(const NodeImpl* node) const;
    /// An index past the end appends.
    void insert(unsigned int index, NodeImpl* node);
    void append(NodeImpl* node) { insert(m_size, node); }
    /// Does nothing when the node is not in this list.
    void remove(NodeImpl* node);

    const_iterator begin() const { return {&m_chunks, 0}; }
    const_iterator end() const { return {&m_chunks, m_chunks.size()}; }
    /// A copy, for visits during which the list may change.
    std::vector<NodeImpl*> toVector() const;

private:
    void renumber(unsigned int from);

    std::vector<std::unique_ptr<Chunk>> m_chunks; // none is empty
    unsigned int m_size = 0;
};
