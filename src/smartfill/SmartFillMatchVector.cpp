// SPDX-License-Identifier: GPL-3.0-or-later
/// A step with sixteen neighbours or candidates at a time, for processors that look bytes up in registers (AVX-512
/// VBMI).
#include "smartfill/SmartFillVectorNeighbours.h"
#include <algorithm>
#include <bit>

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

/// One candidate, neighbours side by side.
ZP_VBMI inline void compare(const MatchState& state, const Lanes& l, const DistancePlanes& planes, std::int32_t c,
                            BestMatch& best)
{
    const std::uint32_t* const pixels = state.source + c;
    std::int32_t error;
    if (state.clear[c] > l.reach) {
        const __m512i a = distances(planes, _mm512_i32gather_epi32(l.deltaA, pixels, 4), l.valueA, l.first());
        const __m512i b = distances(planes, _mm512_i32gather_epi32(l.deltaB, pixels, 4), l.valueB, l.second());
        error = total(_mm512_add_epi64(a, b));
    } else {
        const std::uint8_t* const clear = state.clear + c;
        const __m512i lowByte = _mm512_set1_epi32(255), zero = _mm512_setzero_si512();
        const __mmask16 hereA =
            _mm512_mask_test_epi32_mask(l.first(), _mm512_i32gather_epi32(l.deltaA, clear, 1), lowByte);
        const __mmask16 hereB =
            _mm512_mask_test_epi32_mask(l.second(), _mm512_i32gather_epi32(l.deltaB, clear, 1), lowByte);
        error = kMissingPenalty * std::popcount(l.used & ~(hereA | std::uint32_t(hereB) << 16));
        if (error >= best.error) return;
        const __m512i a =
            distances(planes, _mm512_mask_i32gather_epi32(zero, hereA, l.deltaA, pixels, 4), l.valueA, hereA);
        const __m512i b =
            distances(planes, _mm512_mask_i32gather_epi32(zero, hereB, l.deltaB, pixels, 4), l.valueB, hereB);
        error += total(_mm512_add_epi64(a, b));
    }
    if (error < best.error) best = {error, c};
}

/// Candidates are raced with a coarse distance, of which a register pair holds the whole table: never more than the
/// exact one, in units fine enough for the error to be beaten. Those that are still in are then compared exactly.
struct CoarseTable {
    __m512i first, second;  ///< for differences of 0 to 63 and 64 to 127; larger ones count as 127
    std::int32_t limit = 0; ///< a coarse error from here on is not below the error to be beaten; at most 255
};

/// @param error  the one to be beaten
ZP_VBMI inline CoarseTable coarseTable(std::int32_t error)
{
    constexpr int kUnits = 16; // 1 to 32,768: with the last one no error of thirty neighbours exceeds a byte
    static const struct Bytes {
        alignas(64) std::uint8_t of[kUnits][128];
        Bytes()
        {
            for (int unit = 0; unit < kUnits; ++unit)
                for (int d = 0; d < 128; ++d)
                    of[unit][d] = std::uint8_t(std::min(robustDistanceTable()[d] >> unit, 255));
        }
    } bytes;
    // A difference as large as the error may be cut off there, it is out either way.
    int unit = 0;
    while (unit < kUnits - 1 && 255 << unit < error) ++unit;
    return {_mm512_load_si512(bytes.of[unit]), _mm512_load_si512(bytes.of[unit] + 64),
            (error + (1 << unit) - 1) >> unit};
}

/// The coarse distance of one neighbour in sixteen candidates, added to @p error.
ZP_VBMI inline __m512i addCoarse(const CoarseTable& table, __m512i there, __m512i value, __m512i error)
{
    const __m512i difference = _mm512_or_si512(_mm512_subs_epu8(there, value), _mm512_subs_epu8(value, there));
    const __m512i index = _mm512_min_epu8(difference, _mm512_set1_epi8(127));
    return _mm512_dpbusd_epi32(error, _mm512_permutex2var_epi8(table.first, index, table.second), _mm512_set1_epi8(1));
}

constexpr int kRounds = (kRandomTries + 15) / 16;
constexpr int kFew = 8;           ///< so few are better followed one by one than by another stream
constexpr int kLeftToCompare = 4; ///< comparing so few in full costs less than one more round

/// Candidates still in the race, with what the neighbours so far add up to: a lower bound of their errors, for a
/// neighbour without a counterpart costs more than any difference, so whatever lies there may be taken.
struct Contenders {
    __m512i limits;
    int count = 0;
    alignas(64) std::int32_t place[kRounds * 16 + 16], error[kRounds * 16 + 16];

    ZP_VBMI void keep(__mmask16 used, __m512i places, __m512i errors)
    {
        const __mmask16 alive = _mm512_mask_cmplt_epi32_mask(used, errors, limits);
        _mm512_storeu_si512(place + count, _mm512_maskz_compress_epi32(alive, places));
        _mm512_storeu_si512(error + count, _mm512_maskz_compress_epi32(alive, errors));
        count += std::popcount(alive);
    }
};

/// One more neighbour for all contenders, or two: @p first and @p second are indexed by place.
template <bool Two>
ZP_VBMI inline void race(Contenders& c, const CoarseTable& table, const std::uint32_t* first, std::uint32_t firstValue,
                         const std::uint32_t* second, std::uint32_t secondValue)
{
    const int count = c.count;
    const __m512i firstValues = _mm512_set1_epi32(int(firstValue)), secondValues = _mm512_set1_epi32(int(secondValue));
    c.count = 0;
    for (int i = 0; i < count; i += 16) {
        // Lanes beyond the count hold what was dropped or nothing: they must not be followed into memory.
        const __mmask16 used = firstLanes(count - i);
        const __m512i places = _mm512_load_si512(c.place + i);
        __m512i error = _mm512_load_si512(c.error + i);
        error = addCoarse(table, _mm512_mask_i32gather_epi32(firstValues, used, places, first, 4), firstValues, error);
        if (Two)
            error = addCoarse(table, _mm512_mask_i32gather_epi32(secondValues, used, places, second, 4), secondValues,
                              error);
        c.keep(used, places, error);
    }
}

/// All tries from @p next on, sixty-four at a time, by as many of the neighbours close around as it takes to drop most,
/// whose counterparts come as streams. Sums are bytes that stop at 255. @return how many neighbours that were
ZP_VBMI inline int raceStreams(Contenders& c, const CoarseTable& table, const MatchState& state, const Lanes& l,
                               int start, int next)
{
    constexpr int kVectors = (kRandomTries + 63) / 64;
    const __m512i limit = _mm512_set1_epi8(char(table.limit)), most = _mm512_set1_epi8(127);
    __m512i error[kVectors];
    std::uint64_t alive[kVectors];
    for (int i = 0; i < kVectors; ++i) {
        error[i] = _mm512_setzero_si512();
        alive[i] = i * 64 + 64 <= kRandomTries ? ~std::uint64_t{0} : (std::uint64_t{1} << (kRandomTries % 64)) - 1;
    }
    alive[0] &= ~std::uint64_t{0} << next;
    // The known ones around are neighbours 1, 2, ..., in the same order.
    int depth = 0;
    for (unsigned around = l.around; around; around &= around - 1) {
        const auto& planes = state.drawn->around[unsigned(std::countr_zero(around))];
        const std::uint32_t value = l.value[++depth];
        for (int j = 0; j < state.channelCount; ++j) {
            const unsigned channel = state.channels[unsigned(j)];
            const std::uint8_t* const bytes = planes[channel].data() + start;
            const __m512i values = _mm512_set1_epi8(char(value >> (8 * channel)));
            for (int i = 0; i < kVectors; ++i) {
                const __m512i there = _mm512_loadu_si512(bytes + 64 * i);
                const __m512i difference =
                    _mm512_or_si512(_mm512_subs_epu8(there, values), _mm512_subs_epu8(values, there));
                error[i] = _mm512_adds_epu8(
                    error[i], _mm512_permutex2var_epi8(table.first, _mm512_min_epu8(difference, most), table.second));
            }
        }
        int count = 0;
        for (int i = 0; i < kVectors; ++i) {
            alive[i] = _mm512_mask_cmplt_epu8_mask(alive[i], error[i], limit);
            count += std::popcount(alive[i]);
        }
        if (count <= kFew) break;
    }
    alignas(64) std::uint8_t numbers[256 + 64], errors[256 + 64];
    for (int i = 0; i < kVectors; ++i) {
        const __m512i number = _mm512_add_epi8(upTo63(), _mm512_set1_epi8(char(64 * i)));
        _mm512_storeu_si512(numbers + c.count, _mm512_maskz_compress_epi8(alive[i], number));
        _mm512_storeu_si512(errors + c.count, _mm512_maskz_compress_epi8(alive[i], error[i]));
        c.count += std::popcount(alive[i]);
    }
    for (int i = 0; i < c.count; i += 16) {
        const __mmask16 used = firstLanes(c.count - i);
        const __m512i number =
            _mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(used, reinterpret_cast<const __m128i*>(numbers + i)));
        _mm512_store_si512(c.place + i, _mm512_i32gather_epi32(number, state.drawn->place.data() + start, 4));
        _mm512_store_si512(c.error + i,
                           _mm512_cvtepu8_epi32(_mm_load_si128(reinterpret_cast<const __m128i*>(errors + i))));
    }
    return depth;
}

/// The coarse distances of all neighbours of one candidate, in sixteen partial sums.
ZP_VBMI inline __m512i coarseSums(const std::uint32_t* pixels, const Lanes& l, const CoarseTable& table)
{
    // Lanes without a neighbour keep its value, which differs by nothing.
    const __m512i a = _mm512_mask_i32gather_epi32(l.valueA, l.first(), l.deltaA, pixels, 4);
    const __m512i b = _mm512_mask_i32gather_epi32(l.valueB, l.second(), l.deltaB, pixels, 4);
    return addCoarse(table, b, l.valueB, addCoarse(table, a, l.valueA, _mm512_setzero_si512()));
}

/// Adds halves of @p a and halves of @p b, so that each 128-bit lane keeps to its vector.
ZP_VBMI inline __m512i foldPair(__m512i a, __m512i b)
{
    return _mm512_add_epi32(_mm512_shuffle_i64x2(a, b, 0x44), _mm512_shuffle_i64x2(a, b, 0xEE));
}

/// Compares what is left, four at a time: coarsely, which is the end of nearly all, then exactly.
ZP_VBMI inline void compareLast(const MatchState& state, const Lanes& l, const DistancePlanes& planes,
                                const CoarseTable& table, Contenders& c, BestMatch& best)
{
    // What fills up the last four may be any place whose neighbours can be read.
    _mm512_storeu_si512(c.place + c.count, _mm512_set1_epi32(state.layout.index(0, 0)));
    for (int i = 0; i < c.count && best.error; i += 4) {
        __m512i sums[4];
        for (int j = 0; j < 4; ++j) sums[j] = coarseSums(state.source + c.place[i + j], l, table);
        const __m512i low = foldPair(sums[0], sums[1]), high = foldPair(sums[2], sums[3]);
        // 0 0 1 1 and 2 2 3 3, in lanes of four parts each: one lane a candidate, then one number.
        __m512i lanes = _mm512_add_epi32(_mm512_shuffle_i64x2(low, high, 0x88), _mm512_shuffle_i64x2(low, high, 0xDD));
        lanes = _mm512_add_epi32(lanes, _mm512_shuffle_epi32(lanes, _MM_PERM_BADC));
        lanes = _mm512_add_epi32(lanes, _mm512_shuffle_epi32(lanes, _MM_PERM_CDAB));
        unsigned alive = _mm512_cmplt_epi32_mask(lanes, c.limits) & 0x1111u;
        for (; alive; alive &= alive - 1) {
            const int number = i + std::countr_zero(alive) / 4;
            if (number < c.count) compare(state, l, planes, c.place[number], best);
        }
    }
}

ZP_VBMI inline void matchAtRandom(const MatchState& state, const Lanes& l, const DistancePlanes& planes, int start,
                                  BestMatch& best)
{
    const std::int32_t* const place = state.drawn->place.data() + start;
    if (l.count < 2) { // the first will do
        compare(state, l, planes, place[0], best);
        return;
    }
    int next = 0;
    if (best.error == kWorstError) // nothing to drop anyone by: the first few make a start
        for (; next < 16 && best.error; ++next) compare(state, l, planes, place[next], best);
    const CoarseTable table = coarseTable(best.error);
    Contenders c;
    c.limits = _mm512_set1_epi32(table.limit);
    int k = 1;
    if (l.around) {
        k += raceStreams(c, table, state, l, start, next);
    } else {
        for (; next < kRandomTries; next += 16, c.count += 16) {
            _mm512_store_si512(c.place + c.count, _mm512_loadu_si512(place + next));
            _mm512_store_si512(c.error + c.count, _mm512_setzero_si512());
        }
        c.count -= next - kRandomTries;
        race<false>(c, table, state.source + l.delta[k], l.value[k], nullptr, 0);
        ++k;
    }
    for (; k + 1 < l.count && c.count > kLeftToCompare; k += 2)
        race<true>(c, table, state.source + l.delta[k], l.value[k], state.source + l.delta[k + 1], l.value[k + 1]);
    compareLast(state, l, planes, table, c, best);
}

ZP_VBMI BestMatch matchVector(const MatchState& state, int x, int y, int start)
{
    Lanes l;
    __m512i indexA, indexB;
    if (collectInWindow(state, x, y, l) || collectInDisc(state, x, y, l)) {
        const __m512i here = _mm512_set1_epi32(state.layout.index(x, y));
        indexA = _mm512_add_epi32(here, l.deltaA);
        indexB = _mm512_add_epi32(here, l.deltaB);
    } else {
        Neighbourhood near;
        state.known->search(x, y, near);
        if (near.far) return matchPortable(state, near, start); // a handful of steps
        l.count = near.count;
        l.reach = near.reach;
        l.around = 0;
        const std::uint32_t used = firstLanes32(near.count);
        l.deltaA = _mm512_maskz_load_epi32(__mmask16(used), near.delta);
        l.deltaB = _mm512_maskz_load_epi32(__mmask16(used >> 16), near.delta + 16);
        indexA = _mm512_maskz_load_epi32(__mmask16(used), near.index);
        indexB = _mm512_maskz_load_epi32(__mmask16(used >> 16), near.index + 16);
    }
    const std::uint32_t used = firstLanes32(l.count);
    l.used = used & ~1u;
    __m512i candidatesA, candidatesB;
    readTarget(state.target, indexA, __mmask16(used), l.deltaA, l.valueA, candidatesA);
    readTarget(state.target, indexB, __mmask16(used >> 16), l.deltaB, l.valueB, candidatesB);
    const DistancePlanes planes = distancePlanes();
    BestMatch best;

    alignas(64) std::int32_t candidates[32];
    _mm512_store_si512(candidates, candidatesA);
    _mm512_store_si512(candidates + 16, candidatesB);
    // Its own source first; 0 stands for none.
    const std::int32_t own = state.target[state.layout.index(x, y)].filledFrom;
    if (own >= 0) compare(state, l, planes, own, best);
    std::uint32_t left = used & ~equalLanes(candidatesA, candidatesB, 0) & ~equalLanes(candidatesA, candidatesB, own);
    while (left && best.error) {
        const std::int32_t candidate = candidates[std::countr_zero(left)];
        left &= ~equalLanes(candidatesA, candidatesB, candidate);
        if (state.clear[candidate]) compare(state, l, planes, candidate, best);
    }
    if (best.error) {
        _mm512_store_si512(l.delta, l.deltaA);
        _mm512_store_si512(l.delta + 16, l.deltaB);
        _mm512_store_si512(l.value, l.valueA);
        _mm512_store_si512(l.value + 16, l.valueB);
        matchAtRandom(state, l, planes, start, best);
    }
    return best;
}

} // namespace

MatchStep bestMatchStep()
{
    static const bool vector = __builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512vbmi2") &&
                               __builtin_cpu_supports("avx512vnni") && __builtin_cpu_supports("avx512vl") &&
                               __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq") &&
                               __builtin_cpu_supports("bmi2");
    return vector ? MatchStep{matchVector} : MatchStep{matchPortable};
}
#else
MatchStep bestMatchStep() { return matchPortable; }
#endif

} // namespace zp
