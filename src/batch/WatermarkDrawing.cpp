// SPDX-License-Identifier: GPL-3.0-or-later
/// Places a watermark by the picture's lower left corner.
#include "batch/WatermarkDrawing.h"
#include "base/WorkPool.h"
#include "drawing/BitmapContext.h"
#include "drawing/Resample.h"
#include <cmath>
#include <memory>
#include <new>
#include <utility>

namespace zp
{

namespace
{
constexpr double kPointsPerInch = 72;
/// Resolutions beyond these are slips of a writer, not sizes anybody meant.
constexpr double kLeastDpi = 10, kMostDpi = 5000;

float inPoints(int pixels, double dpi)
{
    const bool meant = dpi >= kLeastDpi && dpi <= kMostDpi;
    return meant ? float(pixels * kPointsPerInch / dpi) : float(pixels);
}

/// Enough rows for a band to be worth a thread, few enough for marks in one part of a picture to be shared out.
constexpr int kRowsPerBand = 128;

using Stamp = std::shared_ptr<const BitmapRep>;

int wholeSide(double side) { return std::max(1, int(std::lround(side))); }

Stamp inSize(ConstBitmapView watermark, int width, int height)
{
    auto stamp = BitmapRep::createUninitialized(width, height);
    if (!stamp) throw std::bad_alloc();
    resample(watermark, stamp->view());
    return stamp;
}

/// The upright stamp, size.width by size.height, turned about the middle of a clear box.
Stamp turned(ConstBitmapView upright, Size size, int turn, int width, int height)
{
    auto stamp = BitmapRep::create(width, height);
    if (!stamp) throw std::bad_alloc();
    BitmapContext context(stamp->view());
    AffineTransform map;
    map.translate(width / 2.0, height / 2.0);
    map.rotateByDegrees(-turn); // y grows downwards
    context.concat(map);
    context.drawImage(upright, {{-size.width / 2, -size.height / 2}, size}, upright.box().rect());
    return stamp;
}
} // namespace

Size sizeInPoints(const BitmapRep& picture)
{
    return {inPoints(picture.pixelsWide(), picture.properties.xDpi),
            inPoints(picture.pixelsHigh(), picture.properties.yDpi)};
}

void drawWatermark(BitmapView image, ConstBitmapView watermark, Size size, Point point, float alpha)
{
    if (image.isEmpty() || watermark.isEmpty()) return;
    BitmapContext context(image);
    const auto top = float(double(image.height) - double(point.y) - double(size.height));
    context.drawImage(watermark, {{point.x, top}, size}, watermark.box().rect(), CompositingOperation::SourceOver,
                      alpha);
}

void drawWatermarks(BitmapView image, ConstBitmapView watermark, const WatermarkPlan& plan, Size planned, float alpha)
{
    if (image.isEmpty() || watermark.isEmpty()) return;
    const double across = image.width / double(planned.width), down = image.height / double(planned.height);
    const auto scaled = [&](Size size) { return Size{float(size.width * across), float(size.height * down)}; };
    const Size size = scaled(plan.size), box = scaled(plan.box);
    const int width = wholeSide(size.width), height = wholeSide(size.height);
    ConstBitmapView ink = watermark;
    Stamp stamp; // what ink looks at, unless the watermark is its own stamp
    if (width != ink.width || height != ink.height) ink = (stamp = inSize(ink, width, height))->view();
    if (plan.turn % 360 != 0)
        ink = (stamp = turned(ink, size, plan.turn, wholeSide(box.width), wholeSide(box.height)))->view();
    // Bands of the image, each with all marks that touch it: marks of one row seldom keep two processors busy.
    parallelBands(image.height, kRowsPerBand, [&](int first, int last) {
        BitmapContext context(image.part({0, first, image.width, last}));
        for (const PixelPoint place : plan.places) {
            const auto top = float(place.y * down);
            if (top >= float(last) || top + box.height <= float(first)) continue;
            context.drawImage(ink, {{float(place.x * across), top - float(first)}, box}, ink.box().rect(),
                              CompositingOperation::SourceOver, alpha);
        }
    });
}

} // namespace zp
