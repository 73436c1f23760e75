// SPDX-License-Identifier: GPL-3.0-or-later
/// What a file holds that the picture read from it cannot.
#pragma once
#include <string>
#include <vector>

namespace zp
{

/// Read along with the pixels; a value that is not known says nothing is lost.
struct PictureFacts {
    int pages = 1;           ///< of a TIFF file; the picture is the first
    int frames = 1;          ///< of an animation; the picture is the first
    int layers = 0;          ///< of a layered file; the picture is what they make together
    int bits = 8;            ///< a colour's; the picture has 8
    bool inks = false;       ///< CMYK or more inks, which became red, green and blue
    int jpegQuality = 0;     ///< that its tables stand for, 1 to 100; 0 when it is no JPEG file
    bool endedEarly = false; ///< a part of the picture is missing or damaged

    /// Writing the picture into that file takes away what no step of the program brings back.
    bool losesBySaving() const { return pages > 1 || frames > 1 || layers > 1 || bits > 8; }
    bool operator==(const PictureFacts&) const = default;
};

/// What a person should know of the file just opened, a sentence each, the gravest first; none for a plain picture.
/// @param savedQuality  that saving into a JPEG file would write
std::vector<std::string> noticesOf(const PictureFacts& facts, int savedQuality);
/// "12 pages, of which the picture is the first": what saving into the file would take away, for a question.
std::string lossBySaving(const PictureFacts& facts);

} // namespace zp
