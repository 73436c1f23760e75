// SPDX-License-Identifier: GPL-3.0-or-later
/// Painting limited by the selection: what was painted beside the picture comes in as far as the mask lets it.
#pragma once
#include "base/BitmapView.h"

namespace zp
{

/// Whether any mask byte of @p box lets paint through (is not 255). The box must lie inside the mask.
bool maskReaches(ConstMaskView mask, PixelBox box);

/// Mixes @p changed, the size of @p box, into the pixels there: where the mask is 0 they become those of @p changed,
/// where it is 255 they stay, between in proportion, rounded. Colour stays at most alpha. The box must lie inside
/// picture and mask. Cost: the box. Any thread that owns the pixels.
void mixThroughMask(BitmapView pixels, ConstBitmapView changed, ConstMaskView mask, PixelBox box);

} // namespace zp
