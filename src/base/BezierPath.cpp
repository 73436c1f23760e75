// SPDX-License-Identifier: GPL-3.0-or-later
/// Building, measuring and flattening outlines.
#include "base/BezierPath.h"
#include "base/BezierFlatten.h"
#include <cstring>
#include <limits>

namespace zp
{

namespace
{
/// Control arms of a quarter circle of radius 1, for the least radial error with exact ends and middle.
constexpr float kCircleArm = 0.5522847498f;
constexpr double kLeastTolerance = 1e-4;

CurvePoint wide(Point p) { return {double(p.x), double(p.y)}; }

/// Collects a bounding box; comparisons with NaN are false, so broken coordinates do not enter.
struct Extent {
    double x0 = std::numeric_limits<double>::infinity(), y0 = x0, x1 = -x0, y1 = -x0;
    void include(CurvePoint p)
    {
        if (p.x < x0) x0 = p.x;
        if (p.x > x1) x1 = p.x;
        if (p.y < y0) y0 = p.y;
        if (p.y > y1) y1 = p.y;
    }
};

/// The parameters in (0, 1) at which one coordinate of a cubic turns round. @return how many
int turningPoints(double p0, double p1, double p2, double p3, double (&t)[2])
{
    const double a = p3 - p0 + 3 * (p1 - p2), b = 2 * (p0 - 2 * p1 + p2), c = p1 - p0;
    int count = 0;
    const auto keep = [&](double v) {
        if (v > 0 && v < 1) t[count++] = v;
    };
    if (std::abs(a) < 1e-12) {
        if (b != 0) keep(-c / b);
        return count;
    }
    const double under = b * b - 4 * a * c;
    if (!(under >= 0)) return 0;
    const double q = -0.5 * (b + std::copysign(std::sqrt(under), b));
    keep(q / a);
    if (q != 0) keep(c / q);
    return count;
}

/// How an edge's upward or downward crossing of the half line from @p p to the right counts.
int crossing(CurvePoint a, CurvePoint b, CurvePoint p)
{
    if ((a.y <= p.y) == (b.y <= p.y)) return 0;
    const double x = a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y);
    if (!(x > p.x)) return 0;
    return b.y > a.y ? 1 : -1;
}

int curveCrossings(CurvePoint p0, CurvePoint c1, CurvePoint c2, CurvePoint p3, CurvePoint p)
{
    const auto [yMin, yMax] = std::minmax({p0.y, c1.y, c2.y, p3.y});
    const auto [xMin, xMax] = std::minmax({p0.x, c1.x, c2.x, p3.x});
    if (!(yMin <= p.y && yMax >= p.y) || xMax <= p.x) return 0;
    if (xMin > p.x) return crossing(p0, p3, p);
    int count = 0;
    CurvePoint from = p0;
    flattenCurve(p0, c1, c2, p3, 0.005, [&](CurvePoint to) {
        count += crossing(from, to, p);
        from = to;
    });
    return count;
}
} // namespace

BezierPath BezierPath::withRect(Rect r)
{
    BezierPath path;
    path.appendRect(r);
    return path;
}

BezierPath BezierPath::withOvalInRect(Rect r)
{
    BezierPath path;
    path.appendOvalInRect(r);
    return path;
}

void BezierPath::moveTo(Point p)
{
    mBoundsKnown = false;
    if (!mKinds.empty() && mKinds.back() == PathElement::MoveTo) {
        mPoints.back() = p;
        return;
    }
    mSubpathStart = mPoints.size();
    mKinds.push_back(PathElement::MoveTo);
    mPoints.push_back(p);
}

void BezierPath::reopen()
{
    // What follows a close starts where that subpath did; said by an element, so that no reader needs to know.
    if (mKinds.back() == PathElement::ClosePath) moveTo(mPoints[mSubpathStart]);
}

void BezierPath::lineTo(Point p)
{
    if (mKinds.empty()) return;
    reopen();
    mBoundsKnown = false;
    mKinds.push_back(PathElement::LineTo);
    mPoints.push_back(p);
}

void BezierPath::curveTo(Point p, Point control1, Point control2)
{
    if (mKinds.empty()) return;
    reopen();
    mBoundsKnown = false;
    mKinds.push_back(PathElement::CurveTo);
    mPoints.insert(mPoints.end(), {control1, control2, p});
}

void BezierPath::closePath()
{
    if (mKinds.empty() || mKinds.back() == PathElement::ClosePath) return;
    mKinds.push_back(PathElement::ClosePath);
}

void BezierPath::appendRect(Rect r)
{
    moveTo(r.origin);
    lineTo({r.maxX(), r.minY()});
    lineTo({r.maxX(), r.maxY()});
    lineTo({r.minX(), r.maxY()});
    closePath();
}

void BezierPath::appendOvalInRect(Rect r)
{
    const Point c = r.center();
    const float ax = r.size.width * 0.5f * kCircleArm, ay = r.size.height * 0.5f * kCircleArm;
    moveTo({r.maxX(), c.y});
    curveTo({c.x, r.maxY()}, {r.maxX(), c.y + ay}, {c.x + ax, r.maxY()});
    curveTo({r.minX(), c.y}, {c.x - ax, r.maxY()}, {r.minX(), c.y + ay});
    curveTo({c.x, r.minY()}, {r.minX(), c.y - ay}, {c.x - ax, r.minY()});
    curveTo({r.maxX(), c.y}, {c.x + ax, r.minY()}, {r.maxX(), c.y - ay});
    closePath();
}

void BezierPath::append(const BezierPath& other)
{
    if (other.mKinds.empty()) return;
    if (&other == this) return append(BezierPath(other));
    mBoundsKnown = false;
    if (!mKinds.empty() && mKinds.back() == PathElement::MoveTo) {
        mKinds.pop_back();
        mPoints.pop_back();
        mOffsets.resize(std::min(mOffsets.size(), mKinds.size()));
    }
    mSubpathStart = mPoints.size() + other.mSubpathStart;
    mKinds.insert(mKinds.end(), other.mKinds.begin(), other.mKinds.end());
    mPoints.insert(mPoints.end(), other.mPoints.begin(), other.mPoints.end());
}

void BezierPath::appendPolygon(std::span<const Point> points)
{
    if (points.empty()) return;
    moveTo(points[0]);
    mKinds.insert(mKinds.end(), points.size() - 1, PathElement::LineTo);
    mPoints.insert(mPoints.end(), points.begin() + 1, points.end());
    mKinds.push_back(PathElement::ClosePath);
}

void BezierPath::reserve(std::size_t elements, std::size_t points)
{
    mKinds.reserve(elements);
    mPoints.reserve(points);
}

bool BezierPath::hasSameElements(const BezierPath& other) const
{
    return mKinds == other.mKinds && mPoints.size() == other.mPoints.size() &&
           (mPoints.empty() || std::memcmp(mPoints.data(), other.mPoints.data(), mPoints.size() * sizeof(Point)) == 0);
}

void BezierPath::removeAllPoints()
{
    mKinds.clear();
    mPoints.clear();
    mOffsets.clear();
    mSubpathStart = 0;
    mBoundsKnown = false;
}

std::size_t BezierPath::pointIndex(std::size_t element) const
{
    // Extended as far as asked, so that a walk costs O(elements) in all.
    while (mOffsets.size() <= element) {
        const std::size_t next = mOffsets.size();
        std::uint32_t offset = 0;
        if (next > 0) {
            // Of a close the start of its subpath is kept, so the end of the one before it has to be looked up.
            std::size_t last = next - 1;
            if (mKinds[last] == PathElement::ClosePath) --last;
            offset = mOffsets[last] + (mKinds[last] == PathElement::CurveTo ? 3u : 1u);
        }
        if (mKinds[next] == PathElement::MoveTo) mOffsetSubpath = offset;
        mOffsets.push_back(mKinds[next] == PathElement::ClosePath ? mOffsetSubpath : offset);
    }
    return mOffsets[element];
}

PathElement BezierPath::elementAt(int index, std::array<Point, 3>& points) const
{
    const PathElement kind = mKinds[std::size_t(index)];
    const std::size_t at = pointIndex(std::size_t(index));
    points[0] = mPoints[at];
    if (kind == PathElement::CurveTo) points[1] = mPoints[at + 1], points[2] = mPoints[at + 2];
    return kind;
}

void BezierPath::setAssociatedPoints(std::span<const Point> points, int index)
{
    const PathElement kind = mKinds[std::size_t(index)];
    if (kind == PathElement::ClosePath) return;
    const std::size_t at = pointIndex(std::size_t(index));
    const std::size_t count = std::min<std::size_t>(points.size(), kind == PathElement::CurveTo ? 3 : 1);
    std::copy_n(points.begin(), count, mPoints.begin() + std::ptrdiff_t(at));
    mBoundsKnown = false;
}

Point BezierPath::currentPoint() const
{
    if (mKinds.empty()) return {};
    return mKinds.back() == PathElement::ClosePath ? mPoints[mSubpathStart] : mPoints.back();
}

Rect BezierPath::bounds() const
{
    if (mBoundsKnown) return mBounds;
    Extent box;
    CurvePoint from;
    forEach([&](PathElement kind, const Point* p) {
        if (kind == PathElement::ClosePath) return;
        if (kind == PathElement::CurveTo) {
            const CurvePoint c1 = wide(p[0]), c2 = wide(p[1]), to = wide(p[2]);
            double t[4];
            double tx[2], ty[2];
            int count = 0;
            for (int i = 0, n = turningPoints(from.x, c1.x, c2.x, to.x, tx); i < n; ++i) t[count++] = tx[i];
            for (int i = 0, n = turningPoints(from.y, c1.y, c2.y, to.y, ty); i < n; ++i) t[count++] = ty[i];
            for (int i = 0; i < count; ++i) box.include(pointOnCurve(from, c1, c2, to, t[i]));
            p += 2;
        }
        from = wide(*p);
        box.include(from);
    });
    mBounds = box.x1 >= box.x0 && box.y1 >= box.y0
                  ? Rect{{float(box.x0), float(box.y0)}, {float(box.x1 - box.x0), float(box.y1 - box.y0)}}
                  : Rect{};
    mBoundsKnown = true;
    return mBounds;
}

bool BezierPath::contains(Point point) const
{
    const CurvePoint p = wide(point);
    CurvePoint start, from;
    int winding = 0;
    forEach([&](PathElement kind, const Point* q) {
        switch (kind) {
        case PathElement::MoveTo:
            winding += crossing(from, start, p); // an open subpath counts as closed
            start = from = wide(*q);
            break;
        case PathElement::LineTo:
            winding += crossing(from, wide(*q), p);
            from = wide(*q);
            break;
        case PathElement::CurveTo:
            winding += curveCrossings(from, wide(q[0]), wide(q[1]), wide(q[2]), p);
            from = wide(q[2]);
            break;
        case PathElement::ClosePath:
            winding += crossing(from, start, p);
            from = start;
            break;
        }
    });
    winding += crossing(from, start, p);
    return mWinding == WindingRule::EvenOdd ? (winding & 1) != 0 : winding != 0;
}

BezierPath BezierPath::flattened() const { return flattened(mFlatness); }

BezierPath BezierPath::flattened(float tolerance) const
{
    const double within = double(tolerance) > kLeastTolerance ? double(tolerance) : kLeastTolerance;
    BezierPath flat;
    flat.mWinding = mWinding, flat.mJoin = mJoin, flat.mCap = mCap;
    flat.mFlatness = mFlatness, flat.mLineWidth = mLineWidth, flat.mMiterLimit = mMiterLimit;
    flat.mDash = mDash, flat.mDashPhase = mDashPhase;
    flat.mKinds.reserve(mKinds.size());
    flat.mPoints.reserve(mPoints.size());
    CurvePoint from;
    forEach([&](PathElement kind, const Point* p) {
        switch (kind) {
        case PathElement::MoveTo:
            flat.moveTo(*p);
            break;
        case PathElement::LineTo:
            flat.lineTo(*p);
            break;
        case PathElement::CurveTo:
            flattenCurve(from, wide(p[0]), wide(p[1]), wide(p[2]), within, [&](CurvePoint to) {
                flat.lineTo({float(to.x), float(to.y)});
            });
            p += 2;
            break;
        case PathElement::ClosePath:
            flat.closePath();
            from = wide(flat.currentPoint());
            return;
        }
        from = wide(*p);
    });
    return flat;
}

void BezierPath::transform(const AffineTransform& t)
{
    for (Point& p : mPoints) p = t.apply(p);
    mBoundsKnown = false;
}

void BezierPath::setLineDash(std::span<const float> pattern, float phase)
{
    mDash.assign(pattern.begin(), pattern.end());
    mDashPhase = phase;
}

} // namespace zp
