// SPDX-License-Identifier: GPL-3.0-or-later
/// Alpha bytes taken out of pixels, put back, and compared in blocks.
#include "undo/AlphaRows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "undo/AlphaRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

void gatherAlpha(const std::uint32_t* pixels, std::uint8_t* alpha, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        const hn::Rebind<std::uint8_t, decltype(d)> bytes;
        hn::StoreU(hn::TruncateTo(bytes, hn::LoadU(d, pixels + at)), bytes, alpha + at);
    });
}

void scatterAlpha(std::uint32_t* pixels, const std::uint8_t* alpha, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        const hn::Rebind<std::uint8_t, decltype(d)> bytes;
        const auto colour = hn::AndNot(hn::Set(d, 0xFF), hn::LoadU(d, pixels + at));
        hn::StoreU(hn::Or(colour, hn::PromoteTo(d, hn::LoadU(bytes, alpha + at))), d, pixels + at);
    });
}

void fillAlpha(std::uint32_t* pixels, std::uint8_t alpha, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        const auto colour = hn::AndNot(hn::Set(d, 0xFF), hn::LoadU(d, pixels + at));
        hn::StoreU(hn::Or(colour, hn::Set(d, alpha)), d, pixels + at);
    });
}

void limitColourToAlpha(std::uint32_t* pixels, int count)
{
    forEachVector<std::uint32_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        hn::StoreU(withColourAtMostAlpha(d, hn::LoadU(d, pixels + at)), d, pixels + at);
    });
}

std::size_t equalBlocks(const std::uint8_t* bytes, std::size_t count, std::uint8_t value)
{
    const hn::CappedTag<std::uint8_t, kAlphaBlock> d;
    const auto wanted = hn::Set(d, value);
    std::size_t i = 0;
    for (; i + kAlphaBlock <= count; i += kAlphaBlock) {
        auto differs = hn::Zero(d);
        for (std::size_t k = 0; k < kAlphaBlock; k += hn::Lanes(d))
            differs = hn::Or(differs, hn::Xor(hn::LoadU(d, bytes + i + k), wanted));
        if (!hn::AllTrue(d, hn::Eq(differs, hn::Zero(d)))) break;
    }
    return i;
}

std::size_t pairlessBlocks(const std::uint8_t* bytes, std::size_t count)
{
    const hn::CappedTag<std::uint8_t, kAlphaBlock> d;
    std::size_t i = 0;
    for (; i + kAlphaBlock <= count; i += kAlphaBlock) {
        auto pairs = hn::MaskFromVec(hn::Zero(d));
        for (std::size_t k = 0; k < kAlphaBlock; k += hn::Lanes(d))
            pairs = hn::Or(pairs, hn::Eq(hn::LoadU(d, bytes + i + k), hn::LoadU(d, bytes + i + k - 1)));
        if (!hn::AllFalse(d, pairs)) break;
    }
    return i;
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(gatherAlpha);
HWY_EXPORT(scatterAlpha);
HWY_EXPORT(fillAlpha);
HWY_EXPORT(limitColourToAlpha);
HWY_EXPORT(equalBlocks);
HWY_EXPORT(pairlessBlocks);

void gatherAlpha(const std::uint32_t* pixels, std::uint8_t* alpha, int count)
{
    HWY_DYNAMIC_DISPATCH(gatherAlpha)(pixels, alpha, count);
}
void scatterAlpha(std::uint32_t* pixels, const std::uint8_t* alpha, int count)
{
    HWY_DYNAMIC_DISPATCH(scatterAlpha)(pixels, alpha, count);
}
void fillAlpha(std::uint32_t* pixels, std::uint8_t alpha, int count)
{
    HWY_DYNAMIC_DISPATCH(fillAlpha)(pixels, alpha, count);
}
void limitColourToAlpha(std::uint32_t* pixels, int count) { HWY_DYNAMIC_DISPATCH(limitColourToAlpha)(pixels, count); }
std::size_t equalBlocks(const std::uint8_t* bytes, std::size_t count, std::uint8_t value)
{
    return HWY_DYNAMIC_DISPATCH(equalBlocks)(bytes, count, value);
}
std::size_t pairlessBlocks(const std::uint8_t* bytes, std::size_t count)
{
    return HWY_DYNAMIC_DISPATCH(pairlessBlocks)(bytes, count);
}

} // namespace zp
#endif
