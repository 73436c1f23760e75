// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of the picture as rows of the screen.
#pragma once
#include <cstdint>

namespace zp
{

/// Words of the picture (alpha in the low byte, premultiplied) to words of the screen (blue in the low byte), over
/// grey. Opaque pixels are only swapped.
void convertToScreen(const std::uint32_t* pixels, std::uint32_t* out, int count);
/// The same, over what @p out shows.
void layOnScreen(const std::uint32_t* pixels, std::uint32_t* out, int count);

} // namespace zp
