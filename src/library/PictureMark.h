// SPDX-License-Identifier: GPL-3.0-or-later
/// By what a picture's file is known again once it is gone from its place, and the index that remembers it.
#pragma once
#include "library/PictureLook.h"
#include <map>
#include <stop_token>
#include <string>

namespace zp
{

struct PictureMark {
    std::int64_t size = 0, modified = 0;  ///< bytes; nanoseconds since 1970
    std::uint64_t samples = 0;            ///< digest of eight blocks spread over the file; of all of a small one
    std::optional<std::uint64_t> whole{}; ///< digest of all of it, once somebody needed it
    bool looked = false;                  ///< whether the look was asked for
    std::optional<PictureLook> look{};    ///< nothing for one that is plain or cannot be read
    bool operator==(const PictureMark&) const = default;
};

/// Reads 128 KiB at most. @return nothing for what is no readable ordinary file. Any thread.
std::optional<PictureMark> markOfFile(const std::string& path);
/// @return nothing when the file cannot be read to its end, or a stop was asked for. Any thread; time of reading it.
std::optional<std::uint64_t> digestOfFile(const std::string& path, const std::stop_token& stop = {});
/// From a reduced decode; nothing for one that is plain or cannot be read. Any thread.
std::optional<PictureLook> lookOfFile(const std::string& path);

/// By the file's path. A mark holds as long as the file's size and time are the mark's.
using PictureMarks = std::map<std::string, PictureMark>;

/// Where the index is: among the program's own data. In the library's folder it would be a row.
std::string libraryIndexPath();
/// @return the marks; none at all when the index is missing, damaged, of another version or too large
PictureMarks readLibraryIndex(const std::string& path);
/// @return success; marks beyond the first 100,000 are left out
bool writeLibraryIndex(const std::string& path, const PictureMarks& marks);

} // namespace zp
