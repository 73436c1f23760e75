// SPDX-License-Identifier: GPL-3.0-or-later
/// The walk over tiles and the spreading of words inside them.
#include "tools/TileRegion.h"
#include "base/BitmapRep.h"
#include "tools/TileBounds.h"
#include <algorithm>
#include <bit>
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
      mQueueMemory((kMostTiles + 1) * 4),
      mTiles(reinterpret_cast<Tile*>(mTileMemory.data())),
      mQueue(reinterpret_cast<std::uint32_t*>(mQueueMemory.data()))
{
}

void TileRegion::forget()
{
    mReached = {};
    mHead = mTail = 0;
    mColumns = mRows = 0;
}

bool TileRegion::begin(ConstBitmapView pixels, ConstMaskView mask, PixelPoint seed, const TileQuery& query,
                       const TileBounds* bounds)
{
    mPixels = pixels, mMask = mask, mQuery = query, mBounds = bounds;
    mReached = {};
    mHead = mTail = 0;
    mColumns = (pixels.width + kTileSide - 1) / kTileSide;
    mRows = (pixels.height + kTileSide - 1) / kTileSide;
    mQueueSize = std::uint32_t(mColumns) * std::uint32_t(mRows) + 1;
    if (++mGeneration == 0) {
        // After four thousand million fills the numbers begin again, and no tile may take an old one for the present.
        mTileMemory.release();
        mGeneration = 1;
    }
    if (query.tolerance < 1) return false;
    Tile& first =
        touch(mTiles + (seed.y / kTileSide) * mColumns + seed.x / kTileSide, seed.x / kTileSide, seed.y / kTileSide);
    load(first);
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
        tile->loaded = tile->queued = tile->allOpen = tile->done = false;
        tile->fromLeft = tile->fromRight = tile->fromAbove = tile->fromBelow = 0;
        mReached.include(column, row);
    }
    return *tile;
}

void TileRegion::enqueue(Tile& tile)
{
    if (tile.queued) return;
    tile.queued = true;
    mQueue[mTail] = std::uint32_t(&tile - mTiles);
    if (++mTail == mQueueSize) mTail = 0;
}

TileRegion::Tile* TileRegion::nextTile()
{
    if (mHead == mTail) return nullptr;
    Tile& tile = mTiles[mQueue[mHead]];
    if (++mHead == mQueueSize) mHead = 0;
    tile.queued = false;
    if (!tile.loaded) load(tile);
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

void TileRegion::load(Tile& tile)
{
    tile.region.fill(0);
    tile.loaded = true;
    if (loadByBounds(tile)) return;
    const Tile* const next = mHead == mTail ? nullptr : mTiles + mQueue[mHead];
    TileSource ahead{};
    if (next && !next->loaded) ahead = sourceOf(*next);
    const TileEdges edges = loadTile(sourceOf(tile), mQuery, tile.open, next && !next->loaded ? &ahead : nullptr);
    tile.leftOpen = edges.left, tile.rightOpen = edges.right, tile.allOpen = edges.allOpen;
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
        if (other.loaded) left &= other.rightOpen;
        other.fromRight |= left;
        if (left) enqueue(other);
    }
    if (right && column < mColumns - 1) {
        Tile& other = touch(&tile + 1, column + 1, row);
        if (other.loaded) right &= other.leftOpen;
        other.fromLeft |= right;
        if (right) enqueue(other);
    }
    if (up && row > 0) {
        Tile& other = touch(&tile - mColumns, column, row - 1);
        if (other.loaded) up &= other.open.back();
        other.fromBelow |= up;
        if (up) enqueue(other);
    }
    if (down && row < mRows - 1) {
        Tile& other = touch(&tile + mColumns, column, row + 1);
        if (other.loaded) down &= other.open.front();
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
            if (tile.generation != mGeneration || !tile.loaded) continue;
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
            if (tile.generation != mGeneration || !tile.loaded) continue;
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
        return tile.generation == mGeneration && tile.loaded ? &tile.region : nullptr;
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
