// SPDX-License-Identifier: GPL-3.0-or-later
/// How much one picture looks like another.
#pragma once
#include "base/BitmapView.h"

namespace zp
{

/// Structural similarity (SSIM) of brightness, 1 for the same: eyes forgive what keeps mean, contrast and pattern.
struct Likeness {
    double mean = 1;  ///< over all windows of 8 × 8 pixels, each 4 from the next
    double worst = 1; ///< the mean of the least alike region of 64 × 64 pixels
};

/// Both pictures lie over white; they have the same size. Pixels of the last columns and rows that fill no cell of 4 ×
/// 4 are not looked at; pictures with a side below 8 are compared by their greatest difference of a byte instead. Both
/// cores; any thread. Cost: both read once, a few bytes of memory a column and worker.
Likeness likenessOf(ConstBitmapView first, ConstBitmapView second);

} // namespace zp
