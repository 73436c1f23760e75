// SPDX-License-Identifier: GPL-3.0-or-later
/// Gaussian blur and unsharp mask of a part of a picture, streamed through the caches.
#pragma once
#include "platform/BitmapView.h"
#include "platform/FiltersRows.h"

namespace zp::filters
{

/// Shares of a Gaussian sampled at whole pixels. @p sigma up to kWidestDirect.
BlurWeights gaussianWeights(double sigma);
/// Above this a Gaussian is taken on a reduced picture: as exact, and independent of its width.
inline constexpr double kWidestDirect = 5;

/// How far from a pixel the pixels lie that a blur may take into it.
int blurReach(double sigma);

struct BlurJob {
    double sigma = 0;
    bool colour = false; ///< whether matrix comes first
    ColourMatrix matrix;
    bool sharpen = false; ///< unsharp mask instead of the blur itself; sigma up to kWidestDirect
    SharpenAmount amount;
    const BlurPasses* passes = nullptr; ///< null: the fastest
};

/// Writes @p part of @p destination. Edges are extended. Both cores.
void blurPart(ConstBitmapView source, BitmapView destination, const BlurJob& job, PixelBox part);

} // namespace zp::filters
