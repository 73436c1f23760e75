// SPDX-License-Identifier: GPL-3.0-or-later
/// Edges that meet in end points only: the crossings of any set of edges found and cut, on a whole-number grid.
#pragma once
#include "selection/PlanarClip.h"
#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

namespace zp
{

/// A directed edge and how much the winding numbers grow from its right side to its left (in coordinates whose y grows
/// upwards; the other way round where y grows downwards, which changes nothing).
struct GridEdge {
    GridPoint a, b;
    std::int32_t subject, clip;
};

__extension__ typedef __int128 WideInteger;

/// Twice the signed area of the triangle: above 0 when @p c lies left of a to b. Exact.
inline WideInteger turn(GridPoint a, GridPoint b, GridPoint c)
{
    return WideInteger(b.x - a.x) * (c.y - a.y) - WideInteger(b.y - a.y) * (c.x - a.x);
}

/// Squares over the plane, each with the edges that may touch it.
class EdgeGrid
{
public:
    /// Both stay with the caller. Cells are made about as many as edges.
    void build(const std::vector<GridEdge>& edges);
    int columns() const { return mColumns; }
    int rows() const { return mRows; }
    int columnOf(std::int64_t x) const { return cell(x, mX0, mColumns); }
    int rowOf(std::int64_t y) const { return cell(y, mY0, mRows); }
    std::int64_t leftOf(int column) const { return mX0 + std::int64_t(double(column) * mCellSize); }
    struct Range {
        const std::uint32_t *first, *last;
        const std::uint32_t* begin() const { return first; }
        const std::uint32_t* end() const { return last; }
    };
    Range at(int column, int row) const
    {
        const std::size_t c = std::size_t(row) * std::size_t(mColumns) + std::size_t(column);
        return {mEntries.data() + mStarts[c], mEntries.data() + mStarts[c + 1]};
    }

private:
    int cell(std::int64_t v, std::int64_t origin, int count) const
    {
        const double c = double(v - origin) * mPerUnit;
        return c <= 0 ? 0 : c >= count - 1 ? count - 1 : int(c);
    }
    template <class F>
    void forEachCell(const GridEdge& edge, F&& f) const;
    std::int64_t mX0 = 0, mY0 = 0;
    double mCellSize = 1, mPerUnit = 1;
    int mColumns = 1, mRows = 1;
    std::vector<std::uint32_t> mStarts, mEntries;
};

/// Asks now and then whether the work shall go on.
class Asking
{
public:
    explicit Asking(std::unique_ptr<LongWait> wait) : mWait(std::move(wait)) {}
    /// To be called after each piece of work of some microseconds at most. @throw Stopped
    void step()
    {
        if (++mSteps % kStepsUnasked == 0) ask();
    }

private:
    static constexpr unsigned kStepsUnasked = 1024;
    void ask();
    std::unique_ptr<LongWait> mWait;
    unsigned mSteps = 0;
    std::chrono::steady_clock::time_point mAsked = std::chrono::steady_clock::now();
};

/// Cuts the edges until none crosses or touches another but at common ends; @p grid is left standing over the outcome.
/// A crossing moves to the nearest grid point, and its edges with it, so that all is looked at again until nothing is
/// left to cut: two or three times. It always comes to an end: a cut lies in the box of its edge, so the pieces are
/// together as wide and as high as the edge was, and none is shorter than a step of the grid.
/// @throw std::bad_alloc also for more than kMostCutEdges edges, Stopped
void cutAtCrossings(std::vector<GridEdge>& edges, EdgeGrid& grid, Asking& asking);

} // namespace zp
