// SPDX-License-Identifier: GPL-3.0-or-later
/// A, R, G, B rows into TIFF, JPEG and PNG files.
#pragma once
#include "base/BitmapRep.h"
#include "base/Color.h"
#include <cstdint>
#include <optional>
#include <vector>

namespace zp
{

struct TIFFOptions {
    bool lzw = true;
};
struct JPEGOptions {
    double factor = 0.7;                       ///< 0 to 1; 0.7 is quality 70, chroma halved both ways
    std::optional<Color> fallbackBackground{}; ///< what transparent pixels are composed over; nothing: black
};

/// The picture with its properties (profile, resolution, EXIF with the user comment, XMP). Alpha is kept, associated.
/// @return empty on failure. Any thread; never throws.
std::vector<std::uint8_t> encodeTIFF(ConstBitmapView pixels, const ImageProperties& properties,
                                     TIFFOptions options = {});
std::vector<std::uint8_t> encodeJPEG(ConstBitmapView pixels, const ImageProperties& properties,
                                     JPEGOptions options = {});
/// Alpha is kept, colour un-premultiplied with rounding.
std::vector<std::uint8_t> encodePNG(ConstBitmapView pixels, const ImageProperties& properties);

} // namespace zp
