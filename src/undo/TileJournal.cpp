// SPDX-License-Identifier: GPL-3.0-or-later
/// Copies tiles out of a picture and back.
#include "undo/TileJournal.h"
#include <cstring>
#include <new>

namespace zp
{

TileJournal::TileJournal(ConstBitmapView pixels) : mKept(TileGrid{pixels.width, pixels.height}) {}

bool TileJournal::keep(ConstBitmapView pixels, PixelBox box)
try {
    mKept.grid().forEach(box, [&](int number) {
        if (mKept.contains(number)) return;
        const PixelBox tile = mKept.grid().box(number);
        const std::size_t rowLength = std::size_t(tile.width()) * 4;
        PixelMemory bytes = allocatePixelsUninitialized(rowLength * std::size_t(tile.height()));
        if (!bytes) throw std::bad_alloc();
        for (int y = tile.y0; y < tile.y1; ++y)
            std::memcpy(bytes.get() + rowLength * std::size_t(y - tile.y0), pixels.pixel(tile.x0, y), rowLength);
        mTiles.push_back({tile, std::move(bytes)});
        mKept.add(number);
    });
    return true;
} catch (const std::bad_alloc&) {
    return mWhole = false;
}

PixelBox TileJournal::restore(BitmapView pixels) const
{
    PixelBox all;
    for (const Tile& tile : mTiles) {
        const std::size_t rowLength = std::size_t(tile.box.width()) * 4;
        for (int y = tile.box.y0; y < tile.box.y1; ++y)
            std::memcpy(pixels.pixel(tile.box.x0, y), tile.bytes.get() + rowLength * std::size_t(y - tile.box.y0),
                        rowLength);
        all = all.united(tile.box);
    }
    return all;
}

} // namespace zp
