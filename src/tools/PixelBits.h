// SPDX-License-Identifier: GPL-3.0-or-later
/// Address space that is reserved once and costs memory only where it is touched: work space for fills.
#pragma once
#include <cstddef>
#include <cstdint>

namespace zp
{

/// A block of zeroed address space. Taking it costs nothing; a page costs memory from its first write on.
class ReservedMemory
{
public:
    /// @throw std::bad_alloc when even the address space cannot be had
    explicit ReservedMemory(std::size_t bytes);
    ~ReservedMemory();
    ReservedMemory(const ReservedMemory&) = delete;
    ReservedMemory& operator=(const ReservedMemory&) = delete;
    std::byte* data() const { return mData; }
    std::size_t size() const { return mBytes; }
    /// Gives the touched pages back to the system; the block reads as zero again.
    void release();

private:
    std::byte* mData;
    std::size_t mBytes;
};

/// One bit a pixel: which pixels a fill has painted. For fills whose paint looks like what they look for.
class PixelBits
{
public:
    explicit PixelBits(std::size_t capacity) : mMemory((capacity + 63) / 64 * 8) {}
    /// All bits off, for a picture of this many pixels (at most the capacity).
    void reset(std::size_t pixels);
    bool test(std::size_t index) const { return words()[index / 64] >> (index % 64) & 1; }
    void set(std::size_t index) { words()[index / 64] |= std::uint64_t{1} << (index % 64); }

private:
    std::uint64_t* words() const { return reinterpret_cast<std::uint64_t*>(mMemory.data()); }
    ReservedMemory mMemory;
};

/// The process's one set of painted bits, for pictures up to the largest that can be opened. Main thread.
PixelBits& sharedPixelBits();

} // namespace zp
