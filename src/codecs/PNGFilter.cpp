// SPDX-License-Identifier: GPL-3.0-or-later
/// Chooses a filter for each row: all are weighed in one pass over it, and only the best is written.
#include "codecs/PNGFilter.h"
#include "codecs/PixelRows.h"
#include <algorithm>
#include <cstdlib>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "codecs/PNGFilter.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#ifndef ZP_PNG_FILTER_ONCE
#define ZP_PNG_FILTER_ONCE
namespace zp::codec
{
namespace
{

std::uint8_t nearest(int left, int up, int corner)
{
    const int toLeft = std::abs(up - corner), toUp = std::abs(left - corner);
    const int toCorner = std::abs(left + up - 2 * corner);
    if (toLeft <= toUp && toLeft <= toCorner) return std::uint8_t(left);
    return std::uint8_t(toUp <= toCorner ? up : corner);
}

} // namespace
} // namespace zp::codec
#endif

HWY_BEFORE_NAMESPACE();
namespace zp::codec::HWY_NAMESPACE
{
namespace
{
namespace hn = hwy::HWY_NAMESPACE;

using D8 = hn::ScalableTag<std::uint8_t>;
using V8 = hn::Vec<D8>;

HWY_INLINE V8 distance(V8 a, V8 b) { return hn::Sub(hn::Max(a, b), hn::Min(a, b)); }
HWY_INLINE hn::Mask<D8> notAbove(V8 a, V8 b) { return hn::Eq(hn::Min(a, b), a); }

/// The neighbour nearest to left + above - corner, without leaving bytes: the corner's distance is the sum of the other
/// two where both lie on the same side of the corner (and then never the least unless all are none), else the
/// difference.
HWY_INLINE V8 nearestOf(V8 left, V8 up, V8 corner)
{
    const V8 toLeft = distance(up, corner), toUp = distance(left, corner);
    const auto opposite = hn::Xor(notAbove(left, corner), notAbove(up, corner));
    const V8 toCorner = hn::IfThenElse(opposite, distance(toLeft, toUp), hn::SaturatedAdd(toLeft, toUp));
    const V8 other = hn::IfThenElse(notAbove(toUp, toCorner), up, corner);
    return hn::IfThenElse(notAbove(toLeft, hn::Min(toUp, toCorner)), left, other);
}

/// Sums of eight bytes each, taken as signed numbers without their signs.
HWY_INLINE hn::Vec<hn::Repartition<std::uint64_t, D8>> weights(V8 v)
{
    return hn::SumsOf8(hn::Min(v, hn::Sub(hn::Zero(D8()), v)));
}
HWY_INLINE std::uint32_t weight(std::uint8_t v) { return std::min<std::uint32_t>(v, 256u - v); }

void weigh(const std::uint8_t* row, const std::uint8_t* above, std::size_t count, unsigned step,
           std::uint64_t (&sums)[kPNGFilters])
{
    const D8 d;
    const hn::Repartition<std::uint64_t, D8> d64;
    const std::uint8_t *const before = row - step, *const aboveBefore = above - step;
    auto sub = hn::Zero(d64), up = hn::Zero(d64), paeth = hn::Zero(d64);
    std::size_t i = 0;
    for (; i + hn::Lanes(d) <= count; i += hn::Lanes(d)) {
        const V8 x = hn::LoadU(d, row + i), left = hn::LoadU(d, before + i);
        const V8 over = hn::LoadU(d, above + i), corner = hn::LoadU(d, aboveBefore + i);
        sub = hn::Add(sub, weights(hn::Sub(x, left)));
        up = hn::Add(up, weights(hn::Sub(x, over)));
        paeth = hn::Add(paeth, weights(hn::Sub(x, nearestOf(left, over, corner))));
    }
    const auto total = [&](auto v) HWY_ATTR { return hn::GetLane(hn::SumOfLanes(d64, v)); };
    std::uint64_t subSum = total(sub), upSum = total(up), paethSum = total(paeth);
    for (; i < count; ++i) {
        const std::uint8_t left = before[i], corner = aboveBefore[i];
        subSum += weight(std::uint8_t(row[i] - left));
        upSum += weight(std::uint8_t(row[i] - above[i]));
        paethSum += weight(std::uint8_t(row[i] - nearest(left, above[i], corner)));
    }
    sums[unsigned(PNGFilter::Sub)] = subSum;
    sums[unsigned(PNGFilter::Up)] = upSum;
    sums[unsigned(PNGFilter::Paeth)] = paethSum;
}

void apply(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::size_t count, unsigned step,
           std::uint8_t* out)
{
    const D8 d;
    const std::size_t n = hn::Lanes(d), whole = count / n * n;
    const std::uint8_t* const before = row - step;
    const std::uint8_t* const other = filter == PNGFilter::Up ? above : before;
    std::size_t i = 0;
    if (filter == PNGFilter::Paeth) {
        const std::uint8_t* const aboveBefore = above - step; // the other filters may have no row above
        for (; i < whole; i += n) {
            const V8 left = hn::LoadU(d, before + i), corner = hn::LoadU(d, aboveBefore + i);
            hn::StoreU(hn::Sub(hn::LoadU(d, row + i), nearestOf(left, hn::LoadU(d, above + i), corner)), d, out + i);
        }
        for (; i < count; ++i) out[i] = std::uint8_t(row[i] - nearest(before[i], above[i], aboveBefore[i]));
    } else {
        for (; i < whole; i += n) hn::StoreU(hn::Sub(hn::LoadU(d, row + i), hn::LoadU(d, other + i)), d, out + i);
        for (; i < count; ++i) out[i] = std::uint8_t(row[i] - other[i]);
    }
}

} // namespace
} // namespace zp::codec::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp::codec
{
HWY_EXPORT(weigh);
HWY_EXPORT(apply);

void weighFilters(const std::uint8_t* row, const std::uint8_t* above, std::size_t count, unsigned step,
                  std::uint64_t (&sums)[kPNGFilters])
{
    HWY_DYNAMIC_DISPATCH(weigh)(row, above, count, step, sums);
}
void applyFilter(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::size_t count, unsigned step,
                 std::uint8_t* out)
{
    HWY_DYNAMIC_DISPATCH(apply)(filter, row, above, count, step, out);
}

RowFilter::RowFilter(int width, unsigned samples)
    : mWidth(width), mSamples(samples), mRow(samples * (std::size_t(width) + 1)), mAbove(mRow.size())
{
}

void RowFilter::unpack(ConstBitmapView pixels, int y)
{
    const auto unpackRow = mSamples == 1 ? argbToGrey : mSamples == 3 ? argbToRGB : unpremultiplyRowToRGBA;
    unpackRow(pixels.rowData(y), mRow.data() + mSamples, std::size_t(mWidth));
}

void RowFilter::filterRow(ConstBitmapView pixels, int y, bool fresh, std::uint8_t* out)
{
    if (fresh) {
        if (y > 0)
            unpack(pixels, y - 1);
        else
            std::fill(mRow.begin(), mRow.end(), std::uint8_t{0});
    }
    std::swap(mRow, mAbove);
    unpack(pixels, y);
    const std::size_t count = std::size_t(mWidth) * mSamples;
    const std::uint8_t *row = mRow.data() + mSamples, *above = mAbove.data() + mSamples;
    std::uint64_t sums[kPNGFilters];
    weighFilters(row, above, count, mSamples, sums);
    auto best = PNGFilter::Sub;
    for (const PNGFilter filter : {PNGFilter::Up, PNGFilter::Paeth})
        if (sums[unsigned(filter)] < sums[unsigned(best)]) best = filter;
    out[0] = std::uint8_t(best);
    applyFilter(best, row, above, count, mSamples, out + 1);
}

} // namespace zp::codec
#endif
