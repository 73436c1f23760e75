// SPDX-License-Identifier: GPL-3.0-or-later
/// What a picture looks like, in a few bytes: the same for its smaller, recompressed and brightened copies.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>
#include <optional>

namespace zp
{

/// One bit for each of the coarsest waves of the picture's brightness but the mean: whether it is above their median.
struct PictureLook {
    std::uint64_t waves = 0;
    int shape = 0; ///< 100 times the logarithm to base 2 of width by height
    bool operator==(const PictureLook&) const = default;
};

/// @param picture  A, R, G, B, premultiplied; what is transparent counts as the grey it is shown on
/// @return nothing for a picture too plain to be told from others by its look (and for an empty one). Any thread; one
/// pass over the pixels.
std::optional<PictureLook> lookOfPicture(const ConstBitmapView& picture);

/// How many of the waves differ, 0 to 63.
int lookDistance(const PictureLook& a, const PictureLook& b);
/// Whether people would take one for a copy of the other.
bool looksTheSame(const PictureLook& a, const PictureLook& b);

} // namespace zp
