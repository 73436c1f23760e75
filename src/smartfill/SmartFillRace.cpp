// SPDX-License-Identifier: GPL-3.0-or-later
/// Coarse distances looked up sixteen bytes of a table at a time, which every vector unit can.
#include "smartfill/SmartFillRace.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "smartfill/SmartFillRace.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

/// The table as two registers, each repeated in every block of sixteen bytes.
template <class D8>
struct Table {
    hn::Vec<D8> low, high;

    explicit HWY_INLINE Table(const CoarseDistance& distance)
        : low(hn::LoadDup128(D8(), distance.of)), high(hn::LoadDup128(D8(), distance.of + 16))
    {
    }
    HWY_INLINE hn::Vec<D8> operator()(hn::Vec<D8> a, hn::Vec<D8> b) const
    {
        const D8 d;
        const hn::Repartition<std::uint16_t, D8> d16;
        const auto difference = hn::Min(hn::Sub(hn::Max(a, b), hn::Min(a, b)), hn::Set(d, 127));
        // A fourth of it: bits that come over from the byte above are cut off.
        const auto index = hn::And(hn::BitCast(d, hn::ShiftRight<2>(hn::BitCast(d16, difference))), hn::Set(d, 31));
        const auto first = hn::Set(d, 16);
        const auto isHigh = hn::Eq(hn::And(index, first), first);
        const auto part = hn::And(index, hn::Set(d, 15));
        return hn::IfThenElse(isHigh, hn::TableLookupBytes(high, part), hn::TableLookupBytes(low, part));
    }
};

int raceStreams(const NeighbourStreams& streams, const CoarseDistance& distance, const std::int32_t* place,
                Contenders& contenders)
{
    const hn::CappedTag<std::uint8_t, 64> d;
    const std::size_t lanes = hn::Lanes(d);
    const Table<decltype(d)> table(distance);
    const auto limit = hn::Set(d, std::uint8_t(distance.limit - 1));
    constexpr std::size_t kBytes = (kRandomTries + 63) / 64 * 64;
    alignas(64) std::uint8_t errors[kBytes] = {};
    std::uint64_t alive[kBytes / 64];
    int depth = 0;
    while (depth < streams.count) {
        for (int channel = 0; channel < streams.channels; ++channel) {
            const std::uint8_t* const bytes = streams.bytes[depth][channel];
            const auto value = hn::Set(d, streams.value[depth][channel]);
            for (std::size_t i = 0; i < kBytes; i += lanes)
                hn::Store(hn::SaturatedAdd(hn::Load(d, errors + i), table(hn::LoadU(d, bytes + i), value)), d,
                          errors + i);
        }
        ++depth;
        int count = 0;
        std::memset(alive, 0, sizeof alive);
        for (std::size_t i = 0; i < kBytes; i += lanes) {
            const auto error = hn::Load(d, errors + i);
            std::uint8_t bits[8] = {};
            hn::StoreMaskBits(d, hn::Eq(hn::Min(error, limit), error), bits);
            std::uint64_t word;
            std::memcpy(&word, bits, sizeof word);
            alive[i / 64] |= word << (i % 64);
        }
        alive[kBytes / 64 - 1] &= ~std::uint64_t{0} >> (kBytes - kRandomTries);
        for (const std::uint64_t word : alive) count += std::popcount(word);
        if (count <= kFewContenders) break;
    }
    contenders.count = 0;
    for (std::size_t i = 0; i < kBytes / 64; ++i)
        for (std::uint64_t left = alive[i]; left; left &= left - 1) {
            const std::size_t number = 64 * i + std::size_t(std::countr_zero(left));
            contenders.place[contenders.count] = place[number];
            contenders.error[contenders.count++] = errors[number];
        }
    return depth;
}

void raceOn(const RacedNeighbours& neighbours, const CoarseDistance& distance, Contenders& contenders)
{
    const hn::CappedTag<std::int32_t, 16> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    const hn::Repartition<std::uint8_t, decltype(d)> d8;
    const Table<decltype(d8)> table(distance);
    const auto limit = hn::Set(d, distance.limit);
    const auto everyOther = hn::Set(du, 0x00FF00FFu), low = hn::Set(du, 0xFFFFu);
    const int lanes = int(hn::Lanes(d));
    // Lanes beyond the count hold what was dropped or nothing: they must not be followed into memory.
    const auto placesFrom = [&](int i, auto used) ZP_LANES {
        return hn::IfThenElse(used, hn::LoadU(d, contenders.place + i), hn::Set(d, contenders.place[i]));
    };
    // What neighbours k and k + 1 add for the candidates at some places.
    const auto ofTwo = [&](int k, auto places) ZP_LANES {
        const auto of = [&](int j) ZP_LANES {
            const auto there = hn::GatherIndex(du, neighbours.source + neighbours.delta[j], places);
            return hn::BitCast(du, table(hn::BitCast(d8, there), hn::BitCast(d8, hn::Set(du, neighbours.value[j]))));
        };
        const auto a = of(k), b = of(k + 1);
        const auto two = hn::Add(hn::Add(hn::And(a, everyOther), hn::And(hn::ShiftRight<8>(a), everyOther)),
                                 hn::Add(hn::And(b, everyOther), hn::And(hn::ShiftRight<8>(b), everyOther)));
        return hn::BitCast(d, hn::And(hn::Add(two, hn::ShiftRight<16>(two)), low));
    };
    // Whole vectors are kept, which reach no lane that is still to be read: some processors are slow to store a part.
    const auto keep = [&](auto alive, auto places, auto error) ZP_LANES {
        hn::StoreU(hn::Compress(places, alive), d, contenders.place + contenders.count);
        hn::StoreU(hn::Compress(error, alive), d, contenders.error + contenders.count);
        contenders.count += int(hn::CountTrue(d, alive));
    };

    int k = neighbours.first;
    for (; k + 1 < neighbours.end && contenders.count > lanes; k += 2) {
        const int count = contenders.count;
        contenders.count = 0;
        for (int i = 0; i < count; i += lanes) {
            const auto used = hn::FirstN(d, std::size_t(std::min(lanes, count - i)));
            const auto places = placesFrom(i, used);
            const auto error = hn::Add(hn::LoadU(d, contenders.error + i), ofTwo(k, places));
            keep(hn::And(used, hn::Lt(error, limit)), places, error);
        }
    }
    if (contenders.count <= kFewContenders || contenders.count > lanes) return;
    // The last ones need not leave the registers.
    auto alive = hn::FirstN(d, std::size_t(contenders.count));
    const auto places = placesFrom(0, alive);
    auto error = hn::LoadU(d, contenders.error);
    for (; k + 1 < neighbours.end && int(hn::CountTrue(d, alive)) > kFewContenders; k += 2) {
        error = hn::Add(error, ofTwo(k, places));
        alive = hn::And(alive, hn::Lt(error, limit));
    }
    contenders.count = 0;
    keep(alive, places, error);
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(raceStreams);
HWY_EXPORT(raceOn);

CoarseDistance::CoarseDistance(std::int32_t error)
{
    constexpr int kUnits = 16; // 1 to 32,768: with the last one no error of thirty neighbours exceeds a byte
    static const auto tables = [] {
        std::array<std::array<std::uint8_t, 32>, kUnits> made{};
        for (std::size_t unit = 0; unit < kUnits; ++unit)
            for (std::size_t i = 0; i < 32; ++i)
                made[unit][i] = std::uint8_t(std::min(robustDistanceTable()[4 * i] >> unit, 255));
        return made;
    }();
    // A difference as large as the error may be cut off at the byte's end, it is out either way.
    int unit = 0;
    while (unit < kUnits - 1 && 255 << unit < error) ++unit;
    std::copy(tables[std::size_t(unit)].begin(), tables[std::size_t(unit)].end(), of);
    limit = (error + (1 << unit) - 1) >> unit;
}

int raceStreams(const NeighbourStreams& streams, const CoarseDistance& distance, const std::int32_t* place,
                Contenders& contenders)
{
    return HWY_DYNAMIC_DISPATCH(raceStreams)(streams, distance, place, contenders);
}

void raceOn(const RacedNeighbours& neighbours, const CoarseDistance& distance, Contenders& contenders)
{
    HWY_DYNAMIC_DISPATCH(raceOn)(neighbours, distance, contenders);
}

} // namespace zp
#endif
