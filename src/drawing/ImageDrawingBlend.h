// SPDX-License-Identifier: GPL-3.0-or-later
/// How runs of pixels meet those that are there: the compositing operations, one run of a row at a time.
#pragma once
#include "drawing/BitmapContext.h"
#include <cstdint>

namespace zp
{

/// Everything a run needs. Pixels are premultiplied words, alpha in the low byte.
struct BlendRun {
    std::uint32_t* destination = nullptr;
    const std::uint32_t* source = nullptr; ///< null: every pixel is word
    std::uint32_t word = 0;
    const std::uint8_t* cover = nullptr; ///< 255 = wholly under what is drawn; null: all 255
    int count = 0;
};

/// Source times @p opacity (0 to 255) onto the destination. Pixels that are covered in part lie between what was there
/// and what the operation gives. Exact: an opaque source at full cover and opacity is copied, and a source equal to an
/// opaque destination leaves it as it is under any cover.
void blendRun(const BlendRun& run, CompositingOperation operation, unsigned opacity);

/// cover = cover * other / 255, rounded.
void multiplyCover(std::uint8_t* cover, const std::uint8_t* other, int count);
/// cover = cover * (255 - mask) / 255, rounded.
void multiplyCoverByMask(std::uint8_t* cover, const std::uint8_t* mask, int count);

} // namespace zp
