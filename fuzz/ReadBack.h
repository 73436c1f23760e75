// SPDX-License-Identifier: GPL-3.0-or-later
/// A picture that was read is written in each format and read again.
#pragma once
#include "Fuzz.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include <cstring>

namespace zp::fuzz
{

/// Larger ones say nothing new and take all the time.
inline constexpr std::int64_t kMostPixels = 1 << 16;

inline bool sameRows(ConstBitmapView a, ConstBitmapView b)
{
    if (a.width != b.width || a.height != b.height) return false;
    for (int y = 0; y < a.height; ++y)
        if (std::memcmp(a.rowData(y), b.rowData(y), std::size_t(a.width) * 4) != 0) return false;
    return true;
}

/// What any reader gives: whole pixels whose colour never exceeds their alpha, and the same again from what is written.
inline void readBack(Bytes bytes)
{
    const ImportedImage read = importImage(bytes);
    require(bool(read.bitmap) == read.error.empty(), "a picture or a sentence");
    if (!read.bitmap) return;
    const ConstBitmapView pixels = std::as_const(*read.bitmap).view();
    if (std::int64_t(pixels.width) * pixels.height > kMostPixels) return;
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x) {
            const std::uint8_t* p = pixels.pixel(x, y);
            require(p[1] <= p[0] && p[2] <= p[0] && p[3] <= p[0], "colour within alpha");
        }
    const auto tiff = encodeTIFF(pixels, read.bitmap->properties);
    const ImportedImage again = importImage(tiff);
    require(again.bitmap && !again.damaged, "the TIFF that was written can be read");
    require(sameRows(pixels, std::as_const(*again.bitmap).view()), "the TIFF holds the same pixels");
    const ImportedImage png = importImage(encodePNG(pixels, read.bitmap->properties));
    require(png.bitmap && !png.damaged, "the PNG that was written can be read");
    require(png.bitmap->pixelsWide() == pixels.width && png.bitmap->pixelsHigh() == pixels.height, "the PNG's size");
    const ImportedImage jpeg = importImage(encodeJPEG(pixels, read.bitmap->properties));
    require(jpeg.bitmap && !jpeg.damaged, "the JPEG that was written can be read");
    require(jpeg.bitmap->pixelsWide() == pixels.width && jpeg.bitmap->pixelsHigh() == pixels.height, "the JPEG's size");
}

} // namespace zp::fuzz
