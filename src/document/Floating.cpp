// SPDX-License-Identifier: GPL-3.0-or-later
/// The adjustment of a floating piece, computed as it is needed.
#include "document/Floating.h"
#include "base/Log.h"
#include "selection/FloatingImage.h"
#include <cmath>

namespace zp
{

namespace
{

/// Up to this many pixels a change is computed at once: it takes a fraction of a frame.
constexpr std::int64_t kAtOnce = 3'000'000;
/// How long the slider must rest before what nobody sees is computed.
constexpr int kRestMilliseconds = 120;

/// A bitmap for the filtered pixels: the last one, unless somebody else holds it or it has another size.
std::shared_ptr<BitmapRep> takeResult(Image& image, std::shared_ptr<BitmapRep> last, const BitmapRep& source)
{
    image.removeFiltered();
    if (last && last.use_count() == 1 && last->pixelsWide() == source.pixelsWide() &&
        last->pixelsHigh() == source.pixelsHigh())
        return last;
    last.reset(); // before another of its size is asked for
    return BitmapRep::createUninitialized(source.pixelsWide(), source.pixelsHigh());
}

} // namespace

Floating::Adjusting Floating::adjust(const _ZPFilters& filters, bool atOnce)
{
    if (mSelectionImage->representations().empty()) return Adjusting::Impossible;
    mAdjustFilters = filters;
    mSliderRest.stop();
    mFilteredTiles = {};
    mLevels.reset();
    mFilterSettings = filterSettings(filters);
    // Always from the lifted pixels, never from what an earlier change made of them.
    if (!mLifted) mLifted = mSelectionImage->representations().front().bitmap;
    const bool neutral = mFilterSettings.isNeutral();
    if (neutral) {
        mSelectionImage->removeFiltered();
        mFiltered = mLifted;
    } else {
        mFiltered = takeResult(*mSelectionImage, mFiltered == mLifted ? nullptr : std::move(mFiltered), *mLifted);
        if (!mFiltered) return Adjusting::NoMemory;
        mChanged = true;
    }
    mSelectionImage->add(mFiltered, true);
    if (neutral) return Adjusting::Done;
    mFilteredTiles = TileLedger(mLifted->pixelsWide(), mLifted->pixelsHigh());
    if (atOnce || std::int64_t(mLifted->pixelsWide()) * mLifted->pixelsHigh() <= kAtOnce) {
        finishAdjustment();
    } else {
        mSliderRest.setSingleShot(true);
        mSliderRest.disconnect();
        QObject::connect(&mSliderRest, &QTimer::timeout, &mSliderRest, [this] { computeNext(); });
        mSliderRest.start(kRestMilliseconds);
    }
    return Adjusting::Done;
}

void Floating::compute(PixelBox box)
{
    if (!box.isEmpty()) applyFilters(std::as_const(*mLifted).view(), mFiltered->view(), mFilterSettings, box);
    mFilteredTiles.markDone(box);
    mLevels.reset();
}

void Floating::computeNext()
{
    // A row of tiles at a time, so that the person's next move is never kept waiting for long.
    if (mFilteredTiles.isComplete()) return;
    compute(mFilteredTiles.nextMissing());
    if (!mFilteredTiles.isComplete()) mSliderRest.start(0);
}

void Floating::finishAdjustment()
{
    if (mFilteredTiles.isComplete()) return;
    mSliderRest.stop();
    compute(mFilteredTiles.missing({0, 0, kMaxPixelsPerSide, kMaxPixelsPerSide}));
}

void Floating::prepareAdjustment(const _ZPTransform& record, PixelBox box)
{
    if (mFilteredTiles.isComplete()) return;
    if (hasPulledCorners(record)) return finishAdjustment(); // drawn from its smaller copies, which need all of it
    // From the picture's pixels to the piece's own, and as far around as drawing them smoothly reaches.
    AffineTransform placement = floatingPlacement(record);
    const Point corner = mSelectionImage->pixelOrigin();
    placement.translate(double(corner.x) - double(size().width) / 2, double(corner.y) - double(size().height) / 2);
    bool ok = true;
    const AffineTransform toPixels = placement.inverted(&ok);
    if (!ok) return;
    const float reach = 3 + 2 * float(std::hypot(toPixels.m11, toPixels.m12));
    compute(mFilteredTiles.missing(
        pixelBoxOf(toPixels.apply(box.rect()).inset(-reach), kMaxPixelsPerSide, kMaxPixelsPerSide)));
}

void Floating::draw(BitmapContext& context, const _ZPTransform& record, float opacity) const
{
    drawFloating(context, *mSelectionImage, record, opacity, hasPulledCorners(record) ? &levels() : nullptr);
}

void Floating::drawReduced(BitmapContext& context, const _ZPTransform& record, float opacity) const
{
    drawFloatingReduced(context, *mSelectionImage, record, opacity, levels());
}

const ImageLevels& Floating::levels() const
{
    if (!mLevels) mLevels = std::make_unique<const ImageLevels>(mSelectionImage->drawn());
    return *mLevels;
}

void Floating::logDrawing(const char* mark) const
{
    if (mSelectionImage->representations().size() < 2) return;
    logLine("more than one rep%s", mark);
    for (const ImageRepresentation& r : mSelectionImage->representations())
        if (r.filtered) logLine("CIImageRep drawn%s", mark);
}

} // namespace zp
