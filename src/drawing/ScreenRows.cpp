// SPDX-License-Identifier: GPL-3.0-or-later
/// Pixels over grey, in the screen's byte order.
#include "drawing/ScreenRows.h"
#include <bit>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/ScreenRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

static_assert(std::endian::native == std::endian::little, "alpha is taken from the low byte of a pixel's word");

/// The picture's byte order to the screen's.
template <class D>
HWY_INLINE hn::Vec<D> turnedAround(D d, hn::Vec<D> pixels)
{
    const hn::Repartition<std::uint8_t, D> d8;
    HWY_ALIGN static constexpr std::uint8_t kBackwards[16] = {3, 2, 1, 0, 7, 6, 5, 4, 11, 10, 9, 8, 15, 14, 13, 12};
    return hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(d8, pixels), hn::LoadDup128(d8, kBackwards)));
}

void convertToScreen(const std::uint32_t* pixels, std::uint32_t* out, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        const Wide16<decltype(d)> d16;
        // Grey behind the picture, as a byte: half of 255, rounded.
        constexpr std::uint16_t kGray = 128;
        const auto v = hn::LoadU(d, pixels + at);
        const auto clear = hn::Sub(hn::Set(d16, 255), alphaOf(d, v));
        const auto gray = hn::BitCast(d, divide255(d16, hn::Mul(clear, hn::Set(d16, kGray))));
        // The grey to the three colours; the colour is at most alpha, so no byte overflows. Alpha becomes 255.
        const auto bytes = hn::Or(gray, hn::ShiftLeft<8>(gray));
        const auto sum = hn::Or(hn::Add(v, hn::AndNot(hn::Set(d, 255), bytes)), hn::Set(d, 255));
        hn::StoreU(turnedAround(d, sum), d, out + at);
    });
}

void layOnScreen(const std::uint32_t* pixels, std::uint32_t* out, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        const Wide16<decltype(d)> d16;
        const auto v = hn::LoadU(d, pixels + at);
        const auto through = hn::Sub(hn::Set(d16, 255), alphaOf(d, v));
        const auto behind = narrow(d, scaled(d, widen(d, hn::LoadU(d, out + at)), through));
        hn::StoreU(hn::Or(hn::Add(turnedAround(d, v), behind), hn::Set(d, 0xFF000000u)), d, out + at);
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(convertToScreen);
HWY_EXPORT(layOnScreen);

void convertToScreen(const std::uint32_t* pixels, std::uint32_t* out, int count)
{
    HWY_DYNAMIC_DISPATCH(convertToScreen)(pixels, out, count);
}

void layOnScreen(const std::uint32_t* pixels, std::uint32_t* out, int count)
{
    HWY_DYNAMIC_DISPATCH(layOnScreen)(pixels, out, count);
}

} // namespace zp
#endif
