// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures in the order in which they were opened.
#include "document/Shelf.h"
#include <algorithm>

namespace zp
{

void Shelf::put(ShelvedPicture picture)
{
    picture.order = mOrder;
    const auto behind = std::find_if(mPictures.begin(), mPictures.end(),
                                     [this](const ShelvedPicture& each) { return each.order > mOrder; });
    mPictures.insert(behind, std::move(picture));
    if (mPictures.size() <= kMost) return;
    History::drop(mPictures.front().steps);
    mPictures.erase(mPictures.begin());
}

std::optional<ShelvedPicture> Shelf::takePrevious()
{
    if (mPictures.empty()) return std::nullopt;
    auto taken = std::find_if(mPictures.rbegin(), mPictures.rend(),
                              [this](const ShelvedPicture& each) { return each.order < mOrder; });
    if (taken == mPictures.rend()) taken = mPictures.rbegin();
    return take(taken->order);
}

std::optional<ShelvedPicture> Shelf::take(std::uint64_t order)
{
    const auto found = std::find_if(mPictures.begin(), mPictures.end(),
                                    [order](const ShelvedPicture& each) { return each.order == order; });
    if (found == mPictures.end()) return std::nullopt;
    ShelvedPicture picture = std::move(*found);
    mPictures.erase(found);
    return picture;
}

} // namespace zp
