// SPDX-License-Identifier: GPL-3.0-or-later
/// Composition and inversion of affine maps; turns by right angles are exact.
#include "base/AffineTransform.h"
#include <cmath>
#include <limits>
#include <numbers>

namespace zp
{

namespace
{
AffineTransform rotation(double cosine, double sine) { return {cosine, sine, -sine, cosine, 0, 0}; }
} // namespace

void AffineTransform::translate(double dx, double dy)
{
    tX += m11 * dx + m21 * dy;
    tY += m12 * dx + m22 * dy;
}

void AffineTransform::scale(double sx, double sy)
{
    m11 *= sx, m12 *= sx;
    m21 *= sy, m22 *= sy;
}

void AffineTransform::rotateByRadians(double angle) { prepend(rotation(std::cos(angle), std::sin(angle))); }

void AffineTransform::rotateByDegrees(double angle)
{
    // Right angles without the rounding of pi: a picture turned by 90 degrees must land on whole pixels.
    const double turn = std::fmod(angle, 360.0);
    if (turn == 0) return;
    if (turn == 90 || turn == -270) return prepend(rotation(0, 1));
    if (turn == 180 || turn == -180) return prepend(rotation(-1, 0));
    if (turn == 270 || turn == -90) return prepend(rotation(0, -1));
    rotateByRadians(turn * (std::numbers::pi / 180));
}

void AffineTransform::prepend(const AffineTransform& first)
{
    const AffineTransform t = *this;
    m11 = t.m11 * first.m11 + t.m21 * first.m12;
    m12 = t.m12 * first.m11 + t.m22 * first.m12;
    m21 = t.m11 * first.m21 + t.m21 * first.m22;
    m22 = t.m12 * first.m21 + t.m22 * first.m22;
    tX = t.m11 * first.tX + t.m21 * first.tY + t.tX;
    tY = t.m12 * first.tX + t.m22 * first.tY + t.tY;
}

void AffineTransform::append(const AffineTransform& then)
{
    AffineTransform t = then;
    t.prepend(*this);
    *this = t;
}

AffineTransform AffineTransform::inverted(bool* ok) const
{
    const double determinant = m11 * m22 - m12 * m21;
    const double reciprocal = 1 / determinant;
    const bool invertible = determinant != 0 && std::isfinite(determinant) && std::isfinite(reciprocal);
    if (ok) *ok = invertible;
    if (!invertible) return {};
    AffineTransform r{m22 * reciprocal, -m12 * reciprocal, -m21 * reciprocal, m11 * reciprocal, 0, 0};
    r.tX = -(r.m11 * tX + r.m21 * tY);
    r.tY = -(r.m12 * tX + r.m22 * tY);
    return r;
}

Rect AffineTransform::apply(Rect r) const
{
    const Point corners[4] = {apply(Point{r.minX(), r.minY()}), apply(Point{r.maxX(), r.minY()}),
                              apply(Point{r.minX(), r.maxY()}), apply(Point{r.maxX(), r.maxY()})};
    Point near = corners[0], far = corners[0];
    for (const Point c : corners) {
        near = {std::min(near.x, c.x), std::min(near.y, c.y)};
        far = {std::max(far.x, c.x), std::max(far.y, c.y)};
    }
    return {near, {far.x - near.x, far.y - near.y}};
}

bool AffineTransform::isIntegerTranslation() const
{
    return m11 == 1 && m12 == 0 && m21 == 0 && m22 == 1 && std::floor(tX) == tX && std::floor(tY) == tY &&
           std::isfinite(tX) && std::isfinite(tY);
}

} // namespace zp
