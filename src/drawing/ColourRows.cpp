// SPDX-License-Identifier: GPL-3.0-or-later
/// Curve, matrix, curve, a vector of pixels at a time.
#include "drawing/ColourRows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/ColourRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

void convertColours(const ColourTables& tables, std::uint32_t* words, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [&tables, words](auto d, std::size_t at) ZP_LANES {
        const hn::RebindToFloat<decltype(d)> df;
        const hn::RebindToSigned<decltype(d)> di;
        const auto v = hn::LoadU(d, words + at);
        const auto low = hn::Set(d, 255);
        const auto red = hn::And(hn::ShiftRight<16>(v), low), green = hn::And(hn::ShiftRight<8>(v), low),
                   blue = hn::And(v, low);
        const auto r = hn::GatherIndex(df, tables.light[0].data(), hn::BitCast(di, red));
        const auto g = hn::GatherIndex(df, tables.light[1].data(), hn::BitCast(di, green));
        const auto b = hn::GatherIndex(df, tables.light[2].data(), hn::BitCast(di, blue));
        const auto last = hn::Set(df, float(ColourTables::kSteps - 1)), none = hn::Zero(df), full = hn::Set(df, 1.0f);
        const auto other = [&](std::size_t i) ZP_LANES {
            const float* m = tables.matrix.data() + 3 * i;
            const auto sum =
                hn::MulAdd(r, hn::Set(df, m[0]), hn::MulAdd(g, hn::Set(df, m[1]), hn::Mul(b, hn::Set(df, m[2]))));
            const auto step = hn::NearestInt(hn::Mul(hn::Sqrt(hn::Min(hn::Max(sum, none), full)), last));
            return hn::GatherIndex(d, tables.byte[i].data(), step);
        };
        const auto colours = hn::Or(hn::Or(hn::ShiftLeft<16>(other(0)), hn::ShiftLeft<8>(other(1))), other(2));
        hn::StoreU(hn::Or(colours, hn::Set(d, 0xFF000000u)), d, words + at);
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(convertColours);

void convertColours(const ColourTables& tables, std::uint32_t* words, int count)
{
    HWY_DYNAMIC_DISPATCH(convertColours)(tables, words, count);
}

} // namespace zp
#endif
