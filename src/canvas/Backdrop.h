// SPDX-License-Identifier: GPL-3.0-or-later
/// What the view may show of the picture's nature: a chequerboard behind transparent parts, lines between pixels.
#pragma once
#include "base/BitmapView.h"
#include "drawing/AntsPainter.h"

namespace zp
{

/// The zoom from which the lines between pixels are drawn.
inline constexpr float kGridZoom = 8;

/// Puts a chequerboard under @p pixels, a part of the picture whose corner is the picture's pixel (x, y), so that they
/// are opaque. Its squares are about 8 screen points large at that zoom and lie still while the view scrolls.
/// Cost: one pass over the pixels.
void layChequerboardUnder(BitmapView pixels, int x, int y, double zoom);

/// Draws a line between neighbouring pixels into the target, whose device pixels are @p deviceScale to a pixel.
void drawPixelGrid(const ScreenTarget& target, double deviceScale);

} // namespace zp
