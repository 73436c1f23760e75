// SPDX-License-Identifier: GPL-3.0-or-later
/// Coverage out of area, and coverage into masks, a stretch at a time.
#pragma once
#include "base/FixedPoint.h"
#include <algorithm>
#include <cstdint>

namespace zp
{

/// One whole pixel of area. 21 bits leave room for a thousand outlines on top of each other in 32.
inline constexpr int kAreaBits = 21;
inline constexpr std::int32_t kWholeArea = 1 << kAreaBits;
inline constexpr int kCoverBlock = 64;

/// The share of 255 that an area is, after the winding rule: |area|, at most one pixel, or |area| folded back at each
/// whole pixel. Rounded.
constexpr std::uint8_t coverNonZero(std::int32_t area)
{
    const std::uint32_t size = area < 0 ? 0u - std::uint32_t(area) : std::uint32_t(area);
    return std::uint8_t((std::min<std::uint32_t>(size, kWholeArea) * 255 + kWholeArea / 2) >> kAreaBits);
}
constexpr std::uint8_t coverEvenOdd(std::int32_t area)
{
    std::uint32_t size = (area < 0 ? 0u - std::uint32_t(area) : std::uint32_t(area)) & (2u * kWholeArea - 1);
    size = size > std::uint32_t(kWholeArea) ? 2u * kWholeArea - size : size;
    return std::uint8_t((size * 255 + kWholeArea / 2) >> kAreaBits);
}
/// The same of kCoverBlock areas.
void coverBlock(const std::int32_t* areas, std::uint8_t* cover, bool evenOdd);

/// @p byte moved towards @p value by @p cover of 255, rounded.
constexpr std::uint8_t movedTowards(std::uint8_t byte, std::uint8_t cover, std::uint8_t value)
{
    return std::uint8_t(divide255(std::uint32_t{value} * cover + byte * (255u - cover)));
}
/// The same of each byte.
void moveTowards(std::uint8_t* bytes, const std::uint8_t* cover, int count, std::uint8_t value);

} // namespace zp
