// SPDX-License-Identifier: GPL-3.0-or-later
/// The library looked through as a whole: which links are broken and where their pictures are, what is there twice.
#pragma once
#include "library/Duplicates.h"
#include "library/MovedPictures.h"
#include <functional>
#include <set>

namespace zp
{

/// A broken link's picture.
struct MovedPicture {
    std::string oldPath;
    std::optional<FoundPicture> found{};
};
/// By the entry's name: all links that are broken.
using MovedPictures = std::map<std::string, MovedPicture>;

struct DuplicateEntry {
    std::string name;
    DuplicateKind why{};
    bool operator==(const DuplicateEntry&) const = default;
};
/// Entries that are the same picture, group by group, in the table's order.
using DuplicateGroups = std::vector<std::vector<DuplicateEntry>>;

/// Knows the marks of the library's pictures, from the index and from what it has read since; whatever it learns goes
/// into the index, where that can be written. One thread at a time; reads every file that it does not know yet.
class LibraryExaminer
{
public:
    /// @param folder  the library's
    /// @param index   read with the first examination
    LibraryExaminer(std::string folder, std::string index);

    /// Marks the pictures that are there and searches for those that are not. Marks of pictures that no entry leads to
    /// any more are forgotten.
    /// @param names  the library's entries
    MovedPictures findMoved(const std::vector<std::string>& names, const SearchLimits& limits = {},
                            const std::stop_token& stop = {});
    /// @param progress  how many entries are done; on the caller's thread
    /// @return nothing after a stop; what was read until then is not read again
    DuplicateGroups findDuplicates(const std::vector<std::string>& names, const std::stop_token& stop = {},
                                   const std::function<void(int)>& progress = {});
    /// Takes the digest of a whole file that is being shown, so that it can be told from any other later.
    void remember(const std::string& name, const std::stop_token& stop = {});

private:
    std::string placeOf(const std::string& name) const;
    PictureMark* markOf(const std::string& path);
    void load();
    void save();

    std::string mFolder, mIndex;
    PictureMarks mMarks;
    bool mLoaded = false, mChanged = false;
};

} // namespace zp
