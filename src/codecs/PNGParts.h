// SPDX-License-Identifier: GPL-3.0-or-later
/// A PNG file taken apart: the chunks the editor uses, and no others.
#pragma once
#include "codecs/Codec.h"
#include <string>
#include <vector>

namespace zp::codec
{

struct PNGHeader {
    enum Type : unsigned { Grey = 0, RGB = 2, Palette = 3, GreyAlpha = 4, RGBA = 6 };

    std::uint32_t width = 0, height = 0;
    unsigned depth = 8, type = RGB; ///< bits of a sample; one of the combinations that the format has
    bool interlaced = false;

    unsigned samples() const { return type == RGB ? 3 : type == RGBA ? 4 : type == GreyAlpha ? 2 : 1; }
    /// Bytes that a filter looks back: those of a pixel, at least one.
    unsigned pixelBytes() const { return std::max(1u, samples() * depth / 8); }
    /// Bytes of a row of so many pixels, without the filter's number before them.
    std::size_t rowBytes(std::uint32_t pixels) const { return (std::size_t{pixels} * samples() * depth + 7) / 8; }
};

/// Spans into the file.
struct PNGParts {
    PNGHeader header;
    /// Data of PLTE, tRNS, pHYs, eXIf, iCCP, iTXt, gAMA, cHRM and sRGB; empty when there is none that is sound.
    Bytes palette, transparency, density, exif, profile, xmp, gamma, primaries, standard;
    std::vector<Bytes> pixels;  ///< data of every IDAT
    std::size_t pixelBytes = 0; ///< of all of them
    bool damaged = false;       ///< chunks are missing or cut off at the end, or one beside the pixels is corrupt
    bool lastIsCut = false;     ///< the last of pixels ends with the file, so that its checksum is missing
};

/// Texts, times and private chunks are passed over, so that a thousand of them, or one that unpacks to gigabytes, cost
/// nothing. Checksums are verified but for those of the pixels. @param error filled with a sentence when there is no
/// picture to be had. Time: O(chunks); no memory but for the lists.
PNGParts takePNGApart(Bytes bytes, std::string& error);

/// Whether the checksum behind a chunk's data holds. @param data what stands between the chunk's name and the checksum
bool checksumHolds(Bytes data);

} // namespace zp::codec
