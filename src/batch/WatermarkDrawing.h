// SPDX-License-Identifier: GPL-3.0-or-later
/// A watermark over a picture.
#pragma once
#include "base/BitmapRep.h"
#include "base/Geometry.h"
#include "batch/WatermarkLayout.h"

namespace zp
{

/// The size a picture has in points: its pixels, at 72 of them an inch when it says no resolution of its own.
Size sizeInPoints(const BitmapRep& picture);

/// Draws @p watermark over @p size pixels of the image, source-over, its lower left corner @p point away from the
/// image's lower left corner, y upwards. What falls outside is cut.
/// @param alpha 0 to 1; values above count as 1
void drawWatermark(BitmapView image, ConstBitmapView watermark, Size size, Point point, float alpha);

/// Draws the watermark once in the plan's size and turn, and stamps that at every place of the plan, in their order.
/// @param planned  the picture that the plan is for; an image of another size shows it smaller, and the marks with it
/// @throw std::bad_alloc  when there is no memory for the stamp; the image is untouched then
/// Both cores. Cost: the stamp, and a source-over of what its places cover.
void drawWatermarks(BitmapView image, ConstBitmapView watermark, const WatermarkPlan& plan, Size planned, float alpha);

} // namespace zp
