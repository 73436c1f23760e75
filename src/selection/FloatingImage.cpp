// SPDX-License-Identifier: GPL-3.0-or-later
/// Lifting, placing, drawing and copying the floating selection's picture, and the pixel work of cut and crop.
#include "selection/FloatingImage.h"
#include "base/WorkPool.h"
#include "selection/SelectionRows.h"
#include <algorithm>
#include <cstring>

namespace zp
{

namespace
{
/// Rows of a copy that go to another worker: less is done before it wakes up.
constexpr int kCopyGrain = 256;

struct WholePixels {
    std::int64_t x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

/// The whole pixels a rectangle touches, wherever it lies. @return false when there are none or it is not a number
bool touchedPixels(Rect box, WholePixels& pixels)
{
    const Rect whole = integralRect(box);
    if (whole.isEmpty()) return false;
    constexpr float kFar = 1e9f;
    if (!(std::abs(whole.origin.x) < kFar && std::abs(whole.origin.y) < kFar)) return false;
    if (!(whole.size.width < kFar && whole.size.height < kFar)) return false;
    pixels.x0 = std::int64_t(whole.origin.x), pixels.y0 = std::int64_t(whole.origin.y);
    pixels.x1 = pixels.x0 + std::int64_t(whole.size.width), pixels.y1 = pixels.y0 + std::int64_t(whole.size.height);
    return true;
}

/// Copies what @p from, its corner at (x, y) of @p to, has there; the rest of @p to becomes transparent.
void copyRegion(ConstBitmapView from, std::int64_t x, std::int64_t y, BitmapView to)
{
    const auto inTo = [](std::int64_t v, int limit) { return int(std::clamp<std::int64_t>(v, 0, limit)); };
    const int x0 = inTo(x, to.width), x1 = inTo(x + from.width, to.width);
    const int y0 = inTo(y, to.height), y1 = inTo(y + from.height, to.height);
    parallelBands(to.height, kCopyGrain, [&](int first, int last) {
        for (int row = first; row < last; ++row) {
            std::uint8_t* const out = to.rowData(row);
            if (row < y0 || row >= y1 || x1 <= x0) {
                std::memset(out, 0, std::size_t(to.width) * 4);
                continue;
            }
            std::memset(out, 0, std::size_t(x0) * 4);
            std::memcpy(out + 4 * x0, from.pixel(int(x0 - x), int(row - y)), std::size_t(x1 - x0) * 4);
            std::memset(out + 4 * x1, 0, std::size_t(to.width - x1) * 4);
        }
    });
}
} // namespace

_ZPTransform floatingRecord(Rect box)
{
    _ZPTransform record;
    record.position = box.center();
    record.oldPos = box.origin;
    record.oldSize = box.size;
    return record;
}

AffineTransform floatingPlacement(const _ZPTransform& record)
{
    AffineTransform placement;
    placement.translate(double(record.position.x), double(record.position.y));
    placement.rotateByDegrees(double(record.rotate));
    placement.scale(double(record.scale), double(record.scale));
    return placement;
}

AffineTransform floatingStep(const _ZPTransform& record, float scale, float rotate)
{
    AffineTransform step;
    step.translate(double(record.position.x), double(record.position.y));
    step.scale(double(scale), double(scale));
    step.scale(1 / double(record.scale), 1 / double(record.scale));
    step.rotateByDegrees(double(rotate) - double(record.rotate));
    step.translate(-double(record.position.x), -double(record.position.y));
    return step;
}

std::shared_ptr<Image> liftFloatingImage(ConstBitmapView image, Rect box)
{
    WholePixels pixels;
    if (!touchedPixels(box, pixels)) return nullptr;
    if (!isSensibleImageSize(pixels.x1 - pixels.x0, pixels.y1 - pixels.y0)) {
        pixels.x0 = std::max<std::int64_t>(pixels.x0, 0), pixels.x1 = std::min<std::int64_t>(pixels.x1, image.width);
        pixels.y0 = std::max<std::int64_t>(pixels.y0, 0), pixels.y1 = std::min<std::int64_t>(pixels.y1, image.height);
        if (!isSensibleImageSize(pixels.x1 - pixels.x0, pixels.y1 - pixels.y0)) return nullptr;
    }
    const auto rep = BitmapRep::createUninitialized(int(pixels.x1 - pixels.x0), int(pixels.y1 - pixels.y0));
    if (!rep) return nullptr;
    copyRegion(image, -pixels.x0, -pixels.y0, rep->view());
    auto lifted = std::make_shared<Image>(box.size);
    lifted->setFlipped(true);
    lifted->setPixelOrigin(
        {float(double(pixels.x0) - double(box.origin.x)), float(double(pixels.y0) - double(box.origin.y))});
    lifted->add(rep);
    return lifted;
}

void drawFloating(BitmapContext& context, const Image& image, const _ZPTransform& record, float opacity)
{
    const BitmapRep* const rep = image.drawn();
    if (!rep) return;
    const ConstBitmapView pixels = rep->view();
    const Size size = image.size();
    // The half sizes in double precision and as part of the map: a single-precision corner could be off the pixel grid.
    AffineTransform placement = floatingPlacement(record);
    placement.translate(double(image.pixelOrigin().x) - double(size.width) / 2,
                        double(image.pixelOrigin().y) - double(size.height) / 2);
    context.saveGraphicsState();
    context.concat(placement);
    context.setImageEdgesExtend(true);
    context.drawImageAt(pixels, {0, 0}, CompositingOperation::SourceOver, opacity);
    context.restoreGraphicsState();
}

std::shared_ptr<BitmapRep> copyOfFloating(const Image& image, const _ZPTransform& record, const BezierPath& clip,
                                          Rect box, float opacity)
{
    WholePixels pixels;
    if (!touchedPixels(box, pixels) || !isSensibleImageSize(pixels.x1 - pixels.x0, pixels.y1 - pixels.y0))
        return nullptr;
    auto rep = BitmapRep::create(int(pixels.x1 - pixels.x0), int(pixels.y1 - pixels.y0));
    if (!rep) return nullptr;
    BitmapContext context(rep->view());
    AffineTransform toCopy;
    toCopy.translate(-double(pixels.x0), -double(pixels.y0));
    context.concat(toCopy);
    context.addClip(clip);
    drawFloating(context, image, record, opacity);
    return rep;
}

void clearInside(BitmapView image, const BezierPath& path)
{
    if (image.isEmpty()) return;
    BitmapContext context(image);
    context.addClip(path);
    context.setColor(kClear);
    context.fillRect(image.box().rect(), CompositingOperation::Copy);
}

std::shared_ptr<BitmapRep> croppedImage(const BitmapRep& image, Rect box)
{
    if (box.isEmpty() || !(std::abs(box.origin.x) < 1e9f && std::abs(box.origin.y) < 1e9f)) return nullptr;
    if (!(box.size.width <= float(kMaxPixelsPerSide) && box.size.height <= float(kMaxPixelsPerSide))) return nullptr;
    auto cropped = BitmapRep::createUninitialized(int(box.size.width), int(box.size.height));
    if (!cropped) return nullptr;
    // Whole pixels, the nearest: a crop never resamples.
    copyRegion(image.view(), -std::int64_t(std::lround(box.origin.x)), -std::int64_t(std::lround(box.origin.y)),
               cropped->view());
    cropped->properties = image.properties;
    return cropped;
}

void clearTranslucentPixels(BitmapView image)
{
    for (int y = 0; y < image.height; ++y) clearTranslucentRow(image.row(y), image.width);
}

void clearBlackPixels(BitmapView image)
{
    for (int y = 0; y < image.height; ++y) clearBlackRow(image.row(y), image.width);
}

} // namespace zp
