// SPDX-License-Identifier: GPL-3.0-or-later
/// Small pictures of files, kept where the programs of a desktop keep theirs.
#pragma once
#include <QImage>
#include <cstdint>
#include <limits>
#include <string>

namespace zp
{

struct Thumbnail {
    QImage image;      ///< upright, its proportions kept, never enlarged; null when there is none
    std::string error; ///< why, in a sentence
};

/// The file's picture, at least @p side pixels on its longer side where it has them and below twice that.
///
/// It comes from the desktop's shared cache ($XDG_CACHE_HOME/thumbnails) when that holds one of the file as it is now;
/// otherwise the file is decoded and the cache gets it. Larger ones than the cache knows (1024) are decoded every time.
/// @param largestFile  bytes; a larger file is not decoded
/// Any thread. Some milliseconds from the cache; else the time of decoding a reduced picture.
Thumbnail thumbnailOf(const std::string& path, int side,
                      std::uintmax_t largestFile = std::numeric_limits<std::uintmax_t>::max());

} // namespace zp
