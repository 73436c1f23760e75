// SPDX-License-Identifier: GPL-3.0-or-later
/// The walk over tiles and the spreading of words inside them.
#include "tools/TileRegion.h"
#include "base/BitmapRep.h"
#include "base/CpuHints.h"
#include "tools/TileBounds.h"
#include <algorithm>
#include <bit>
#include <thread>
#include <utility>

namespace zp
{

namespace
{

constexpr std::uint64_t kAll = ~std::uint64_t{0};
constexpr std::uint64_t kBothEnds = std::uint64_t{1} << 63 | 1;

/// Tiles of the largest picture: its area, and a strip of part tiles along two sides.
constexpr std::size_t kMostTiles =
    std::size_t(kMaxPixels) / (kTileSide * kTileSide) + 2 * (kMaxPixelsPerSide / kTileSide + 1) + 1;
/// So many tiles wait when a second thread gets to work: a winding corridor never has them, nor has a small region.
constexpr std::uint32_t kManyWaiting = 16;
/// So often a thread looks for the other's next word before it lets others run.
constexpr int kPatience = 500;

/// Waits a moment. @param tries  so far, counted up
void waitABit(int& tries)
{
    if (++tries < kPatience)
        pauseSpinning();
    else
        std::this_thread::yield();
}

std::uint64_t reversed(std::uint64_t v)
{
    v = (v >> 1 & 0x5555555555555555) | (v & 0x5555555555555555) << 1;
    v = (v >> 2 & 0x3333333333333333) | (v & 0x3333333333333333) << 2;
    v = (v >> 4 & 0x0F0F0F0F0F0F0F0F) | (v & 0x0F0F0F0F0F0F0F0F) << 4;
    return __builtin_bswap64(v);
}

/// From each seed along its run of open bits, towards the high end: a carry runs through a run of ones.
std::uint64_t spreadUp(std::uint64_t open, std::uint64_t seeds) { return (open & ~(open + seeds)) | seeds; }

/// All of every run of open bits that holds a seed. @p seeds lie within @p open.
std::uint64_t spreadBoth(std::uint64_t open, std::uint64_t seeds)
{
    // In a corridor nothing lies beside a seed, and this is most of what a maze asks for.
    if (!((seeds << 1 | seeds >> 1) & open & ~seeds)) return seeds;
    const std::uint64_t up = spreadUp(open, seeds);
    return up | reversed(spreadUp(reversed(open), reversed(seeds)));
}

} // namespace

TileRegion::TileRegion()
    : mTileMemory(kMostTiles * sizeof(Tile)),
      mQueueMemory(std::bit_ceil(kMostTiles + 1) * sizeof *mQueue),
      mTiles(reinterpret_cast<Tile*>(mTileMemory.data())),
      mQueue(reinterpret_cast<std::atomic<std::uint32_t>*>(mQueueMemory.data()))
{
}

void TileRegion::forget()
{
    mReached = {};
    mHead = mTail = 0;
    mColumns = mRows = 0;
}

void TileRegion::find(ConstBitmapView pixels, ConstMaskView mask, PixelPoint seed, const TileQuery& query,
                      const std::function<bool(PixelBox)>& fullTile)
{
    mFullTile = &fullTile;
    if (begin(pixels, mask, seed, query, nullptr))
        while (Tile* tile = nextTile()) {
            take(*tile);
            if (waiting() >= kManyWaiting) goOnWithHelp();
        }
    mFullTile = nullptr;
}

void TileRegion::goOnWithHelp()
{
    mSearching = true;
    parallelFor(2, [this](int part) {
        if (part == 1) return makeBitsAhead();
        while (Tile* tile = nextTile()) take(*tile);
        mSearching = false;
    });
}

void TileRegion::makeBitsAhead()
{
    std::uint32_t place = mHead;
    for (int tries = 0; mSearching.load(std::memory_order_relaxed);) {
        const std::uint32_t end = mTail.load(std::memory_order_acquire), head = mHead.load(std::memory_order_relaxed);
        if (std::int32_t(place - head) < 0) place = head; // the other was faster
        if (place == end) {
            waitABit(tries);
            continue;
        }
        tries = 0;
        Tile& tile = waitingAt(place++);
        load(tile, place == end ? nullptr : &waitingAt(place));
    }
}

bool TileRegion::begin(ConstBitmapView pixels, ConstMaskView mask, PixelPoint seed, const TileQuery& query,
                       const TileBounds* bounds)
{
    mPixels = pixels, mMask = mask, mQuery = query, mBounds = bounds;
    mReached = {};
    mHead = mTail = 0;
    mColumns = (pixels.width + kTileSide - 1) / kTileSide;
    mRows = (pixels.height + kTileSide - 1) / kTileSide;
    mQueueMask = std::bit_ceil(std::uint32_t(mColumns) * std::uint32_t(mRows) + 1) - 1;
    if (++mGeneration == 0) {
        // After four thousand million fills the numbers begin again, and no tile may take an old one for the present.
        mTileMemory.release();
        mGeneration = 1;
    }
    if (query.tolerance < 1) return false;
    Tile& first =
        touch(mTiles + (seed.y / kTileSide) * mColumns + seed.x / kTileSide, seed.x / kTileSide, seed.y / kTileSide);
    load(first, nullptr);
    const int x = seed.x % kTileSide, y = seed.y % kTileSide;
    if (!(first.open[std::size_t(y)] >> x & 1)) {
        mReached = {};
        return false;
    }
    if (!first.allOpen) {
        mComing[std::size_t(y)] = std::uint64_t{1} << x;
        spread(first, std::uint64_t{1} << y);
    } else {
        first.fromAbove = 1; // any way in will do: all of it is taken
        enqueue(first);
    }
    return true;
}

TileRegion::Tile& TileRegion::touch(Tile* tile, int column, int row)
{
    if (tile->generation != mGeneration) {
        tile->generation = mGeneration;
        tile->column = std::uint16_t(column), tile->row = std::uint16_t(row);
        tile->queued = tile->allOpen = tile->done = false;
        tile->fromLeft = tile->fromRight = tile->fromAbove = tile->fromBelow = 0;
        tile->bits.store(Unknown, std::memory_order_release); // whoever sees this sees the rest
        mReached.include(column, row);
    }
    return *tile;
}

void TileRegion::enqueue(Tile& tile)
{
    if (tile.queued) return;
    tile.queued = true;
    const std::uint32_t end = mTail.load(std::memory_order_relaxed);
    mQueue[end & mQueueMask].store(std::uint32_t(&tile - mTiles), std::memory_order_relaxed);
    mTail.store(end + 1, std::memory_order_release);
}

TileRegion::Tile* TileRegion::nextTile()
{
    std::uint32_t place = mHead.load(std::memory_order_relaxed);
    const std::uint32_t end = mTail.load(std::memory_order_relaxed);
    if (place == end) return nullptr;
    Tile& tile = waitingAt(place++);
    mHead.store(place, std::memory_order_relaxed);
    tile.queued = false;
    if (!isMade(tile)) load(tile, place == end ? nullptr : &waitingAt(place));
    // Where the other thread is just making them, there are others to make.
    for (int tries = 0; !isMade(tile);) {
        if (place == end) {
            waitABit(tries);
            continue;
        }
        Tile& other = waitingAt(place++);
        load(other, place == end ? nullptr : &waitingAt(place));
    }
    return &tile;
}

PixelBox TileRegion::boxOf(const Tile& tile) const
{
    const int x = tile.column * kTileSide, y = tile.row * kTileSide;
    return {x, y, std::min(x + kTileSide, mPixels.width), std::min(y + kTileSide, mPixels.height)};
}

TileSource TileRegion::sourceOf(const Tile& tile) const
{
    const PixelBox box = boxOf(tile);
    return {mPixels.pixel(box.x0, box.y0),
            mPixels.rowBytes,
            mMask.isEmpty() ? nullptr : mMask.row(box.y0) + box.x0,
            mMask.stride,
            box.width(),
            box.height()};
}

bool TileRegion::loadByBounds(Tile& tile)
{
    if (!mBounds) return false;
    const TileMatch match = mBounds->matchOf(tile.column, tile.row, mQuery);
    if (match == TileMatch::None) {
        tile.open.fill(0);
        tile.leftOpen = tile.rightOpen = 0;
        tile.allOpen = false;
        return true;
    }
    const PixelBox box = boxOf(tile);
    const bool whole = box.width() == kTileSide && box.height() == kTileSide;
    if (match != TileMatch::All || !whole || !mMask.isEmpty()) return false;
    tile.open.fill(kAll);
    tile.leftOpen = tile.rightOpen = kAll;
    tile.allOpen = true;
    return true;
}

void TileRegion::load(Tile& tile, const Tile* next)
{
    Bits state = Unknown;
    if (!tile.bits.compare_exchange_strong(state, BeingMade, std::memory_order_acquire)) return;
    tile.region.fill(0);
    if (!loadByBounds(tile)) {
        TileSource ahead{};
        const bool isNew = next && next->bits.load(std::memory_order_acquire) == Unknown;
        if (isNew) ahead = sourceOf(*next);
        const TileEdges edges = loadTile(sourceOf(tile), mQuery, tile.open, isNew ? &ahead : nullptr);
        tile.leftOpen = edges.left, tile.rightOpen = edges.right, tile.allOpen = edges.allOpen;
    }
    if (tile.allOpen && mFullTile) tile.done = (*mFullTile)(boxOf(tile));
    tile.bits.store(Made, std::memory_order_release);
}

void TileRegion::takeWhole(Tile& tile)
{
    tile.allOpen = false;
    tile.region.fill(kAll);
    tile.open.fill(0);
    tile.leftOpen = tile.rightOpen = 0;
    tile.fromLeft = tile.fromRight = tile.fromAbove = tile.fromBelow = 0;
    wakeNeighbours(tile, kAll, kAll, kAll, kAll);
}

void TileRegion::spread(Tile& tile, std::uint64_t dirty)
{
    if (const std::uint64_t left = tile.fromLeft & tile.leftOpen) {
        for (std::uint64_t rows = left; rows; rows &= rows - 1) mComing[std::size_t(std::countr_zero(rows))] |= 1;
        dirty |= left;
    }
    if (const std::uint64_t right = tile.fromRight & tile.rightOpen) {
        for (std::uint64_t rows = right; rows; rows &= rows - 1)
            mComing[std::size_t(std::countr_zero(rows))] |= std::uint64_t{1} << 63;
        dirty |= right;
    }
    if (const std::uint64_t above = tile.fromAbove & tile.open.front()) mComing.front() |= above, dirty |= 1;
    if (const std::uint64_t below = tile.fromBelow & tile.open.back())
        mComing.back() |= below, dirty |= std::uint64_t{1} << 63;
    tile.fromLeft = tile.fromRight = tile.fromAbove = tile.fromBelow = 0;

    std::uint64_t leftOut = 0, rightOut = 0, upOut = 0, downOut = 0;
    // From a row on in one direction, as far as something goes on. What is taken goes from row to row in a register, so
    // that a corridor costs a few operations a row; what turns back, or comes from elsewhere, waits in mComing.
    const auto sweep = [&]<int Step>(int y) {
        constexpr int kLastRow = Step > 0 ? kTileSide - 1 : 0, kFirstRow = kTileSide - 1 - kLastRow;
        std::uint64_t coming = 0;
        for (;; y += Step) {
            const auto row = std::size_t(y);
            if (const std::uint64_t bit = std::uint64_t{1} << y; dirty & bit) {
                coming |= std::exchange(mComing[row], 0);
                dirty &= ~bit;
            }
            const std::uint64_t open = tile.open[row], taken = spreadBoth(open, coming);
            tile.open[row] = open & ~taken;
            tile.region[row] |= taken;
            if (taken & kBothEnds) {
                leftOut |= (taken & 1) << y;
                rightOut |= (taken >> 63) << y;
            }
            if (y != kFirstRow) {
                if (const std::uint64_t back = taken & tile.open[row - Step]) {
                    mComing[row - Step] |= back;
                    dirty |= std::uint64_t{1} << (y - Step);
                }
            } else {
                (Step > 0 ? upOut : downOut) |= taken;
            }
            if (y == kLastRow) {
                (Step > 0 ? downOut : upOut) |= taken;
                return y;
            }
            coming = taken & tile.open[row + Step];
            if (!coming && !(dirty >> (y + Step) & 1)) return y;
        }
    };
    // Down and up in turns: a row is seldom taken in more than a few parts.
    while (dirty) {
        for (std::uint64_t ahead = dirty; ahead;) {
            const int y = sweep.template operator()<1>(std::countr_zero(ahead));
            ahead = dirty & ~((std::uint64_t{2} << y) - 1);
        }
        for (std::uint64_t ahead = dirty; ahead;) {
            const int y = sweep.template operator()<-1>(63 - std::countl_zero(ahead));
            ahead = dirty & ((std::uint64_t{1} << y) - 1);
        }
    }
    tile.leftOpen &= ~leftOut;
    tile.rightOpen &= ~rightOut;
    wakeNeighbours(tile, leftOut, rightOut, upOut, downOut);
}

void TileRegion::wakeNeighbours(Tile& tile, std::uint64_t left, std::uint64_t right, std::uint64_t up,
                                std::uint64_t down)
{
    const int column = tile.column, row = tile.row;
    if (left && column > 0) {
        Tile& other = touch(&tile - 1, column - 1, row);
        if (isMade(other)) left &= other.rightOpen;
        other.fromRight |= left;
        if (left) enqueue(other);
    }
    if (right && column < mColumns - 1) {
        Tile& other = touch(&tile + 1, column + 1, row);
        if (isMade(other)) right &= other.leftOpen;
        other.fromLeft |= right;
        if (right) enqueue(other);
    }
    if (up && row > 0) {
        Tile& other = touch(&tile - mColumns, column, row - 1);
        if (isMade(other)) up &= other.open.back();
        other.fromBelow |= up;
        if (up) enqueue(other);
    }
    if (down && row < mRows - 1) {
        Tile& other = touch(&tile + mColumns, column, row + 1);
        if (isMade(other)) down &= other.open.front();
        other.fromAbove |= down;
        if (down) enqueue(other);
    }
}

std::size_t TileRegion::count() const
{
    std::size_t count = 0;
    for (int row = mReached.y0; row < mReached.y1; ++row)
        for (int column = mReached.x0; column < mReached.x1; ++column) {
            const Tile& tile = mTiles[std::size_t(row) * std::size_t(mColumns) + std::size_t(column)];
            if (!isKnown(tile)) continue;
            for (const std::uint64_t bits : tile.region) count += std::size_t(std::popcount(bits));
        }
    return count;
}

PixelBox TileRegion::box() const
{
    PixelBox found;
    for (int row = mReached.y0; row < mReached.y1; ++row)
        for (int column = mReached.x0; column < mReached.x1; ++column) {
            const Tile& tile = mTiles[std::size_t(row) * std::size_t(mColumns) + std::size_t(column)];
            if (!isKnown(tile)) continue;
            const int x = column * kTileSide, y = row * kTileSide;
            // Tiles inside what is known already cannot widen it.
            if (x >= found.x0 && y >= found.y0 && x + kTileSide <= found.x1 && y + kTileSide <= found.y1) continue;
            std::uint64_t columns = 0, rows = 0;
            for (int i = 0; i < kTileSide; ++i) {
                columns |= tile.region[std::size_t(i)];
                rows |= std::uint64_t{tile.region[std::size_t(i)] != 0} << i;
            }
            if (!columns) continue;
            found = found.united({x + std::countr_zero(columns), y + std::countr_zero(rows),
                                  x + 64 - std::countl_zero(columns), y + 64 - std::countl_zero(rows)});
        }
    return found;
}

std::size_t TileRegion::columnScanPushes() const
{
    const auto regionOf = [&](int column, int row) -> const TileRows* {
        if (column < 0 || row < 0 || column >= mColumns || row >= mRows) return nullptr;
        const Tile& tile = mTiles[std::size_t(row) * std::size_t(mColumns) + std::size_t(column)];
        return isKnown(tile) ? &tile.region : nullptr;
    };
    // Bit x: pixels x and x + 1 both belong to the region.
    const auto pairs = [](const TileRows* tile, const TileRows* right, std::size_t y) {
        if (!tile) return std::uint64_t{0};
        return (*tile)[y] & ((*tile)[y] >> 1 | (right ? (*right)[y] << 63 : 0));
    };
    std::size_t pushes = 1;
    for (int row = mReached.y0; row < mReached.y1; ++row)
        for (int column = mReached.x0; column < mReached.x1; ++column) {
            const TileRows *tile = regionOf(column, row), *right = regionOf(column + 1, row);
            if (!tile) continue;
            std::uint64_t above = pairs(regionOf(column, row - 1), regionOf(column + 1, row - 1), kTileSide - 1);
            for (std::size_t y = 0; y < kTileSide; ++y) {
                const std::uint64_t here = pairs(tile, right, y);
                pushes += std::size_t(std::popcount(here & ~above));
                above = here;
            }
        }
    return pushes;
}

TileRegion& sharedTileRegion()
{
    static TileRegion region;
    return region;
}

} // namespace zp
