// SPDX-License-Identifier: GPL-3.0-or-later
/// Means of squares, summed two bytes to a word.
#include "drawing/Halving.h"
#include "base/Simd.h"
#include <algorithm>
#include <array>

namespace zp
{

namespace
{

/// Two of a pixel's four bytes, each with 16 bits of room: sums of up to 257 pixels do not meet.
constexpr std::uint32_t kPairMask = 0x00FF00FF;
/// Sums of two rows, byte by byte, in pairs with room; added to what is there or put in its place.
ZP_MULTIVERSION void sumTwoRows(const std::uint32_t* __restrict a, const std::uint32_t* __restrict b,
                                std::uint32_t* __restrict even, std::uint32_t* __restrict odd, int count)
{
    for (int i = 0; i < count; ++i) {
        even[i] = (a[i] & kPairMask) + (b[i] & kPairMask);
        odd[i] = ((a[i] >> 8) & kPairMask) + ((b[i] >> 8) & kPairMask);
    }
}

ZP_MULTIVERSION void addTwoRows(const std::uint32_t* __restrict a, const std::uint32_t* __restrict b,
                                std::uint32_t* __restrict even, std::uint32_t* __restrict odd, int count)
{
    for (int i = 0; i < count; ++i) {
        even[i] += (a[i] & kPairMask) + (b[i] & kPairMask);
        odd[i] += ((a[i] >> 8) & kPairMask) + ((b[i] >> 8) & kPairMask);
    }
}

ZP_MULTIVERSION void addNeighbours(const std::uint32_t* __restrict in, std::uint32_t* __restrict out, int count)
{
    for (int i = 0; i < count; ++i) out[i] = in[2 * i] + in[2 * i + 1];
}

/// Sums of 1 << shift pixels back to pixels, rounded.
ZP_MULTIVERSION void divideSums(const std::uint32_t* __restrict even, const std::uint32_t* __restrict odd,
                                std::uint32_t* __restrict pixels, int count, int shift)
{
    const std::uint32_t half = 0x00010001u << (shift - 1);
    for (int i = 0; i < count; ++i) {
        const std::uint32_t e = ((even[i] + half) >> shift) & kPairMask;
        const std::uint32_t o = ((odd[i] + half) >> shift) & kPairMask;
        pixels[i] = e | (o << 8);
    }
}

} // namespace

void averageSquares(ConstBitmapView image, int x, int y, int count, int level, std::uint32_t* pixels)
{
    constexpr int kPiece = 1024; // source pixels a piece: its sums stay in the first cache
    const int step = 1 << level;
    alignas(64) std::array<std::array<std::uint32_t, kPiece>, 2> even, odd;
    for (int done = 0; done < count; done += kPiece >> level) {
        const int piece = std::min(kPiece >> level, count - done);
        int wide = piece << level;
        for (int r = 0; r < step; r += 2) {
            const std::uint32_t* a = image.row((y << level) + r) + (std::ptrdiff_t{x + done} << level);
            const std::uint32_t* b = image.row((y << level) + r + 1) + (std::ptrdiff_t{x + done} << level);
            if (r == 0)
                sumTwoRows(a, b, even[0].data(), odd[0].data(), wide);
            else
                addTwoRows(a, b, even[0].data(), odd[0].data(), wide);
        }
        std::size_t full = 0;
        for (int fold = 0; fold < level; ++fold, full ^= 1) {
            wide >>= 1;
            addNeighbours(even[full].data(), even[full ^ 1].data(), wide);
            addNeighbours(odd[full].data(), odd[full ^ 1].data(), wide);
        }
        divideSums(even[full].data(), odd[full].data(), pixels + done, piece, 2 * level);
    }
}

} // namespace zp
