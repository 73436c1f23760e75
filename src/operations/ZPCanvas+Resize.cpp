// SPDX-License-Identifier: GPL-3.0-or-later
/// Another size for the image: resampled, or cut and extended at its right and bottom.
#include "base/Log.h"
#include "drawing/Resample.h"
#include "operations/Commands.h"
#include <QCoreApplication>
#include <algorithm>
#include <cstring>
#include <new>

namespace zp
{

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

} // namespace

void operations::setImageSize(Edit& edit, const Arguments& arguments)
{
    const std::int64_t width = wholePixels(arguments.number(0)), height = wholePixels(arguments.number(1));
    const bool scale = arguments.number(2) != 0;
    if (!isSensibleImageSize(width, height)) {
        const QString why =
            QCoreApplication::translate(
                "Resize", "Width and height must be from 1 to %1 pixels, and the image at most %2 megapixels.")
                .arg(kMaxPixelsPerSide)
                .arg(kMaxPixels / 1'000'000);
        logLine("resize refused: %s", qUtf8Printable(why));
        return edit.refuse(QCoreApplication::translate("Resize", "The image could not be resized."), why);
    }
    const std::shared_ptr<const BitmapRep> old = edit.picture().bitmap();
    // What is resampled is written whole; what is only extended must be transparent where nothing comes to lie.
    auto resized = scale && old ? BitmapRep::createUninitialized(int(width), int(height))
                                : BitmapRep::create(int(width), int(height));
    if (!resized)
        return edit.refuse(
            QCoreApplication::translate("Resize", "The image could not be resized."),
            QCoreApplication::translate("Resize", "There is not enough memory for an image of this size."));
    if (old) {
        if (scale)
            resample(old->view(), resized->view());
        else
            placeTopLeft(old->view(), resized->view());
        resized->properties = old->properties;
    }
    edit.replacePicture(std::move(resized), kRebuiltPicture);
}

} // namespace zp
