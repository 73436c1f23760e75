// SPDX-License-Identifier: GPL-3.0-or-later
/// Lifting, placing, drawing and copying the floating selection's picture, and the pixel work of cut and crop.
#include "selection/FloatingImage.h"
#include "base/WorkPool.h"
#include "selection/SelectionRows.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

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

/// A corner this near to the last one is the same, as when a polygon's last click meets its first; and one this near to
/// the line between its neighbours is none. In pixels.
constexpr float kSamePlace = 1, kOnSide = 0.5f;
/// Nobody sets the corners of a quadrangle by more clicks, and every movement of the pointer searches them again.
constexpr int kMostClicks = 64;

/// The box that was lifted or pasted, in the piece's own coordinates.
Rect ownBox(const _ZPTransform& record)
{
    return makeRect(-record.oldSize.width / 2, -record.oldSize.height / 2, record.oldSize.width, record.oldSize.height);
}

FloatQuad cornersOf(Rect box)
{
    const double x0 = double(box.minX()), y0 = double(box.minY()), x1 = double(box.maxX()), y1 = double(box.maxY());
    return {CurvePoint{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
}

/// The corners in turn clockwise, as the screen shows them, from the one on whose right the upper side begins.
FloatQuad fromUpperLeft(FloatQuad turn)
{
    double area = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const CurvePoint a = turn[i], b = turn[(i + 1) % 4];
        area += a.x * b.y - b.x * a.y;
    }
    if (area < 0) std::reverse(turn.begin(), turn.end());
    const auto slope = [&turn](std::size_t i) { // 1: the side from this corner leads straight to the right
        const CurvePoint a = turn[i], b = turn[(i + 1) % 4];
        return (b.x - a.x) / std::max(1e-9, std::hypot(b.x - a.x, b.y - a.y));
    };
    std::size_t first = 0;
    for (std::size_t i = 1; i < 4; ++i)
        if (slope(i) > slope(first)) first = i;
    std::rotate(turn.begin(), turn.begin() + std::ptrdiff_t(first), turn.end());
    return turn;
}

FloatQuad mapped(const AffineTransform& map, FloatQuad corners)
{
    for (CurvePoint& corner : corners) {
        const Point p = map.apply(Point{float(corner.x), float(corner.y)});
        corner = {double(p.x), double(p.y)};
    }
    return corners;
}

/// Corners of the image as ones of the piece. @return nothing when the piece is too small to have places
std::optional<FloatQuad> inPieceOf(const _ZPTransform& record, const FloatQuad& corners)
{
    bool ok = false;
    const AffineTransform toPiece = floatingPlacement(record).inverted(&ok);
    if (!ok) return std::nullopt;
    return mapped(toPiece, corners);
}

/// From the pixels of the image to its coordinates as a piece. In double precision: a single-precision corner could be
/// off the pixel grid.
AffineTransform toPlace(const Image& image)
{
    AffineTransform place;
    place.translate(double(image.pixelOrigin().x) - double(image.size().width) / 2,
                    double(image.pixelOrigin().y) - double(image.size().height) / 2);
    return place;
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

bool hasPulledCorners(const _ZPTransform& record)
{
    return std::any_of(record.corners.begin(), record.corners.end(), [](Point p) { return p != Point{}; });
}

std::optional<ProjectiveTransform> pulledPlacement(const _ZPTransform& record)
{
    const Rect box = ownBox(record);
    std::array<CurvePoint, 4> corners = cornersOf(box);
    for (std::size_t i = 0; i < 4; ++i) {
        corners[i].x += double(record.corners[i].x);
        corners[i].y += double(record.corners[i].y);
    }
    const auto pulled = ProjectiveTransform::ofRect(box, corners);
    if (!pulled) return std::nullopt;
    return ProjectiveTransform(floatingPlacement(record)).after(*pulled);
}

std::optional<FloatQuad> pulledQuad(const _ZPTransform& record, const FloatQuad& own)
{
    _ZPTransform unmoved = record;
    unmoved.position = {}, unmoved.scale = 1, unmoved.rotate = 0;
    const auto pulled = pulledPlacement(unmoved);
    if (!pulled) return std::nullopt;
    FloatQuad corners;
    for (std::size_t i = 0; i < 4; ++i) {
        if (!(pulled->divisor(own[i]) > 0)) return std::nullopt;
        corners[i] = pulled->apply(own[i]);
    }
    return corners;
}

std::optional<std::array<Point, 4>> pullsThatBring(const _ZPTransform& record, const FloatQuad& own,
                                                   const FloatQuad& to)
{
    const Rect unit = makeRect(0, 0, 1, 1);
    const auto from = ProjectiveTransform::ofRect(unit, own), there = ProjectiveTransform::ofRect(unit, to);
    const auto back = from ? from->inverted() : std::nullopt;
    if (!back || !there) return std::nullopt;
    const ProjectiveTransform map = there->after(*back);
    std::array<Point, 4> pulls;
    const Rect box = ownBox(record);
    const FloatQuad corners = cornersOf(box);
    FloatQuad pulled;
    for (std::size_t i = 0; i < 4; ++i) {
        if (!(map.divisor(corners[i]) > 0)) return std::nullopt; // this corner would be beyond the horizon
        pulled[i] = map.apply(corners[i]);
        pulls[i] = {float(pulled[i].x - corners[i].x), float(pulled[i].y - corners[i].y)};
    }
    return ProjectiveTransform::ofRect(box, pulled) ? std::optional(pulls) : std::nullopt;
}

std::optional<FloatQuad> outlineCorners(const _ZPTransform& record, const BezierPath& outline)
{
    const auto quad = fourCorners(outline);
    const auto inPiece = quad ? inPieceOf(record, *quad) : std::nullopt;
    if (!inPiece) return std::nullopt;
    const FloatQuad own = fromUpperLeft(*inPiece), box = cornersOf(ownBox(record));
    bool isBox = true;
    for (std::size_t i = 0; i < 4; ++i)
        isBox = isBox && std::hypot(own[i].x - box[i].x, own[i].y - box[i].y) < double(kOnSide);
    return isBox ? box : own;
}

FloatQuad ownCorners(const _ZPTransform& record, const BezierPath& outline)
{
    const auto own = outlineCorners(record, outline);
    if (own && ProjectiveTransform::ofRect(makeRect(0, 0, 1, 1), *own)) return *own;
    return cornersOf(ownBox(record));
}

FloatQuad placedQuad(const _ZPTransform& record, const FloatQuad& corners)
{
    return mapped(floatingPlacement(record), corners);
}

std::optional<std::array<Point, 4>> straighteningPulls(const _ZPTransform& record, const FloatQuad& own)
{
    const FloatQuad from = fromUpperLeft(placedQuad(record, own));
    const auto side = [&from](std::size_t a, std::size_t b) {
        return std::hypot(from[b].x - from[a].x, from[b].y - from[a].y);
    };
    const double width = (side(0, 1) + side(3, 2)) / 2, height = (side(0, 3) + side(1, 2)) / 2;
    CurvePoint middle;
    for (const CurvePoint p : from) middle.x += p.x / 4, middle.y += p.y / 4;
    const Rect upright =
        makeRect(float(middle.x - width / 2), float(middle.y - height / 2), float(width), float(height));
    const auto corners = inPieceOf(record, from), straight = inPieceOf(record, cornersOf(upright));
    if (!corners || !straight) return std::nullopt;
    return pullsThatBring(record, *corners, *straight);
}

std::optional<FloatQuad> fourCorners(const BezierPath& outline)
{
    if (outline.elementCount() > kMostClicks) return std::nullopt;
    std::vector<Point> corners;
    bool plain = true;
    outline.forEach([&](PathElement kind, const Point* p) {
        if (kind == PathElement::CurveTo || (kind == PathElement::MoveTo && !corners.empty())) plain = false;
        if (kind != PathElement::ClosePath) corners.push_back(*p);
    });
    if (!plain) return std::nullopt;
    for (std::size_t i = 0; i < corners.size() && corners.size() > 2;) {
        const std::size_t count = corners.size();
        const Point before = corners[(i + count - 1) % count], at = corners[i], after = corners[(i + 1) % count];
        const float length = std::hypot(after.x - before.x, after.y - before.y);
        const float area = (after.x - before.x) * (at.y - before.y) - (after.y - before.y) * (at.x - before.x);
        const bool repeated = std::hypot(at.x - before.x, at.y - before.y) < kSamePlace;
        if (!repeated && std::abs(area) >= kOnSide * length) {
            ++i;
            continue;
        }
        corners.erase(corners.begin() + std::ptrdiff_t(i));
        i = i > 0 ? i - 1 : 0;
    }
    if (corners.size() != 4) return std::nullopt;
    FloatQuad quad;
    for (std::size_t i = 0; i < 4; ++i) quad[i] = {double(corners[i].x), double(corners[i].y)};
    if (!isConvex(quad)) return std::nullopt; // dented, or crossing itself
    return fromUpperLeft(quad);
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

void drawFloating(BitmapContext& context, const Image& image, const _ZPTransform& record, float opacity,
                  const ImageLevels* levels)
{
    const std::shared_ptr<BitmapRep> rep = image.drawn();
    if (!rep) return;
    if (hasPulledCorners(record))
        return drawFloatingReduced(context, image, record, opacity, levels ? *levels : ImageLevels(rep));
    AffineTransform placement = floatingPlacement(record);
    placement.prepend(toPlace(image));
    context.saveGraphicsState();
    context.concat(placement);
    context.setImageEdgesExtend(true);
    context.drawImageAt(std::as_const(*rep).view(), {0, 0}, CompositingOperation::SourceOver, opacity);
    context.restoreGraphicsState();
}

void drawFloatingReduced(BitmapContext& context, const Image& image, const _ZPTransform& record, float opacity,
                         const ImageLevels& levels)
{
    const auto placement =
        hasPulledCorners(record) ? pulledPlacement(record) : ProjectiveTransform(floatingPlacement(record));
    if (placement) context.drawLevels(levels, placement->after(ProjectiveTransform(toPlace(image))), opacity);
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
