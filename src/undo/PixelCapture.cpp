// SPDX-License-Identifier: GPL-3.0-or-later
/// The life of a captured tile: it waits, is read or copied, and is done.
#include "undo/PixelCapture.h"
#include <cstring>
#include <thread>

namespace zp
{

PixelCapture::PixelCapture(std::shared_ptr<const BitmapRep> bitmap, TileSet tiles)
    : mBitmap(std::move(bitmap)),
      mTiles(std::move(tiles)),
      mStates(std::size_t(mTiles.grid().count())),
      mCopies(std::size_t(mTiles.grid().count())),
      mLeft(mTiles.count())
{
    for (int tile = 0; tile < mTiles.grid().count(); ++tile)
        mStates[std::size_t(tile)].store(mTiles.contains(tile) ? Waiting : NotIn, std::memory_order_relaxed);
}

void PixelCapture::beforeWrite(PixelBox box)
{
    if (isDone()) return;
    mTiles.grid().forEach(box, [this](int tile) { copyAway(tile); });
}

void PixelCapture::copyAway(int tile)
{
    std::atomic<std::uint8_t>& state = mStates[std::size_t(tile)];
    std::uint8_t expected = Waiting;
    if (state.compare_exchange_strong(expected, Copying, std::memory_order_acq_rel)) {
        const PixelBox box = mTiles.grid().box(tile);
        const std::size_t rowLength = std::size_t(box.width()) * 4;
        PixelMemory copy = allocatePixelsUninitialized(rowLength * std::size_t(box.height()));
        if (copy) {
            const ConstBitmapView pixels = mBitmap->view();
            for (int y = box.y0; y < box.y1; ++y)
                std::memcpy(copy.get() + rowLength * std::size_t(y - box.y0), pixels.pixel(box.x0, y), rowLength);
            mCopies[std::size_t(tile)] = std::move(copy);
            state.store(Copied, std::memory_order_release);
            return;
        }
        // No memory for a copy: the worker has to come by first.
        state.store(Waiting, std::memory_order_release);
        while (state.load(std::memory_order_acquire) == Waiting) std::this_thread::yield();
    }
    while (state.load(std::memory_order_acquire) == Reading || state.load(std::memory_order_acquire) == Copying)
        std::this_thread::yield(); // a tile is read in a fraction of a millisecond
}

ConstBitmapView PixelCapture::beginReading(int tile)
{
    std::atomic<std::uint8_t>& state = mStates[std::size_t(tile)];
    const PixelBox box = mTiles.grid().box(tile);
    for (;;) {
        std::uint8_t expected = Waiting;
        if (state.compare_exchange_strong(expected, Reading, std::memory_order_acq_rel))
            return mBitmap->view().part(box);
        if (expected == Copied)
            return {mCopies[std::size_t(tile)].get(), box.width(), box.height(), std::ptrdiff_t{4} * box.width()};
        std::this_thread::yield(); // being copied
    }
}

void PixelCapture::endReading(int tile)
{
    mStates[std::size_t(tile)].store(Done, std::memory_order_release);
    mCopies[std::size_t(tile)].reset();
    mLeft.fetch_sub(1, std::memory_order_acq_rel);
}

} // namespace zp
