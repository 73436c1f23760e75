// SPDX-License-Identifier: GPL-3.0-or-later
/// The arithmetic of a brush stroke: spacing of stamps, the line between samples, the areas to redraw.
#pragma once
#include "base/Geometry.h"
#include <cstdlib>
#include <utility>

namespace zp
{

/// The box of a segment grown by @p margin on every side.
inline Rect SegmentRect(Point a, Point b, int margin)
{
    const auto m = float(margin);
    return makeRect(std::min(a.x, b.x) - m, std::min(a.y, b.y) - m, std::fabs(b.x - a.x) + 2 * m,
                    std::fabs(b.y - a.y) + 2 * m);
}

/// A rectangle between coordinates with y up from the bottom of a picture of @p height and y down from its top, either
/// way.
inline Rect flippedRect(Rect r, float height)
{
    return makeRect(r.minX(), height - r.maxY(), r.size.width, r.size.height);
}

/// What a brush of a diameter implies.
struct StrokeMeasures {
    int tip;     ///< the diameter, truncated
    int spacing; ///< pixels of the walked line between two stamps; 0: never a stamp
    float half;  ///< from a sample to the stamp's corner
    int margin;  ///< around a segment, what its stamps may touch

    explicit StrokeMeasures(float size)
        : tip(int(size)), spacing(int(std::round(size * 0.15f))), half(float(tip) * 0.5f), margin(int(half + 1.0f))
    {
    }
    /// The stamp's corner for a sample: shifted by half the tip, truncated towards zero.
    PixelPoint corner(Point sample) const { return {int(sample.x - half), int(sample.y - half)}; }
};

/// Visits the pixels of the line between two points, both included, along the axis of the larger difference (x on a
/// tie), in the order in which that axis' coordinate increases.
template <class Visit>
void walkLine(PixelPoint a, PixelPoint b, Visit&& visit)
{
    const bool steep = std::abs(b.y - a.y) > std::abs(b.x - a.x);
    if (steep) std::swap(a.x, a.y), std::swap(b.x, b.y);
    if (a.x > b.x) std::swap(a, b);
    const int length = b.x - a.x, rise = std::abs(b.y - a.y), step = a.y < b.y ? 1 : -1;
    int error = length / 2;
    for (int x = a.x, y = a.y; x <= b.x; ++x) {
        if (steep) {
            visit(PixelPoint{y, x});
        } else {
            visit(PixelPoint{x, y});
        }
        error -= rise;
        if (error < 0) y += step, error += length;
    }
}

} // namespace zp
