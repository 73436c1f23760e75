// SPDX-License-Identifier: GPL-3.0-or-later
/// The drawing context: shapes become coverage, the clip takes its share, paint meets the pixels.
#include "drawing/BitmapContext.h"
#include "base/WorkPool.h"
#include "drawing/BitmapContextClip.h"
#include "drawing/CoverageStroke.h"
#include "drawing/ImageDrawingBlend.h"
#include "drawing/ImageDrawingSampler.h"
#include "drawing/PerspectiveSampler.h"
#include <array>
#include <climits>

namespace zp
{

namespace
{
/// Image rows go to several workers from this many pixels up.
constexpr int kPixelsPerBand = 200'000;

std::uint32_t premultipliedWord(Color c)
{
    const auto sane = [](float v) { return v > 0 ? std::min(v, 1.0f) : 0.0f; };
    const float alpha = sane(c.alpha);
    const std::uint32_t a = colorByte(alpha);
    // From the rounded alpha, so that colour never exceeds it.
    const auto channel = [&](float v) { return std::uint32_t(std::lround(double(sane(v)) * double(a))); };
    return a | channel(c.red) << 8 | channel(c.green) << 16 | channel(c.blue) << 24;
}

unsigned opacityByte(float fraction) { return fraction > 0 ? colorByte(std::min(fraction, 1.0f)) : 0; }

bool isFinite(const AffineTransform& t)
{
    return std::isfinite(t.m11) && std::isfinite(t.m12) && std::isfinite(t.m21) && std::isfinite(t.m22) &&
           std::isfinite(t.tX) && std::isfinite(t.tY);
}

/// If the path is an upright rectangle on whole pixels once mapped, that box.
bool isPixelRect(const BezierPath& path, const AffineTransform& t, PixelBox& box)
{
    const int count = path.elementCount();
    if (count != 5 && count != 6) return false;
    std::array<CurvePoint, 5> corners;
    int found = 0;
    bool plain = true;
    path.forEach([&](PathElement kind, const Point* p) {
        if (kind == PathElement::ClosePath) return;
        const bool expected = found == 0 ? kind == PathElement::MoveTo : kind == PathElement::LineTo;
        if (!expected || found == 5) {
            plain = false;
            return;
        }
        corners[std::size_t(found++)] = {t.m11 * double(p->x) + t.m21 * double(p->y) + t.tX,
                                         t.m12 * double(p->x) + t.m22 * double(p->y) + t.tY};
    });
    if (!plain || found < 4) return false;
    const auto same = [](CurvePoint a, CurvePoint b) { return a.x == b.x && a.y == b.y; };
    if (found == 5 && !same(corners[4], corners[0])) return false;
    for (int i = 0; i < 4; ++i)
        for (const double v : {corners[std::size_t(i)].x, corners[std::size_t(i)].y})
            if (!(std::abs(v) < 1e9) || std::floor(v) != v) return false;
    const CurvePoint a = corners[0], b = corners[1], c = corners[2], d = corners[3];
    const bool across = a.y == b.y && b.x == c.x && c.y == d.y && d.x == a.x;
    const bool down = a.x == b.x && b.y == c.y && c.x == d.x && d.y == a.y;
    if (!across && !down) return false;
    box = {int(std::min(a.x, c.x)), int(std::min(a.y, c.y)), int(std::max(a.x, c.x)), int(std::max(a.y, c.y))};
    return true;
}

/// Paint of one colour.
class ColorSink final : public CoverageSink
{
public:
    ColorSink(BitmapView pixels, std::uint32_t word, CompositingOperation operation)
        : mPixels(pixels), mWord(word), mOperation(operation)
    {
    }
    void solid(int y, int x0, int x1) override { paint(y, x0, x1, nullptr); }
    void partial(int y, int x0, int x1, const std::uint8_t* cover) override { paint(y, x0, x1, cover); }

private:
    void paint(int y, int x0, int x1, const std::uint8_t* cover)
    {
        blendRun({mPixels.row(y) + x0, nullptr, mWord, cover, x1 - x0}, mOperation, 255);
    }
    BitmapView mPixels;
    std::uint32_t mWord;
    CompositingOperation mOperation;
};

/// Paint taken from an image.
class ImageSink final : public CoverageSink
{
public:
    ImageSink(BitmapView pixels, const ImageSampler& sampler, CompositingOperation operation, unsigned opacity)
        : mPixels(pixels),
          mSampler(sampler),
          mOperation(operation),
          mOpacity(opacity),
          mRoom(static_cast<std::size_t>(pixels.width))
    {
    }
    void solid(int y, int x0, int x1) override { paint(y, x0, x1, nullptr); }
    void partial(int y, int x0, int x1, const std::uint8_t* cover) override
    {
        // Interpolation costs more than a look: what is not covered at either end is not computed.
        while (x0 < x1 && *cover == 0) ++cover, ++x0;
        while (x1 > x0 && cover[x1 - x0 - 1] == 0) --x1;
        if (x0 < x1) paint(y, x0, x1, cover);
    }

private:
    void paint(int y, int x0, int x1, const std::uint8_t* cover)
    {
        const bool wholly = !cover && mOpacity == 255 && mOperation == CompositingOperation::SourceOver;
        if (wholly && mSampler.drawOver(y, x0, x1, mPixels.row(y) + x0)) return;
        // A shift needs no room: small images drawn by the thousand, a stroke's stamps, should not pay for it.
        if (!mSampler.isShift() && mRoom.size() < std::size_t(x1 - x0)) mRoom.resize(std::size_t(x1 - x0));
        const std::uint32_t* const source = mSampler.generate(y, x0, x1, mRoom.data());
        blendRun({mPixels.row(y) + x0, source, 0, cover, x1 - x0}, mOperation, mOpacity);
    }
    BitmapView mPixels;
    const ImageSampler& mSampler;
    CompositingOperation mOperation;
    unsigned mOpacity;
    std::vector<std::uint32_t> mRoom;
};

/// Paint taken from an image in perspective.
class PerspectiveSink final : public CoverageSink
{
public:
    PerspectiveSink(BitmapView pixels, const PerspectiveSampler& sampler, unsigned opacity)
        : mPixels(pixels), mSampler(sampler), mOpacity(opacity)
    {
    }
    void solid(int y, int x0, int x1) override { partial(y, x0, x1, nullptr); }
    void partial(int y, int x0, int x1, const std::uint8_t* cover) override
    {
        blendRun({mPixels.row(y) + x0, mSampler.generate(y, x0, x1, mRoom), 0, cover, x1 - x0},
                 CompositingOperation::SourceOver, mOpacity);
    }

private:
    BitmapView mPixels;
    const PerspectiveSampler& mSampler;
    unsigned mOpacity;
    PerspectiveSampler::Room mRoom;
};
} // namespace

struct BitmapContext::State {
    AffineTransform transform;
    Clip clip;
    std::uint32_t word = premultipliedWord(kBlack);
    bool antialias = true, edgesExtend = false;
    Interpolation interpolation = Interpolation::Default;
};

struct BitmapContext::Private {
    BitmapView pixels;
    State state;
    std::vector<State> saved;

    void paint(CoverageRaster& raster, WindingRule rule, CompositingOperation operation)
    {
        ColorSink paint(pixels, state.word, operation);
        ClipSink clipped(state.clip, paint);
        raster.sweep(rule, state.antialias, clipped);
    }
};

BitmapContext::BitmapContext(BitmapView pixels) : d(std::make_unique<Private>())
{
    d->pixels = pixels;
    d->state.clip.box = pixels.isEmpty() ? PixelBox{} : pixels.box();
}

BitmapContext::~BitmapContext() = default;

void BitmapContext::saveGraphicsState() { d->saved.push_back(d->state); }

void BitmapContext::restoreGraphicsState()
{
    if (d->saved.empty()) return;
    d->state = std::move(d->saved.back());
    d->saved.pop_back();
}

void BitmapContext::concat(const AffineTransform& transform) { d->state.transform.prepend(transform); }

void BitmapContext::addClip(const BezierPath& path)
{
    Clip& clip = d->state.clip;
    if (clip.box.isEmpty()) return;
    if (PixelBox box; isPixelRect(path, d->state.transform, box)) return clip.addBox(box);
    CoverageRaster raster(clip.box);
    raster.addPath(path, d->state.transform);
    clip.addPath(raster, path.windingRule(), d->state.antialias);
}

void BitmapContext::addClip(Rect rect) { addClip(BezierPath::withRect(rect)); }

void BitmapContext::clipToMask(ConstMaskView mask)
{
    Clip& clip = d->state.clip;
    clip.addBox(mask.isEmpty() ? PixelBox{} : mask.box());
    if (!clip.box.isEmpty()) clip.masks.push_back(mask);
}

void BitmapContext::setColor(Color color) { d->state.word = premultipliedWord(color); }

void BitmapContext::setShouldAntialias(bool on) { d->state.antialias = on; }

void BitmapContext::setInterpolation(Interpolation interpolation) { d->state.interpolation = interpolation; }

void BitmapContext::setImageEdgesExtend(bool on) { d->state.edgesExtend = on; }

void BitmapContext::fill(const BezierPath& path)
{
    if (d->state.clip.box.isEmpty()) return;
    CoverageRaster raster(d->state.clip.box);
    raster.addPath(path, d->state.transform);
    d->paint(raster, path.windingRule(), CompositingOperation::SourceOver);
}

void BitmapContext::fillRect(Rect rect, CompositingOperation operation)
{
    if (rect.isEmpty() || d->state.clip.box.isEmpty()) return;
    CoverageRaster raster(d->state.clip.box);
    raster.addPath(BezierPath::withRect(rect), d->state.transform);
    d->paint(raster, WindingRule::NonZero, operation);
}

void BitmapContext::stroke(const BezierPath& path)
{
    if (d->state.clip.box.isEmpty()) return;
    CoverageRaster raster(d->state.clip.box);
    addStroke(raster, path, d->state.transform);
    d->paint(raster, WindingRule::NonZero, CompositingOperation::SourceOver);
}

void BitmapContext::frameRect(Rect rect)
{
    if (rect.isEmpty() || d->state.clip.box.isEmpty()) return;
    BezierPath frame = BezierPath::withRect(rect);
    const Rect inside = rect.inset(1);
    if (!inside.isEmpty()) frame.appendRect(inside);
    CoverageRaster raster(d->state.clip.box);
    raster.addPath(frame, d->state.transform);
    d->paint(raster, WindingRule::EvenOdd, CompositingOperation::Copy);
}

void BitmapContext::drawImage(ConstBitmapView image, Rect destination, Rect source, CompositingOperation operation,
                              float fraction)
{
    const Clip& clip = d->state.clip;
    if (image.isEmpty() || clip.box.isEmpty() || destination.isEmpty() || source.isEmpty()) return;
    AffineTransform map = d->state.transform;
    map.translate(double(destination.origin.x), double(destination.origin.y));
    if (destination.size != source.size)
        map.scale(double(destination.size.width) / double(source.size.width),
                  double(destination.size.height) / double(source.size.height));
    map.translate(-double(source.origin.x), -double(source.origin.y));
    bool invertible = false;
    map.inverted(&invertible);
    const PixelBox part = pixelBoxOf(source, image.width, image.height);
    if (!isFinite(map) || !invertible || part.isEmpty()) return;
    const unsigned opacity = opacityByte(fraction);
    const bool nearest = d->state.interpolation == Interpolation::None;

    // What of the image is asked for; its border pixels are whole even when the rectangle cuts them.
    const Rect shown = intersectionRect(source, part.rect());
    int dx = 0, dy = 0;
    if (shown == part.rect() && ImageSampler::isNearlyShift(map, part, dx, dy)) {
        const auto shifted = [](int v, int by) {
            return int(std::clamp(std::int64_t{v} + by, std::int64_t{INT_MIN}, std::int64_t{INT_MAX}));
        };
        const PixelBox box =
            PixelBox{shifted(part.x0, dx), shifted(part.y0, dy), shifted(part.x1, dx), shifted(part.y1, dy)}
                .intersected(clip.box);
        if (box.isEmpty()) return;
        const ImageSampler sampler(image, part, map, box, nearest);
        parallelBands(box.height(), kPixelsPerBand / box.width() + 1, [&](int first, int last) {
            ImageSink paint(d->pixels, sampler, operation, opacity);
            ClipSink clipped(clip, paint);
            for (int y = box.y0 + first; y < box.y0 + last; ++y) clipped.solid(y, box.x0, box.x1);
        });
        return;
    }

    BezierPath outline = BezierPath::withRect(shown);
    if (d->state.edgesExtend && !nearest) {
        const double across = std::hypot(map.m11, map.m12), down = std::hypot(map.m21, map.m22);
        const float ex = float(std::min(1 / across, 1e4)), ey = float(std::min(1 / down, 1e4));
        outline = BezierPath::withRect(
            makeRect(shown.minX() - ex, shown.minY() - ey, shown.size.width + 2 * ex, shown.size.height + 2 * ey));
    }
    CoverageRaster whole(clip.box);
    whole.addPath(outline, map);
    const PixelBox box = whole.extent();
    if (box.isEmpty()) return;
    const ImageSampler sampler(image, part, map, box, nearest);
    const bool antialias = d->state.antialias && !nearest;
    parallelBands(box.height(), kPixelsPerBand / 4 / box.width() + 1, [&](int first, int last) {
        CoverageRaster raster({box.x0, box.y0 + first, box.x1, box.y0 + last});
        raster.addPath(outline, map);
        ImageSink paint(d->pixels, sampler, operation, opacity);
        ClipSink clipped(clip, paint);
        raster.sweep(WindingRule::NonZero, antialias, clipped);
    });
}

void BitmapContext::drawImageAt(ConstBitmapView image, Point origin, CompositingOperation operation, float fraction)
{
    if (image.isEmpty()) return;
    const Size size{float(image.width), float(image.height)};
    drawImage(image, {origin, size}, {{0, 0}, size}, operation, fraction);
}

void BitmapContext::drawLevels(const ImageLevels& levels, const ProjectiveTransform& placement, float fraction)
{
    const Clip& clip = d->state.clip;
    if (clip.box.isEmpty() || !isFinite(d->state.transform)) return;
    const auto fromTarget = ProjectiveTransform(d->state.transform).after(placement).inverted();
    if (!fromTarget) return;
    const PerspectiveSampler sampler(levels, *fromTarget);
    const unsigned opacity = opacityByte(fraction);
    const PixelBox box = clip.box;
    parallelBands(box.height(), kPixelsPerBand / 4 / box.width() + 1, [&](int first, int last) {
        PerspectiveSink paint(d->pixels, sampler, opacity);
        ClipSink clipped(clip, paint);
        for (int y = box.y0 + first; y < box.y0 + last; ++y) clipped.solid(y, box.x0, box.x1);
    });
}

} // namespace zp
