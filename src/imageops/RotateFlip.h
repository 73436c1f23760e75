// SPDX-License-Identifier: GPL-3.0-or-later
/// Quarter turns and mirror images: whole pixels moved, none changed.
#pragma once
#include "base/BitmapView.h"

namespace zp
{

/// The old pixel at column u, row v goes to column v, row W - 1 - u: the old top edge becomes the left edge.
/// @param to H x W for a W x H picture, no overlap with @p from; spare bytes are left alone
/// Time: one pass in blocks that stay in the first-level cache, on all cores. Any thread.
void rotateCounterClockwise(ConstBitmapView from, BitmapView to);
/// To column H - 1 - v, row u: the old top edge becomes the right edge. Otherwise the same.
void rotateClockwise(ConstBitmapView from, BitmapView to);

/// Left and right exchanged, in place. Time: one pass over the memory, on all cores. Any thread that owns the pixels.
void flipHorizontally(BitmapView pixels);
/// Top and bottom exchanged, in place. The same.
void flipVertically(BitmapView pixels);

} // namespace zp
