// SPDX-License-Identifier: GPL-3.0-or-later
/// Places a watermark by the picture's lower left corner.
#include "batch/WatermarkDrawing.h"
#include "drawing/BitmapContext.h"

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

} // namespace zp
