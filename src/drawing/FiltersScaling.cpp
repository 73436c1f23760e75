// SPDX-License-Identifier: GPL-3.0-or-later
/// Wide rows at half and double the size.
#include "drawing/FiltersScaling.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/FiltersScaling.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

using filters::kWideBits;
using filters::Wide;

/// Calls f(tag, pixel) for every pixel, 64 bits each: in whole vectors, then one by one.
template <class F>
HWY_INLINE void forEachWidePixel(int count, F&& f)
{
    const hn::ScalableTag<std::uint64_t> d;
    const int lanes = int(hn::Lanes(d));
    int x = 0;
    for (; x + lanes <= count; x += lanes) f(d, x);
    const hn::CappedTag<std::uint64_t, 1> one;
    for (; x < count; ++x) f(one, x);
}

/// Samples without a sign, so that four of them add up within 16 bits.
template <class D>
HWY_INLINE hn::Vec<Wide16<D>> load(D, const Wide* row)
{
    return hn::LoadU(Wide16<D>(), reinterpret_cast<const std::uint16_t*>(row));
}
template <class D>
HWY_INLINE void store(D, hn::Vec<Wide16<D>> v, Wide* row)
{
    hn::StoreU(v, Wide16<D>(), reinterpret_cast<std::uint16_t*>(row));
}

/// (3 near + far + 2) / 4.
template <class D16, class V = hn::Vec<D16>>
HWY_INLINE V threeToOne(D16 d, V near, V far)
{
    return hn::ShiftRight<2>(hn::Add(hn::Add(hn::Add(near, near), near), hn::Add(far, hn::Set(d, 2))));
}

void halveRows(const Wide* a, const Wide* b, Wide* out, int count)
{
    forEachWidePixel(count, [=](auto d, int x) ZP_LANES {
        const Wide16<decltype(d)> d16;
        const auto rows = [&](int at) ZP_LANES { return hn::BitCast(d, hn::Add(load(d, a + at), load(d, b + at))); };
        const int lanes = int(hn::Lanes(d));
        const auto low = rows(8 * x), high = rows(8 * x + 4 * lanes);
        if constexpr (hn::MaxLanes(decltype(d)()) == 1) {
            const auto sum = hn::Add(hn::BitCast(d16, low), hn::BitCast(d16, high));
            store(d, hn::ShiftRight<2>(hn::Add(sum, hn::Set(d16, 2))), out + 4 * x);
        } else {
            const auto even = hn::BitCast(d16, hn::ConcatEven(d, high, low));
            const auto odd = hn::BitCast(d16, hn::ConcatOdd(d, high, low));
            store(d, hn::ShiftRight<2>(hn::Add(hn::Add(even, odd), hn::Set(d16, 2))), out + 4 * x);
        }
    });
}

void mixRows(const Wide* near, const Wide* far, Wide* out, int count)
{
    forEachWidePixel(count, [=](auto d, int x) ZP_LANES {
        store(d, threeToOne(Wide16<decltype(d)>(), load(d, near + 4 * x), load(d, far + 4 * x)), out + 4 * x);
    });
}

void doubleRow(const Wide* row, Wide* out, int count)
{
    forEachWidePixel(count, [=](auto d, int x) ZP_LANES {
        const Wide16<decltype(d)> d16;
        const auto own = load(d, row + 4 * x);
        const auto left = threeToOne(d16, own, load(d, row + 4 * x - 4));
        const auto right = threeToOne(d16, own, load(d, row + 4 * x + 4));
        if constexpr (hn::MaxLanes(decltype(d)()) == 1) {
            store(d, left, out + 8 * x);
            store(d, right, out + 8 * x + 4);
        } else {
            hn::StoreInterleaved2(hn::BitCast(d, left), hn::BitCast(d, right), d,
                                  reinterpret_cast<std::uint64_t*>(out + 8 * x));
        }
    });
}

void narrowRow(const Wide* row, std::uint32_t* pixels, int count)
{
    auto* const bytes = reinterpret_cast<std::uint8_t*>(pixels);
    forEachVector<Wide>(std::size_t(count) * 4, [=](auto d, std::size_t at) ZP_LANES {
        const hn::Rebind<std::uint8_t, decltype(d)> narrow;
        const auto half = hn::Set(d, 1 << (kWideBits - 1));
        const auto levels = hn::ShiftRight<kWideBits>(hn::Add(hn::LoadU(d, row + at), half));
        hn::StoreU(hn::DemoteTo(narrow, levels), narrow, bytes + at);
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(halveRows);
HWY_EXPORT(mixRows);
HWY_EXPORT(doubleRow);
HWY_EXPORT(narrowRow);

namespace filters
{

void halveRows(const Wide* a, const Wide* b, Wide* out, int count)
{
    HWY_DYNAMIC_DISPATCH(halveRows)(a, b, out, count);
}
void mixRows(const Wide* near, const Wide* far, Wide* out, int count)
{
    HWY_DYNAMIC_DISPATCH(mixRows)(near, far, out, count);
}
void doubleRow(const Wide* row, Wide* out, int count) { HWY_DYNAMIC_DISPATCH(doubleRow)(row, out, count); }
void narrowRow(const Wide* row, std::uint32_t* pixels, int count)
{
    HWY_DYNAMIC_DISPATCH(narrowRow)(row, pixels, count);
}

} // namespace filters
} // namespace zp
#endif
