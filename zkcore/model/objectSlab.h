#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

/// Memory for the many small objects of one family of classes, and the knowledge which of them are alive: both lie in
/// blocks, so that objects made one after the other stand side by side, and testing a stored pointer touches a few
/// compact bits instead of the object. For one thread, as the whole model.
class ObjectSlab
{
public:
    ObjectSlab();
    ~ObjectSlab();
    ObjectSlab(const ObjectSlab&) = delete;
    ObjectSlab& operator=(const ObjectSlab&) = delete;

    /// For `operator new`. Objects of any sizes; each size has blocks of its own. Throws std::bad_alloc.
    void* allocate(size_t size);
    /// For `operator delete`; what `allocate` gave.
    void release(void* memory);

    /// Notes that the object at this address begins or ceases to live.
    void setAlive(const void* object, bool alive);
    /// Constant time; any pointer may be asked for, null too.
    bool isAlive(const void* object) const;

private:
    struct Block;
    struct BlocksOfSize;

    Block* blockOf(const void* memory) const;

    std::vector<std::unique_ptr<BlocksOfSize>> m_sizes;
    std::unordered_map<uintptr_t, std::unique_ptr<Block>> m_blocks; // by address
    mutable Block* m_lastBlock = nullptr;                           // most questions are about neighbours
};
