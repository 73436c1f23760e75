// SPDX-License-Identifier: GPL-3.0-or-later
/// The loops along a row that brush and eraser spend their time in.
#pragma once
#include <cstdint>

namespace zp
{

/// Every byte of @p pixels: its own times @p keep's, over 255 and rounded, plus @p add's. The sum must be a byte.
void stampRow(std::uint32_t* pixels, const std::uint32_t* add, const std::uint32_t* keep, int count);
/// Every byte of a pixel times its mask byte, over 255 and rounded.
void eraseRow(std::uint32_t* pixels, const std::uint8_t* mask, int count);

} // namespace zp
