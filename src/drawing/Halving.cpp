// SPDX-License-Identifier: GPL-3.0-or-later
/// Means of squares: rows are summed in 16-bit lanes, then neighbours are added as often as the side was halved.
#include "drawing/Halving.h"
#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/Halving.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

/// Sums of pixels, two bytes to a lane of 32 bits. The most there are, 256 bytes and half of it for rounding, just fit
/// 16 bits without a sign.
template <class D>
struct Sums {
    hn::Vec<D> even, odd;
};

template <class D>
HWY_INLINE hn::Vec<D> addHalves(D d, hn::Vec<D> a, hn::Vec<D> b)
{
    const Wide16<D> d16;
    return hn::BitCast(d, hn::Add(hn::BitCast(d16, a), hn::BitCast(d16, b)));
}

/// A vector's pixels from each of the rows, rowBytes apart.
template <class D>
HWY_INLINE Sums<D> sumRows(D d, const std::uint8_t* pixels, std::ptrdiff_t rowBytes, int rows)
{
    Sums<D> sums{hn::Zero(d), hn::Zero(d)};
    for (int r = 0; r < rows; ++r, pixels += rowBytes) {
        announce(pixels);
        const auto both = widen(d, hn::LoadU(d, reinterpret_cast<const std::uint32_t*>(pixels)));
        sums.even = addHalves(d, sums.even, hn::BitCast(d, both.even));
        sums.odd = addHalves(d, sums.odd, hn::BitCast(d, both.odd));
    }
    return sums;
}

/// Lanes 0 and 1, 2 and 3, … of two vectors added.
template <class D>
HWY_INLINE hn::Vec<D> addNeighbours(D d, hn::Vec<D> low, hn::Vec<D> high)
{
    return addHalves(d, hn::ConcatEven(d, high, low), hn::ConcatOdd(d, high, low));
}

/// Back to pixels: means of 1 << shift, rounded.
template <class D>
HWY_INLINE hn::Vec<D> means(D d, const Sums<D>& sums, int shift)
{
    const Wide16<D> d16;
    const auto half = hn::Set(d16, std::uint16_t(1u << (shift - 1)));
    const auto mean = [&](hn::Vec<D> v)
                          ZP_LANES { return hn::ShiftRightSame(hn::Add(hn::BitCast(d16, v), half), shift); };
    return narrow(d, Samples<D>{mean(sums.even), mean(sums.odd)});
}

using Pixels = hn::ScalableTag<std::uint32_t>;
using Pixel = hn::CappedTag<std::uint32_t, 1>;

/// The sums of two neighbouring pixels of all rows, for one vector of such pairs.
HWY_INLINE Sums<Pixels> sumPairs(Pixels d, const std::uint8_t* pixels, std::ptrdiff_t rowBytes, int rows)
{
    const auto low = sumRows(d, pixels, rowBytes, rows);
    const auto high = sumRows(d, pixels + 4 * hn::Lanes(d), rowBytes, rows);
    return {addNeighbours(d, low.even, high.even), addNeighbours(d, low.odd, high.odd)};
}

/// One mean, without looking beyond its square.
HWY_INLINE hn::Vec<Pixel> meanOfSquare(const std::uint8_t* pixels, std::ptrdiff_t rowBytes, int level)
{
    const Pixel d;
    Sums<Pixel> sum{hn::Zero(d), hn::Zero(d)};
    for (int i = 0; i < 1 << level; ++i) {
        const auto column = sumRows(d, pixels + 4 * i, rowBytes, 1 << level);
        sum = {addHalves(d, sum.even, column.even), addHalves(d, sum.odd, column.odd)};
    }
    return means(d, sum, 2 * level);
}

/// @tparam kOver draws the means over what is there, instead of putting them in its place
template <bool kOver>
HWY_INLINE void averageInto(const std::uint8_t* pixels, std::ptrdiff_t rowBytes, int count, int level,
                            std::uint32_t* out)
{
    const Pixels d;
    const auto store = [](auto tag, auto mean, std::uint32_t* to) ZP_LANES {
        if constexpr (kOver)
            storeOver(tag, mean, to);
        else
            hn::StoreU(mean, tag, to);
    };
    const int lanes = int(hn::Lanes(d)), rows = 1 << level;
    int done = 0;
    if (level == 1) {
        for (; done + lanes <= count; done += lanes)
            store(d, means(d, sumPairs(d, pixels + std::ptrdiff_t{8} * done, rowBytes, 2), 2), out + done);
    } else {
        // A vector of results takes 1 << level of source: the sums wait in registers' worth of memory.
        constexpr std::size_t kMost = (std::size_t{1} << (kMostHalvings - 1)) * hn::MaxLanes(Pixels());
        HWY_ALIGN std::uint32_t even[kMost], odd[kMost];
        for (; done + lanes <= count; done += lanes) {
            const std::uint8_t* from = pixels + (std::ptrdiff_t{4} * done << level);
            int held = rows / 2; // vectors
            for (int v = 0; v < held; ++v) {
                const auto sums = sumPairs(d, from + std::ptrdiff_t{8} * v * lanes, rowBytes, rows);
                hn::Store(sums.even, d, even + v * lanes);
                hn::Store(sums.odd, d, odd + v * lanes);
            }
            const auto fold = [&](std::uint32_t* sums, int v) ZP_LANES {
                return addNeighbours(d, hn::Load(d, sums + 2 * v * lanes), hn::Load(d, sums + (2 * v + 1) * lanes));
            };
            for (; held > 2; held /= 2)
                for (int v = 0; v < held / 2; ++v) {
                    hn::Store(fold(even, v), d, even + v * lanes);
                    hn::Store(fold(odd, v), d, odd + v * lanes);
                }
            store(d, means(d, Sums<Pixels>{fold(even, 0), fold(odd, 0)}, 2 * level), out + done);
        }
    }
    for (; done < count; ++done)
        store(Pixel(), meanOfSquare(pixels + (std::ptrdiff_t{4} * done << level), rowBytes, level), out + done);
}

void averageSquares(const std::uint8_t* pixels, std::ptrdiff_t rowBytes, int count, int level, std::uint32_t* out)
{
    averageInto<false>(pixels, rowBytes, count, level, out);
}

void averageSquaresOver(const std::uint8_t* pixels, std::ptrdiff_t rowBytes, int count, int level, std::uint32_t* out)
{
    averageInto<true>(pixels, rowBytes, count, level, out);
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(averageSquares);
HWY_EXPORT(averageSquaresOver);

void averageSquares(ConstBitmapView image, int x, int y, int count, int level, std::uint32_t* pixels)
{
    HWY_DYNAMIC_DISPATCH(averageSquares)(image.pixel(x, y), image.rowBytes, count, level, pixels);
}

void averageSquaresOver(ConstBitmapView image, int x, int y, int count, int level, std::uint32_t* pixels)
{
    HWY_DYNAMIC_DISPATCH(averageSquaresOver)(image.pixel(x, y), image.rowBytes, count, level, pixels);
}

} // namespace zp
#endif
