// SPDX-License-Identifier: GPL-3.0-or-later
/// Flood fill over canvas pixels, and the two older fills over colours that are kept beside it.
#pragma once
#include "base/BitmapView.h"
#include "base/Color.h"
#include "tools/ColumnFill.h"
#include "tools/FillStack.h"

namespace zp
{

class TileRegion;

/// Paints the 4-connected region of pixels like the one under @p seed.
///
/// A pixel painted in this fill never qualifies again, so a fill colour that itself matches ends like any other. A seed
/// that is walled off, or matches nothing because the tolerance is 0, paints nothing.
/// @param pixels     written in place
/// @param walls      one byte a pixel, the picture's size; non-zero stops the fill; an empty view: no walls
/// @param seed       inside the picture
/// @param fill       the word to store
/// @param tolerance  0..128; a byte matches when it differs by less, so 0 matches nothing
/// @param stack      work space; where it would run full, exactly what the column-wise scan had painted until then
/// stays
/// @param tiles      work space, normally sharedTileRegion()
/// @return           box of the pixels painted; completed is false when the stack ran full
/// Time: O(region and its border); large regions are looked at by a second thread. What memory it needs it takes before
/// the first pixel is painted. One fill at a time per work space; no other thread may use the pixels.
ColumnFillResult floodFill(BitmapView pixels, ConstMaskView walls, PixelPoint seed, std::uint32_t fill, int tolerance,
                           FillStack& stack, TileRegion& tiles);

/// The same result from the column-wise scan itself: the definition that floodFill is held to.
ColumnFillResult floodFillColumns(BitmapView pixels, ConstMaskView walls, PixelPoint seed, std::uint32_t fill,
                                  int tolerance, FillStack& stack);

/// Column-wise fill over colours: no walls, alpha not compared, ColorsWithinTolerance with tolerance @p t. Does nothing
/// when @p fill is within the tolerance of @p target. Much slower than floodFill.
ColumnFillResult floodFillColors(BitmapView pixels, PixelPoint seed, Color fill, Color target, int t, FillStack& stack);
/// The same colours and tests, pixel by pixel with four pushes each: the seed is painted untested.
/// @return completed is true only when the stack emptied after painting; a fill that did nothing reports false
ColumnFillResult floodFillFourNeighbours(BitmapView pixels, PixelPoint seed, Color fill, Color target, int t,
                                         FillStack& stack);

} // namespace zp
