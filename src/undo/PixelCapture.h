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
    PixelCapture(std::shared_ptr<const BitmapRep> bitmap, TileSet tiles);
    PixelCapture(const PixelCapture&) = delete;
    PixelCapture& operator=(const PixelCapture&) = delete;

    const TileSet& tiles() const { return mTiles; }
    const std::shared_ptr<const BitmapRep>& bitmap() const { return mBitmap; }
    bool isDone() const { return mLeft.load(std::memory_order_acquire) == 0; }
    /// Before pixels of @p box are written. Cost: nothing for tiles that were read, a copy for those that wait, and the
    /// rest of a tile's reading at worst.
    void beforeWrite(PixelBox box);
    /// The worker: f(ConstBitmapView) gets the tile as it was. Each tile once; different tiles from several threads.
    template <class F>
    void read(int tile, F&& f)
    {
        const ConstBitmapView pixels = beginReading(tile);
        f(pixels);
        endReading(tile);
    }

private:
    enum State : std::uint8_t { NotIn, Waiting, Reading, Copying, Copied, Done };
    ConstBitmapView beginReading(int tile);
    void endReading(int tile);
    void copyAway(int tile);

    std::shared_ptr<const BitmapRep> mBitmap;
    TileSet mTiles;
    std::vector<std::atomic<std::uint8_t>> mStates;
    std::vector<PixelMemory> mCopies; ///< of each tile, made by whoever set Copying
    std::atomic<int> mLeft;
};

} // namespace zp
