// SPDX-License-Identifier: GPL-3.0-or-later
/// Marching ants as screen pixels: alternating dashes along polylines, plotted without anti-aliasing.
#pragma once
#include "base/Geometry.h"
#include <cstddef>
#include <cstdint>
#include <span>

namespace zp
{

/// Screen words 0xFFRRGGBB of the device pixels in @p box; @p pixels is the word of (box.x0, box.y0).
struct ScreenTarget {
    std::uint32_t* pixels = nullptr;
    std::ptrdiff_t stride = 0; ///< in words
    PixelBox box;
};

/// How a dashed line looks, in device pixels.
struct DashStyle {
    double dash = 5;  ///< length of a dark and of a light dash
    double phase = 0; ///< where in the pattern the line begins
    int width = 1;    ///< of the line; a square pen whose near corner is the pixel
    std::uint32_t dark = 0xFF000000, light = 0xFFFFFFFF;
    bool drawLight = true;
};

/// A point in device pixels of the canvas.
struct DevicePoint {
    double x = 0, y = 0;
};

/// Draws the line through @p points, which lies @p start device pixels along its outline, so that dashes run on evenly
/// over neighbouring pieces. Cost: the pixels inside the box and a test for each segment outside it. Allocates nothing.
/// @return how far along the outline the last point lies
double drawDashedLine(const ScreenTarget& target, std::span<const DevicePoint> points, double start,
                      const DashStyle& style);

} // namespace zp
