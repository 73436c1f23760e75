// SPDX-License-Identifier: GPL-3.0-or-later
/// Exact reduction to a half, a quarter, an eighth or a sixteenth.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>

namespace zp
{

inline constexpr int kMostHalvings = 4;

/// The rounded means of the squares of 1 << level by 1 << level pixels, from square (x, y) on to the right. All of them
/// must lie inside the image. @param level 1 to kMostHalvings. Allocates nothing. Any thread.
void averageSquares(ConstBitmapView image, int x, int y, int count, int level, std::uint32_t* pixels);

} // namespace zp
