// SPDX-License-Identifier: GPL-3.0-or-later
/// The exact share of every pixel that a polygon covers, row by row.
#pragma once
#include "base/AffineTransform.h"
#include "base/BezierFlatten.h"
#include "base/BezierPath.h"
#include "base/Geometry.h"
#include <cstdint>
#include <vector>

namespace zp
{

/// Receives a row's coverage from left to right. Pixels that nobody reports are not covered.
class CoverageSink
{
public:
    virtual ~CoverageSink() = default;
    /// Pixels [x0, x1) of row @p y are covered whole.
    virtual void solid(int y, int x0, int x1) = 0;
    /// Pixels [x0, x1) of row @p y are covered by cover[0], cover[1], … of 255, zeros among them.
    virtual void partial(int y, int x0, int x1, const std::uint8_t* cover) = 0;
    /// An edge will soon be reported near this pixel of the box: time to fetch its memory.
    virtual void expect(int /*y*/, int /*x*/) {}
};

/// Collects edges, then walks the rows once. Area is counted in whole numbers, so closed outlines add up to nothing
/// outside themselves, and an outline shifted by whole pixels gives the same bytes, whatever box it is cut to.
/// Time: O(edges + rows they cross + pixels they touch + rows); long covered runs cost a call each.
class CoverageRaster
{
public:
    /// Only pixels of @p box are reported; edges may lie anywhere.
    explicit CoverageRaster(PixelBox box);

    void moveTo(CurvePoint p);
    void lineTo(CurvePoint p);
    void closeSubpath();
    /// The path's points through @p transform, curves within a hundredth of a pixel; open subpaths are closed.
    void addPath(const BezierPath& path, const AffineTransform& transform);
    /// Whether a coordinate was not a number; then sweep() reports nothing.
    bool isBroken() const { return mBroken; }
    /// The pixels that may be covered, inside the box.
    PixelBox extent() const;

    /// @param antialias when false, pixels covered by half or more are covered whole and the others not at all
    void sweep(WindingRule rule, bool antialias, CoverageSink& sink);
    /// The same on all cores: the sink hears of different rows from several threads at once, each row from one of them.
    void sweepInBands(WindingRule rule, bool antialias, CoverageSink& sink);

private:
    /// 2^-16 pixels; top end first. The sign says which way the outline ran.
    struct Edge {
        std::int64_t x0, x1;
        std::int64_t y0, y1;
        std::int32_t sign;
    };
    void addEdge(CurvePoint a, CurvePoint b);
    void addFixed(std::int64_t x0, std::int64_t y0, std::int64_t x1, std::int64_t y1);

    /// The edges in the order of the row they begin in (those that begin above the box, in its first).
    struct Order {
        std::vector<std::uint32_t> edges;
        std::vector<std::uint32_t> starts; ///< where each row's edges begin among them
    };
    Order sorted(PixelBox box) const;
    /// Rows [first, last) of @p box, counted from its top.
    void sweepRows(PixelBox box, const Order& order, int first, int last, WindingRule rule, bool antialias,
                   CoverageSink& sink) const;

    PixelBox mBox;
    std::vector<Edge> mEdges;
    CurvePoint mStart, mPen;
    bool mOpen = false, mBroken = false;
    std::int64_t mMinX = INT64_MAX, mMinY = INT64_MAX, mMaxX = INT64_MIN, mMaxY = INT64_MIN;
};

} // namespace zp
