// SPDX-License-Identifier: GPL-3.0-or-later
/// The pixels of some tiles as they were at a moment, for a worker, while the picture is already written again.
#pragma once
#include "base/BitmapRep.h"
#include "base/PixelMemory.h"
#include "undo/TileGrid.h"
#include <atomic>
#include <cstdint>
#include <memory>
#include <vector>

namespace zp
{

/// Copy on write: the worker reads each tile where it lies, and only a tile that somebody is about to write before the
/// worker got to it is copied first. Whoever writes pixels announces it with beforeWrite(), from any thread.
class PixelCapture
{
public:
    /// @param tiles  are read once, in rows or one by one; those of @p again are read once more, one by one
    PixelCapture(std::shared_ptr<const BitmapRep> bitmap, TileSet tiles, const TileSet& again);
    PixelCapture(const PixelCapture&) = delete;
    PixelCapture& operator=(const PixelCapture&) = delete;

    const TileSet& tiles() const { return mTiles; }
    const std::shared_ptr<const BitmapRep>& bitmap() const { return mPixels; }
    bool isDone() const { return mLeft.load(std::memory_order_acquire) == 0; }
    /// What the copies made so far have taken.
    std::uint64_t bytesCopied() const { return mBytesCopied.load(std::memory_order_relaxed); }
    /// Before pixels of @p box are written. Cost: nothing for tiles that were read, a copy for those that wait, and the
    /// rest of a row's reading at worst.
    void beforeWrite(PixelBox box);

    // ---- the worker; different tiles from several threads ----------------------------------------------------------

    /// f(ConstBitmapView) gets the tile as it was.
    template <class F>
    void read(int tile, F&& f)
    {
        const Reading reading(*this, tile, tile + 1);
        f(reading.pixels());
    }
    /// The same for a whole row of tiles: rows of the picture from its left to its right edge. All of them must be
    /// among tiles(). @throws std::bad_alloc
    template <class F>
    void readRow(int row, F&& f)
    {
        const int columns = mTiles.grid().columns();
        const Reading reading(*this, row * columns, (row + 1) * columns);
        f(reading.pixels());
    }
    /// Nothing more will be read: nobody waits for the worker any longer.
    void abandon();

private:
    enum State : int { Waiting, BeingRead, BeingCopied, Copied, Done };
    struct Tile {
        std::atomic<int> state{Done};
        int readsLeft = 0; ///< the worker's
        PixelMemory copy;  ///< made by whoever set BeingCopied
    };
    /// Neighbouring tiles of a row, held while they are read.
    class Reading
    {
    public:
        Reading(PixelCapture& capture, int first, int last);
        ~Reading();
        Reading(const Reading&) = delete;
        Reading& operator=(const Reading&) = delete;
        ConstBitmapView pixels() const { return mPixels; }

    private:
        PixelCapture& mCapture;
        int mFirst, mLast;
        ConstBitmapView mPixels;
        PixelMemory mAssembled; ///< when a tile of several was copied
    };
    bool beginReading(int tile);
    void endReading(int tile);
    ConstBitmapView copyOf(int tile) const;
    void copyAway(int tile);

    std::shared_ptr<const BitmapRep> mPixels;
    TileSet mTiles;
    std::vector<Tile> mStates;
    std::atomic<int> mLeft;
    std::atomic<std::uint64_t> mBytesCopied{0};
};

} // namespace zp
