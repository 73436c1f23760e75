// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of tiles through both encoders, while they are in the cache.
#include "undo/PairEncoder.h"
#include "base/WorkPool.h"
#include <algorithm>
#include <new>

namespace zp
{

void PairEncoder::forget()
{
    mColour.forget();
    mAlpha.forget();
    mColourFile = {};
    mAlphaFile.clear();
}

bool PairEncoder::encode(PixelCapture& capture)
try {
    const TileGrid& grid = capture.tiles().grid();
    std::vector<int> rows;
    for (int row = 0; row < grid.rows(); ++row)
        if (capture.tiles().contains(row * grid.columns())) rows.push_back(row);
    const bool colourKnown = mColour.start(grid.width, grid.height);
    const bool alphaKnown = mAlpha.start(grid.width, grid.height, TileGrid::kSide);
    if ((!colourKnown || !alphaKnown) && int(rows.size()) < grid.rows()) {
        forget();
        return false;
    }
    encodeRows(capture, rows);
    mColourFile = mColour.finish();
    mAlphaFile = mAlpha.finish();
    return true;
} catch (const std::bad_alloc&) {
    forget();
    throw;
}

void PairEncoder::encodeRows(PixelCapture& capture, const std::vector<int>& rows)
{
    if (int(rows.size()) > workerCount()) {
        parallelFor(int(rows.size()), [&](int i) {
            const int first = rows[std::size_t(i)] * TileGrid::kSide;
            capture.readRow(rows[std::size_t(i)], [&](ConstBitmapView pixels) {
                mColour.encodeRows(pixels, first);
                mAlpha.encode(pixels, first);
            });
        });
        return;
    }
    // A small stroke: the cores share one row of tiles.
    for (const int row : rows)
        capture.readRow(row, [&](ConstBitmapView pixels) {
            const int first = row * TileGrid::kSide;
            const int strips = (pixels.height + kStripRows - 1) / kStripRows;
            parallelFor(strips + 1, [&](int i) {
                if (i == 0) return mAlpha.encode(pixels, first);
                const int y = (i - 1) * kStripRows;
                mColour.encodeRows(pixels.part({0, y, pixels.width, std::min(y + kStripRows, pixels.height)}),
                                   first + y);
            });
        });
}

} // namespace zp
