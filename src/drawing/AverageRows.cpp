// SPDX-License-Identifier: GPL-3.0-or-later
/// Weighed sums in 32-bit lanes.
#include "drawing/AverageRows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/AverageRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

template <class D>
HWY_INLINE hn::Vec<D> weighed(D d, const std::uint8_t* bytes, std::uint32_t weight)
{
    return hn::Mul(hn::PromoteTo(d, hn::LoadU(hn::Rebind<std::uint8_t, D>(), bytes)), hn::Set(d, weight));
}

void startWeighing(const std::uint8_t* row, std::uint32_t weight, std::uint32_t* sums, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        hn::StoreU(weighed(d, row + at, weight), d, sums + at);
    });
}

void addWeighed(const std::uint8_t* row, std::uint32_t weight, std::uint32_t* sums, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        hn::StoreU(hn::Add(hn::LoadU(d, sums + at), weighed(d, row + at, weight)), d, sums + at);
    });
}

void averageCells(std::uint32_t* sums, int columns, int low, const AverageCell* cells, const std::uint32_t* weights,
                  std::uint32_t* out, int count)
{
    // To eight bits below the point, so that the columns' weights find room.
    forEachVector<std::uint32_t>(std::size_t(columns) * 4, [=](auto d, std::size_t at) ZP_LANES {
        hn::StoreU(hn::ShiftRight<8>(hn::Add(hn::LoadU(d, sums + at), hn::Set(d, 128))), d, sums + at);
    });
    const hn::FixedTag<std::uint32_t, 4> pixel;
    const hn::Rebind<std::uint8_t, decltype(pixel)> bytes;
    for (int c = 0; c < count; ++c) {
        const std::uint32_t* sum = sums + 4 * std::ptrdiff_t{cells[c].first - low};
        const std::uint32_t* const weight = weights + cells[c].weights;
        auto total = hn::Set(pixel, 1u << 23);
        for (int i = 0; i < cells[c].count; ++i)
            total = hn::Add(total, hn::Mul(hn::LoadU(pixel, sum + 4 * i), hn::Set(pixel, weight[i])));
        const auto mean = hn::TruncateTo(bytes, hn::ShiftRight<24>(total));
        hn::StoreU(mean, bytes, reinterpret_cast<std::uint8_t*>(out + c));
    }
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(startWeighing);
HWY_EXPORT(addWeighed);
HWY_EXPORT(averageCells);

void startWeighing(const std::uint8_t* row, std::uint32_t weight, std::uint32_t* sums, int count)
{
    HWY_DYNAMIC_DISPATCH(startWeighing)(row, weight, sums, count);
}
void addWeighed(const std::uint8_t* row, std::uint32_t weight, std::uint32_t* sums, int count)
{
    HWY_DYNAMIC_DISPATCH(addWeighed)(row, weight, sums, count);
}
void averageCells(std::uint32_t* sums, int columns, int low, const AverageCell* cells, const std::uint32_t* weights,
                  std::uint32_t* out, int count)
{
    HWY_DYNAMIC_DISPATCH(averageCells)(sums, columns, low, cells, weights, out, count);
}

} // namespace zp
#endif
