// SPDX-License-Identifier: GPL-3.0-or-later
/// Links of the library whose pictures went elsewhere, and where these are now.
#pragma once
#include "library/PictureMark.h"
#include <chrono>
#include <string>
#include <vector>

namespace zp
{

struct LostPicture {
    std::string oldPath;               ///< where it was
    std::optional<PictureMark> mark{}; ///< by which it is known; without one only its name is
};

/// How far a search goes. Whatever ends it first.
struct SearchLimits {
    int levels = 5;                        ///< folders below folders
    int entries = 50000;                   ///< files and folders looked at, for each old folder and again beside it
    std::chrono::milliseconds time{15000}; ///< for all of them
};

struct FoundPicture {
    std::string path;
    bool sameContent = false; ///< false: nothing but the name speaks for it
    bool operator==(const FoundPicture&) const = default;
};

/// Looks for them in their old folders, below, and beside (below the folder above, or the nearest one that is still
/// there; never from the root of all), near places first. One with a mark is found by size and content alone, whatever
/// its name is now, and one that kept its name is preferred; one without a mark is found by its name. Links are not
/// followed, hidden folders and other disks not entered.
/// @return what was found, in the order of @p lost. Any thread; after a stop what was found so far
std::vector<std::optional<FoundPicture>> findMovedPictures(const std::vector<LostPicture>& lost,
                                                           const SearchLimits& limits = {},
                                                           const std::stop_token& stop = {});

/// Lets the entry @p name of the library's folder lead to @p found, if it still is a broken link to @p oldPath and
/// @p found is there. In one step: no failure leaves the folder without the entry. @return whether it does now
bool relink(const std::string& folder, const std::string& name, const std::string& oldPath, const std::string& found);

} // namespace zp
