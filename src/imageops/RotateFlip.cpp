// SPDX-License-Identifier: GPL-3.0-or-later
/// Transposition in vector registers, block by block, and rows mirrored where they stand.
#include "imageops/RotateFlip.h"
#include "base/Simd.h"
#include "base/WorkPool.h"
#include <algorithm>
#include <cstring>
#include <utility>
#if defined(__x86_64__)
#pragma GCC diagnostic push
// The compiler's own header leaves unused lanes undefined on purpose, and then warns of it.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"
#include <immintrin.h>
#endif

namespace zp
{

namespace
{

/// A picture of this many bytes does not stay in the cache anyway: stores that go past it save reading the lines first.
constexpr std::int64_t kStreamFrom = std::int64_t{8} << 20;
constexpr int kBlock = 16; ///< 16 pixels are one cache line

/// Where the pixels of one source row go. Counter-clockwise: column v, rows from the bottom up as u grows; clockwise:
/// column H - 1 - v, rows from the top down.
struct Turn {
    ConstBitmapView from;
    BitmapView to;
    bool clockwise;
    VectorWidth width;

    /// The source row that ends up in column @p x of the result.
    int sourceRow(int x) const { return clockwise ? from.height - 1 - x : x; }
    /// The row of the result that takes the source column @p u.
    int targetRow(int u) const { return clockwise ? u : from.width - 1 - u; }
};

/// Any part of the result, pixel by pixel: the edges that are no whole block, and machines without vectors.
void turnPart(const Turn& turn, int u0, int u1, int x0, int x1)
{
    for (int u = u0; u < u1; ++u) {
        std::uint32_t* const target = turn.to.row(turn.targetRow(u));
        for (int x = x0; x < x1; ++x) target[x] = turn.from.row(turn.sourceRow(x))[u];
    }
}

void turnBandPlainly(const Turn& turn, int x0, int x1)
{
    for (int x = x0; x < x1; x += kBlock)
        for (int u = 0; u < turn.from.width; u += kBlock)
            turnPart(turn, u, std::min(u + kBlock, turn.from.width), x, std::min(x + kBlock, x1));
}

#if defined(__x86_64__)

/// Source columns u to u + 15 into columns x to x + 15 of the result: sixteen loads, four rounds of exchanges, sixteen
/// stores of whole cache lines.
__attribute__((target("avx512f,avx512bw,avx512dq,avx512vl"), always_inline)) inline void
turnBlock512(const Turn& turn, int u, int x, bool stream)
{
    __m512i a[16], b[16];
    for (int i = 0; i < 16; ++i) a[i] = _mm512_loadu_si512(turn.from.row(turn.sourceRow(x + i)) + u);
    for (int i = 0; i < 16; i += 2) {
        b[i] = _mm512_unpacklo_epi32(a[i], a[i + 1]);
        b[i + 1] = _mm512_unpackhi_epi32(a[i], a[i + 1]);
    }
    for (int i = 0; i < 16; i += 4) {
        a[i] = _mm512_unpacklo_epi64(b[i], b[i + 2]);
        a[i + 1] = _mm512_unpackhi_epi64(b[i], b[i + 2]);
        a[i + 2] = _mm512_unpacklo_epi64(b[i + 1], b[i + 3]);
        a[i + 3] = _mm512_unpackhi_epi64(b[i + 1], b[i + 3]);
    }
    // a[4g + k] now holds, in each of its four quarters q, column 4q + k of the source rows 4g to 4g + 3.
    for (int k = 0; k < 4; ++k) {
        b[k] = _mm512_shuffle_i32x4(a[k], a[4 + k], 0x88);
        b[4 + k] = _mm512_shuffle_i32x4(a[k], a[4 + k], 0xDD);
        b[8 + k] = _mm512_shuffle_i32x4(a[8 + k], a[12 + k], 0x88);
        b[12 + k] = _mm512_shuffle_i32x4(a[8 + k], a[12 + k], 0xDD);
    }
    for (int k = 0; k < 4; ++k) {
        a[k] = _mm512_shuffle_i32x4(b[k], b[8 + k], 0x88);
        a[8 + k] = _mm512_shuffle_i32x4(b[k], b[8 + k], 0xDD);
        a[4 + k] = _mm512_shuffle_i32x4(b[4 + k], b[12 + k], 0x88);
        a[12 + k] = _mm512_shuffle_i32x4(b[4 + k], b[12 + k], 0xDD);
    }
    for (int c = 0; c < 16; ++c) {
        auto* const target = turn.to.row(turn.targetRow(u + c)) + x;
        if (stream)
            _mm512_stream_si512(reinterpret_cast<__m512i*>(target), a[c]);
        else
            _mm512_storeu_si512(target, a[c]);
    }
}

__attribute__((target("avx512f,avx512bw,avx512dq,avx512vl"))) void turnBand512(const Turn& turn, int x0, int x1,
                                                                               bool stream)
{
    const int wholeX = x0 + (x1 - x0) / kBlock * kBlock, wholeU = turn.from.width / kBlock * kBlock;
    for (int x = x0; x < wholeX; x += kBlock) {
        for (int u = 0; u < wholeU; u += kBlock) turnBlock512(turn, u, x, stream);
        turnPart(turn, wholeU, turn.from.width, x, x + kBlock);
    }
    turnPart(turn, 0, turn.from.width, wholeX, x1);
    if (stream) _mm_sfence();
}

__attribute__((target("avx2"), always_inline)) inline void turnBlock256(const Turn& turn, int u, int x)
{
    __m256i a[8], b[8];
    for (int i = 0; i < 8; ++i)
        a[i] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(turn.from.row(turn.sourceRow(x + i)) + u));
    for (int i = 0; i < 8; i += 2) {
        b[i] = _mm256_unpacklo_epi32(a[i], a[i + 1]);
        b[i + 1] = _mm256_unpackhi_epi32(a[i], a[i + 1]);
    }
    for (int i = 0; i < 8; i += 4) {
        a[i] = _mm256_unpacklo_epi64(b[i], b[i + 2]);
        a[i + 1] = _mm256_unpackhi_epi64(b[i], b[i + 2]);
        a[i + 2] = _mm256_unpacklo_epi64(b[i + 1], b[i + 3]);
        a[i + 3] = _mm256_unpackhi_epi64(b[i + 1], b[i + 3]);
    }
    for (int k = 0; k < 4; ++k) {
        b[k] = _mm256_permute2x128_si256(a[k], a[4 + k], 0x20);
        b[4 + k] = _mm256_permute2x128_si256(a[k], a[4 + k], 0x31);
    }
    for (int c = 0; c < 8; ++c)
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(turn.to.row(turn.targetRow(u + c)) + x), b[c]);
}

__attribute__((target("avx2"))) void turnBand256(const Turn& turn, int x0, int x1)
{
    constexpr int half = kBlock / 2;
    const int wholeX = x0 + (x1 - x0) / half * half, wholeU = turn.from.width / half * half;
    // Both halves of a cache line of the result are written one soon after the other.
    for (int x = x0; x < wholeX; x += kBlock) {
        for (int u = 0; u < wholeU; u += half)
            for (int i = x; i < std::min(x + kBlock, wholeX); i += half) turnBlock256(turn, u, i);
        turnPart(turn, wholeU, turn.from.width, x, std::min(x + kBlock, wholeX));
    }
    turnPart(turn, 0, turn.from.width, wholeX, x1);
}

#endif

void turnBand(const Turn& turn, int x0, int x1)
{
#if defined(__x86_64__)
    if (turn.width == VectorWidth::Widest && __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq") &&
        __builtin_cpu_supports("avx512vl")) {
        const bool aligned = reinterpret_cast<std::uintptr_t>(turn.to.data) % 64 == 0 && turn.to.rowBytes % 64 == 0;
        const bool large = std::int64_t{4} * turn.from.width * turn.from.height >= kStreamFrom;
        return turnBand512(turn, x0, x1, aligned && large);
    }
    if (turn.width != VectorWidth::None && __builtin_cpu_supports("avx2")) return turnBand256(turn, x0, x1);
#endif
    turnBandPlainly(turn, x0, x1);
}

void rotate(const Turn& turn)
{
    if (turn.from.isEmpty() || turn.to.isEmpty()) return;
    // Bands of the result's columns, whole cache lines wide, so that no two threads write one line.
    const int blocks = (turn.to.width + kBlock - 1) / kBlock;
    parallelBands(blocks, 4,
                  [&](int first, int last) { turnBand(turn, first * kBlock, std::min(last * kBlock, turn.to.width)); });
}

void mirrorRowPlainly(std::uint32_t* row, int first, int last) { std::reverse(row + first, row + last); }

#if defined(__x86_64__)
__attribute__((target("avx512f"))) void mirrorRow512(std::uint32_t* row, int width)
{
    const __m512i backwards = _mm512_set_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
    int left = 0, right = width;
    for (; right - left >= 32; left += 16, right -= 16) {
        const __m512i a = _mm512_loadu_si512(row + left), b = _mm512_loadu_si512(row + right - 16);
        _mm512_storeu_si512(row + left, _mm512_permutexvar_epi32(backwards, b));
        _mm512_storeu_si512(row + right - 16, _mm512_permutexvar_epi32(backwards, a));
    }
    mirrorRowPlainly(row, left, right);
}

__attribute__((target("avx2"))) void mirrorRow256(std::uint32_t* row, int width)
{
    const __m256i backwards = _mm256_set_epi32(0, 1, 2, 3, 4, 5, 6, 7);
    int left = 0, right = width;
    for (; right - left >= 16; left += 8, right -= 8) {
        auto* const head = reinterpret_cast<__m256i*>(row + left);
        auto* const tail = reinterpret_cast<__m256i*>(row + right - 8);
        const __m256i a = _mm256_loadu_si256(head), b = _mm256_loadu_si256(tail);
        _mm256_storeu_si256(head, _mm256_permutevar8x32_epi32(b, backwards));
        _mm256_storeu_si256(tail, _mm256_permutevar8x32_epi32(a, backwards));
    }
    mirrorRowPlainly(row, left, right);
}
#endif

void mirrorRow(std::uint32_t* row, int width, [[maybe_unused]] VectorWidth widest)
{
#if defined(__x86_64__)
    if (widest == VectorWidth::Widest && __builtin_cpu_supports("avx512f")) return mirrorRow512(row, width);
    if (widest != VectorWidth::None && __builtin_cpu_supports("avx2")) return mirrorRow256(row, width);
#endif
    mirrorRowPlainly(row, 0, width);
}

ZP_MULTIVERSION void exchangeRows(std::uint32_t* __restrict a, std::uint32_t* __restrict b, int width)
{
    for (int x = 0; x < width; ++x) {
        const std::uint32_t held = a[x];
        a[x] = b[x];
        b[x] = held;
    }
}

} // namespace

void rotateCounterClockwise(ConstBitmapView from, BitmapView to, VectorWidth width)
{
    rotate({from, to, false, width});
}

void rotateClockwise(ConstBitmapView from, BitmapView to, VectorWidth width) { rotate({from, to, true, width}); }

void flipHorizontally(BitmapView pixels, VectorWidth width)
{
    if (pixels.isEmpty()) return;
    parallelBands(pixels.height, 32, [&](int first, int last) {
        for (int y = first; y < last; ++y) mirrorRow(pixels.row(y), pixels.width, width);
    });
}

void flipVertically(BitmapView pixels)
{
    if (pixels.isEmpty()) return;
    parallelBands(pixels.height / 2, 32, [&](int first, int last) {
        for (int y = first; y < last; ++y) exchangeRows(pixels.row(y), pixels.row(pixels.height - 1 - y), pixels.width);
    });
}

} // namespace zp
#if defined(__x86_64__)
#pragma GCC diagnostic pop
#endif
