// SPDX-License-Identifier: GPL-3.0-or-later
/// Averages over a grid of cells: rows of pixels are summed first, while they are in cache, then columns.
#include "base/Simd.h"
#include "base/WorkPool.h"
#include "drawing/ImageDrawingSampler.h"
#include <algorithm>
#include <cmath>

namespace zp
{

namespace
{
/// Weights of a cell add up to this; alpha or colour times it fits 32 bits after each of the two passes.
constexpr std::uint32_t kUnity = 65536;

constexpr int kStretch = 1024;
/// Source pixels below which another worker is not worth waking.
constexpr double kPixelsPerBand = 300'000;

/// The pixels of one line that a cell covers, and how much each counts.
struct Cell {
    int first = 0, count = 0;
    std::uint32_t weights = 0; ///< index of the first weight
};

struct Cells {
    std::vector<Cell> cells;
    std::vector<std::uint32_t> weights;

    Cells(double start, double step, int count, int low, int high)
    {
        cells.reserve(std::size_t(count));
        for (int i = 0; i < count; ++i) {
            // Both ends from the grid's start, so that neighbours meet without a gap.
            const double a = std::clamp(start + i * step, double(low), double(high));
            const double b = std::clamp(start + (i + 1) * step, double(low), double(high));
            Cell cell;
            cell.weights = std::uint32_t(weights.size());
            const double extent = b - a;
            if (!(extent > 1e-9)) {
                // Beyond the border: the nearest pixel goes on.
                cell.first = std::clamp(int(a), low, high - 1);
                cell.count = 1;
                weights.push_back(kUnity);
                cells.push_back(cell);
                continue;
            }
            cell.first = int(std::floor(a));
            cell.count = std::max(1, int(std::ceil(b)) - cell.first);
            std::uint32_t before = 0;
            for (int k = 0; k < cell.count; ++k) {
                // Rounded as running totals, so that they add up exactly.
                const double until = std::min(double(cell.first + k + 1), b) - a;
                const auto total = k == cell.count - 1 ? kUnity : std::uint32_t(until / extent * kUnity + 0.5);
                weights.push_back(total - before);
                before = total;
            }
            cells.push_back(cell);
        }
    }
};

ZP_MULTIVERSION void startSum(std::uint32_t* sum, const std::uint8_t* row, std::uint32_t weight, int count)
{
    for (int i = 0; i < count; ++i) sum[i] = row[i] * weight;
}
ZP_MULTIVERSION void addToSum(std::uint32_t* sum, const std::uint8_t* row, std::uint32_t weight, int count)
{
    for (int i = 0; i < count; ++i) sum[i] += row[i] * weight;
}
/// To eight bits below the point.
ZP_MULTIVERSION void finishSum(std::uint32_t* sum, int count)
{
    for (int i = 0; i < count; ++i) sum[i] = (sum[i] + 128) >> 8;
}

using Quad = std::uint32_t __attribute__((vector_size(16)));
using Bytes = std::uint8_t __attribute__((vector_size(4)));

/// @param sums of the columns from @p low on, four channels each
ZP_MULTIVERSION void averageCells(const std::uint32_t* sums, int low, const Cell* cells, const std::uint32_t* weights,
                                  std::uint32_t* out, int count)
{
    for (int c = 0; c < count; ++c) {
        const std::uint32_t* const sum = sums + 4 * std::ptrdiff_t{cells[c].first - low};
        const std::uint32_t* const weight = weights + cells[c].weights;
        Quad total{1u << 23, 1u << 23, 1u << 23, 1u << 23};
        for (int i = 0; i < cells[c].count; ++i) {
            Quad v;
            __builtin_memcpy(&v, sum + 4 * i, sizeof v);
            total += v * weight[i];
        }
        total >>= 24;
        const Bytes bytes = __builtin_convertvector(total, Bytes);
        __builtin_memcpy(out + c, &bytes, sizeof bytes);
    }
}
} // namespace

void averageOverGrid(ConstBitmapView image, PixelBox part, const AveragingGrid& grid, std::uint8_t* out,
                     std::ptrdiff_t outRowBytes)
{
    if (grid.columns <= 0 || grid.rows <= 0) return;
    const Cells columns(grid.left, grid.stepX, grid.columns, part.x0, part.x1);
    const Cells rows(grid.top, grid.stepY, grid.rows, part.y0, part.y1);
    // Columns in stretches whose sums stay in the nearest cache.
    struct Stretch {
        int first, last; ///< cells
        int low, high;   ///< pixels
    };
    std::vector<Stretch> stretches;
    for (int c = 0; c < grid.columns; ++c) {
        const Cell& cell = columns.cells[std::size_t(c)];
        if (stretches.empty() || cell.first + cell.count - stretches.back().low > kStretch)
            stretches.push_back({c, c, cell.first, cell.first});
        stretches.back().last = c + 1;
        stretches.back().high = std::max(stretches.back().high, cell.first + cell.count);
    }
    int widest = 0, total = 0;
    for (const Stretch& s : stretches) widest = std::max(widest, s.high - s.low), total += s.high - s.low;
    const int grain = std::max(1, int(kPixelsPerBand / (double(total) * std::max(1.0, grid.stepY))));
    parallelBands(grid.rows, grain, [&](int first, int last) {
        std::vector<std::uint32_t> sums(static_cast<std::size_t>(widest) * 4);
        for (int r = first; r < last; ++r) {
            const Cell& row = rows.cells[std::size_t(r)];
            const std::uint32_t* const weight = &rows.weights[row.weights];
            auto* const to = reinterpret_cast<std::uint32_t*>(out + outRowBytes * r);
            for (const Stretch& s : stretches) {
                const int bytes = 4 * (s.high - s.low);
                startSum(sums.data(), image.pixel(s.low, row.first), weight[0], bytes);
                for (int k = 1; k < row.count; ++k)
                    if (weight[k]) addToSum(sums.data(), image.pixel(s.low, row.first + k), weight[k], bytes);
                finishSum(sums.data(), bytes);
                averageCells(sums.data(), s.low, &columns.cells[std::size_t(s.first)], columns.weights.data(),
                             to + s.first, s.last - s.first);
            }
        }
    });
}

} // namespace zp
