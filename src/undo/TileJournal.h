// SPDX-License-Identifier: GPL-3.0-or-later
/// What pixels were before a gesture wrote them, tile by tile, so that it can be taken back.
#pragma once
#include "base/BitmapView.h"
#include "base/PixelMemory.h"
#include "undo/TileGrid.h"
#include <vector>

namespace zp
{

/// Keeps each tile of a picture once, at the first write that is announced. One thread at a time.
class TileJournal
{
public:
    TileJournal() = default;
    explicit TileJournal(ConstBitmapView pixels);
    /// Before pixels of @p box are written for the first time. Cost: the tiles it touches that are not kept yet.
    /// @return false when memory fails: then nothing of the box is kept, and the journal says so from now on
    bool keep(ConstBitmapView pixels, PixelBox box);
    /// Whether every box that was announced is kept.
    bool isWhole() const { return mWhole; }
    bool isEmpty() const { return mTiles.empty(); }
    /// Calls f(PixelBox) for every tile that is kept.
    template <class F>
    void forEach(F&& f) const
    {
        for (const Tile& tile : mTiles) f(tile.box);
    }
    /// All kept tiles go back into the picture. @return the box they cover
    PixelBox restore(BitmapView pixels) const;

private:
    struct Tile {
        PixelBox box;
        PixelMemory bytes; ///< rows of box, one behind the other
    };
    TileSet mKept;
    std::vector<Tile> mTiles;
    bool mWhole = true;
};

} // namespace zp
