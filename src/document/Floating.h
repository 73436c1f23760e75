// SPDX-License-Identifier: GPL-3.0-or-later
/// The piece that floats over the picture: its pixels, its colour adjustment, and what has been done to it.
#pragma once
#include "base/Image.h"
#include "drawing/BitmapContext.h"
#include "drawing/ImageLevels.h"
#include "imageops/Adjustment.h"
#include "imageops/TileLedger.h"
#include "selection/TransformRecord.h"
#include <QTimer>
#include <memory>

namespace zp
{

/// Lives from the lift or paste until it is anchored, let go or dropped. Main thread.
///
/// A large piece is adjusted as it is looked at: a change only notes that all tiles are missing, drawing computes those
/// it shows, a timer the others once the slider rests, and whoever reads the pixels has the rest computed first.
class Floating
{
public:
    /// @param changed  whether the picture has nothing of it: pasted pixels, or lifted ones that left a hole
    Floating(std::shared_ptr<Image> image, bool changed) : mSelectionImage(std::move(image)), mChanged(changed) {}
    Floating(const Floating&) = delete;
    Floating& operator=(const Floating&) = delete;

    const Image& image() const { return *mSelectionImage; }
    Size size() const { return mSelectionImage->size(); }
    int representations() const { return int(mSelectionImage->representations().size()); }
    /// Whether letting it go would lose something: it was pasted, moved, scaled, turned, adjusted, or left a hole.
    bool isChanged() const { return mChanged; }
    void markChanged() { mChanged = true; }
    void markUnchanged() { mChanged = false; } ///< a gesture that had changed it was taken back

    enum class Adjusting { Done, Impossible, NoMemory };
    /// Filters the piece anew from the pixels that were lifted.
    /// @param atOnce  leave nothing for later
    Adjusting adjust(const _ZPFilters& filters, bool atOnce);
    const _ZPFilters& filters() const { return mAdjustFilters; }
    /// Computes what is still missing of the filtered pixels; costs nothing when none are missing.
    void finishAdjustment();
    /// The same, but only what drawing the pixels @p box of the picture needs.
    void prepareAdjustment(const _ZPTransform& record, PixelBox box);

    /// Draws the piece by its record; the caller has set the clips.
    void draw(BitmapContext& context, const _ZPTransform& record, float opacity) const;
    /// The same onto a picture of the screen, of which the context's transform makes the piece a half of its size or
    /// less: from smaller copies of it, which the first drawing after a change of its pixels makes.
    void drawReduced(BitmapContext& context, const _ZPTransform& record, float opacity) const;
    /// Says in the log what a piece of several representations is drawn from, with @p mark behind the words.
    void logDrawing(const char* mark) const;

private:
    const ImageLevels& levels() const;
    void compute(PixelBox box);
    void computeNext();

    std::shared_ptr<Image> mSelectionImage;
    bool mChanged;
    _ZPFilters mAdjustFilters;
    std::shared_ptr<BitmapRep> mLifted, mFiltered; ///< the lifted pixels, and the filtered ones
    FilterSettings mFilterSettings;
    TileLedger mFilteredTiles;
    QTimer mSliderRest;
    mutable std::unique_ptr<const ImageLevels> mLevels; ///< of what is drawn, once they were needed
};

} // namespace zp
