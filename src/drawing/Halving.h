// SPDX-License-Identifier: GPL-3.0-or-later
/// Exact reduction to a half, a quarter, an eighth or a sixteenth.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>

namespace zp
{

inline constexpr int kMostHalvings = 4;

/// The rounded means of @p count squares of 1 << level by 1 << level pixels, side by side to the right of the one whose
/// corner is pixel (x, y). All of them must lie inside the image. @param level 1 to kMostHalvings. Allocates nothing.
/// Any thread.
void averageSquares(ConstBitmapView image, int x, int y, int count, int level, std::uint32_t* pixels);
/// The same means, drawn source-over onto @p pixels.
void averageSquaresOver(ConstBitmapView image, int x, int y, int count, int level, std::uint32_t* pixels);

} // namespace zp
