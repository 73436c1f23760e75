// SPDX-License-Identifier: GPL-3.0-or-later
/// Stripes of light and shade over pixels of the picture, to be seen on every colour.
#pragma once
#include "drawing/AntsPainter.h"

namespace zp
{

class TileRegion;

/// How the stripes lie, in device pixels.
struct ShimmerStyle {
    double period = 16; ///< from one light stripe to the next, along a row
    double phase = 0;   ///< how far they have moved
};

/// Draws them where @p region holds the image pixel under a device pixel's middle.
/// @param reach  box of the region
/// Cost: the device pixels of the reach inside the target.
void drawShimmer(const ScreenTarget& target, const TileRegion& region, PixelBox reach, double deviceScale,
                 const ShimmerStyle& style);

} // namespace zp
