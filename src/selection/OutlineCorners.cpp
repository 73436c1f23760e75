// SPDX-License-Identifier: GPL-3.0-or-later
/// Where the border between two rows of bits turns: exclusive or, 64 pixels at a time.
#include "selection/OutlineCorners.h"
#include "base/Simd.h"
#include <bit>
#if defined(__x86_64__)
// The compiler's own header starts some results from "any value" and then warns of that.
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <immintrin.h>
#endif

namespace zp
{

namespace
{

/// What is known of the 64 points at the left borders of a word's pixels.
struct Points {
    std::uint64_t ends;      ///< a level piece of border starts or ends, but not both
    std::uint64_t crossings; ///< four pieces meet
    std::uint64_t above;     ///< an upright piece comes from above
};

inline Points pointsOf(std::uint64_t above, std::uint64_t aboveBefore, std::uint64_t below, std::uint64_t belowBefore)
{
    const std::uint64_t line = above ^ below;
    const std::uint64_t lineLeft = line << 1 | (aboveBefore ^ belowBefore) >> 63;
    const std::uint64_t upright = above ^ (above << 1 | aboveBefore >> 63);
    return {line ^ lineLeft, line & lineLeft & upright, upright};
}

/// The corners of one word that has any, bit by bit.
inline FoundCorner* writeCorners(Points p, std::uint32_t firstColumn, FoundCorner* out)
{
    for (std::uint64_t todo = p.ends | p.crossings; todo; todo &= todo - 1) {
        const int bit = std::countr_zero(todo);
        const std::uint32_t x = firstColumn + std::uint32_t(bit);
        if (p.crossings >> bit & 1) {
            *out++ = {x | FoundCorner::kCrossing | FoundCorner::kEndsAbove};
            *out++ = {x | FoundCorner::kCrossing};
        } else {
            *out++ = {x | std::uint32_t(p.above >> bit & 1) << 31};
        }
    }
    return out;
}

} // namespace

std::size_t findCornersPlain(const std::uint64_t* above, const std::uint64_t* below, std::size_t words,
                             FoundCorner* out)
{
    FoundCorner* const first = out;
    std::uint64_t aboveBefore = 0, belowBefore = 0;
    for (std::size_t w = 0; w < words; ++w) {
        const Points p = pointsOf(above[w], aboveBefore, below[w], belowBefore);
        aboveBefore = above[w], belowBefore = below[w];
        if (p.ends | p.crossings) out = writeCorners(p, std::uint32_t(w) * 64, out);
    }
    return std::size_t(out - first);
}

ZP_MULTIVERSION static std::size_t countInWords(const std::uint64_t* above, const std::uint64_t* below,
                                                std::size_t words)
{
    std::size_t count = 0;
    for (std::size_t w = 0; w < words; ++w) {
        const Points p = pointsOf(above[w], above[std::ptrdiff_t(w) - 1], below[w], below[std::ptrdiff_t(w) - 1]);
        count += std::size_t(__builtin_popcountll(p.ends)) + 2 * std::size_t(__builtin_popcountll(p.crossings));
    }
    return count;
}

#if defined(__x86_64__)
#define ZP_TARGET_512                                                                                                  \
    __attribute__((target("avx512f,avx512bw,avx512vl,avx512vbmi2,avx512vpopcntdq,bmi,bmi2,popcnt,lzcnt")))

namespace
{

bool haveWideBytes()
{
    static const bool have = __builtin_cpu_supports("avx512vbmi2") && __builtin_cpu_supports("avx512vpopcntdq") &&
                             __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl") &&
                             __builtin_cpu_supports("bmi2");
    return have;
}

struct WidePoints {
    __m512i ends, crossings, above;
};

ZP_TARGET_512 inline WidePoints widePointsOf(const std::uint64_t* above, const std::uint64_t* below, __mmask8 which)
{
    const __m512i a = _mm512_maskz_loadu_epi64(which, above), b = _mm512_maskz_loadu_epi64(which, below);
    const __m512i aBefore = _mm512_maskz_loadu_epi64(which, above - 1),
                  bBefore = _mm512_maskz_loadu_epi64(which, below - 1);
    const __m512i line = _mm512_xor_si512(a, b);
    const __m512i left =
        _mm512_or_si512(_mm512_slli_epi64(line, 1), _mm512_srli_epi64(_mm512_xor_si512(aBefore, bBefore), 63));
    const __m512i upright =
        _mm512_xor_si512(a, _mm512_or_si512(_mm512_slli_epi64(a, 1), _mm512_srli_epi64(aBefore, 63)));
    return {_mm512_xor_si512(line, left), _mm512_and_si512(_mm512_and_si512(line, left), upright), upright};
}

ZP_TARGET_512 inline __mmask8 wordsLeft(std::size_t count) { return count >= 8 ? 0xff : __mmask8((1u << count) - 1); }

ZP_TARGET_512 std::size_t countInWords512(const std::uint64_t* above, const std::uint64_t* below, std::size_t words)
{
    __m512i sum = _mm512_setzero_si512();
    for (std::size_t w = 0; w < words; w += 8) {
        const WidePoints p = widePointsOf(above + w, below + w, wordsLeft(words - w));
        const __m512i twice = _mm512_slli_epi64(_mm512_popcnt_epi64(p.crossings), 1);
        sum = _mm512_add_epi64(sum, _mm512_add_epi64(_mm512_popcnt_epi64(p.ends), twice));
    }
    return std::size_t(_mm512_reduce_add_epi64(sum));
}

ZP_TARGET_512 std::size_t findCorners512(const std::uint64_t* above, const std::uint64_t* below, std::size_t words,
                                         FoundCorner* out)
{
    alignas(64) static constexpr std::uint8_t kNumbers[64] = {
        0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21,
        22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43,
        44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62, 63};
    const __m512i numbers = _mm512_load_si512(kNumbers), flag = _mm512_set1_epi32(int(FoundCorner::kEndsAbove));
    FoundCorner* const first = out;
    for (std::size_t w = 0; w < words; w += 8) {
        const WidePoints p = widePointsOf(above + w, below + w, wordsLeft(words - w));
        const __m512i any = _mm512_or_si512(p.ends, p.crossings);
        unsigned todo = _mm512_test_epi64_mask(any, any);
        if (!todo) continue;
        alignas(64) std::uint64_t ends[8], crossings[8], uprights[8];
        _mm512_store_si512(ends, p.ends);
        _mm512_store_si512(crossings, p.crossings);
        _mm512_store_si512(uprights, p.above);
        for (; todo; todo &= todo - 1) {
            const std::size_t k = std::size_t(_tzcnt_u32(todo));
            const std::uint32_t column = std::uint32_t(w + k) * 64;
            if (crossings[k]) {
                out = writeCorners({ends[k], crossings[k], uprights[k]}, column, out);
                continue;
            }
            // The numbers of the set bits, side by side, and for each whether border comes from above.
            const __m512i places = _mm512_maskz_compress_epi8(ends[k], numbers);
            const std::uint64_t fromAbove = _pext_u64(uprights[k], ends[k]);
            const int count = int(_mm_popcnt_u64(ends[k]));
            const __m512i base = _mm512_set1_epi32(int(column));
            const auto write = [&](__m128i sixteen, int at) ZP_TARGET_512 {
                const __m512i x = _mm512_add_epi32(_mm512_cvtepu8_epi32(sixteen), base);
                _mm512_storeu_si512(out + at, _mm512_mask_or_epi32(x, __mmask16(fromAbove >> at), x, flag));
            };
            write(_mm512_castsi512_si128(places), 0);
            if (count > 16) {
                write(_mm512_extracti32x4_epi32(places, 1), 16);
                if (count > 32) write(_mm512_extracti32x4_epi32(places, 2), 32);
                if (count > 48) write(_mm512_extracti32x4_epi32(places, 3), 48);
            }
            out += count;
        }
    }
    return std::size_t(out - first);
}

} // namespace
#endif

std::size_t countCorners(const std::uint64_t* above, const std::uint64_t* below, std::size_t words)
{
#if defined(__x86_64__)
    if (haveWideBytes()) return countInWords512(above, below, words);
#endif
    return countInWords(above, below, words);
}

std::size_t findCorners(const std::uint64_t* above, const std::uint64_t* below, std::size_t words, FoundCorner* out)
{
#if defined(__x86_64__)
    if (haveWideBytes()) return findCorners512(above, below, words, out);
#endif
    return findCornersPlain(above, below, words, out);
}

} // namespace zp
