#include "zkcore/model/childList.h"

#include "zkcore/model/nodeImpl.h"

#include <algorithm>

namespace {
constexpr size_t fullChunk = 512;
}

ChildList::ChildList() = default;
ChildList::~ChildList() = default;

NodeImpl* ChildList::at(unsigned int index) const
{
    if (index >= m_size)
        return nullptr;
    for (const auto& chunk : m_chunks) {
        if (index < chunk->nodes.size())
            return chunk->nodes[index];
        index -= static_cast<unsigned int>(chunk->nodes.size());
    }
    return nullptr;
}

int ChildList::indexOf(const NodeImpl* node) const
{
    const Chunk* chunk = node ? node->m_chunk : nullptr;
    if (!chunk || chunk->position >= m_chunks.size() || m_chunks[chunk->position].get() != chunk)
        return -1;
    size_t before = 0;
    for (unsigned int i = 0; i < chunk->position; ++i)
        before += m_chunks[i]->nodes.size();
    const auto it = std::find(chunk->nodes.begin(), chunk->nodes.end(), node);
    return static_cast<int>(before) + static_cast<int>(it - chunk->nodes.begin());
}

void ChildList::insert(unsigned int index, NodeImpl* node)
{
    index = std::min(index, m_size);
    ++m_size;
    if (m_chunks.empty())
        m_chunks.push_back(std::make_unique<Chunk>());
    unsigned int at = static_cast<unsigned int>(m_chunks.size()) - 1;
    size_t offset = m_chunks[at]->nodes.size();
    if (index != m_size - 1) {
        at = 0;
        offset = index;
        while (offset > m_chunks[at]->nodes.size())
            offset -= m_chunks[at++]->nodes.size();
    }
    Chunk* chunk = m_chunks[at].get();
    if (chunk->nodes.size() >= fullChunk) {
        // Appending starts a new chunk, so that lists filled from front to back have full ones; else split in halves.
        const size_t keep = offset == chunk->nodes.size() ? offset : chunk->nodes.size() / 2;
        auto rest = std::make_unique<Chunk>();
        rest->nodes.assign(chunk->nodes.begin() + static_cast<ptrdiff_t>(keep), chunk->nodes.end());
        chunk->nodes.resize(keep);
        for (NodeImpl* moved : rest->nodes)
            moved->m_chunk = rest.get();
        m_chunks.insert(m_chunks.begin() + at + 1, std::move(rest));
        renumber(at + 1);
        if (offset >= keep) {
            chunk = m_chunks[at + 1].get();
            offset -= keep;
        }
    }
    chunk->nodes.insert(chunk->nodes.begin() + static_cast<ptrdiff_t>(offset), node);
    node->m_chunk = chunk;
}

void ChildList::remove(NodeImpl* node)
{
    Chunk* chunk = node->m_chunk;
    if (!chunk || chunk->position >= m_chunks.size() || m_chunks[chunk->position].get() != chunk)
        return;
    // Whole lists are usually taken apart from the back.
    const auto it = std::find(chunk->nodes.rbegin(), chunk->nodes.rend(), node);
    if (it == chunk->nodes.rend())
        return;
    chunk->nodes.erase(std::next(it).base());
    node->m_chunk = nullptr;
    --m_size;
    if (chunk->nodes.empty()) {
        const unsigned int position = chunk->position;
        m_chunks.erase(m_chunks.begin() + position);
        renumber(position);
    }
}

std::vector<NodeImpl*> ChildList::toVector() const
{
    std::vector<NodeImpl*> result;
    result.reserve(m_size);
    for (const auto& chunk : m_chunks)
        result.insert(result.end(), chunk->nodes.begin(), chunk->nodes.end());
    return result;
}

void ChildList::renumber(unsigned int from)
{
    for (unsigned int i = from; i < m_chunks.size(); ++i)
        m_chunks[i]->position = i;
}
