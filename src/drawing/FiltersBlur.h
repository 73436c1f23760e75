// SPDX-License-Identifier: GPL-3.0-or-later
/// Gaussian blur and unsharp mask of a part of a picture, streamed through the caches.
#pragma once
#include "base/BitmapView.h"
#include "drawing/FiltersRows.h"

namespace zp::filters
{

/// A blur wider than any picture leaves its mean; beyond this nothing changes any more that is worth the time.
inline constexpr double kWidestSigma = 1000;
/// Shares of a Gaussian sampled at whole pixels. @p sigma up to kWidestDirect.
BlurWeights gaussianWeights(double sigma);
/// Above this a Gaussian is taken on a reduced picture, still within 1.5 levels of the true one; below it the
/// doubling would show (at 5 it is off by up to 3 levels).
inline constexpr double kWidestDirect = 8;

/// How far from a pixel the pixels lie that a blur may take into it.
int blurReach(double sigma);

struct BlurJob {
    double sigma = 0;
    bool colour = false; ///< whether matrix comes first
    ColourMatrix matrix;
    bool sharpen = false; ///< unsharp mask instead of the blur itself; sigma up to kWidestDirect
    SharpenAmount amount;
};

/// Writes @p part of @p destination. Edges are extended. Both cores.
void blurPart(ConstBitmapView source, BitmapView destination, const BlurJob& job, PixelBox part);

/// The same for a blur above kWidestDirect; called by blurPart.
void wideBlurPart(ConstBitmapView source, BitmapView destination, const BlurJob& job, PixelBox part);

/// Pixels [x0, x1) of row @p y as wide samples, colour steps applied; places outside repeat the row's end.
void fetchRow(ConstBitmapView source, int y, int x0, int x1, const BlurJob& job, Wide* out);

} // namespace zp::filters
