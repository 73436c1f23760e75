// SPDX-License-Identifier: GPL-3.0-or-later
/// The small loops of a smart fill over rows of bytes, bits and keys.
#pragma once
#include <array>
#include <cstdint>

namespace zp
{

/// Bits that are set in both of @p count words.
int commonBits(const std::uint64_t* a, const std::uint64_t* b, int count);
/// How many of @p keys, all different, are less than each.
void rankKeys(const std::uint32_t* keys, int count, std::uint32_t* ranks);
/// row[x] = min(row[x], 1 + the least of done[x - 1] to done[x + 1]).
void growFrom(const std::uint8_t* done, std::uint8_t* row, int width);
/// The four bytes of the pixels at @p place, each in an array of its own.
void takePixels(const std::uint32_t* pixels, const std::int32_t* place, int count,
                const std::array<std::uint8_t*, 4>& bytes);

} // namespace zp
