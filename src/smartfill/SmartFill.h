// SPDX-License-Identifier: GPL-3.0-or-later
/// Smart fill: every pixel of a hole takes the colour of the source pixel whose surroundings match its own best.
#pragma once
#include "base/BitmapView.h"
#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

namespace zp
{

/// Where a fill works, in image pixels.
struct SmartFillArea {
    PixelBox work;       ///< the selection's bounds grown by the radius, inside the picture; all corners even if faster
    bool faster = false; ///< works on every second pixel in both directions
    PixelBox selection;  ///< faster only: the even-aligned selection bounds, all that is written back; may reach out
};

/// The work rectangle of a selection.
/// @param selection  the selection's bounds in image pixels; may lie partly or wholly outside the picture
/// @param width,height  of the picture
/// @param radiusPercent  how far the surroundings reach, in percent of the selection's own width and height
SmartFillArea smartFillArea(Rect selection, int width, int height, int radiusPercent, bool faster);

/// The pixels and mask bytes of a work rectangle, taken out of the picture: every second one of each row and column in
/// faster mode. A value: whoever has it needs the picture no more.
struct SmartFillPicture {
    int width = 0, height = 0;
    std::vector<std::uint32_t> pixels; ///< width * height words as in the bitmap
    std::vector<std::uint8_t> mask;    ///< the same count; 0 outside the selection, 255 wholly inside
    /// The same count; 0 where nothing may be taken from, though it counts as surroundings. Empty: anything may be.
    std::vector<std::uint8_t> sources;

    bool isSource(std::size_t pixel) const { return mask[pixel] != 255 && (sources.empty() || sources[pixel]); }
};

/// Reads the area out of a picture. @p bitmap must hold area.work; @p mask (255 inside) may be a part of the picture
/// only, whose near corner is @p maskOrigin, and is 0 everywhere else. Time: O(area). The thread that owns @p bitmap.
SmartFillPicture fetchSmartFillPicture(ConstBitmapView bitmap, ConstMaskView mask, const SmartFillArea& area,
                                       PixelPoint maskOrigin = {});

/// Writes a filled picture back. Normal mode: every pixel of area.work, those outside the selection with the values
/// they were read with. Faster mode: a 2 x 2 block per pixel inside area.selection and area.work, nothing else.
/// @return the box written, inside @p bitmap
/// Time: O(area). The thread that owns @p bitmap.
PixelBox writeBackSmartFill(BitmapView bitmap, const SmartFillPicture& picture, const SmartFillArea& area);

enum class SmartFillStatus {
    Filled,    ///< done; also when the hole was empty
    Cancelled, ///< stopped at a progress point: nothing may be written back
    NoSource,  ///< there are pixels to fill and none to fill from; the picture is as it was
};

/// How a run talks to whoever started it. Both are called on the thread that runs, at the progress points only: before
/// the first step, and before every step whose index is a multiple of 1,024.
struct SmartFillHooks {
    std::function<void(float)> progress; ///< 0 first, then 1 - index / steps; may be empty
    std::function<bool()> cancelled;     ///< asked after each progress but the first; may be empty
};

/// Which way of comparing to use; the result is the same.
enum class SmartFillSpeed {
    Best,     ///< the fastest the processor knows
    Portable, ///< plain C++
};

/// Fills the hole (mask not 0) of @p picture from its source pixels (isSource) in place; a partly selected pixel is
/// both. Logs "update progress: %f" lines and "image and mask fetched".
/// @param seed       the same seed gives the same picture, whatever the processor
/// @param takenFrom  if not null, gets for each pixel the one its colour was taken from; outside the hole that itself
/// Time: about 4 steps a hole pixel, each some 230 comparisons of up to 29 pixels. Memory: about 20 bytes a pixel.
/// Any thread; when cancelled, picture.pixels is left as it was.
SmartFillStatus fillSmartFillPicture(SmartFillPicture& picture, std::uint64_t seed, const SmartFillHooks& hooks,
                                     SmartFillSpeed speed = SmartFillSpeed::Best,
                                     std::vector<std::int32_t>* takenFrom = nullptr);

/// A whole run on a picture nobody else touches: fetch, fill, and write back unless it was cancelled or had no source.
/// Takes the time as its seed when @p seed is 0.
SmartFillStatus runSmartFill(BitmapView bitmap, ConstMaskView mask, const SmartFillArea& area,
                             const SmartFillHooks& hooks = {}, std::uint64_t seed = 0);

/// 65,536 times the robust distance of a channel difference of @p difference (-256 to 255), truncated: rises fast for
/// small differences and levels off for large ones, so that one odd neighbour does not spoil a match.
std::int32_t robustDistance(int difference);

} // namespace zp
