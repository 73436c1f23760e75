// SPDX-License-Identifier: GPL-3.0-or-later
/// Making pictures: sizes are judged before memory is asked for.
#include "base/BitmapRep.h"

namespace zp
{

bool isSensibleImageSize(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width <= kMaxPixelsPerSide && height <= kMaxPixelsPerSide &&
           width * height <= kMaxPixels;
}

std::shared_ptr<BitmapRep> BitmapRep::create(int width, int height)
{
    if (!isSensibleImageSize(width, height)) return nullptr;
    const std::ptrdiff_t rowBytes = rowBytesForWidth(width);
    PixelMemory bytes = allocatePixels(std::size_t(rowBytes) * std::size_t(height));
    if (!bytes) return nullptr;
    return std::shared_ptr<BitmapRep>(new BitmapRep(std::move(bytes), width, height, rowBytes));
}

std::shared_ptr<BitmapRep> BitmapRep::createUninitialized(int width, int height)
{
    if (!isSensibleImageSize(width, height)) return nullptr;
    const std::ptrdiff_t rowBytes = rowBytesForWidth(width);
    PixelMemory bytes = allocatePixelsUninitialized(std::size_t(rowBytes) * std::size_t(height));
    if (!bytes) return nullptr;
    return std::shared_ptr<BitmapRep>(new BitmapRep(std::move(bytes), width, height, rowBytes));
}

std::shared_ptr<BitmapRep> copyOf(const BitmapRep& picture)
{
    auto copy = BitmapRep::createUninitialized(picture.pixelsWide(), picture.pixelsHigh());
    if (!copy) return nullptr;
    copyPixels(picture.view(), copy->view());
    copy->properties = picture.properties;
    return copy;
}

} // namespace zp
