// SPDX-License-Identifier: GPL-3.0-or-later
/// The three kinds of file that are written.
#include "codecs/ImageEncoder.h"
#include "codecs/CodecWriters.h"
#include <algorithm>
#include <cmath>
#include <exception>

namespace zp
{
namespace
{

/// What memory does not suffice for is a failure like any other: nothing was encoded.
template <class Write>
std::vector<std::uint8_t> guarded(ConstBitmapView pixels, Write write)
{
    if (pixels.isEmpty()) return {};
    try {
        return write();
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace

std::vector<std::uint8_t> encodeTIFF(ConstBitmapView pixels, const ImageProperties& properties, TIFFOptions options)
{
    return guarded(pixels, [&] { return codec::writeTIFF(pixels, properties, options.lzw); });
}

std::vector<std::uint8_t> encodeJPEG(ConstBitmapView pixels, const ImageProperties& properties, JPEGOptions options)
{
    const int quality = int(std::lround(std::clamp(options.factor, 0.0, 1.0) * 100));
    return guarded(
        pixels, [&] { return codec::writeJPEG(pixels, properties, std::max(1, quality), options.fallbackBackground); });
}

std::vector<std::uint8_t> encodePNG(ConstBitmapView pixels, const ImageProperties& properties)
{
    return guarded(pixels, [&] { return codec::writePNG(pixels, properties); });
}

} // namespace zp
