// SPDX-License-Identifier: GPL-3.0-or-later
/// Points, sizes and rectangles of single precision, and their whole-number kin for pixels.
#pragma once
#include <algorithm>
#include <cmath>
#include <string>

namespace zp
{

/// A position. In image and view coordinates y grows downwards.
struct Point {
    float x = 0, y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

inline Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
inline Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }

struct Size {
    float width = 0, height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

/// Near corner and extent. An extent of zero or less makes the rectangle empty.
struct Rect {
    Point origin;
    Size size;

    float minX() const { return origin.x; }
    float minY() const { return origin.y; }
    float maxX() const { return origin.x + size.width; }
    float maxY() const { return origin.y + size.height; }
    Point center() const { return {origin.x + size.width * 0.5f, origin.y + size.height * 0.5f}; }
    bool isEmpty() const { return !(size.width > 0 && size.height > 0); }
    /// Near edges belong to the rectangle, far edges do not.
    bool contains(Point p) const { return p.x >= minX() && p.x < maxX() && p.y >= minY() && p.y < maxY(); }
    Rect offset(float dx, float dy) const { return {{origin.x + dx, origin.y + dy}, size}; }
    /// Every side moved inwards by @p d (outwards when negative).
    Rect inset(float d) const { return {{origin.x + d, origin.y + d}, {size.width - 2 * d, size.height - 2 * d}}; }
    friend bool operator==(const Rect&, const Rect&) = default;
};

inline Rect makeRect(float x, float y, float width, float height) { return {{x, y}, {width, height}}; }
/// The rectangle spanned by two opposite corners, in any order.
Rect rectFromCorners(Point a, Point b);
/// Floor of the near edges, ceiling of the far ones; the zero rectangle when @p r is empty.
Rect integralRect(Rect r);
/// The smallest rectangle holding both; an empty one adds nothing; zero when both are empty.
Rect unionRect(Rect a, Rect b);
/// What both share; the zero rectangle when nothing.
Rect intersectionRect(Rect a, Rect b);
inline bool intersects(Rect a, Rect b) { return !intersectionRect(a, b).isEmpty(); }
/// "{{x, y}, {w, h}}" with %g numbers.
std::string stringFromRect(Rect r);

/// A pixel's column and row.
struct PixelPoint {
    int x = 0, y = 0;
    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

/// Pixels [x0, x1) by [y0, y1).
struct PixelBox {
    int x0 = 0, y0 = 0, x1 = 0, y1 = 0;

    int width() const { return x1 - x0; }
    int height() const { return y1 - y0; }
    bool isEmpty() const { return x1 <= x0 || y1 <= y0; }
    bool contains(int x, int y) const { return x >= x0 && x < x1 && y >= y0 && y < y1; }
    /// Grows the box to hold the pixel; an empty box becomes that pixel.
    void include(int x, int y)
    {
        if (isEmpty()) {
            *this = {x, y, x + 1, y + 1};
            return;
        }
        x0 = std::min(x0, x), y0 = std::min(y0, y), x1 = std::max(x1, x + 1), y1 = std::max(y1, y + 1);
    }
    PixelBox intersected(PixelBox o) const
    {
        const PixelBox b{std::max(x0, o.x0), std::max(y0, o.y0), std::min(x1, o.x1), std::min(y1, o.y1)};
        return b.isEmpty() ? PixelBox{} : b;
    }
    PixelBox united(PixelBox o) const
    {
        if (isEmpty()) return o;
        if (o.isEmpty()) return *this;
        return {std::min(x0, o.x0), std::min(y0, o.y0), std::max(x1, o.x1), std::max(y1, o.y1)};
    }
    Rect rect() const { return makeRect(float(x0), float(y0), float(x1 - x0), float(y1 - y0)); }
    friend bool operator==(const PixelBox&, const PixelBox&) = default;
};

/// The pixels that @p r touches, cut to a picture of @p width by @p height. NaN and infinity are handled: the result
/// always lies inside the picture.
PixelBox pixelBoxOf(Rect r, int width, int height);

} // namespace zp
