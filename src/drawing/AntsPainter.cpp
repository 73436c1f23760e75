// SPDX-License-Identifier: GPL-3.0-or-later
/// Plots dashed polylines: the part of each segment inside the box, one step a pixel.
#include "drawing/AntsPainter.h"
#include <algorithm>
#include <cmath>

namespace zp
{

namespace
{

/// Cuts the parameter range [t0, t1] of a + t d to low <= value <= high. @return whether anything is left
bool cut(double a, double d, double low, double high, double& t0, double& t1)
{
    if (d == 0) return a >= low && a <= high;
    double first = (low - a) / d, last = (high - a) / d;
    if (first > last) std::swap(first, last);
    t0 = std::max(t0, first);
    t1 = std::min(t1, last);
    return t0 <= t1;
}

void plot(const ScreenTarget& target, int x, int y, int width, std::uint32_t colour)
{
    const int x0 = std::max(x, target.box.x0), x1 = std::min(x + width, target.box.x1);
    const int y0 = std::max(y, target.box.y0), y1 = std::min(y + width, target.box.y1);
    for (int row = y0; row < y1; ++row)
        for (int column = x0; column < x1; ++column)
            target.pixels[target.stride * (row - target.box.y0) + (column - target.box.x0)] = colour;
}

} // namespace

double drawDashedLine(const ScreenTarget& target, std::span<const DevicePoint> points, double start,
                      const DashStyle& style)
{
    const double period = 2 * style.dash;
    const double low = -style.width;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const DevicePoint a = points[i - 1], b = points[i];
        const double dx = b.x - a.x, dy = b.y - a.y;
        const double length = std::hypot(dx, dy);
        if (!std::isfinite(length)) continue;
        double t0 = 0, t1 = 1;
        if (cut(a.x, dx, target.box.x0 + low, target.box.x1, t0, t1) &&
            cut(a.y, dy, target.box.y0 + low, target.box.y1, t0, t1)) {
            const double steps = std::max({std::abs(dx), std::abs(dy), 1e-9});
            const auto first = std::int64_t(std::floor(t0 * steps)), last = std::int64_t(std::ceil(t1 * steps));
            const double stepLength = length / steps;
            for (std::int64_t s = first; s <= last; ++s) {
                const double t = std::min(double(s) / steps, 1.0);
                double along = std::fmod(start + double(s) * stepLength - style.phase, period);
                if (along < 0) along += period;
                const bool light = along >= style.dash;
                if (light && !style.drawLight) continue;
                plot(target, int(std::floor(a.x + dx * t)), int(std::floor(a.y + dy * t)), style.width,
                     light ? style.light : style.dark);
            }
        }
        start += length;
    }
    return start;
}

} // namespace zp
