// SPDX-License-Identifier: GPL-3.0-or-later
/// From the point that was clicked to the pixel that a fill or a wand starts at.
#pragma once
#include "base/Geometry.h"
#include <optional>

namespace zp
{

/// The nearest whole column and row, and never the one past the last that rounding gives near the far edges.
/// @return nothing for a point outside the picture (or not a number)
inline std::optional<PixelPoint> fillSeed(Point point, PixelBox picture)
{
    if (!(point.x > -0.5f && point.y > -0.5f && point.x < float(picture.x1) && point.y < float(picture.y1)))
        return std::nullopt;
    const auto nearest = [](float v, int size) { return std::clamp(int(std::round(v)), 0, size - 1); };
    return PixelPoint{nearest(point.x, picture.x1), nearest(point.y, picture.y1)};
}

} // namespace zp
