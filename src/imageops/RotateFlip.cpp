// SPDX-License-Identifier: GPL-3.0-or-later
/// Transposition in vector registers, block by block, and rows mirrored where they stand.
#include "imageops/RotateFlip.h"
#include "base/CpuHints.h"
#include "base/WorkPool.h"
#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "imageops/RotateFlip.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

#ifndef ZP_ROTATE_FLIP_ONCE
#define ZP_ROTATE_FLIP_ONCE
namespace zp
{

/// Pixels of one cache line. Bands of the result's columns are whole lines, so that no two threads write one.
constexpr int kLine = 16;
/// Source pixels announced beforehand where vectors are less than a line: see announce().
constexpr int kAhead = 128;
/// A picture of this many bytes does not stay in the cache anyway: stores that go past it save reading the lines first.
constexpr std::int64_t kStreamFrom = std::int64_t{8} << 20;

/// Where the pixels of one source row go. Counter-clockwise: column v, rows from the bottom up as u grows; clockwise:
/// column H - 1 - v, rows from the top down.
struct Turn {
    ConstBitmapView from;
    BitmapView to;
    bool clockwise;

    /// The source row that ends up in column @p x of the result.
    int sourceRow(int x) const { return clockwise ? from.height - 1 - x : x; }
    /// The row of the result that takes the source column @p u.
    int targetRow(int u) const { return clockwise ? u : from.width - 1 - u; }
    /// Whether stores may go past the cache.
    bool streams() const
    {
        const bool aligned = reinterpret_cast<std::uintptr_t>(to.data) % 64 == 0 && to.rowBytes % 64 == 0;
        return aligned && std::int64_t{4} * from.width * from.height >= kStreamFrom;
    }
};

} // namespace zp
#endif

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

#if HWY_MAX_BYTES >= 64
using Pixels = hn::CappedTag<std::uint32_t, kLine>;
#else
// Also where vectors have 32 bytes: their halves exchange so badly that squares of eight take longer than of four.
using Pixels = hn::CappedTag<std::uint32_t, 4>;
#endif
using Vector = hn::Vec<Pixels>;
constexpr int kSide = int(hn::MaxLanes(Pixels())); ///< of the squares that are transposed in registers

/// Rows to columns.
HWY_INLINE void transpose(Vector (&a)[kSide])
{
    const Pixels d;
    const hn::Repartition<std::uint64_t, Pixels> pairs;
    const auto lower = [&](Vector x, Vector y) ZP_LANES {
        return hn::BitCast(d, hn::InterleaveLower(pairs, hn::BitCast(pairs, x), hn::BitCast(pairs, y)));
    };
    const auto upper = [&](Vector x, Vector y) ZP_LANES {
        return hn::BitCast(d, hn::InterleaveUpper(pairs, hn::BitCast(pairs, x), hn::BitCast(pairs, y)));
    };
    Vector b[kSide];
    for (int i = 0; i < kSide; i += 2) {
        b[i] = hn::InterleaveLower(d, a[i], a[i + 1]);
        b[i + 1] = hn::InterleaveUpper(d, a[i], a[i + 1]);
    }
    for (int i = 0; i < kSide; i += 4) {
        a[i] = lower(b[i], b[i + 2]);
        a[i + 1] = upper(b[i], b[i + 2]);
        a[i + 2] = lower(b[i + 1], b[i + 3]);
        a[i + 3] = upper(b[i + 1], b[i + 3]);
    }
    // a[4g + k] now holds, in each of its blocks of four, q, column 4q + k of the rows 4g to 4g + 3.
#if HWY_MAX_BYTES >= 64
    for (int g = 0; g < 16; g += 8)
        for (int k = g; k < g + 4; ++k) {
            b[k] = hn::OddEvenBlocks(hn::SwapAdjacentBlocks(a[4 + k]), a[k]);
            b[4 + k] = hn::OddEvenBlocks(a[4 + k], hn::SwapAdjacentBlocks(a[k]));
        }
    for (int k = 0; k < 8; ++k) {
        a[k] = hn::ConcatLowerLower(d, b[8 + k], b[k]);
        a[8 + k] = hn::ConcatUpperUpper(d, b[8 + k], b[k]);
    }
#endif
}

/// Source columns u to u + kSide - 1 into one cache line of each of kSide rows of the result, from column x on.
HWY_INLINE void turnLines(const Turn& turn, int u, int x, bool stream)
{
    constexpr int kSquares = kLine / kSide;
    const Pixels d;
    // Whole lines leave one by one: as halves or quarters many would be open at a time, more than there are buffers
    // for.
    Vector lines[kSquares][kSide];
    for (int s = 0; s < kSquares; ++s) {
        for (int i = 0; i < kSide; ++i) {
            const std::uint32_t* const from = turn.from.row(turn.sourceRow(x + s * kSide + i)) + u;
            if (kSquares > 1) prefetch(from + kAhead);
            lines[s][i] = hn::LoadU(d, from);
        }
        transpose(lines[s]);
    }
    for (int c = 0; c < kSide; ++c) {
        std::uint32_t* const target = turn.to.row(turn.targetRow(u + c)) + x;
        for (int s = 0; s < kSquares; ++s)
            stream ? hn::Stream(lines[s][c], d, target + s * kSide) : hn::StoreU(lines[s][c], d, target + s * kSide);
    }
}

/// Pixel by pixel: the edges that are no whole square.
void turnPart(const Turn& turn, int u0, int u1, int x0, int x1)
{
    for (int u = u0; u < u1; ++u) {
        std::uint32_t* const target = turn.to.row(turn.targetRow(u));
        for (int x = x0; x < x1; ++x) target[x] = turn.from.row(turn.sourceRow(x))[u];
    }
}

/// Columns x0 to x1 of the result.
void turnBand(const Turn& turn, int x0, int x1)
{
    const bool stream = turn.streams();
    const int wholeX = x0 + (x1 - x0) / kLine * kLine, wholeU = turn.from.width / kSide * kSide;
    for (int x = x0; x < wholeX; x += kLine) {
        for (int u = 0; u < wholeU; u += kSide) turnLines(turn, u, x, stream);
        turnPart(turn, wholeU, turn.from.width, x, x + kLine);
    }
    turnPart(turn, 0, turn.from.width, wholeX, x1);
    if (stream) finishStreaming();
}

void mirrorRow(std::uint32_t* row, int width)
{
    const hn::ScalableTag<std::uint32_t> d;
    const int lanes = int(hn::Lanes(d));
    int left = 0, right = width;
    for (; right - left >= 2 * lanes; left += lanes, right -= lanes) {
        const auto a = hn::LoadU(d, row + left), b = hn::LoadU(d, row + right - lanes);
        hn::StoreU(hn::Reverse(d, b), d, row + left);
        hn::StoreU(hn::Reverse(d, a), d, row + right - lanes);
    }
    std::reverse(row + left, row + right);
}

void exchangeRows(std::uint32_t* a, std::uint32_t* b, int width)
{
    forEachVector<std::uint32_t>(std::size_t(width), [=](auto d, std::size_t at) ZP_LANES {
        const auto held = hn::LoadU(d, a + at);
        hn::StoreU(hn::LoadU(d, b + at), d, a + at);
        hn::StoreU(held, d, b + at);
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(turnBand);
HWY_EXPORT(mirrorRow);
HWY_EXPORT(exchangeRows);

namespace
{

void rotate(const Turn& turn)
{
    if (turn.from.isEmpty() || turn.to.isEmpty()) return;
    const int lines = (turn.to.width + kLine - 1) / kLine;
    parallelBands(lines, 4, [&](int first, int last) {
        HWY_DYNAMIC_DISPATCH(turnBand)(turn, first * kLine, std::min(last * kLine, turn.to.width));
    });
}

} // namespace

void rotateCounterClockwise(ConstBitmapView from, BitmapView to) { rotate({from, to, false}); }
void rotateClockwise(ConstBitmapView from, BitmapView to) { rotate({from, to, true}); }

void flipHorizontally(BitmapView pixels)
{
    if (pixels.isEmpty()) return;
    parallelBands(pixels.height, 32, [&](int first, int last) {
        for (int y = first; y < last; ++y) HWY_DYNAMIC_DISPATCH(mirrorRow)(pixels.row(y), pixels.width);
    });
}

void flipVertically(BitmapView pixels)
{
    if (pixels.isEmpty()) return;
    parallelBands(pixels.height / 2, 32, [&](int first, int last) {
        for (int y = first; y < last; ++y)
            HWY_DYNAMIC_DISPATCH(exchangeRows)(pixels.row(y), pixels.row(pixels.height - 1 - y), pixels.width);
    });
}

} // namespace zp
#endif
