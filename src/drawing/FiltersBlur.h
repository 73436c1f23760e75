// SPDX-License-Identifier: GPL-3.0-or-later
/// Gaussian blur and unsharp mask of a part of a picture, streamed through the caches.
#pragma once
#include "base/BitmapView.h"
#include "drawing/FiltersRows.h"

namespace zp::filters
{

/// A blur wider than any picture leaves its mean; beyond this nothing changes any more that is worth the time.
inline constexpr double kWidestSigma = 1000;
/// A blur is taken on the picture halved as often as leaves it a Gaussian of this sigma: finer ones would show the
/// halved grid. The result is within 1.3 levels of the true one for any picture there could be (a checkerboard made for
/// it), within 0.95 at a sigma of 2.5, 0.25 at 4 and 7.
inline constexpr double kFinestHalved = 0.87;

struct BlurJob {
    double sigma = 0;
    bool colour = false; ///< whether matrix comes first
    ColourMatrix matrix;
    bool sharpen = false; ///< unsharp mask instead of the blur itself
    SharpenAmount amount;
};

/// How a Gaussian is taken: how often the picture is halved, and the sigma that is left for a kernel there.
struct BlurPlan {
    int levels = 0;
    double sigma = 0;
};
BlurPlan planBlur(double sigma);
/// Shares of a Gaussian sampled at whole pixels.
BlurWeights gaussianWeights(double sigma);
/// How far from a pixel the pixels lie that a blur may take into it.
int blurReach(double sigma);

/// Writes @p part of @p destination. Edges are extended. Both cores.
void blurPart(ConstBitmapView source, BitmapView destination, const BlurJob& job, PixelBox part);

/// Pixels [x0, x1) of row @p y as wide samples, colour steps applied; places outside repeat the picture's border.
void fetchRow(ConstBitmapView source, int y, int x0, int x1, const BlurJob& job, Wide* out);

/// One strip of a blur on a halved picture, columns x0 to x1 of the destination, its rows written from above down.
void blurHalvedStrip(ConstBitmapView source, BitmapView destination, const BlurJob& job, const BlurWeights& weights,
                     int levels, PixelBox box, bool stream);

} // namespace zp::filters
