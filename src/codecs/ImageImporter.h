// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures into A, R, G, B rows: JPEG, TIFF and PNG by their own libraries, the rest by an allow-list of readers.
#pragma once
#include "base/BitmapRep.h"
#include "base/Reduction.h"
#include "codecs/PictureFacts.h"
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace zp
{

struct ImportedImage {
    std::shared_ptr<BitmapRep> bitmap{}; ///< null when nothing could be read
    std::string error{};                 ///< why, one sentence for people; empty on success
    bool damaged = false;  ///< the file ended too early or its pixels could be read in part only; the rest is empty
    Reduction reduction{}; ///< of a JPEG that was decoded smaller; divisor 1 for all others, its sizes then 0
    PictureFacts facts{};  ///< what the file holds that the bitmap does not
};

struct ImportOptions {
    /// JPEG only: decode at the smallest of 1/1, 1/2, 1/4, 1/8 that is still at least this large; 0: full size.
    int atLeastWidth = 0, atLeastHeight = 0;
    bool properties = true; ///< read metadata and profile as well
};

/// Decodes by content, never by name; the first page, frame or merged picture; upright by its EXIF orientation; the tag
/// in the kept EXIF block is reset. Sizes are checked before memory is taken. A partly damaged file gives what could be
/// read, with a warning in the properties. Any thread; never throws.
ImportedImage importImage(std::span<const std::uint8_t> bytes, const ImportOptions& options = {});
/// The same for a file; folders, pipes, devices and files over 4 GiB are refused.
ImportedImage importImageFile(const std::string& path, const ImportOptions& options = {});

struct PixelDimensions {
    int width = 0, height = 0; ///< 0 when unknown
};
/// From the header alone, turned as importImage would turn it. Reads a few kilobytes of the file.
PixelDimensions imageFileDimensions(const std::string& path);

} // namespace zp
