// SPDX-License-Identifier: GPL-3.0-or-later
/// The comparison of sixteen neighbours at a time, for processors that look bytes up in registers (AVX-512 VBMI).
#include "smartfill/SmartFillMatch.h"
#if defined(__x86_64__) && defined(__GNUC__)
// The compiler's own header gives unused lanes from a variable set to itself, and warns of it.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <immintrin.h>
#define ZP_VBMI __attribute__((target("avx512f,avx512bw,avx512dq,avx512vl,avx512vbmi,bmi,bmi2,popcnt,lzcnt")))
#endif

namespace zp
{

#ifdef ZP_VBMI
namespace
{

/// The robust distance of a byte difference in 16 bits, as planes of low and high bytes of 64 entries a register.
struct DistancePlanes {
    __m512i low[4], high[4];
};

ZP_VBMI inline DistancePlanes distancePlanes()
{
    alignas(64) static const auto bytes = [] {
        struct {
            std::uint8_t low[256], high[256];
        } planes;
        for (int d = 0; d < 256; ++d) {
            planes.low[d] = std::uint8_t(robustDistanceTable()[d]);
            planes.high[d] = std::uint8_t(robustDistanceTable()[d] >> 8); // at most 65418
        }
        return planes;
    }();
    DistancePlanes planes;
    for (int i = 0; i < 4; ++i) {
        planes.low[i] = _mm512_loadu_si512(bytes.low + 64 * i);
        planes.high[i] = _mm512_loadu_si512(bytes.high + 64 * i);
    }
    return planes;
}

/// Eight partial sums of the distances between the pixels of @p a and @p b in the lanes of @p used.
ZP_VBMI inline __m512i distances(const DistancePlanes& planes, __m512i a, __m512i b, __mmask16 used)
{
    const __m512i difference = _mm512_maskz_or_epi32(used, _mm512_subs_epu8(a, b), _mm512_subs_epu8(b, a));
    const __mmask64 large = _mm512_movepi8_mask(difference);
    const __m512i low =
        _mm512_mask_blend_epi8(large, _mm512_permutex2var_epi8(planes.low[0], difference, planes.low[1]),
                               _mm512_permutex2var_epi8(planes.low[2], difference, planes.low[3]));
    const __m512i high =
        _mm512_mask_blend_epi8(large, _mm512_permutex2var_epi8(planes.high[0], difference, planes.high[1]),
                               _mm512_permutex2var_epi8(planes.high[2], difference, planes.high[3]));
    const __m512i zero = _mm512_setzero_si512();
    return _mm512_add_epi64(_mm512_sad_epu8(low, zero), _mm512_slli_epi64(_mm512_sad_epu8(high, zero), 8));
}

ZP_VBMI inline std::int32_t total(__m512i sums) { return std::int32_t(_mm512_reduce_add_epi64(sums)); }

ZP_VBMI void searchVector(const MatchSource& source, const Neighbourhood& near, const std::int32_t* candidates,
                          int count, BestMatch& best)
{
    if (near.far) { // a handful of steps
        searchPortable(source, near, candidates, count, best);
        return;
    }
    const DistancePlanes planes = distancePlanes();
    const std::uint32_t lanes = near.count >= 1 ? ((std::uint64_t{1} << near.count) - 1) & ~std::uint32_t{1} : 0;
    const __mmask16 first = __mmask16(lanes), second = __mmask16(lanes >> 16);
    const __m512i zero = _mm512_setzero_si512();
    const __m512i deltaA = _mm512_maskz_load_epi32(first, near.delta),
                  deltaB = _mm512_maskz_load_epi32(second, near.delta + 16);
    const __m512i valueA = _mm512_maskz_load_epi32(first, near.value),
                  valueB = _mm512_maskz_load_epi32(second, near.value + 16);
    for (int i = 0; i < count && best.error; ++i) {
        const std::int32_t c = candidates[i];
        const std::uint32_t* const pixels = source.pixels + c;
        std::int32_t error;
        if (source.clear[c] > near.reach) {
            const __m512i a = distances(planes, _mm512_i32gather_epi32(deltaA, pixels, 4), valueA, first);
            error = total(a);
            if (error >= best.error || !second) {
                if (error < best.error) best = {error, c};
                continue;
            }
            error += total(distances(planes, _mm512_i32gather_epi32(deltaB, pixels, 4), valueB, second));
        } else {
            const std::uint8_t* const clear = source.clear + c;
            const __m512i lowByte = _mm512_set1_epi32(255);
            const __mmask16 hereA =
                _mm512_mask_test_epi32_mask(first, _mm512_i32gather_epi32(deltaA, clear, 1), lowByte);
            const __mmask16 hereB =
                _mm512_mask_test_epi32_mask(second, _mm512_i32gather_epi32(deltaB, clear, 1), lowByte);
            error =
                kMissingPenalty * (__builtin_popcount(lanes) - __builtin_popcount(hereA) - __builtin_popcount(hereB));
            if (error >= best.error) continue;
            const __m512i a =
                distances(planes, _mm512_mask_i32gather_epi32(zero, hereA, deltaA, pixels, 4), valueA, hereA);
            const __m512i b =
                distances(planes, _mm512_mask_i32gather_epi32(zero, hereB, deltaB, pixels, 4), valueB, hereB);
            error += total(_mm512_add_epi64(a, b));
        }
        if (error < best.error) best = {error, c};
    }
}

} // namespace

MatchSearch bestMatchSearch()
{
    static const bool vector = __builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512vl") &&
                               __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq");
    return vector ? searchVector : searchPortable;
}
#else
MatchSearch bestMatchSearch() { return searchPortable; }
#endif

} // namespace zp
