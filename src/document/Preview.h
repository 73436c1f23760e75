// SPDX-License-Identifier: GPL-3.0-or-later
/// Pixels shown in place of the picture's own without being part of it: what a window would leave there.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>
#include <vector>

namespace zp
{

/// A value, shared with whoever made it. Image coordinates, words as in the bitmap.
struct Preview {
    PixelBox box;                     ///< inside the picture
    std::vector<std::uint32_t> words; ///< of the box, row by row
    std::vector<std::uint8_t> covers; ///< one a pixel of the box; 0: the picture's own is shown. Empty: none is 0
};

/// Lays the preview over a part of the picture whose corner is the picture's pixel (x, y). Time: O(what they share).
void layPreview(const Preview& preview, BitmapView part, int x, int y);

} // namespace zp
