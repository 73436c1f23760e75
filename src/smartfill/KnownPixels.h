// SPDX-License-Identifier: GPL-3.0-or-later
/// Which pixels of the work rectangle have a colour, and which thirty of them lie nearest to a given one.
#pragma once
#include "smartfill/SmartFillMatch.h"
#include <array>
#include <cstdint>
#include <vector>

namespace zp
{

/// The picture is a torus here: a pixel's neighbourhood goes on at the opposite edge, so one pixel may be several
/// neighbours. Nearest means by dx * dx + dy * dy, then dy, then dx, over offsets within -(size - 1) to size - 1.
///
/// Close by, a short table of offsets in that order is walked over bytes. Where known pixels are rare, a walk would
/// visit the whole plane for every pixel of a large hole; there, tiles of 16 x 16 bits with counts are searched ring by
/// ring until nothing nearer can be left.
class KnownPixels
{
public:
    explicit KnownPixels(const MatchLayout& layout);

    void set(int x, int y);
    /// Collects up to 30 nearest known pixels of (x, y), itself included when known, in the order above; fills all of
    /// @p out but the values. Time: O(1 / density of known pixels).
    void collect(int x, int y, Neighbourhood& out) const;

private:
    static constexpr int kWalkReach = 10; ///< beyond, at a density below a tenth, the tiles are faster
    static constexpr int kTile = 16;
    struct Tile {
        std::uint16_t rows[kTile] = {};
    };
    struct Ranked;

    bool walk(int x, int y, Neighbourhood& out) const;
    void search(int x, int y, Neighbourhood& out) const;
    void searchTile(int column, int row, int x, int y, Ranked& ranked) const;
    /// Where tile @p number of a row (or column) of tiles starts; numbers go on through the copies of the torus.
    static int tileStart(int number, int tiles, int size);
    static int wrapped(int number, int tiles);

    MatchLayout mLayout;
    int mColumns, mRows;
    std::vector<std::uint8_t> mBytes; ///< 1 = known, in the padded layout
    std::vector<Tile> mTiles;
    std::vector<std::uint16_t> mCounts;
    std::vector<std::int32_t> mWalkDelta;
    std::vector<std::uint8_t> mWalkReach;          ///< how far the offset reaches, rounded up
    std::array<int, kWalkReach + 1> mWalkLength{}; ///< offsets no longer than the index
};

} // namespace zp
