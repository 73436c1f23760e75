// SPDX-License-Identifier: GPL-3.0-or-later
/// Where a fill may take its colours from, when not from everywhere around it.
#pragma once
#include "smartfill/SmartFill.h"
#include <cstdint>
#include <vector>

namespace zp
{

/// Some of a picture's pixels, as a mask of their box: 255 wholly one of them, 0 not. Image coordinates.
struct MarkedPixels {
    PixelBox box;
    std::vector<std::uint8_t> bytes; ///< of the box, row by row

    bool isEmpty() const { return box.isEmpty(); }
    ConstMaskView view() const { return {bytes.data(), box.width(), box.height(), box.width()}; }
    PixelPoint origin() const { return {box.x0, box.y0}; }
    std::uint8_t at(int x, int y) const { return box.contains(x, y) ? view().row(y - box.y0)[x - box.x0] : 0; }
};

/// Copies the bytes of @p box, cut to the mask, whose near corner is the picture's pixel @p maskOrigin.
MarkedPixels markedPixels(ConstMaskView mask, PixelBox box, PixelPoint maskOrigin = {});

struct SmartFillSources {
    MarkedPixels from;  ///< only from these, by half or more; empty: from anywhere
    MarkedPixels never; ///< and from none that is one of these, however little
};

/// The area of a fill that takes from elsewhere: grown to hold all of sources.from; corners stay even if faster.
SmartFillArea areaWithSources(SmartFillArea area, const SmartFillSources& sources);

/// Notes in @p picture, which was fetched from @p area, what may be taken. Nothing when the sources limit nothing: then
/// the fill is byte for byte the one without them.
void limitSources(SmartFillPicture& picture, const SmartFillArea& area, const SmartFillSources& sources);

} // namespace zp
