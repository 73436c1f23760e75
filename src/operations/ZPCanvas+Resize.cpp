// SPDX-License-Identifier: GPL-3.0-or-later
/// Another size for the image: resampled, or cut and extended at its right and bottom.
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Panels.h"
#include "drawing/Resample.h"
#include <algorithm>
#include <cstring>

using namespace zp;

namespace
{

/// A length as the person typed it, cut to whole pixels; far out of every range when it is no sensible number.
std::int64_t wholePixels(float length) { return length > -1e9f && length < 1e9f ? std::int64_t(length) : -1; }

/// The picture at the top left, unscaled; where it does not reach stays transparent.
void placeTopLeft(ConstBitmapView image, BitmapView into)
{
    const std::size_t bytes = std::size_t(std::min(image.width, into.width)) * 4;
    for (int y = 0; y < std::min(image.height, into.height); ++y) std::memcpy(into.rowData(y), image.rowData(y), bytes);
}

void refuse(const QString& why)
{
    logLine("resize refused: %s", qUtf8Printable(why));
    runAlert(ZPCanvas::tr("The image could not be resized."), why, {ZPCanvas::tr("OK")});
}

} // namespace

void ZPCanvas::setImageSize(Size size, bool scale)
{
    const std::int64_t width = wholePixels(size.width), height = wholePixels(size.height);
    if (!isSensibleImageSize(width, height))
        return refuse(tr("Width and height must be from 1 to %1 pixels, and the image at most %2 megapixels.")
                          .arg(kMaxPixelsPerSide)
                          .arg(kMaxPixels / 1'000'000));
    // Pixels that are still being painted or read must come to rest before they are resampled.
    waitForWorkers();
    // What is resampled is written whole; what is only extended must be transparent where nothing comes to lie.
    auto resized = scale && mBitmapRep ? BitmapRep::createUninitialized(int(width), int(height))
                                       : BitmapRep::create(int(width), int(height));
    if (!resized) return refuse(tr("There is not enough memory for an image of this size."));
    if (mBitmapRep) {
        const ConstBitmapView old = std::as_const(*mBitmapRep).view();
        if (scale)
            resample(old, resized->view());
        else
            placeTopLeft(old, resized->view());
        resized->properties = mBitmapRep->properties;
    }
    installBitmap(std::move(resized), ImageCacheMode::Default, true, true);
    releaseSelectionMask();
    createSelectionMask();
    mAuxSelectionPath.reset();
    mSelectionPath.reset();
    ++mSelectionPathVersion;
    // Without its outline a floating picture could be neither seen nor anchored.
    mSelectionImage.reset();
    mPasteIntoSelectionPath.reset();
    stopSelectionTimer();
    takeSnapshot();
}
