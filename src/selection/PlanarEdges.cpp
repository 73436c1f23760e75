// SPDX-License-Identifier: GPL-3.0-or-later
/// Finding crossings by a grid of cells, cutting edges there, and again until nothing crosses.
#include "selection/PlanarEdges.h"
#include "base/WorkPool.h"
#include <algorithm>
#include <atomic>
#include <cmath>
#include <new>
#include <thread>

namespace zp
{

namespace
{

constexpr double kMostCells = 4.0 * 1024 * 1024;

struct Cut {
    std::uint32_t edge;
    GridPoint at;
};

/// Inside the box of a to b, its corners included.
bool inBox(GridPoint a, GridPoint b, GridPoint p)
{
    return p.x >= std::min(a.x, b.x) && p.x <= std::max(a.x, b.x) && p.y >= std::min(a.y, b.y) &&
           p.y <= std::max(a.y, b.y);
}

int signOf(WideInteger v) { return v > 0 ? 1 : v < 0 ? -1 : 0; }

/// @param isHere  whether a crossing lies in the cell that is looked at. Two edges may share many cells, and do share
/// that one: rounding moves a crossing by half a step, and cells list what comes a whole one near.
template <class IsHere>
void cutPair(const std::vector<GridEdge>& edges, std::uint32_t i, std::uint32_t j, const IsHere& isHere,
             std::vector<Cut>& cuts)
{
    const GridEdge &e = edges[i], &f = edges[j];
    if (std::max(e.a.x, e.b.x) < std::min(f.a.x, f.b.x) || std::max(f.a.x, f.b.x) < std::min(e.a.x, e.b.x) ||
        std::max(e.a.y, e.b.y) < std::min(f.a.y, f.b.y) || std::max(f.a.y, f.b.y) < std::min(e.a.y, e.b.y))
        return;
    const WideInteger fa = turn(e.a, e.b, f.a), fb = turn(e.a, e.b, f.b);
    const int fromA = signOf(fa), fromB = signOf(fb);
    if (fromA * fromB > 0) return;
    const int ea = signOf(turn(f.a, f.b, e.a)), eb = signOf(turn(f.a, f.b, e.b));
    if (ea * eb > 0) return;
    const auto touch = [&](std::uint32_t edge, GridPoint p) {
        if (p != edges[edge].a && p != edges[edge].b) cuts.push_back({edge, p});
    };
    if (fromA * fromB < 0 && ea * eb < 0) {
        // How far from f.a to f.b; the rounding that follows is coarser than what double precision loses.
        const double t = double(fa) / (double(fa) - double(fb));
        const GridPoint p{f.a.x + std::llround(t * double(f.b.x - f.a.x)),
                          f.a.y + std::llround(t * double(f.b.y - f.a.y))};
        if (isHere(p)) touch(i, p), touch(j, p);
        return;
    }
    if (fromA == 0 && inBox(e.a, e.b, f.a)) touch(i, f.a);
    if (fromB == 0 && inBox(e.a, e.b, f.b)) touch(i, f.b);
    if (ea == 0 && inBox(f.a, f.b, e.a)) touch(j, e.a);
    if (eb == 0 && inBox(f.a, f.b, e.b)) touch(j, e.b);
}

using FoundCuts = std::vector<std::vector<Cut>>; ///< of some rows of cells each

/// In the order in which they come from a point far back along (dx, dy).
template <class Integer, class Iterator>
void sortAlong(Iterator first, Iterator last, Integer dx, Integer dy)
{
    std::sort(first, last, [&](GridPoint p, GridPoint q) {
        const Integer along = dx * (p.x - q.x) + dy * (p.y - q.y);
        if (along != 0) return along < 0;
        return p.x != q.x ? p.x < q.x : p.y < q.y;
    });
}

/// Replaces each edge that has cuts by its pieces, which go to the end. @return the first of the new ones
std::size_t apply(const FoundCuts& cuts, std::vector<GridEdge>& edges, Asking& asking)
{
    std::vector<std::uint32_t> starts(edges.size() + 1);
    std::size_t count = 0;
    for (const auto& band : cuts) {
        count += band.size();
        for (const Cut& cut : band) ++starts[cut.edge + 1];
    }
    for (std::size_t i = 0; i < edges.size(); ++i) starts[i + 1] += starts[i];
    std::vector<GridPoint> sorted(count);
    {
        std::vector<std::uint32_t> next(starts.begin(), starts.end() - 1);
        for (const auto& band : cuts)
            for (const Cut& cut : band) sorted[next[cut.edge]++] = cut.at;
    }
    std::vector<GridEdge> pieces;
    pieces.reserve(count * 2);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const GridEdge edge = edges[i];
        asking.step();
        if (starts[i] == starts[i + 1]) {
            edges[kept++] = edge;
            continue;
        }
        const auto first = sorted.begin() + starts[i], last = sorted.begin() + starts[i + 1];
        if (last - first > 1) {
            const std::int64_t dx = edge.b.x - edge.a.x, dy = edge.b.y - edge.a.y;
            // All points lie in the edge's box, and mostly that is small enough for plain products.
            if (std::max(std::abs(dx), std::abs(dy)) < std::int64_t{1} << 31)
                sortAlong<std::int64_t>(first, last, dx, dy);
            else
                sortAlong<WideInteger>(first, last, dx, dy);
        }
        GridPoint from = edge.a;
        for (auto p = first; p != last; ++p) {
            if (*p == from) continue;
            pieces.push_back({from, *p, edge.subject, edge.clip});
            from = *p;
        }
        if (from != edge.b) pieces.push_back({from, edge.b, edge.subject, edge.clip});
    }
    edges.resize(kept);
    edges.insert(edges.end(), pieces.begin(), pieces.end());
    return kept;
}

} // namespace

void Asking::ask()
{
    constexpr std::chrono::milliseconds kUnasked{50};
    const auto now = std::chrono::steady_clock::now();
    if (!mWait || now - mAsked < kUnasked) return;
    if (!mWait->goOn()) throw Stopped();
    mAsked = std::chrono::steady_clock::now();
}

template <class F>
void EdgeGrid::forEachCell(const GridEdge& edge, F&& f) const
{
    const GridPoint low = edge.a.y < edge.b.y ? edge.a : edge.b, high = edge.a.y < edge.b.y ? edge.b : edge.a;
    const int r0 = rowOf(low.y), r1 = rowOf(high.y);
    if (r0 == r1) {
        const int c0 = columnOf(std::min(low.x, high.x)), c1 = columnOf(std::max(low.x, high.x));
        for (int c = c0; c <= c1; ++c) f(std::size_t(r0) * std::size_t(mColumns) + std::size_t(c));
        return;
    }
    const double slope = double(high.x - low.x) / double(high.y - low.y);
    const double least = double(std::min(low.x, high.x)), most = double(std::max(low.x, high.x));
    for (int r = r0; r <= r1; ++r) {
        // The part of the edge within the row, and a little more for what double precision loses.
        const double slack = 1 + std::abs(slope);
        const double top = double(mY0) + r * mCellSize, bottom = top + mCellSize;
        double xa = double(low.x) + (top - double(low.y)) * slope,
               xb = double(low.x) + (bottom - double(low.y)) * slope;
        if (xa > xb) std::swap(xa, xb);
        xa = std::clamp(xa - slack, least, most), xb = std::clamp(xb + slack, least, most);
        const int c0 = columnOf(std::int64_t(std::floor(xa))), c1 = columnOf(std::int64_t(std::ceil(xb)));
        for (int c = c0; c <= c1; ++c) f(std::size_t(r) * std::size_t(mColumns) + std::size_t(c));
    }
}

void EdgeGrid::build(const std::vector<GridEdge>& edges)
{
    std::int64_t x1 = 0, y1 = 0;
    mX0 = mY0 = 0;
    if (!edges.empty()) mX0 = x1 = edges[0].a.x, mY0 = y1 = edges[0].a.y;
    for (const GridEdge& e : edges) {
        mX0 = std::min({mX0, e.a.x, e.b.x}), x1 = std::max({x1, e.a.x, e.b.x});
        mY0 = std::min({mY0, e.a.y, e.b.y}), y1 = std::max({y1, e.a.y, e.b.y});
    }
    const double width = double(x1 - mX0) + 1, height = double(y1 - mY0) + 1, count = double(edges.size()) + 1;
    // A few cells per edge keep the memory in hand; most edges then lie in one or two, and few share a cell.
    mCellSize = std::max({std::sqrt(width * height / std::min(4 * count, kMostCells)),
                          std::max(width, height) / std::min(4 * count, 8192.0), 4.0});
    mPerUnit = 1 / mCellSize;
    mColumns = int(width * mPerUnit) + 1, mRows = int(height * mPerUnit) + 1;
    const std::size_t cells = std::size_t(mColumns) * std::size_t(mRows);
    mStarts.assign(cells + 2, 0);
    for (const GridEdge& e : edges) forEachCell(e, [&](std::size_t c) { ++mStarts[c + 2]; });
    for (std::size_t c = 2; c < mStarts.size(); ++c) mStarts[c] += mStarts[c - 1];
    mEntries.resize(mStarts.back());
    // Filled through the shifted starts, which thereby come to where they belong.
    for (std::uint32_t i = 0; i < edges.size(); ++i)
        forEachCell(edges[i], [&](std::size_t c) { mEntries[mStarts[c + 1]++] = i; });
}

namespace
{

/// The cuts that pairs of edges ask for of which one at least is not before @p firstNew.
FoundCuts findCuts(const std::vector<GridEdge>& edges, std::size_t firstNew, const EdgeGrid& grid, Asking& asking)
{
    constexpr std::size_t kWorthIt = 2000; // edges: some hundred microseconds
    const int bands = edges.size() - firstNew < kWorthIt ? 1 : std::min(grid.rows(), 16 * workersHere());
    FoundCuts found(static_cast<std::size_t>(bands));
    std::atomic<std::size_t> room = kMostCutEdges - std::min(kMostCutEdges, edges.size());
    std::atomic<bool> over = false; // somebody has thrown: the others need not go on
    const auto asker = std::this_thread::get_id();
    parallelFor(bands, [&](int band) {
        std::vector<Cut>& cuts = found[std::size_t(band)];
        const auto inRow = [&](int r) {
            for (int c = 0; c < grid.columns() && !over; ++c) {
                const EdgeGrid::Range range = grid.at(c, r);
                const auto isHere = [&](GridPoint p) { return grid.columnOf(p.x) == c && grid.rowOf(p.y) == r; };
                // Entries of a cell stand in the edges' order: the new ones last.
                for (const std::uint32_t* j = range.last; j != range.first && j[-1] >= firstNew; --j) {
                    for (const std::uint32_t* i = range.first; i != j - 1; ++i) cutPair(edges, *i, j[-1], isHere, cuts);
                    if (std::this_thread::get_id() == asker) asking.step();
                }
            }
            if (cuts.size() > room) throw std::bad_alloc();
        };
        try {
            const auto edgeOf = [&](int b) { return int(std::int64_t{grid.rows()} * b / bands); };
            for (int r = edgeOf(band); r < edgeOf(band + 1); ++r) inRow(r);
            if (room.fetch_sub(cuts.size()) < cuts.size()) throw std::bad_alloc();
        } catch (...) {
            over = true;
            throw;
        }
    });
    return found;
}

} // namespace

void cutAtCrossings(std::vector<GridEdge>& edges, EdgeGrid& grid, Asking& asking)
{
    std::size_t firstNew = 0; // pairs of edges from before have been looked at
    for (;;) {
        grid.build(edges);
        const FoundCuts cuts = findCuts(edges, firstNew, grid, asking);
        if (std::all_of(cuts.begin(), cuts.end(), [](const auto& band) { return band.empty(); })) return;
        firstNew = apply(cuts, edges, asking);
    }
}

} // namespace zp
