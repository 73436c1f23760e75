// SPDX-License-Identifier: GPL-3.0-or-later
/// Loops over the alpha bytes of a row.
#pragma once
#include <cstddef>
#include <cstdint>

namespace zp
{

/// The alpha byte of each of @p count pixels.
void gatherAlpha(const std::uint32_t* pixels, std::uint8_t* alpha, int count);
/// The reverse: colours stay.
void scatterAlpha(std::uint32_t* pixels, const std::uint8_t* alpha, int count);
/// The same alpha byte for all.
void fillAlpha(std::uint32_t* pixels, std::uint8_t alpha, int count);
/// No colour above its alpha.
void limitColourToAlpha(std::uint32_t* pixels, int count);

/// The two below look at whole blocks of this many bytes.
inline constexpr std::size_t kAlphaBlock = 64;
/// Length of the whole blocks from the start that hold nothing but @p value; at most @p count.
std::size_t equalBlocks(const std::uint8_t* bytes, std::size_t count, std::uint8_t value);
/// Length of the whole blocks from the start in which no byte equals the one before it, bytes[-1] included.
std::size_t pairlessBlocks(const std::uint8_t* bytes, std::size_t count);

} // namespace zp
