// SPDX-License-Identifier: GPL-3.0-or-later
/// Masks packed to bits, bytes inverted, pixels taken out: a row at a time.
#include "selection/SelectionRows.h"
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "selection/SelectionRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

/// Which of 64 bytes are not 255.
HWY_INLINE std::uint64_t selectedOf64(const std::uint8_t* bytes)
{
    const hn::CappedTag<std::uint8_t, 64> d;
    const auto none = hn::Set(d, 255);
    std::uint64_t word = 0;
    auto* const bits = reinterpret_cast<std::uint8_t*>(&word); // little endian: as everywhere bits are stored
    for (std::size_t i = 0; i < 64; i += hn::Lanes(d))
        hn::StoreMaskBits(d, hn::LoadU(d, bytes + i) != none, bits + i / 8);
    return word;
}

void packSelectedBits(const std::uint8_t* bytes, int width, std::uint64_t* words)
{
    int x = 0;
    for (; x + 64 <= width; x += 64) *words++ = selectedOf64(bytes + x);
    std::uint8_t rest[64]; // of a row that may be empty, which has no place in memory
    std::memset(rest, 255, sizeof rest);
    if (x < width) std::memcpy(rest, bytes + x, std::size_t(width - x));
    *words = selectedOf64(rest);
}

void invertRow(std::uint8_t* bytes, int count)
{
    forEachVector<std::uint8_t>(std::size_t(count), [=](auto d, std::size_t at) ZP_LANES {
        hn::StoreU(hn::Not(hn::LoadU(d, bytes + at)), d, bytes + at);
    });
}

void clearTranslucentRow(std::uint32_t* row, int width)
{
    forEachVector<std::uint32_t>(std::size_t(width), [=](auto d, std::size_t at) ZP_LANES {
        const auto v = hn::LoadU(d, row + at), opaque = hn::Set(d, 255u);
        hn::StoreU(hn::IfThenElseZero(hn::Eq(hn::And(v, opaque), opaque), v), d, row + at);
    });
}

void clearBlackRow(std::uint32_t* row, int width)
{
    forEachVector<std::uint32_t>(std::size_t(width), [=](auto d, std::size_t at) ZP_LANES {
        const auto v = hn::LoadU(d, row + at);
        hn::StoreU(hn::IfThenZeroElse(hn::Eq(v, hn::Set(d, 0x000000FFu)), v), d, row + at);
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(packSelectedBits);
HWY_EXPORT(invertRow);
HWY_EXPORT(clearTranslucentRow);
HWY_EXPORT(clearBlackRow);

void packSelectedBits(const std::uint8_t* bytes, int width, std::uint64_t* words)
{
    HWY_DYNAMIC_DISPATCH(packSelectedBits)(bytes, width, words);
}
void invertRow(std::uint8_t* bytes, int count) { HWY_DYNAMIC_DISPATCH(invertRow)(bytes, count); }
void clearTranslucentRow(std::uint32_t* row, int width) { HWY_DYNAMIC_DISPATCH(clearTranslucentRow)(row, width); }
void clearBlackRow(std::uint32_t* row, int width) { HWY_DYNAMIC_DISPATCH(clearBlackRow)(row, width); }

} // namespace zp
#endif
