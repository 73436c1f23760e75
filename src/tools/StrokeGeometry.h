// SPDX-License-Identifier: GPL-3.0-or-later
/// The arithmetic of a brush stroke: spacing of stamps, the line between samples, the areas to redraw.
#pragma once
#include "base/Geometry.h"
#include <cstdint>
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
    PixelPoint corner(Point sample) const { return {whole(sample.x - half), whole(sample.y - half)}; }

private:
    /// Far beyond every picture and well inside what an int holds.
    static constexpr float kFar = 1e9f;
    static int whole(float v) { return v > -kFar && v < kFar ? int(v) : v >= kFar ? int(kFar) : -int(kFar); }
};

/// Visits the pixels of the line between two points, both included, along the axis of the larger difference (x on a
/// tie), in the order in which that axis' coordinate increases. Of pixels before and behind @p window on that axis only
/// the number is told, by skip(count): the time is that of the pixels in between, however far away the points are.
template <class Visit, class Skip>
void walkLine(PixelPoint from, PixelPoint to, PixelBox window, Visit&& visit, Skip&& skip)
{
    std::int64_t ax = from.x, ay = from.y, bx = to.x, by = to.y;
    const bool steep = std::abs(by - ay) > std::abs(bx - ax);
    if (steep) std::swap(ax, ay), std::swap(bx, by);
    if (ax > bx) std::swap(ax, bx), std::swap(ay, by);
    const std::int64_t length = bx - ax, rise = std::abs(by - ay), step = ay < by ? 1 : -1;
    const std::int64_t low = steep ? window.y0 : window.x0, high = steep ? window.y1 : window.x1;
    const std::int64_t first = std::clamp(low, ax, bx + 1), last = std::clamp(high, first, bx + 1);
    // Where the walk stands after the pixels that are skipped: a step aside each time the error ran below zero.
    const std::int64_t skipped = first - ax;
    const std::int64_t owed = skipped * rise - length / 2;
    const std::int64_t aside = owed > 0 ? (owed + length - 1) / length : 0;
    std::int64_t error = aside * length - owed, y = ay + step * aside;
    if (skipped > 0) skip(skipped);
    for (std::int64_t x = first; x < last; ++x) {
        if (steep) {
            visit(PixelPoint{int(y), int(x)});
        } else {
            visit(PixelPoint{int(x), int(y)});
        }
        error -= rise;
        if (error < 0) y += step, error += length;
    }
    if (last <= bx) skip(bx + 1 - last);
}

} // namespace zp
