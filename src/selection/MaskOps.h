// SPDX-License-Identifier: GPL-3.0-or-later
/// Whole-mask operations of the selection: set, turn over, fill from an outline, tint what it leaves out.
#pragma once
#include "base/BezierPath.h"
#include "base/BitmapView.h"
#include <cstdint>

namespace zp
{

inline constexpr std::uint8_t kSelected = 0, kNotSelected = 255;

/// Every byte of the mask becomes @p value; bytes between rows stay. One pass over the mask.
void fillMask(MaskView mask, std::uint8_t value);
/// Every byte m becomes 255 - m. One pass over the mask.
void invertMask(MaskView mask);
/// Moves the bytes that the path covers towards @p value, by the share of each pixel that it covers (even-odd). Only
/// the path's box is touched. Path in image coordinates, y down.
void renderPathInMask(MaskView mask, const BezierPath& path, std::uint8_t value);

/// Tints the pixels whose mask byte is exactly 255: of the first three bytes of the pixel (alpha, red, green) each
/// becomes round(0.7 * old + k), k = 5.7, 73.5, 39.6. Alpha is no exception, so that the outcome need not be
/// premultiplied any more. Mask and picture are of one size; of two sizes the common part is done.
void tintUnselected(BitmapView pixels, ConstMaskView mask);

} // namespace zp
