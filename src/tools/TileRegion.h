// SPDX-License-Identifier: GPL-3.0-or-later
/// Finds the connected region of matching pixels with one bit a pixel, in tiles of 64 by 64 that are looked at on
/// demand.
#pragma once
#include "base/BitmapView.h"
#include "base/WorkPool.h"
#include "tools/PixelBits.h"
#include "tools/TileKernels.h"
#include <algorithm>
#include <atomic>
#include <functional>

namespace zp
{

class TileBounds;

/// Work space for fills: finds a region, keeps its bits until the next one is looked for.
///
/// A tile's match bits are made when the region first reaches the tile. Within a tile whole words spread: along a row
/// by a carry, to the rows above and below by an AND. What crosses a border wakes the neighbour, in the order of first
/// come. Space: reserved once for the largest picture; 272 bytes a kilopixel are touched, only where the region has
/// been. Not thread-safe.
class TileRegion
{
public:
    TileRegion();
    TileRegion(const TileRegion&) = delete;
    TileRegion& operator=(const TileRegion&) = delete;

    /// Looks for the 4-connected region of open pixels around @p seed (see TileQuery); finds nothing when the seed
    /// itself is not open.
    /// @param mask      the picture's size, or empty
    /// @param fullTile  called as fullTile(box) for tiles that turn out to be open altogether, while their pixels are
    ///                  still in the cache; when it answers true, visitRows leaves the tile out. Once the region is
    ///                  large, another thread of the pool looks at pixels as well and calls it, each for other tiles
    /// Time: O(region and its border).
    void find(ConstBitmapView pixels, ConstMaskView mask, PixelPoint seed, const TileQuery& query,
              const std::function<bool(PixelBox)>& fullTile);

    /// The same search in steps: begins it. Pixels, mask and bounds must stay as they are until it is at its end.
    /// @param bounds  of the picture's tiles, so that only those that are partly open are read; null: all are read
    /// @return whether the seed is open
    bool start(ConstBitmapView pixels, ConstMaskView mask, PixelPoint seed, const TileQuery& query,
               const TileBounds* bounds)
    {
        return begin(pixels, mask, seed, query, bounds);
    }
    /// Goes on with it as long as goesOn(), asked before every tile, is true. @return whether it is at its end
    template <class GoesOn>
    bool goOn(GoesOn&& goesOn)
    {
        while (waiting() > 0 && goesOn()) take(*nextTile());
        return waiting() == 0;
    }
    /// Nothing is found.
    void forget();

    /// Pixels found so far.
    std::size_t count() const;
    /// Bit i: pixel 64 * column + i of row y is found. Anywhere: outside the picture nothing is.
    std::uint64_t bitsOf(int column, int y) const
    {
        if (column < 0 || y < 0 || column >= mColumns || y >= mPixels.height) return 0;
        const Tile& tile = mTiles[std::size_t(y / kTileSide) * std::size_t(mColumns) + std::size_t(column)];
        return isKnown(tile) ? tile.region[std::size_t(y % kTileSide)] : 0;
    }
    bool contains(int x, int y) const { return x >= 0 && bitsOf(x / kTileSide, y) >> (x % kTileSide) & 1; }

    /// Box of the region found last; empty when there was none.
    PixelBox box() const;
    /// How many pushes the column-wise scan makes on this region: one, and one for every place where a vertical run
    /// touches one beside it. The stack never holds more at a time.
    std::size_t columnScanPushes() const;
    /// f(x, y, bits) for every 64-pixel word of rows [firstRow, lastRow) that has bits of the region; x is a multiple
    /// of 64.
    template <class F>
    void visitRows(int firstRow, int lastRow, F&& f) const
    {
        for (int y = firstRow; y < lastRow; ++y) {
            const Tile* tile = mTiles + std::size_t(y / kTileSide) * std::size_t(mColumns) + std::size_t(mReached.x0);
            for (int column = mReached.x0; column < mReached.x1; ++column, ++tile) {
                if (tile->generation != mGeneration || tile->done) continue;
                if (const std::uint64_t bits = tile->region[std::size_t(y % kTileSide)]) f(column * kTileSide, y, bits);
            }
        }
    }

    /// The same for all rows of the region, whose box is @p found, by several threads where it is large.
    template <class F>
    void visit(PixelBox found, F&& f) const
    {
        constexpr int kWorthAThread = 1 << 18; // pixels
        const auto visitBand = [&](int first, int last) { visitRows(found.y0 + first, found.y0 + last, f); };
        parallelBands(found.height(), kWorthAThread / std::max(found.width(), 1), std::ref(visitBand));
    }

private:
    /// Whose the tile's bits are: open, region, leftOpen, rightOpen, allOpen and done.
    enum Bits : std::uint8_t {
        Unknown,
        BeingMade, ///< a thread's that looks at the pixels
        Made,      ///< the searching thread's
    };
    struct alignas(64) Tile {
        std::uint32_t generation;  ///< of which search the rest speaks; any other: nothing is known yet
        std::uint16_t column, row; ///< counted in tiles
        std::atomic<Bits> bits;
        bool queued, allOpen, done;
        std::uint64_t fromLeft, fromRight;  ///< bit y: the region comes in at that end of row y
        std::uint64_t fromAbove, fromBelow; ///< bit x: at the top (bottom) of column x
        std::uint64_t leftOpen, rightOpen;  ///< bit y: the row's first (last) pixel is open and not reached yet
        TileRows open;                      ///< open and not reached yet
        TileRows region;                    ///< reached
    };

    bool begin(ConstBitmapView pixels, ConstMaskView mask, PixelPoint seed, const TileQuery& query,
               const TileBounds* bounds);
    /// The search goes on to its end; another thread makes bits of tiles that wait while this one spreads.
    void goOnWithHelp();
    void makeBitsAhead();
    Tile* nextTile(); ///< with its bits; null when none waits
    void take(Tile& tile) { tile.allOpen ? takeWhole(tile) : spread(tile, 0); }
    void takeWhole(Tile& tile);
    /// Takes all that can be reached inside the tile. @p dirty: rows into which something comes already, in mComing.
    void spread(Tile& tile, std::uint64_t dirty);
    void wakeNeighbours(Tile& tile, std::uint64_t left, std::uint64_t right, std::uint64_t up, std::uint64_t down);
    Tile& touch(Tile* tile, int column, int row);
    void enqueue(Tile& tile);
    /// Makes the tile's bits unless they are made, or being made by the other thread. @param next  the tile whose turn
    /// is next, called from memory meanwhile; may be null
    void load(Tile& tile, const Tile* next);
    static bool isMade(const Tile& tile) { return tile.bits.load(std::memory_order_acquire) == Made; }
    bool isKnown(const Tile& tile) const { return tile.generation == mGeneration && isMade(tile); }
    Tile& waitingAt(std::uint32_t place) { return mTiles[mQueue[place & mQueueMask].load(std::memory_order_relaxed)]; }
    std::uint32_t waiting() const { return mTail.load(std::memory_order_relaxed) - mHead; }
    bool loadByBounds(Tile& tile); ///< whether the tile's bounds said enough
    PixelBox boxOf(const Tile& tile) const;
    TileSource sourceOf(const Tile& tile) const;

    ReservedMemory mTileMemory, mQueueMemory;
    Tile* mTiles;
    /// A ring of tile numbers, as long as a power of two; a tile is in it at most once. Places are counted on for ever.
    std::atomic<std::uint32_t>* mQueue;
    std::uint32_t mQueueMask = 0;
    std::atomic<std::uint32_t> mHead = 0, mTail = 0;          ///< written by the searching thread
    std::atomic<bool> mSearching = false;                     ///< within goOnWithHelp()
    const std::function<bool(PixelBox)>* mFullTile = nullptr; ///< within find()
    std::uint32_t mGeneration = 0;
    int mColumns = 0, mRows = 0;
    PixelBox mReached; ///< in tiles
    ConstBitmapView mPixels;
    ConstMaskView mMask;
    TileQuery mQuery;
    const TileBounds* mBounds = nullptr;
    TileRows mComing{}; ///< within spread(): what comes into each row; zero between calls
};

/// The process's one work space. Main thread.
TileRegion& sharedTileRegion();

} // namespace zp
