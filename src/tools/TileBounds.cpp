// SPDX-License-Identifier: GPL-3.0-or-later
/// Bounds of tiles, made and asked.
#include "tools/TileBounds.h"
#include <algorithm>

namespace zp
{

void TileBounds::reset(int width, int height)
{
    mColumns = (width + kTileSide - 1) / kTileSide;
    mRows = (height + kTileSide - 1) / kTileSide;
    mKnownRows = 0;
    mBounds.assign(std::size_t(mColumns) * std::size_t(mRows), {});
}

void TileBounds::lookAtNextRow(ConstBitmapView pixels)
{
    ByteBounds* const bounds = mBounds.data() + std::size_t(mKnownRows) * std::size_t(mColumns);
    const int first = mKnownRows * kTileSide, last = std::min(first + kTileSide, pixels.height);
    for (int y = first; y < last; ++y) widenBounds(pixels.rowData(y), pixels.width, bounds);
    ++mKnownRows;
}

TileMatch TileBounds::matchOf(int column, int row, const TileQuery& query) const
{
    if (row >= mKnownRows) return TileMatch::Some;
    const ByteBounds& bounds = mBounds[std::size_t(row) * std::size_t(mColumns) + std::size_t(column)];
    bool all = true;
    for (int shift = 0; shift < 32; shift += 8) {
        const int middle = int(query.target >> shift & 0xFF), low = int(bounds.low >> shift & 0xFF),
                  high = int(bounds.high >> shift & 0xFF);
        if (high <= middle - query.tolerance || low >= middle + query.tolerance) return TileMatch::None;
        all &= low > middle - query.tolerance && high < middle + query.tolerance;
    }
    return all ? TileMatch::All : TileMatch::Some;
}

} // namespace zp
