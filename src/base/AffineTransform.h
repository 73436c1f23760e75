// SPDX-License-Identifier: GPL-3.0-or-later
/// An affine map of the plane, built call by call: each call is applied to points before the ones made earlier.
#pragma once
#include "base/Geometry.h"

namespace zp
{

/// x' = m11 x + m21 y + tX, y' = m12 x + m22 y + tY, in double precision.
struct AffineTransform {
    double m11 = 1, m12 = 0, m21 = 0, m22 = 1, tX = 0, tY = 0;

    /// Moves points by (dx, dy) before all that the transform did so far.
    void translate(double dx, double dy);
    void scale(double sx, double sy);
    /// Turns from the x axis towards the y axis.
    void rotateByRadians(double angle);
    void rotateByDegrees(double angle);
    /// Applies @p first to points before this transform.
    void prepend(const AffineTransform& first);
    /// Applies @p then to points after this transform.
    void append(const AffineTransform& then);
    /// The map back. A map that flattens the plane has none: the identity is returned and @p ok, if given, set false.
    AffineTransform inverted(bool* ok = nullptr) const;

    Point apply(Point p) const
    {
        return {float(m11 * double(p.x) + m21 * double(p.y) + tX), float(m12 * double(p.x) + m22 * double(p.y) + tY)};
    }
    /// The bounding box of the rectangle's image.
    Rect apply(Rect r) const;
    bool isIdentity() const { return *this == AffineTransform{}; }
    /// Only a shift, by whole numbers.
    bool isIntegerTranslation() const;
    friend bool operator==(const AffineTransform&, const AffineTransform&) = default;
};

} // namespace zp
