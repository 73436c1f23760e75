// SPDX-License-Identifier: GPL-3.0-or-later
/// Curves into lines, with a bound on how far the lines stray.
#pragma once
#include "base/Geometry.h"

namespace zp
{

/// Points of double precision, for maps of paths before they are cut to pixels.
struct CurvePoint {
    double x = 0, y = 0;
};

/// How many equal steps of the parameter keep the chords of a cubic within @p tolerance of it (the bound by its second
/// differences). At least 1, at most 4,096; broken coordinates give 1.
inline int curveStepCount(CurvePoint p0, CurvePoint c1, CurvePoint c2, CurvePoint p3, double tolerance)
{
    const double a = std::hypot(p0.x - 2 * c1.x + c2.x, p0.y - 2 * c1.y + c2.y);
    const double b = std::hypot(c1.x - 2 * c2.x + p3.x, c1.y - 2 * c2.y + p3.y);
    const double steps = std::ceil(std::sqrt(0.75 * std::max(a, b) / tolerance));
    return steps >= 1 && steps <= 4096 ? int(steps) : steps > 4096 && std::isfinite(steps) ? 4096 : 1;
}

inline CurvePoint pointOnCurve(CurvePoint p0, CurvePoint c1, CurvePoint c2, CurvePoint p3, double t)
{
    const double s = 1 - t, w0 = s * s * s, w1 = 3 * s * s * t, w2 = 3 * s * t * t, w3 = t * t * t;
    return {w0 * p0.x + w1 * c1.x + w2 * c2.x + w3 * p3.x, w0 * p0.y + w1 * c1.y + w2 * c2.y + w3 * p3.y};
}

/// Calls f(point) for each chord's end; the last is exactly @p p3.
template <class F>
void flattenCurve(CurvePoint p0, CurvePoint c1, CurvePoint c2, CurvePoint p3, double tolerance, F&& f)
{
    const int steps = curveStepCount(p0, c1, c2, p3, tolerance);
    for (int i = 1; i < steps; ++i) f(pointOnCurve(p0, c1, c2, p3, double(i) / steps));
    f(p3);
}

} // namespace zp
