// SPDX-License-Identifier: GPL-3.0-or-later
/// Rectangle arithmetic that stays sane for empty rectangles, NaN and infinity.
#include "base/Geometry.h"
#include <cstdio>

namespace zp
{

Rect rectFromCorners(Point a, Point b)
{
    const float x = std::min(a.x, b.x), y = std::min(a.y, b.y);
    return {{x, y}, {std::max(a.x, b.x) - x, std::max(a.y, b.y) - y}};
}

Rect integralRect(Rect r)
{
    if (r.isEmpty() || std::isnan(r.origin.x) || std::isnan(r.origin.y)) return {};
    // In double precision: the sum of a large origin and a small extent would lose the extent.
    const double x0 = std::floor(double(r.origin.x)), y0 = std::floor(double(r.origin.y));
    const double x1 = std::ceil(double(r.origin.x) + double(r.size.width));
    const double y1 = std::ceil(double(r.origin.y) + double(r.size.height));
    return {{float(x0), float(y0)}, {float(x1 - x0), float(y1 - y0)}};
}

Rect unionRect(Rect a, Rect b)
{
    if (a.isEmpty()) return b.isEmpty() ? Rect{} : b;
    if (b.isEmpty()) return a;
    return rectFromCorners({std::min(a.minX(), b.minX()), std::min(a.minY(), b.minY())},
                           {std::max(a.maxX(), b.maxX()), std::max(a.maxY(), b.maxY())});
}

Rect intersectionRect(Rect a, Rect b)
{
    if (a.isEmpty() || b.isEmpty()) return {};
    const Point near{std::max(a.minX(), b.minX()), std::max(a.minY(), b.minY())};
    const Point far{std::min(a.maxX(), b.maxX()), std::min(a.maxY(), b.maxY())};
    if (!(far.x > near.x && far.y > near.y)) return {};
    return {near, {far.x - near.x, far.y - near.y}};
}

std::string stringFromRect(Rect r)
{
    char text[160];
    std::snprintf(text, sizeof text, "{{%g, %g}, {%g, %g}}", double(r.origin.x), double(r.origin.y),
                  double(r.size.width), double(r.size.height));
    return text;
}

PixelBox pixelBoxOf(Rect r, int width, int height)
{
    if (r.isEmpty() || width <= 0 || height <= 0) return {};
    // Written so that NaN fails the test instead of reaching a conversion.
    const auto clamped = [](double v, int limit) { return v >= double(limit) ? limit : v > 0 ? int(v) : 0; };
    const double left = double(r.origin.x), top = double(r.origin.y);
    if (std::isnan(left) || std::isnan(top)) return {};
    const double right = left + double(r.size.width), bottom = top + double(r.size.height);
    const PixelBox box{clamped(std::floor(left), width), clamped(std::floor(top), height),
                       clamped(std::ceil(right), width), clamped(std::ceil(bottom), height)};
    return box.isEmpty() ? PixelBox{} : box;
}

} // namespace zp
