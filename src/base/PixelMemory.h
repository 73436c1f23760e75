// SPDX-License-Identifier: GPL-3.0-or-later
/// Large zeroed blocks from a pool: first touch of fresh pages costs more than the work done on them.
#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>

namespace zp
{

struct PixelMemoryRelease {
    std::size_t bytes = 0; ///< at least what was asked for; tells the release which kind of block it is
    void operator()(std::uint8_t* memory) const noexcept;
};
/// Owned bytes. Blocks of 1 MiB and more are 2 MiB aligned, advised for huge pages, and go back to a pool of a few
/// blocks when released; smaller ones are 64-byte aligned. Thread-safe.
using PixelMemory = std::unique_ptr<std::uint8_t[], PixelMemoryRelease>;

/// @return @p bytes zeroed bytes, or null when memory cannot be had
PixelMemory allocatePixels(std::size_t bytes);
/// Same, contents undefined: for buffers that are overwritten whole.
PixelMemory allocatePixelsUninitialized(std::size_t bytes);
/// Gives the pooled blocks back to the system, and all other memory that was released. Takes about a millisecond.
void trimPixelPool();

} // namespace zp
