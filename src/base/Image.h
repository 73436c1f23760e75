// SPDX-License-Identifier: GPL-3.0-or-later
/// A drawable picture: a size and one or more representations of it.
#pragma once
#include "base/BitmapRep.h"
#include "base/Geometry.h"
#include <memory>
#include <vector>

namespace zp
{

enum class ImageCacheMode : int { Default = 0, Always = 1, BySize = 2, Never = 3 };

/// One form of a picture. A filtered one was computed from the plain one beside it and is drawn in its stead.
struct ImageRepresentation {
    std::shared_ptr<BitmapRep> bitmap;
    bool filtered = false;
};

/// Shared by pointer between those who draw it; the main thread changes it.
class Image
{
public:
    Image() = default;
    explicit Image(Size size) : mSize(size) {}

    /// The size given, or, when none was, that of the first representation.
    Size size() const
    {
        if (mSize != Size{} || mRepresentations.empty()) return mSize;
        return {float(mRepresentations[0].bitmap->pixelsWide()), float(mRepresentations[0].bitmap->pixelsHigh())};
    }
    void setSize(Size size) { mSize = size; }
    bool isFlipped() const { return mFlipped; }
    void setFlipped(bool flipped) { mFlipped = flipped; }
    /// Where the representations' near corner lies in the image's own coordinates: the origin, except for a picture
    /// lifted from between whole pixels, whose pixels begin a little before it.
    Point pixelOrigin() const { return mPixelOrigin; }
    void setPixelOrigin(Point origin) { mPixelOrigin = origin; }
    ImageCacheMode cacheMode() const { return mCacheMode; }
    void setCacheMode(ImageCacheMode mode) { mCacheMode = mode; }

    std::vector<ImageRepresentation>& representations() { return mRepresentations; }
    const std::vector<ImageRepresentation>& representations() const { return mRepresentations; }
    void add(std::shared_ptr<BitmapRep> rep, bool filtered = false)
    {
        mRepresentations.push_back({std::move(rep), filtered});
    }
    /// Drops every filtered representation, so that only the pixels it was computed from remain.
    void removeFiltered()
    {
        std::erase_if(mRepresentations, [](const ImageRepresentation& r) { return r.filtered; });
    }
    /// What is drawn: the first filtered representation when there are two or more, else the first. Null when empty.
    std::shared_ptr<BitmapRep> drawn() const
    {
        if (mRepresentations.size() >= 2)
            for (const ImageRepresentation& r : mRepresentations)
                if (r.filtered) return r.bitmap;
        return mRepresentations.empty() ? nullptr : mRepresentations[0].bitmap;
    }

private:
    Size mSize;
    Point mPixelOrigin;
    bool mFlipped = false;
    ImageCacheMode mCacheMode = ImageCacheMode::Default;
    std::vector<ImageRepresentation> mRepresentations;
};

} // namespace zp
