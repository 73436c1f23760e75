// SPDX-License-Identifier: GPL-3.0-or-later
/// From the planes of a JPEG picture to pixels: colour at half resolution interpolated, then turned into red, green and
/// blue. Every byte is what the JPEG library gives with its fancy upsampling.
#pragma once
#include <cstddef>
#include <cstdint>

namespace zp::jpeg
{

/// Rows of samples that these functions read and write must have memory for this many bytes more than they hold.
inline constexpr std::size_t kRowSlack = 128;

/// Doubles the samples across: @p count to twice as many.
void upsampleAcross(const std::uint8_t* samples, std::size_t count, std::uint8_t* out);
/// One of the two rows that a row of samples becomes: the @p upper one lies towards the row before, the other towards
/// the row behind. @param far that neighbour; at the picture's edge the row itself
void upsampleDown(const std::uint8_t* near, const std::uint8_t* far, std::size_t count, bool upper, std::uint8_t* out);
/// Both: one of two rows, twice as wide. @param sums work space for count + 2 * kRowSlack numbers
void upsampleBoth(const std::uint8_t* near, const std::uint8_t* far, std::size_t count, std::uint16_t* sums,
                  std::uint8_t* out);

/// Brightness and two colours to opaque pixels A, R, G, B; exactly 4 * count bytes are written.
void coloursToARGB(const std::uint8_t* y, const std::uint8_t* cb, const std::uint8_t* cr, std::uint8_t* argb,
                   std::size_t count);
void greysToARGB(const std::uint8_t* y, std::uint8_t* argb, std::size_t count);

} // namespace zp::jpeg
