// SPDX-License-Identifier: GPL-3.0-or-later
/// Halving and doubling of wide rows, pixels as lanes of 64 bits.
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

using filters::Wide;

/// The filter's three shares of a pair of pixels, the inner pair's first, in 1/32768: one sixteenth more than the half
/// that a pair's sum needs is never reached, so nothing overflows.
constexpr std::int16_t kPairs[3] = {10 * 1024, 5 * 1024, 1024};
/// The same filter's shares when each pixel becomes two.
constexpr std::int16_t kOwn = 20 * 1024, kNearer = 10 * 1024, kOther = 2 * 1024;

template <class D>
using Samples16 = hn::Repartition<Wide, D>;

/// Calls f(tag, pixel) for every pixel: in whole vectors, then one by one.
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

/// A vector from pixel @p x of the row on.
template <class D>
HWY_INLINE hn::Vec<Samples16<D>> load(D, const Wide* row, std::ptrdiff_t x)
{
    return hn::LoadU(Samples16<D>(), row + 4 * x);
}

template <class D16, class V = hn::Vec<D16>>
HWY_INLINE V share(D16 d, V v, std::int16_t of)
{
    return hn::MulFixedPoint15(v, hn::Set(d, of));
}

void halveDown(const Wide* const (&rows)[6], Wide* out, int count)
{
    forEachWidePixel(count, [&](auto d, int x) ZP_LANES {
        const Samples16<decltype(d)> d16;
        auto sum = hn::Zero(d16);
        for (int k = 0; k < 3; ++k)
            sum = hn::Add(sum, share(d16, hn::Add(load(d, rows[2 - k], x), load(d, rows[3 + k], x)), kPairs[k]));
        hn::StoreU(sum, d16, out + 4 * x);
    });
}

void halveAlong(const Wide* row, Wide* out, int count)
{
    forEachWidePixel(count, [=](auto d, int x) ZP_LANES {
        const Samples16<decltype(d)> d16;
        const int lanes = int(hn::Lanes(d));
        // The first and the second pixel of each of the vector's pairs, which begin at pixel 2 x + offset.
        const auto firsts = [&](int offset) ZP_LANES {
            const auto low = hn::BitCast(d, load(d, row, 2 * x + offset));
            if constexpr (hn::MaxLanes(decltype(d)()) == 1) {
                return hn::BitCast(d16, low);
            } else {
                const auto high = hn::BitCast(d, load(d, row, 2 * x + offset + lanes));
                return hn::BitCast(d16, hn::ConcatEven(d, high, low));
            }
        };
        const auto seconds = [&](int offset) ZP_LANES {
            if constexpr (hn::MaxLanes(decltype(d)()) == 1) {
                return load(d, row, 2 * x + offset + 1);
            } else {
                const auto low = hn::BitCast(d, load(d, row, 2 * x + offset));
                const auto high = hn::BitCast(d, load(d, row, 2 * x + offset + lanes));
                return hn::BitCast(d16, hn::ConcatOdd(d, high, low));
            }
        };
        auto sum = share(d16, hn::Add(firsts(0), seconds(0)), kPairs[0]);
        sum = hn::Add(sum, share(d16, hn::Add(seconds(-2), firsts(2)), kPairs[1]));
        sum = hn::Add(sum, share(d16, hn::Add(firsts(-2), seconds(2)), kPairs[2]));
        hn::StoreU(sum, d16, out + 4 * x);
    });
}

/// Ten, five and one sixteenths.
template <class D16, class V = hn::Vec<D16>>
HWY_INLINE V doubled(D16 d, V nearer, V own, V other)
{
    return hn::Add(hn::Add(share(d, own, kOwn), share(d, nearer, kNearer)), share(d, other, kOther));
}

void doubleDown(const Wide* nearer, const Wide* own, const Wide* other, Wide* out, int count)
{
    forEachWidePixel(count, [=](auto d, int x) ZP_LANES {
        const Samples16<decltype(d)> d16;
        hn::StoreU(doubled(d16, load(d, nearer, x), load(d, own, x), load(d, other, x)), d16, out + 4 * x);
    });
}

void doubleAlong(const Wide* row, Wide* out, int count)
{
    forEachWidePixel(count, [=](auto d, int x) ZP_LANES {
        const Samples16<decltype(d)> d16;
        const auto before = load(d, row, x - 1), own = load(d, row, x), behind = load(d, row, x + 1);
        const auto left = doubled(d16, before, own, behind), right = doubled(d16, behind, own, before);
        if constexpr (hn::MaxLanes(decltype(d)()) == 1) {
            hn::StoreU(left, d16, out + 8 * x);
            hn::StoreU(right, d16, out + 8 * x + 4);
        } else {
            hn::StoreInterleaved2(hn::BitCast(d, left), hn::BitCast(d, right), d,
                                  reinterpret_cast<std::uint64_t*>(out + 8 * x));
        }
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(halveDown);
HWY_EXPORT(halveAlong);
HWY_EXPORT(doubleDown);
HWY_EXPORT(doubleAlong);

namespace filters
{

void halveDown(const Wide* const (&rows)[6], Wide* out, int count)
{
    HWY_DYNAMIC_DISPATCH(halveDown)(rows, out, count);
}
void halveAlong(const Wide* row, Wide* out, int count) { HWY_DYNAMIC_DISPATCH(halveAlong)(row, out, count); }
void doubleDown(const Wide* nearer, const Wide* own, const Wide* other, Wide* out, int count)
{
    HWY_DYNAMIC_DISPATCH(doubleDown)(nearer, own, other, out, count);
}
void doubleAlong(const Wide* row, Wide* out, int count) { HWY_DYNAMIC_DISPATCH(doubleAlong)(row, out, count); }

} // namespace filters
} // namespace zp
#endif
