// SPDX-License-Identifier: GPL-3.0-or-later
/// An outline of lines and curves with the drawing settings that travel with it.
#pragma once
#include "base/AffineTransform.h"
#include "base/Geometry.h"
#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace zp
{

enum class PathElement : std::uint8_t { MoveTo = 0, LineTo = 1, CurveTo = 2, ClosePath = 3 };
enum class WindingRule : std::uint8_t { NonZero = 0, EvenOdd = 1 };
enum class LineJoin : std::uint8_t { Miter = 0, Round = 1, Bevel = 2 };
enum class LineCap : std::uint8_t { Butt = 0, Round = 1, Square = 2 };

/// A value: copies are independent. Coordinates are single precision, in whatever space the owner uses.
/// Not thread-safe, but distinct objects are independent. Storage is two flat arrays: 1 byte an element, 8 a point.
class BezierPath
{
public:
    static BezierPath withRect(Rect r);
    /// The oval inscribed in @p r: four curves, closed.
    static BezierPath withOvalInRect(Rect r);

    /// Starts a subpath. Of two in a row only the last stays.
    void moveTo(Point p);
    /// Lines and curves without a starting point are ignored.
    void lineTo(Point p);
    void curveTo(Point p, Point control1, Point control2);
    /// Ends the subpath; the pen is back at its start. A second close in a row does nothing.
    void closePath();
    /// Move, three lines, close: corners (x, y), (x+w, y), (x+w, y+h), (x, y+h).
    void appendRect(Rect r);
    void appendOvalInRect(Rect r);
    void append(const BezierPath& other);
    /// A closed subpath through the points: move, lines, close. The same as those calls, in one copy; nothing when
    /// empty.
    void appendPolygon(std::span<const Point> points);
    void removeAllPoints();
    /// Room for so many in all, to spare growing by steps.
    void reserve(std::size_t elements, std::size_t points);

    int elementCount() const { return int(mKinds.size()); }
    bool isEmpty() const { return mKinds.empty(); }
    PathElement elementAt(int index) const { return mKinds[std::size_t(index)]; }
    /// The element's own points: 1 for a move or line, 3 for a curve (control, control, end), for a close the start of
    /// its subpath. @return the kind. O(1) amortised; the first call after a change builds an index of 4 bytes an
    /// element.
    PathElement elementAt(int index, std::array<Point, 3>& points) const;
    /// Rewrites the points of an element (1 or 3 of them; a close has none to rewrite).
    void setAssociatedPoints(std::span<const Point> points, int index);
    Point currentPoint() const;
    /// Direct walk over all elements without index arithmetic: f(kind, pointer to the element's points).
    template <class F>
    void forEach(F&& f) const
    {
        const Point* p = mPoints.data();
        for (const PathElement kind : mKinds) {
            f(kind, p);
            p += kind == PathElement::CurveTo ? 3 : kind == PathElement::ClosePath ? 0 : 1;
        }
    }

    /// Whether both have the same elements with the same points, to the bit; settings are not compared. A reading pass.
    bool hasSameElements(const BezierPath& other) const;
    /// Tight bounding box (of the curves, not of their control points), a lone move included; zero when empty.
    /// Remembered until the path changes.
    Rect bounds() const;
    /// Inside by the winding rule; open subpaths count as closed. O(elements).
    bool contains(Point p) const;
    /// Every curve replaced by lines that stay within flatness() of it. Settings are copied.
    BezierPath flattened() const;
    /// Same, but within @p tolerance.
    BezierPath flattened(float tolerance) const;
    /// Changes every point in place.
    void transform(const AffineTransform& t);

    WindingRule windingRule() const { return mWinding; }
    void setWindingRule(WindingRule rule) { mWinding = rule; }
    float flatness() const { return mFlatness; }
    void setFlatness(float flatness) { mFlatness = flatness; }
    float lineWidth() const { return mLineWidth; }
    void setLineWidth(float width) { mLineWidth = width; }
    LineJoin lineJoin() const { return mJoin; }
    void setLineJoin(LineJoin join) { mJoin = join; }
    LineCap lineCap() const { return mCap; }
    void setLineCap(LineCap cap) { mCap = cap; }
    float miterLimit() const { return mMiterLimit; }
    void setMiterLimit(float limit) { mMiterLimit = limit; }
    /// Alternating drawn and skipped lengths. Empty, or of total length 0: a solid line.
    void setLineDash(std::span<const float> pattern, float phase);
    const std::vector<float>& lineDash() const { return mDash; }
    float dashPhase() const { return mDashPhase; }

private:
    std::vector<PathElement> mKinds;
    std::vector<Point> mPoints;
    WindingRule mWinding = WindingRule::NonZero;
    LineJoin mJoin = LineJoin::Miter;
    LineCap mCap = LineCap::Butt;
    float mFlatness = 0.6f, mLineWidth = 1, mMiterLimit = 10, mDashPhase = 0;
    std::vector<float> mDash;
    std::size_t mSubpathStart = 0; ///< index of the last subpath's first point
    mutable bool mBoundsKnown = false;
    mutable Rect mBounds;
    /// Where each element's points start, as far as anyone asked; for a close, where its subpath starts.
    mutable std::vector<std::uint32_t> mOffsets;
    mutable std::uint32_t mOffsetSubpath = 0;

    void reopen();
    std::size_t pointIndex(std::size_t element) const;
};

} // namespace zp
