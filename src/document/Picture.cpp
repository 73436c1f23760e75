// SPDX-License-Identifier: GPL-3.0-or-later
/// One bitmap seen in three ways.
#include "document/Picture.h"

namespace zp
{

Picture::Picture() : mImage(std::make_shared<Image>()) {}

bool Picture::isLoaded() const
{
    const Size now = size();
    return int(now.width) != 0 && int(now.height) != 0;
}

void Picture::replace(std::shared_ptr<BitmapRep> rep, const Replacement& how)
{
    auto image = how.imageHasSize && rep
                     ? std::make_shared<Image>(Size{float(rep->pixelsWide()), float(rep->pixelsHigh())})
                     : std::make_shared<Image>();
    image->setFlipped(true);
    image->setCacheMode(how.cacheMode);
    if (rep) image->add(rep);
    mGWorld.reset();
    mBitmapRep = std::move(rep);
    if (how.storeBitmapPointer) mBitmap = mBitmapRep ? mBitmapRep->bitmapData() : nullptr;
    if (how.makeGWorld && mBitmapRep) mGWorld = GWorld::over(*mBitmapRep);
    mImage = std::move(image);
    ++mPictureGeneration;
    ++mWrites;
}

void Picture::noteWritten(const std::string& path)
{
    if (const auto stamp = fileStamp(path)) mFiles.stamps[path] = *stamp;
    // What it held beside the picture is gone.
    if (path == mFiles.opened) mFiles.facts = {};
}

bool Picture::forgetMissingFile()
{
    if (!fileExists(mImagePath)) mImagePath.clear();
    return mImagePath.empty();
}

} // namespace zp
