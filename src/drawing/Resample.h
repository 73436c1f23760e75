// SPDX-License-Identifier: GPL-3.0-or-later
/// A picture in another size: averaged where it shrinks, interpolated where it grows.
#pragma once
#include "base/BitmapView.h"
#include "base/Reduction.h"

namespace zp
{

/// Fills the whole of @p destination with the whole of @p source. Along an axis that shrinks, every pixel is the mean
/// of the area it covers; along one that grows it is interpolated by cubics through the pixels (Catmull-Rom), edges
/// extended; an axis that keeps its length is left alone, so that the same size is an exact copy. On premultiplied
/// samples: colour stays within alpha, and a flat picture stays flat. The views must not overlap; an empty one does
/// nothing. Both cores. Any thread. Cost: the source read once, plus the destination.
void resample(ConstBitmapView source, BitmapView destination);
/// The same for a source that may have been decoded smaller than its file: what is shrunk is the file's picture,
/// without the pixels beyond its edge that the source's last column and row stand for as well. A divisor of 1: the
/// source.
void resample(ConstBitmapView source, const Reduction& reduction, BitmapView destination);

} // namespace zp
