// SPDX-License-Identifier: GPL-3.0-or-later
/// How near one picture comes to another.
#pragma once
#include "base/BitmapView.h"
#include <cmath>

namespace zp::test
{

/// The peak signal-to-noise ratio of the colours of two pictures of one size; 99 for equal ones.
inline double decibels(ConstBitmapView a, ConstBitmapView b)
{
    double sum = 0;
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.width; ++x)
            for (int k = 1; k < 4; ++k) sum += std::pow(double(a.pixel(x, y)[k]) - double(b.pixel(x, y)[k]), 2);
    return sum == 0 ? 99 : 10 * std::log10(255.0 * 255.0 * 3 * a.width * a.height / sum);
}

} // namespace zp::test
