// SPDX-License-Identifier: GPL-3.0-or-later
/// What the picture readers and writers share: the kinds of file, limits, and how a reader hands over its result.
#pragma once
#include "base/BitmapRep.h"
#include "codecs/ImageImporter.h"
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace zp::codec
{

using Bytes = std::span<const std::uint8_t>;

/// The kinds of file that are read. What is not in this list is never handed to any reader.
enum class Format { Unknown, JPEG, PNG, TIFF, GIF, BMP, PSD, WebP, JP2, J2K, PNM, SGI, PCX, ICO, CUR, PICT, TGA };

/// The kind by the first bytes alone (TGA, which has no mark, by a header that makes sense). O(1) but for JPEG data
/// behind foreign bytes, which is looked for in the first 64 KiB. @param start where the picture's data begins
Format sniffFormat(Bytes bytes, std::size_t* start = nullptr);

/// What a reader gives: pixels as they stand in the file, and how to turn them upright.
struct Decoded {
    std::shared_ptr<BitmapRep> bitmap;
    std::string error;    ///< a sentence, when there is no bitmap
    int orientation = 1;  ///< EXIF's 1 to 8
    bool damaged = false; ///< as in ImportedImage
    Reduction reduction;  ///< as the pixels stand in the file
    PictureFacts facts{};

    static Decoded failure(std::string sentence)
    {
        Decoded result;
        result.error = std::move(sentence);
        return result;
    }
};

Decoded decodeJPEG(Bytes bytes, const ImportOptions& options);
/// A JPEG file's pixels into @p pixels, which have the file's size, as they stand in it. @return false when it is
/// damaged in any way, of another size or no such file: then pixels may have been written. Throws bad_alloc.
bool decodeJPEGInto(Bytes bytes, BitmapView pixels);
Decoded decodePNG(Bytes bytes, const ImportOptions& options);
Decoded decodeTIFF(Bytes bytes, const ImportOptions& options);
/// Whether a Photoshop file's pixels are numbers of a palette's 256 colours.
bool isIndexedPSD(Bytes bytes);
Decoded decodeIndexedPSD(Bytes bytes, const ImportOptions& options);

/// Adds to @p facts what the file's structure says of pages, frames, layers, bits, inks and quality. Looks at heads and
/// marks alone, never at pixels.
void readFacts(Bytes bytes, Format format, PictureFacts& facts);

/// Whether a picture of this size may be decoded from a file of @p fileBytes; fills @p error with a sentence when not.
/// Asked before memory is taken: sizes out of bounds, more than the machine can hold, and files so small for their
/// size that they can only be bombs.
/// @param workBytes what the reader needs beside the picture
bool checkSize(std::int64_t width, std::int64_t height, std::uint64_t fileBytes, std::string& error,
               std::uint64_t workBytes = 0);

/// A new picture with the pixels turned upright from EXIF orientation @p orientation (2 to 8), properties moved along.
/// Null when memory fails.
std::shared_ptr<BitmapRep> turnedUpright(BitmapRep& rep, int orientation);

/// Orientations 5 to 8 exchange width and height.
inline bool swapsSides(int orientation) { return orientation >= 5 && orientation <= 8; }

/// A message of a library as the end of a sentence of ours: one line, printable, without a final dot.
std::string tidyMessage(const char* message);

} // namespace zp::codec
