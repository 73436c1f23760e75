// SPDX-License-Identifier: GPL-3.0-or-later
/// Maps of four corners onto four others.
#include "base/ProjectiveTransform.h"
#include <algorithm>
#include <cmath>

namespace zp
{

namespace
{

/// Between the nearest and the farthest corner.
constexpr double kSteepest = 100;
/// Square pixels of the triangle that a corner makes with its neighbours.
constexpr double kLeastArea = 0.01;
/// Pixels that a line may stray from a curve.
constexpr double kFlatness = 0.05;

/// Twice the area of the triangle, with the sign of its sense.
double doubleArea(CurvePoint a, CurvePoint b, CurvePoint c)
{
    return (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
}

} // namespace

bool isConvex(const std::array<CurvePoint, 4>& corners)
{
    int left = 0, right = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const double area = doubleArea(corners[i], corners[(i + 1) % 4], corners[(i + 2) % 4]);
        left += area >= 2 * kLeastArea, right += area <= -2 * kLeastArea;
    }
    return left == 4 || right == 4;
}

std::optional<ProjectiveTransform> ProjectiveTransform::ofRect(Rect from, const std::array<CurvePoint, 4>& to)
{
    if (from.isEmpty() || !isConvex(to)) return std::nullopt;
    // The unit square first: the equations of its corners, solved by hand.
    const CurvePoint &a = to[0], &b = to[1], &c = to[2], &d = to[3];
    const double bx = b.x - c.x, by = b.y - c.y, dx = d.x - c.x, dy = d.y - c.y;
    const double sx = a.x - b.x + c.x - d.x, sy = a.y - b.y + c.y - d.y, whole = bx * dy - dx * by;
    const double g = (sx * dy - dx * sy) / whole, h = (bx * sy - sx * by) / whole;
    const auto [nearest, farthest] = std::minmax({1.0, 1 + g, 1 + h, 1 + g + h});
    if (!(nearest > 0 && farthest <= kSteepest * nearest)) return std::nullopt;
    ProjectiveTransform square;
    square.m = {b.x - a.x + g * b.x, d.x - a.x + h * d.x, a.x, b.y - a.y + g * b.y, d.y - a.y + h * d.y, a.y, g, h, 1};
    AffineTransform toSquare;
    toSquare.scale(1 / double(from.size.width), 1 / double(from.size.height));
    toSquare.translate(-double(from.origin.x), -double(from.origin.y));
    return square.after(ProjectiveTransform(toSquare));
}

ProjectiveTransform ProjectiveTransform::after(const ProjectiveTransform& first) const
{
    ProjectiveTransform both;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column) {
            double sum = 0;
            for (std::size_t k = 0; k < 3; ++k) sum += m[3 * row + k] * first.m[3 * k + column];
            both.m[3 * row + column] = sum;
        }
    return both;
}

std::optional<ProjectiveTransform> ProjectiveTransform::inverted() const
{
    const auto minor = [this](std::size_t r0, std::size_t r1, std::size_t c0, std::size_t c1) {
        return m[3 * r0 + c0] * m[3 * r1 + c1] - m[3 * r0 + c1] * m[3 * r1 + c0];
    };
    ProjectiveTransform back;
    back.m = {minor(1, 2, 1, 2),  -minor(0, 2, 1, 2), minor(0, 1, 1, 2),  -minor(1, 2, 0, 2), minor(0, 2, 0, 2),
              -minor(0, 1, 0, 2), minor(1, 2, 0, 1),  -minor(0, 2, 0, 1), minor(0, 1, 0, 1)};
    const double whole = m[0] * back.m[0] + m[1] * back.m[3] + m[2] * back.m[6];
    if (!std::isfinite(whole) || whole == 0) return std::nullopt;
    // Divided by the determinant, sign and all: the divisor of an image is then one over that of its origin.
    for (double& v : back.m) v /= whole;
    return back;
}

BezierPath ProjectiveTransform::apply(const BezierPath& path) const
{
    // How much the map enlarges at most where the path is: lines that stray too little are only too many.
    double enlarged = 1;
    const Rect box = path.bounds();
    for (const float x : {box.minX(), box.maxX()})
        for (const float y : {box.minY(), box.maxY()}) {
            const CurvePoint at{double(x), double(y)};
            const double w = divisor(at);
            if (!(w > 0)) continue;
            const CurvePoint to = apply(at);
            enlarged = std::max({enlarged, std::hypot(m[0] - to.x * m[6], m[3] - to.y * m[6]) / w,
                                 std::hypot(m[1] - to.x * m[7], m[4] - to.y * m[7]) / w});
        }
    const BezierPath flat = path.flattened(float(kFlatness / enlarged));
    BezierPath mapped = flat;
    mapped.removeAllPoints();
    mapped.reserve(std::size_t(flat.elementCount()), std::size_t(flat.elementCount()));
    const auto image = [this](Point p) {
        const CurvePoint to = apply(CurvePoint{double(p.x), double(p.y)});
        return Point{float(to.x), float(to.y)};
    };
    flat.forEach([&](PathElement kind, const Point* p) {
        if (kind == PathElement::MoveTo)
            mapped.moveTo(image(*p));
        else if (kind == PathElement::LineTo)
            mapped.lineTo(image(*p));
        else
            mapped.closePath();
    });
    return mapped;
}

} // namespace zp
