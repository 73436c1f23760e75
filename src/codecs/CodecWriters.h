// SPDX-License-Identifier: GPL-3.0-or-later
/// The writers behind the encoder, one a kind of file. Pixels are not empty; any thread; may throw bad_alloc.
#pragma once
#include "base/BitmapRep.h"
#include "base/Color.h"
#include <optional>
#include <vector>

namespace zp::codec
{

/// Opaque pictures without an alpha channel, others with associated alpha. Empty above 4 GiB.
std::vector<std::uint8_t> writeTIFF(ConstBitmapView pixels, const ImageProperties& properties, bool lzw);
/// @param quality 1 to 100
std::vector<std::uint8_t> writeJPEG(ConstBitmapView pixels, const ImageProperties& properties, int quality,
                                    const std::optional<Color>& background);
std::vector<std::uint8_t> writePNG(ConstBitmapView pixels, const ImageProperties& properties);

} // namespace zp::codec
