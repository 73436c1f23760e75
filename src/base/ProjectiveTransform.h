// SPDX-License-Identifier: GPL-3.0-or-later
/// A map of the plane that keeps lines straight but not parallel: what a flat thing looks like from aslant.
#pragma once
#include "base/AffineTransform.h"
#include "base/BezierFlatten.h"
#include "base/BezierPath.h"
#include <array>
#include <optional>

namespace zp
{

/// Whether four corners, in turn either way round, are those of a convex shape with some area (a hundredth of a square
/// pixel) at each of them.
bool isConvex(const std::array<CurvePoint, 4>& corners);

/// (x, y) goes to (m[0] x + m[1] y + m[2], m[3] x + m[4] y + m[5]) / (m[6] x + m[7] y + m[8]), in double precision.
/// Places whose divisor is not above zero lie beyond the horizon and have no image.
struct ProjectiveTransform {
    std::array<double, 9> m{1, 0, 0, 0, 1, 0, 0, 0, 1};

    ProjectiveTransform() = default;
    explicit ProjectiveTransform(const AffineTransform& t) : m{t.m11, t.m21, t.tX, t.m12, t.m22, t.tY, 0, 0, 1} {}
    /// The map of the rectangle @p from onto the four corners @p to, in the order upper left, upper right, lower right,
    /// lower left. The divisor is 1 at the first of them.
    /// @return nothing for a rectangle without area, and for corners that are not those of a convex shape with some
    ///         area at each of them, or so aslant that one is a hundred times as far away as another
    static std::optional<ProjectiveTransform> ofRect(Rect from, const std::array<CurvePoint, 4>& to);

    /// First @p first, then this.
    ProjectiveTransform after(const ProjectiveTransform& first) const;
    /// The map back, where the divisor of what this maps is above zero. @return nothing when the map flattens the plane
    std::optional<ProjectiveTransform> inverted() const;

    double divisor(CurvePoint p) const { return m[6] * p.x + m[7] * p.y + m[8]; }
    /// Only where the divisor is above zero.
    CurvePoint apply(CurvePoint p) const
    {
        const double w = 1 / divisor(p);
        return {(m[0] * p.x + m[1] * p.y + m[2]) * w, (m[3] * p.x + m[4] * p.y + m[5]) * w};
    }
    /// The path's image, curves as lines that stray less than a twentieth of a pixel of either side; its settings are
    /// kept. All of it must lie before the horizon.
    BezierPath apply(const BezierPath& path) const;
};

} // namespace zp
