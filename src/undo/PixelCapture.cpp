// SPDX-License-Identifier: GPL-3.0-or-later
/// The life of a captured tile: it waits, is read or copied, and is done.
#include "undo/PixelCapture.h"
#include <new>

namespace zp
{

PixelCapture::PixelCapture(std::shared_ptr<const BitmapRep> bitmap, TileSet tiles, const TileSet& again)
    : mPixels(std::move(bitmap)),
      mTiles(std::move(tiles)),
      mStates(std::size_t(mTiles.grid().count())),
      mLeft(mTiles.count())
{
    for (const int number : mTiles.list()) {
        Tile& tile = mStates[std::size_t(number)];
        tile.state.store(Waiting, std::memory_order_relaxed);
        tile.readsLeft = again.grid() == mTiles.grid() && again.contains(number) ? 2 : 1;
    }
}

void PixelCapture::beforeWrite(PixelBox box)
{
    if (isDone()) return;
    mTiles.grid().forEach(box, [this](int tile) { copyAway(tile); });
}

void PixelCapture::copyAway(int number)
{
    Tile& tile = mStates[std::size_t(number)];
    const auto waitWhile = [&tile](State state) { tile.state.wait(state, std::memory_order_acquire); };
    for (;;) {
        int now = tile.state.load(std::memory_order_acquire);
        if (now == Done || now == Copied) return;
        if (now != Waiting) {
            waitWhile(State(now)); // a row of tiles is read in a few milliseconds
            continue;
        }
        if (!tile.state.compare_exchange_strong(now, BeingCopied, std::memory_order_acq_rel)) continue;
        const PixelBox box = mTiles.grid().box(number);
        const std::size_t size = std::size_t(box.width()) * std::size_t(box.height()) * 4;
        PixelMemory copy = allocatePixelsUninitialized(size);
        const bool copied = bool(copy);
        if (copied) {
            copyPixels(mPixels->view().part(box),
                       {copy.get(), box.width(), box.height(), std::ptrdiff_t{4} * box.width()});
            tile.copy = std::move(copy);
            mBytesCopied.fetch_add(size, std::memory_order_relaxed);
        }
        tile.state.store(copied ? Copied : Waiting, std::memory_order_release);
        tile.state.notify_all();
        if (copied) return;
        waitWhile(Waiting); // no memory for a copy: the worker has to come by first
    }
}

bool PixelCapture::beginReading(int number)
{
    Tile& tile = mStates[std::size_t(number)];
    for (;;) {
        int now = Waiting;
        if (tile.state.compare_exchange_strong(now, BeingRead, std::memory_order_acq_rel)) return true;
        if (now == Copied) return false;
        tile.state.wait(BeingCopied, std::memory_order_acquire);
    }
}

void PixelCapture::endReading(int number)
{
    Tile& tile = mStates[std::size_t(number)];
    const bool last = --tile.readsLeft == 0;
    if (last) tile.copy.reset();
    if (last || tile.state.load(std::memory_order_relaxed) == BeingRead) {
        tile.state.store(last ? Done : Waiting, std::memory_order_release);
        tile.state.notify_all();
    }
    if (last) mLeft.fetch_sub(1, std::memory_order_acq_rel);
}

ConstBitmapView PixelCapture::copyOf(int tile) const
{
    const PixelBox box = mTiles.grid().box(tile);
    return {mStates[std::size_t(tile)].copy.get(), box.width(), box.height(), std::ptrdiff_t{4} * box.width()};
}

void PixelCapture::abandon()
{
    for (Tile& tile : mStates) {
        tile.state.store(Done, std::memory_order_release);
        tile.state.notify_all();
    }
    mLeft.store(0, std::memory_order_release);
}

PixelCapture::Reading::Reading(PixelCapture& capture, int first, int last)
    : mCapture(capture), mFirst(first), mLast(last)
{
    bool anyCopied = false;
    for (int tile = first; tile < last; ++tile) anyCopied |= !capture.beginReading(tile);
    const TileGrid& grid = capture.mTiles.grid();
    const PixelBox all = grid.box(first).united(grid.box(last - 1));
    if (!anyCopied) {
        mPixels = capture.mPixels->view().part(all);
    } else if (last - first == 1) {
        mPixels = capture.copyOf(first);
    } else {
        mAssembled = allocatePixelsUninitialized(std::size_t(all.width()) * std::size_t(all.height()) * 4);
        if (!mAssembled) {
            for (int tile = first; tile < last; ++tile) capture.endReading(tile);
            throw std::bad_alloc();
        }
        const BitmapView into{mAssembled.get(), all.width(), all.height(), std::ptrdiff_t{4} * all.width()};
        for (int tile = first; tile < last; ++tile) {
            const PixelBox box = grid.box(tile);
            const bool copied = capture.mStates[std::size_t(tile)].state.load(std::memory_order_acquire) == Copied;
            copyPixels(copied ? capture.copyOf(tile) : capture.mPixels->view().part(box),
                       into.part({box.x0 - all.x0, 0, box.x1 - all.x0, box.height()}));
        }
        mPixels = into;
    }
}

PixelCapture::Reading::~Reading()
{
    for (int tile = mFirst; tile < mLast; ++tile) mCapture.endReading(tile);
}

} // namespace zp
