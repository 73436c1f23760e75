// SPDX-License-Identifier: GPL-3.0-or-later
/// Stamping and erasing, a row at a time.
#include "tools/BrushRows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "tools/BrushRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

void stampRow(std::uint32_t* pixels, const std::uint32_t* add, const std::uint32_t* keep, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        const Wide16<decltype(d)> d16;
        const auto there = widen(d, hn::LoadU(d, pixels + at)), share = widen(d, hn::LoadU(d, keep + at));
        const Samples<decltype(d)> kept{divide255(d16, hn::Mul(there.even, share.even)),
                                        divide255(d16, hn::Mul(there.odd, share.odd))};
        // No byte's sum carries into the next.
        hn::StoreU(hn::Add(narrow(d, kept), hn::LoadU(d, add + at)), d, pixels + at);
    });
}

void eraseRow(std::uint32_t* pixels, const std::uint8_t* mask, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        const auto there = widen(d, hn::LoadU(d, pixels + at));
        hn::StoreU(narrow(d, scaled(d, there, loadSpread(d, mask + at))), d, pixels + at);
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(stampRow);
HWY_EXPORT(eraseRow);

void stampRow(std::uint32_t* pixels, const std::uint32_t* add, const std::uint32_t* keep, int count)
{
    HWY_DYNAMIC_DISPATCH(stampRow)(pixels, add, keep, count);
}
void eraseRow(std::uint32_t* pixels, const std::uint8_t* mask, int count)
{
    HWY_DYNAMIC_DISPATCH(eraseRow)(pixels, mask, count);
}

} // namespace zp
#endif
