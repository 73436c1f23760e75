// SPDX-License-Identifier: GPL-3.0-or-later
/// What every kernel is tried with: lengths around each vector's lanes, and bytes among which the extremes are
/// frequent.
#pragma once
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace zp::test
{

/// Lengths at, one below and one above whole vectors of 16, 32 and 64 bytes, for lanes of one to eight bytes.
inline constexpr int kKernelLengths[] = {0,   1,   2,   3,   4,   5,   7,   8,   9,   15,  16,  17, 23, 24,
                                         25,  31,  32,  33,  47,  48,  49,  63,  64,  65,  66,  95, 96, 97,
                                         127, 128, 129, 130, 159, 191, 192, 193, 255, 256, 257, 300};

/// Starts off the alignment of any vector, in lanes.
inline constexpr int kKernelStarts[] = {0, 1, 3};

/// One byte in three is 0, 255 or next to them, or a power of two.
inline std::uint8_t extremeByte(std::mt19937& random)
{
    constexpr std::uint8_t kExtremes[] = {0, 1, 2, 127, 128, 129, 254, 255};
    const std::uint32_t r = random();
    return r % 3 ? std::uint8_t(r >> 8) : kExtremes[(r >> 8) % std::size(kExtremes)];
}

inline std::vector<std::uint8_t> extremeBytes(std::mt19937& random, std::size_t count)
{
    std::vector<std::uint8_t> bytes(count);
    for (std::uint8_t& b : bytes) b = extremeByte(random);
    return bytes;
}

/// Premultiplied pixels: no colour above its alpha; a third opaque, a sixth empty.
inline std::vector<std::uint32_t> extremePixels(std::mt19937& random, std::size_t count)
{
    std::vector<std::uint32_t> pixels(count);
    for (std::uint32_t& p : pixels) {
        const std::uint32_t kind = random() % 6;
        const std::uint32_t alpha = kind < 2 ? 255 : kind == 2 ? 0 : extremeByte(random);
        p = alpha;
        for (int shift = 8; shift < 32; shift += 8) p |= extremeByte(random) * alpha / 255 << shift;
    }
    return pixels;
}

} // namespace zp::test
