// SPDX-License-Identifier: GPL-3.0-or-later
/// Between which bytes the pixels of each tile lie, so that a search need not read tiles that are all alike.
#pragma once
#include "base/BitmapView.h"
#include "tools/TileKernels.h"
#include <vector>

namespace zp
{

/// How many of a tile's pixels match.
enum class TileMatch {
    Some, ///< or it is not known
    None,
    All,
};

/// Made in steps, a row of tiles at a time; what is not made yet says nothing. 8 bytes a tile. Main thread.
class TileBounds
{
public:
    /// Of a picture of that size, about which nothing is known yet. Time: O(tiles).
    void reset(int width, int height);
    /// Looks at further rows of tiles, each 64 rows of pixels, as long as goesOn(), asked before each, is true.
    /// @param pixels  as large as said, and the same ones each time
    /// @return whether all is known
    template <class GoesOn>
    bool goOn(ConstBitmapView pixels, GoesOn&& goesOn)
    {
        while (mKnownRows < mRows && goesOn()) lookAtNextRow(pixels);
        return mKnownRows == mRows;
    }
    TileMatch matchOf(int column, int row, const TileQuery& query) const;

private:
    void lookAtNextRow(ConstBitmapView pixels);

    int mColumns = 0, mRows = 0, mKnownRows = 0;
    std::vector<ByteBounds> mBounds;
};

} // namespace zp
