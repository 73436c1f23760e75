// SPDX-License-Identifier: GPL-3.0-or-later
/// Colour and sharpness of the floating selection, filtered anew from the floated pixels at every change.
///
/// A large selection is filtered as it is looked at: a change only notes that all tiles are missing, drawing computes
/// those it shows, a timer the others once the slider rests, and whoever reads the pixels has the rest computed first.
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "imageops/Adjustment.h"
#include "imageops/TileLedger.h"
#include "selection/FloatingImage.h"
#include <cmath>

using namespace zp;

namespace
{

/// Up to this many pixels a change is computed at once: it takes a fraction of a frame.
constexpr std::int64_t kAtOnce = 3'000'000;
/// How long the slider must rest before what nobody sees is computed.
constexpr int kRestMilliseconds = 120;

/// What the canvas remembers of an adjustment. The pixels belong to the floating image alone and go with it.
struct AdjustState {
    std::weak_ptr<Image> image;
    std::weak_ptr<BitmapRep> source, result;
    FilterSettings settings;
    TileLedger tiles;
    QTimer rest;
};

AdjustState& stateOf(ZPCanvas& canvas)
{
    if (!canvas.mAdjustState) canvas.mAdjustState = std::make_shared<AdjustState>();
    return *static_cast<AdjustState*>(canvas.mAdjustState.get());
}

/// The state, if pixels of the image that floats now are missing.
AdjustState* pendingState(ZPCanvas& canvas)
{
    if (!canvas.mAdjustState || !canvas.mSelectionImage) return nullptr;
    AdjustState& state = stateOf(canvas);
    return state.tiles.isComplete() || state.image.lock() != canvas.mSelectionImage ? nullptr : &state;
}

void compute(AdjustState& state, PixelBox box)
{
    const std::shared_ptr<BitmapRep> source = state.source.lock(), result = state.result.lock();
    if (!box.isEmpty() && source && result)
        applyFilters(std::as_const(*source).view(), result->view(), state.settings, box);
    state.tiles.markDone(box);
}

/// A row of tiles at a time, so that the person's next move is never kept waiting for long.
void computeNext(ZPCanvas& canvas)
{
    AdjustState* state = pendingState(canvas);
    if (!state) return;
    compute(*state, state->tiles.nextMissing());
    if (!state->tiles.isComplete()) state->rest.start(0);
}

/// A bitmap for the filtered pixels: the last one, unless somebody else holds it or it has another size.
std::shared_ptr<BitmapRep> takeResult(Image& image, const BitmapRep& source)
{
    for (ImageRepresentation& r : image.representations())
        if (r.filtered && r.bitmap.use_count() == 1 && r.bitmap->pixelsWide() == source.pixelsWide() &&
            r.bitmap->pixelsHigh() == source.pixelsHigh())
            return r.bitmap;
    return BitmapRep::createUninitialized(source.pixelsWide(), source.pixelsHigh());
}

void showAdjusted(ZPCanvas& canvas)
{
    if (canvas.mSelectionPath)
        canvas.setNeedsDisplayInRect(canvas.mSelectionPath->bounds().inset(-2));
    else
        canvas.setNeedsDisplay();
}

} // namespace

void ZPCanvas::adjust()
{
    if (!mSelectionImage) floatSelection();
}

void ZPCanvas::adjust_set(_ZPFilters filters)
{
    if (!mSelectionImage || mSelectionImage->representations().empty()) return beep();
    mAdjustFilters = filters;
    Image& image = *mSelectionImage;
    AdjustState& state = stateOf(*this);
    state.rest.stop();
    state.tiles = {};
    state.settings = filterSettings(filters);

    // Always from the floated pixels: what an earlier change made of them goes first.
    std::shared_ptr<BitmapRep> source;
    for (const ImageRepresentation& r : image.representations())
        if (!r.filtered && !source) source = r.bitmap;
    if (!source) return beep();
    std::shared_ptr<BitmapRep> result = state.settings.isNeutral() ? source : takeResult(image, *source);
    image.removeFiltered();
    if (!result) {
        logLine("adjust: not enough memory");
        setNeedsDisplay();
        return beep();
    }
    image.add(result, true);
    state.image = mSelectionImage;
    state.source = source;
    state.result = result;
    if (!state.settings.isNeutral()) {
        state.tiles = TileLedger(source->pixelsWide(), source->pixelsHigh());
        if (!isVisible() || std::int64_t(source->pixelsWide()) * source->pixelsHigh() <= kAtOnce) {
            finishPendingAdjustment(*this);
        } else {
            state.rest.setSingleShot(true);
            state.rest.disconnect();
            QObject::connect(&state.rest, &QTimer::timeout, this, [this] { computeNext(*this); });
            state.rest.start(kRestMilliseconds);
        }
    }
    showAdjusted(*this);
}

namespace zp
{

void finishPendingAdjustment(ZPCanvas& canvas)
{
    AdjustState* state = pendingState(canvas);
    if (!state) return;
    state->rest.stop();
    compute(*state, state->tiles.missing({0, 0, kMaxPixelsPerSide, kMaxPixelsPerSide}));
}

void prepareAdjustment(ZPCanvas& canvas, PixelBox box)
{
    AdjustState* state = pendingState(canvas);
    if (!state) return;
    // From the image's pixels to the floating image's own, and as far around as drawing them smoothly reaches.
    AffineTransform placement = canvas.floatingPlacement();
    const Size size = canvas.mSelectionImage->size();
    const Point corner = canvas.mSelectionImage->pixelOrigin();
    placement.translate(double(corner.x) - double(size.width) / 2, double(corner.y) - double(size.height) / 2);
    bool ok = true;
    const AffineTransform toPixels = placement.inverted(&ok);
    if (!ok) return;
    const float reach = 3 + 2 * float(std::hypot(toPixels.m11, toPixels.m12));
    compute(*state, state->tiles.missing(
                        pixelBoxOf(toPixels.apply(box.rect()).inset(-reach), kMaxPixelsPerSide, kMaxPixelsPerSide)));
}

} // namespace zp
