// SPDX-License-Identifier: GPL-3.0-or-later
/// The owner of one picture's pixel memory, and what a file said of it besides pixels.
#pragma once
#include "base/BitmapView.h"
#include "base/PixelMemory.h"
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zp
{

/// The largest picture that is opened or made: pixels a side, and in all. Checked before memory is taken.
inline constexpr int kMaxPixelsPerSide = 30000;
inline constexpr std::int64_t kMaxPixels = 1'000'000'000;
bool isSensibleImageSize(std::int64_t width, std::int64_t height);

/// What travels with a picture from file to file beside its pixels. Blobs are kept as they came.
struct ImageProperties {
    std::vector<std::uint8_t> exif;       ///< a TIFF-structured EXIF block, without any container's prefix
    std::string xmp;                      ///< an XMP packet
    std::vector<std::uint8_t> iptc;       ///< the picture's caption and the like, as records of that standard
    std::vector<std::string> comments;    ///< the texts that a JPEG file holds beside its picture
    std::vector<std::uint8_t> iccProfile; ///< the colour profile of the pixels
    double xDpi = 0, yDpi = 0;            ///< resolution, 0 when unknown
    std::string userComment;              ///< EXIF UserComment as UTF-8; written over the block's own on saving
    std::vector<std::string> warnings;    ///< what had to be dropped or reduced on reading, a sentence each
};

/// Bytes A, R, G, B, 8 bits each, premultiplied; rowBytes = 64 * (width / 16) + 64. Not copyable: shared by pointer.
class BitmapRep
{
public:
    /// A zeroed (fully transparent) picture. @return null when the size is absurd, zero or negative, or memory fails
    static std::shared_ptr<BitmapRep> create(int width, int height);
    /// Same, pixels undefined: for those who write every pixel.
    static std::shared_ptr<BitmapRep> createUninitialized(int width, int height);
    /// 64 * floor(width / 16) + 64: a width that is a multiple of 16 still has 64 spare bytes.
    static std::ptrdiff_t rowBytesForWidth(int width) { return std::ptrdiff_t{64} * (width / 16) + 64; }

    int pixelsWide() const { return mWidth; }
    int pixelsHigh() const { return mHeight; }
    std::ptrdiff_t bytesPerRow() const { return mRowBytes; }
    std::uint8_t* bitmapData() { return mBytes.get(); }
    const std::uint8_t* bitmapData() const { return mBytes.get(); }
    BitmapView view() { return {mBytes.get(), mWidth, mHeight, mRowBytes}; }
    ConstBitmapView view() const { return {mBytes.get(), mWidth, mHeight, mRowBytes}; }

    ImageProperties properties;

    BitmapRep(const BitmapRep&) = delete;
    BitmapRep& operator=(const BitmapRep&) = delete;

private:
    BitmapRep(PixelMemory bytes, int width, int height, std::ptrdiff_t rowBytes)
        : mBytes(std::move(bytes)), mWidth(width), mHeight(height), mRowBytes(rowBytes)
    {
    }
    PixelMemory mBytes;
    int mWidth, mHeight;
    std::ptrdiff_t mRowBytes;
};

/// The same pixels and properties in memory of their own. @return null when there is none for the pixels; throws
/// bad_alloc when there is none for the properties
std::shared_ptr<BitmapRep> copyOf(const BitmapRep& picture);

} // namespace zp
