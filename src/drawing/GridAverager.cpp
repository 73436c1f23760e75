// SPDX-License-Identifier: GPL-3.0-or-later
/// Averages over cells: rows of pixels are summed first, while they are in cache, then columns.
#include "drawing/GridAverager.h"
#include "drawing/Halving.h"
#include "drawing/ImageDrawingBlend.h"
#include <algorithm>
#include <cmath>

namespace zp
{

namespace
{

/// Columns whose sums stay in the nearest cache.
constexpr int kStretch = 1024;

/// How often a grid halves the image, when its cells are squares of whole pixels; otherwise 0.
int levelOf(const AveragingGrid& grid)
{
    if (grid.stepX != grid.stepY || grid.left != std::floor(grid.left) || grid.top != std::floor(grid.top)) return 0;
    for (int level = 1; level <= kMostHalvings; ++level)
        if (grid.stepX == double(1 << level)) return level;
    return 0;
}

} // namespace

GridAverager::Cells::Cells(double start, double step, int count, int low, int high)
{
    cells.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        // Both ends from the grid's start, so that neighbours meet without a gap.
        const double a = std::clamp(start + i * step, double(low), double(high));
        const double b = std::clamp(start + (i + 1) * step, double(low), double(high));
        AverageCell cell;
        cell.weights = std::uint32_t(weights.size());
        const double extent = b - a;
        if (!(extent > 1e-9)) {
            // Beyond the border: the nearest pixel goes on.
            cell.first = std::clamp(int(a), low, high - 1);
            cell.count = 1;
            weights.push_back(kWeightOne);
            cells.push_back(cell);
            continue;
        }
        cell.first = int(std::floor(a));
        cell.count = std::max(1, int(std::ceil(b)) - cell.first);
        std::uint32_t before = 0;
        for (int k = 0; k < cell.count; ++k) {
            // Rounded as running totals, so that they add up exactly.
            const double until = std::min(double(cell.first + k + 1), b) - a;
            const auto total = k == cell.count - 1 ? kWeightOne : std::uint32_t(until / extent * kWeightOne + 0.5);
            weights.push_back(total - before);
            before = total;
        }
        cells.push_back(cell);
    }
}

GridAverager::GridAverager(ConstBitmapView image, PixelBox part, const AveragingGrid& grid)
    : mSource(image),
      mColumns(grid.left, grid.stepX, grid.columns, part.x0, part.x1),
      mRows(grid.top, grid.stepY, grid.rows, part.y0, part.y1),
      mLevel(levelOf(grid))
{
    if (mLevel == 0) return;
    const auto findWhole = [](Cells& cells, double start, double step, int low, int high) {
        const auto clampCell = [&](double v) { return int(std::clamp(v, 0.0, double(cells.cells.size()))); };
        cells.wholeFirst = clampCell(std::ceil((low - start) / step));
        cells.wholeLast = std::max(cells.wholeFirst, clampCell(std::floor((high - start) / step)));
    };
    findWhole(mColumns, grid.left, grid.stepX, part.x0, part.x1);
    findWhole(mRows, grid.top, grid.stepY, part.y0, part.y1);
}

void GridAverager::average(int row, int first, int last, std::uint32_t* out, bool over) const
{
    const AverageCell& cell = mRows.cells[std::size_t(row)];
    if (mLevel == 0 || row < mRows.wholeFirst || row >= mRows.wholeLast)
        return averageWeighed(cell, first, last, out, over);
    // The same sums and roundings, without weights.
    const int from = std::clamp(mColumns.wholeFirst, first, last), to = std::clamp(mColumns.wholeLast, from, last);
    averageWeighed(cell, first, from, out, over);
    if (from < to)
        (over ? averageSquaresOver : averageSquares)(mSource, mColumns.cells[std::size_t(from)].first, cell.first,
                                                     to - from, mLevel, out + (from - first));
    averageWeighed(cell, to, last, out + (to - first), over);
}

void GridAverager::averageWeighed(const AverageCell& row, int first, int last, std::uint32_t* out, bool over) const
{
    std::uint32_t means[kStretch];
    std::uint32_t room[4 * kStretch];
    std::vector<std::uint32_t> wideRoom;
    const std::uint32_t* const weight = &mRows.weights[row.weights];
    while (first < last) {
        const AverageCell* const cells = &mColumns.cells[std::size_t(first)];
        // As many cells as find room, one at least.
        int count = 0, high = cells[0].first;
        while (first + count < last) {
            const int end = std::max(high, cells[count].first + cells[count].count);
            if (count == kStretch || (count > 0 && end - cells[0].first > kStretch)) break;
            high = end;
            ++count;
        }
        const int low = cells[0].first, columns = high - low;
        std::uint32_t* sums = room;
        if (columns > kStretch) {
            wideRoom.resize(std::size_t(columns) * 4);
            sums = wideRoom.data();
        }
        startWeighing(mSource.pixel(low, row.first), weight[0], sums, 4 * columns);
        for (int k = 1; k < row.count; ++k)
            if (weight[k]) addWeighed(mSource.pixel(low, row.first + k), weight[k], sums, 4 * columns);
        averageCells(sums, columns, low, cells, mColumns.weights.data(), over ? means : out, count);
        if (over) blendRun({out, means, 0, nullptr, count}, CompositingOperation::SourceOver, 255);
        first += count;
        out += count;
    }
}

} // namespace zp
