// SPDX-License-Identifier: GPL-3.0-or-later
/// Matching and writing 64 pixels at a time, for AVX-512, AVX2 and any machine.
#include "tools/TileKernels.h"
#include "tools/PixelCompare.h"
#include <algorithm>
#include <bit>
#include <cstring>
#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace zp
{

namespace
{

TileEdges edgesOf(const TileRows& open)
{
    TileEdges edges{0, 0, true};
    std::uint64_t all = ~std::uint64_t{0};
    for (int y = 0; y < kTileSide; ++y) {
        const std::uint64_t row = open[std::size_t(y)];
        edges.left |= (row & 1) << y;
        edges.right |= (row >> 63) << y;
        all &= row;
    }
    edges.allOpen = all == ~std::uint64_t{0};
    return edges;
}

/// Each byte's lowest match and how far above it the highest is: x matches when x - low, modulo 256, is at most that.
struct ByteRange {
    std::uint32_t low = 0, reach = 0;
    explicit ByteRange(const TileQuery& query)
    {
        for (int shift = 0; shift < 32; shift += 8) {
            const int b = int(query.target >> shift & 0xFF), t = query.tolerance - 1;
            const int lowest = std::max(0, b - t), highest = std::min(255, b + t);
            low |= std::uint32_t(lowest) << shift;
            reach |= std::uint32_t(highest - lowest) << shift;
        }
    }
};

// ---- any machine ----------------------------------------------------------------------------------------------------

TileEdges loadPlain(const TileSource& source, const TileQuery& query, TileRows& open)
{
    open.fill(0);
    for (int y = 0; y < source.height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(source.pixels + source.rowBytes * y);
        std::uint64_t bits = 0;
        for (int x = 0; x < source.width; ++x)
            bits |= std::uint64_t{wordsMatch(row[x], query.target, query.tolerance)} << x;
        if (source.mask) {
            const std::uint8_t* mask = source.mask + source.maskStride * y;
            for (int x = 0; x < source.width; ++x)
                if ((mask[x] == 0) != query.openWhereMaskIsZero) bits &= ~(std::uint64_t{1} << x);
        }
        open[std::size_t(y)] = bits;
    }
    return edgesOf(open);
}

template <class Pixel>
void writeRuns(Pixel* row, std::uint64_t bits, Pixel value)
{
    while (bits) {
        const int first = std::countr_zero(bits), length = std::countr_one(bits >> first);
        std::fill_n(row + first, length, value);
        if (first + length == 64) return;
        bits &= ~std::uint64_t{0} << (first + length);
    }
}

void paintRowPlain(std::uint32_t* row, std::uint64_t bits, std::uint32_t word) { writeRuns(row, bits, word); }
void clearRowPlain(std::uint8_t* row, std::uint64_t bits) { writeRuns<std::uint8_t>(row, bits, 0); }

constexpr TileKernels kPlain{loadPlain, paintRowPlain, clearRowPlain};

#if defined(__x86_64__)

// ---- AVX2 -----------------------------------------------------------------------------------------------------------

__attribute__((target("avx2"))) std::uint64_t maskBitsAvx2(const std::uint8_t* mask, bool zero)
{
    const __m256i none = _mm256_setzero_si256();
    const auto zeroBits = [&](const std::uint8_t* p) __attribute__((target("avx2")))
    {
        const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
        return std::uint64_t(std::uint32_t(_mm256_movemask_epi8(_mm256_cmpeq_epi8(bytes, none))));
    };
    const std::uint64_t bits = zeroBits(mask) | zeroBits(mask + 32) << 32;
    return zero ? bits : ~bits;
}

__attribute__((target("avx2"))) TileEdges loadAvx2(const TileSource& source, const TileQuery& query, TileRows& open)
{
    // The far edges of a picture are few: they may go the plain way.
    if (source.width < kTileSide) return loadPlain(source, query, open);
    const ByteRange range(query);
    const __m256i low = _mm256_set1_epi32(int(range.low)), reach = _mm256_set1_epi32(int(range.reach));
    const __m256i none = _mm256_setzero_si256();
    for (int y = 0; y < source.height; ++y) {
        const std::uint8_t* row = source.pixels + source.rowBytes * y;
        std::uint64_t bits = 0;
        for (int part = 0; part < 8; ++part) {
            const __m256i pixels = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(row + 32 * part));
            const __m256i beyond = _mm256_subs_epu8(_mm256_sub_epi8(pixels, low), reach);
            const int eight = _mm256_movemask_ps(_mm256_castsi256_ps(_mm256_cmpeq_epi32(beyond, none)));
            bits |= std::uint64_t(unsigned(eight)) << (8 * part);
        }
        if (source.mask) bits &= maskBitsAvx2(source.mask + source.maskStride * y, query.openWhereMaskIsZero);
        open[std::size_t(y)] = bits;
    }
    std::fill(open.begin() + source.height, open.end(), 0);
    return edgesOf(open);
}

constexpr TileKernels kAvx2{loadAvx2, paintRowPlain, clearRowPlain};

// ---- AVX-512 --------------------------------------------------------------------------------------------------------

#define ZP_AVX512 __attribute__((target("avx512f,avx512bw,avx512dq,avx512vl")))

/// Matches of one row. @p Full: 64 pixels; else the first @p width, and no byte beyond them is touched.
template <bool Full>
ZP_AVX512 inline std::uint64_t matchRow512(const std::uint8_t* row, __m512i low, __m512i reach, std::uint64_t columns)
{
    const auto sixteen = [&](int part) ZP_AVX512 {
        const auto wanted = __mmask16(columns >> (16 * part));
        const __m512i pixels =
            Full ? _mm512_loadu_si512(row + 64 * part) : _mm512_maskz_loadu_epi32(wanted, row + 64 * part);
        const __m512i beyond = _mm512_subs_epu8(_mm512_sub_epi8(pixels, low), reach);
        return std::uint64_t(Full ? _mm512_testn_epi32_mask(beyond, beyond)
                                  : _mm512_mask_testn_epi32_mask(wanted, beyond, beyond));
    };
    return sixteen(0) | sixteen(1) << 16 | sixteen(2) << 32 | sixteen(3) << 48;
}

template <bool Full>
ZP_AVX512 void loadRows512(const TileSource& source, const TileQuery& query, TileRows& open)
{
    const ByteRange range(query);
    const __m512i low = _mm512_set1_epi32(int(range.low)), reach = _mm512_set1_epi32(int(range.reach));
    const std::uint64_t columns = ~std::uint64_t{0} >> (64 - source.width);
    for (int y = 0; y < source.height; ++y) {
        std::uint64_t bits = matchRow512<Full>(source.pixels + source.rowBytes * y, low, reach, columns);
        if (source.mask) {
            const __m512i mask = _mm512_maskz_loadu_epi8(columns, source.mask + source.maskStride * y);
            const std::uint64_t nonZero = _mm512_test_epi8_mask(mask, mask);
            bits &= query.openWhereMaskIsZero ? ~nonZero : nonZero;
        }
        open[std::size_t(y)] = bits;
    }
}

ZP_AVX512 TileEdges load512(const TileSource& source, const TileQuery& query, TileRows& open)
{
    if (source.width == kTileSide) {
        loadRows512<true>(source, query, open);
    } else {
        loadRows512<false>(source, query, open);
    }
    std::fill(open.begin() + source.height, open.end(), 0);

    TileEdges edges{0, 0, false};
    __m512i all = _mm512_set1_epi64(-1);
    for (int y = 0; y < kTileSide; y += 8) {
        const __m512i rows = _mm512_loadu_si512(open.data() + y);
        edges.left |= std::uint64_t(_mm512_test_epi64_mask(rows, _mm512_set1_epi64(1))) << y;
        edges.right |= std::uint64_t(_mm512_movepi64_mask(rows)) << y;
        all = _mm512_and_si512(all, rows);
    }
    edges.allOpen = _mm512_cmpeq_epi64_mask(all, _mm512_set1_epi64(-1)) == 0xFF;
    return edges;
}

ZP_AVX512 void paintRow512(std::uint32_t* row, std::uint64_t bits, std::uint32_t word)
{
    const __m512i words = _mm512_set1_epi32(int(word));
    if (bits == ~std::uint64_t{0}) {
        for (int part = 0; part < 4; ++part) _mm512_storeu_si512(row + 16 * part, words);
    } else {
        for (int part = 0; part < 4; ++part)
            _mm512_mask_storeu_epi32(row + 16 * part, __mmask16(bits >> (16 * part)), words);
    }
}

ZP_AVX512 void clearRow512(std::uint8_t* row, std::uint64_t bits)
{
    _mm512_mask_storeu_epi8(row, bits, _mm512_setzero_si512());
}

constexpr TileKernels kAvx512{load512, paintRow512, clearRow512};

#endif

} // namespace

const TileKernels& tileKernels(TileVectors atMost)
{
#if defined(__x86_64__)
    static const bool avx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                               __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
    static const bool avx2 = __builtin_cpu_supports("avx2");
    if (atMost == TileVectors::Best && avx512) return kAvx512;
    if (atMost != TileVectors::Plain && avx2) return kAvx2;
#endif
    static_cast<void>(atMost);
    return kPlain;
}

} // namespace zp
