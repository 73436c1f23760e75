// SPDX-License-Identifier: GPL-3.0-or-later
/// Set operations on any polygons by cutting all edges at their crossings and keeping those that bound the outcome.
#pragma once
#include "base/BezierPath.h"
#include "base/LongWait.h"
#include "selection/gpc.h"
#include <cstdint>
#include <memory>
#include <vector>

namespace zp
{

/// A corner on the grid of the set operations.
struct GridPoint {
    std::int64_t x, y;
    friend bool operator==(GridPoint, GridPoint) = default;
};
using GridLoop = std::vector<GridPoint>;

inline constexpr std::size_t kMostCutEdges = std::size_t{1} << 24;

/// What the operation leaves of two sets of closed loops, as loops that do not cross; outer ones turn from x to y,
/// holes against it. Coordinates up to 2^46. Exact but for crossings, which are rounded to the grid.
/// Time: O(n) for n edges and crossings when edges are short against the whole, as drawn and traced outlines have them;
/// a test for each pair of edges that come near each other otherwise. Memory: some 200 bytes an edge, which where all
/// cross all are as many as their square.
/// @throw std::bad_alloc also for more than kMostCutEdges edges, Stopped. Any thread.
void clipPlanar(gpc_op operation, const std::vector<GridLoop>& subject, WindingRule subjectRule,
                const std::vector<GridLoop>& clip, WindingRule clipRule, std::vector<GridLoop>& result);

/// Who is asked whether an operation that takes long shall go on. Null: nobody. Main thread, before the first one.
void setClipWait(std::unique_ptr<LongWait> (*wait)());

} // namespace zp
