// SPDX-License-Identifier: GPL-3.0-or-later
/// A picture in another size: averaged where it shrinks, interpolated where it grows.
#pragma once
#include "base/BitmapView.h"

namespace zp
{

/// Fills the whole of @p destination with the whole of @p source. Along an axis that shrinks, every pixel is the mean
/// of the area it covers; along one that grows it is interpolated by cubics through the pixels (Catmull-Rom), edges
/// extended; an axis that keeps its length is left alone, so that the same size is an exact copy. On premultiplied
/// samples: colour stays within alpha, and a flat picture stays flat. The views must not overlap; an empty one does
/// nothing. Both cores. Any thread. Cost: the source read once, plus the destination.
void resample(ConstBitmapView source, BitmapView destination);

} // namespace zp
