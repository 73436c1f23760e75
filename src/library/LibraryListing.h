// SPDX-License-Identifier: GPL-3.0-or-later
/// What the image library's table shows: the folder's entries as rows, and a row's values by column.
#pragma once
#include "base/Folders.h"
#include "codecs/ImageImporter.h"
#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace zp
{

/// The columns' identifiers, in the table's order.
inline constexpr std::array<const char*, 6> kLibraryColumns{"FILE_NAME",  "KIND",     "SIZE",
                                                            "DIMENSIONS", "MODIFIED", "PATH"};

/// Behind the name of an entry that leads to a file elsewhere: space and bullet.
inline constexpr const char* kAliasMark = " \xE2\x80\xA2";

/// The rows of a folder listing: the entry ".DS_Store" does not count when it comes first. There is always one row less
/// than the listing has entries, so without that entry the last one is not shown.
/// @param listing the folder's entries in their order
std::vector<std::string> libraryRows(std::vector<std::string> listing);

/// Keeps the entry ".DS_Store" in a folder, as the desktop that the row rule stems from does. Does nothing when the
/// folder is missing or the entry is there.
void keepFolderStore(const std::string& folder);

/// One row, as it is on the disk at the moment of asking.
struct LibraryItem {
    std::string name;                  ///< the entry's name
    std::string path;                  ///< the entry itself
    std::optional<std::string> target; ///< where it leads to, when it is an alias whose target is there
    bool broken = false;               ///< an alias whose target is gone
    FileAttributes attributes;         ///< of the target, or of the entry itself when it leads nowhere
    const std::string& file() const { return target ? *target : path; }
};
LibraryItem libraryItem(const std::string& folder, const std::string& name);

/// Pixel sizes read from files' headers, remembered until the file's size or date changes. One thread.
class DimensionsMemory
{
public:
    /// @param read how a file's header is read
    explicit DimensionsMemory(std::function<PixelDimensions(const std::string&)> read = imageFileDimensions)
        : mRead(std::move(read))
    {
    }
    PixelDimensions of(const std::string& file, const FileAttributes& attributes);

private:
    struct Entry {
        std::int64_t size = 0, modified = 0;
        PixelDimensions pixels;
    };
    std::function<PixelDimensions(const std::string&)> mRead;
    std::map<std::string, Entry> mEntries;
};

/// A row's value. Raw bytes of the file system; an unknown column's value is "NULL".
std::string libraryValue(const LibraryItem& item, const std::string& column, DimensionsMemory& dimensions);

/// "%i KB" up to 2,000 KB, beyond that "%i MB", both cut, not rounded; sizes wrap at 32 bits.
std::string librarySizeText(std::int64_t bytes);
/// Hour and minute, day, month and year of two digits, in the user's time zone.
std::string libraryDateText(std::int64_t secondsSince1970);

/// The files of a drop that the library takes: those that end in exactly "tiff" or "jpg". The one right after a refused
/// one is taken untested.
std::vector<std::string> acceptedDrop(std::vector<std::string> files);

/// Where a renamed entry goes: what was typed without its extension, with the old one in its place.
std::string renamedPath(const std::string& folder, const std::string& typed, const std::string& oldName);

} // namespace zp
