// SPDX-License-Identifier: GPL-3.0-or-later
/// The small loops of a smart fill.
#include "smartfill/SmartFillRows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "smartfill/SmartFillRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

int commonBits(const std::uint64_t* a, const std::uint64_t* b, int count)
{
    const hn::ScalableTag<std::uint64_t> d;
    const int lanes = int(hn::Lanes(d));
    auto sum = hn::Zero(d);
    int i = 0;
    for (; i + lanes <= count; i += lanes)
        sum = hn::Add(sum, hn::PopulationCount(hn::And(hn::LoadU(d, a + i), hn::LoadU(d, b + i))));
    std::uint64_t bits = hn::GetLane(hn::SumOfLanes(d, sum));
    const hn::CappedTag<std::uint64_t, 1> one;
    for (; i < count; ++i)
        bits += hn::GetLane(hn::PopulationCount(hn::And(hn::LoadU(one, a + i), hn::LoadU(one, b + i))));
    return int(bits);
}

void rankKeys(const std::uint32_t* keys, int count, std::uint32_t* ranks)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        const auto key = hn::LoadU(d, keys + at);
        auto less = hn::Zero(d);
        for (int j = 0; j < count; ++j) less = hn::Sub(less, hn::VecFromMask(d, hn::Lt(hn::Set(d, keys[j]), key)));
        hn::StoreU(less, d, ranks + at);
    });
}

void growFrom(const std::uint8_t* done, std::uint8_t* row, int width)
{
    forEachVector<std::uint8_t>(std::size_t(width), [=](auto d, std::size_t at) ZP_LANES {
        const auto sides = hn::Min(hn::LoadU(d, done + at - 1), hn::LoadU(d, done + at + 1));
        const auto least = hn::Min(sides, hn::LoadU(d, done + at));
        hn::StoreU(hn::Min(hn::LoadU(d, row + at), hn::SaturatedAdd(least, hn::Set(d, 1))), d, row + at);
    });
}

void takePixels(const std::uint32_t* pixels, const std::int32_t* place, int count,
                const std::array<std::uint8_t*, 4>& bytes)
{
    forEachVector<std::uint32_t>(std::size_t(count), [&](auto d, std::size_t at) ZP_LANES {
        const hn::RebindToSigned<decltype(d)> whole;
        const hn::Rebind<std::uint8_t, decltype(d)> byte;
        const auto pixel = hn::GatherIndex(d, pixels, hn::LoadU(whole, place + at)), low = hn::Set(d, 255);
        const auto put = [&](auto lane, std::uint8_t* to)
                             ZP_LANES { hn::StoreU(hn::DemoteTo(byte, hn::BitCast(whole, lane)), byte, to + at); };
        put(hn::And(pixel, low), bytes[0]);
        put(hn::And(hn::ShiftRight<8>(pixel), low), bytes[1]);
        put(hn::And(hn::ShiftRight<16>(pixel), low), bytes[2]);
        put(hn::ShiftRight<24>(pixel), bytes[3]);
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(commonBits);
HWY_EXPORT(rankKeys);
HWY_EXPORT(growFrom);
HWY_EXPORT(takePixels);

int commonBits(const std::uint64_t* a, const std::uint64_t* b, int count)
{
    return HWY_DYNAMIC_DISPATCH(commonBits)(a, b, count);
}
void rankKeys(const std::uint32_t* keys, int count, std::uint32_t* ranks)
{
    HWY_DYNAMIC_DISPATCH(rankKeys)(keys, count, ranks);
}
void growFrom(const std::uint8_t* done, std::uint8_t* row, int width)
{
    HWY_DYNAMIC_DISPATCH(growFrom)(done, row, width);
}
void takePixels(const std::uint32_t* pixels, const std::int32_t* place, int count,
                const std::array<std::uint8_t*, 4>& bytes)
{
    HWY_DYNAMIC_DISPATCH(takePixels)(pixels, place, count, bytes);
}

} // namespace zp
#endif
