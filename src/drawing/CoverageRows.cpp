// SPDX-License-Identifier: GPL-3.0-or-later
/// Coverage out of area, and coverage into masks.
#include "drawing/CoverageRows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/CoverageRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

void coverBlock(const std::int32_t* areas, std::uint8_t* cover, bool evenOdd)
{
    const hn::CappedTag<std::int32_t, kCoverBlock> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    const hn::Rebind<std::uint8_t, decltype(d)> bytes;
    const auto whole = hn::Set(du, std::uint32_t(kWholeArea)), two = hn::Set(du, std::uint32_t(2 * kWholeArea));
    const auto half = hn::Set(du, std::uint32_t(kWholeArea / 2)), fold = hn::Set(du, std::uint32_t(2 * kWholeArea - 1));
    for (int i = 0; i < kCoverBlock; i += int(hn::Lanes(d))) {
        // The least number stays as it is, which is right for its size without a sign.
        auto size = hn::BitCast(du, hn::Abs(hn::LoadU(d, areas + i)));
        if (evenOdd) {
            size = hn::And(size, fold);
            size = hn::Min(size, hn::Sub(two, size));
        } else {
            size = hn::Min(size, whole);
        }
        const auto share = hn::Add(hn::Sub(hn::ShiftLeft<8>(size), size), half);
        hn::StoreU(hn::DemoteTo(bytes, hn::BitCast(d, hn::ShiftRight<kAreaBits>(share))), bytes, cover + i);
    }
}

void moveTowards(std::uint8_t* bytes, const std::uint8_t* cover, int count, std::uint8_t value)
{
    const hn::ScalableTag<std::uint8_t> d;
    const hn::Repartition<std::uint16_t, decltype(d)> d16;
    const auto low = hn::Set(d16, 255), aim = hn::Set(d16, value);
    int i = 0;
    for (const int lanes = int(hn::Lanes(d)); i + lanes <= count; i += lanes) {
        const auto here = hn::BitCast(d16, hn::LoadU(d, bytes + i)), share = hn::BitCast(d16, hn::LoadU(d, cover + i));
        const auto mixed = [&](auto byte, auto part) ZP_LANES {
            return divide255(d16, hn::Add(hn::Mul(aim, part), hn::Mul(byte, hn::Sub(low, part))));
        };
        const auto even = mixed(hn::And(here, low), hn::And(share, low));
        const auto odd = mixed(hn::ShiftRight<8>(here), hn::ShiftRight<8>(share));
        hn::StoreU(hn::BitCast(d, hn::Or(even, hn::ShiftLeft<8>(odd))), d, bytes + i);
    }
    for (; i < count; ++i) bytes[i] = movedTowards(bytes[i], cover[i], value);
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(coverBlock);
HWY_EXPORT(moveTowards);

void coverBlock(const std::int32_t* areas, std::uint8_t* cover, bool evenOdd)
{
    HWY_DYNAMIC_DISPATCH(coverBlock)(areas, cover, evenOdd);
}

void moveTowards(std::uint8_t* bytes, const std::uint8_t* cover, int count, std::uint8_t value)
{
    // Stretches of an edge are mostly shorter than this: not worth the way to the vector loop.
    constexpr int kShort = 12;
    if (count >= kShort) return HWY_DYNAMIC_DISPATCH(moveTowards)(bytes, cover, count, value);
    for (int i = 0; i < count; ++i) bytes[i] = movedTowards(bytes[i], cover[i], value);
}

} // namespace zp
#endif
