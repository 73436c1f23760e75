// SPDX-License-Identifier: GPL-3.0-or-later
/// Clip paths as coverage bytes, with each row's wholly open stretch known, so that most pixels need no arithmetic.
#include "drawing/BitmapContextClip.h"
#include "drawing/ImageDrawingBlend.h"
#include <cstring>

namespace zp
{

namespace
{
/// Masks are looked at in pieces: those that stop or let through everything cost no more than the look.
constexpr int kPiece = 256;

bool all(const std::uint8_t* bytes, int count, std::uint8_t value)
{
    return bytes[0] == value && (count == 1 || std::memcmp(bytes, bytes + 1, std::size_t(count) - 1) == 0);
}

class BytesSink final : public CoverageSink
{
public:
    BytesSink(std::uint8_t* bytes, PixelBox box, std::vector<ClipCoverage::Span>& spans)
        : mBytes(bytes), mBox(box), mSpans(spans)
    {
    }
    void solid(int y, int x0, int x1) override
    {
        std::memset(at(y, x0), 255, std::size_t(x1 - x0));
        ClipCoverage::Span& span = extend(y, x0, x1);
        if (x1 - x0 > span.solidLast - span.solidFirst) span.solidFirst = x0, span.solidLast = x1;
    }
    void partial(int y, int x0, int x1, const std::uint8_t* cover) override
    {
        std::memcpy(at(y, x0), cover, std::size_t(x1 - x0));
        extend(y, x0, x1);
    }

private:
    std::uint8_t* at(int y, int x) { return mBytes + std::ptrdiff_t{mBox.width()} * (y - mBox.y0) + (x - mBox.x0); }
    ClipCoverage::Span& extend(int y, int x0, int x1)
    {
        ClipCoverage::Span& span = mSpans[std::size_t(y - mBox.y0)];
        if (span.last <= span.first) span.first = x0;
        span.last = x1;
        return span;
    }
    std::uint8_t* mBytes;
    PixelBox mBox;
    std::vector<ClipCoverage::Span>& mSpans;
};
} // namespace

std::shared_ptr<const ClipCoverage> ClipCoverage::make(CoverageRaster& raster, WindingRule rule, bool antialias,
                                                       const ClipCoverage* before)
{
    auto made = std::make_shared<ClipCoverage>();
    made->mBox = raster.extent();
    if (made->mBox.isEmpty()) return made;
    made->mBytes = allocatePixels(std::size_t(made->mBox.width()) * std::size_t(made->mBox.height()));
    if (!made->mBytes) {
        made->mBox = {}; // without memory for the clip nothing passes: better than drawing where nothing should be
        return made;
    }
    made->mSpans.resize(std::size_t(made->mBox.height()));
    BytesSink sink(made->mBytes.get(), made->mBox, made->mSpans);
    raster.sweep(rule, antialias, sink);
    if (!before) return made;
    for (int y = made->mBox.y0; y < made->mBox.y1; ++y) {
        Span& span = made->mSpans[std::size_t(y - made->mBox.y0)];
        const Span& other = before->span(y);
        auto* const bytes = const_cast<std::uint8_t*>(made->row(y));
        const int first = std::max(span.first, other.first), last = std::min(span.last, other.last);
        if (first >= last) {
            span = {};
            continue;
        }
        multiplyCover(bytes + first, before->row(y) + first, last - first);
        span = {first, last, std::max(span.solidFirst, other.solidFirst), std::min(span.solidLast, other.solidLast)};
        if (span.solidLast <= span.solidFirst) span.solidFirst = span.solidLast = first;
    }
    return made;
}

void Clip::addBox(PixelBox other) { box = box.intersected(other); }

void Clip::addPath(CoverageRaster& raster, WindingRule rule, bool antialias)
{
    coverage = ClipCoverage::make(raster, rule, antialias, coverage.get());
    box = box.intersected(coverage->box());
}

std::uint8_t* ClipSink::room(int count)
{
    if (mRoom.size() < std::size_t(count)) mRoom.resize(std::size_t(count));
    return mRoom.data();
}

void ClipSink::solid(int y, int x0, int x1)
{
    const PixelBox& box = mClip.box;
    if (y < box.y0 || y >= box.y1) return;
    x0 = std::max(x0, box.x0), x1 = std::min(x1, box.x1);
    if (mClip.coverage) {
        const ClipCoverage::Span& span = mClip.coverage->span(y);
        x0 = std::max(x0, span.first), x1 = std::min(x1, span.last);
        if (x0 >= x1) return;
        const std::uint8_t* const cover = mClip.coverage->row(y);
        const int s0 = std::clamp(span.solidFirst, x0, x1), s1 = std::clamp(span.solidLast, s0, x1);
        if (s1 == s0) return masked(y, x0, x1, cover + x0);
        if (x0 < s0) masked(y, x0, s0, cover + x0);
        masked(y, s0, s1, nullptr);
        if (s1 < x1) masked(y, s1, x1, cover + s1);
        return;
    }
    if (x0 < x1) masked(y, x0, x1, nullptr);
}

void ClipSink::partial(int y, int x0, int x1, const std::uint8_t* cover)
{
    const PixelBox& box = mClip.box;
    if (y < box.y0 || y >= box.y1) return;
    int first = std::max(x0, box.x0), last = std::min(x1, box.x1);
    if (mClip.coverage) {
        const ClipCoverage::Span& span = mClip.coverage->span(y);
        first = std::max(first, span.first), last = std::min(last, span.last);
        if (first >= last) return;
        std::uint8_t* const both = room(last - first);
        std::memcpy(both, cover + (first - x0), std::size_t(last - first));
        multiplyCover(both, mClip.coverage->row(y) + first, last - first);
        return masked(y, first, last, both);
    }
    if (first < last) masked(y, first, last, cover + (first - x0));
}

void ClipSink::masked(int y, int x0, int x1, const std::uint8_t* cover)
{
    if (mClip.masks.empty()) return cover ? mNext.partial(y, x0, x1, cover) : mNext.solid(y, x0, x1);
    std::uint8_t bytes[kPiece];
    for (int x = x0; x < x1; x += kPiece) {
        const int count = std::min(kPiece, x1 - x);
        bool stopped = false, open = true;
        for (const ConstMaskView& mask : mClip.masks) {
            const std::uint8_t* const row = mask.row(y) + x;
            stopped = stopped || all(row, count, 255);
            open = open && all(row, count, 0);
        }
        if (stopped) continue;
        if (open) {
            cover ? mNext.partial(y, x, x + count, cover + (x - x0)) : mNext.solid(y, x, x + count);
            continue;
        }
        if (cover)
            std::memcpy(bytes, cover + (x - x0), std::size_t(count));
        else
            std::memset(bytes, 255, std::size_t(count));
        for (const ConstMaskView& mask : mClip.masks) multiplyCoverByMask(bytes, mask.row(y) + x, count);
        mNext.partial(y, x, x + count, bytes);
    }
}

} // namespace zp
