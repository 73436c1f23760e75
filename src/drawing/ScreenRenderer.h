// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture as screen pixels: swapped, composed over grey, averaged when zoomed out, crisp squares when zoomed in.
#pragma once
#include "base/BitmapView.h"
#include "base/Geometry.h"
#include <cstddef>
#include <cstdint>

namespace zp
{

/// Fills the device pixels of @p deviceBox with opaque words 0xFFRRGGBB in the processor's byte order (the layout of a
/// QImage of Format_RGB32). Device pixel (X, Y) covers the area [X / scale, (X + 1) / scale) x [Y / scale, (Y + 1) /
/// scale) of the image. Below scale 1 it is the mean of that area (of the part inside the image), from scale 1 upwards
/// the one image pixel under its middle. Transparent places show 50 % grey.
///
/// What a pixel becomes depends on its place and the scale only, never on how the box is cut: neighbouring boxes drawn
/// at different times join without a seam. Only image pixels within one pixel of the box's own area are read.
/// @param image     premultiplied; colour above alpha gives wrong colours, nothing worse
/// @param out       the word of (deviceBox.x0, deviceBox.y0)
/// @param outStride words from one row to the next
/// @param scale     device pixels an image pixel; one that is not above zero shows @p outside everywhere
/// @param outside   the word of device pixels that touch no image pixel
/// Cost: the image area read plus the words written. Large boxes are shared between the workers. Any thread.
void renderToScreen(ConstBitmapView image, std::uint32_t* out, std::ptrdiff_t outStride, PixelBox deviceBox,
                    double scale, std::uint32_t outside);

} // namespace zp
