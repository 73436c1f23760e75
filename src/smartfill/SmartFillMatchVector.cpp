// SPDX-License-Identifier: GPL-3.0-or-later
/// The comparison of sixteen neighbours at a time, for processors that look bytes up in registers (AVX-512 VBMI).
#include "smartfill/SmartFillMatch.h"
#include "smartfill/SmartFillRandom.h"
#include <algorithm>
#include <utility>
#if defined(__x86_64__) && defined(__GNUC__)
// The compiler's own header gives unused lanes from a variable set to itself, and warns of it.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <immintrin.h>
#define ZP_VBMI                                                                                                        \
    __attribute__((target("avx512f,avx512bw,avx512dq,avx512vl,avx512vbmi,avx512vnni,bmi,bmi2,popcnt,lzcnt")))
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

struct PlaneBytes {
    __m512i low, high;
};

ZP_VBMI inline PlaneBytes lookUp(const DistancePlanes& planes, __m512i difference)
{
    const __mmask64 large = _mm512_movepi8_mask(difference);
    return {_mm512_mask_blend_epi8(large, _mm512_permutex2var_epi8(planes.low[0], difference, planes.low[1]),
                                   _mm512_permutex2var_epi8(planes.low[2], difference, planes.low[3])),
            _mm512_mask_blend_epi8(large, _mm512_permutex2var_epi8(planes.high[0], difference, planes.high[1]),
                                   _mm512_permutex2var_epi8(planes.high[2], difference, planes.high[3]))};
}

/// Eight partial sums of the distances between the pixels of @p a and @p b in the lanes of @p used.
ZP_VBMI inline __m512i distances(const DistancePlanes& planes, __m512i a, __m512i b, __mmask16 used)
{
    const __m512i difference = _mm512_maskz_or_epi32(used, _mm512_subs_epu8(a, b), _mm512_subs_epu8(b, a));
    const PlaneBytes bytes = lookUp(planes, difference);
    const __m512i zero = _mm512_setzero_si512();
    return _mm512_add_epi64(_mm512_sad_epu8(bytes.low, zero), _mm512_slli_epi64(_mm512_sad_epu8(bytes.high, zero), 8));
}

ZP_VBMI inline std::int32_t total(__m512i sums) { return std::int32_t(_mm512_reduce_add_epi64(sums)); }

/// What a step compares its candidates with, in registers.
struct Lanes {
    std::uint32_t used;
    __mmask16 first, second;
    __m512i deltaA, deltaB, valueA, valueB;
};

ZP_VBMI inline Lanes lanesOf(const Neighbourhood& near)
{
    Lanes l;
    l.used = std::uint32_t(((std::uint64_t{1} << near.count) - 1) &
                           ~std::uint64_t{1}); // the pixel itself counts for nothing
    l.first = __mmask16(l.used);
    l.second = __mmask16(l.used >> 16);
    l.deltaA = _mm512_maskz_load_epi32(l.first, near.delta);
    l.deltaB = _mm512_maskz_load_epi32(l.second, near.delta + 16);
    l.valueA = _mm512_maskz_load_epi32(l.first, near.value);
    l.valueB = _mm512_maskz_load_epi32(l.second, near.value + 16);
    return l;
}

/// One candidate, neighbours side by side.
ZP_VBMI inline void compare(const MatchSource& source, const Neighbourhood& near, const Lanes& l,
                            const DistancePlanes& planes, std::int32_t c, BestMatch& best)
{
    const std::uint32_t* const pixels = source.pixels + c;
    std::int32_t error;
    if (source.clear[c] > near.reach) {
        error = total(distances(planes, _mm512_i32gather_epi32(l.deltaA, pixels, 4), l.valueA, l.first));
        if (error >= best.error) return;
        if (l.second)
            error += total(distances(planes, _mm512_i32gather_epi32(l.deltaB, pixels, 4), l.valueB, l.second));
    } else {
        const std::uint8_t* const clear = source.clear + c;
        const __m512i lowByte = _mm512_set1_epi32(255), zero = _mm512_setzero_si512();
        const __mmask16 hereA =
            _mm512_mask_test_epi32_mask(l.first, _mm512_i32gather_epi32(l.deltaA, clear, 1), lowByte);
        const __mmask16 hereB =
            _mm512_mask_test_epi32_mask(l.second, _mm512_i32gather_epi32(l.deltaB, clear, 1), lowByte);
        error = kMissingPenalty * __builtin_popcount(l.used & ~(hereA | std::uint32_t(hereB) << 16));
        if (error >= best.error) return;
        const __m512i a =
            distances(planes, _mm512_mask_i32gather_epi32(zero, hereA, l.deltaA, pixels, 4), l.valueA, hereA);
        const __m512i b =
            distances(planes, _mm512_mask_i32gather_epi32(zero, hereB, l.deltaB, pixels, 4), l.valueB, hereB);
        error += total(_mm512_add_epi64(a, b));
    }
    if (error < best.error) best = {error, c};
}

ZP_VBMI void searchVector(const MatchSource& source, const Neighbourhood& near, const std::int32_t* candidates,
                          int count, BestMatch& best)
{
    if (near.far) { // a handful of steps
        searchPortable(source, near, candidates, count, best);
        return;
    }
    const DistancePlanes planes = distancePlanes();
    const Lanes lanes = lanesOf(near);
    for (int i = 0; i < count && best.error; ++i) compare(source, near, lanes, planes, candidates[i], best);
}

/// SmartFillRandom::mix for sixteen indices at once, which come multiplied by its stride.
ZP_VBMI inline __m512i mix(std::uint32_t key, __m512i strides)
{
    __m512i x = _mm512_xor_si512(_mm512_set1_epi32(int(key)), strides);
    x = _mm512_mullo_epi32(_mm512_xor_si512(x, _mm512_srli_epi32(x, 16)),
                           _mm512_set1_epi32(int(SmartFillRandom::kMultiplier)));
    return _mm512_xor_si512(x, _mm512_srli_epi32(x, 15));
}

/// SmartFillRandom::scaled for sixteen numbers at once.
ZP_VBMI inline __m512i scaled(__m512i number, std::uint32_t length)
{
    const __m512i by = _mm512_set1_epi64(length);
    const __m512i even = _mm512_srli_epi64(_mm512_mul_epu32(number, by), 32);
    const __m512i odd = _mm512_mul_epu32(_mm512_srli_epi64(number, 32), by);
    return _mm512_mask_blend_epi32(0xAAAA, even, odd);
}

constexpr int kMostTries = 208;
/// Comparing so few in full costs less than one more round.
constexpr int kLeftToCompare = 8;

/// Candidates still in the race, with what the neighbours so far add up to.
struct Contenders {
    alignas(64) std::int32_t place[kMostTries + 16], error[kMostTries + 16];
};

/// Neighbour @p k of a step, ready to be compared with that of sixteen candidates.
struct Probe {
    const std::uint32_t* pixels;
    __m512i value;
};

ZP_VBMI inline Probe probeOf(const MatchSource& source, const Neighbourhood& near, int k)
{
    return {source.pixels + near.delta[k], _mm512_set1_epi32(int(near.value[k]))};
}

/// Adds the probe's distance to the candidates' errors and keeps those of @p used that stay below the limit, in order,
/// from @p kept on. A neighbour without a counterpart costs more than any difference, so taking whatever lies there
/// gives a lower bound. @return where the next ones are kept
ZP_VBMI inline int keepBelow(const DistancePlanes& planes, const Probe& probe, __m512i limits, __mmask16 used,
                             __m512i place, __m512i error, Contenders& c, int kept)
{
    const __m512i zero = _mm512_setzero_si512(), ones = _mm512_set1_epi8(1);
    const __m512i there = _mm512_i32gather_epi32(place, probe.pixels, 4);
    const __m512i difference =
        _mm512_or_si512(_mm512_subs_epu8(there, probe.value), _mm512_subs_epu8(probe.value, there));
    const PlaneBytes bytes = lookUp(planes, difference);
    const __m512i high = _mm512_slli_epi32(_mm512_dpbusd_epi32(zero, bytes.high, ones), 8);
    error = _mm512_add_epi32(_mm512_dpbusd_epi32(error, bytes.low, ones), high);
    const __mmask16 alive = _mm512_mask_cmplt_epi32_mask(used, error, limits);
    _mm512_storeu_si512(c.place + kept, _mm512_maskz_compress_epi32(alive, place));
    _mm512_storeu_si512(c.error + kept, _mm512_maskz_compress_epi32(alive, error));
    return kept + __builtin_popcount(alive);
}

inline __mmask16 firstLanes(int count) { return count >= 16 ? __mmask16(0xFFFF) : __mmask16((1u << count) - 1); }

ZP_VBMI void searchRandomVector(const MatchSource& source, const Neighbourhood& near, std::uint32_t key, int tries,
                                BestMatch& best)
{
    if (near.far || tries > kMostTries || near.count < 2) {
        searchRandomPortable(source, near, key, tries, best);
        return;
    }
    const DistancePlanes planes = distancePlanes();
    const __m512i upTo15 = _mm512_set_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
    const __m512i strides = _mm512_mullo_epi32(upTo15, _mm512_set1_epi32(int(SmartFillRandom::kStride)));
    // Draws and comparisons are loops of their own: each gather then waits for its own cache misses only.
    alignas(64) std::int32_t places[kMostTries];
    for (int i = 0; i < tries; i += 16) {
        const __m512i number =
            mix(key, _mm512_add_epi32(strides, _mm512_set1_epi32(int(SmartFillRandom::kStride * std::uint32_t(i)))));
        _mm512_store_si512(places + i, _mm512_i32gather_epi32(scaled(number, source.listLength), source.list, 4));
    }
    int next = 0;
    if (best.error == kWorstError) { // nothing to drop anyone by: the first few make a start
        const Lanes lanes = lanesOf(near);
        for (next = 0; next < std::min(tries, 16); ++next) compare(source, near, lanes, planes, places[next], best);
    }
    const __m512i limits = _mm512_set1_epi32(best.error);
    Contenders c;
    int count = 0;
    for (const Probe nearest = probeOf(source, near, 1); next < tries; next += 16)
        count = keepBelow(planes, nearest, limits, firstLanes(tries - next), _mm512_load_si512(places + next),
                          _mm512_setzero_si512(), c, count);
    for (int k = 2; k < near.count && count > kLeftToCompare; ++k) {
        const Probe probe = probeOf(source, near, k);
        // Lanes beyond the count hold what was dropped or nothing: they must not be followed into memory.
        int kept = 0;
        for (int i = 0; i < count; i += 16) {
            const __mmask16 used = firstLanes(count - i);
            kept = keepBelow(planes, probe, limits, used, _mm512_maskz_load_epi32(used, c.place + i),
                             _mm512_load_si512(c.error + i), c, kept);
        }
        count = kept;
    }
    if (!count) return;
    const Lanes lanes = lanesOf(near);
    for (int i = 0; i < count && best.error; ++i) compare(source, near, lanes, planes, c.place[i], best);
}

} // namespace

MatchSearch bestMatchSearch()
{
    static const bool vector = __builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512vnni") &&
                               __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512bw") &&
                               __builtin_cpu_supports("avx512dq");
    return vector ? MatchSearch{searchVector, searchRandomVector} : kPortableSearch;
}
#else
MatchSearch bestMatchSearch() { return kPortableSearch; }
#endif

} // namespace zp
