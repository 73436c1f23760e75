// SPDX-License-Identifier: GPL-3.0-or-later
/// The magic wand: a flood fill that marks mask bytes instead of painting pixels.
#pragma once
#include "base/BitmapView.h"
#include "base/Color.h"
#include "tools/ColumnFill.h"
#include "tools/FillStack.h"

namespace zp
{

class TileRegion;

/// Sets to 0 (selected) the mask bytes of the 4-connected region of pixels like @p target around @p seed. A pixel whose
/// byte is 0 already never qualifies: earlier selections are walls.
/// @param mask       the picture's size
/// @param noWalls    no byte is 0 yet: none need be looked at
/// @param seed       inside the picture; nothing happens when it does not qualify itself
/// @param target     the word to look for, not necessarily the seed's
/// @param tolerance  0..128, see wordsMatch; 0 selects nothing
/// @return           box of the bytes marked; completed is false when the stack ran full (what was marked stays)
/// Work space, cost and threads as for floodFill.
ColumnFillResult magicWand(ConstBitmapView pixels, MaskView mask, bool noWalls, PixelPoint seed, std::uint32_t target,
                           int tolerance, FillStack& stack, TileRegion& tiles);

/// The same result from the column-wise scan itself.
ColumnFillResult magicWandColumns(ConstBitmapView pixels, MaskView mask, PixelPoint seed, std::uint32_t target,
                                  int tolerance, FillStack& stack);

/// Paints with @p paint every pixel like @p target that is connected to @p seed, and marks its mask byte; the mask is
/// not looked at. Does not test colours beforehand: that is the caller's.
ColumnFillResult magicWandPainting(BitmapView pixels, MaskView mask, PixelPoint seed, std::uint32_t target,
                                   std::uint32_t paint, int tolerance, FillStack& stack);

} // namespace zp
