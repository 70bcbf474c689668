#include "zkcore/model/objectSlab.h"

#include <algorithm>
#include <cstdlib>
#include <new>

// Freed slots are hidden from the program under the address sanitizer, which then reports who still uses them.
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size) static_cast<void>(0)
#define ASAN_UNPOISON_MEMORY_REGION(address, size) static_cast<void>(0)
#endif

namespace {
constexpr size_t blockBytes = size_t(64) * 1024; // and their alignment, which makes the block of an address known
constexpr size_t slotAlignment = alignof(std::max_align_t);
} // namespace

struct ObjectSlab::Block
{
    explicit Block(BlocksOfSize& owner, size_t slotBytes);
    ~Block()
    {
        ASAN_UNPOISON_MEMORY_REGION(memory, blockBytes);
        std::free(memory);
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    size_t capacity() const { return blockBytes / slotBytes; }
    /// The number of the slot that begins at the address; `capacity()` when none does.
    size_t slotAt(const void* address) const
    {
        const size_t offset = static_cast<size_t>(static_cast<const char*>(address) - memory);
        const size_t slot = offset / slotBytes;
        return slot * slotBytes == offset && slot < capacity() ? slot : capacity();
    }
    char* slot(size_t index) const { return memory + index * slotBytes; }

    BlocksOfSize& owner;
    char* memory;
    size_t slotBytes;
    size_t used = 0;                  // slots given out
    size_t untouched = 0;             // slots from here on were never given out
    std::vector<unsigned short> free; // slots given back
    std::vector<uint64_t> alive;
};

struct ObjectSlab::BlocksOfSize
{
    size_t slotBytes;
    std::vector<Block*> withRoom; // the last one is being filled
};

ObjectSlab::Block::Block(BlocksOfSize& blocks, size_t bytes)
    : owner(blocks), memory(static_cast<char*>(std::aligned_alloc(blockBytes, blockBytes))), slotBytes(bytes)
{
    if (!memory)
        throw std::bad_alloc();
    alive.resize((capacity() + 63) / 64);
    ASAN_POISON_MEMORY_REGION(memory, blockBytes);
}

ObjectSlab::ObjectSlab() = default;
ObjectSlab::~ObjectSlab() = default;

void* ObjectSlab::allocate(size_t size)
{
    const size_t slotBytes = (size + slotAlignment - 1) / slotAlignment * slotAlignment;
    auto it =
        std::find_if(m_sizes.begin(), m_sizes.end(), [&](const auto& each) { return each->slotBytes == slotBytes; });
    if (it == m_sizes.end())
        it = m_sizes.insert(m_sizes.end(), std::make_unique<BlocksOfSize>(BlocksOfSize{slotBytes, {}}));
    BlocksOfSize& blocks = **it;
    if (blocks.withRoom.empty()) {
        auto block = std::make_unique<Block>(blocks, slotBytes);
        blocks.withRoom.push_back(block.get());
        m_blocks.emplace(reinterpret_cast<uintptr_t>(block->memory), std::move(block));
    }
    Block& block = *blocks.withRoom.back();
    size_t index;
    // Untouched slots first: under the sanitizer that keeps freed ones out of use for longer.
    if (block.untouched < block.capacity()) {
        index = block.untouched++;
    } else {
        index = block.free.back();
        block.free.pop_back();
    }
    if (++block.used == block.capacity())
        blocks.withRoom.pop_back();
    void* memory = block.slot(index);
    ASAN_UNPOISON_MEMORY_REGION(memory, slotBytes);
    return memory;
}

void ObjectSlab::release(void* memory)
{
    Block* block = memory ? blockOf(memory) : nullptr;
    if (!block)
        return;
    const bool wasFull = block->used == block->capacity();
    block->free.push_back(static_cast<unsigned short>(block->slotAt(memory)));
    ASAN_POISON_MEMORY_REGION(memory, block->slotBytes);
    if (wasFull)
        block->owner.withRoom.insert(block->owner.withRoom.begin(), block);
    if (--block->used > 0 || block->owner.withRoom.size() < 2)
        return;
    // One block with room is kept, so that making and deleting one object at a border costs nothing.
    std::erase(block->owner.withRoom, block);
    if (m_lastBlock == block)
        m_lastBlock = nullptr;
    m_blocks.erase(reinterpret_cast<uintptr_t>(block->memory));
}

void ObjectSlab::setAlive(const void* object, bool alive)
{
    Block* block = blockOf(object);
    const size_t slot = block->slotAt(object);
    const uint64_t bit = uint64_t(1) << (slot % 64);
    if (alive)
        block->alive[slot / 64] |= bit;
    else
        block->alive[slot / 64] &= ~bit;
}

bool ObjectSlab::isAlive(const void* object) const
{
    const Block* block = blockOf(object);
    if (!block)
        return false;
    const size_t slot = block->slotAt(object);
    return slot < block->capacity() && (block->alive[slot / 64] >> (slot % 64) & 1);
}

ObjectSlab::Block* ObjectSlab::blockOf(const void* memory) const
{
    const uintptr_t address = reinterpret_cast<uintptr_t>(memory) / blockBytes * blockBytes;
    if (m_lastBlock && reinterpret_cast<uintptr_t>(m_lastBlock->memory) == address)
        return m_lastBlock;
    const auto it = m_blocks.find(address);
    if (it == m_blocks.end())
        return nullptr;
    m_lastBlock = it->second.get();
    return m_lastBlock;
}
