// SPDX-License-Identifier: GPL-3.0-or-later
/// Blocks straight from the system, on huge pages, and a small pool of the latest released ones.
#include "base/PixelMemory.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <malloc.h>
#include <mutex>
#include <new>
#include <sys/mman.h>
#include <vector>

namespace zp
{

namespace
{
constexpr std::size_t kHugePage = std::size_t{2} << 20;
constexpr std::size_t kLargeBlock = std::size_t{1} << 20;
/// What a picture being replaced by one of its size needs; more would only be resident memory nobody uses.
constexpr std::size_t kPoolBlocks = 2;
constexpr std::size_t kPoolBytes = std::size_t{200} << 20;

struct Block {
    std::uint8_t* memory = nullptr;
    std::size_t bytes = 0;
};

class Pool
{
public:
    static Pool& shared()
    {
        // Never destroyed: pictures owned by static objects are released after it would be gone.
        static Pool* const pool = new Pool;
        return *pool;
    }

    /// The best fitting block that wastes at most a quarter, or none.
    Block take(std::size_t bytes)
    {
        const std::scoped_lock lock(mMutex);
        std::size_t best = mBlocks.size();
        for (std::size_t i = 0; i < mBlocks.size(); ++i) {
            const std::size_t have = mBlocks[i].bytes;
            if (have < bytes || have > bytes + bytes / 4 + kHugePage) continue;
            if (best == mBlocks.size() || have < mBlocks[best].bytes) best = i;
        }
        if (best == mBlocks.size()) return {};
        const Block block = mBlocks[best];
        mBlocks.erase(mBlocks.begin() + std::ptrdiff_t(best));
        mTotal -= block.bytes;
        return block;
    }

    void give(Block block)
    {
        std::vector<Block> surplus;
        {
            const std::scoped_lock lock(mMutex);
            if (block.bytes > kPoolBytes) {
                surplus.push_back(block);
            } else {
                // The oldest go first: the size in use now is the one that will be asked for again.
                while (!mBlocks.empty() && (mBlocks.size() >= kPoolBlocks || mTotal + block.bytes > kPoolBytes)) {
                    surplus.push_back(mBlocks.front());
                    mTotal -= mBlocks.front().bytes;
                    mBlocks.erase(mBlocks.begin());
                }
                mBlocks.push_back(block);
                mTotal += block.bytes;
            }
        }
        for (const Block b : surplus) munmap(b.memory, b.bytes);
    }

    void trim()
    {
        std::vector<Block> all;
        {
            const std::scoped_lock lock(mMutex);
            all.swap(mBlocks);
            mTotal = 0;
        }
        for (const Block b : all) munmap(b.memory, b.bytes);
    }

private:
    std::mutex mMutex;
    std::vector<Block> mBlocks;
    std::size_t mTotal = 0;
};

/// Fresh zeroed pages on a huge page's boundary.
Block mapBlock(std::size_t bytes)
{
    void* const raw = mmap(nullptr, bytes + kHugePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (raw == MAP_FAILED) return {};
    auto* const start = static_cast<std::uint8_t*>(raw);
    const std::size_t lead = (kHugePage - reinterpret_cast<std::uintptr_t>(start) % kHugePage) % kHugePage;
    if (lead) munmap(start, lead);
    if (lead < kHugePage) munmap(start + lead + bytes, kHugePage - lead);
    madvise(start + lead, bytes, MADV_HUGEPAGE);
    return {start + lead, bytes};
}

PixelMemory allocate(std::size_t bytes, bool zeroed)
{
    if (bytes < kLargeBlock) {
        const std::size_t size = (std::max<std::size_t>(bytes, 1) + 63) / 64 * 64;
        auto* const memory = static_cast<std::uint8_t*>(std::aligned_alloc(64, size));
        if (memory && zeroed) std::memset(memory, 0, size);
        return PixelMemory(memory, {bytes}); // not the rounded size: by this it is known which kind to release
    }
    if (bytes > std::numeric_limits<std::size_t>::max() / 2) return PixelMemory(nullptr, {});
    const std::size_t size = (bytes + kHugePage - 1) / kHugePage * kHugePage;
    if (const Block pooled = Pool::shared().take(size); pooled.memory) {
        if (zeroed) std::memset(pooled.memory, 0, bytes);
        return PixelMemory(pooled.memory, {pooled.bytes});
    }
    Block block = mapBlock(size);
    if (!block.memory) {
        // What the pool holds may be what is missing.
        Pool::shared().trim();
        block = mapBlock(size);
    }
    return PixelMemory(block.memory, {block.bytes});
}
} // namespace

void PixelMemoryRelease::operator()(std::uint8_t* memory) const noexcept
{
    if (!memory) return;
    if (bytes < kLargeBlock) {
        std::free(memory);
        return;
    }
    try {
        Pool::shared().give({memory, bytes});
    } catch (...) {
        munmap(memory, bytes);
    }
}

PixelMemory allocatePixels(std::size_t bytes) { return allocate(bytes, true); }

PixelMemory allocatePixelsUninitialized(std::size_t bytes) { return allocate(bytes, false); }

void trimPixelPool()
{
    Pool::shared().trim();
    malloc_trim(0); // what decoders and encoders had for a while lies in the allocator's own pools, one a thread
}

} // namespace zp
