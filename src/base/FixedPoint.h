// SPDX-License-Identifier: GPL-3.0-or-later
/// Arithmetic on bytes and fixed-point numbers that pixel code everywhere shares, one value at a time.
/// base/PixelVectors-inl.h has the same for whole vectors.
#pragma once
#include <cstdint>

namespace zp
{

/// v / 255, rounded to the nearest; exact up to 65,407, so for every product of two bytes.
constexpr std::uint32_t divide255(std::uint32_t v)
{
    v += 128;
    return (v + (v >> 8)) >> 8;
}

} // namespace zp
