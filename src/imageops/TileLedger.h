// SPDX-License-Identifier: GPL-3.0-or-later
/// Which tiles of a picture have been computed.
#pragma once
#include "base/Geometry.h"
#include <cstdint>
#include <vector>

namespace zp
{

/// Tiles of kSide pixels a side over a picture, none of them done at first.
class TileLedger
{
public:
    /// Large enough that what a filter reads around a tile is little beside the tile.
    static constexpr int kSide = 256;

    TileLedger() = default;
    TileLedger(int width, int height);

    bool isComplete() const { return mMissing == 0; }
    /// The smallest box of whole tiles, cut to the picture, around those missing tiles that @p box touches; empty when
    /// none does.
    PixelBox missing(PixelBox box) const;
    /// The first row of tiles with missing ones, from its first missing tile to its last; empty when all are done.
    PixelBox nextMissing() const;
    /// Every tile inside @p box is done. Only whole tiles count.
    void markDone(PixelBox box);

private:
    PixelBox pixels(int column0, int row0, int column1, int row1) const;
    int mWidth = 0, mHeight = 0, mColumns = 0, mRows = 0, mMissing = 0;
    std::vector<std::uint8_t> mDone;
};

} // namespace zp
