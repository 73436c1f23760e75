// SPDX-License-Identifier: GPL-3.0-or-later
/// The neighbours of a pixel in vector registers, for processors that look bytes up there (AVX-512 VBMI). For the file
/// with the vector step only.
#pragma once
#include "smartfill/SmartFillMatch.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#if defined(__x86_64__) && defined(__GNUC__)
// The compiler's own header gives unused lanes from a variable set to itself, and warns of it.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <immintrin.h>
#define ZP_VBMI                                                                                                        \
    __attribute__((target("avx512f,avx512bw,avx512dq,avx512vl,avx512vbmi,avx512vbmi2,avx512vnni,bmi,"                  \
                          "bmi2,popcnt,lzcnt")))
#endif

#ifdef ZP_VBMI
namespace zp
{

/// What a step compares its candidates with, in registers and, for single neighbours, in memory.
struct Lanes {
    std::uint32_t used = 0; ///< without the pixel itself, which counts for nothing
    int count = 0, reach = 0;
    unsigned around = 0; ///< bit i: the neighbourhood has offset number i + 1, one of the twelve close around
    __m512i deltaA, deltaB, valueA, valueB;
    alignas(64) std::int32_t delta[32];
    alignas(64) std::uint32_t value[32];

    __mmask16 first() const { return __mmask16(used); }
    __mmask16 second() const { return __mmask16(used >> 16); }
};

/// The bytes 0 to 63.
ZP_VBMI inline __m512i upTo63()
{
    alignas(64) static constexpr auto kNumbers = [] {
        std::array<std::uint8_t, 64> numbers{};
        for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = std::uint8_t(i);
        return numbers;
    }();
    return _mm512_load_si512(kNumbers.data());
}

inline __mmask16 firstLanes(int count) { return count >= 16 ? __mmask16(0xFFFF) : __mmask16((1u << count) - 1); }

inline std::uint32_t firstLanes32(int count) { return std::uint32_t((std::uint64_t{1} << count) - 1); }

/// Which of thirty-two lanes hold @p value.
ZP_VBMI inline std::uint32_t equalLanes(__m512i a, __m512i b, std::int32_t value)
{
    const __m512i all = _mm512_set1_epi32(value);
    return _mm512_cmpeq_epi32_mask(a, all) | std::uint32_t(_mm512_cmpeq_epi32_mask(b, all)) << 16;
}

/// For the offsets in their order, 64 at a time: where a window of known pixels holds them (for each phase of the
/// window), and what they are. Bytes for permutations.
struct WindowTables {
    static constexpr int kGroups = 7;
    alignas(64) std::uint8_t byte[kGroups][8][64]; ///< 32 * strip + row
    alignas(64) std::uint8_t bit[kGroups][8][64];  ///< 0 past the last offset
    alignas(64) std::int8_t dx[kGroups][64], dy[kGroups][64];
    std::uint8_t reach[kGroups][64];

    WindowTables()
    {
        const auto offsets = nearOffsets(KnownPixels::kWindowReach);
        for (int i = 0; i < kGroups * 64; ++i) {
            const int group = i / 64, lane = i % 64;
            const bool there = std::size_t(i) < offsets.size();
            const NearOffset o = there ? offsets[std::size_t(i)] : NearOffset{0, 0};
            for (int phase = 0; phase < 8; ++phase) {
                const int column = phase + KnownPixels::kWindowReach + o.dx;
                byte[group][phase][lane] = std::uint8_t(column / 8 * 32 + o.dy + KnownPixels::kWindowReach);
                bit[group][phase][lane] = there ? std::uint8_t(1u << (column % 8)) : std::uint8_t(0);
            }
            dx[group][lane] = std::int8_t(o.dx);
            dy[group][lane] = std::int8_t(o.dy);
            int r = 0;
            while (r * r < o.length()) ++r;
            reach[group][lane] = there ? std::uint8_t(r) : std::uint8_t(KnownPixels::kWindowReach);
        }
    }
};

inline const WindowTables& windowTables()
{
    static const WindowTables tables;
    return tables;
}

ZP_VBMI inline __m512i twoStrips(const KnownPixels::Window& window, int first)
{
    const std::uint8_t* const strip = window.strips + first * window.pitch;
    return _mm512_inserti64x4(_mm512_castsi256_si512(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(strip))),
                              _mm256_loadu_si256(reinterpret_cast<const __m256i*>(strip + window.pitch)), 1);
}

ZP_VBMI inline __m512i deltas(const MatchLayout& layout, __m128i dx, __m128i dy)
{
    const __m512i down = _mm512_mullo_epi32(_mm512_cvtepi8_epi32(dy), _mm512_set1_epi32(layout.stride));
    return _mm512_add_epi32(down, _mm512_cvtepi8_epi32(dx));
}

/// Finds the neighbours close by. @return false when there are too few, or an edge is too near
ZP_VBMI inline bool collectInWindow(const MatchState& state, int x, int y, Lanes& l)
{
    const WindowTables& tables = windowTables();
    const MatchLayout& layout = state.layout;
    const int room = std::min(std::min(x, layout.width - 1 - x), std::min(y, layout.height - 1 - y));
    const KnownPixels::Window window = state.known->window(x, y);
    const __m512i left = twoStrips(window, 0), right = twoStrips(window, 2);
    __m512i dx = _mm512_setzero_si512(), dy = dx;
    int count = 0;
    for (int group = 0;; ++group) {
        if (group == WindowTables::kGroups || tables.reach[group][63] > room) return false;
        const __m512i bytes =
            _mm512_permutex2var_epi8(left, _mm512_load_si512(tables.byte[group][window.phase]), right);
        const std::uint64_t known = _mm512_test_epi8_mask(bytes, _mm512_load_si512(tables.bit[group][window.phase]));
        const std::uint64_t rest = ~std::uint64_t{0} << count; // lanes not taken yet
        dx = _mm512_mask_expand_epi8(dx, rest, _mm512_maskz_compress_epi8(known, _mm512_load_si512(tables.dx[group])));
        dy = _mm512_mask_expand_epi8(dy, rest, _mm512_maskz_compress_epi8(known, _mm512_load_si512(tables.dy[group])));
        if (group == 0) l.around = unsigned(known >> 1) & ((1u << DrawnSources::kAround) - 1);
        const int here = std::popcount(known);
        if (count + here >= kNeighbours) {
            const std::uint64_t last = _pdep_u64(std::uint64_t{1} << (kNeighbours - 1 - count), known);
            l.reach = tables.reach[group][std::countr_zero(last)];
            break;
        }
        count += here;
    }
    l.count = kNeighbours;
    l.deltaA = deltas(layout, _mm512_castsi512_si128(dx), _mm512_castsi512_si128(dy));
    l.deltaB = deltas(layout, _mm512_extracti32x4_epi32(dx, 1), _mm512_extracti32x4_epi32(dy, 1));
    return true;
}

/// Finds the neighbours where known pixels are too rare for a window: all of the least disc that holds enough of them,
/// put in order by counting for each how many come before it. @return as above
ZP_VBMI inline bool collectInDisc(const MatchState& state, int x, int y, Lanes& l)
{
    constexpr int kReach = KnownPixels::kDiscReach;
    const MatchLayout& layout = state.layout;
    const int room = std::min(std::min(x, layout.width - 1 - x), std::min(y, layout.height - 1 - y));
    if (std::min(room, layout.border) < kReach) return false;
    KnownPixels::DiscRows rows;
    for (int dy = -kReach; dy <= kReach; ++dy) rows[std::size_t(dy + kReach)] = state.known->row(x, y + dy);
    const int radius = KnownPixels::leastDisc(rows, kReach);
    if (!radius) return false;
    const KnownPixels::DiscRows& within = KnownPixels::disc(radius);
    // One disc smaller held fewer than thirty, and a ring has room for no more than 8 * kReach.
    constexpr int kMost = kNeighbours + 8 * kReach;
    alignas(64) std::int8_t dx[kMost + 64], dy[kMost + 64];
    const __m512i columns = _mm512_sub_epi8(upTo63(), _mm512_set1_epi8(kReach));
    int count = 0;
    for (int down = -radius; down <= radius; ++down) {
        const std::uint64_t bits = rows[std::size_t(down + kReach)] & within[std::size_t(down + kReach)];
        _mm512_storeu_si512(dx + count, _mm512_maskz_compress_epi8(bits, columns));
        _mm512_storeu_si512(dy + count, _mm512_set1_epi8(char(down)));
        count += std::popcount(bits);
    }
    // A key orders by length, then dy, then dx; none is less than that of what lies past the end.
    alignas(64) std::int32_t keys[kMost + 64];
    for (int i = 0; i < count; i += 16) {
        const __m512i h = _mm512_cvtepi8_epi32(_mm_load_si128(reinterpret_cast<const __m128i*>(dx + i)));
        const __m512i v = _mm512_cvtepi8_epi32(_mm_load_si128(reinterpret_cast<const __m128i*>(dy + i)));
        const __m512i length = _mm512_add_epi32(_mm512_mullo_epi32(h, h), _mm512_mullo_epi32(v, v));
        const __m512i place = _mm512_add_epi32(_mm512_slli_epi32(v, 6), h); // less apart than two lengths
        _mm512_store_si512(keys + i, _mm512_mask_add_epi32(_mm512_set1_epi32(INT32_MAX), firstLanes(count - i),
                                                           _mm512_slli_epi32(length, 13), place));
    }
    for (int i = 0; i < count; i += 16) {
        const __m512i key = _mm512_load_si512(keys + i);
        __m512i rank = _mm512_setzero_si512();
        for (int j = 0; j < count; ++j) {
            const __mmask16 before = _mm512_cmpgt_epi32_mask(key, _mm512_set1_epi32(keys[j]));
            rank = _mm512_mask_add_epi32(rank, before, rank, _mm512_set1_epi32(1));
        }
        const __m512i delta = deltas(layout, _mm_load_si128(reinterpret_cast<const __m128i*>(dx + i)),
                                     _mm_load_si128(reinterpret_cast<const __m128i*>(dy + i)));
        _mm512_mask_i32scatter_epi32(l.delta, _mm512_cmplt_epi32_mask(rank, _mm512_set1_epi32(kNeighbours)), rank,
                                     delta, 4);
    }
    l.count = kNeighbours;
    l.reach = radius;
    l.around = 0;
    const WindowTables& tables = windowTables();
    for (int i = 0; i < DrawnSources::kAround; ++i)
        l.around |= unsigned(rows[std::size_t(tables.dy[0][i + 1] + kReach)] >> (tables.dx[0][i + 1] + kReach) & 1)
                    << i;
    l.deltaA = _mm512_load_si512(l.delta);
    l.deltaB = _mm512_maskz_load_epi32(firstLanes(kNeighbours - 16), l.delta + 16);
    return true;
}

/// The target's values at @p index, and where they were filled from less the delta.
ZP_VBMI inline void readTarget(const TargetPixel* target, __m512i index, __mmask16 used, __m512i delta, __m512i& value,
                               __m512i& continued)
{
    const __m512i none = _mm512_set1_epi64(-1);
    const __m512i low = _mm512_mask_i32gather_epi64(none, __mmask8(used), _mm512_castsi512_si256(index), target, 8);
    const __m512i high =
        _mm512_mask_i32gather_epi64(none, __mmask8(used >> 8), _mm512_extracti64x4_epi64(index, 1), target, 8);
    const __m512i evens = _mm512_set_epi32(30, 28, 26, 24, 22, 20, 18, 16, 14, 12, 10, 8, 6, 4, 2, 0);
    const __m512i odds = _mm512_set_epi32(31, 29, 27, 25, 23, 21, 19, 17, 15, 13, 11, 9, 7, 5, 3, 1);
    value = _mm512_permutex2var_epi32(low, evens, high);
    const __m512i from = _mm512_permutex2var_epi32(low, odds, high);
    // Index 0 lies in the border and is never a source.
    continued = _mm512_maskz_sub_epi32(_mm512_cmpge_epi32_mask(from, _mm512_setzero_si512()), from, delta);
}

} // namespace zp
#endif
