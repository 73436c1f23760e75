// SPDX-License-Identifier: GPL-3.0-or-later
/// How a watermark follows the picture it is laid over: its size by the picture's, repeated, turned.
#pragma once
#include "base/Geometry.h"
#include "batch/BatchRules.h"
#include <string>
#include <vector>

namespace zp
{

/// As given a watermark follows nothing: its own size, in pixels, once, upright.
struct WatermarkLayout {
    /// Its size, its margin and its position are percents of the picture's shorter side instead of pixels. By the
    /// shorter one, because a mark of up to 100 percent then lies within every picture, upright or flat.
    bool relative = false;
    int size = 25;      ///< of a relative one: its longer side, 1 to kLargestWatermark
    int margin = 3;     ///< of a relative one: between it and the edges of its corner
    bool tiled = false; ///< repeated over the whole picture, every second row half a step further
    int gap = 50;       ///< between tiled ones, across and down, in percent of the watermark's longer side
    int turn = 0;       ///< in degrees, against the clock; tiled ones are turned with their rows
    bool isAsGiven() const { return !relative && !tiled && turn == 0; }
    friend bool operator==(const WatermarkLayout&, const WatermarkLayout&) = default;
};
inline constexpr int kLargestWatermark = 100;    ///< percent: what fits into every picture
inline constexpr int kLargestWatermarkGap = 400; ///< percent
inline constexpr int kLargestWatermarkTurn = 360;

/// Where the watermarks of one picture lie, in its pixels.
struct WatermarkPlan {
    Size size; ///< of an upright one, whole
    int turn = 0;
    Size box;                       ///< whole pixels around a turned one; its middle is the watermark's
    std::vector<PixelPoint> places; ///< upper left corners of the boxes, y downwards, row by row
};

/// @param mark     the watermark's own size in points
/// @param picture  in pixels
/// @param point    for WatermarkPlace::Custom: the lower left corner of the box, y upwards, in the layout's unit
/// @param margin   for the corners, in pixels; a relative layout has its own
/// A tiled watermark lies at its place and from there in all directions, as far as any of it touches the picture.
WatermarkPlan planWatermark(const WatermarkLayout& layout, Size mark, Size picture, WatermarkPlace place, Point point,
                            int margin);

/// A layout as lines "size 25", to be kept in a file; what is as given is written as well.
std::string textOfLayout(const WatermarkLayout& layout);
/// Lines that are not understood, or say what cannot be, are passed over.
WatermarkLayout layoutOfText(const std::string& text);

} // namespace zp
