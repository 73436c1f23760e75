// SPDX-License-Identifier: GPL-3.0-or-later
/// The selection's loops along a row of mask bytes or of pixels.
#pragma once
#include <cstdint>

namespace zp
{

/// Packs one row of mask bytes: bit x is set where bytes[x] is not 255. Writes (width + 64) / 64 words.
void packSelectedBits(const std::uint8_t* bytes, int width, std::uint64_t* words);
/// Every byte to 255 minus itself.
void invertRow(std::uint8_t* bytes, int count);
/// Pixels that are not opaque become nothing.
void clearTranslucentRow(std::uint32_t* row, int width);
/// Opaque black pixels become nothing.
void clearBlackRow(std::uint32_t* row, int width);

} // namespace zp
