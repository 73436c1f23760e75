// SPDX-License-Identifier: GPL-3.0-or-later
/// The pictures that were opened before the current one, each with its steps.
#pragma once
#include "document/History.h"
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zp
{

/// A picture that is not the current one.
struct ShelvedPicture {
    std::uint64_t order = 0; ///< when it was opened, counted
    std::string path;        ///< its file; empty when it was never saved
    bool changed = false;    ///< since it was opened or saved
    PictureFiles files;
    History::Aside steps;
    std::shared_ptr<BitmapRep> pixels; ///< null as long as the steps can give them back
};

/// Main thread.
class Shelf
{
public:
    static constexpr std::size_t kMost = 10;

    /// The oldest first.
    const std::vector<ShelvedPicture>& pictures() const { return mPictures; }
    bool isEmpty() const { return mPictures.empty(); }

    /// A picture was opened: the current one's place in the order is behind all others.
    void opened() { mOrder = ++mNewest; }
    /// One that was taken from here is the current one.
    void broughtBack(std::uint64_t order) { mOrder = order; }
    /// The current picture is kept here. One too many, and the oldest goes, with its steps.
    void put(ShelvedPicture picture);
    /// The one that was opened before the current one; there being none, the newest.
    std::optional<ShelvedPicture> takePrevious();
    /// The one of that order; nothing when it is not here.
    std::optional<ShelvedPicture> take(std::uint64_t order);
    /// Of the current picture.
    std::uint64_t order() const { return mOrder; }

private:
    std::vector<ShelvedPicture> mPictures;
    std::uint64_t mOrder = 0, mNewest = 0;
};

} // namespace zp
