// SPDX-License-Identifier: GPL-3.0-or-later
/// Which tiles of a picture have been computed.
#include "imageops/TileLedger.h"

namespace zp
{

TileLedger::TileLedger(int width, int height)
    : mWidth(width),
      mHeight(height),
      mColumns((width + kSide - 1) / kSide),
      mRows((height + kSide - 1) / kSide),
      mMissing(mColumns * mRows),
      mDone(std::size_t(mMissing))
{
}

PixelBox TileLedger::pixels(int column0, int row0, int column1, int row1) const
{
    return PixelBox{column0 * kSide, row0 * kSide, column1 * kSide, row1 * kSide}.intersected({0, 0, mWidth, mHeight});
}

PixelBox TileLedger::missing(PixelBox box) const
{
    box = box.intersected({0, 0, mWidth, mHeight});
    if (isComplete() || box.isEmpty()) return {};
    PixelBox tiles; // in tiles
    for (int row = box.y0 / kSide; row <= (box.y1 - 1) / kSide; ++row)
        for (int column = box.x0 / kSide; column <= (box.x1 - 1) / kSide; ++column)
            if (!mDone[std::size_t(row * mColumns + column)]) tiles.include(column, row);
    return tiles.isEmpty() ? PixelBox{} : pixels(tiles.x0, tiles.y0, tiles.x1, tiles.y1);
}

PixelBox TileLedger::nextMissing() const
{
    for (int row = 0; row < mRows; ++row) {
        const PixelBox found = missing(pixels(0, row, mColumns, row + 1));
        if (!found.isEmpty()) return found;
    }
    return {};
}

void TileLedger::markDone(PixelBox box)
{
    for (int row = 0; row < mRows; ++row)
        for (int column = 0; column < mColumns; ++column) {
            const PixelBox tile = pixels(column, row, column + 1, row + 1);
            if (tile.intersected(box) != tile) continue;
            std::uint8_t& done = mDone[std::size_t(row * mColumns + column)];
            mMissing -= done ? 0 : 1;
            done = 1;
        }
}

} // namespace zp
