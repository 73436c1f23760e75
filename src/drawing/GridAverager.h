// SPDX-License-Identifier: GPL-3.0-or-later
/// Averages over a grid of cells laid over an image, a row of cells at a time.
#pragma once
#include "base/BitmapView.h"
#include "drawing/AverageRows.h"
#include <vector>

namespace zp
{

/// Column i of the grid covers [left + i * stepX, left + (i + 1) * stepX) of image pixels, rows likewise.
struct AveragingGrid {
    double left = 0, top = 0, stepX = 1, stepY = 1;
    int columns = 0, rows = 0;
};

/// The average of each cell. Cells may reach beyond the part of the image that counts: only what lies inside does, and
/// beyond the border the nearest pixel goes on. Exact for flat colours. Steps of 1 and more.
class GridAverager
{
public:
    /// @param image read in place while this lives
    GridAverager(ConstBitmapView image, PixelBox part, const AveragingGrid& grid);

    int columns() const { return int(mColumns.cells.size()); }
    int rows() const { return int(mRows.cells.size()); }
    /// Cells [first, last) of a row of the grid. Any number of threads may ask.
    void average(int row, int first, int last, std::uint32_t* out) const { average(row, first, last, out, false); }
    /// The same averages drawn source-over onto @p pixels: one way through them instead of two.
    void drawOver(int row, int first, int last, std::uint32_t* pixels) const
    {
        average(row, first, last, pixels, true);
    }

private:
    struct Cells {
        std::vector<AverageCell> cells;
        std::vector<std::uint32_t> weights;
        int wholeFirst = 0, wholeLast = 0; ///< cells that lie wholly inside, in a halved grid
        Cells(double start, double step, int count, int low, int high);
    };
    void average(int row, int first, int last, std::uint32_t* out, bool over) const;
    void averageWeighed(const AverageCell& row, int first, int last, std::uint32_t* out, bool over) const;

    ConstBitmapView mSource;
    Cells mColumns, mRows;
    int mLevel = 0; ///< of a grid that halves the image this many times, cells on whole pixels; 0: any other grid
};

} // namespace zp
