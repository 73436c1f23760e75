// SPDX-License-Identifier: GPL-3.0-or-later
/// Another size for the image: resampled, or cut and extended around the place where it stays.
#include "base/Log.h"
#include "document/Picture.h"
#include "drawing/Resample.h"
#include "operations/Commands.h"
#include <QCoreApplication>
#include <algorithm>
#include <vector>

namespace zp
{

namespace
{

/// A length as the person typed it, cut to whole pixels; far out of every range when it is no sensible number.
std::int64_t wholePixels(float length) { return length > -1e9f && length < 1e9f ? std::int64_t(length) : -1; }

/// The picture unscaled at one of nine places, counted in rows from the top left; where it does not reach stays
/// transparent.
void placeAt(int place, ConstBitmapView image, BitmapView into)
{
    const int left = (into.width - image.width) * (place % 3) / 2, top = (into.height - image.height) * (place / 3) / 2;
    const PixelBox there = PixelBox{left, top, left + image.width, top + image.height}.intersected(into.box());
    if (there.isEmpty()) return;
    copyPixels(image.part({there.x0 - left, there.y0 - top, there.x1 - left, there.y1 - top}), into.part(there));
}

/// Each pixel is the one of the old picture under its middle.
void resampleSharply(ConstBitmapView from, BitmapView to)
{
    const auto under = [](int at, int size, int oldSize) {
        return int((std::int64_t(at) * 2 + 1) * oldSize / (std::int64_t(size) * 2));
    };
    std::vector<int> columns(std::size_t(to.width));
    for (int x = 0; x < to.width; ++x) columns[std::size_t(x)] = under(x, to.width, from.width);
    for (int y = 0; y < to.height; ++y) {
        const std::uint32_t* source = from.row(under(y, to.height, from.height));
        std::uint32_t* row = to.row(y);
        for (int x = 0; x < to.width; ++x) row[x] = source[columns[std::size_t(x)]];
    }
}

} // namespace

void operations::setImageSize(Edit& edit, const Arguments& arguments)
{
    const std::int64_t width = wholePixels(arguments.number(0)), height = wholePixels(arguments.number(1));
    const bool scale = arguments.number(2) != 0, sharp = arguments.number(4) != 0;
    const int place = std::clamp(int(arguments.number(3)), 0, 8);
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
        if (!scale)
            placeAt(place, old->view(), resized->view());
        else if (sharp)
            resampleSharply(old->view(), resized->view());
        else
            resample(old->view(), resized->view());
        resized->properties = old->properties;
    }
    edit.replacePicture(std::move(resized), kRebuiltPicture);
}

} // namespace zp
