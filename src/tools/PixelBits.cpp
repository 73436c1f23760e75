// SPDX-License-Identifier: GPL-3.0-or-later
/// Reserved work space, and the bits kept in it.
#include "tools/PixelBits.h"
#include "base/BitmapRep.h"
#include <cstring>
#include <new>
#include <sys/mman.h>

namespace zp
{

ReservedMemory::ReservedMemory(std::size_t bytes) : mBytes(bytes)
{
    void* block = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (block == MAP_FAILED) throw std::bad_alloc();
    madvise(block, bytes, MADV_HUGEPAGE); // a wish only: fewer and cheaper first touches
    mData = static_cast<std::byte*>(block);
}

ReservedMemory::~ReservedMemory() { munmap(mData, mBytes); }

void ReservedMemory::release() { madvise(mData, mBytes, MADV_DONTNEED); }

void PixelBits::reset(std::size_t pixels) { std::memset(words(), 0, (pixels + 63) / 64 * 8); }

PixelBits& sharedPixelBits()
{
    static PixelBits bits{std::size_t(kMaxPixels)};
    return bits;
}

} // namespace zp
